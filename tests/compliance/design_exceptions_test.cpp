#include "compliance/design_exceptions.h"

#include "compliance_test_support.h"
#include "engine/checked_math.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

std::int16_t RibbedCount(const DesignRecord& record, const ResultsRecord& results) {
    std::int16_t count = 0;
    StyledText box;
    RibbedExceptions(record, results, count, box);
    return count;
}

} // namespace

TEST(RibbedExceptions, CleanDesignSaysSoInBoldCentredBlack) {
    std::int16_t count = 0;
    StyledText box{{{"left from the run before"}}};
    RibbedExceptions(PlainRibbedRecord(), CompliantResults(), count, box);
    EXPECT_EQ(count, 0);
    ASSERT_EQ(box.runs.size(), 1u);
    const StyledRun& run = box.runs[0];
    EXPECT_EQ(run.text, "\tNO PTI EXCEPTIONS EXIST\n\n");
    EXPECT_TRUE(run.bold && run.centred && !run.red);
    EXPECT_EQ(run.size, 8);
}

TEST(RibbedExceptions, EachRuleCountsOnceAtItsLimit) {
    const struct {
        const char* name;
        std::function<void(DesignRecord&, ResultsRecord&)> change;
        int count;
    } cases[] = {
        {"absent group 7 wide", [](DesignRecord& d, ResultsRecord&) { d.QS2 = 0, d.WS2 = 7; }, 0},
        {"two groups 7 wide", [](DesignRecord& d, ResultsRecord&) { d.WS1 = 7, d.WL1 = 7; }, 1},
        {"14 wide", [](DesignRecord& d, ResultsRecord&) { d.WS1 = 14, d.WL1 = 8; }, 0},
        {"14.5 wide", [](DesignRecord& d, ResultsRecord&) { d.WL1 = 14.5; }, 1},
        {"11 deep under 4 in", [](DesignRecord& d, ResultsRecord&) { d.DS1 = 11, d.DL1 = 11; }, 0},
        // Too shallow and not 7 inches below the slab: two rules.
        {"10.99 deep", [](DesignRecord& d, ResultsRecord&) { d.DS1 = 10.99, d.DL1 = 10.99; }, 2},
        {"12 deep under 6 in", [](DesignRecord& d, ResultsRecord&) { d.SlabThick = 6, d.DL1 = 12; },
         1},
        {"depths 12 and 14.4",
         [](DesignRecord& d, ResultsRecord&) { d.DS1 = 12, d.QS2 = 2, d.DS2 = 14.4, d.WS2 = 10; },
         0},
        {"depths 12 and 14.5",
         [](DesignRecord& d, ResultsRecord&) { d.DL1 = 12, d.QL2 = 2, d.DL2 = 14.5, d.WL2 = 10; },
         1},
        {"absent deeper group", [](DesignRecord& d, ResultsRecord&) { d.QS2 = 0, d.DS2 = 40; }, 0},
        // The first group's depth is the deepest even when it is absent: 20 / 12.
        {"absent first group 20 deep",
         [](DesignRecord& d, ResultsRecord&) {
             d.QS1 = 0, d.DS1 = 20, d.QS2 = 2, d.DS2 = 12, d.WS2 = 10;
         },
         1},
        {"spacing 15", [](DesignRecord&, ResultsRecord& r) { r.SpacingShort = 15; }, 0},
        {"spacing 15.01", [](DesignRecord&, ResultsRecord& r) { r.SpacingLong = 15.01; }, 1},
        {"spacing 6", [](DesignRecord&, ResultsRecord& r) { r.SpacingLong = 6; }, 0},
        {"spacing 5.99", [](DesignRecord&, ResultsRecord& r) { r.SpacingShort = 5.99; }, 1},
        {"spacing 5 by the six foot rule",
         [](DesignRecord& d, ResultsRecord& r) { d.SixFtRule = 1, r.SpacingShort = 5; }, 0},
        {"prestress 50", [](DesignRecord&, ResultsRecord& r) { r.PsCenterLong = 50; }, 0},
        {"prestress 49.99", [](DesignRecord&, ResultsRecord& r) { r.PsCenterShort = 49.99; }, 1},
        {"2500 psi", [](DesignRecord& d, ResultsRecord&) { d.Fpc = 2500; }, 0},
        {"2499 psi", [](DesignRecord& d, ResultsRecord&) { d.Fpc = 2499; }, 1},
    };
    for (const auto& c : cases) {
        DesignRecord record = PlainRibbedRecord();
        ResultsRecord results = CompliantResults();
        c.change(record, results);
        EXPECT_EQ(RibbedCount(record, results), c.count) << c.name;
    }
}

