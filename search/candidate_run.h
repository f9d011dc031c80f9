#pragma once

#include "compliance/design_checks.h"
#include "engine/design_record.h"
#include "engine/equivalent_depth_memo.h"
#include "engine/results_record.h"
#include "search/candidate_grid.h"
#include "search/candidate_score.h"

#include <cstdint>
#include <string>
#include <vector>

// What became of one candidate: stopped by the value checks the program runs before every
// analysis, ended in a fault (of the analysis, or of the design exceptions' depth ratio as the
// check command meets it), analysed but with a counter of a compliance list above 0 or a rule
// of the manual broken, or compliant.
enum class CandidateVerdict { Refused, Faulted, OutOfCompliance, Compliant };

// The prices of the cost objective; a price not given is 0.
struct SearchPrices {
    double concretePerCubicYard = 0.0;
    double tendonPerFoot = 0.0;
};

// Tries candidates of a search one after another, each exactly as the command line would analyse
// and check the project file of that design: the value checks, the analysis on fresh results,
// and the compliance and exception counts. Holds its own copy of the project, its results and a
// memo of equivalent depths, so each thread of a search needs one of its own.
class CandidateRunner {
  public:
    CandidateRunner(const DesignRecord& project, const CandidateGrid& grid,
                    const EngineSettings& settings, const SearchPrices& prices);

    CandidateVerdict run(std::int64_t index);
    // The score of the last candidate run, when it was compliant.
    const CandidateScore& score() const { return m_score; }
    // The message of the value check that refused the last candidate run, when it was refused.
    const std::string& refusal() const { return m_refusal; }
    // The checks of the check table that the last candidate run failed, when it was out of
    // compliance.
    const std::vector<DesignCheck>& failedTable() const { return m_checks; }

  private:
    const DesignRecord& m_project;
    const CandidateGrid& m_grid;
    EngineSettings m_settings;
    SearchPrices m_prices;
    // The numeric fields, which the preparation and the analysis may write (the tendon size,
    // EmCenter) and are set again from the project before each candidate; texts are only read.
    std::vector<const DesignField*> m_numbers;
    DesignRecord m_record;
    const ResultsRecord m_fresh;
    ResultsRecord m_results;
    EquivalentDepthMemo m_memo;
    CandidateScore m_score;
    std::string m_refusal;
    std::vector<DesignCheck> m_checks;
};
