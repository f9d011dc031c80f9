#include "engine/project_analysis.h"

#include "engine/analysis_run.h"
#include "engine/tendon_size.h"

AnalysisOutcome AnalyseProject(const EngineSettings& settings, DesignRecord& record,
                               ResultsRecord& results, EquivalentDepthMemo* memo) {
    try {
        ApplyTendonSize(record);
    } catch (const ArithmeticFault& fault) {
        return {fault.kind, BeforeFirstStage};
    }
    try {
        RunDesignEngine(settings, record, results, memo);
    } catch (const EngineFault& fault) {
        return {fault.kind(), fault.stage()};
    }
    return {};
}
