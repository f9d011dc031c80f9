#include "search/pareto_front.h"

#include <algorithm>

void ParetoFront::offer(const CandidateScore& score) {
    // The front rises in volume and falls in length. The first design of at least this volume:
    auto at = std::lower_bound(
        m_designs.begin(), m_designs.end(), score.concreteVolume,
        [](const CandidateScore& design, double volume) { return design.concreteVolume < volume; });
    // Bettered by a design of less concrete and no more tendon.
    if (at != m_designs.begin() && std::prev(at)->tendonLength <= score.tendonLength) {
        return;
    }
    if (at != m_designs.end() && at->concreteVolume == score.concreteVolume) {
        // Bettered by a design of the same concrete and less tendon.
        if (at->tendonLength < score.tendonLength) {
            return;
        }
        // The same design quantities: the first in the grid stands for them.
        if (at->tendonLength == score.tendonLength) {
            if (score.index < at->index) {
                *at = score;
            }
            return;
        }
    }
    // The designs of at least this volume and length are bettered by this one.
    auto end = at;
    while (end != m_designs.end() && end->tendonLength >= score.tendonLength) {
        ++end;
    }
    at = m_designs.erase(at, end);
    m_designs.insert(at, score);
}

void ParetoFront::merge(const ParetoFront& other) {
    for (const CandidateScore& score : other.m_designs) {
        offer(score);
    }
}
