#include "app/main_window.h"

#include "app/checks_dock.h"
#include "app/design_search_view.h"
#include "app/input_view.h"
#include "app/options_view.h"
#include "app/package_export_view.h"
#include "app/plan_panel.h"
#include "app/print_view.h"
#include "app/results_view.h"
#include "app/sensitivity_view.h"
#include "app/toolbar_icons.h"
#include "app/verdict_strip_view.h"
#include "input/live_plan.h"
#include "lifecycle/analysis_reset.h"
#include "lifecycle/design_search_dialog.h"
#include "lifecycle/package_export.h"
#include "lifecycle/project_lifecycle.h"
#include "reports/plan_drawing.h"
#include "reports/plan_sheet.h"
#include "shell/recent_files.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// Twips of a pixel on the 96 dots to the inch the screen positions are kept in.
constexpr int TwipsPerPixel = 15;

} // namespace

MainWindow::MainWindow(Program& program, ShellServices& services, AssociationTarget association)
    : m_program(program), m_services(services), m_association(std::move(association)) {
    setObjectName("mdiKorvath");
    m_stack = new QStackedWidget(this);
    auto* welcome = new QLabel("Start a new project or open one from the File menu.", m_stack);
    welcome->setAlignment(Qt::AlignCenter);
    welcome->setObjectName("welcome");
    m_input = new InputView(
        m_program, m_services,
        [this] {
            Refresh();
            InputEdited();
        },
        m_stack);
    m_results = new ResultsView(m_program.output, m_program.record, m_program.results, m_stack);
    m_stack->addWidget(welcome);
    m_stack->addWidget(m_input);
    m_stack->addWidget(m_results);
    // The verdict strip stands above the stack of screens and shows with the results.
    auto* central = new QWidget(this);
    auto* centralLayout = new QVBoxLayout(central);
    centralLayout->setContentsMargins(0, 0, 0, 0);
    centralLayout->setSpacing(0);
    m_strip = new VerdictStripView([this] { m_checksDock->show(); }, central);
    centralLayout->addWidget(m_strip);
    centralLayout->addWidget(m_stack);
    setCentralWidget(central);
    m_planDock = new QDockWidget("Plan", this);
    m_planDock->setObjectName("dockPlan");
    m_plan = new PlanPanel(m_planDock);
    m_plan->setObjectName("picPlan(0)");
    m_planDock->setWidget(m_plan);
    addDockWidget(Qt::RightDockWidgetArea, m_planDock);
    m_planDock->hide();
    m_options = new OptionsView(m_program, m_services, m_association, this);
    m_print = new PrintView(
        m_program, m_services, [this] { m_options->Open(0); }, this);
    BuildChecks();
    m_search = new DesignSearchView(
        m_program, m_services, [this] { Refresh(); }, this);
    BuildMenus();
    BuildToolbar();
    setMinimumSize(1000, 640);
}

QAction* MainWindow::AddAction(QMenu* menu, const std::string& name, const QString& caption) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(QString::fromStdString(name));
    m_actions[name] = action;
    return action;
}

QAction* MainWindow::Action(const std::string& name) const {
    const auto found = m_actions.find(name);
    return found == m_actions.end() ? nullptr : found->second;
}

QToolButton* MainWindow::ToolbarButton(const std::string& key) const {
    const auto found = m_buttons.find(key);
    return found == m_buttons.end() ? nullptr : found->second;
}

