#include "app/main_window.h"
#include "app/print_view.h"
#include "app/results_view.h"
#include "lifecycle/analysis_reset.h"
#include "lifecycle/print_commands.h"
#include "lifecycle/project_lifecycle.h"
#include "shell/load_settings.h"

#include "tests/shell/shell_test_support.h"
#include "tests/test_files.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

struct Analysed {
    ScratchFolder scratch;
    ShellFixture shell;
    Program program;
    MainWindow window{program, shell.services, {scratch.path() / "share", "korvath3"}};

    explicit Analysed(const std::string& example) {
        LoadSettings(shell.services, program.settings);
        window.resize(1280, 800);
        window.show();
        const auto copy = scratch.path() / (example + ".kvt");
        std::filesystem::copy_file(
            std::filesystem::path(K3_SOURCE_DIR) / "examples" / (example + ".kvt"), copy);
        OpenRecentProject(program, shell.services, copy.string());
        window.Refresh();
        window.Action("mnuAnalysis")->trigger();
        QApplication::processEvents();
    }

    QLabel* Label(const std::string& name) {
        const std::vector<QWidget*> widgets = window.resultsView()->Widgets(name);
        EXPECT_FALSE(widgets.empty()) << name;
        return widgets.empty() ? nullptr : qobject_cast<QLabel*>(widgets.front());
    }

    QTabWidget* Tabs(const char* name) {
        return window.resultsView()->findChild<QTabWidget*>(name);
    }
};

std::string PdfText(const std::filesystem::path& pdf) {
    const std::string command = "pdftotext -layout '" + pdf.string() + "' - 2>/dev/null";
    FILE* pipe = popen(command.c_str(), "r");
    std::string text;
    char buffer[4096];
    while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe)) {
        text.append(buffer, n);
    }
    pclose(pipe);
    return text;
}

} // namespace

TEST(ResultsWindow, SummaryLinesAndTabCaptionsOfEachExample) {
    const struct {
        const char* example;
        std::vector<QString> ribbedTabs;
        int mainTabs;
        QString complianceLine;
        bool bad;
    } cases[] = {
        {"expansive_ribbed",
         {"Design Summary", "Design Compliance", "PTI Exceptions", "Center Lift Analysis",
          "Edge Lift Analysis", "Soil Bearing / Prestress Summary", "Selected Variables"},
         2,
         "Ribbed Foundation has 3 items out of compliance",
         true},
        {"compressible_edge_down",
         // The classic captions' padding blanks are not drawn, so that no tab is stretched.
         {"Design Summary", "Design Compliance", "PTI Exceptions", "Center Down Analysis",
          "Edge Down Analysis", "Soil Bearing / Prestress Summary", "Selected Variables"},
         2,
         "Ribbed Foundation in compliance",
         false},
        {"uniform_line_load",
         {"Design Summary", "Design Compliance", "PTI Exceptions", "Center Lift Analysis",
          "Edge Lift Analysis", "Soil Bearing / Prestress Summary", "Selected Variables"},
         4,
         "Ribbed Foundation has 2 items out of compliance",
         true},
    };
    for (const auto& c : cases) {
        Analysed a(c.example);
        ASSERT_TRUE(a.program.output.visible) << c.example;
        QTabWidget* ribbed = a.Tabs("tabRibbed");
        ASSERT_TRUE(ribbed);
        std::vector<QString> captions;
        for (int i = 0; i < ribbed->count(); ++i) {
            captions.push_back(ribbed->tabText(i));
        }
        EXPECT_EQ(captions, c.ribbedTabs) << c.example;
        EXPECT_EQ(a.Tabs("tabMain")->count(), c.mainTabs) << c.example;
        // Ctrl+PageDown walks the results pages: from the project summary to the first ribbed
        // page, then to the next one; Ctrl+PageUp goes back.
        QWidget* results = a.window.resultsView();
        QTest::keyClick(results, Qt::Key_PageDown, Qt::ControlModifier);
        EXPECT_EQ(a.Tabs("tabMain")->currentIndex(), 1) << c.example;
        EXPECT_EQ(ribbed->currentIndex(), 0) << c.example;
        QTest::keyClick(results, Qt::Key_PageDown, Qt::ControlModifier);
        EXPECT_EQ(ribbed->currentIndex(), 1) << c.example;

        // Every tab, "Selected Variables" the last, stands in a window of 1280 by 800 without
        // scrolling the tab bar.
        QApplication::processEvents();
        EXPECT_LE(ribbed->tabBar()->sizeHint().width(), ribbed->width()) << c.example;
        EXPECT_LE(a.window.minimumSizeHint().width(), 1280) << c.example;
        const QRect last = ribbed->tabBar()->tabRect(ribbed->count() - 1);
        EXPECT_LE(last.right(), ribbed->tabBar()->width()) << c.example;

        QTest::keyClick(results, Qt::Key_PageUp, Qt::ControlModifier);
        QTest::keyClick(results, Qt::Key_PageUp, Qt::ControlModifier);
        EXPECT_EQ(a.Tabs("tabMain")->currentIndex(), 0) << c.example;

        QLabel* line = a.Label("RibbedSummary(1)");
        ASSERT_TRUE(line);
        EXPECT_EQ(line->text().toStdString(), a.program.output.form["RibbedSummary(1)"].caption);
        EXPECT_EQ(line->text(), c.complianceLine);
        EXPECT_EQ(line->font().bold(), c.bad) << c.example;
        EXPECT_EQ(line->styleSheet().contains("255, 0, 0"), c.bad) << c.example;
    }
}

