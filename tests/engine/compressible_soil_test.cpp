#include "engine/analysis_run.h"
#include "engine/section_checks.h"
#include "tests/engine/engine_test_support.h"

#include <gtest/gtest.h>

namespace {

// The Riverside Commons example: 36 x 54 ft, 5 in slab, 1/2 in strands, eight 12 x 26 in
// beams across the short direction and six across the long, one tendon each at 3 in cover,
// slab tendons for 75 psi at 1.5 in cover, full length drag, settlement 2 in, perimeter load
// 1200 lb/ft, edge down on.
DesignRecord riverside() {
    DesignRecord r = SmallRibbedRecord();
    r.Fpc = 3500;
    r.SlabRefType = 1, r.StrLvlShort = 75, r.StrLvlLong = 75;
    r.SlabTenCovType = 1, r.SlabTenCov = 1.5;
    r.SlabThick = 5, r.RectWidth = 36, r.RectLength = 54;
    r.QS1 = 8, r.QL1 = 6;
    r.DS1 = r.DS2 = r.DL1 = r.DL2 = 26;
    r.SixFtRule = 1;
    r.SoilType = 1, r.Settle = 2, r.CLSettleState = 1;
    r.TotalLoad = 1200, r.UseDeadLoad = 1, r.DeadLoad = 900;
    r.DefSettle = 960, r.DefCLSettle = 480;
    r.Subgradetype = 1;
    return r;
}

} // namespace

// The values come from an independent calculation of the same formulas in 50-digit arithmetic.
TEST(CompressibleSoil, RiversideExampleAgreesWithAnIndependentCalculation) {
    ExpectTenDigits(Analysed(riverside()), {{"SlabTenShort", 15},
                                            {"SettleRefShort", 0.018739898136269028},
                                            {"SettleRefLong", 0.029798435208567871},
                                            {"BetaCDShort", 3.7471170077256303},
                                            {"ForceNetCDShort", 437.2232404816256},
                                            {"MomentCDLong", 5.1686440451345902},
                                            {"MomentCDShort", 5.5445454302352876},
                                            {"StressBotCDShort", -0.10776696593673361},
                                            {"StressTopCDLong", 0.15112581306289172},
                                            {"NetDeflCDShort", 0.19645665280915799},
                                            {"ShearForceCDShort", 1.1748804774379879},
                                            {"MomentCLBase", 1.256648131666247},
                                            {"MomentEDLong", 9.2159170101620034},
                                            {"StressTopEDShort", -0.09890245120169458},
                                            {"DeflEDShort", 0.3460309979824236},
                                            {"NetDeflEDShort", 0.36901412189468267},
                                            {"ShearForceEDShort", 1.5865049338941118}});
}

TEST(CompressibleSoil, EdgeDownRunsOnlyWhenAskedAndTakesTheSquarePlanRule) {
    DesignRecord record = riverside();
    record.CLSettleState = 0;
    ResultsRecord r;
    r.MomentEDLong = r.StressTopEDShort = r.BetaEDShort = -7;
    RunDesignEngine(EngineSettings{}, record, r);
    EXPECT_EQ(r.MomentEDLong, -7.0);
    EXPECT_EQ(r.StressTopEDShort, -7.0);
    EXPECT_EQ(r.BetaEDShort, -7.0);

    record.CLSettleState = 1;
    record.RectLength = 39.6; // 39.6 / 36 is exactly 1.1: the short moment stays 63/60
    r = Analysed(record);
    EXPECT_CLOSE(r.MomentEDShort, r.MomentEDLong * 63 / 60);
    record.RectLength = 39.59;
    r = Analysed(record);
    EXPECT_EQ(r.MomentEDShort, r.MomentEDLong);
}

TEST(CompressibleSoil, UserFrictionAndTheForcesThatReachTheStresses) {
    DesignRecord record = riverside();
    record.Subgradetype = 2;
    record.UDSS = 30, record.UDLS = 30, record.UDSM = 25, record.UDLM = 35;
    ResultsRecord r = Analysed(record);
    // The user's force at Beta is taken off whole, whatever Beta is.
    EXPECT_CLOSE(r.ForceNetCDShort, r.ForceShort0 - 25);
    EXPECT_CLOSE(r.ForceNetEDLong, r.ForceLong0 - 35);

    // Without UseBeta the forces at Beta are computed but the stresses do not see them.
    record.UDSM = 100;
    const ResultsRecord other = Analysed(record);
    EXPECT_NE(other.ForceNetCDShort, r.ForceNetCDShort);
    EXPECT_EQ(other.StressBotCDShort, r.StressBotCDShort);
    const ResultsRecord beta = Analysed(record, EngineSettings{1, 0, 0});
    EXPECT_NE(beta.StressBotCDShort, r.StressBotCDShort);
}

TEST(SectionChecks, StiffnessLengthAndShearAtTheirBoundaries) {
    // Six Beta equal to the side is not below it: the side, by its name.
    StiffnessLength length = StiffnessLengthFor(5, 30, "Width");
    EXPECT_EQ(length.length, 30.0);
    EXPECT_EQ(length.basis, "Width");
    length = StiffnessLengthFor(5, 30.000001, "Length");
    EXPECT_EQ(length.length, 30.0);
    EXPECT_EQ(length.basis, "6*Beta");
    // A force that only just meets the friction adds nothing: 1.7 sqrt(3500).
    EXPECT_NEAR(AllowableShear(100, 100, 5000, 3500), 100.57335631269346, 1e-12);
    EXPECT_NEAR(AllowableShear(150, 100, 5000, 3500), 100.57335631269346 + 2, 1e-12);
}
