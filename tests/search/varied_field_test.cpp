#include "common/number_text.h"
#include "search/candidate_grid.h"
#include "search/search_request_error.h"
#include "search/varied_field.h"

#include <bit>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

std::vector<double> valuesOf(const VariedField& field) {
    std::vector<double> values;
    for (std::int64_t i = 0; i < field.count; ++i) {
        values.push_back(field.valueAt(i));
    }
    return values;
}

std::string refusal(const std::vector<std::string>& ranges) {
    try {
        ParseCandidateGrid(ranges);
    } catch (const SearchRequestError& error) {
        return error.what();
    }
    return "accepted";
}

} // namespace

TEST(VariedField, RangesRunFromFromToToByTheirStepInDecimal) {
    EXPECT_EQ(valuesOf(ParseVariedField("DS1=20:30:2")),
              (std::vector<double>{20, 22, 24, 26, 28, 30}));
    // Without a step, whole numbers; a TO between two steps is not reached; a step may count
    // down; a range may hold one value.
    EXPECT_EQ(valuesOf(ParseVariedField("QS1=4:6")), (std::vector<double>{4, 5, 6}));
    EXPECT_EQ(valuesOf(ParseVariedField("DS1=20:25:2")), (std::vector<double>{20, 22, 24}));
    EXPECT_EQ(valuesOf(ParseVariedField("DL2=30:20:-5")), (std::vector<double>{30, 25, 20}));
    EXPECT_EQ(valuesOf(ParseVariedField("SlabThick=4:4")), (std::vector<double>{4}));
    EXPECT_EQ(valuesOf(ParseVariedField("TS1=-1.5:+0.5:.5")),
              (std::vector<double>{-1.5, -1, -0.5, 0, 0.5}));

    // Each value is the decimal number itself, the double a project file gives when it is read:
    // the eighth value of 0.05 by 0.05 is 0.4 exactly, where adding 0.05 seven times to 0.05
    // falls one bit short of it.
    const VariedField force = ParseVariedField("ForceShort=0.05:0.4:0.05");
    ASSERT_EQ(force.count, 8);
    const double written[] = {0.05, 0.1, 0.15, 0.2, 0.25, 0.3, 0.35, 0.4};
    double summed = 0.05;
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(std::bit_cast<std::uint64_t>(force.valueAt(i)),
                  std::bit_cast<std::uint64_t>(written[i]))
            << i;
        // Written with 15 significant digits and read back, the value is the same to the bit.
        double read = 0;
        ASSERT_EQ(ParseGeneralNumber(GeneralNumberText(force.valueAt(i)), read), NumberParse::Ok);
        EXPECT_EQ(std::bit_cast<std::uint64_t>(read), std::bit_cast<std::uint64_t>(written[i]));
        if (i > 0) {
            summed += 0.05;
        }
    }
    EXPECT_NE(summed, 0.4);

    // Counts take whole numbers into their 16-bit fields.
    DesignRecord record;
    const VariedField beams = ParseVariedField("QL2=-32768:32767:65535");
    ASSERT_EQ(beams.count, 2);
    beams.apply(1, record);
    EXPECT_EQ(record.QL2, 32767);
    beams.apply(0, record);
    EXPECT_EQ(record.QL2, -32768);
}

