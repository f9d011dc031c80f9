#pragma once

#include "engine/checked_math.h"
#include "engine/design_record.h"
#include "engine/equivalent_depth_memo.h"
#include "engine/results_record.h"

#include <optional>

// How an analysis of a project ended: finished, or stopped by a fault in a stage.
struct AnalysisOutcome {
    std::optional<FaultKind> faultKind;
    int faultStage = 0;
};

// A fault met before the first stage, while the record is made ready (the diameter of a custom
// tendon), is reported as stage 0.
constexpr int BeforeFirstStage = 0;

// Makes the record ready as the input screen would (the tendon size from its type) and runs the
// whole analysis into `results`, with a memo of equivalent depths when one is given
// (engine/analysis_run.h).
AnalysisOutcome AnalyseProject(const EngineSettings& settings, DesignRecord& record,
                               ResultsRecord& results, EquivalentDepthMemo* memo = nullptr);
