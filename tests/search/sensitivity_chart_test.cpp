#include "search/sensitivity_chart.h"

#include "storage/design_file.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

DesignRecord example(const char* name) {
    DesignRecord record;
    ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/" + name, AllSections, record, record,
                   nullptr);
    return record;
}

SensitivityPoint judged(double ribbed, bool pass) {
    SensitivityPoint point;
    point.ribbed = FoundationStanding{pass, ribbed, std::nullopt};
    return point;
}

TEST(SensitivityChart, ContourWhereTheRatioReachesOne) {
    // Ratios 0.5 left, 1.5 right: the contour runs down the middle of the cell.
    std::vector<SensitivityPoint> points = {judged(0.5, true), judged(1.5, false),
                                            judged(0.5, true), judged(1.5, false)};
    std::vector<ContourSegment> contour = RatioContour(points, 2, 2, 1.0);
    ASSERT_EQ(contour.size(), 1u);
    EXPECT_DOUBLE_EQ(contour[0].x1, 0.5);
    EXPECT_DOUBLE_EQ(contour[0].y1, 0.0);
    EXPECT_DOUBLE_EQ(contour[0].x2, 0.5);
    EXPECT_DOUBLE_EQ(contour[0].y2, 1.0);

    // 0.8 to 1.3 along the top: 1.0 lies 0.2 / 0.5 of the way.
    points = {judged(0.8, true), judged(1.3, false), judged(0.8, true), judged(0.8, true)};
    contour = RatioContour(points, 2, 2, 1.0);
    ASSERT_EQ(contour.size(), 1u);
    EXPECT_DOUBLE_EQ(contour[0].x1, 0.4);
    EXPECT_DOUBLE_EQ(contour[0].y1, 0.0);
    // Down the right edge from 1.3 to 0.8: also 0.6 of the way from the top.
    EXPECT_DOUBLE_EQ(contour[0].x2, 1.0);
    EXPECT_DOUBLE_EQ(contour[0].y2, 0.6);

    // A saddle with its middle (1.0) on the high side: the two low corners are cut off.
    points = {judged(1.5, false), judged(0.5, true), judged(0.5, true), judged(1.5, false)};
    contour = RatioContour(points, 2, 2, 1.0);
    ASSERT_EQ(contour.size(), 2u);
    EXPECT_DOUBLE_EQ(contour[0].x1, 0.5); // top edge
    EXPECT_DOUBLE_EQ(contour[0].y1, 0.0);
    EXPECT_DOUBLE_EQ(contour[0].x2, 1.0); // right edge
    EXPECT_DOUBLE_EQ(contour[0].y2, 0.5);
    EXPECT_DOUBLE_EQ(contour[1].x1, 0.5); // bottom edge
    EXPECT_DOUBLE_EQ(contour[1].y1, 1.0);
    EXPECT_DOUBLE_EQ(contour[1].x2, 0.0); // left edge
    EXPECT_DOUBLE_EQ(contour[1].y2, 0.5);

    // A refused corner leaves its cell out.
    points[1] = SensitivityPoint{};
    points[1].refused = InputFault{"txtEmCenter", 5,
                                   "Edge Moisture Variation Distance can not "
                                   "be zero"};
    EXPECT_TRUE(RatioContour(points, 2, 2, 1.0).empty());
}

TEST(SensitivityChart, ColoursAndWordsOfAPoint) {
    EXPECT_EQ(RatioColour(0.0), (ChartColour{26, 150, 65}));
    EXPECT_EQ(RatioColour(0.9), (ChartColour{254, 205, 114})); // half way yellow to orange
    EXPECT_EQ(RatioColour(1.0), (ChartColour{215, 48, 39}));
    EXPECT_EQ(RatioColour(3.0), (ChartColour{55, 0, 70}));
    EXPECT_EQ(RatioColour(1.25), (ChartColour{150, 0, 60}));
    EXPECT_NE(RatioColour(0.999), RatioColour(1.0));
    // A key that reaches 3.0: 2.0 is the dark red half way, 1.5 half way from red to it.
    EXPECT_EQ(RatioColour(2.0, 3.0), (ChartColour{150, 0, 60}));
    EXPECT_EQ(RatioColour(1.5, 3.0), (ChartColour{183, 24, 50}));
    SensitivityOutcome fails;
    fails.points = {judged(2.01, false), judged(0.4, true)};
    EXPECT_DOUBLE_EQ(ChartTop(fails), 2.1);
    fails.points = {judged(1.2, false)};
    EXPECT_DOUBLE_EQ(ChartTop(fails), 1.5);

    const DesignRecord expansive = example("expansive_ribbed.kvt");
    SensitivityRequest request;
    request.project = expansive;
    request.grid = ParseSensitivityGrid(std::vector<std::string>{"EmCenter=0:5.5:5.5"});
    SensitivityControl control;
    const SensitivityOutcome outcome = RunSensitivityGrid(request, control);
    EXPECT_EQ(PointCaption(request, outcome, 0),
              "EmCenter 0 ft\nRefused: Edge Moisture Variation Distance can not be zero");
    const std::string design = PointCaption(request, outcome, 1);
    EXPECT_EQ(design.substr(0, 34), "EmCenter 5.5 ft\nRibbed: max ratio ");
    EXPECT_NE(design.find("governing: "), std::string::npos);
    EXPECT_EQ(FieldAxisTitle("YmCenter"), "YmCenter, ym, center lift (in)");
    // Every value of a grid in its decimal form: 2.75 + 3 x 0.1375 is 3.1625, not 3.16250000001.
    const CandidateGrid grid =
        ParseSensitivityGrid(std::vector<std::string>{"EmCenter=2.75:8.25:0.1375"});
    EXPECT_EQ(FieldValueText(grid.fields[0].valueAt(3)), "3.1625");
    EXPECT_EQ(FieldValueText(0.5), "0.5");
    EXPECT_EQ(FieldValueText(-0.0), "0");
    EXPECT_EQ(FieldValueText(2400), "2400");

    const std::vector<ChartSeries> series = OneFieldSeries(request, outcome);
    ASSERT_EQ(series.size(), 1u);
    ASSERT_EQ(series[0].values.size(), 1u); // the refused point has no ratio
    EXPECT_EQ(series[0].values[0].first, 5.5);
    EXPECT_EQ(series[0].values[0].second, *outcome.design.ribbed->maxRatio);
}

TEST(SensitivityChart, SummaryInWords) {
    SensitivityRequest request;
    request.grid = ParseSensitivityGrid(std::vector<std::string>{"ExpBearing=150:2400:150"});
    SensitivityOutcome outcome;
    outcome.design = judged(0.7, true);
    PassingRange range;
    range.field = FindDesignField("ExpBearing");
    range.design = 2000;
    range.designPasses = true;
    range.from = 300;
    range.to = 2400;
    range.openAbove = true;
    range.failsBelow = 150;
    outcome.passing = {range};
    EXPECT_EQ(SensitivitySummaryLines(request, outcome),
              (std::vector<std::string>{
                  "Design: ribbed max ratio 0.70, passes.",
                  "ExpBearing passes from 300 psf to 2400 psf (end of the grid); does not pass "
                  "at 150 psf."}));
    outcome.passing[0].designPasses = false;
    outcome.design = judged(1.25, false);
    outcome.interrupted = true;
    EXPECT_EQ(SensitivitySummaryLines(request, outcome),
              (std::vector<std::string>{"Design: ribbed max ratio 1.25, does not pass.",
                                        "ExpBearing: the design does not pass at its own values.",
                                        "The run was stopped before every point was done."}));
}

} // namespace
