#include "cli/analyze_command.h"

#include "cli/exit_status.h"
#include "cli/input_check.h"
#include "cli/project_loading.h"
#include "cli/record_json.h"
#include "cli/results_summary.h"
#include "engine/analysis_run.h"
#include "engine/project_analysis.h"

#include <nlohmann/json.hpp>
#include <ostream>

int RunAnalyzeCommand(const AnalyzeOptions& options, std::ostream& out, std::ostream& err) {
    int failureStatus = ExitAnalysed;
    std::optional<LoadedProject> loaded = LoadCheckedProject(
        options.project, options.defaults, options.check, options.json, out, err, failureStatus);
    if (!loaded) {
        return failureStatus;
    }
    DesignRecord& record = loaded->record;
    ResultsRecord results;
    const AnalysisOutcome outcome = AnalyseProject(options.settings, record, results);

    if (options.json) {
        nlohmann::ordered_json document;
        document["version"] = loaded->version;
        if (outcome.faultKind) {
            document["fault"] = {{"kind", FaultKindName(*outcome.faultKind)},
                                 {"stage", outcome.faultStage}};
        } else {
            document["fault"] = nullptr;
        }
        document["record"] = DesignRecordJson(record);
        // Results of a run that faulted are incomplete and are not shown.
        document["results"] =
            outcome.faultKind ? nlohmann::ordered_json(nullptr) : ResultsRecordJson(results);
        out << document.dump(2) << '\n';
    } else if (outcome.faultKind) {
        err << "korvath3-cli: the analysis of " << options.project.string()
            << " ended in a fault: " << FaultKindName(*outcome.faultKind) << " in stage "
            << outcome.faultStage << " (" << AnalysisStageName(outcome.faultStage)
            << "). No results are given.\n";
    } else {
        PrintResultsSummary(options.project, loaded->version, options.settings, record, results,
                            out);
    }
    return outcome.faultKind ? ExitEngineFault : ExitAnalysed;
}
