#pragma once

#include <string>

// Today's date as the program needs it, replaceable in tests.
class Clock {
  public:
    virtual ~Clock() = default;
    // Today in the pattern "mmmm d, yyyy", as in "November 23, 2026".
    virtual std::string TodayLongDate() const = 0;
    // Today in the short form "m/d/yyyy", as in "11/23/2026".
    virtual std::string TodayShortDate() const = 0;
    // The time of day as the report's footer gives it, "h:mm:ss AM", as in "3:05:09 PM".
    virtual std::string TimeOfDay() const = 0;
};

// The machine's local clock.
class SystemClock : public Clock {
  public:
    std::string TodayLongDate() const override;
    std::string TodayShortDate() const override;
    std::string TimeOfDay() const override;
};
