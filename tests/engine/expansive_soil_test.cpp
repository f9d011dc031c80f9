#include "engine/analysis_run.h"
#include "engine/expansive_moments.h"
#include "tests/engine/engine_test_support.h"

#include <gtest/gtest.h>

namespace {

// The Meadowbrook example: 40 x 60 ft, 4 in slab, beams 12 in wide, five 24 in and two 28 in
// deep across the short direction, four 24 in and two 28 in across the long one, one tendon
// each at 3 in cover; spacings from the extremes 8 / 13 ft and 6 / 12 ft; em 5.5 / 4 ft,
// ym 2.5 / 1.2 in, perimeter load 1500 lb/ft.
DesignRecord meadowbrook() {
    DesignRecord r = SmallRibbedRecord();
    r.QS1 = 5, r.QS2 = 2, r.QL1 = 4, r.QL2 = 2;
    r.DS2 = 28, r.DL2 = 28;
    r.TS2 = 1, r.TL2 = 1, r.CS2 = 3, r.CL2 = 3;
    r.BeamSpacing = 0, r.SMin = 8, r.LMin = 6, r.SMax = 13, r.LMax = 12;
    r.SixFtRule = 1;
    r.EmCenter = 5.5, r.EmEdge = 4, r.YmCenter = 2.5, r.YmEdge = 1.2;
    r.DefCenter = 480, r.DefEdge = 960;
    return r;
}

} // namespace

// The values come from an independent calculation in 50-digit arithmetic of the same formulas,
// with the equivalent depths found by a root finder instead of a bisection.
TEST(ExpansiveSoil, MeadowbrookExampleAgreesWithAnIndependentCalculation) {
    const ResultsRecord r = Analysed(meadowbrook(), EngineSettings{0, 0, 1});
    // em 5.5 ft: A = 0.5, B = 2.2607843; the moment at 5 ft governs both directions.
    EXPECT_EQ(r.Em5ControlLong, 1);
    EXPECT_EQ(r.Em5ControlShort, 1);
    // Six Beta exceeds both sides: the stiffness is judged over the rectangle.
    EXPECT_EQ(r.StiffBasisShort, "Width");
    EXPECT_EQ(r.StiffBasisLong, "Length");
    ExpectTenDigits(r, {{"EquivDepthShort", 25.325014625170917},
                        {"EquivDepthLong", 25.537512964422776},
                        {"CgTopShort", 6.8556844860805894},
                        {"InertiaShort", 248800.98969072165},
                        {"AreaShort", 4671.301228514357},
                        {"SecModTopShort", 36291.196042623272},
                        {"SecModBottomLong", 11348.292222659643},
                        {"ConcreteWeight", 271.01536928812644},
                        {"BearingArea", 2206.4444444444444},
                        {"SoilPressure", 166.33791537884671},
                        {"BetaShort", 11.582560960014671},
                        {"SlabTenShort", 6},
                        {"PsCenterLong", 55.092974066053771},
                        {"EccShort", -5.9539387736268276},
                        {"MomentCLBase", 1.6262497351618143},
                        {"MomentCLLong", 11.926475056447794},
                        {"MomentCLShort", 12.522798809270183},
                        {"MomentELLong", 5.3014126613235072},
                        {"MomentELShort", 6.5434962087018926},
                        {"StressTopCLShort", -0.23622041569395262},
                        {"StressBotCLLong", 0.64987549547132178},
                        {"StressBotELShort", -0.18936103350599804},
                        {"StressTopELLong", 0.11295167729024538},
                        {"ExcessTopCLShort", -28.120416545097108},
                        {"ExcessTopELShort", -89.478090883272317},
                        {"StiffLengthShort", 40},
                        {"DeflCLShort", 0.71094088127311499},
                        {"DeflELLong", 0.3858010296258644},
                        {"DeflPsShort", -0.053331858572754099},
                        {"DeflPsLong", -0.045052799111767056},
                        {"ReqInertiaCLShort", 173115.17073935101},
                        {"ExcessStiffELLong", -27.57083271057068},
                        {"AllowShearShort", 103.57909351443954},
                        {"ShearForceCLShort", 2.3628670437087018},
                        {"ShearForceCLLong", 2.2034979926269387},
                        {"ShearForceELShort", 2.6635212356984589},
                        {"ShearCLShort", 66.644075000855149},
                        {"ExcessShearELShort", -27.471897205479431},
                        {"CrackCapacityCLLong", 257.06883130785965},
                        {"ExcessCrackCLLong", 67.018731850045752},
                        {"CrackCapacityELShort", 342.02581749659176},
                        {"ExcessCrackELShort", 3.3105623008775562}});
}

