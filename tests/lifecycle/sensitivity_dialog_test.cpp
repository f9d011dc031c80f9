#include "lifecycle/sensitivity_dialog.h"

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

TEST(SensitivityDialog, OpensWithThePairOfTheSoilAndSpansAtHalfAndOneAndAHalf) {
    // Expansive example: em 5.5 ft and ym 2.5 in at center lift, 4 ft and 1.2 in at edge lift.
    const DesignRecord expansive = example("expansive_ribbed.kvt");
    SensitivityDialog dialog = OpenSensitivityDialog(expansive);
    EXPECT_EQ(dialog.pair, SensitivityPair::CenterLift);
    EXPECT_TRUE(dialog.pairsEnabled);
    ASSERT_EQ(dialog.spans.size(), 2u);
    EXPECT_EQ(dialog.spans[0].field, "EmCenter");
    EXPECT_EQ(dialog.spans[0].from, "2.75");
    EXPECT_EQ(dialog.spans[0].to, "8.25");
    EXPECT_EQ(dialog.spans[1].field, "YmCenter");
    EXPECT_EQ(dialog.spans[1].from, "1.25");
    EXPECT_EQ(dialog.spans[1].to, "3.75");
    // 41 values each: steps of 5.5 / 40 and 2.5 / 40.
    EXPECT_EQ(SensitivityRanges(dialog),
              (std::vector<std::string>{"EmCenter=2.75:8.25:0.1375", "YmCenter=1.25:3.75:0.0625"}));

    ChooseSensitivityPair(dialog, expansive, SensitivityPair::EdgeLift);
    EXPECT_EQ(dialog.spans[0].field, "EmEdge");
    EXPECT_EQ(dialog.spans[0].from, "2");
    EXPECT_EQ(dialog.spans[0].to, "6");
    EXPECT_EQ(dialog.spans[1].from, "0.6");
    EXPECT_EQ(dialog.spans[1].to, "1.8");
    SetSensitivityPoints(dialog, 5);
    EXPECT_EQ(SensitivityRanges(dialog),
              (std::vector<std::string>{"EmEdge=2:6:1", "YmEdge=0.6:1.8:0.3"}));
    SetSensitivityPoints(dialog, 1);
    EXPECT_EQ(dialog.points, 2);
    SetSensitivityPoints(dialog, 5000);
    EXPECT_EQ(dialog.points, 201);

    ChooseSensitivityPair(dialog, expansive, SensitivityPair::OneField);
    ChooseSensitivityField(dialog, expansive, "YmEdge");
    ASSERT_EQ(dialog.spans.size(), 1u);
    EXPECT_EQ(dialog.spans[0].field, "YmEdge");
    ChooseSensitivityField(dialog, expansive, "QS1"); // not offered: nothing changes
    EXPECT_EQ(dialog.oneField, "YmEdge");

    // A compressible soil has no lift: the settlement alone, and the pairs stay off.
    const DesignRecord compressible = example("compressible_edge_down.kvt");
    SensitivityDialog settle = OpenSensitivityDialog(compressible);
    EXPECT_EQ(settle.pair, SensitivityPair::OneField);
    EXPECT_FALSE(settle.pairsEnabled);
    ASSERT_EQ(settle.spans.size(), 1u);
    EXPECT_EQ(settle.spans[0].field, "Settle");
    ChooseSensitivityPair(settle, compressible, SensitivityPair::CenterLift);
    EXPECT_EQ(settle.pair, SensitivityPair::OneField);
}

TEST(SensitivityDialog, SpansThatCannotRunSayWhy) {
    const DesignRecord expansive = example("expansive_ribbed.kvt");
    SensitivityDialog dialog = OpenSensitivityDialog(expansive);
    dialog.spans[0].from = "two";
    EXPECT_FALSE(SensitivityRequestOf(dialog, expansive, {}).has_value());
    EXPECT_EQ(dialog.error, "the span of EmCenter needs two numbers");
    dialog.spans[0].from = "8.25";
    EXPECT_FALSE(SensitivityRequestOf(dialog, expansive, {}).has_value());
    EXPECT_EQ(dialog.error, "the span of EmCenter is empty: give two values that differ");
    dialog.spans[0].from = "1";
    const std::optional<SensitivityRequest> request = SensitivityRequestOf(dialog, expansive, {});
    ASSERT_TRUE(request.has_value());
    EXPECT_EQ(dialog.error, "");
    EXPECT_EQ(request->grid.count(), 41 * 41);
    EXPECT_EQ(request->grid.fields[0].valueAt(40), 8.25);
    EXPECT_EQ(request->grid.fields[1].valueAt(20), 2.5);
}

TEST(SensitivityDialog, ContourWhereTheRatioReachesOne) {
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

TEST(SensitivityDialog, ColoursAndWordsOfAPoint) {
    EXPECT_EQ(RatioColour(0.0), (ChartColour{26, 150, 65}));
    EXPECT_EQ(RatioColour(0.9), (ChartColour{254, 205, 114})); // half way yellow to orange
    EXPECT_EQ(RatioColour(1.0), (ChartColour{215, 48, 39}));
    EXPECT_EQ(RatioColour(3.0), (ChartColour{120, 0, 30}));
    EXPECT_NE(RatioColour(0.999), RatioColour(1.0));

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

    const std::vector<ChartSeries> series = OneFieldSeries(request, outcome);
    ASSERT_EQ(series.size(), 1u);
    ASSERT_EQ(series[0].values.size(), 1u); // the refused point has no ratio
    EXPECT_EQ(series[0].values[0].first, 5.5);
    EXPECT_EQ(series[0].values[0].second, *outcome.design.ribbed->maxRatio);
}

} // namespace
