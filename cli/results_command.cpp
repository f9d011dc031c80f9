#include "cli/results_command.h"

#include "cli/exit_status.h"
#include "cli/input_check.h"
#include "cli/project_loading.h"
#include "cli/results_json.h"
#include "cli/results_listing.h"
#include "cli/results_summary.h"
#include "cli/run_fault.h"
#include "output/results_run.h"
#include "output/results_tabs.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>

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
    const ResultsRun run = AnalyseAndFillResults(options.settings, record, results, screen);
    const std::optional<RunFault>& fault = run.fault;
    if (!fault) {
        ArrangeResultsScreen(screen, record, ResultsScreenWidth);
    }

    if (options.json) {
        nlohmann::ordered_json document;
        document["version"] = loaded->version;
        document["fault"] = nullptr;
        document["tabs"] = nullptr;
        document["controls"] = nullptr;
        if (fault) {
            document["fault"] = RunFaultJson(*fault);
        } else {
            document["tabs"] = ResultTabsJson(screen);
            document["controls"] = ResultControlsJson(screen);
        }
        out << document.dump(2) << '\n';
    } else if (fault) {
        err << "korvath3-cli: the analysis of " << options.project.string()
            << " ended in a fault: " << RunFaultText(*fault) << ". No results are shown.\n";
    } else {
        PrintProjectHeading("results", options.project, loaded->version, options.settings, record,
                            out);
        PrintResultsScreen(screen, record.SoilType, record.CLSettleState, options.colour, out);
    }
    return fault ? ExitEngineFault : ExitAnalysed;
}