TEST(VariedField, RequestsThatCannotBeCarriedOutAreRefusedWithTheirReason) {
    const struct {
        std::vector<std::string> ranges;
        const char* reason;
    } rows[] = {
        {{"DS3=20:30"},
         "unknown field \"DS3\": give a field of the design record by its name, such as DS1, "
         "QS1, TS1 or SlabThick"},
        {{"ds1=20:30"},
         "unknown field \"ds1\": give a field of the design record by its name, such as DS1, "
         "QS1, TS1 or SlabThick"},
        {{"ProjName=1:2"}, "\"ProjName\" is a text and cannot be varied"},
        {{"NoDataFlag=0:1"}, "\"NoDataFlag\" is no design value and cannot be varied"},
        {{"DS1"}, "\"DS1\" is not of the form FIELD=FROM:TO or FIELD=FROM:TO:STEP"},
        {{"DS1=20"}, "\"DS1=20\" is not of the form FIELD=FROM:TO or FIELD=FROM:TO:STEP"},
        {{"=20:30"}, "\"=20:30\" is not of the form FIELD=FROM:TO or FIELD=FROM:TO:STEP"},
        {{"DS1=20:30:2:1"},
         "\"DS1=20:30:2:1\" is not of the form FIELD=FROM:TO or FIELD=FROM:TO:STEP"},
        {{"DS1=a:30"}, "\"a\" in \"DS1=a:30\" is not a plain decimal number"},
        {{"DS1=20:"}, "\"\" in \"DS1=20:\" is not a plain decimal number"},
        {{"DS1=2e1:30"}, "\"2e1\" in \"DS1=2e1:30\" is not a plain decimal number"},
        {{"DS1=20:30:0"}, "the step of \"DS1=20:30:0\" is 0"},
        {{"DS1=20:30:0.000"}, "the step of \"DS1=20:30:0.000\" is 0"},
        {{"DS1=30:20"}, "the range of \"DS1=30:20\" is empty: its step leads away from TO"},
        {{"DS1=20:30:-1"}, "the range of \"DS1=20:30:-1\" is empty: its step leads away from TO"},
        {{"QS1=4:6:0.5"}, "\"QS1\" is a count: its range and step are whole numbers"},
        {{"QS1=4.0:6"}, "\"QS1\" is a count: its range and step are whole numbers"},
        {{"QS1=0:40000"}, "\"QS1\" is a count from -32768 to 32767"},
        {{"DS1=1.0000000000000001:2"},
         "\"1.0000000000000001\" in \"DS1=1.0000000000000001:2\" has more than 15 significant "
         "digits"},
        {{"DS1=0.001:1000000000000"},
         "the numbers of \"DS1=0.001:1000000000000\" need more than 15 significant digits "
         "together"},
        {{}, "no field is varied: give at least one FIELD=FROM:TO[:STEP]"},
        {{"DS1=20:30", "QS1=3:5", "DS1=1:2"}, "\"DS1\" is varied twice"},
        {{"QS1=1:10000", "QS2=1:10001"},
         "the search would have more than 100,000,000 candidates: narrow a range or take a "
         "larger step"},
        {{"QS1=1:10000", "QS2=1:10000", "QL1=1:2"},
         "the search would have more than 100,000,000 candidates: narrow a range or take a "
         "larger step"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(refusal(row.ranges), row.reason) << (row.ranges.empty() ? "" : row.ranges[0]);
    }
    // Exactly the most candidates allowed, and values of exactly 15 digits.
    EXPECT_EQ(refusal({"QS1=1:10000", "QS2=1:10000"}), "accepted");
    EXPECT_EQ(refusal({"DS1=999999999999.999:999999999999.999",
                       "DS2=-.999999999999999:-.999999999999998:.000000000000001"}),
              "accepted");
}

// The candidates are numbered as nested loops over the fields in the order given, the first
// slowest.
TEST(CandidateGrid, NumbersEveryCombinationWithTheFirstFieldSlowest) {
    const std::vector<std::string> ranges = {"DS1=20:24:2", "QS1=4:5", "TS1=0.5:0.5"};
    const CandidateGrid grid = ParseCandidateGrid(ranges);
    ASSERT_EQ(grid.count(), 6);
    const struct {
        double DS1;
        std::int16_t QS1;
    } expected[] = {{20, 4}, {20, 5}, {22, 4}, {22, 5}, {24, 4}, {24, 5}};
    for (std::int64_t index = 0; index < 6; ++index) {
        DesignRecord record;
        grid.apply(index, record);
        EXPECT_EQ(record.DS1, expected[index].DS1) << index;
        EXPECT_EQ(record.QS1, expected[index].QS1) << index;
        EXPECT_EQ(record.TS1, 0.5) << index;
        EXPECT_EQ(record.DS2, 0.0) << index;
    }
    EXPECT_EQ(grid.places(3), (std::vector<std::int64_t>{1, 1, 0}));
    EXPECT_EQ(grid.places(4), (std::vector<std::int64_t>{2, 0, 0}));
}
