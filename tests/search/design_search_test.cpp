#include "search/design_search.h"
#include "storage/design_file.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

namespace {

DesignRecord expansiveExample() {
    DesignRecord record;
    ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/expansive_ribbed.kvt", AllSections,
                   record, record, nullptr);
    return record;
}

// The expansive example (40 x 60 ft, 4 in slab, two 12 in short beams of type 2 and four plus two
// long beams) made so that stresses, stiffness, shear and capacities stay within their limits
// for every count and width of the type 1 short beams below: little soil movement (0.8 in
// center lift, 0.4 in edge lift), 4000 psi concrete, two tendons in every beam and twenty slab
// tendons each way given by number, every beam 24 in deep, beam spacing from the average and no
// six foot rule. Whether a candidate complies is then decided by the manual's rules on beam
// width and spacing, which are worked out by hand below.
DesignRecord widthAndCountBase() {
    DesignRecord record = expansiveExample();
    record.Fpc = 4000;
    record.YmCenter = 0.8, record.YmEdge = 0.4;
    record.SlabRefType = 0, record.NumSlabTenShort = 20, record.NumSlabTenLong = 20;
    record.TS1 = 2, record.TS2 = 2, record.TL1 = 2, record.TL2 = 2;
    record.DS1 = 24, record.DS2 = 24, record.DL1 = 24, record.DL2 = 24;
    record.BeamSpacing = 1, record.SixFtRule = 0;
    return record;
}

SearchRequest requestOf(const DesignRecord& project, const std::vector<std::string>& ranges) {
    SearchRequest request;
    request.project = project;
    request.grid = ParseCandidateGrid(ranges);
    return request;
}

SearchOutcome search(const SearchRequest& request, int threads = 2) {
    SearchControl control;
    control.threads = threads;
    return RunDesignSearch(request, control);
}

// The hand values of a candidate of the width and count grid: QS1 type 1 short beams WS1 wide.
struct HandDesign {
    int QS1;
    int WS1;
    std::int64_t index; // QS1 from 2, WS1 from 6 by 2, QS1 slowest

    // With every beam 24 in deep the equivalent depths are 24 in, and each beam stands 20 in
    // below the slab. Slab 40 x 60 ft x 4 in; long beams 6 x 12 in = 6 ft wide over the full
    // 60 ft; short beams (2 x 12 + QS1 x WS1) in wide between the long ones, over 40 - 6 ft;
    // cubic feet over 27.
    double concreteVolume() const {
        const double slab = 40.0 * 60 * 4 / 12;
        const double longBeams = (72.0 * 20 / 144) * 60;
        const double shortBeams = (40.0 - 6) * ((24.0 + QS1 * WS1) * 20 / 144);
        return (slab + longBeams + shortBeams) / 27;
    }
    // Two tendons in each beam and twenty in the slab: 2 QS1 + 4 + 20 across the 40 ft width,
    // 8 + 4 + 20 = 32 along the 60 ft length, and 2 ft for the ends of each.
    double tendonLength() const {
        const int shortTendons = 2 * QS1 + 24;
        const int longTendons = 32;
        return shortTendons * 40.0 + longTendons * 60.0 + 2.0 * (shortTendons + longTendons);
    }
};

// The rules decide: widths from 8 to 14 in; the short spacing 60 / (QS1 + 1) ft at most 15 ft
// (QS1 of 3 or more) and at least 6 ft (QS1 of 9 or less), with no six foot rule to lift it.
// The long spacing is 40 / 5 = 8 ft, depths are alike and at least 11 in, 7 in below the slab.
std::vector<HandDesign> compliantByHand() {
    std::vector<HandDesign> designs;
    for (int count = 2; count <= 10; ++count) {
        for (int width = 6; width <= 16; width += 2) {
            const double spacing = 60.0 / (count + 1);
            if (width >= 8 && width <= 14 && spacing <= 15 && spacing >= 6) {
                designs.push_back({count, width, (count - 2) * 6 + (width - 6) / 2});
            }
        }
    }
    return designs;
}

