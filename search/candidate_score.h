#pragma once

#include <cstdint>
#include <optional>

// What a compliant candidate of a search is judged by, all from the analysis's own results.
//
// - The concrete volume is `ConcreteVolume` of the ribbed foundation in cubic yards: the slab
//   over the whole rectangle, the long beams over the full length and the short beams between
//   them, each beam on the equivalent depth of its direction.
// - The tendon length is `TendonLength` in feet: every tendon of both directions (slab and beam
//   tendons) over the side it spans, with 2 ft for its ends.
// - The cost is the two priced: volume x price per cubic yard + length x price per foot; 0 when
//   no price is given.
// - The margin is the smallest part of a limit to spare over the rows of the compliance lists,
//   1 - value / limit (compliance/compliance_tally.h).
struct CandidateScore {
    std::int64_t index = 0; // the candidate's number in the grid
    double concreteVolume = 0.0;
    double tendonLength = 0.0;
    double cost = 0.0;
    std::optional<double> margin;
};

// What the candidates are ranked by; ties go to the other quantity, then to the candidate
// that comes first in the grid.
enum class SearchObjective {
    Concrete, // the least concrete, then the least tendon length
    Tendons,  // the least tendon length, then the least concrete
    Cost,     // the least cost, then the least concrete, then the least tendon length
};

// Whether `a` ranks before `b`. No two candidates rank alike, since their numbers differ.
bool RanksBefore(SearchObjective objective, const CandidateScore& a, const CandidateScore& b);
