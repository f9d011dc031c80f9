#include "output/results_run.h"

#include "engine/analysis_run.h"
#include "engine/project_analysis.h"
#include "output/label_text.h"

ResultsRun AnalyseAndFillResults(const EngineSettings& settings, DesignRecord& record,
                                 ResultsRecord& results, ResultsScreen& screen) {
    ResultsRun run;
    const AnalysisOutcome outcome = AnalyseProject(settings, record, results);
    if (outcome.faultKind) {
        run.fault = RunFault{*outcome.faultKind, RunFaultPlace::Stage, outcome.faultStage};
        return run;
    }
    try {
        run.pass = FillResults(screen, record, results, settings);
    } catch (const ArithmeticFault& fault) {
        run.fault = RunFault{fault.kind, RunFaultPlace::DesignExceptions};
    } catch (const ResultsValueFault& fault) {
        run.fault = RunFault{fault.kind, RunFaultPlace::ScreenValue};
    }
    return run;
}

std::string RunFaultText(const RunFault& fault) {
    std::string text = FaultKindName(fault.kind);
    switch (fault.place) {
    case RunFaultPlace::Stage:
        return text + " in stage " + std::to_string(fault.stage) + " (" +
               AnalysisStageName(fault.stage) + ")";
    case RunFaultPlace::DesignExceptions:
        return text + " in the beam depth ratio of the design exceptions";
    case RunFaultPlace::ScreenValue:
        return text + ResultsValueFaultPlace;
    }
    return text;
}
