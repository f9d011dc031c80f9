#include "compliance/compliance_pass.h"
#include "compliance/compliance_summaries.h"
#include "compliance/summary_lines.h"

#include "compliance_test_support.h"

#include <gtest/gtest.h>

namespace {

const std::string AllWithin = "\tALL VALUES WITHIN ALLOWABLE LIMITS.\n";

struct RibbedRun {
    RibbedCounters counters;
    StyledText box;
};

RibbedRun Ribbed(const DesignRecord& record, const ResultsRecord& results, std::int16_t showAll) {
    RibbedRun run;
    RibbedCounters& c = run.counters;
    RibbedCompliance(record, results, c, showAll, run.box);
    return run;
}

std::vector<std::string> SummaryTexts(const std::vector<SummaryLine>& lines) {
    std::vector<std::string> texts;
    for (const SummaryLine& line : lines) {
        texts.push_back((line.bad ? "bad: " : "good: ") + line.text);
    }
    return texts;
}

} // namespace

TEST(RibbedCompliance, ValuesExactlyAtTheirLimitsAreWithin) {
    ResultsRecord r = CompliantResults();
    r.BearingSafety = 1;
    r.StressTopCLShort = -0.3, r.StressBotELLong = -0.3;      // tension, ksi
    r.StressBotCLLong = 1.35, r.StressTopELShort = 1.35;      // 1350 psi / 1000
    r.ReqInertiaCLShort = 9000, r.InertiaShort = 9000;        // stiffness
    r.ShearELLong = 120, r.AllowShearLong = 120;              // shear
    r.CrackDemandCLLong = 55.5, r.CrackCapacityCLLong = 55.5; // cracked capacity
    const RibbedRun run = Ribbed(PlainRibbedRecord(), r, 0);
    EXPECT_EQ(Lines(run.box), (std::vector<std::string>{"\n", "SOIL BEARING :  \n", AllWithin, "\n",
                                                        "CENTER LIFT MODE :\n", AllWithin, "\n",
                                                        "EDGE LIFT MODE :\n", AllWithin}));
    EXPECT_TRUE(run.box.runs[0].bold);
    EXPECT_FALSE(run.box.runs[1].bold || run.box.runs[1].red);

    // Just beyond each limit, every one of them counts.
    r.BearingSafety = 0.999, r.StressTopCLShort = -0.301, r.StressTopELShort = 1.351;
    r.ReqInertiaCLShort = 9001, r.ShearELLong = 120.01, r.CrackDemandCLLong = 55.6;
    const RibbedRun over = Ribbed(PlainRibbedRecord(), r, 0);
    EXPECT_EQ(over.counters.bearing, 1);
    EXPECT_EQ(over.counters.centerLift, 2);
    EXPECT_EQ(over.counters.edgeLift, 2);
    EXPECT_EQ(over.counters.cracked, 1);
    EXPECT_EQ(RedRuns(over.box).size(), 6u);
}

