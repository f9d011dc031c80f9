#include "compliance/compliance_pass.h"
#include "compliance/compliance_tally.h"

#include "compliance_test_support.h"

#include <gtest/gtest.h>
#include <random>
#include <string_view>

namespace {

// Sets every excess the compliance lists read (and any other) to `excess` percent.
void SetEveryExcess(ResultsRecord& r, double excess) {
    for (const ResultField& field : ResultsRecordFields()) {
        const std::string_view name = field.name;
        if (field.kind == FieldKind::Real && name.find("Excess") != std::string_view::npos) {
            r.*field.real = excess;
        }
    }
}

} // namespace

// Results strewn across their limits, on both soils, with and without a uniform thickness
// foundation, an edge down case and a line load: the tally counts every list and exception
// list exactly as the lists themselves count when they are written.
TEST(ComplianceTally, CountsWhatTheWrittenListsCount) {
    std::mt19937 random(250000);
    const auto around = [&](double limit) {
        const double factors[] = {-1, 0, 0.5, 1, 1.0001, 2};
        return limit * factors[random() % std::size(factors)];
    };
    int clean = 0;
    int unclean = 0;
    for (int trial = 0; trial < 3000; ++trial) {
        DesignRecord record = PlainRibbedRecord();
        record.SoilType = static_cast<std::int16_t>(random() % 3);
        record.FlatSlab = static_cast<std::int16_t>(random() % 2);
        record.LineLoadType = static_cast<std::int16_t>(random() % 2);
        record.CLSettleState = static_cast<std::int16_t>(random() % 2);
        record.Fpc = random() % 10 == 0 ? 2000 : 3000;
        ResultsRecord r = CompliantResults();
        // One in four values is moved, within or beyond its limit.
        for (const ResultField& field : ResultsRecordFields()) {
            const std::string_view name = field.name;
            if (field.kind != FieldKind::Real || random() % 4 != 0 || name.starts_with("Allow")) {
                continue;
            }
            if (name.find("Stress") != std::string_view::npos) {
                r.*field.real = around(random() % 2 ? -0.3 : 1.35);
            } else if (name.find("Excess") == std::string_view::npos) {
                r.*field.real = around(100);
            }
        }
        r.BearingSafety = around(1);
        r.UTThickness = random() % 5 == 0 ? 6 : 8;
        for (const ResultField& field : ResultsRecordFields()) {
            const std::string_view name = field.name;
            if (field.kind == FieldKind::Int16 &&
                name.find("CrackValid") != std::string_view::npos) {
                r.*field.int16 = random() % 6 == 0 ? 0 : 1;
            }
        }

        const CompliancePass pass = RunCompliancePass(record, r, {1, 1, 1});
        const ComplianceTally tally = TallyCompliance(record, r);
        const RibbedCounters& a = tally.ribbed;
        const RibbedCounters& b = pass.ribbed.counters;
        ASSERT_EQ(
            std::tie(a.centerLift, a.edgeLift, a.centerDown, a.edgeDown, a.bearing, a.cracked),
            std::tie(b.centerLift, b.edgeLift, b.centerDown, b.edgeDown, b.bearing, b.cracked))
            << "trial " << trial;
        ASSERT_EQ(tally.RibbedOutCount, pass.RibbedOutCount) << "trial " << trial;
        const UniformCounters noUniform;
        const UniformCounters& u = pass.uniform ? pass.uniform->counters : noUniform;
        ASSERT_EQ(std::tie(tally.uniform.centerLift, tally.uniform.edgeLift,
                           tally.uniform.centerDown, tally.uniform.edgeDown),
                  std::tie(u.centerLift, u.edgeLift, u.centerDown, u.edgeDown))
            << "trial " << trial;
        const LineLoadCounters noLineLoad;
        const LineLoadCounters& l = pass.lineLoad ? pass.lineLoad->counters : noLineLoad;
        ASSERT_EQ(std::tie(tally.lineLoad.ribbed, tally.lineLoad.uniform),
                  std::tie(l.ribbed, l.uniform))
            << "trial " << trial;
        ASSERT_EQ(tally.ribbedExceptions, pass.ribbedExceptions.count) << "trial " << trial;
        ASSERT_EQ(tally.uniformExceptions,
                  pass.uniformExceptions ? pass.uniformExceptions->count : 0)
            << "trial " << trial;
        (tally.clean() ? clean : unclean) += 1;
    }
    EXPECT_GT(clean, 100);
    EXPECT_GT(unclean, 1000);
}

