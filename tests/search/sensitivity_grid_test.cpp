#include "search/sensitivity_grid.h"

#include "search/search_request_error.h"
#include "storage/design_file.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

DesignRecord expansiveExample() {
    DesignRecord record;
    ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/expansive_ribbed.kvt", AllSections,
                   record, record, nullptr);
    return record;
}

// The expansive example made so that its stresses, stiffness, shear and capacities stay well
// within their limits (little soil movement, 4000 psi concrete, two tendons in every beam,
// twenty slab tendons each way) and every beam 24 in deep, so that the equivalent section is
// the plain one and the soil pressure can be worked out by hand:
//
//   40 x 60 ft, 4 in slab, short beams 5 + 2 of 12 in (7 ft), long beams 4 + 2 of 12 in (6 ft),
//   each standing 20 in below the slab; 145 pcf concrete, 40 psf superimposed load.
//   Concrete: slab 40 x 60 x 4 / 12 = 800 ft3, long beams 72 x 20 / 144 x 60 = 600 ft3, short
//   beams between them (40 - 6) x 84 x 20 / 144 = 396.667 ft3; 1796.667 ft3 weigh 260.517 kips.
//   Load on the soil: 260.517 + 40 x 60 x 40 / 1000 = 356.517 kips.
//   Bearing area (slab strips beside the beams): short gaps (60 - 7) / 6 = 8.833 ft, strips
//   16 x 4 / 12 = 5.333 ft and 6 x 4 / 12 = 2 ft, TS = 5 x 5.333 + 2 x 2 = 30.667 ft; long gaps
//   (40 - 6) / 5 = 6.8 ft, TL = 4 x 5.333 + 4 = 25.333 ft; area (40 - 6 - 25.333) x
//   (30.667 + 7) + (6 + 25.333) x 60 = 2206.444 ft2, under 40 x 60.
//   Soil pressure 356516.7 / 2206.444 = 161.580 psf.
DesignRecord quietBase() {
    DesignRecord record = expansiveExample();
    record.Fpc = 4000, record.UW = 145, record.ULoad = 40;
    record.RectWidth = 40, record.RectLength = 60, record.SlabThick = 4;
    record.QS1 = 5, record.QS2 = 2, record.QL1 = 4, record.QL2 = 2;
    record.WS1 = 12, record.WS2 = 12, record.WL1 = 12, record.WL2 = 12;
    record.YmCenter = 0.8, record.YmEdge = 0.4;
    record.SlabRefType = 0, record.NumSlabTenShort = 20, record.NumSlabTenLong = 20;
    record.TS1 = 2, record.TS2 = 2, record.TL1 = 2, record.TL2 = 2;
    record.DS1 = 24, record.DS2 = 24, record.DL1 = 24, record.DL2 = 24;
    record.BeamSpacing = 1, record.SixFtRule = 0;
    record.ExpBearing = 2000;
    return record;
}

constexpr double HandSoilPressure =
    (145.0 * (800.0 + 600.0 + 34.0 * 84 * 20 / 144) + 40.0 * 60 * 40) /
    ((40.0 - 6 - (4 * 64.0 / 12 + 4)) * (5 * 64.0 / 12 + 4 + 7) + (6 + 4 * 64.0 / 12 + 4) * 60);

SensitivityOutcome runGrid(const DesignRecord& project, const std::vector<std::string>& ranges,
                           int threads = 2) {
    SensitivityRequest request;
    request.project = project;
    request.grid = ParseSensitivityGrid(ranges);
    SensitivityControl control;
    control.threads = threads;
    return RunSensitivityGrid(request, control);
}

