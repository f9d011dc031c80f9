#include "common/number_text.h"

#include "common/run_time_error.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <string>

std::string GeneralNumberText(double value) {
    if (value == 0.0) {
        return "0";
    }
    // %.15G rounds to 15 significant digits and switches to the exponent form exactly where
    // plain digits would need more than 15 places or the number is below 1E-04.
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.15G", value);
    std::string text = buffer;

    std::string exponent;
    if (const auto e = text.find('E'); e != std::string::npos) {
        exponent = text.substr(e);
        text.erase(e);
    }
    if (text.find('.') != std::string::npos) {
        while (text.back() == '0') {
            text.pop_back();
        }
        if (text.back() == '.') {
            text.pop_back();
        }
    }
    if (text.starts_with("0.")) {
        text.erase(0, 1);
    } else if (text.starts_with("-0.")) {
        text.erase(1, 1);
    }
    return text + exponent;
}

NumberParse ParseGeneralNumber(std::string_view text, double& value) {
    std::string normal;
    std::size_t i = 0;
    auto digitsFrom = [&](std::size_t& at) {
        std::size_t count = 0;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9') {
            normal += text[at];
            ++at;
            ++count;
        }
        return count;
    };

    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        if (text[i] == '-') {
            normal += '-';
        }
        ++i;
    }
    std::size_t mantissaDigits = digitsFrom(i);
    if (i < text.size() && text[i] == '.') {
        normal += '.';
        ++i;
        mantissaDigits += digitsFrom(i);
    }
    if (mantissaDigits == 0) {
        return NumberParse::NotANumber;
    }
    if (i < text.size() && (text[i] == 'E' || text[i] == 'e' || text[i] == 'D' || text[i] == 'd')) {
        normal += 'e';
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
            normal += text[i];
            ++i;
        }
        if (digitsFrom(i) == 0) {
            return NumberParse::NotANumber;
        }
    }
    if (i != text.size()) {
        return NumberParse::NotANumber;
    }

    double parsed = 0.0;
    const auto [end, error] = std::from_chars(normal.data(), normal.data() + normal.size(), parsed);
    if (error == std::errc::result_out_of_range) {
        // Too small a number is zero, as the ordinary numeric parse gives it; too large a one
        // cannot be held.
        const auto e = normal.find('e');
        const bool negativeExponent = e != std::string::npos && normal[e + 1] == '-';
        if (!negativeExponent) {
            return NumberParse::OutOfRange;
        }
        parsed = 0.0;
    } else if (error != std::errc() || end != normal.data() + normal.size()) {
        return NumberParse::NotANumber;
    }
    value = parsed;
    return NumberParse::Ok;
}

double LeadingNumberValue(std::string_view text) {
    std::string compact;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\n' && c != '\r') {
            compact += c;
        }
    }
    auto isDigit = [&](std::size_t at) {
        return at < compact.size() && compact[at] >= '0' && compact[at] <= '9';
    };
    std::size_t end = 0;
    if (end < compact.size() && (compact[end] == '+' || compact[end] == '-')) {
        ++end;
    }
    std::size_t digits = 0;
    for (; isDigit(end); ++end) {
        ++digits;
    }
    if (end < compact.size() && compact[end] == '.') {
        ++end;
        for (; isDigit(end); ++end) {
            ++digits;
        }
    }
    if (digits == 0) {
        return 0.0;
    }
    // An exponent counts only with at least one digit: "1e" is 1.
    if (end < compact.size() && std::string_view("EeDd").find(compact[end]) != std::string::npos) {
        std::size_t at = end + 1;
        if (at < compact.size() && (compact[at] == '+' || compact[at] == '-')) {
            ++at;
        }
        if (isDigit(at)) {
            for (end = at; isDigit(end); ++end) {
            }
        }
    }
    double value = 0.0;
    if (ParseGeneralNumber(std::string_view(compact).substr(0, end), value) ==
        NumberParse::OutOfRange) {
        throw RunTimeError(6);
    }
    return value;
}

std::int16_t RoundedInt16(double value) {
    const double rounded = std::nearbyint(value); // the default rounding: to nearest, ties to even
    if (!(rounded >= -32768.0 && rounded <= 32767.0)) {
        throw RunTimeError(6);
    }
    return static_cast<std::int16_t>(rounded);
}
