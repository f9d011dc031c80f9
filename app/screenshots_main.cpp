// korvath3-screenshots: pictures of the desktop program's windows for the README and for review,
// taken on any Qt platform (offscreen without a display).

#include "app/design_search_view.h"
#include "app/input_view.h"
#include "app/main_window.h"
#include "app/options_view.h"
#include "app/print_view.h"
#include "app/qt_user_dialogs.h"
#include "app/results_view.h"
#include "app/sensitivity_view.h"
#include "lifecycle/analysis_reset.h"
#include "lifecycle/print_commands.h"
#include "lifecycle/project_lifecycle.h"
#include "reports/qt/pdf_report.h"
#include "shell/load_settings.h"
#include "shell/memory_settings_store.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QFontDatabase>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <iostream>

namespace {

void Save(QWidget* widget, const QString& path) {
    widget->grab().save(path);
    std::cout << path.toStdString() << '\n';
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 3) {
        std::cerr << "usage: korvath3-screenshots FOLDER PROJECT.kvt\n";
        return 1;
    }
    const QString folder = argv[1];
    QDir().mkpath(folder);

    MemorySettingsStore store;
    QtUserDialogs dialogs;
    SystemClock clock;
    ShellServices services{store, dialogs, clock, "/opt/korvath3"};
    Program program;
    MainWindow window(program, services, {QDir::tempPath().toStdString(), "korvath3"});
    LoadSettings(window.services(), program.settings);
    window.resize(1280, 800);
    window.show();
    OpenRecentProject(program, window.services(), argv[2]);
    window.Refresh();
    QApplication::processEvents();

    auto* tabs = window.inputView()->findChild<QTabWidget*>("tabInput");
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        window.Refresh();
        QApplication::processEvents();
        Save(&window, folder + QString("/input-page-%1.png").arg(page + 1));
    }

    // The design search over the count and depth of the type 1 beams each way, around the
    // project's own values: the dialog before the search and after it.
    if (window.Action("mnuDesignSearch")->isEnabled()) {
        DesignSearchView* search = window.designSearchView();
        search->Open();
        auto* fields = search->findChild<QTableWidget*>("grdFields");
        for (int row = 0; row < fields->rowCount(); ++row) {
            const QString field = fields->item(row, 1)->toolTip();
            if (field == "QS1" || field == "DS1" || field == "QL1" || field == "DL1") {
                fields->item(row, 0)->setCheckState(Qt::Checked);
            }
        }
        QApplication::processEvents();
        Save(search, folder + "/design-search-before.png");
        search->findChild<QPushButton*>("cmdSearch")->click();
        while (search->Searching()) {
            QApplication::processEvents(QEventLoop::AllEvents, 50);
        }
        QApplication::processEvents();
        Save(search, folder + "/design-search-after.png");
        search->hide();
    }

    OptionsView* options = window.optionsView();
    ShowOptionsDialog(program, window.services(), 0);
    options->Refresh();
    options->resize(1160, 720);
    options->show();
    QApplication::processEvents();
    auto* optionTabs = options->findChild<QTabWidget*>("tabOptions");
    for (int tab = 0; tab < optionTabs->count(); ++tab) {
        optionTabs->setCurrentIndex(tab);
        QApplication::processEvents();
        Save(options, folder + QString("/options-tab-%1.png").arg(tab));
    }
    options->hide();

    window.RunAnalysis();
    if (program.output.visible) {
        window.Refresh();
        QApplication::processEvents();
        Save(&window, folder + "/results.png");
        auto* main = window.resultsView()->findChild<QTabWidget*>("tabMain");
        for (int tab = 0; tab < main->count(); ++tab) {
            main->setCurrentIndex(tab);
            auto* inner = qobject_cast<QTabWidget*>(main->currentWidget());
            const int pages = inner != nullptr ? inner->count() : 1;
            for (int page = 0; page < pages; ++page) {
                if (inner != nullptr) {
                    inner->setCurrentIndex(page);
                }
                QApplication::processEvents();
                Save(&window, folder + QString("/results-%1-%2.png").arg(tab + 1).arg(page + 1));
            }
        }
        // The plan of the analysed design, in the window it opens in over the results.
        main->setCurrentIndex(0);
        window.Action("mnuPlan")->trigger();
        window.Refresh();
        QApplication::processEvents();
        Save(window.planDock(), folder + "/results-plan.png");
        window.Action("mnuPlan")->trigger();
        window.Refresh();
    }
    if (program.project.outputEnabled) {
        // The soil sensitivity of the project as the dialog opens on it, at edge lift, and of
        // its first field alone.
        SensitivityView sensitivity(program.record, program.settings.options.engineSettings(),
                                    &window);
        sensitivity.show();
        sensitivity.RunAndWait();
        Save(&sensitivity, folder + "/sensitivity.png");
        auto* edge = sensitivity.findChild<QRadioButton*>("optPair(1)");
        if (edge->isEnabled()) {
            edge->click();
            sensitivity.RunAndWait();
            Save(&sensitivity, folder + "/sensitivity-edge-lift.png");
        }
        auto* one = sensitivity.findChild<QRadioButton*>("optPair(2)");
        if (one->isEnabled() && !one->isChecked()) {
            one->click();
            sensitivity.RunAndWait();
            Save(&sensitivity, folder + "/sensitivity-one-field.png");
        }
        sensitivity.hide();
    }
    if (program.project.printEnabled) {
        PrintView* print = window.printView();
        // The font families as the system lists them, which may know Arial only by its twin.
        std::vector<std::string> families;
        for (const QString& family : QFontDatabase::families()) {
            families.push_back(family.toStdString());
        }
        PrintCommand(program, families, "PDF file", PrintPath::Menu);
        print->Refresh();
        print->show();
        QApplication::processEvents();
        Save(print, folder + "/print-dialog.png");
        print->hide();

        // The design summary with header texts of the longest length the input screen takes,
        // as a PDF; make screenshots turns its page into a picture.
        DesignRecord longTexts = program.record;
        longTexts.ProjName = "Meadowbrook Residence, Lot 14, Phase 2, Building C, Unit 12-A";
        longTexts.ProjDate = "November 23, 2026 (revised December 14, 2026 for the permit)";
        longTexts.ProjNum = "2026-117-A-REV-4-SUPPLEMENTAL-FOUNDATION-DESIGN-PACKAGE";
        longTexts.ProjEng = "Jonathan Alexander Alvarez, PE";
        longTexts.ProjGeoRep = "Hill Country Geotechnical, Inc";
        longTexts.ProjGeoNum = "G-26-0419-SUPPLEMENT-2-REV-B-1";
        longTexts.ProjGeoDate = "September 30, 2026";
        PrintJob job;
        job.pages =
            RangePages(PrintRange::Selected, longTexts, {},
                       {true, false, false, false, false, false, false, false, false, false});
        job.totalSheets = 1;
        job.fontName = "Arial";
        job.timeOfDay = "3:05:09 PM";
        WritePdfReport((folder + "/report-long-header.pdf").toStdString(), job, longTexts,
                       program.results, {.projectPath = argv[2]});
        std::cout << (folder + "/report-long-header.pdf").toStdString() << '\n';
    }
    return 0;
}
