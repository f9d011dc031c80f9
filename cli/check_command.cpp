#include "cli/check_command.h"

#include "cli/compliance_json.h"
#include "cli/compliance_listing.h"
#include "cli/exit_status.h"
#include "cli/input_check.h"
#include "cli/project_loading.h"
#include "cli/results_summary.h"
#include "compliance/compliance_pass.h"
#include "engine/analysis_run.h"
#include "engine/project_analysis.h"
#include "output/results_screen.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>

namespace {

// Where a check ended before its lists were complete.
struct CheckFault {
    FaultKind kind;
    // An analysis stage, or nothing for the depth ratio of the design exceptions.
    std::optional<int> stage;
    bool screenValue = false; // a value worked out for the screen, not the depth ratio
};

std::string FaultText(const CheckFault& fault) {
    std::string text = FaultKindName(fault.kind);
    if (fault.stage) {
        text += " in stage " + std::to_string(*fault.stage) + " (" +
                AnalysisStageName(*fault.stage) + ")";
    } else if (fault.screenValue) {
        text += ResultsValueFaultPlace;
    } else {
        text += " in the beam depth ratio of the design exceptions: a direction has no beam "
                "group with both a depth and a quantity";
    }
    return text;
}

} // namespace

int RunCheckCommand(const CheckOptions& options, std::ostream& out, std::ostream& err) {
    int failureStatus = ExitAnalysed;
    std::optional<LoadedProject> loaded = LoadCheckedProject(
        options.project, options.defaults, options.check, options.json, out, err, failureStatus);
    if (!loaded) {
        return failureStatus;
    }
    DesignRecord& record = loaded->record;
    ResultsRecord results;

    std::optional<CheckFault> fault;
    std::optional<CompliancePass> pass;
    ResultsScreen screen = LoadResultsScreen();
    const AnalysisOutcome outcome = AnalyseProject(options.settings, record, results);
    if (outcome.faultKind) {
        fault = CheckFault{*outcome.faultKind, outcome.faultStage};
    } else {
        const std::int16_t showAll = options.showAll ? 1 : 0;
        screen.flags = {showAll, showAll, showAll};
        try {
            pass = FillResults(screen, record, results, options.settings);
        } catch (const ArithmeticFault& exceptionsFault) {
            fault = CheckFault{exceptionsFault.kind, std::nullopt};
        } catch (const ResultsValueFault& valueFault) {
            fault = CheckFault{valueFault.kind, std::nullopt, true};
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
        }
        if (pass) {
            AddCompliancePassJson(*pass, SummaryLinesShown(screen.form), document);
        } else {
            // Lists of a run that faulted would be incomplete and are not shown.
            for (const char* key : {"exceptions", "compliance", "RibbedOutCount", "summary"}) {
                document[key] = nullptr;
            }
        }
        out << document.dump(2) << '\n';
    } else if (fault) {
        err << "korvath3-cli: the check of " << options.project.string()
            << " ended in a fault: " << FaultText(*fault) << ". No lists are given.\n";
    } else {
        PrintProjectHeading("compliance check", options.project, loaded->version, options.settings,
                            record, out);
        PrintCompliancePass(*pass, SummaryLinesShown(screen.form), options.colour, out);
    }
    return fault ? ExitEngineFault : ExitAnalysed;
}
