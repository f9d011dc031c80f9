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

} // namespace
