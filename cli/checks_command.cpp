#include "cli/checks_command.h"

#include "cli/checks_json.h"
#include "cli/checks_listing.h"
#include "cli/exit_status.h"
#include "cli/input_check.h"
#include "cli/project_loading.h"
#include "cli/results_summary.h"
#include "cli/run_fault.h"
#include "compliance/design_checks.h"
#include "output/results_run.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>

int RunChecksCommand(const ChecksOptions& options, std::ostream& out, std::ostream& err) {
    int failureStatus = ExitAnalysed;
    std::optional<LoadedProject> loaded = LoadCheckedProject(
        options.project, options.defaults, options.check, options.json, out, err, failureStatus);
    if (!loaded) {
        return failureStatus;
    }
    DesignRecord& record = loaded->record;
    ResultsRecord results;

    ResultsScreen screen = LoadResultsScreen();
    const ResultsRun run = AnalyseAndFillResults(options.settings, record, results, screen);
    std::vector<DesignCheck> checks;
    if (!run.fault) {
        checks = DesignChecks(record, results);
    }
    const std::optional<RunFault>& fault = run.fault;

    if (options.json) {
        nlohmann::ordered_json document;
        document["version"] = loaded->version;
        document["fault"] = nullptr;
        if (fault) {
            document["fault"] = RunFaultJson(*fault);
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
            << " ended in a fault: " << RunFaultWithCause(*fault) << ". No checks are given.\n";
    } else {
        PrintProjectHeading("design checks", options.project, loaded->version, options.settings,
                            record, out);
        PrintDesignChecks(checks, JudgeDesign(record, checks), options.failing, options.colour,
                          out);
    }
    return fault ? ExitEngineFault : ExitAnalysed;
}