std::vector<std::tuple<std::int64_t, double, double, double, double>>
scores(const std::vector<CandidateScore>& list) {
    std::vector<std::tuple<std::int64_t, double, double, double, double>> result;
    for (const CandidateScore& score : list) {
        result.emplace_back(score.index, score.concreteVolume, score.tendonLength, score.cost,
                            score.margin.value_or(-99));
    }
    return result;
}

} // namespace

TEST(DesignSearch, FindsTheCompliantSetAndTheBestDesignWorkedOutByHand) {
    SearchRequest request = requestOf(widthAndCountBase(), {"QS1=2:10", "WS1=6:16:2"});
    request.best = 40;
    const SearchOutcome outcome = search(request);

    const std::vector<HandDesign> hand = compliantByHand();
    ASSERT_EQ(hand.size(), 28u); // QS1 3 to 9, WS1 8 to 14
    EXPECT_EQ(outcome.tried, 54);
    EXPECT_EQ(outcome.refused, 0);
    EXPECT_EQ(outcome.faulted, 0);
    EXPECT_EQ(outcome.outOfCompliance, 26);
    EXPECT_EQ(outcome.compliant, 28);
    EXPECT_FALSE(outcome.interrupted);

    // By the least concrete: the fewest and narrowest beams, QS1 x WS1 as small as it may be;
    // designs of equal concrete (4 x 10 and 5 x 8 in of beam) go by the fewer tendons.
    std::vector<HandDesign> ranked = hand;
    std::sort(ranked.begin(), ranked.end(), [](const HandDesign& a, const HandDesign& b) {
        return std::tuple(a.QS1 * a.WS1, a.tendonLength(), a.index) <
               std::tuple(b.QS1 * b.WS1, b.tendonLength(), b.index);
    });
    ASSERT_EQ(outcome.best.size(), ranked.size());
    for (std::size_t rank = 0; rank < ranked.size(); ++rank) {
        const CandidateScore& found = outcome.best[rank];
        EXPECT_EQ(found.index, ranked[rank].index) << "rank " << rank;
        EXPECT_NEAR(found.concreteVolume, ranked[rank].concreteVolume(),
                    ranked[rank].concreteVolume() * 1e-12)
            << "rank " << rank;
        EXPECT_EQ(found.tendonLength, ranked[rank].tendonLength()) << "rank " << rank;
        ASSERT_TRUE(found.margin.has_value());
        EXPECT_GT(*found.margin, 0);
        EXPECT_LE(*found.margin, 1);
    }
    // The best: three beams 8 in wide, (800 + 600 + 34 x 48 x 20 / 144) / 27 = 60.2469 yd3 and
    // 30 x 40 + 32 x 60 + 2 x 62 = 3244 ft of tendon.
    EXPECT_EQ(outcome.best.front().index, 7);
    EXPECT_NEAR(outcome.best.front().concreteVolume, 1626.0 / 27 + (2.0 / 3) / 27, 1e-12);
    EXPECT_EQ(outcome.best.front().tendonLength, 3244);
    // It has also the least tendon of all, so that it alone makes the front.
    ASSERT_EQ(outcome.pareto.size(), 1u);
    EXPECT_EQ(outcome.pareto.front().index, 7);

    // By the least tendon: the fewest beams, then the least concrete.
    request.objective = SearchObjective::Tendons;
    const SearchOutcome byTendon = search(request);
    EXPECT_EQ(byTendon.best[0].index, 7);  // 3 x 8
    EXPECT_EQ(byTendon.best[1].index, 8);  // 3 x 10
    EXPECT_EQ(byTendon.best[4].index, 13); // 4 x 8
    // By cost at 150 a cubic yard and 2 a foot: 3 x 8 again.
    request.objective = SearchObjective::Cost;
    request.prices = {150, 2};
    const SearchOutcome byCost = search(request);
    EXPECT_EQ(byCost.best[0].index, 7);
    EXPECT_NEAR(byCost.best[0].cost, hand[0].concreteVolume() * 150 + 3244 * 2, 1e-9);
}