void MainWindow::BuildMenus() {
    // Every item has an access key of its own within its menu. The classic program gave Open and
    // Options the same "O" and left the line load item and the related documents without one;
    // here Options takes "t", and those two their first letters.
    QMenu* file = menuBar()->addMenu("&File");
    file->setObjectName("mnuFile");
    QMenu* newMenu = file->addMenu("&New");
    newMenu->setObjectName("mnuNew");
    connect(AddAction(newMenu, "mnuESlab", "&Expansive Soil Project"), &QAction::triggered, this,
            [this] {
                NewProjectCommand(m_program, m_services, ProjectKind::Expansive);
                Refresh();
            });
    connect(AddAction(newMenu, "mnuCSlab", "&Compressible Soil Project"), &QAction::triggered, this,
            [this] {
                NewProjectCommand(m_program, m_services, ProjectKind::Compressible);
                Refresh();
            });
    connect(AddAction(newMenu, "mnuLine", "&Line Load Analysis"), &QAction::triggered, this,
            [this] { LineLoadMenuItem(m_program); });
    QAction* open = AddAction(file, "mnuOpen", "&Open Project ...");
    open->setShortcut(QKeySequence::Open);
    connect(open, &QAction::triggered, this, [this] {
        OpenCommand(m_program, m_services);
        Refresh();
    });
    QAction* save = AddAction(file, "mnuSave", "&Save");
    save->setShortcut(QKeySequence::Save);
    connect(save, &QAction::triggered, this, [this] {
        SaveCommand(m_program, m_services);
        Refresh();
    });
    QAction* saveAs = AddAction(file, "mnuSaveAs", "Save &As ...");
    saveAs->setShortcut(QKeySequence::SaveAs);
    connect(saveAs, &QAction::triggered, this, [this] {
        SaveAsCommand(m_program, m_services);
        Refresh();
    });
    file->addSeparator();
    connect(AddAction(file, "mnuOptions", "Op&tions ..."), &QAction::triggered, this, [this] {
        m_options->Open(0);
        Refresh();
    });
    QAction* print = AddAction(file, "mnuPrint", "&Print ...");
    print->setShortcut(QKeySequence::Print);
    connect(print, &QAction::triggered, this, [this] { OpenPrintDialog(PrintPath::Menu); });
    connect(AddAction(file, "mnuExportPackage", "Export &Calculation Package..."),
            &QAction::triggered, this,
            [this] { ExportCalculationPackage(this, m_program, m_services); });
    QAction* recentSeparator = file->addSeparator();
    recentSeparator->setObjectName("mnuRUSeparator");
    m_actions["mnuRUSeparator"] = recentSeparator;
    for (int i = 1; i <= 5; ++i) {
        connect(AddAction(file, "mnuRU" + std::to_string(i), ""), &QAction::triggered, this,
                [this, i] {
                    OpenRecentCommand(m_program, m_services, i);
                    Refresh();
                });
    }
    file->addSeparator();
    QAction* exit = AddAction(file, "mnuExit", "E&xit");
    exit->setShortcut(QKeySequence::Quit);
    connect(exit, &QAction::triggered, this, &QWidget::close);

    QMenu* screen = menuBar()->addMenu("&Data Screen");
    screen->setObjectName("mnuScreen");
    m_actions["mnuScreen"] = screen->menuAction();
    connect(AddAction(screen, "mnuInput", "&Input"), &QAction::triggered, this, [this] {
        ShowInputScreen(m_program);
        Refresh();
    });
    connect(AddAction(screen, "mnuOutput", "&Output"), &QAction::triggered, this, [this] {
        ShowOutputScreen(m_program);
        Refresh();
    });
    // The plan of the analysed design in a panel beside the results; hidden until asked for.
    QAction* plan = m_planDock->toggleViewAction();
    plan->setText("&Plan");
    plan->setObjectName("mnuPlan");
    screen->addAction(plan);
    m_actions["mnuPlan"] = plan;
    connect(plan, &QAction::toggled, this, [this](bool shown) {
        if (shown && !m_planPlaced) {
            // Beside the results' wide tab strip a docked plan would be a sliver: the first time
            // it opens as a window of its own over the main window, large enough to read; its
            // title bar docks it again.
            m_planPlaced = true;
            m_planDock->setFloating(true);
            m_planDock->resize(width() * 2 / 3, height() * 3 / 4);
            m_planDock->move(geometry().center() - m_planDock->rect().center());
        }
        Refresh();
    });
    QAction* analysis = AddAction(screen, "mnuAnalysis", "&Analysis");
    analysis->setShortcut(Qt::Key_F5);
    connect(analysis, &QAction::triggered, this, [this] { RunAnalysis(); });
    screen->addSeparator();
    QAction* checks = m_checksDock->toggleViewAction();
    checks->setText("&Checks");
    checks->setObjectName("mnuChecks");
    checks->setShortcut(Qt::Key_F6);
    screen->addAction(checks);
    m_actions["mnuChecks"] = checks;
    connect(AddAction(screen, "mnuDesignSearch", "Design &Search..."), &QAction::triggered, this,
            [this] { OpenDesignSearch(); });
    connect(AddAction(screen, "mnuSensitivity", "Soil Se&nsitivity..."), &QAction::triggered, this,
            [this] { ShowSensitivityDialog(); });

    QMenu* help = menuBar()->addMenu("&Help");
    help->setObjectName("mnuHelp");
    connect(AddAction(help, "mnuTechSup", "&Obtaining Support ..."), &QAction::triggered, this,
            [this] {
                QMessageBox::information(this, "Obtaining Support",
                                         "Korvath 3.0 is supported by Brellin Works.\n"
                                         "Describe the project and attach its .kvt file.");
            });
    connect(AddAction(help, "mnuDocs", "&Related Documents ..."), &QAction::triggered, this,
            [this] {
                QMessageBox::information(this, "Related Documents",
                                         "Design of Post-Tensioned Slabs-On-Ground, 3rd Edition,\n"
                                         "Post-Tensioning Institute.");
            });
    connect(AddAction(help, "mnuAbout", "&About Korvath 3.0 ..."), &QAction::triggered, this,
            [this] { ShowAbout(); });
}

