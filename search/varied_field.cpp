#include "search/varied_field.h"

#include "search/search_request_error.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

namespace {

// Decimal numbers of at most 15 significant digits: every value of a range then is an exact
// integer over a power of ten, both held exactly by a double, and writes to a project file as
// the same 15 digits.
constexpr int MaxDigits = 15;
constexpr std::int64_t DigitLimit = 1'000'000'000'000'000; // 10^15

constexpr std::array<double, MaxDigits + 1> PowersOfTen = {
    1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// A plain decimal number: its digits as a whole number and how many of them follow the point.
struct Decimal {
    std::int64_t digits = 0;
    int decimals = 0;
};

std::string quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

// An optional sign, digits with an optional decimal point, and at least one digit.
Decimal parseDecimal(std::string_view text, std::string_view given) {
    const auto notANumber = [&] {
        return SearchRequestError(quoted(text) + " in " + quoted(given) +
                                  " is not a plain decimal number");
    };
    std::size_t at = 0;
    bool negative = false;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
        negative = text[at] == '-';
        ++at;
    }
    Decimal decimal;
    int digitCount = 0;
    int significant = 0;
    bool point = false;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '.' && !point) {
            point = true;
            continue;
        }
        if (c < '0' || c > '9') {
            throw notANumber();
        }
        ++digitCount;
        if (significant > 0 || c != '0') {
            ++significant;
        }
        if (significant > MaxDigits) {
            throw SearchRequestError(quoted(text) + " in " + quoted(given) + " has more than " +
                                     std::to_string(MaxDigits) + " significant digits");
        }
        decimal.digits = decimal.digits * 10 + (c - '0');
        if (point) {
            ++decimal.decimals;
        }
    }
    if (digitCount == 0) {
        throw notANumber();
    }
    if (decimal.decimals > MaxDigits) {
        throw SearchRequestError(quoted(text) + " in " + quoted(given) + " has more than " +
                                 std::to_string(MaxDigits) + " decimals");
    }
    if (negative) {
        decimal.digits = -decimal.digits;
    }
    return decimal;
}

// The number in units of 10^-decimals, which are at least its own.
std::int64_t inUnits(const Decimal& number, int decimals, std::string_view given) {
    std::int64_t units = number.digits;
    for (int i = number.decimals; i < decimals; ++i) {
        if (units >= DigitLimit || units <= -DigitLimit) {
            break;
        }
        units *= 10;
    }
    if (units >= DigitLimit || units <= -DigitLimit) {
        throw SearchRequestError("the numbers of " + quoted(given) + " need more than " +
                                 std::to_string(MaxDigits) + " significant digits together");
    }
    return units;
}

} // namespace

double VariedField::valueAt(std::int64_t index) const {
    // Both the whole number and the power of ten are exact doubles; their quotient is the double
    // nearest the decimal value, as reading its digits gives.
    return static_cast<double>(first + index * step) / PowersOfTen[decimals];
}

void VariedField::apply(std::int64_t index, DesignRecord& record) const {
    if (field->kind == FieldKind::Int16) {
        record.*field->int16 = static_cast<std::int16_t>(first + index * step);
    } else {
        record.*field->real = valueAt(index);
    }
}

VariedField ParseVariedField(std::string_view text) {
    const auto malformed = [&] {
        return SearchRequestError(quoted(text) + " is not of the form FIELD=FROM:TO or " +
                                  "FIELD=FROM:TO:STEP");
    };
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos || equals == 0) {
        throw malformed();
    }
    const std::string_view name = text.substr(0, equals);
    std::string_view range = text.substr(equals + 1);
    std::string_view parts[3];
    int partCount = 0;
    while (true) {
        if (partCount == 3) {
            throw malformed();
        }
        const std::size_t colon = range.find(':');
        parts[partCount++] = range.substr(0, colon);
        if (colon == std::string_view::npos) {
            break;
        }
        range = range.substr(colon + 1);
    }
    if (partCount < 2) {
        throw malformed();
    }

    VariedField varied;
    varied.field = FindDesignField(name);
    if (varied.field == nullptr) {
        throw SearchRequestError("unknown field " + quoted(name) +
                                 ": give a field of the design record by its name, such as DS1, "
                                 "QS1, TS1 or SlabThick");
    }
    if (varied.field->kind == FieldKind::Text) {
        throw SearchRequestError(quoted(name) + " is a text and cannot be varied");
    }
    if (name == "NoDataFlag") {
        throw SearchRequestError(quoted(name) + " is no design value and cannot be varied");
    }

    const Decimal from = parseDecimal(parts[0], text);
    const Decimal to = parseDecimal(parts[1], text);
    const Decimal step = partCount == 3 ? parseDecimal(parts[2], text) : Decimal{1, 0};
    const bool count16 = varied.field->kind == FieldKind::Int16;
    if (count16 && (from.decimals > 0 || to.decimals > 0 || step.decimals > 0)) {
        throw SearchRequestError(quoted(name) +
                                 " is a count: its range and step are whole numbers");
    }
    varied.decimals = std::max({from.decimals, to.decimals, step.decimals});
    varied.first = inUnits(from, varied.decimals, text);
    const std::int64_t last = inUnits(to, varied.decimals, text);
    varied.step = inUnits(step, varied.decimals, text);
    if (varied.step == 0) {
        throw SearchRequestError("the step of " + quoted(text) + " is 0");
    }
    const std::int64_t span = last - varied.first;
    if ((span > 0 && varied.step < 0) || (span < 0 && varied.step > 0)) {
        throw SearchRequestError("the range of " + quoted(text) +
                                 " is empty: its step leads away from TO");
    }
    varied.count = span / varied.step + 1;
    if (count16) {
        const std::int64_t lastValue = varied.first + (varied.count - 1) * varied.step;
        for (const std::int64_t value : {varied.first, lastValue}) {
            if (value < std::numeric_limits<std::int16_t>::min() ||
                value > std::numeric_limits<std::int16_t>::max()) {
                throw SearchRequestError(quoted(name) + " is a count from -32768 to 32767");
            }
        }
    }
    return varied;
}
