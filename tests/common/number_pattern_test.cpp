#include "common/number_pattern.h"

#include <gtest/gtest.h>

TEST(FormatNumber, RoundsHalfAwayFromZeroOnTheValueAsWritten) {
    const struct {
        double value;
        const char* pattern;
        const char* text;
    } rows[] = {
        {0.285, "0.00", "0.29"}, // the double lies just below .285
        {1.005, "0.00", "1.01"},           {2.5, "#,##0", "3"},
        {-1234.5, "#,##0", "-1,235"},      {-0.05, "#,##0.0", "-0.1"},
        {999.995, "#,##0.00", "1,000.00"}, // rounds up across a grouping boundary
        {999.5, "#,##0", "1,000"},         {99999.96, "###,##0.0", "100,000.0"},
        {12.344, "##0.00", "12.34"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FormatNumber(row.value, row.pattern), row.text)
            << row.value << " " << row.pattern;
    }
}

TEST(FormatNumber, ShowsZerosAndGroupsAsThePatternAsks) {
    const struct {
        double value;
        const char* pattern;
        const char* text;
    } rows[] = {
        {0, "#,##0", "0"},
        {0, "#,##0.00", "0.00"},
        {0.5, "#0.00", "0.50"},
        {1234567.891, "###,###,##0.0", "1,234,567.9"},
        {1234567, "#,###,##0", "1,234,567"},
        {1234567, "##0", "1234567"},
        {123, "#", "123"},
        {1e20, "#,##0", "100,000,000,000,000,000,000"},
        {1.5, "#,##0.0##", "1.5"},
        {1.23456, "#,##0.0##", "1.235"},
        {2, "#,##0.0##", "2.0"},
        {12.3, "##0.00#", "12.30"},
        {12.345, "##0.00#", "12.345"},
        {-12.5, "###,##0.000", "-12.500"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FormatNumber(row.value, row.pattern), row.text)
            << row.value << " " << row.pattern;
    }
}

TEST(FormatNumber, ValuesThatRoundToZeroHaveNoSign) {
    EXPECT_EQ(FormatNumber(-0.001, "0.00"), "0.00");
    EXPECT_EQ(FormatNumber(-0.04, "#,##0.0"), "0.0");
    EXPECT_EQ(FormatNumber(-0.4, "#,##0"), "0");
    EXPECT_EQ(FormatNumber(-1e-300, "#,##0.000"), "0.000");
    EXPECT_EQ(FormatNumber(-0.0, "#,##0.0"), "0.0");
    EXPECT_EQ(FormatNumber(0.0001, "#,##0.00"), "0.00");
}