void MainWindow::BuildToolbar() {
    QToolBar* toolbar = addToolBar("Korvath");
    toolbar->setObjectName("tlbKorvath");
    toolbar->setMovable(false);
    toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    const auto button = [this, toolbar](const std::string& key, int position,
                                        QStyle::StandardPixmap icon) {
        auto* tool = new QToolButton(toolbar);
        tool->setObjectName(QString::fromStdString("tlbKorvath(" + std::to_string(position) + ")"));
        tool->setText(QString::fromStdString(key));
        tool->setIcon(ToolbarIcon(style()->standardIcon(icon)));
        tool->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        // Every button's command is a menu item with its access key; the toolbar is for the
        // mouse and stays out of the tab sequence.
        tool->setFocusPolicy(Qt::NoFocus);
        toolbar->addWidget(tool);
        m_buttons[key] = tool;
        return tool;
    };
    QToolButton* newButton = button("New", 1, QStyle::SP_FileIcon);
    auto* kinds = new QMenu(newButton);
    for (const ProjectKind kind :
         {ProjectKind::Expansive, ProjectKind::Compressible, ProjectKind::LineLoad}) {
        QAction* item = kinds->addAction(QString::fromStdString(NewKindCaption(kind)));
        connect(item, &QAction::triggered, this, [this, kind] {
            ChooseNewKind(m_program, m_services, kind);
            Refresh();
        });
    }
    newButton->setMenu(kinds);
    newButton->setPopupMode(QToolButton::MenuButtonPopup);
    connect(newButton, &QToolButton::clicked, this, [this] {
        ClickNewButton(m_program, m_services);
        Refresh();
    });
    connect(button("Open", 2, QStyle::SP_DialogOpenButton), &QToolButton::clicked, this, [this] {
        OpenCommand(m_program, m_services);
        Refresh();
    });
    toolbar->addSeparator();
    connect(button("Save", 4, QStyle::SP_DialogSaveButton), &QToolButton::clicked, this, [this] {
        SaveCommand(m_program, m_services);
        Refresh();
    });
    toolbar->addSeparator();
    connect(button("Print", 6, QStyle::SP_FileDialogDetailedView), &QToolButton::clicked, this,
            [this] { OpenPrintDialog(PrintPath::Toolbar); });
    toolbar->addSeparator();
    connect(button("Input", 8, QStyle::SP_FileDialogContentsView), &QToolButton::clicked, this,
            [this] {
                ShowInputScreen(m_program);
                Refresh();
            });
    connect(button("Analysis", 9, QStyle::SP_MediaPlay), &QToolButton::clicked, this,
            [this] { RunAnalysis(); });
    connect(button("Output", 10, QStyle::SP_FileDialogListView), &QToolButton::clicked, this,
            [this] {
                ShowOutputScreen(m_program);
                Refresh();
            });
    toolbar->addSeparator();
    QToolButton* search = button("Search", 11, QStyle::SP_FileDialogInfoView);
    search->setToolTip("Design Search...");
    connect(search, &QToolButton::clicked, this, [this] { OpenDesignSearch(); });
    connect(button("Sensitivity", 12, QStyle::SP_FileDialogContentsView), &QToolButton::clicked,
            this, [this] { ShowSensitivityDialog(); });
}

