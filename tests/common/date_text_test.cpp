#include "common/date_text.h"

#include <gtest/gtest.h>

TEST(LongDateText, MonthInFullDayWithoutLeadingZeroFourDigitYear) {
    EXPECT_EQ(LongDateText(2026, 11, 23), "November 23, 2026");
    EXPECT_EQ(LongDateText(2007, 1, 5), "January 5, 2007");
    EXPECT_EQ(LongDateText(1999, 12, 31), "December 31, 1999");
    const std::string today = TodayLongDateText();
    EXPECT_NE(today.find(", 20"), std::string::npos) << today;
}

TEST(ShortDateText, MonthDayYearWithoutLeadingZeros) {
    EXPECT_EQ(ShortDateText(2026, 11, 23), "11/23/2026");
    EXPECT_EQ(ShortDateText(2007, 1, 5), "1/5/2007");
}

TEST(TimeOfDayText, TwelveHourClockWithNoonAndMidnightAsTwelve) {
    EXPECT_EQ(TimeOfDayText(15, 5, 9), "3:05:09 PM");
    EXPECT_EQ(TimeOfDayText(0, 0, 0), "12:00:00 AM");
    EXPECT_EQ(TimeOfDayText(12, 30, 59), "12:30:59 PM");
    EXPECT_EQ(TimeOfDayText(11, 59, 59), "11:59:59 AM");
}