TEST(DesignSearch, TheOutcomeIsTheSameOnAnyNumberOfThreads) {
    // Fewer slab tendons want wider beams: the front has more than one design.
    SearchRequest request =
        requestOf(widthAndCountBase(), {"QS1=2:10", "WS1=6:16:2", "NumSlabTenShort=10:24:2"});
    request.best = 12;
    const SearchOutcome one = search(request, 1);
    EXPECT_GT(one.compliant, 20);
    EXPECT_GT(one.pareto.size(), 1u);
    for (const int threads : {2, 3, 8}) {
        const SearchOutcome many = search(request, threads);
        EXPECT_EQ(
            std::tie(many.tried, many.refused, many.faulted, many.outOfCompliance, many.compliant),
            std::tie(one.tried, one.refused, one.faulted, one.outOfCompliance, one.compliant));
        EXPECT_EQ(scores(many.best), scores(one.best)) << threads << " threads";
        EXPECT_EQ(scores(many.pareto), scores(one.pareto)) << threads << " threads";
    }
}

// Slabs thicker than every beam is deep: the value checks stop every candidate before the
// analysis, and there is no best design.
TEST(DesignSearch, AFieldThatFailsTheValueChecksRefusesEveryCandidate) {
    const SearchOutcome outcome =
        search(requestOf(widthAndCountBase(), {"SlabThick=24:30:2", "QS1=3:5"}));
    EXPECT_EQ(outcome.tried, 12);
    EXPECT_EQ(outcome.refused, 12);
    EXPECT_EQ(outcome.faulted + outcome.outOfCompliance + outcome.compliant, 0);
    EXPECT_TRUE(outcome.best.empty());
    EXPECT_TRUE(outcome.pareto.empty());
    EXPECT_FALSE(outcome.interrupted);
}

// A prestress loss of 189 ksi leaves the tendons (0.7 x 270 = 189 ksi) nothing to carry, and the
// slab tendons of the force ratio divide by it: the analysis faults. The value checks do not
// look at the loss.
TEST(DesignSearch, CandidatesThatFaultAreCountedApart) {
    const SearchOutcome outcome =
        search(requestOf(expansiveExample(), {"Prestress=15:189:174", "ForceShort=0.05:0.25:0.2"}));
    EXPECT_EQ(outcome.tried, 4);
    EXPECT_EQ(outcome.faulted, 2);
    EXPECT_EQ(outcome.refused, 0);
    EXPECT_EQ(outcome.outOfCompliance + outcome.compliant, 2);
}

// A field the analysis does not read with slab tendons given by number: every candidate is the
// same design. They rank in the order of the grid, and the first alone stands on the front.
TEST(DesignSearch, DesignsAlikeInEverythingRankInTheOrderOfTheGrid) {
    SearchRequest request =
        requestOf(widthAndCountBase(), {"ForceShort=0.1:0.5:0.1", "QS1=3:4", "WS1=8:8"});
    const SearchOutcome outcome = search(request, 3);
    EXPECT_EQ(outcome.compliant, 10);
    std::vector<std::int64_t> ranked;
    for (const CandidateScore& score : outcome.best) {
        ranked.push_back(score.index);
    }
    // Three beams first (even numbers), each in the order of the grid.
    EXPECT_EQ(ranked, (std::vector<std::int64_t>{0, 2, 4, 6, 8, 1, 3, 5, 7, 9}));
    ASSERT_EQ(outcome.pareto.size(), 1u);
    EXPECT_EQ(outcome.pareto.front().index, 0);
}

TEST(DesignSearch, AStopAskedForEndsTheSearchWithWhatItHas) {
    const SearchRequest request = requestOf(widthAndCountBase(), {"QS1=2:10", "WS1=6:16:2"});
    std::atomic<bool> stop{true};
    SearchControl control;
    control.threads = 2;
    control.stop = &stop;
    const SearchOutcome outcome = RunDesignSearch(request, control);
    EXPECT_EQ(outcome.tried, 0);
    EXPECT_TRUE(outcome.interrupted);
    EXPECT_TRUE(outcome.best.empty());

    // A flag that is never set stops nothing.
    stop = false;
    const SearchOutcome whole = RunDesignSearch(request, control);
    EXPECT_EQ(whole.tried, 54);
    EXPECT_FALSE(whole.interrupted);
}

