#include "engine/analysis_run.h"
#include "engine/tendon_size.h"
#include "engine/tendon_tallies.h"
#include "tests/engine/engine_test_support.h"

#include <gtest/gtest.h>

namespace {

// The Hilltop warehouse example: 50 x 80 ft, 5 in slab, 4000 psi, a custom 0.217 in2 tendon,
// 20 and 30 slab tendons, ten 12 x 26 in beams across the short direction and seven across the
// long, one tendon each, user friction 40 / 60 kips and 20 / 30 kips at Beta, em 6 / 4.5 ft,
// ym 2.1 / 1.4 in, a uniform thickness analysis and a 2000 lb/ft line load along the long
// direction at a user prestress of 100 psi on Ks 100.
DesignRecord hilltop() {
    DesignRecord r = SmallRibbedRecord();
    r.FlatSlab = 1;
    r.Fpc = 4000;
    r.TendType = 3, r.TendArea = 0.217;
    ApplyTendonSize(r);
    r.SlabRefType = 0, r.NumSlabTenShort = 20, r.NumSlabTenLong = 30;
    r.SlabThick = 5, r.RectWidth = 50, r.RectLength = 80;
    r.QS1 = 10, r.QL1 = 7;
    r.DS1 = r.DS2 = r.DL1 = r.DL2 = 26;
    r.SixFtRule = 1;
    r.EmCenter = 6, r.EmEdge = 4.5, r.YmCenter = 2.1, r.YmEdge = 1.4;
    r.ULoad = 125, r.TotalLoad = 800, r.DefCenter = 480, r.DefEdge = 960;
    r.Subgradetype = 2, r.UDSS = 40, r.UDLS = 60, r.UDSM = 20, r.UDLM = 30;
    r.LineLoadType = 1, r.LineLoad = 2000, r.DirLineLoad = "Long Direction";
    r.PreLineLoadType = 2, r.UDPreLineLoad = 100, r.Ks = 100;
    return r;
}

} // namespace

// The values come from an independent calculation of the same formulas in 50-digit arithmetic.
TEST(UniformThickness, HilltopExampleAgreesWithAnIndependentCalculation) {
    ExpectTenDigits(Analysed(hilltop()), {{"TotalTenShort", 30},
                                          {"EccShort", -2.2703175326674996},
                                          {"TendonLength", 4594},
                                          {"SlabTenSpacingShort", 4},
                                          {"EquivSlabThick", 17.298254105377005},
                                          {"UTThickness", 17.25},
                                          {"UTTotalTenShort", 67},
                                          {"UTPsCenterShort", 150.3493961352657},
                                          {"UTEccShort", -1.0},
                                          {"UTEccLong", 0.5},
                                          {"UTTenSpacingShort", 78.0 / 66},
                                          {"UTBetaShort", 13.128221333031023},
                                          {"UTStressTopCLShort", -0.086063286043792365},
                                          {"UTCrackCapacityCLShort", 1525.771174558364},
                                          {"LLMoment", 14058.533129758727},
                                          {"ExcessLLTension", -52.257338416448044},
                                          {"UTLLMoment", 53382.091951621533},
                                          {"UTExcessLLTension", -102.71456310566459}});
}

TEST(UniformThickness, QuarterInchBandsAndSlabTendonSpacings) {
    EXPECT_EQ(RoundToQuarterInch(7.1249), 7.0);
    EXPECT_EQ(RoundToQuarterInch(7.125), 7.25);
    EXPECT_EQ(RoundToQuarterInch(7.375), 7.5);
    EXPECT_EQ(RoundToQuarterInch(7.625), 7.75);
    EXPECT_EQ(RoundToQuarterInch(7.875), 8.0);
    EXPECT_EQ(RoundToQuarterInch(2.13), 2.25);
    EXPECT_EQ(RoundToQuarterInch(0.1), 0.0);

    // One slab tendon stands in the middle; none have no spacing; otherwise 2 ft off each edge.
    const DesignRecord record = hilltop();
    ResultsRecord r;
    r.SlabTenShort = 1, r.SlabTenLong = 0;
    ComputeTendonTallies(record, r);
    EXPECT_EQ(r.SlabTenSpacingShort, 40.0);
    EXPECT_EQ(r.SlabTenSpacingLong, 0.0);
    r.SlabTenLong = 5;
    ComputeTendonTallies(record, r);
    EXPECT_EQ(r.SlabTenSpacingLong, 11.5);
}