TEST(ExpansiveSoil, CenterLiftCoefficientsAndTheControlAtFiveFeet) {
    CenterLiftCoefficients c = CenterLiftCoefficientsFor(5.0, 2.5, 1500);
    EXPECT_EQ(c.A, 1.0);
    EXPECT_EQ(c.B, 0.0);
    // (2.5 - 1) / 3 and ((8 - 887/255) x 1.5) / 3.
    c = CenterLiftCoefficientsFor(6, 2.5, 1500);
    EXPECT_CLOSE(c.A, 0.5);
    EXPECT_NEAR(c.B, 2.260784313725490, 1e-14);
    EXPECT_CLOSE(CenterLiftCoefficientsFor(6, 0.4, 1500).A, -0.2); // no lower limit
    c = CenterLiftCoefficientsFor(6, 5, 1500);
    EXPECT_EQ(c.A, 1.0);
    EXPECT_EQ(c.B, 0.0);

    // At 5 ft exactly no control: flags 0, the Em5 moments keep the run before.
    DesignRecord record = meadowbrook();
    record.EmCenter = -5; // made absolute, in the record too
    ResultsRecord r;
    r.MomentCLLongEm5 = 123;
    RunDesignEngine(EngineSettings{}, record, r);
    EXPECT_EQ(record.EmCenter, 5.0);
    EXPECT_EQ(r.Em5ControlLong, 0);
    EXPECT_EQ(r.MomentCLLongEm5, 123.0);
    EXPECT_CLOSE(r.MomentCLLong, std::pow(5.0, 1.238) * r.MomentCLBase);

    // At 6 ft: 0.5 x 6^1.238 + 2.2608 = 6.856 is less than 5^1.238 = 7.334, so the moment at
    // 5 ft governs.
    record.EmCenter = 6;
    RunDesignEngine(EngineSettings{}, record, r);
    EXPECT_EQ(r.Em5ControlLong, 1);
    EXPECT_CLOSE(r.MomentCLLong, std::pow(5.0, 1.238) * r.MomentCLBase);
}

TEST(ExpansiveSoil, NearlySquareRectanglesTakeTheLongMomentBothWays) {
    DesignRecord record = meadowbrook();
    record.RectLength = 44; // 44 / 40 is exactly 1.1, which is not below it
    ResultsRecord r = Analysed(record);
    EXPECT_NE(r.MomentCLShort, r.MomentCLLong);
    EXPECT_NE(r.MomentELShort, r.MomentELLong);
    record.RectLength = 43.99;
    r = Analysed(record);
    EXPECT_EQ(r.MomentCLShort, r.MomentCLLong);
    EXPECT_EQ(r.MomentELShort, r.MomentELLong);
    EXPECT_EQ(r.Em5ControlShort, 1); // as set by the control before the rule
}

TEST(ExpansiveSoil, StiffnessLengthAndAllowableShear) {
    DesignRecord record = meadowbrook();
    ResultsRecord r = Analysed(record);
    // Six Beta exactly the width is not below it: the width, by name.
    record.RectWidth = r.BetaShort * 6;
    r = Analysed(record);
    EXPECT_EQ(r.StiffLengthShort, record.RectWidth);
    EXPECT_EQ(r.StiffBasisShort, "Width");
    record.RectWidth = r.BetaShort * 6 + 0.01;
    r = Analysed(record);
    EXPECT_EQ(r.StiffLengthShort, r.BetaShort * 6);
    EXPECT_EQ(r.StiffBasisShort, "6*Beta");

    // Without ShowDD the deflection results are left alone, the stiffness length is not.
    r.AllowDeflCLShort = -7;
    r.StiffLengthShort = -7;
    RunDesignEngine(EngineSettings{}, record, r);
    EXPECT_EQ(r.AllowDeflCLShort, -7.0);
    EXPECT_GT(r.StiffLengthShort, 0.0);

    // Friction beyond the force of 13 tendons leaves the concrete alone: 1.7 sqrt(3000).
    record.SlabRefType = 0;
    record.NumSlabTenShort = 6;
    record.Subgradetype = 2;
    record.UDSS = 1000;
    EXPECT_NEAR(Analysed(record).AllowShearShort, 93.112834775878241, 1e-12);
}