// Each refused candidate is counted under the first value check it fails, in the program's order
// of checks for the type 1 short beams: depth above the 4 in slab, tendons not negative (for any
// count of beams), cover less than the depth. 3 x 3 x 2 x 2 = 36 candidates, by hand:
// - no beams (12): the depth and cover are not asked; TS1 = -1 refuses 6.
// - one or two beams (24): a depth of 3 or 4 in refuses 16; at 5 in TS1 = -1 refuses 4, and with
//   TS1 = 0 a cover of 5 in refuses 2, of 4 in passes 2.
// 16 + 10 + 2 = 28 refused, the count of all refusals, most frequent first.
TEST(DesignSearch, RefusalsAreCountedByTheMessageOfTheFirstCheckThatFails) {
    const SearchRequest request =
        requestOf(widthAndCountBase(), {"QS1=0:2", "DS1=3:5", "TS1=-1:0", "CS1=4:5"});
    const std::vector<RefusalCount> expected = {
        {"Depth of Type 1 Beams in the short direction must be greater than slab thickness", 16},
        {"Number of Tendons in Type 1 Beams in the short direction must be greater than or equal "
         "to zero",
         10},
        {"Tendon Cover for Type 1 Beams in the short direction must be less than Type 1 Beam Depth",
         2},
    };
    for (const int threads : {1, 2, 3}) {
        const SearchOutcome outcome = search(request, threads);
        EXPECT_EQ(outcome.tried, 36);
        EXPECT_EQ(outcome.refused, 28);
        EXPECT_EQ(outcome.refusals, expected) << threads << " threads";
        std::int64_t sum = 0;
        for (const RefusalCount& refusal : outcome.refusals) {
            sum += refusal.count;
        }
        EXPECT_EQ(sum, outcome.refused);
    }

    // Nothing refused, nothing listed.
    EXPECT_TRUE(search(requestOf(widthAndCountBase(), {"QS1=3:4"})).refusals.empty());
}

// Equal counts go by the text of their messages, so the order is the same on every run.
TEST(RefusalTally, RanksByCountThenByMessage) {
    RefusalTally first, second;
    for (const char* message : {"b", "c", "a", "c", "b"}) {
        first.add(message);
    }
    second.add("a");
    second.add("d");
    first.merge(second);
    const std::vector<RefusalCount> expected = {{"a", 2}, {"b", 2}, {"c", 2}, {"d", 1}};
    EXPECT_EQ(first.ranked(), expected);
    EXPECT_TRUE(RefusalTally().ranked().empty());
}

// Each candidate out of compliance adds one to every check of its table that fails. Over 3 to
// 10 type 1 short beams 8, 12 or 16 in wide: 16 in is over the 14 in greatest width for each of
// the 8 counts, and ten beams leave 60 / 11 = 5.5 ft between them, under the 6 ft least spacing,
// for each of the 3 widths. 8 + 3 failures over 10 candidates, one of which fails both; the 14
// compliant ones count nothing.
TEST(DesignSearch, FailuresAreCountedByCheckOverTheCandidatesOutOfCompliance) {
    const SearchRequest request = requestOf(widthAndCountBase(), {"QS1=3:10", "WS1=8:16:4"});
    for (const int threads : {1, 2}) {
        const SearchOutcome outcome = search(request, threads);
        EXPECT_EQ(outcome.outOfCompliance, 10);
        EXPECT_EQ(outcome.compliant, 14);
        ASSERT_EQ(outcome.failures.size(), 2u);
        EXPECT_EQ(outcome.failures[0].rule, "beamWidthMax");
        EXPECT_EQ(outcome.failures[0].mode, CheckMode::Rules);
        EXPECT_EQ(outcome.failures[0].direction, CheckDirection::None);
        EXPECT_EQ(outcome.failures[0].count, 8);
        EXPECT_EQ(FailedCheckText(outcome.failures[0]),
                  "Ribbed foundation: Beam width at most 14 in");
        EXPECT_EQ(outcome.failures[1].rule, "beamSpacingMin");
        EXPECT_EQ(outcome.failures[1].direction, CheckDirection::Short);
        EXPECT_EQ(outcome.failures[1].count, 3);
        EXPECT_EQ(FailedCheckText(outcome.failures[1]),
                  "Ribbed foundation: Beam spacing at least 6 ft, short");
    }
}
