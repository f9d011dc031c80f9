#pragma once

#include "engine/design_record.h"
#include "search/varied_field.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

// The candidates of a design search: every combination of the values of the varied fields,
// numbered from 0 with the first field changing slowest and the last fastest, as nested loops
// in the order the fields were given.
struct CandidateGrid {
    std::vector<VariedField> fields;

    std::int64_t count() const;
    // Sets every varied field of `record` to its value in candidate `index`.
    void apply(std::int64_t index, DesignRecord& record) const;
    // The place of candidate `index` in each field's range, in the order of the fields.
    std::vector<std::int64_t> places(std::int64_t index) const;
};

// The most candidates one search may have.
inline constexpr std::int64_t MaxSearchCandidates = 100'000'000;

// Reads the ranges (each "FIELD=FROM:TO[:STEP]", ParseVariedField). Throws SearchRequestError
// also for no range at all, a field given twice, and more than MaxSearchCandidates candidates.
CandidateGrid ParseCandidateGrid(std::span<const std::string> ranges);
