#include "lifecycle/package_study.h"

#include "storage/design_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

DesignRecord Example(const char* name) {
    DesignRecord record;
    ReadDesignFile(std::filesystem::path(K3_SOURCE_DIR) / "examples" / name, AllSections, record,
                   record, {});
    return record;
}

SoilStudyChart ChartOf(const std::vector<std::string>& ranges) {
    const SensitivityRun run = RunSensitivityRanges(Example("expansive_ribbed.kvt"), {}, ranges, 1);
    return SoilStudyChartOf(run.request, run.outcome);
}

} // namespace

// Two fields: the first (em) runs up the page, the second (ym) across it; every grid point is a
// cell reaching half a step to each side, and the design's own values (em 5.5 ft, ym 2.5 in) are
// marked where they stand, on the grid or not.
TEST(SoilStudyChart, TwoFieldsMakeAHeatMapWithTheDesignMarked) {
    const SoilStudyChart chart = ChartOf({"EmCenter=5:6:0.5", "YmCenter=2:3:1"});
    ASSERT_EQ(chart.cells.size(), 6u); // 3 values of em by 2 of ym
    EXPECT_DOUBLE_EQ(chart.xMin, 1.5);
    EXPECT_DOUBLE_EQ(chart.xMax, 3.5);
    EXPECT_DOUBLE_EQ(chart.yMin, 4.75);
    EXPECT_DOUBLE_EQ(chart.yMax, 6.25);
    // The first cell is em 5, ym 2; the second the next ym; the third the next em.
    EXPECT_DOUBLE_EQ(chart.cells[0].x0, 1.5);
    EXPECT_DOUBLE_EQ(chart.cells[0].x1, 2.5);
    EXPECT_DOUBLE_EQ(chart.cells[0].y0, 4.75);
    EXPECT_DOUBLE_EQ(chart.cells[1].x0, 2.5);
    EXPECT_DOUBLE_EQ(chart.cells[2].y0, 5.25);
    ASSERT_TRUE(chart.design.has_value());
    EXPECT_DOUBLE_EQ(chart.design->first, 2.5);
    EXPECT_DOUBLE_EQ(chart.design->second, 5.5);
    ASSERT_EQ(chart.xTicks.size(), 5u);
    EXPECT_EQ(chart.xTicks.front().text, "2");
    EXPECT_EQ(chart.xTicks[2].text, "2.5");
    EXPECT_EQ(chart.yTicks.back().text, "6");
    EXPECT_TRUE(chart.lines.empty());
    EXPECT_FALSE(chart.summary.empty());
}

// One field: a line of the ribbed foundation's largest ratio at each value (the example has no
// uniform thickness slab), the limit at 1.0, and the axis of ratios from 0.
TEST(SoilStudyChart, OneFieldMakesALinePerFoundation) {
    const SoilStudyChart chart = ChartOf({"EmCenter=4:6:1"});
    EXPECT_TRUE(chart.cells.empty());
    ASSERT_EQ(chart.lines.size(), 1u);
    EXPECT_EQ(chart.lines[0].points.size(), 3u);
    EXPECT_DOUBLE_EQ(chart.lines[0].points[1].first, 5.0);
    ASSERT_TRUE(chart.limitLine.has_value());
    EXPECT_DOUBLE_EQ(*chart.limitLine, 1.0);
    EXPECT_DOUBLE_EQ(chart.yMin, 0.0);
    EXPECT_GE(chart.yMax, 1.5);
    EXPECT_DOUBLE_EQ(chart.xMin, 4.0);
    EXPECT_DOUBLE_EQ(chart.xMax, 6.0);
    ASSERT_TRUE(chart.design.has_value());
    EXPECT_DOUBLE_EQ(chart.design->first, 5.5);
}