TEST(ExpansiveSoil, EdgeLiftShearIsOneEquationCenterLiftTwo) {
    DesignRecord record = meadowbrook();
    record.RectLength = 40;
    record.QS1 = 4, record.QS2 = 2;
    record.SMin = 6, record.SMax = 12;
    const ResultsRecord r = Analysed(record);
    EXPECT_EQ(r.EquivDepthShort, r.EquivDepthLong);
    EXPECT_EQ(r.ShearForceELShort, r.ShearForceELLong);
    EXPECT_NE(r.ShearForceCLShort, r.ShearForceCLLong);
}

TEST(CrackedSection, SectionsWithoutTensionTendonsAndTheMixedShortCondition) {
    DesignRecord record = meadowbrook();
    ResultsRecord r = Analysed(record);
    // No slab tendons: the center lift capacity cannot be calculated; the excess stays.
    record.SlabRefType = 0;
    const double excessBefore = r.ExcessCrackCLShort;
    RunDesignEngine(EngineSettings{}, record, r);
    EXPECT_EQ(r.CrackValidCLShort, 0);
    EXPECT_EQ(r.CrackCapacityCLShort, 0.0);
    EXPECT_EQ(r.ExcessCrackCLShort, excessBefore);

    // TS1 0 and TL2 0 with tendons in S2: the short tendons sit at the bottom of the whole
    // equivalent depth, lever arm the full depth: 2 tendons x 174 x 0.153 = 53.244 kips,
    // block 53.244 / (2.55 x 720) in.
    record.TS1 = 0, record.TL2 = 0;
    r = Analysed(record);
    const double block = 53.244 / (2.55 * 720);
    EXPECT_CLOSE(r.CrackBlockELShort, block);
    EXPECT_CLOSE(r.CrackCapacityELShort, (r.EquivDepthShort - block / 2) * (53.244 / 12));

    // No short beam tendons but tendons in L2: the short condition reads TL2, fails, and the
    // formula divides zero by zero.
    record.TS2 = 0, record.TL2 = 1;
    try {
        Analysed(record);
        ADD_FAILURE() << "no fault";
    } catch (const EngineFault& fault) {
        EXPECT_EQ(fault.kind(), FaultKind::Overflow);
        EXPECT_EQ(fault.stage(), 7);
    }
    // Without any beam tendons there is nothing to divide.
    record.TL1 = 0, record.TL2 = 0;
    r = Analysed(record);
    EXPECT_EQ(r.CrackValidELShort, 0);
    EXPECT_EQ(r.CrackValidELLong, 0);
}

TEST(CrackedSection, ACompressibleProjectFirstInARunHasNoDemand) {
    DesignRecord record = meadowbrook();
    record.SoilType = 1;
    record.Settle = 2;
    record.DefSettle = 960;
    const ResultsRecord r = Analysed(record);
    EXPECT_EQ(r.MomentCLLong, 0.0);
    EXPECT_EQ(r.CrackDemandCLLong, 0.0);
    EXPECT_EQ(r.CrackValidCLLong, 1);
    EXPECT_EQ(r.ExcessCrackCLLong, -100.0);
    EXPECT_EQ(r.ExcessCrackELShort, -100.0);
}

TEST(ExpansiveSoil, ZeroPerimeterLoadInEdgeLiftFaultsInStageSix) {
    DesignRecord record = meadowbrook();
    record.TotalLoad = 0;
    try {
        Analysed(record);
        ADD_FAILURE() << "no fault";
    } catch (const EngineFault& fault) {
        EXPECT_EQ(fault.kind(), FaultKind::DivisionByZero);
        EXPECT_EQ(fault.stage(), 6);
    }
}