void MainWindow::ShowSensitivityDialog() {
    // The record is the one the results were worked out from: the dialog is open to a project
    // whose input has not changed since its analysis, as the Output command is.
    if (!MenuEnabled(m_program.project, "mnuOutput")) {
        return;
    }
    auto* dialog =
        new SensitivityView(m_program.record, m_program.settings.options.engineSettings(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->OnRunFinished(
        [this](const std::vector<std::string>& ranges) { m_program.sensitivityRanges = ranges; });
    dialog->show();
}

void MainWindow::Place() {
    // The input pages need a larger window than the classic 11962 by 8500 twips; the place is
    // the lifecycle's, for the size the window has.
    const QRect screen = this->screen()->availableGeometry();
    const QSize size(std::min(1240, screen.width()), std::min(780, screen.height()));
    resize(size);
    const WindowPlace place = LoadMainWindow(
        m_program, m_services, screen.width() * TwipsPerPixel, screen.height() * TwipsPerPixel,
        size.width() * TwipsPerPixel, size.height() * TwipsPerPixel);
    move(screen.left() + static_cast<int>(place.left / TwipsPerPixel),
         screen.top() + static_cast<int>(place.top / TwipsPerPixel));
}

void MainWindow::Refresh() {
    const ProjectState& project = m_program.project;
    setWindowTitle(QString::fromStdString(project.caption));
    for (const char* name : {"mnuSave", "mnuSaveAs", "mnuPrint", "mnuOutput", "mnuScreen",
                             "mnuInput", "mnuAnalysis"}) {
        m_actions[name]->setEnabled(MenuEnabled(project, name));
    }
    m_actions["mnuExportPackage"]->setEnabled(PackageExportAvailable(m_program));
    const std::pair<const char*, int> keys[] = {
        {"Save", 4}, {"Print", 6}, {"Input", 8}, {"Analysis", 9}, {"Output", 10}};
    for (const auto& [key, position] : keys) {
        m_buttons[key]->setEnabled(ToolbarButtonEnabled(project, position));
    }
    m_actions["mnuSensitivity"]->setEnabled(MenuEnabled(project, "mnuOutput"));
    m_buttons["Sensitivity"]->setEnabled(MenuEnabled(project, "mnuOutput"));
    // The design search starts from the input as it stands, once it passes its checks.
    const bool searchable = DesignSearchEnabled(m_program);
    m_actions["mnuDesignSearch"]->setEnabled(searchable);
    m_buttons["Search"]->setEnabled(searchable);
    m_buttons["New"]->setToolTip(QString::fromStdString(project.newToolTip));
    const std::vector<RecentFileItem> recent = RecentFileItems(m_program.settings);
    for (std::size_t i = 0; i < recent.size(); ++i) {
        QAction* item = m_actions["mnuRU" + std::to_string(i + 1)];
        item->setText(QString::fromStdString(recent[i].caption));
        item->setVisible(recent[i].visible);
    }
    m_actions["mnuRUSeparator"]->setVisible(RecentFilesSeparatorVisible(m_program.settings));

    RefreshChecks();
    if (m_actions["mnuPlan"]->isChecked()) {
        const bool analysed = MenuEnabled(project, "mnuOutput");
        const FoundationPlan plan = AnalysedPlan(m_program.record, m_program.results, analysed);
        m_plan->Show(plan, plan.reason.empty(), plan.reason, PlanSheetTitle(m_program.record));
    }
    if (m_program.output.visible) {
        m_results->Refresh();
        ShowScreen(m_results);
    } else if (m_program.input.visible) {
        ShowScreen(m_input);
        m_input->Refresh();
    } else {
        ShowScreen(m_stack->widget(0));
    }
}

// Only the screen shown asks for room: the hidden screens' sizes are ignored, so that the wide
// input pages do not keep a dock beside the results narrow.
void MainWindow::ShowScreen(QWidget* screen) {
    for (int i = 0; i < m_stack->count(); ++i) {
        QWidget* page = m_stack->widget(i);
        const QSizePolicy::Policy policy =
            page == screen ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        page->setSizePolicy(policy, policy);
    }
    m_stack->setCurrentWidget(screen);
    m_stack->updateGeometry();
}

void MainWindow::RunAnalysis() {
    if (!m_program.project.analysisEnabled) {
        return;
    }
    m_program.mainInnerWidth = ResultsScreenWidth;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const AnalysisResult result = AnalysisReset(m_program, m_services);
    QApplication::restoreOverrideCursor();
    if (result == AnalysisResult::ResultsShown) {
        try {
            LoadChecksPanel(m_checksPanel, m_program.record, m_program.results);
            ++m_checksLoads;
        } catch (const ArithmeticFault&) {
            // The results screen has met the same fault first and ended the program.
            m_checksPanel.loaded = false;
        }
    }
    if (result == AnalysisResult::EndProgram) {
        // The fault has been shown: the program ends at once and saves nothing.
        m_ending = true;
        close();
        QApplication::exit(3);
        return;
    }
    Refresh();
}

void MainWindow::BuildChecks() {
    m_checksDock = new ChecksDock(
        m_checksPanel,
        [this](std::size_t check) {
            if (!m_program.project.outputEnabled) {
                return;
            }
            OpenCheckPage(m_checksPanel, check, m_program.output);
            ShowOutputScreen(m_program);
            Refresh();
        },
        this);
    // Under the results, the whole width of the window: every column of the table reads without
    // scrolling sideways, and the results' tabs keep their width.
    addDockWidget(Qt::BottomDockWidgetArea, m_checksDock);
    m_checksDock->hide();
    connect(m_checksDock, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible && !m_checksDock->isFloating() && m_checksDock->height() < 240) {
            resizeDocks({m_checksDock}, {300}, Qt::Vertical);
        }
    });
    m_strip->hide();

    m_liveVerdict = new QLabel(this);
    m_liveVerdict->setObjectName("lblLiveVerdict");
    statusBar()->addWidget(m_liveVerdict, 1);
    m_liveTimer = new QTimer(this);
    m_liveTimer->setSingleShot(true);
    m_liveTimer->setTimerType(Qt::PreciseTimer);
    connect(m_liveTimer, &QTimer::timeout, this, [this] { ShowLiveVerdict(); });
    m_clock.start();
}

