#include "cli/checks_command.h"

#include "cli/checks_json.h"
#include "cli/checks_listing.h"
#include "cli/exit_status.h"
#include "cli/input_check.h"
#include "cli/project_loading.h"
#include "cli/results_summary.h"
#include "compliance/design_checks.h"
#include "engine/analysis_run.h"
#include "engine/checked_math.h"
#include "engine/project_analysis.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>

namespace {

// Where the checks ended before the table was complete: a stage of the analysis, or nothing
// for the beam depth ratio of the rules.
struct ChecksFault {
    FaultKind kind;
    std::optional<int> stage;
};

std::string FaultText(const ChecksFault& fault) {
    std::string text = FaultKindName(fault.kind);
    if (fault.stage) {
        return text + " in stage " + std::to_string(*fault.stage) + " (" +
               AnalysisStageName(*fault.stage) + ")";
    }
    return text + " in the beam depth ratio of the design exceptions: a direction has no beam "
                  "group with both a depth and a quantity";
}

} // namespace

int RunChecksCommand(const ChecksOptions& options, std::ostream& out, std::ostream& err) {
    int failureStatus = ExitAnalysed;
    std::optional<LoadedProject> loaded = LoadCheckedProject(
        options.project, options.defaults, options.check, options.json, out, err, failureStatus);
    if (!loaded) {
        return failureStatus;
    }
    DesignRecord& record = loaded->record;
    ResultsRecord results;

    std::optional<ChecksFault> fault;
    std::vector<DesignCheck> checks;
    const AnalysisOutcome outcome = AnalyseProject(options.settings, record, results);
    if (outcome.faultKind) {
        fault = ChecksFault{*outcome.faultKind, outcome.faultStage};
    } else {
        try {
            checks = DesignChecks(record, results);
        } catch (const ArithmeticFault& ratioFault) {
            fault = ChecksFault{ratioFault.kind, std::nullopt};
        }
    }

    if (options.json) {
        nlohmann::ordered_json document;
        document["version"] = loaded->version;
        document["fault"] = nullptr;
        if (fault) {
            document["fault"] = {{"kind", FaultKindName(fault->kind)}};
            document["fault"]["stage"] =
                fault->stage ? nlohmann::ordered_json(*fault->stage) : nullptr;
            // A table of a run that faulted would be incomplete and is not shown.
            for (const char* key : {"verdict", "governing", "checks"}) {
                document[key] = nullptr;
            }
        } else {
            AddDesignChecksJson(checks, JudgeDesign(record, checks), options.failing, document);
        }
        out << document.dump(2) << '\n';
    } else if (fault) {
        err << "korvath3-cli: the checks of " << options.project.string()
            << " ended in a fault: " << FaultText(*fault) << ". No checks are given.\n";
    } else {
        PrintProjectHeading("design checks", options.project, loaded->version, options.settings,
                            record, out);
        PrintDesignChecks(checks, JudgeDesign(record, checks), options.failing, options.colour,
                          out);
    }
    return fault ? ExitEngineFault : ExitAnalysed;
}
