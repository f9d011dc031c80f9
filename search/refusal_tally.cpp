#include "search/refusal_tally.h"

#include <algorithm>

void RefusalTally::add(const std::string& message) {
    // A search meets few distinct messages, each many times: the lookup finds it without a copy.
    const auto at = m_counts.find(message);
    if (at != m_counts.end()) {
        ++at->second;
    } else {
        m_counts.emplace(message, 1);
    }
}

void RefusalTally::merge(const RefusalTally& other) {
    for (const auto& [message, count] : other.m_counts) {
        m_counts[message] += count;
    }
}

std::vector<RefusalCount> RefusalTally::ranked() const {
    std::vector<RefusalCount> result;
    result.reserve(m_counts.size());
    for (const auto& [message, count] : m_counts) {
        result.push_back({message, count});
    }
    // The map gives the messages in the order of their text; a stable sort keeps it among equals.
    std::stable_sort(
        result.begin(), result.end(),
        [](const RefusalCount& a, const RefusalCount& b) { return a.count > b.count; });
    return result;
}
