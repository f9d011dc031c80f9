#pragma once

#include "engine/design_record.h"
#include "search/candidate_grid.h"
#include "search/candidate_run.h"
#include "search/candidate_score.h"
#include "search/failure_tally.h"
#include "search/refusal_tally.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

// A search for the lightest compliant foundation: every candidate of the grid is the project
// with the varied fields changed, tried as the command line would analyse and check its file
// (search/candidate_run.h), and the compliant ones are ranked by the objective.
struct SearchRequest {
    DesignRecord project;
    CandidateGrid grid;
    EngineSettings settings;
    SearchObjective objective = SearchObjective::Concrete;
    SearchPrices prices;
    // How many of the best to keep.
    std::size_t best = 10;
};

struct SearchControl {
    // Threads that try candidates; the calling thread only waits and reports progress.
    int threads = 1;
    // Set from elsewhere (a signal handler) to end the search early with what it has found.
    const std::atomic<bool>* stop = nullptr;
    // Called on the calling thread a few times a second with the number of candidates tried.
    std::function<void(std::int64_t tried)> progress;
};

struct SearchOutcome {
    std::int64_t tried = 0;
    std::int64_t refused = 0;
    std::int64_t faulted = 0;
    std::int64_t outOfCompliance = 0;
    std::int64_t compliant = 0;
    // The refused candidates by the message of the value check that refused them, most frequent
    // first; the counts add up to `refused`.
    std::vector<RefusalCount> refusals;
    // The checks of the check table that the candidates out of compliance failed, most frequent
    // first: each such candidate adds one to every check of its table that is not ok.
    std::vector<FailureCount> failures;
    // The stop flag was set before every candidate was tried.
    bool interrupted = false;
    // The best compliant candidates, best first, and the front of concrete against tendon
    // length, least concrete first (search/pareto_front.h).
    std::vector<CandidateScore> best;
    std::vector<CandidateScore> pareto;
};

// Tries the candidates in blocks taken in turn by the threads. Apart from an interrupted search,
// the outcome does not depend on the number of threads: counts are sums, and the best and the
// front are the same candidates however they were shared out.
SearchOutcome RunDesignSearch(const SearchRequest& request, const SearchControl& control);

// The project of candidate `index`, as its file holds it: the project with the candidate's
// values of the varied fields and nothing else changed.
DesignRecord CandidateProject(const SearchRequest& request, std::int64_t index);
