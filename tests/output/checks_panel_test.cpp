#include "compliance/check_names.h"
#include "output/check_pages.h"
#include "output/checks_panel.h"
#include "output/results_tabs.h"

#include "tests/compliance/compliance_test_support.h"

#include <gtest/gtest.h>

namespace {

// The frame of the array that is in front, or -1 when none is.
int FrontFrame(const ResultsScreen& screen, const std::string& array, int frames) {
    for (int i = 0; i < frames; ++i) {
        if (screen.form[ArrayName(array, i)].visible) {
            return i;
        }
    }
    return -1;
}

DesignCheck Check(Foundation foundation, CheckMode mode, const char* rule = nullptr) {
    DesignCheck check;
    check.foundation = foundation;
    check.mode = mode;
    check.rule = rule;
    return check;
}

// The plain ribbed design with a uniform thickness foundation: its center lift short tension
// 1.5 times the allowable, the long one at 0.5, every other value well within.
struct FailingDesign {
    DesignRecord record = PlainRibbedRecord();
    ResultsRecord results = CompliantResults();
    FailingDesign() {
        record.FlatSlab = 1, record.ExpBearing = 2000;
        results.SoilPressure = 1000, results.BearingSafety = 2;
        results.StressTopCLShort = -0.45, results.StressTopCLLong = -0.15;
    }
};

} // namespace

// Each check brings up the page that shows its value: the frames are those of the results
// screen's pages (3 center lift, 4 edge lift, 5 soil bearing and prestress, 7 and 8 the ribbed
// down pages, 6 and 7 the uniform ones; 0 design summary, 1 compliance, 2 exceptions).
TEST(ChecksPanel, ADoubleClickBringsUpThePageOfTheValue) {
    struct Case {
        std::int16_t soilType;
        std::int16_t clSettleState;
        DesignCheck check;
        int mainTab;
        int ribbedFrame;  // -1: not looked at
        int uniformFrame; // -1: not looked at
    };
    using F = Foundation;
    using M = CheckMode;
    const Case cases[] = {
        {0, 0, Check(F::Ribbed, M::CenterLift), 2, 3, -1},
        {0, 0, Check(F::Ribbed, M::EdgeLift), 2, 4, -1},
        {0, 0, Check(F::Ribbed, M::Bearing), 2, 5, -1},
        {0, 0, Check(F::Ribbed, M::Rules, "beamWidthMin"), 2, 0, -1},
        {0, 0, Check(F::Ribbed, M::Rules, "residualPrestress"), 2, 5, -1},
        {0, 0, Check(F::Uniform, M::EdgeLift), 3, -1, 4},
        {0, 0, Check(F::Uniform, M::Rules, "ribbedCompliance"), 3, -1, 1},
        {0, 0, Check(F::Uniform, M::Rules, "ribbedExceptions"), 3, -1, 2},
        {0, 0, Check(F::Uniform, M::Rules, "uniformThickness"), 3, -1, 0},
        {0, 0, Check(F::Uniform, M::LineLoad), 4, -1, -1},
        {1, 0, Check(F::Ribbed, M::CenterDown), 2, 7, -1},
        {1, 0, Check(F::Ribbed, M::Bearing), 2, 5, -1},
        {1, 0, Check(F::Uniform, M::CenterDown), 3, -1, 6},
        {1, 1, Check(F::Ribbed, M::EdgeDown), 2, 8, -1},
        {1, 1, Check(F::Ribbed, M::Bearing), 2, 5, -1},
        {1, 1, Check(F::Uniform, M::EdgeDown), 3, -1, 7},
    };
    for (const Case& c : cases) {
        DesignRecord record = PlainRibbedRecord();
        record.SoilType = c.soilType, record.CLSettleState = c.clSettleState;
        record.FlatSlab = 1, record.LineLoadType = 1;
        SCOPED_TRACE(std::string(ModeKey(c.check.mode)) + " soil " + std::to_string(c.soilType) +
                     " edge down " + std::to_string(c.clSettleState));
        ResultsScreen screen = LoadResultsScreen();
        ArrangeResultsScreen(screen, record, ResultsScreenWidth);
        ShowCheckPage(screen, record, c.check);
        EXPECT_EQ(screen.tabMain.selected, c.mainTab);
        if (c.ribbedFrame >= 0) {
            EXPECT_EQ(FrontFrame(screen, "fraExpOutput", RibbedFrames), c.ribbedFrame);
        }
        if (c.uniformFrame >= 0) {
            EXPECT_EQ(FrontFrame(screen, "fraUTFOutput", UniformFrames), c.uniformFrame);
        }
    }

    // Without a uniform thickness foundation the line load is the third tab.
    DesignRecord record = PlainRibbedRecord();
    record.LineLoadType = 1;
    ResultsScreen screen = LoadResultsScreen();
    ArrangeResultsScreen(screen, record, ResultsScreenWidth);
    ShowCheckPage(screen, record, Check(F::Ribbed, M::LineLoad));
    EXPECT_EQ(screen.tabMain.selected, 3);
}

