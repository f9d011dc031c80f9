#pragma once

#include "engine/design_record.h"
#include "engine/equivalent_depth_memo.h"
#include "engine/results_record.h"
#include "search/sensitivity_grid.h"

#include <vector>

// Runs points of a sensitivity grid one after another, each as the command line would run the
// project file of that point: the value checks, the analysis on fresh results and the check
// table. Holds its own copy of the project, its results and a memo of equivalent depths, so each
// thread needs one of its own.
class SensitivityRunner {
  public:
    SensitivityRunner(const DesignRecord& project, const EngineSettings& settings);

    // The project with `values` in the varied fields, in the order of `fields`.
    SensitivityPoint run(std::span<const VariedField> fields, std::span<const double> values);

  private:
    const DesignRecord& m_project;
    EngineSettings m_settings;
    // The numeric fields, which the preparation and the analysis may write (the tendon size,
    // EmCenter) and are set again from the project before each point; texts are only read.
    std::vector<const DesignField*> m_numbers;
    DesignRecord m_record;
    const ResultsRecord m_fresh;
    ResultsRecord m_results;
    EquivalentDepthMemo m_memo;
};

// Judges an analysed record: the check table and each foundation's standing. Throws
// ArithmeticFault where the check table does.
void JudgeSensitivityPoint(const DesignRecord& record, const ResultsRecord& results,
                           SensitivityPoint& point);
