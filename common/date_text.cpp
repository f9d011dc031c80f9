#include "common/date_text.h"

#include <array>
#include <cstdio>
#include <ctime>

std::string LongDateText(int year, int month, int day) {
    static constexpr std::array<const char*, 12> months = {
        "January", "February", "March",     "April",   "May",      "June",
        "July",    "August",   "September", "October", "November", "December"};
    const char* name = (month >= 1 && month <= 12) ? months[month - 1] : "";
    return std::string(name) + " " + std::to_string(day) + ", " + std::to_string(year);
}

namespace {

std::tm LocalToday() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local;
}

} // namespace

std::string TodayLongDateText() {
    const std::tm local = LocalToday();
    return LongDateText(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

std::string ShortDateText(int year, int month, int day) {
    return std::to_string(month) + "/" + std::to_string(day) + "/" + std::to_string(year);
}

std::string TodayShortDateText() {
    const std::tm local = LocalToday();
    return ShortDateText(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

std::string TimeOfDayText(int hour, int minute, int second) {
    const int twelveHour = hour % 12 == 0 ? 12 : hour % 12;
    char text[16];
    std::snprintf(text, sizeof text, "%d:%02d:%02d %s", twelveHour, minute, second,
                  hour < 12 ? "AM" : "PM");
    return text;
}

std::string TimeOfDayNowText() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return TimeOfDayText(local.tm_hour, local.tm_min, local.tm_sec);
}
