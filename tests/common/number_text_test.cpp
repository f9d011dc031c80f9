#include "common/number_text.h"
#include "common/run_time_error.h"

#include <gtest/gtest.h>

TEST(GeneralNumberText, ShortestFormWithoutLeadingZeroOrTrailingZeros) {
    EXPECT_EQ(GeneralNumberText(3000), "3000");
    EXPECT_EQ(GeneralNumberText(0.05), ".05");
    EXPECT_EQ(GeneralNumberText(0.75), ".75");
    EXPECT_EQ(GeneralNumberText(-0.75), "-.75");
    EXPECT_EQ(GeneralNumberText(1500000), "1500000");
    EXPECT_EQ(GeneralNumberText(0), "0");
    EXPECT_EQ(GeneralNumberText(-2.5), "-2.5");
    EXPECT_EQ(GeneralNumberText(0.1 + 0.2), ".3"); // 15 significant digits
    EXPECT_EQ(GeneralNumberText(2.0 / 3.0), ".666666666666667");
    EXPECT_EQ(GeneralNumberText(123456789.123456789), "123456789.123457");
}

TEST(GeneralNumberText, ExponentFormOnlyWherePlainDigitsWouldNotDo) {
    EXPECT_EQ(GeneralNumberText(1e15), "1E+15");
    EXPECT_EQ(GeneralNumberText(999999999999999), "999999999999999");
    EXPECT_EQ(GeneralNumberText(1.5e20), "1.5E+20");
    EXPECT_EQ(GeneralNumberText(0.0001), ".0001");
    EXPECT_EQ(GeneralNumberText(0.00001), "1E-05");
    EXPECT_EQ(GeneralNumberText(-2.5e-7), "-2.5E-07");
    EXPECT_EQ(GeneralNumberText(1.7976931348623157e308), "1.79769313486232E+308");
}

TEST(ParseGeneralNumber, AcceptsEveryGeneralFormAndRejectsTheRest) {
    const struct {
        const char* text;
        double value;
    } good[] = {{"3000", 3000},  {".05", 0.05},   {"-.75", -0.75}, {"+2", 2}, {"1E+15", 1e15},
                {"1e-05", 1e-5}, {"2.5D3", 2500}, {"7.", 7},       {"-0", 0}, {"1e-400", 0}};
    for (const auto& row : good) {
        double value = -99;
        EXPECT_EQ(ParseGeneralNumber(row.text, value), NumberParse::Ok) << row.text;
        EXPECT_EQ(value, row.value) << row.text;
    }
    const char* bad[] = {"",    "-",   ".",  "abc", "1,5",   "1e",  "1e+", "0x10",
                         "inf", "nan", " 1", "1 ",  "1.2.3", "--1", "E5"};
    for (const char* text : bad) {
        double value = -99;
        EXPECT_EQ(ParseGeneralNumber(text, value), NumberParse::NotANumber) << text;
        EXPECT_EQ(value, -99) << text;
    }
    double value = 0;
    EXPECT_EQ(ParseGeneralNumber("1e400", value), NumberParse::OutOfRange);
    EXPECT_EQ(ParseGeneralNumber("-1E+309", value), NumberParse::OutOfRange);
}

TEST(LeadingNumberValue, TakesTheLeadingNumberAndPassesOverBlanks) {
    const struct {
        const char* text;
        double value;
    } rows[] = {{"12.5 ft", 12.5}, {" 1 500 000", 1500000}, {"", 0},  {"abc", 0},     {"-.5", -0.5},
                {"1e", 1},         {"2E3x", 2000},          {"+", 0}, {"3.2.1", 3.2}, {"1D2", 100}};
    for (const auto& row : rows) {
        EXPECT_EQ(LeadingNumberValue(row.text), row.value) << row.text;
    }
    EXPECT_THROW(LeadingNumberValue("1e400"), RunTimeError);
    EXPECT_EQ(RoundedInt16(2.5), 2);
    EXPECT_EQ(RoundedInt16(-3.5), -4);
    EXPECT_EQ(RoundedInt16(32767.4), 32767);
    EXPECT_THROW(RoundedInt16(32767.5), RunTimeError);
}
