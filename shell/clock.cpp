#include "shell/clock.h"

#include "common/date_text.h"

std::string SystemClock::TodayLongDate() const {
    return TodayLongDateText();
}

std::string SystemClock::TodayShortDate() const {
    return TodayShortDateText();
}

std::string SystemClock::TimeOfDay() const {
    return TimeOfDayNowText();
}