void MainWindow::RefreshChecks() {
    const bool results = m_program.output.visible && m_checksPanel.loaded;
    m_strip->Refresh(VerdictStripLines(m_checksPanel));
    m_strip->setVisible(results);
    // The table is drawn again only when it has something new to show.
    const std::pair<int, bool> shown{m_checksLoads, m_program.project.outputEnabled};
    if (shown != m_checksShown) {
        m_checksShown = shown;
        m_checksDock->Refresh(shown.second);
    }
    if (!m_program.input.visible) {
        m_liveTimer->stop();
        m_liveVerdict->clear();
    }
}

// Each event of the input pages puts the verdict of the values as typed off by a moment, so
// that it is worked out once the engineer pauses.
void MainWindow::InputEdited() {
    if (m_program.input.visible) {
        m_liveTimer->start(static_cast<int>(m_liveSchedule.Edited(m_clock.elapsed())));
    }
}

void MainWindow::ShowLiveVerdict() {
    if (!m_program.input.visible) {
        return;
    }
    const std::int64_t now = m_clock.elapsed();
    if (!m_liveSchedule.TakeDue(now)) {
        // A timer may fire a little before its time: the verdict waits the rest.
        if (const std::int64_t left = m_liveSchedule.TimeLeft(now); left > 0) {
            m_liveTimer->start(static_cast<int>(left));
        }
        return;
    }
    const LiveVerdict live =
        JudgeValuesAsTyped(m_program.input.form, m_program.record, m_program.results,
                           m_program.settings.options.engineSettings());
    m_liveVerdict->setText(QString::fromStdString(live.text));
    m_liveVerdict->setToolTip(QString::fromStdString(live.text));
    m_liveVerdict->setStyleSheet(!live.checked ? ""
                                 : live.pass   ? "color: #1a7f1a;"
                                               : "color: #ff0000;");
}

void MainWindow::OpenPrintDialog(PrintPath path) {
    m_print->Open(path);
    Refresh();
}

void MainWindow::OpenDesignSearch() {
    if (!DesignSearchEnabled(m_program)) {
        return;
    }
    m_search->Open();
}

void MainWindow::ShowAbout() {
    QMessageBox::about(this, "About Korvath 3.0",
                       "<b>Korvath 3.0</b><br/>Build 100712<br/><br/>"
                       "Post-tensioned slabs on ground, ribbed or of uniform thickness, on "
                       "expansive or compressible soil, designed by the method of the PTI manual "
                       "<i>Design of Post-Tensioned Slabs-On-Ground, 3rd Edition</i>.");
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (m_ending) {
        event->accept();
        return;
    }
    if (!QueryUnload(m_program, m_services)) {
        event->ignore();
        Refresh();
        return;
    }
    EndProgram(m_program, m_services, std::to_string(x() * TwipsPerPixel),
               std::to_string(y() * TwipsPerPixel));
    event->accept();
}
