#include "search/failure_tally.h"

#include "compliance/check_names.h"

#include <algorithm>

DesignCheck FailureCount::check() const {
    DesignCheck check;
    check.foundation = foundation;
    check.mode = mode;
    check.direction = direction;
    check.rule = rule.empty() ? nullptr : rule.c_str();
    check.item = item.c_str();
    return check;
}

void FailureTally::add(std::span<const DesignCheck> checks) {
    for (const DesignCheck& check : checks) {
        if (check.status == CheckStatus::Ok) {
            continue;
        }
        const Key key{check.foundation, check.mode, check.direction, check.rule, check.item};
        const auto at = std::find_if(m_counts.begin(), m_counts.end(),
                                     [&key](const auto& entry) { return entry.first == key; });
        if (at != m_counts.end()) {
            ++at->second;
        } else {
            m_counts.emplace_back(key, 1);
        }
    }
}

void FailureTally::merge(const FailureTally& other) {
    for (const auto& [key, count] : other.m_counts) {
        const auto at = std::find_if(m_counts.begin(), m_counts.end(),
                                     [&key](const auto& entry) { return entry.first == key; });
        if (at != m_counts.end()) {
            at->second += count;
        } else {
            m_counts.emplace_back(key, count);
        }
    }
}

std::vector<FailureCount> FailureTally::ranked() const {
    using Named = std::tuple<Foundation, CheckMode, CheckDirection, std::string, std::string>;
    std::map<Named, std::int64_t> named;
    for (const auto& [key, count] : m_counts) {
        const auto& [foundation, mode, direction, rule, item] = key;
        named[Named{foundation, mode, direction, rule == nullptr ? "" : rule, item}] += count;
    }
    std::vector<FailureCount> result;
    result.reserve(named.size());
    for (const auto& [key, count] : named) {
        const auto& [foundation, mode, direction, rule, item] = key;
        result.push_back({foundation, mode, direction, rule, item, count});
    }
    std::stable_sort(
        result.begin(), result.end(),
        [](const FailureCount& a, const FailureCount& b) { return a.count > b.count; });
    return result;
}

std::string FailedCheckText(const FailureCount& failure) {
    return std::string(FoundationTitle(failure.foundation)) + ": " + CheckTitle(failure.check());
}
