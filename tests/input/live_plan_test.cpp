#include "input/live_plan.h"
#include "shell/form_model.h"
#include "tests/input/input_test_support.h"

#include <gtest/gtest.h>

namespace {

// The slab and beam pages typed for a 40 ft by 60 ft rectangle with a 5 in slab: three short
// beams (two 12 x 30 in of type 1, one 8 x 24 in of type 2), two long 12 x 30 in beams, 10 and
// 7 slab tendons, spacing from the average.
struct TypedScreen : InputFixture {
    TypedScreen() {
        const std::pair<const char*, const char*> texts[] = {
            {"txtRectWidth", "40"},
            {"txtRectLength", "60"},
            {"txtSlabThick", "5"},
            {"txtNumSlabTenShort", "10"},
            {"txtNumSlabTenLong", "7"},
            {"txtQS1", "2"},
            {"txtDS1", "30"},
            {"txtWS1", "12"},
            {"txtTS1", "1"},
            {"txtCS1", "3"},
            {"txtQS2", "1"},
            {"txtDS2", "24"},
            {"txtWS2", "8"},
            {"txtTS2", "2"},
            {"txtCS2", "3.5"},
            {"txtQL1", "2"},
            {"txtDL1", "30"},
            {"txtWL1", "12"},
            {"txtTL1", "1"},
            {"txtCL1", "3"},
            {"txtQL2", "0"},
            {"txtDL2", "24"},
            {"txtWL2", "8"},
            {"txtTL2", "1"},
            {"txtCL2", "3"},
        };
        for (const auto& [control, text] : texts) {
            screen.form[control].text = text;
        }
        SelectOption(screen.form, "optSlabRefType", 3, 0);
        SelectOption(screen.form, "optBeamSpacing", 2, 1);
        SelectOption(screen.form, "optTendType", 4, 2); // 1/2 in strand
        screen.form["cbSlabTenCovType"].checked = false;
        screen.form["cbSixFtRule"].checked = false;
    }
};

} // namespace

TEST(LivePlan, DrawsTheValuesAsTyped) {
    TypedScreen typed;
    const FoundationPlan plan = PlanOfTypedValues(typed.screen.form, typed.record);
    ASSERT_EQ(plan.reason, "");
    EXPECT_EQ(plan.width, 40);
    EXPECT_EQ(plan.length, 60);
    ASSERT_EQ(plan.beams.size(), 5U);
    // 32 in of short beams on 60 ft: gaps of (60 - 32/12) / 2 = 28 2/3 ft, the type 2 beam in
    // the middle.
    EXPECT_EQ(plan.beams[1].type, 2);
    EXPECT_NEAR(plan.beams[1].from, 1 + 86.0 / 3, 1e-9);
    EXPECT_NEAR(plan.gapLong, 38, 1e-9);
    // The average spacing: 60 / 2 and 40 / 1.
    EXPECT_DOUBLE_EQ(plan.spacingShort, 30);
    EXPECT_DOUBLE_EQ(plan.spacingLong, 40);
    // Ten short tendons at (60 - 4) / 9 ft, seven long ones at (40 - 4) / 6 = 6 ft.
    EXPECT_TRUE(plan.slabTendonsShort.known);
    EXPECT_EQ(plan.slabTendonsShort.count, 10);
    EXPECT_NEAR(plan.slabTendonsShort.spacing, 56.0 / 9, 1e-12);
    EXPECT_EQ(plan.slabTendonsLong.places.size(), 7U);
    EXPECT_DOUBLE_EQ(plan.slabTendonsLong.places.back(), 38);
    // The slab tendon in the middle of the slab without a cover given; with 1.5 in of cover
    // over a 1/2 in strand its centre is 1.75 in down.
    ASSERT_EQ(plan.sections.size(), 3U);
    EXPECT_DOUBLE_EQ(plan.sections[0].slabTendonDepth, 2.5);
    EXPECT_DOUBLE_EQ(plan.sections[0].tendonDiameter, 0.5);
    typed.screen.form["cbSlabTenCovType"].checked = true;
    typed.screen.form["txtSlabTenCov"].text = "1.5";
    EXPECT_DOUBLE_EQ(PlanOfTypedValues(typed.screen.form, typed.record).sections[2].slabTendonDepth,
                     1.75);

    // The spacing from the maximum and minimum: 16 over 9 is more than 1.5, so 0.85 x 16.
    SelectOption(typed.screen.form, "optBeamSpacing", 2, 0);
    typed.screen.form["txtSMin"].text = "9";
    typed.screen.form["txtSMax"].text = "16";
    typed.screen.form["txtLMin"].text = "10";
    typed.screen.form["txtLMax"].text = "12";
    const FoundationPlan spaced = PlanOfTypedValues(typed.screen.form, typed.record);
    EXPECT_DOUBLE_EQ(spaced.spacingShort, 13.6);
    EXPECT_DOUBLE_EQ(spaced.spacingLong, 40);

    // Slab tendons from a stress are counted by the analysis.
    SelectOption(typed.screen.form, "optSlabRefType", 3, 1);
    const FoundationPlan stressed = PlanOfTypedValues(typed.screen.form, typed.record);
    EXPECT_FALSE(stressed.slabTendonsShort.known);
    EXPECT_TRUE(stressed.slabTendonsLong.places.empty());
}

