#pragma once

#include <string>

// A date in the pattern "mmmm d, yyyy": the month's full English name, the day without a
// leading zero and the four-digit year, as in "November 23, 2026". Month 1 to 12.
std::string LongDateText(int year, int month, int day);

// Today's date on this machine's local clock, in the same pattern.
std::string TodayLongDateText();

// A date in the short form "m/d/yyyy": month and day without leading zeros, as in "11/23/2026".
std::string ShortDateText(int year, int month, int day);

// Today's date on this machine's local clock, in the short form.
std::string TodayShortDateText();
