#include "app/main_window.h"

#include "app/design_search_view.h"
#include "app/input_view.h"
#include "app/options_view.h"
#include "app/print_view.h"
#include "app/results_view.h"
#include "lifecycle/analysis_reset.h"
#include "lifecycle/design_search_dialog.h"
#include "lifecycle/project_lifecycle.h"
#include "shell/recent_files.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStackedWidget>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>

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
        m_program, m_services, [this] { Refresh(); }, m_stack);
    m_results = new ResultsView(m_program.output, m_program.record, m_program.results, m_stack);
    m_stack->addWidget(welcome);
    m_stack->addWidget(m_input);
    m_stack->addWidget(m_results);
    setCentralWidget(m_stack);
    m_options = new OptionsView(m_program, m_services, m_association, this);
    m_print = new PrintView(
        m_program, m_services, [this] { m_options->Open(0); }, this);
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
    connect(AddAction(newMenu, "mnuLine", "Line Load Analysis"), &QAction::triggered, this,
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
    connect(AddAction(file, "mnuOptions", "&Options ..."), &QAction::triggered, this, [this] {
        m_options->Open(0);
        Refresh();
    });
    QAction* print = AddAction(file, "mnuPrint", "&Print ...");
    print->setShortcut(QKeySequence::Print);
    connect(print, &QAction::triggered, this, [this] { OpenPrintDialog(PrintPath::Menu); });
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
    QAction* analysis = AddAction(screen, "mnuAnalysis", "&Analysis");
    analysis->setShortcut(Qt::Key_F5);
    connect(analysis, &QAction::triggered, this, [this] { RunAnalysis(); });
    screen->addSeparator();
    connect(AddAction(screen, "mnuDesignSearch", "Design &Search..."), &QAction::triggered, this,
            [this] { OpenDesignSearch(); });

    QMenu* help = menuBar()->addMenu("&Help");
    help->setObjectName("mnuHelp");
    connect(AddAction(help, "mnuTechSup", "&Obtaining Support ..."), &QAction::triggered, this,
            [this] {
                QMessageBox::information(this, "Obtaining Support",
                                         "Korvath 3.0 is supported by Brellin Works.\n"
                                         "Describe the project and attach its .kvt file.");
            });
    connect(AddAction(help, "mnuDocs", "Related Documents ..."), &QAction::triggered, this, [this] {
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
        tool->setIcon(style()->standardIcon(icon));
        tool->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
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
    const std::pair<const char*, int> keys[] = {
        {"Save", 4}, {"Print", 6}, {"Input", 8}, {"Analysis", 9}, {"Output", 10}};
    for (const auto& [key, position] : keys) {
        m_buttons[key]->setEnabled(ToolbarButtonEnabled(project, position));
    }
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

    if (m_program.output.visible) {
        m_results->Refresh();
        m_stack->setCurrentWidget(m_results);
    } else if (m_program.input.visible) {
        m_stack->setCurrentWidget(m_input);
        m_input->Refresh();
    } else {
        m_stack->setCurrentIndex(0);
    }
}

void MainWindow::RunAnalysis() {
    if (!m_program.project.analysisEnabled) {
        return;
    }
    m_program.mainInnerWidth = ResultsScreenWidth;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const AnalysisResult result = AnalysisReset(m_program, m_services);
    QApplication::restoreOverrideCursor();
    if (result == AnalysisResult::EndProgram) {
        // The fault has been shown: the program ends at once and saves nothing.
        m_ending = true;
        close();
        QApplication::exit(3);
        return;
    }
    Refresh();
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