TEST(UniformThickness, ADirectionWithoutTendonsOnTheManualsFriction) {
    DesignRecord record = hilltop();
    record.Subgradetype = 0;
    record.TS1 = 0, record.NumSlabTenShort = 0; // no short tendons at all
    ResultsRecord r = Analysed(record);
    EXPECT_EQ(r.UTTotalTenShort, 0);
    EXPECT_EQ(r.UTFrictionShort, 0.0);
    EXPECT_EQ(r.UTForceShort0, 0.0);
    EXPECT_EQ(r.UTEccShort, 0.0);
    EXPECT_EQ(r.UTCrackValidCLShort, 0);
    EXPECT_EQ(r.UTCrackValidELShort, 0);
    // The short count clears the long spacing; the short spacing keeps its value, (80 - 2) / -1.
    EXPECT_EQ(r.UTTenSpacingLong, 0.0);
    EXPECT_EQ(r.UTTenSpacingShort, -78.0);

    // With full length drag the same direction still gets a tendon.
    record.Subgradetype = 1;
    EXPECT_GE(Analysed(record).UTTotalTenShort, 1);
}

TEST(UniformThickness, UserFrictionOnCompressibleSoilWritesTheExpansiveForces) {
    DesignRecord record = hilltop();
    record.SoilType = 1, record.Settle = 1.5, record.DefSettle = 960;
    ResultsRecord r;
    // User friction leaves the center down forces of the run before, clamped at 0.
    r.UTForceNetCDShort = 7;
    r.UTForceNetCDLong = -3;
    r.UTForceNetShort = 11;
    RunDesignEngine(EngineSettings{1, 0, 0}, record, r);
    EXPECT_CLOSE(r.UTForceNetShort, r.UTForceShort0 - 20);
    EXPECT_CLOSE(r.UTForceNetLong, r.UTForceLong0 - 30);
    EXPECT_EQ(r.UTForceNetCDShort, 7.0);
    EXPECT_EQ(r.UTForceNetCDLong, 0.0);
    // The long top fibre takes the short direction's force in its eccentric term.
    EXPECT_CLOSE(r.UTStressTopCDLong, r.MomentCDLong * 50 * 12 / r.UTSecModLong +
                                          r.UTForceNetCDLong / r.UTAreaLong +
                                          7 * r.UTEccLong / r.UTSecModLong);
}

TEST(LineLoad, PrestressAcrossTheLoadAndTheUniformSlabOnlyWithItsAnalysis) {
    DesignRecord record = hilltop();
    record.PreLineLoadType = 0;
    ResultsRecord r = Analysed(record);
    EXPECT_EQ(r.LLPrestress, r.PsCenterShort); // along the long direction
    EXPECT_EQ(r.UTLLPrestress, r.UTPsCenterShort);
    record.DirLineLoad = "Short Direction";
    r = Analysed(record);
    EXPECT_EQ(r.LLPrestress, r.PsCenterLong);
    record.DirLineLoad = "long direction"; // any other text is the short direction
    record.PreLineLoadType = 1;
    r = Analysed(record);
    EXPECT_CLOSE(r.LLPrestress, r.ForceNetLong * 1000 / r.AreaLong);

    record.FlatSlab = 0;
    r.UTLLMoment = -3;
    RunDesignEngine(EngineSettings{}, record, r);
    EXPECT_EQ(r.UTLLMoment, -3.0);

    record.Ks = 0;
    try {
        Analysed(record);
        ADD_FAILURE() << "no fault";
    } catch (const EngineFault& fault) {
        EXPECT_EQ(fault.kind(), FaultKind::DivisionByZero);
        EXPECT_EQ(fault.stage(), 11);
    }
}
