#include "cli/check_command.h"

#include "cli/compliance_json.h"
#include "cli/compliance_listing.h"
#include "cli/exit_status.h"
#include "cli/input_check.h"
#include "cli/project_loading.h"
#include "cli/results_summary.h"
#include "cli/run_fault.h"
#include "output/results_run.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>

int RunCheckCommand(const CheckOptions& options, std::ostream& out, std::ostream& err) {
    int failureStatus = ExitAnalysed;
    std::optional<LoadedProject> loaded = LoadCheckedProject(
        options.project, options.defaults, options.check, options.json, out, err, failureStatus);
    if (!loaded) {
        return failureStatus;
    }
    DesignRecord& record = loaded->record;
    ResultsRecord results;

    ResultsScreen screen = LoadResultsScreen();
    const std::int16_t showAll = options.showAll ? 1 : 0;
    screen.flags = {showAll, showAll, showAll};
    const ResultsRun run = AnalyseAndFillResults(options.settings, record, results, screen);
    const std::optional<RunFault>& fault = run.fault;

    if (options.json) {
        nlohmann::ordered_json document;
        document["version"] = loaded->version;
        document["fault"] = nullptr;
        if (!fault) {
            AddCompliancePassJson(run.pass, SummaryLinesShown(screen.form), document);
        } else {
            document["fault"] = RunFaultJson(*fault);
            // Lists of a run that faulted would be incomplete and are not shown.
            for (const char* key : {"exceptions", "compliance", "RibbedOutCount", "summary"}) {
                document[key] = nullptr;
            }
        }
        out << document.dump(2) << '\n';
    } else if (fault) {
        err << "korvath3-cli: the check of " << options.project.string()
            << " ended in a fault: " << RunFaultWithCause(*fault) << ". No lists are given.\n";
    } else {
        PrintProjectHeading("compliance check", options.project, loaded->version, options.settings,
                            record, out);
        PrintCompliancePass(run.pass, SummaryLinesShown(screen.form), options.colour, out);
    }
    return fault ? ExitEngineFault : ExitAnalysed;
}
