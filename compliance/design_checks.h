#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

// The check table: every check of the analysis that ran, with both of its numbers, and one
// verdict per foundation that counts every check. It stands beside the classic compliance
// lists, reads the same rows (compliance/checked_rows.h) and judges each row on its own values;
// it does not make the lists' text and keeps none of their habits.

enum class Foundation { Ribbed, Uniform };
enum class CheckMode { Bearing, CenterLift, EdgeLift, CenterDown, EdgeDown, LineLoad, Rules };
enum class CheckDirection { None, Short, Long };
enum class CheckStatus {
    Ok,
    Ng,            // over the limit, or the rule broken
    NotCalculated, // a cracked capacity the section's tendons do not allow to calculate
};

// One side of a check: the name of the result or record field it is (or the expression of one
// that brings it to the unit compared, "AllowCompression / 1000"; nullptr for a number of the
// manual), its value and its unit (nullptr for a pure number or count).
struct CheckQuantity {
    const char* name = nullptr;
    double value = 0;
    const char* unit = nullptr;
};

struct DesignCheck {
    Foundation foundation = Foundation::Ribbed;
    CheckMode mode = CheckMode::Rules;
    CheckDirection direction = CheckDirection::None;
    const char* rule = nullptr; // the name of a rule of the manual ("beamWidthMin"), else nullptr
    const char* item = "";      // what is checked, for the reader
    std::optional<CheckQuantity> demand;
    std::optional<CheckQuantity> limit;
    // Demand over limit; 0 for a fibre not in the stress it is checked for; nothing where the
    // limit is 0 and for every rule.
    std::optional<double> ratio;
    CheckStatus status = CheckStatus::Ok;
    const char* reference = nullptr; // the section of the PTI manual, "4.5.2.1", else nullptr
};

// Every check of the analysis that ran: soil bearing, the soil modes and the line load of the
// ribbed foundation, then the rules of the manual; with `FlatSlab` 1 the same of the uniform
// thickness foundation. Throws ArithmeticFault where the design exceptions do: the beam depth
// ratio of a direction without any beam group that has both a depth and a quantity.
std::vector<DesignCheck> DesignChecks(const DesignRecord& record, const ResultsRecord& results);

// The same table written into `checks`, which is cleared first: a search that builds the table
// of many candidates keeps one vector and its memory.
void FillDesignChecks(const DesignRecord& record, const ResultsRecord& results,
                      std::vector<DesignCheck>& checks);

// Only the checks of the table that are not ok, in the table's order, written into `checks`
// likewise: what a search counts of each candidate that fails.
void FillFailedChecks(const DesignRecord& record, const ResultsRecord& results,
                      std::vector<DesignCheck>& checks);

struct FoundationVerdict {
    bool pass = true; // every check of the foundation is ok
    int notOk = 0;    // its checks that are not ok
    // The index in the table of its check with the largest ratio, the first of equals; nothing
    // when none of its checks has a ratio.
    std::optional<std::size_t> governing;
};

struct DesignVerdict {
    FoundationVerdict ribbed;
    std::optional<FoundationVerdict> uniform; // only with `FlatSlab` 1
};

DesignVerdict JudgeDesign(const DesignRecord& record, std::span<const DesignCheck> checks);
