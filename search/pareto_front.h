#pragma once

#include "search/candidate_score.h"

#include <vector>

// The compliant candidates that no other betters in both concrete volume and tendon length:
// for each, any design with less concrete needs more tendon, and any with less tendon more
// concrete. Of candidates with equal volume and length only the first in the grid is kept. Each
// thread of a search keeps its own; merged, they hold the same candidates whatever the order
// they were offered in.
class ParetoFront {
  public:
    void offer(const CandidateScore& score);
    void merge(const ParetoFront& other);
    // In order of concrete volume, least first; the tendon length then falls.
    const std::vector<CandidateScore>& designs() const { return m_designs; }

  private:
    std::vector<CandidateScore> m_designs;
};
