#include "search/candidate_grid.h"

#include "common/number_pattern.h"
#include "search/search_request_error.h"

std::int64_t CandidateGrid::count() const {
    std::int64_t product = 1;
    for (const VariedField& field : fields) {
        product *= field.count;
    }
    return product;
}

std::vector<std::int64_t> CandidateGrid::places(std::int64_t index) const {
    std::vector<std::int64_t> result(fields.size());
    for (std::size_t i = fields.size(); i-- > 0;) {
        result[i] = index % fields[i].count;
        index /= fields[i].count;
    }
    return result;
}

void CandidateGrid::apply(std::int64_t index, DesignRecord& record) const {
    for (std::size_t i = fields.size(); i-- > 0;) {
        fields[i].apply(index % fields[i].count, record);
        index /= fields[i].count;
    }
}

CandidateGrid ParseCandidateGrid(std::span<const std::string> ranges) {
    if (ranges.empty()) {
        throw SearchRequestError("no field is varied: give at least one FIELD=FROM:TO[:STEP]");
    }
    CandidateGrid grid;
    std::int64_t candidates = 1;
    for (const std::string& range : ranges) {
        const VariedField varied = ParseVariedField(range);
        for (const VariedField& earlier : grid.fields) {
            if (earlier.field == varied.field) {
                throw SearchRequestError("\"" + std::string(varied.field->name) +
                                         "\" is varied twice");
            }
        }
        // Checked before the product is taken, so that it cannot overflow.
        if (varied.count > MaxSearchCandidates / candidates) {
            throw SearchRequestError(
                "the search would have more than " +
                FormatNumber(static_cast<double>(MaxSearchCandidates), "#,##0") +
                " candidates: narrow a range or take a larger step");
        }
        candidates *= varied.count;
        grid.fields.push_back(varied);
    }
    return grid;
}
