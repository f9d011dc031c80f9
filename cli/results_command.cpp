#include "cli/results_command.h"

#include "cli/exit_status.h"
#include "cli/input_check.h"
#include "cli/project_loading.h"
#include "cli/results_json.h"
#include "cli/results_listing.h"
#include "cli/results_summary.h"
#include "engine/analysis_run.h"
#include "engine/project_analysis.h"
#include "output/results_screen.h"
#include "output/results_tabs.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>

namespace {

// Where the analysis or the design exceptions of the results screen ended.
struct ResultsFault {
    FaultKind kind;
    std::optional<int> stage; // none for the design exceptions' beam depth ratio
    bool screenValue = false; // a value worked out for the screen, not the depth ratio
};

} // namespace

int RunResultsCommand(const ResultsOptions& options, std::ostream& out, std::ostream& err) {
    int failureStatus = ExitAnalysed;
    std::optional<LoadedProject> loaded = LoadCheckedProject(
        options.project, options.defaults, options.check, options.json, out, err, failureStatus);
    if (!loaded) {
        return failureStatus;
    }
    DesignRecord& record = loaded->record;

    ResultsRecord results;
    ResultsScreen screen = LoadResultsScreen();
    screen.flags = options.showAll;
    std::optional<ResultsFault> fault;
    const AnalysisOutcome outcome = AnalyseProject(options.settings, record, results);
    if (outcome.faultKind) {
        fault = ResultsFault{*outcome.faultKind, outcome.faultStage};
    } else {
        try {
            FillResults(screen, record, results, options.settings);
            ArrangeResultsScreen(screen, record, ResultsScreenWidth);
        } catch (const ArithmeticFault& exceptionsFault) {
            fault = ResultsFault{exceptionsFault.kind, std::nullopt};
        } catch (const ResultsValueFault& valueFault) {
            fault = ResultsFault{valueFault.kind, std::nullopt, true};
        }
    }

    if (options.json) {
        nlohmann::ordered_json document;
        document["version"] = loaded->version;
        document["fault"] = nullptr;
        document["tabs"] = nullptr;
        document["controls"] = nullptr;
        if (fault) {
            document["fault"] = {{"kind", FaultKindName(fault->kind)}};
            document["fault"]["stage"] =
                fault->stage ? nlohmann::ordered_json(*fault->stage) : nullptr;
        } else {
            document["tabs"] = ResultTabsJson(screen);
            document["controls"] = ResultControlsJson(screen);
        }
        out << document.dump(2) << '\n';
    } else if (fault) {
        err << "korvath3-cli: the analysis of " << options.project.string()
            << " ended in a fault: " << FaultKindName(fault->kind);
        if (fault->stage) {
            err << " in stage " << *fault->stage << " (" << AnalysisStageName(*fault->stage) << ")";
        } else if (fault->screenValue) {
            err << ResultsValueFaultPlace;
        } else {
            err << " in the beam depth ratio of the design exceptions";
        }
        err << ". No results are shown.\n";
    } else {
        PrintProjectHeading("results", options.project, loaded->version, options.settings, record,
                            out);
        PrintResultsScreen(screen, record.SoilType, record.CLSettleState, options.colour, out);
    }
    return fault ? ExitEngineFault : ExitAnalysed;
}
