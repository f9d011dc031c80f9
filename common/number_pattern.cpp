#include "common/number_pattern.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

struct Pattern {
    int minimumWholeDigits = 0; // "0" placeholders before the point
    bool grouping = false;
    int decimals = 0;        // all placeholders after the point
    int minimumDecimals = 0; // up to the last "0" after the point
};

Pattern ParsePattern(std::string_view text) {
    Pattern pattern;
    const std::size_t point = text.find('.');
    const std::string_view whole = text.substr(0, point);
    for (const char c : whole) {
        if (c == '0') {
            ++pattern.minimumWholeDigits;
        } else if (c == ',') {
            pattern.grouping = true;
        }
    }
    if (point != std::string_view::npos) {
        for (const char c : text.substr(point + 1)) {
            if (c == '0' || c == '#') {
                ++pattern.decimals;
                if (c == '0') {
                    pattern.minimumDecimals = pattern.decimals;
                }
            }
        }
    }
    return pattern;
}

// The magnitude of a value as a string of decimal digits with the position of its point: the
// digits of "1234.5" are "12345" with 4 whole digits.
struct DecimalDigits {
    std::string digits;
    int wholeDigits = 0;
};

// The value's 15 significant digits as written.
DecimalDigits SignificantDigits(double magnitude) {
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.14E", magnitude);
    const std::string text = buffer;
    const std::size_t e = text.find('E');
    DecimalDigits result;
    result.digits = text.substr(0, 1) + text.substr(2, e - 2);
    result.wholeDigits = std::atoi(text.c_str() + e + 1) + 1;
    return result;
}

// Cuts the digits after the given number of decimals, rounding half away from zero, and pads
// with zeros so that exactly that many decimals follow the point. The whole part may become
// empty (a value below 1).
DecimalDigits RoundToDecimals(DecimalDigits number, int decimals) {
    // Make the whole part at least empty, never negative, by writing leading zeros.
    if (number.wholeDigits < 0) {
        number.digits.insert(0, static_cast<std::size_t>(-number.wholeDigits), '0');
        number.wholeDigits = 0;
    }
    const std::size_t kept = static_cast<std::size_t>(number.wholeDigits + decimals);
    if (number.digits.size() <= kept) {
        number.digits.append(kept - number.digits.size(), '0');
        return number;
    }
    const bool roundUp = number.digits[kept] >= '5';
    number.digits.resize(kept);
    if (roundUp) {
        std::size_t i = kept;
        while (i > 0 && number.digits[i - 1] == '9') {
            number.digits[i - 1] = '0';
            --i;
        }
        if (i == 0) {
            number.digits.insert(0, 1, '1');
            ++number.wholeDigits;
        } else {
            ++number.digits[i - 1];
        }
    }
    return number;
}

std::string GroupThousands(const std::string& whole) {
    std::string grouped;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        if (i > 0 && (whole.size() - i) % 3 == 0) {
            grouped += ',';
        }
        grouped += whole[i];
    }
    return grouped;
}

} // namespace

std::string FormatNumber(double value, std::string_view patternText) {
    if (!std::isfinite(value)) {
        return std::isnan(value) ? "NaN" : (value < 0 ? "-Infinity" : "Infinity");
    }
    const Pattern pattern = ParsePattern(patternText);
    const DecimalDigits rounded =
        RoundToDecimals(SignificantDigits(std::fabs(value)), pattern.decimals);

    std::string whole = rounded.digits.substr(0, static_cast<std::size_t>(rounded.wholeDigits));
    std::string fraction = rounded.digits.substr(static_cast<std::size_t>(rounded.wholeDigits));
    const bool isZero = rounded.digits.find_first_not_of('0') == std::string::npos;

    // Leading zeros of the whole part show only as far as the pattern asks for them.
    const std::size_t firstSignificant = whole.find_first_not_of('0');
    whole.erase(0, firstSignificant == std::string::npos ? whole.size() : firstSignificant);
    if (whole.size() < static_cast<std::size_t>(pattern.minimumWholeDigits)) {
        whole.insert(0, pattern.minimumWholeDigits - whole.size(), '0');
    }
    while (fraction.size() > static_cast<std::size_t>(pattern.minimumDecimals) &&
           fraction.back() == '0') {
        fraction.pop_back();
    }

    std::string text = (value < 0 && !isZero) ? "-" : "";
    text += pattern.grouping ? GroupThousands(whole) : whole;
    if (pattern.decimals > 0) {
        text += '.';
        text += fraction;
    }
    return text;
}
