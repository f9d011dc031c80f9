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

// A time of day on the twelve-hour clock, "h:mm:ss AM" or "h:mm:ss PM": the hour without a
// leading zero, 12 for noon and midnight, as in "3:05:09 PM". Hour 0 to 23.
std::string TimeOfDayText(int hour, int minute, int second);

// The time of day on this machine's local clock, in the same form.
std::string TimeOfDayNowText();