TEST(RibbedExceptions, ListsMessagesInRedAndReferencesInBlackInTheRulesOrder) {
    DesignRecord record = PlainRibbedRecord();
    ResultsRecord results = CompliantResults();
    record.Fpc = 2000;
    record.QL2 = 1, record.DL2 = 30, record.WL2 = 10; // 30 / 24 = 1.25
    std::int16_t count = 0;
    StyledText box;
    RibbedExceptions(record, results, count, box);
    EXPECT_EQ(count, 2);
    const std::vector<std::string> expected = {
        "\tDIFFERENT BEAM DEPTHS USED IN ANALYSIS SHALL NOT HAVE A RATIO BETWEEN\n",
        "\tTHE DEEPEST AND SHALLOWEST BEAM DEPTH EXCEED 1.2\n",
        "\t\t(PTI 3rd Edition 4.5.2.2)\n",
        "\t28-DAY COMPRESSIVE STRENGTH OF CONCRETE SHALL BE GREATER THAN 2500 PSI\n",
        "\t\t(PTI 3rd Edition 7.1)\n",
    };
    EXPECT_EQ(Lines(box), expected);
    EXPECT_EQ(RedRuns(box), (std::vector<std::string>{expected[0], expected[1], expected[3]}));
    EXPECT_FALSE(box.runs[2].bold);
}

TEST(RibbedExceptions, DirectionWithoutAnyBeamGroupFailsTheDepthRatio) {
    DesignRecord record = PlainRibbedRecord();
    record.QL1 = 0; // no long beams: 24 / 0
    std::int16_t count = 0;
    StyledText box;
    try {
        RibbedExceptions(record, CompliantResults(), count, box);
        FAIL() << "the depth ratio divided by zero";
    } catch (const ArithmeticFault& fault) {
        EXPECT_EQ(fault.kind, FaultKind::DivisionByZero);
    }
}

TEST(UniformExceptions, RibbedExceptionsMakeTheUniformAnalysisInvalid) {
    DesignRecord record = PlainRibbedRecord();
    ResultsRecord results = CompliantResults();
    record.FlatSlab = 1;
    results.UTThickness = 6;
    std::int16_t ribbedCount = 3;
    std::int16_t count = 0;
    StyledText box;
    UniformExceptions(record, results, count, ribbedCount, box);
    EXPECT_EQ(count, 2);
    const std::vector<std::string> lines = Lines(box);
    ASSERT_EQ(lines.size(), 7u);
    EXPECT_EQ(lines[1], "\tHAS 3 PTI EXCEPTIONS\n");
    EXPECT_EQ(lines[3], "\tUNIFORM THICKNESS FOUNDATION SHOULD BE A MINIMUM OF 7.5 INCHES THICK, "
                        "UNLESS\n");
    EXPECT_EQ(lines[4], "\tA CONTINUOUS STIFFENING BEAM COMPLYING WITH PTI 3rd EDITION 4.5.22 AND "
                        "4.5.2.3\n");
    EXPECT_EQ(lines[6], "\t\t(PTI 3rd Edition 4.5.3)\n");

    // Exactly 7.5 in with a clean ribbed foundation, and ribbed exceptions without a uniform
    // thickness foundation, leave the uniform list clean.
    results.UTThickness = 7.5;
    ribbedCount = 0;
    count = 0;
    UniformExceptions(record, results, count, ribbedCount, box);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(PlainText(box), "\tNO PTI EXCEPTIONS EXIST\n\n");

    record.FlatSlab = 0;
    results.UTThickness = 6;
    ribbedCount = 1;
    UniformExceptions(record, results, count, ribbedCount, box);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(PlainText(box), "\tNO PTI EXCEPTIONS EXIST\n\n");
}