TEST(ComplianceTally, CleanOnlyWithNoCounterAndNoException) {
    DesignRecord record = PlainRibbedRecord();
    ResultsRecord r = CompliantResults();
    EXPECT_TRUE(TallyCompliance(record, r).clean());

    // A failed bearing check alone leaves the ribbed foundation "in compliance" on its summary
    // line, but the design is not within every limit.
    r.BearingSafety = 0.99;
    EXPECT_FALSE(TallyCompliance(record, r).clean());
    r.BearingSafety = 2;

    // A rule of the manual broken, with every value within its limit.
    record.WS1 = 15;
    const ComplianceTally wide = TallyCompliance(record, r);
    EXPECT_EQ(wide.ribbedExceptions, 1);
    EXPECT_FALSE(wide.clean());

    // The uniform thickness foundation is derived from the ribbed one, whose exception makes it
    // invalid; a slab under 7.5 in is a second exception of its own.
    record.FlatSlab = 1;
    r.UTThickness = 7.25;
    EXPECT_EQ(TallyCompliance(record, r).uniformExceptions, 2);
    record.WS1 = 10;
    EXPECT_EQ(TallyCompliance(record, r).uniformExceptions, 1);
    r.UTThickness = 7.5;
    EXPECT_TRUE(TallyCompliance(record, r).clean());

    // A line load over its limit on the uniform slab only.
    record.LineLoadType = 1;
    r.UTLLStressTension = -301;
    const ComplianceTally lineLoad = TallyCompliance(record, r);
    EXPECT_EQ(lineLoad.lineLoad.ribbed, 0);
    EXPECT_EQ(lineLoad.lineLoad.uniform, 1);
    EXPECT_FALSE(lineLoad.clean());
}

// The margin of a row is 1 - value / limit, read from its excess as -excess / 100: the tally
// keeps the smallest over the rows of the lists the project has.
TEST(ComplianceTally, SmallestMarginOverTheRowsOfTheProjectsLists) {
    DesignRecord record = PlainRibbedRecord();
    ResultsRecord r = CompliantResults();
    SetEveryExcess(r, -50);
    EXPECT_DOUBLE_EQ(*TallyCompliance(record, r).smallestMargin, 0.5);

    // A shear stress of 90 psi against 120 psi allowed: 1 - 90 / 120 = 0.25.
    r.ShearELShort = 90, r.AllowShearShort = 120, r.ExcessShearELShort = (90.0 / 120 - 1) * 100;
    EXPECT_DOUBLE_EQ(*TallyCompliance(record, r).smallestMargin, 0.25);

    // Bearing: a pressure of 1800 psf on 2000 psf allowed leaves 0.1.
    r.BearingExcess = (1800.0 / 2000 - 1) * 100;
    EXPECT_DOUBLE_EQ(*TallyCompliance(record, r).smallestMargin, 0.1);

    // A cracked capacity that could not be calculated has no margin, whatever excess an
    // earlier run left; with no demand the row is within its limit.
    r.CrackValidCLLong = 0, r.CrackDemandCLLong = 0, r.ExcessCrackCLLong = 95;
    r.CrackValidELShort = 1, r.ExcessCrackELShort = -95;
    EXPECT_DOUBLE_EQ(*TallyCompliance(record, r).smallestMargin, 0.1);

    // Compressible soil lists other rows: the expansive ones no longer count.
    record.SoilType = 1;
    r.ExcessShearCDLong = -80;
    r.ExcessDeflEDShort = -1; // edge down is listed only when asked for
    EXPECT_DOUBLE_EQ(*TallyCompliance(record, r).smallestMargin, 0.1);
    r.BearingExcess = -50;
    EXPECT_DOUBLE_EQ(*TallyCompliance(record, r).smallestMargin, 0.5);
    record.CLSettleState = 1;
    EXPECT_DOUBLE_EQ(*TallyCompliance(record, r).smallestMargin, 0.01);

    // A value over its limit has a negative margin; the uniform slab's rows count only with a
    // uniform thickness foundation, the line load's only with a line load.
    record.SoilType = 0, record.CLSettleState = 0;
    r.UTExcessTopCLLong = 12.5;
    r.ExcessLLTension = 30;
    EXPECT_DOUBLE_EQ(*TallyCompliance(record, r).smallestMargin, 0.25);
    record.FlatSlab = 1;
    EXPECT_DOUBLE_EQ(*TallyCompliance(record, r).smallestMargin, -0.125);
    record.LineLoadType = 1;
    EXPECT_DOUBLE_EQ(*TallyCompliance(record, r).smallestMargin, -0.3);

    // A soil of no known kind lists no row at all.
    record = PlainRibbedRecord();
    record.SoilType = 2;
    EXPECT_FALSE(TallyCompliance(record, r).smallestMargin.has_value());
}