TEST(SensitivityGrid, OneFieldMaxRatiosByHandAndARefusedPoint) {
    EXPECT_NEAR(HandSoilPressure, 161.580, 0.001);
    const SensitivityOutcome outcome = runGrid(quietBase(), {"ExpBearing=0:120:40"});
    ASSERT_EQ(outcome.points.size(), 4u);

    // 0 psf is stopped by the value check before any analysis.
    const SensitivityPoint& zero = outcome.points[0];
    ASSERT_TRUE(zero.refused.has_value());
    EXPECT_EQ(zero.refused->message, "Allowable Bearing Pressure can not be zero");
    EXPECT_EQ(zero.refused->control, "txtExpBearing");
    EXPECT_FALSE(zero.judged());
    EXPECT_FALSE(zero.fault.has_value());

    // 40, 80 and 120 psf: the soil bearing governs, 161.580 over the allowable.
    const double bearing[] = {40, 80, 120};
    for (int i = 0; i < 3; ++i) {
        const SensitivityPoint& point = outcome.points[static_cast<std::size_t>(i + 1)];
        ASSERT_TRUE(point.judged()) << bearing[i];
        EXPECT_FALSE(point.ribbed->pass);
        ASSERT_TRUE(point.ribbed->maxRatio.has_value());
        EXPECT_NEAR(*point.ribbed->maxRatio, HandSoilPressure / bearing[i], 1e-9);
        ASSERT_TRUE(point.ribbed->governing.has_value());
        EXPECT_EQ(point.ribbed->governing->mode, CheckMode::Bearing);
        EXPECT_EQ(point.ribbed->governing->limit->value, bearing[i]);
        EXPECT_FALSE(point.uniform.has_value());
        EXPECT_EQ(point.largestRatio(), point.ribbed->maxRatio);
    }
    EXPECT_NEAR(*outcome.points[1].ribbed->maxRatio, 4.0394, 1e-4);
    EXPECT_NEAR(*outcome.points[2].ribbed->maxRatio, 2.0197, 1e-4);
    EXPECT_NEAR(*outcome.points[3].ribbed->maxRatio, 1.3465, 1e-4);

    // The design itself (2000 psf) passes, with the whole grid below it failing.
    EXPECT_TRUE(outcome.design.passes());
    ASSERT_EQ(outcome.passing.size(), 1u);
    const PassingRange& range = outcome.passing[0];
    EXPECT_TRUE(range.designPasses);
    EXPECT_EQ(range.from, 2000);
    EXPECT_EQ(range.to, 2000);
    EXPECT_FALSE(range.openBelow);
    EXPECT_EQ(range.failsBelow, 120);
    EXPECT_TRUE(range.openAbove);
}

// With a uniform thickness slab as well, both foundations are judged at every point and the
// larger ratio of the two is the point's.
TEST(SensitivityGrid, BothFoundationsOfAUniformThicknessProject) {
    DesignRecord project = quietBase();
    project.FlatSlab = 1;
    const SensitivityOutcome outcome = runGrid(project, {"ExpBearing=80:80"});
    ASSERT_EQ(outcome.points.size(), 1u);
    const SensitivityPoint& point = outcome.points[0];
    ASSERT_TRUE(point.judged());
    ASSERT_TRUE(point.uniform.has_value());
    ASSERT_TRUE(point.uniform->maxRatio.has_value());
    EXPECT_NEAR(*point.ribbed->maxRatio, HandSoilPressure / 80, 1e-9);
    EXPECT_EQ(point.largestRatio(), std::max(*point.ribbed->maxRatio, *point.uniform->maxRatio));
}

// A prestress loss of 0.7 x 270 = 189 ksi leaves the strand no effective stress, and the slab
// tendons the force ratio asks for are a division by zero in the prestress stage (4).
TEST(SensitivityGrid, APointThatFaults) {
    DesignRecord project = expansiveExample();
    ASSERT_EQ(project.SlabRefType, 2);
    ASSERT_EQ(project.Fpu, 270);
    const SensitivityOutcome outcome = runGrid(project, {"Prestress=188:189:1"});
    ASSERT_EQ(outcome.points.size(), 2u);
    EXPECT_TRUE(outcome.points[0].judged());
    const SensitivityPoint& dead = outcome.points[1];
    EXPECT_FALSE(dead.judged());
    EXPECT_FALSE(dead.refused.has_value());
    ASSERT_TRUE(dead.fault.has_value());
    EXPECT_EQ(dead.fault->kind, FaultKind::DivisionByZero);
    EXPECT_EQ(dead.fault->stage, 4); // prestress
    EXPECT_FALSE(dead.passes());
    EXPECT_FALSE(dead.largestRatio().has_value());
}

// 150 psf fails (161.580 / 150 = 1.077); 300 psf and more pass. The design value 2000 lies
// between grid values; the range runs down to 300 and up to the last value, 2400, where the grid
// ends without a failing value.
TEST(SensitivityGrid, PassingRangeAtAGridEdge) {
    const SensitivityOutcome outcome = runGrid(quietBase(), {"ExpBearing=150:2400:150"});
    ASSERT_EQ(outcome.points.size(), 16u);
    EXPECT_FALSE(outcome.points[0].passes());
    for (std::size_t i = 1; i < outcome.points.size(); ++i) {
        EXPECT_TRUE(outcome.points[i].passes()) << i;
    }
    const PassingRange& range = outcome.passing.at(0);
    EXPECT_EQ(range.field->name, "ExpBearing");
    EXPECT_EQ(range.design, 2000);
    EXPECT_EQ(range.from, 300);
    EXPECT_EQ(range.failsBelow, 150);
    EXPECT_FALSE(range.openBelow);
    EXPECT_EQ(range.to, 2400);
    EXPECT_TRUE(range.openAbove);
    EXPECT_FALSE(range.failsAbove.has_value());

    // The same grid run downward gives the same range.
    const SensitivityOutcome downward = runGrid(quietBase(), {"ExpBearing=2400:150:-150"});
    EXPECT_EQ(downward.passing.at(0).from, 300);
    EXPECT_EQ(downward.passing.at(0).to, 2400);
    EXPECT_TRUE(downward.passing.at(0).openAbove);
    EXPECT_FALSE(downward.points[0].fault.has_value());
    EXPECT_TRUE(downward.points[0].passes());
    EXPECT_FALSE(downward.points[15].passes());
}

