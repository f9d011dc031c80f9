#pragma once

#include "search/candidate_score.h"

#include <cstddef>
#include <vector>

// The best few compliant candidates of a search by its objective. Each thread of a search keeps
// its own; merged, they hold the same candidates whatever the order they were offered in.
class BestCandidates {
  public:
    BestCandidates(SearchObjective objective, std::size_t size);

    void offer(const CandidateScore& score);
    void merge(const BestCandidates& other);
    // Best first.
    std::vector<CandidateScore> ranked() const;

  private:
    bool before(const CandidateScore& a, const CandidateScore& b) const;
    SearchObjective m_objective;
    std::size_t m_size;
    // A heap whose front is the worst kept, the first to give way.
    std::vector<CandidateScore> m_heap;
};