TEST(ResultsWindow, ASummaryLineJumpsToItsTabAndDisplayAllListsEveryValue) {
    Analysed a("uniform_line_load");
    QLabel* exceptions = a.Label("UTFSummary(2)");
    ASSERT_TRUE(exceptions);
    QTest::mouseClick(exceptions, Qt::LeftButton);
    EXPECT_EQ(a.Tabs("tabMain")->currentIndex(), 2);
    EXPECT_EQ(a.Tabs("tabUniform")->currentIndex(), 2);

    QLabel* lineLoad = a.Label("LLSummary(0)");
    QTest::mouseClick(lineLoad, Qt::LeftButton);
    EXPECT_EQ(a.Tabs("tabMain")->currentIndex(), 3);

    auto* box = qobject_cast<QCheckBox*>(a.window.resultsView()->Widgets("chkRibbedDC").front());
    auto* list =
        qobject_cast<QTextBrowser*>(a.window.resultsView()->Widgets("rtbRibbedDC").front());
    ASSERT_TRUE(box && list);
    EXPECT_EQ(box->text(), "Display all");
    EXPECT_TRUE(list->toPlainText().contains("ALL VALUES WITHIN ALLOWABLE LIMITS."));
    box->click();
    EXPECT_EQ(a.program.output.flags.ShowAllRibbed, 1);
    EXPECT_FALSE(list->toPlainText().contains("ALL VALUES WITHIN ALLOWABLE LIMITS."));
    EXPECT_TRUE(list->toPlainText().contains("BENDING STRESS IN SHORT DIRECTION (TENSION)"));
}

TEST(PrintWindow, TheEntireReportThroughTheDialogIntoAPdf) {
    Analysed a("compressible_edge_down");
    PrintView* print = a.window.printView();
    PrintCommand(a.program, {"Arial"}, "PDF file", PrintPath::Menu);
    print->Refresh();
    auto* entire = print->findChild<QAbstractButton*>("Option1(1)");
    ASSERT_TRUE(entire);
    entire->click();
    EXPECT_FALSE(print->findChild<QWidget*>("Check1(0)")->isEnabled());

    const auto pdf = a.scratch.path() / "report.pdf";
    ASSERT_TRUE(print->SaveAsPdf(QString::fromStdString(pdf.string())));
    const std::string text = PdfText(pdf);
    // Compressible soil with edge down, no uniform foundation, no line load: 8 sheets.
    for (const char* expected :
         {"RIBBED FOUNDATION - DESIGN SUMMARY", "RIBBED FOUNDATION - DESIGN COMPLIANCE SUMMARY",
          "COMPRESSIBLE SOIL MODE (EDGE DOWN)", "SUMMARY OF INPUT DATA - Continued",
          "PTI EXCEPTION SUMMARY", "Page 1 of 8", "Page 8 of 8", "Riverside Commons"}) {
        EXPECT_NE(text.find(expected), std::string::npos) << expected;
    }
    EXPECT_FALSE(a.program.print.busyPointer);

    // A PDF that cannot be written is a printing failure under the title of the menu's path.
    PrintCommand(a.program, {"Arial"}, "PDF file", PrintPath::Menu);
    const auto nowhere = a.scratch.path() / "no such folder" / "report.pdf";
    EXPECT_FALSE(print->SaveAsPdf(QString::fromStdString(nowhere.string())));
    ASSERT_FALSE(a.shell.dialogs.messages.empty());
    EXPECT_EQ(a.shell.dialogs.messages.back().title, "Critical Error");
    EXPECT_EQ(a.shell.dialogs.messages.back().text, "Path not found");
    EXPECT_FALSE(a.program.print.busyPointer);

    // The selected range with only the uniform pages ticked cannot be: they are disabled for
    // this project; the default report with only the line load page warns.
    a.program.settings.options.DefaultPages = {0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    print->findChild<QAbstractButton*>("Option1(0)")->click();
    EXPECT_FALSE(print->SaveAsPdf(QString::fromStdString((a.scratch.path() / "no.pdf").string())));
    EXPECT_EQ(a.shell.dialogs.messages.back().title, "Print Warning");
    EXPECT_FALSE(std::filesystem::exists(a.scratch.path() / "no.pdf"));
}

// The families the system lists know Arial only by its twin: the dialog shows it all the same.
TEST(PrintWindow, TheReportFontShowsTheFontInUse) {
    Analysed a("expansive_ribbed");
    PrintView* print = a.window.printView();
    PrintCommand(a.program, {"DejaVu Sans", "Liberation Sans"}, "PDF file", PrintPath::Menu);
    print->Refresh();
    auto* fonts = print->findChild<QComboBox*>("cbbReportFont");
    ASSERT_TRUE(fonts);
    EXPECT_EQ(fonts->currentText(), "Arial");
    EXPECT_EQ(fonts->count(), 3);
}

TEST(PrintWindow, WithoutResultsThePrintCommandShowsNoDialog) {
    ScratchFolder scratch;
    ShellFixture shell;
    Program program;
    MainWindow window{program, shell.services, {scratch.path() / "share", "korvath3"}};
    LoadSettings(shell.services, program.settings);
    window.Place();
    window.Refresh();
    NewProjectReset(program, shell.services, ProjectKind::Expansive);
    window.Refresh();
    ASSERT_FALSE(program.project.printEnabled);

    // Should the dialog come up, it is closed again at once, so that the test cannot hang.
    bool shown = false;
    QTimer::singleShot(0, [&] {
        if (window.printView()->isVisible()) {
            shown = true;
            window.printView()->reject();
        }
    });
    window.printView()->Open(PrintPath::Toolbar);
    QApplication::processEvents();
    EXPECT_FALSE(shown);
    EXPECT_FALSE(program.print.visible);
}