TEST(LivePlan, KeepsTheLastGoodDrawingWhileAValueIsMissingOrInvalid) {
    TypedScreen typed;
    LivePlan live;
    UpdateLivePlan(live, typed.screen.form, typed.record);
    EXPECT_TRUE(live.drawn);
    EXPECT_FALSE(LivePlanGreyed(live));

    typed.screen.form["txtRectWidth"].text = "4x";
    UpdateLivePlan(live, typed.screen.form, typed.record);
    EXPECT_TRUE(LivePlanGreyed(live));
    EXPECT_EQ(live.reason, "Rectangle Width (Feet) is not a number: \"4x\".");
    EXPECT_EQ(live.drawing.width, 40); // the last good drawing stays

    typed.screen.form["txtRectWidth"].text = "  ";
    UpdateLivePlan(live, typed.screen.form, typed.record);
    EXPECT_EQ(live.reason, "Rectangle Width (Feet) is blank.");

    typed.screen.form["txtRectWidth"].text = "45";
    typed.screen.form["txtWL1"].text = "";
    UpdateLivePlan(live, typed.screen.form, typed.record);
    EXPECT_EQ(live.reason, "Width (IN) of the Long Direction Type 1 beams is blank.");
    EXPECT_EQ(live.drawing.width, 40);

    typed.screen.form["txtWL1"].text = "12";
    typed.screen.form["txtQS1"].text = "1";
    typed.screen.form["txtQS2"].text = "0";
    UpdateLivePlan(live, typed.screen.form, typed.record);
    EXPECT_EQ(live.reason, "There is only one short direction beam: a plan needs at least two "
                           "beams in each direction, one at each edge, with the gaps between "
                           "them.");

    typed.screen.form["txtQS1"].text = "3";
    UpdateLivePlan(live, typed.screen.form, typed.record);
    EXPECT_FALSE(LivePlanGreyed(live));
    EXPECT_EQ(live.drawing.width, 45);
    EXPECT_EQ(live.drawing.beams.size(), 5U);

    // A width typed greater than the length is drawn, with its note.
    typed.screen.form["txtRectWidth"].text = "70";
    UpdateLivePlan(live, typed.screen.form, typed.record);
    EXPECT_FALSE(LivePlanGreyed(live));
    ASSERT_EQ(live.drawing.notes.size(), 1U);
}

TEST(LivePlan, TheAnalysedPlanWaitsForAnAnalysis) {
    TypedScreen typed;
    EXPECT_EQ(AnalysedPlan(typed.record, ResultsRecord{}, false).reason,
              "The plan of the analysed design shows here after an analysis (F5).");
    DesignRecord record;
    record.RectWidth = 40;
    record.RectLength = 60;
    record.SlabThick = 5;
    record.QS1 = record.QL1 = 2;
    record.WS1 = record.WL1 = record.DS1 = record.DL1 = 12;
    EXPECT_EQ(AnalysedPlan(record, ResultsRecord{}, true).reason, "");
    EXPECT_EQ(AnalysedPlan(record, ResultsRecord{}, true).beams.size(), 4U);
}
