#include "app/design_search_view.h"
#include "app/main_window.h"
#include "compliance/check_names.h"
#include "lifecycle/project_lifecycle.h"
#include "shell/load_settings.h"

#include "tests/shell/shell_test_support.h"
#include "tests/test_files.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QtCharts/QChartView>
#include <QtCharts/QXYSeries>
#include <gtest/gtest.h>

namespace {

// The main window on the compressible example (eight short and six long beams 26 in deep, in
// compliance), opened as from the command line, with scripted message boxes.
struct SearchDesktop {
    ScratchFolder scratch;
    ShellFixture shell;
    Program program;
    MainWindow window{program, shell.services, {scratch.path() / "share", "korvath3"}};

    SearchDesktop() {
        LoadSettings(shell.services, program.settings);
        window.resize(1280, 800);
        window.Refresh();
        window.show();
        const auto copy = scratch.path() / "compressible_edge_down.kvt";
        std::filesystem::copy_file(
            std::filesystem::path(K3_SOURCE_DIR) / "examples" / "compressible_edge_down.kvt", copy);
        OpenAssociatedProject(program, shell.services, "\"" + copy.string() + "\"");
        window.Refresh();
        QApplication::processEvents();
    }

    DesignSearchView* view() { return window.designSearchView(); }

    template <typename Widget> Widget* Find(const char* name) {
        Widget* widget = view()->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    // Ticks the field's row and types its range into the table, as the engineer does.
    void Vary(const std::string& field, const QString& from, const QString& to,
              const QString& step) {
        auto* table = Find<QTableWidget>("grdFields");
        for (int row = 0; row < table->rowCount(); ++row) {
            if (table->item(row, 1)->toolTip().toStdString() == field) {
                table->item(row, 3)->setText(from);
                table->item(row, 4)->setText(to);
                table->item(row, 5)->setText(step);
                table->item(row, 0)->setCheckState(Qt::Checked);
                return;
            }
        }
        ADD_FAILURE() << field << " is not offered";
    }

    // Lets the window take the search's reports until it has finished, at most a minute.
    bool WaitForTheSearch() {
        QElapsedTimer clock;
        clock.start();
        while (view()->Searching() && clock.elapsed() < 60000) {
            QApplication::processEvents(QEventLoop::AllEvents, 50);
        }
        QApplication::processEvents();
        return !view()->Searching();
    }
};

} // namespace

TEST(DesignSearchWindow, FindsCompliantDesignsShowsWhyOthersFailedAndUsesOne) {
    SearchDesktop d;
    QAction* menu = d.window.Action("mnuDesignSearch");
    ASSERT_TRUE(menu);
    EXPECT_TRUE(menu->isEnabled());
    EXPECT_TRUE(d.window.ToolbarButton("Search")->isEnabled());
    menu->trigger();
    ASSERT_TRUE(d.view()->isVisible());

    auto* count = d.Find<QLabel>("lblCandidates");
    auto* search = d.Find<QPushButton>("cmdSearch");
    EXPECT_EQ(count->text(), "Choose at least one field to vary");
    EXPECT_FALSE(search->isEnabled());
    // Depths of 20 to 30 in both ways, six to nine short beams and five to seven long ones:
    // 6 x 6 x 4 x 3 = 432 candidates.
    d.Vary("DS1", "20", "30", "2");
    d.Vary("DL1", "20", "30", "2");
    d.Vary("QS1", "6", "9", "1");
    d.Vary("QL1", "5", "7", "1");
    EXPECT_EQ(count->text(), "432 candidates");
    ASSERT_TRUE(search->isEnabled());

    search->click();
    ASSERT_TRUE(d.WaitForTheSearch());
    const DesignSearchDialog& model = d.view()->model();
    ASSERT_TRUE(model.last.has_value());
    const SearchOutcome& outcome = model.last->outcome;
    EXPECT_EQ(outcome.tried, 432);
    EXPECT_FALSE(outcome.interrupted);
    ASSERT_GT(outcome.compliant, 0);
    ASSERT_GT(outcome.outOfCompliance, 0);
    EXPECT_EQ(d.Find<QLabel>("lblCounts")->text().toStdString(),
              "Candidates tried: 432\n  refused by the value checks: 0\n  ended in a fault: 0\n"
              "  out of compliance: " +
                  std::to_string(outcome.outOfCompliance) +
                  "\n  compliant: " + std::to_string(outcome.compliant));

    // The reasons: the checks failed, most frequent first, each with its count.
    auto* reasons = d.Find<QTreeWidget>("tvwReasons");
    ASSERT_EQ(reasons->topLevelItemCount(), 2);
    QTreeWidgetItem* failed = reasons->topLevelItem(1);
    ASSERT_EQ(failed->childCount(), static_cast<int>(outcome.failures.size()));
    ASSERT_GT(failed->childCount(), 0);
    ASSERT_EQ(outcome.failures[0].foundation, Foundation::Ribbed);
    EXPECT_EQ(failed->child(0)->text(0).toStdString(), CheckTitle(outcome.failures[0].check()));
    EXPECT_EQ(failed->child(0)->text(1).toLongLong(), outcome.failures[0].count);

    // The best designs in order of concrete, each within every limit: less concrete is never
    // further down.
    auto* best = d.Find<QTableWidget>("grdBest");
    ASSERT_EQ(best->rowCount(), static_cast<int>(outcome.best.size()));
    // The varied fields in the order of the input screen: the short beams' count and depth,
    // then the long beams'.
    EXPECT_EQ(best->horizontalHeaderItem(1)->text(), "QS1");
    EXPECT_EQ(best->horizontalHeaderItem(2)->text(), "DS1");
    EXPECT_EQ(best->horizontalHeaderItem(3)->text(), "QL1");
    EXPECT_EQ(best->horizontalHeaderItem(4)->text(), "DL1");
    EXPECT_EQ(best->horizontalHeaderItem(5)->text(), "Concrete (yd3)");
    for (int row = 1; row < best->rowCount(); ++row) {
        EXPECT_LE(best->item(row - 1, 5)->text().toDouble(), best->item(row, 5)->text().toDouble());
    }

    // The chart: the front of compliant designs and the current design marked apart.
    auto* chart = d.Find<QChartView>("chtPareto");
    const QList<QAbstractSeries*> series = chart->chart()->series();
    ASSERT_EQ(series.size(), 3);
    EXPECT_EQ(static_cast<QXYSeries*>(series[1])->count(), static_cast<int>(outcome.pareto.size()));
    ASSERT_EQ(static_cast<QXYSeries*>(series[2])->count(), 1);
    EXPECT_EQ(series[2]->name(), "Current design");

    // The best design goes into the input screen after one question; the results wait for F5.
    const std::vector<double> values = CandidateValues(*model.last, outcome.best[0].index);
    d.shell.dialogs.replies = {Answer::Yes};
    best->selectRow(0);
    auto* use = d.Find<QPushButton>("cmdUse");
    ASSERT_TRUE(use->isEnabled());
    use->click();
    EXPECT_EQ(d.shell.dialogs.messages.back().title, "Design Search");
    auto* depth = d.window.findChild<QLineEdit*>("txtDS1");
    ASSERT_TRUE(depth);
    EXPECT_EQ(depth->text().toDouble(), values[1]);
    EXPECT_EQ(best->item(0, 2)->text().toDouble(), values[1]);
    EXPECT_EQ(d.program.input.form["txtQL1"].text, QString::number(values[2]).toStdString());
    EXPECT_TRUE(d.window.windowTitle().endsWith("*"));
    EXPECT_FALSE(d.window.Action("mnuOutput")->isEnabled());
    EXPECT_TRUE(d.window.Action("mnuAnalysis")->isEnabled());

    auto* undo = d.Find<QPushButton>("cmdUndo");
    ASSERT_TRUE(undo->isEnabled());
    undo->click();
    EXPECT_EQ(depth->text(), "26");
    EXPECT_EQ(d.program.input.form["txtQL1"].text, "6");
    EXPECT_FALSE(undo->isEnabled());
    d.Find<QPushButton>("cmdClose")->click();
    EXPECT_FALSE(d.view()->isVisible());
}

// Cancel ends a long search with what it has found, and the window took the search's reports
// meanwhile.
TEST(DesignSearchWindow, CancelKeepsTheBestSoFar) {
    SearchDesktop d;
    d.window.ToolbarButton("Search")->click();
    ASSERT_TRUE(d.view()->isVisible());
    // 0.01 to 9.99 in by 0.01 of slab thickness, 20 to 40 in by 0.01 of beam depth and six to
    // nine beams: 999 x 2001 x 4 = 7,995,996 candidates, seconds of work on any machine.
    d.Vary("SlabThick", "0.01", "9.99", "0.01");
    d.Vary("DS1", "20", "40", "0.01");
    d.Vary("QS1", "6", "9", "1");
    EXPECT_EQ(d.Find<QLabel>("lblCandidates")->text(), "7,995,996 candidates");
    d.Find<QPushButton>("cmdSearch")->click();
    ASSERT_TRUE(d.view()->Searching());
    auto* cancel = d.Find<QPushButton>("cmdCancelSearch");
    EXPECT_TRUE(cancel->isEnabled());
    EXPECT_FALSE(d.Find<QPushButton>("cmdSearch")->isEnabled());
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 300) {
        QApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    cancel->click();
    ASSERT_TRUE(d.WaitForTheSearch());
    const DesignSearchDialog& model = d.view()->model();
    ASSERT_TRUE(model.last.has_value());
    EXPECT_TRUE(model.last->outcome.interrupted);
    EXPECT_LT(model.last->outcome.tried, 7995996);
    EXPECT_TRUE(
        d.Find<QLabel>("lblProgress")->text().endsWith("cancelled, the best of those tried"))
        << d.Find<QLabel>("lblProgress")->text().toStdString();
    EXPECT_TRUE(d.Find<QPushButton>("cmdSearch")->isEnabled());
}
