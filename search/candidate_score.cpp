#include "search/candidate_score.h"

#include <tuple>

bool RanksBefore(SearchObjective objective, const CandidateScore& a, const CandidateScore& b) {
    switch (objective) {
    case SearchObjective::Concrete:
        return std::tie(a.concreteVolume, a.tendonLength, a.index) <
               std::tie(b.concreteVolume, b.tendonLength, b.index);
    case SearchObjective::Tendons:
        return std::tie(a.tendonLength, a.concreteVolume, a.index) <
               std::tie(b.tendonLength, b.concreteVolume, b.index);
    case SearchObjective::Cost:
        return std::tie(a.cost, a.concreteVolume, a.tendonLength, a.index) <
               std::tie(b.cost, b.concreteVolume, b.tendonLength, b.index);
    }
    return a.index < b.index;
}
