#include "cli/summary_table.h"

#include <cstdio>
#include <ostream>

namespace {

std::string padRight(std::string text, std::size_t width) {
    if (text.size() < width) {
        text.append(width - text.size(), ' ');
    }
    return text;
}

std::string padLeft(std::string text, std::size_t width) {
    if (text.size() < width) {
        text.insert(0, width - text.size(), ' ');
    }
    return text;
}

constexpr std::size_t LabelWidth = 36;
constexpr std::size_t UnitWidth = 8;
constexpr std::size_t ValueWidth = 14;

} // namespace

std::string FixedNumber(double value, int decimals) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*f", decimals, value);
    std::string text = buffer;
    const bool negative = text.front() == '-';
    if (negative) {
        text.erase(0, 1);
    }
    const std::size_t point = text.find('.');
    const std::size_t digitsEnd = point == std::string::npos ? text.size() : point;
    for (std::size_t at = digitsEnd; at > 3; at -= 3) {
        text.insert(at - 3, ",");
    }
    // A value that rounds to zero prints without a sign.
    if (negative && text.find_first_not_of("0.,") != std::string::npos) {
        text.insert(0, "-");
    }
    return text;
}

void SummaryTable::heading(const std::string& title) {
    m_out << '\n' << title << '\n';
}

void SummaryTable::directionsHeading(const std::string& title) {
    m_out << '\n'
          << padRight(title, 2 + LabelWidth + UnitWidth) << padLeft("Short", ValueWidth)
          << padLeft("Long", ValueWidth) << '\n';
}

void SummaryTable::value(const std::string& label, const std::string& unit,
                         const std::string& text) {
    m_out << "  " << padRight(label, LabelWidth) << padRight(unit, UnitWidth)
          << padLeft(text, ValueWidth) << '\n';
}

void SummaryTable::value(const std::string& label, const std::string& unit, double number,
                         int decimals) {
    value(label, unit, FixedNumber(number, decimals));
}

void SummaryTable::pair(const std::string& label, const std::string& unit, double shortValue,
                        double longValue, int decimals) {
    text(label, unit, FixedNumber(shortValue, decimals), FixedNumber(longValue, decimals));
}

void SummaryTable::text(const std::string& label, const std::string& unit,
                        const std::string& shortText, const std::string& longText) {
    m_out << "  " << padRight(label, LabelWidth) << padRight(unit, UnitWidth)
          << padLeft(shortText, ValueWidth) << padLeft(longText, ValueWidth) << '\n';
}

void SummaryTable::note(const std::string& line) {
    m_out << "  " << line << '\n';
}