// Two fields: the first changes slowest, and each passing range is taken along its own line
// through the design value of the other, which need not lie on the grid.
TEST(SensitivityGrid, TwoFieldsInGridOrderWithLinesThroughTheDesign) {
    const SensitivityOutcome outcome =
        runGrid(quietBase(), {"ExpBearing=100:200:100", "UW=145:245:100"}, 3);
    ASSERT_EQ(outcome.points.size(), 4u);
    // Soil pressure grows with the concrete's weight: 245 pcf adds 100 x 1796.667 / 1000 kips.
    const double heavier = HandSoilPressure + 100.0 * 1796.6666666666667 / 2206.4444444444443;
    const double expected[] = {HandSoilPressure / 100, heavier / 100, HandSoilPressure / 200,
                               heavier / 200};
    for (std::size_t i = 0; i < 4; ++i) {
        ASSERT_TRUE(outcome.points[i].judged()) << i;
        EXPECT_NEAR(*outcome.points[i].ribbed->maxRatio, expected[i], 1e-9) << i;
    }
    // Along ExpBearing at 145 pcf: 100 fails, 200 passes, the design's 2000 lies beyond.
    ASSERT_EQ(outcome.passing.size(), 2u);
    EXPECT_EQ(outcome.passing[0].from, 200);
    EXPECT_EQ(outcome.passing[0].failsBelow, 100);
    EXPECT_EQ(outcome.passing[0].to, 2000);
    // Along UW at 2000 psf: both values pass, and the range is open on both sides.
    EXPECT_EQ(outcome.passing[1].from, 145);
    EXPECT_EQ(outcome.passing[1].to, 245);
    EXPECT_TRUE(outcome.passing[1].openAbove);
    EXPECT_TRUE(outcome.passing[1].openBelow);

    // One thread gives the same points.
    const SensitivityOutcome single =
        runGrid(quietBase(), {"ExpBearing=100:200:100", "UW=145:245:100"}, 1);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(single.points[i].ribbed->maxRatio, outcome.points[i].ribbed->maxRatio);
    }
}

TEST(SensitivityGrid, DesignThatFailsHasNoPassingRange) {
    DesignRecord project = quietBase();
    project.ExpBearing = 100;
    const SensitivityOutcome outcome = runGrid(project, {"ExpBearing=100:400:100"});
    EXPECT_FALSE(outcome.design.passes());
    EXPECT_FALSE(outcome.passing.at(0).designPasses);
}

// A run stopped from elsewhere (the dialog's Cancel) is marked so and gives no passing range.
TEST(SensitivityGrid, StoppedRun) {
    SensitivityRequest request;
    request.project = quietBase();
    request.grid = ParseSensitivityGrid(std::vector<std::string>{"ExpBearing=150:2400:150"});
    const std::atomic<bool> stop{true};
    SensitivityControl control;
    control.threads = 2;
    control.stop = &stop;
    std::int64_t reportedTotal = 0;
    control.progress = [&](std::int64_t, std::int64_t total) { reportedTotal = total; };
    const SensitivityOutcome outcome = RunSensitivityGrid(request, control);
    EXPECT_TRUE(outcome.interrupted);
    EXPECT_TRUE(outcome.passing.empty());
    EXPECT_EQ(reportedTotal, 16);
}

TEST(SensitivityGrid, RequestsThatCannotBeCarriedOut) {
    const auto refusal = [](const std::vector<std::string>& ranges) {
        try {
            ParseSensitivityGrid(ranges);
        } catch (const SearchRequestError& error) {
            return std::string(error.what());
        }
        return std::string("accepted");
    };
    EXPECT_EQ(refusal({"QS1=2:4"}),
              "\"QS1\" is a count: a sensitivity grid varies real values such as EmCenter, "
              "YmCenter or Settle");
    EXPECT_EQ(refusal({"EmCenter=1:2", "YmCenter=1:2", "EmEdge=1:2"}),
              "a sensitivity grid varies one or two fields, not 3");
    EXPECT_EQ(refusal({"EmCenter=0:1999", "YmCenter=0:1999"}),
              "the grid would have more than 1,000,000 points: narrow a range or take a larger "
              "step");
    EXPECT_EQ(refusal({"EmCenter=1:2", "EmCenter=3:4"}), "\"EmCenter\" is varied twice");
    EXPECT_EQ(refusal({"ProjName=1:2"}), "\"ProjName\" is a text and cannot be varied");
    EXPECT_EQ(refusal({"EmCenter=1:2:0"}), "the step of \"EmCenter=1:2:0\" is 0");
    EXPECT_EQ(refusal({"EmCenter=2.75:8.25:0.1375", "YmCenter=1.25:3.75:0.0625"}), "accepted");
}

} // namespace
