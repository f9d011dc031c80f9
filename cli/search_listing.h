#pragma once

#include "search/design_search.h"

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

// What the engineer asked a search for, beside its outcome, for the listing and the JSON object.
struct SearchReportInput {
    const SearchRequest& request;
    const SearchOutcome& outcome;
    // The ranges as given on the command line.
    const std::vector<std::string>& ranges;
    // A price was given, so that the cost means something.
    bool priced = false;
};

// The outcome of a search as text: the counts, the best designs with the values of the varied
// fields, the quantities and the smallest margin, and the front of concrete against tendon
// length, in aligned columns.
void PrintSearchListing(const std::filesystem::path& project, const SearchReportInput& report,
                        std::ostream& out);

// The value of a varied field in a candidate as the project file writes it, but with a zero
// before the decimal point: "0.25".
std::string VariedValueText(const VariedField& field, std::int64_t place);
