#include "search/best_candidates.h"
#include "search/pareto_front.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

CandidateScore design(std::int64_t index, double concrete, double tendon, double cost = 0) {
    CandidateScore score;
    score.index = index;
    score.concreteVolume = concrete;
    score.tendonLength = tendon;
    score.cost = cost;
    return score;
}

std::vector<std::int64_t> indices(const std::vector<CandidateScore>& scores) {
    std::vector<std::int64_t> result;
    for (const CandidateScore& score : scores) {
        result.push_back(score.index);
    }
    return result;
}

// Designs with ties of every kind: 3 and 5 alike in concrete, 5 and 8 alike in everything, 2
// and 7 alike in cost.
const std::vector<CandidateScore> designs = {
    design(8, 61.5, 3200, 12000), design(3, 61.5, 3300, 11900), design(5, 61.5, 3200, 12000),
    design(7, 63.0, 3000, 11500), design(2, 60.0, 3600, 11500), design(9, 64.0, 2900, 11600),
    design(4, 60.0, 3700, 11400),
};

} // namespace

// In whatever order the designs come, and however they are shared out between threads, the
// best are ranked by the objective, then by the other quantity, then by their place in the grid.
TEST(BestCandidates, RanksByObjectiveThenTheOtherQuantityThenTheGrid) {
    const struct {
        SearchObjective objective;
        std::vector<std::int64_t> ranked;
    } rows[] = {
        {SearchObjective::Concrete, {2, 4, 5, 8, 3, 7, 9}},
        {SearchObjective::Tendons, {9, 7, 5, 8, 3, 2, 4}},
        {SearchObjective::Cost, {4, 2, 7, 9, 3, 5, 8}},
    };
    std::mt19937 random(7);
    for (const auto& row : rows) {
        for (int shuffle = 0; shuffle < 20; ++shuffle) {
            std::vector<CandidateScore> offered = designs;
            std::shuffle(offered.begin(), offered.end(), random);
            BestCandidates all(row.objective, 10);
            BestCandidates three(row.objective, 3);
            BestCandidates firstHalf(row.objective, 3);
            BestCandidates secondHalf(row.objective, 3);
            for (std::size_t i = 0; i < offered.size(); ++i) {
                all.offer(offered[i]);
                three.offer(offered[i]);
                (i % 2 == 0 ? firstHalf : secondHalf).offer(offered[i]);
            }
            firstHalf.merge(secondHalf);
            EXPECT_EQ(indices(all.ranked()), row.ranked);
            const std::vector<std::int64_t> best3(row.ranked.begin(), row.ranked.begin() + 3);
            EXPECT_EQ(indices(three.ranked()), best3);
            EXPECT_EQ(indices(firstHalf.ranked()), best3);
        }
    }
}

// Concrete against tendon: 2 (60, 3600) betters 4 (60, 3700); 8 and 5 are the same design, 5
// first in the grid; 3 has more tendon than 5 for the same concrete; 7 (63, 3000) and 9
// (64, 2900) each trade concrete for tendon. Offered in any order or shared out, the front is
// the same.
TEST(ParetoFront, KeepsTheDesignsNoOtherBettersInBothQuantities) {
    std::mt19937 random(11);
    for (int shuffle = 0; shuffle < 50; ++shuffle) {
        std::vector<CandidateScore> offered = designs;
        std::shuffle(offered.begin(), offered.end(), random);
        ParetoFront whole;
        ParetoFront parts[3];
        for (std::size_t i = 0; i < offered.size(); ++i) {
            whole.offer(offered[i]);
            parts[i % 3].offer(offered[i]);
        }
        parts[0].merge(parts[2]);
        parts[0].merge(parts[1]);
        EXPECT_EQ(indices(whole.designs()), (std::vector<std::int64_t>{2, 5, 7, 9}));
        EXPECT_EQ(indices(parts[0].designs()), (std::vector<std::int64_t>{2, 5, 7, 9}));
    }

    // A design better in both takes the place of every design it betters.
    ParetoFront front;
    for (const CandidateScore& score : designs) {
        front.offer(score);
    }
    front.offer(design(20, 59.0, 2950));
    EXPECT_EQ(indices(front.designs()), (std::vector<std::int64_t>{20, 9}));
    front.offer(design(21, 59.0, 2900));
    EXPECT_EQ(indices(front.designs()), (std::vector<std::int64_t>{21}));
}