TEST(RibbedCompliance, ShowAllListsEveryRowWithItsExcessAndLabelBlanks) {
    ResultsRecord r = CompliantResults();
    r.StressTopCLLong = -0.4, r.ExcessTopCLLong = 33.333333;
    r.ExcessBotCLShort = -100, r.ExcessShearELShort = -12.25, r.BearingExcess = -50;
    r.ExcessCrackELLong = -0.04; // rounds to "0.0" without a sign
    const RibbedRun run = Ribbed(PlainRibbedRecord(), r, 1);
    const std::vector<std::string> expected = {
        "\n",
        "SOIL BEARING :  \n",
        "\tSOIL BEARING :-50.0%\n",
        "\n",
        "CENTER LIFT MODE :\n",
        "\tBENDING STRESS IN SHORT DIRECTION (TENSION) : 0.0%\n",
        "\tBENDING STRESS IN SHORT DIRECTION (COMPRESSION) : -100.0%\n",
        "\tBENDING STRESS IN LONG  DIRECTION (TENSION) : 33.3%\n",
        "\tBENDING STRESS IN LONG  DIRECTION (COMPRESSION) : 0.0%\n",
        "\tSTIFFNESS IN SHORT DIRECTION : 0.0%\n",
        "\tSTIFFNESS IN LONG DIRECTION : 0.0%\n",
        "\tSHEAR STRESS IN SHORT DIRECTION : 0.0%\n",
        "\tSHEAR STRESS IN LONG DIRECTION : 0.0%\n",
        "\tCRACKED MOMENT CAPACITY IN SHORT DIRECTION : 0.0%\n",
        "\tCRACKED MOMENT CAPACITY IN LONG DIRECTION : 0.0%\n",
        "\n",
        "EDGE LIFT MODE :\n",
        "\tBENDING STRESS IN SHORT DIRECTION (COMPRESSION) : 0.0%\n",
        "\tBENDING STRESS IN SHORT DIRECTION (TENSION) : 0.0%\n",
        "\tBENDING STRESS IN LONG DIRECTION (COMPRESSION) : 0.0%\n",
        "\tBENDING STRESS IN LONG DIRECTION (TENSION) : 0.0%\n",
        "\tSTIFFNESS IN SHORT DIRECTION : 0.0%\n",
        "\tSTIFFNESS IN LONG DIRECTION : 0.0%\n",
        "\tSHEAR STRESS IN SHORT DIRECTION : -12.3%\n",
        "\tSHEAR STRESS IN LONG DIRECTION : 0.0%\n",
        "\tCRACKED MOMENT CAPACITY IN SHORT DIRECTION : 0.0%\n",
        "\tCRACKED MOMENT CAPACITY IN LONG DIRECTION : 0.0%\n",
    };
    EXPECT_EQ(Lines(run.box), expected);
    EXPECT_EQ(RedRuns(run.box), (std::vector<std::string>{expected[7]}));
    EXPECT_EQ(run.counters.centerLift, 1);
}

TEST(RibbedCompliance, CrackedCapacityThatCouldNotBeCalculatedDiffersByMode) {
    const std::string notShort =
        "\tCRACKED MOMENT CAPACITY IN SHORT DIRECTION : COULD NOT BE CALCULATED\n";
    ResultsRecord r = CompliantResults();
    // Center lift: no tendons in the short direction, a demand and no capacity.
    r.CrackValidCLShort = 0, r.CrackDemandCLShort = 12, r.CrackCapacityCLShort = 0;
    // Center lift within its capacity: the flag is not looked at.
    r.CrackValidCLLong = 0, r.CrackDemandCLLong = 5, r.CrackCapacityCLLong = 10;
    RibbedRun run = Ribbed(PlainRibbedRecord(), r, 0);
    EXPECT_EQ(RedRuns(run.box), (std::vector<std::string>{notShort}));
    EXPECT_EQ(run.counters.cracked, 1);
    EXPECT_EQ(run.counters.centerLift, 0);
    // The center lift section is not "all within" with a cracked row out; edge lift is.
    EXPECT_EQ(Lines(run.box).back(), AllWithin);
    EXPECT_EQ(Lines(run.box)[5], notShort);

    // Edge lift: a capacity that could not be calculated counts even within the demand, and
    // only in its own section.
    r = CompliantResults();
    r.CrackValidELShort = 0, r.CrackDemandELShort = 0, r.CrackCapacityELShort = 1;
    run = Ribbed(PlainRibbedRecord(), r, 0);
    EXPECT_EQ(RedRuns(run.box), (std::vector<std::string>{notShort}));
    EXPECT_EQ(run.counters.cracked, 1);
    EXPECT_EQ(run.counters.edgeLift, 0);
    const std::vector<std::string> lines = Lines(run.box);
    EXPECT_EQ(lines[5], AllWithin); // center lift
    EXPECT_EQ(lines.back(), notShort);

    // Over the capacity with the flag on: label and percentage.
    r = CompliantResults();
    r.CrackDemandELLong = 20, r.CrackCapacityELLong = 16, r.ExcessCrackELLong = 25;
    run = Ribbed(PlainRibbedRecord(), r, 0);
    EXPECT_EQ(RedRuns(run.box),
              (std::vector<std::string>{"\tCRACKED MOMENT CAPACITY IN LONG DIRECTION : 25.0%\n"}));
}

