#pragma once

#include "compliance/design_checks.h"

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

// How many candidates failed one check of the check table: the check named by its foundation,
// mode, direction and item, or by its rule of the manual.
struct FailureCount {
    Foundation foundation = Foundation::Ribbed;
    CheckMode mode = CheckMode::Rules;
    CheckDirection direction = CheckDirection::None;
    std::string rule; // empty for a check that is no rule
    std::string item;
    std::int64_t count = 0;

    bool operator==(const FailureCount&) const = default;
    // The check as a table row without its numbers, for its names (compliance/check_names.h).
    DesignCheck check() const;
};

// The failed checks of a search's candidates: each candidate adds one to every check of its
// table that is not ok (over its limit, its rule broken, or a cracked capacity that could not
// be calculated). Each thread of a search keeps its own; merged, they hold the same counts
// whatever the order the candidates were tried in.
class FailureTally {
  public:
    void add(std::span<const DesignCheck> checks);
    void merge(const FailureTally& other);
    // Most frequent first; checks failed equally often in the order of foundation, mode,
    // direction, rule and item.
    std::vector<FailureCount> ranked() const;

  private:
    // Counted by the table's own texts of rule and item, which stay put for the whole program,
    // so that a candidate adds its failures without copying a text; the texts themselves are
    // compared only when the counts are ranked.
    // A candidate fails few distinct checks, so they are found by a look down a short list.
    using Key = std::tuple<Foundation, CheckMode, CheckDirection, const char*, const char*>;
    std::vector<std::pair<Key, std::int64_t>> m_counts;
};

// The check as a reader names it: its foundation, then its item, mode and direction, as in
// "Ribbed foundation: Cracked moment capacity, center lift, short".
std::string FailedCheckText(const FailureCount& failure);
