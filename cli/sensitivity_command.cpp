#include "cli/sensitivity_command.h"

#include "cli/exit_status.h"
#include "cli/input_check.h"
#include "cli/json_error.h"
#include "cli/optimize_command.h"
#include "cli/project_loading.h"
#include "cli/sensitivity_json.h"
#include "cli/sensitivity_listing.h"
#include "search/search_request_error.h"
#include "search/sensitivity_grid.h"

#include <ostream>

int RunSensitivityCommand(const SensitivityOptions& options, std::ostream& out, std::ostream& err) {
    SensitivityRequest request;
    try {
        request.grid = ParseSensitivityGrid(options.ranges);
        if (options.threads < 1 || options.threads > MaxSearchThreads) {
            throw SearchRequestError("--threads must be from 1 to " +
                                     std::to_string(MaxSearchThreads));
        }
    } catch (const SearchRequestError& error) {
        err << "korvath3-cli sensitivity: " << error.what() << "\n";
        if (options.json) {
            PrintJsonError({ExitBadUsage, error.what(), ""}, out);
        }
        return ExitBadUsage;
    }

    int failureStatus = ExitAnalysed;
    const std::optional<LoadedProject> loaded = LoadCheckedProject(
        options.project, options.defaults, true, options.json, out, err, failureStatus);
    if (!loaded) {
        return failureStatus;
    }
    request.project = loaded->record;
    request.settings = options.settings;

    SensitivityControl control;
    control.threads = options.threads;
    const SensitivityOutcome outcome = RunSensitivityGrid(request, control);

    if (options.json) {
        out << SensitivityOutcomeJson(loaded->version, request, outcome).dump(2) << '\n';
    } else {
        PrintSensitivityListing(options.project, loaded->version, request, outcome, out);
    }
    return outcome.design.fault ? ExitEngineFault : ExitAnalysed;
}