TEST(RibbedCompliance, CompressibleSoilListsCenterDownAndEdgeDownOnlyWhenAsked) {
    DesignRecord record = PlainRibbedRecord();
    record.SoilType = 1;
    ResultsRecord r = CompliantResults();
    r.AllowDeflCDLong = 0.5, r.NetDeflCDLong = 0.6, r.ExcessDeflCDLong = 20;
    // Edge down: the top fiber is in tension.
    r.StressTopEDShort = -0.45, r.ExcessTopEDShort = 50, r.StressBotEDShort = -0.45;
    RibbedRun run = Ribbed(record, r, 0);
    EXPECT_EQ(Lines(run.box),
              (std::vector<std::string>{"\n", "SOIL BEARING :  \n", AllWithin, "\n",
                                        "COMPRESSIBLE SOIL MODE (CENTER DOWN) :\n",
                                        "\tDEFLECTION IN LONG  DIRECTION : 20.0%\n"}));
    EXPECT_EQ(run.counters.centerDown, 1);
    EXPECT_EQ(run.counters.edgeDown, 0);

    record.CLSettleState = 1;
    run = Ribbed(record, r, 0);
    EXPECT_EQ(Lines(run.box).back(), "\tBENDING STRESS IN SHORT DIRECTION (TENSION) : 50.0%\n");
    EXPECT_EQ(run.counters.edgeDown, 1);

    record.SoilType = 2; // no soil the program knows: nothing is listed
    run = Ribbed(record, r, 1);
    EXPECT_TRUE(run.box.runs.empty());
}

TEST(CompliancePass, BearingAloneLeavesTheRibbedFoundationInCompliance) {
    DesignRecord record = PlainRibbedRecord();
    ResultsRecord r = CompliantResults();
    r.BearingSafety = 0.8, r.BearingExcess = 25;
    CompliancePass pass = RunCompliancePass(record, r, {});
    EXPECT_EQ(RedRuns(pass.ribbed.box), (std::vector<std::string>{"\tSOIL BEARING : 25.0%\n"}));
    EXPECT_EQ(pass.RibbedOutCount, 0);
    EXPECT_EQ(SummaryTexts(RibbedSummary(record, pass)),
              (std::vector<std::string>{"good: Ribbed Foundation in compliance",
                                        "good: Ribbed Foundation has no PTI Exceptions"}));
    EXPECT_TRUE(UTFSummary(pass).empty());
    EXPECT_TRUE(LLSummary(record, pass).empty());

    // With a cracked item the count shown takes in bearing: 1 + 1 + 1 (center lift, bearing,
    // cracked); the out count takes only center lift and edge lift.
    r.ShearCLShort = 200, r.AllowShearShort = 100;
    r.CrackValidELLong = 0;
    record.Fpc = 2000;
    pass = RunCompliancePass(record, r, {});
    EXPECT_EQ(pass.RibbedOutCount, 1);
    EXPECT_EQ(SummaryTexts(RibbedSummary(record, pass)),
              (std::vector<std::string>{"bad: Ribbed Foundation has 3 items out of compliance",
                                        "bad: Ribbed Foundation has 1 PTI Exceptions"}));

    // Compressible soil: center down + edge down + bearing, and no cracked capacity.
    record.SoilType = 1, record.CLSettleState = 1;
    r.StressBotCDShort = -1, r.StressBotCDLong = -1, r.StressTopEDLong = -1;
    pass = RunCompliancePass(record, r, {});
    EXPECT_EQ(pass.RibbedOutCount, 3);
    EXPECT_EQ(SummaryTexts(RibbedSummary(record, pass))[0],
              "bad: Ribbed Foundation has 4 items out of compliance");
}

