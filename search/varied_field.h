#pragma once

#include "engine/design_record.h"

#include <cstdint>
#include <string_view>

// One field of the design record stepped over a range, as the engineer writes it:
// "DS1=20:30:2" is 20, 22, ... 30 in beam depth. A missing step is 1.
//
// The bounds and the step are decimal numbers and the values are taken in decimal, as written:
// 4:5:0.1 gives exactly 4.1, 4.2, ... (not 4 plus ten sums of 0.1), each the very number a
// project file holds when the value is written to it and read back. Counts (16-bit fields such
// as `QS1`) step by whole numbers.
struct VariedField {
    const DesignField* field = nullptr;
    // The values are (first + i x step) / 10^decimals for i from 0 to count - 1.
    std::int64_t first = 0;
    std::int64_t step = 1;
    int decimals = 0;
    std::int64_t count = 1;

    // The value of the field in the range's `index`th place, counted from 0.
    double valueAt(std::int64_t index) const;
    // Sets the field of `record` to that value.
    void apply(std::int64_t index, DesignRecord& record) const;
};

// Reads "FIELD=FROM:TO[:STEP]". Throws SearchRequestError for an unknown field, a text field or
// one that is no design value, a bound or step that is no plain decimal number (or has more
// than 15 significant digits), a step of 0, an empty range, and a count outside the 16-bit
// range or not whole.
VariedField ParseVariedField(std::string_view text);