TEST(ChecksPanel, RowsFilterAndSortWithTheFailingRowsRed) {
    const FailingDesign design;
    ChecksPanel panel;
    LoadChecksPanel(panel, design.record, design.results);
    ASSERT_TRUE(panel.loaded);
    std::vector<ChecksPanelRow> rows = ChecksPanelRows(panel);
    EXPECT_EQ(rows.size(), panel.checks.size());
    // The table's own order: soil bearing first.
    EXPECT_EQ(rows[0].cells[static_cast<int>(CheckColumn::Item)], "Soil bearing pressure");
    EXPECT_EQ(rows[0].cells[static_cast<int>(CheckColumn::Ratio)], "0.50"); // 1000 / 2000

    panel.failingOnly = true;
    rows = ChecksPanelRows(panel);
    // The tension itself, and the uniform foundation made invalid by it.
    ASSERT_EQ(rows.size(), 2u);
    const std::array<std::string, CheckColumns> tension = {
        "Ribbed", "Center lift", "Tension in top fiber, center lift, short",
        "-0.450", "-0.300",      "ksi",
        "1.50",   "NG",          ""};
    EXPECT_EQ(rows[0].cells, tension);
    EXPECT_TRUE(rows[0].failing);
    EXPECT_EQ(rows[1].cells[static_cast<int>(CheckColumn::Item)],
              "Ribbed foundation in compliance");
    EXPECT_EQ(rows[1].cells[static_cast<int>(CheckColumn::Ratio)], "-");

    // By ratio: largest first on the second click; the rules, without a ratio, last either way.
    panel.failingOnly = false;
    SortChecks(panel, CheckColumn::Ratio);
    rows = ChecksPanelRows(panel);
    EXPECT_EQ(rows.front().cells[static_cast<int>(CheckColumn::Ratio)], "0.00");
    EXPECT_EQ(rows.back().cells[static_cast<int>(CheckColumn::Ratio)], "-");
    SortChecks(panel, CheckColumn::Ratio);
    rows = ChecksPanelRows(panel);
    EXPECT_EQ(rows.front().cells, tension);
    EXPECT_EQ(rows[1].cells[static_cast<int>(CheckColumn::Ratio)], "0.50");
    EXPECT_EQ(rows.back().cells[static_cast<int>(CheckColumn::Ratio)], "-");

    // By status: the checks not ok first.
    SortChecks(panel, CheckColumn::Status);
    rows = ChecksPanelRows(panel);
    EXPECT_TRUE(rows[0].failing && rows[1].failing);
    EXPECT_FALSE(rows[2].failing);

    // A double click on the failing row brings up the ribbed center lift page.
    ResultsScreen screen = LoadResultsScreen();
    ArrangeResultsScreen(screen, design.record, ResultsScreenWidth);
    OpenCheckPage(panel, rows[0].check, screen);
    EXPECT_EQ(screen.tabMain.selected, 2);
    EXPECT_EQ(FrontFrame(screen, "fraExpOutput", RibbedFrames), 3);
}

TEST(ChecksPanel, TheVerdictStripHasALineAFoundation) {
    ChecksPanel panel;
    EXPECT_TRUE(VerdictStripLines(panel).empty()); // before any analysis

    FailingDesign design;
    LoadChecksPanel(panel, design.record, design.results);
    std::vector<VerdictStripLine> lines = VerdictStripLines(panel);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].text, "Ribbed foundation: FAIL: 1 check over its limit, governing TENSION "
                             "IN TOP FIBER, CENTER LIFT, SHORT (1.50)");
    EXPECT_FALSE(lines[0].pass);
    // The uniform slab's own values are all 0: its governing ratio is 0.
    EXPECT_EQ(lines[1].text, "Uniform thickness foundation: FAIL: 1 check over its limit, "
                             "governing TENSION IN TOP FIBER, CENTER LIFT, SHORT (0.00)");

    design.results.StressTopCLShort = -0.3; // exactly at the allowable
    design.record.FlatSlab = 0;
    LoadChecksPanel(panel, design.record, design.results);
    lines = VerdictStripLines(panel);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].text, "Ribbed foundation: PASS");
    EXPECT_TRUE(lines[0].pass);
}