TEST(CompliancePass, RibbedItemsOutInvalidateAUniformFoundationWithinItsLimits) {
    DesignRecord record = PlainRibbedRecord();
    record.FlatSlab = 1;
    ResultsRecord r = CompliantResults();
    r.StressTopCLShort = -0.5, r.StressTopELShort = 2;
    const CompliancePass pass = RunCompliancePass(record, r, {});
    ASSERT_TRUE(pass.uniform.has_value());
    EXPECT_EQ(pass.RibbedOutCount, 2);
    EXPECT_EQ(Lines(pass.uniform->box),
              (std::vector<std::string>{
                  "\n", "RIBBED FOUNDATION COMPLIANCE :\n",
                  "\tRIBBED FOUNDATION HAS 2 ITEMS OUT OF COMPLIANCE - UNIFORM THICKNESS "
                  "ANALYSIS INVALID\n",
                  "\n", "UNIFORM THICKNESS FOUNDATION - CENTER LIFT MODE :\n", AllWithin, "\n",
                  "UNIFORM THICKNESS FOUNDATION - EDGE LIFT MODE :\n", AllWithin}));
    EXPECT_EQ(RedRuns(pass.uniform->box).size(), 1u);
    EXPECT_EQ(
        SummaryTexts(UTFSummary(pass)),
        (std::vector<std::string>{"bad: Uniform Thickness Foundation has 1 items out of compliance",
                                  "good: Uniform Thickness Foundation has no PTI Exceptions"}));
}

TEST(CompliancePass, UniformCrackedRowsCountInTheirLiftMode) {
    DesignRecord record = PlainRibbedRecord();
    record.FlatSlab = 1;
    ResultsRecord r = CompliantResults();
    r.UTCrackValidCLShort = 0, r.UTCrackDemandCLShort = 3;
    r.UTCrackValidELLong = 0;
    r.UTShearCDShort = 500; // compressible values are not looked at on expansive soil
    const CompliancePass pass = RunCompliancePass(record, r, {});
    EXPECT_EQ(pass.uniform->counters.centerLift, 1);
    EXPECT_EQ(pass.uniform->counters.edgeLift, 1);
    EXPECT_EQ(pass.uniform->counters.centerDown, 0);
    EXPECT_EQ(pass.ribbed.counters.cracked, 0);
    EXPECT_EQ(SummaryTexts(UTFSummary(pass))[0],
              "bad: Uniform Thickness Foundation has 2 items out of compliance");
}

TEST(CompliancePass, LineLoadOnBothSlabs) {
    DesignRecord record = PlainRibbedRecord();
    record.LineLoadType = 1, record.SlabThick = 4;
    ResultsRecord r = CompliantResults();
    r.LLStressCompression = 1350, r.LLStressTension = -300; // both exactly at their limits
    CompliancePass pass = RunCompliancePass(record, r, {});
    EXPECT_EQ(Lines(pass.lineLoad->box),
              (std::vector<std::string>{"\n", "LINE LOAD ANALYSIS ( 4.00 INCH THICK SLAB ) :\n",
                                        AllWithin}));
    EXPECT_EQ(SummaryTexts(LLSummary(record, pass)),
              (std::vector<std::string>{"good: Line Load Analysis in compliance"}));

    record.FlatSlab = 1;
    r.UTThickness = 1234.567;
    r.UTLLStressTension = -301, r.UTExcessLLTension = 0.333;
    r.UTLLStressCompression = 1351, r.UTExcessLLCompression = 0.074;
    pass = RunCompliancePass(record, r, {.ShowAllLineLoad = 1});
    EXPECT_EQ(Lines(pass.lineLoad->box),
              (std::vector<std::string>{"\n", "LINE LOAD ANALYSIS ( 4.00 INCH THICK SLAB ) :\n",
                                        "\tCOMPRESSION IN EXTREME FIBER : 0.0%\n",
                                        "\tTENSION IN EXTREME FIBER : 0.0%\n", "\n",
                                        "LINE LOAD ANALYSIS ( 1,234.57 INCH THICK SLAB ) :\n",
                                        "\tCOMPRESSION IN EXTREME FIBER : 0.1%\n",
                                        "\tTENSION IN EXTREME FIBER : 0.3%\n"}));
    EXPECT_EQ(RedRuns(pass.lineLoad->box).size(), 2u);
    EXPECT_EQ(SummaryTexts(LLSummary(record, pass)),
              (std::vector<std::string>{
                  "good: Ribbed Foundation - Line Load Analysis in compliance",
                  "bad: Uniform Thickness Foundation - Line load Analysis has 2 items out of "
                  "compliance"}));
}
