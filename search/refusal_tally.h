#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// How many candidates one message of the value checks refused: the message exactly as the
// program shows it in its "Input Error!" box.
struct RefusalCount {
    std::string message;
    std::int64_t count = 0;

    bool operator==(const RefusalCount&) const = default;
};

// The refusals of a search counted by message. Each thread of a search keeps its own; merged,
// they hold the same counts whatever the order the candidates were tried in.
class RefusalTally {
  public:
    void add(const std::string& message);
    void merge(const RefusalTally& other);
    // Most frequent first; messages refused equally often in the order of their text.
    std::vector<RefusalCount> ranked() const;

  private:
    std::map<std::string, std::int64_t, std::less<>> m_counts;
};
