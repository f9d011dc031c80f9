#include "search/best_candidates.h"

#include <algorithm>

BestCandidates::BestCandidates(SearchObjective objective, std::size_t size)
    : m_objective(objective), m_size(size) {
    m_heap.reserve(size);
}

bool BestCandidates::before(const CandidateScore& a, const CandidateScore& b) const {
    return RanksBefore(m_objective, a, b);
}

void BestCandidates::offer(const CandidateScore& score) {
    const auto order = [this](const CandidateScore& a, const CandidateScore& b) {
        return before(a, b);
    };
    if (m_size == 0) {
        return;
    }
    if (m_heap.size() < m_size) {
        m_heap.push_back(score);
        std::push_heap(m_heap.begin(), m_heap.end(), order);
        return;
    }
    if (!before(score, m_heap.front())) {
        return;
    }
    std::pop_heap(m_heap.begin(), m_heap.end(), order);
    m_heap.back() = score;
    std::push_heap(m_heap.begin(), m_heap.end(), order);
}

void BestCandidates::merge(const BestCandidates& other) {
    for (const CandidateScore& score : other.m_heap) {
        offer(score);
    }
}

std::vector<CandidateScore> BestCandidates::ranked() const {
    std::vector<CandidateScore> result = m_heap;
    std::sort(result.begin(), result.end(),
              [this](const CandidateScore& a, const CandidateScore& b) { return before(a, b); });
    return result;
}
