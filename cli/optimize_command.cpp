#include "cli/optimize_command.h"

#include "cli/exit_status.h"
#include "cli/json_error.h"
#include "cli/progress_bar.h"
#include "cli/project_loading.h"
#include "cli/search_json.h"
#include "cli/search_listing.h"
#include "search/design_search.h"
#include "search/search_request_error.h"
#include "storage/design_file.h"
#include "storage/file_error.h"

#include <cmath>
#include <memory>
#include <ostream>

namespace {

// Searches of fewer candidates end too soon to need a progress bar.
constexpr std::int64_t ProgressBarFrom = 20'000;

// A price is a plain amount of money: not negative, and small enough that no cost of a
// foundation overflows.
constexpr double MaxPrice = 1e9;

void checkPrice(const std::optional<double>& price, const char* option) {
    if (price && !(*price >= 0 && *price <= MaxPrice)) {
        throw SearchRequestError(std::string(option) + " must be from 0 to 1,000,000,000");
    }
}

SearchRequest requestFor(const OptimizeOptions& options) {
    SearchRequest request;
    request.grid = ParseCandidateGrid(options.ranges);
    request.settings = options.settings;
    request.objective = options.objective;
    checkPrice(options.concretePrice, "--concrete-cost");
    checkPrice(options.tendonPrice, "--tendon-cost");
    if (options.objective == SearchObjective::Cost && !options.concretePrice &&
        !options.tendonPrice) {
        throw SearchRequestError("--objective cost needs --concrete-cost or --tendon-cost");
    }
    request.prices = {options.concretePrice.value_or(0), options.tendonPrice.value_or(0)};
    if (options.top < 1 || options.top > MaxBestDesigns) {
        throw SearchRequestError("--top must be from 1 to " + std::to_string(MaxBestDesigns));
    }
    request.best = static_cast<std::size_t>(options.top);
    if (options.threads < 1 || options.threads > MaxSearchThreads) {
        throw SearchRequestError("--threads must be from 1 to " + std::to_string(MaxSearchThreads));
    }
    return request;
}

} // namespace

int RunOptimizeCommand(const OptimizeOptions& options, std::ostream& out, std::ostream& err) {
    SearchRequest request;
    try {
        request = requestFor(options);
    } catch (const SearchRequestError& error) {
        err << "korvath3-cli optimize: " << error.what() << "\n";
        if (options.json) {
            PrintJsonError({ExitBadUsage, error.what(), ""}, out);
        }
        return ExitBadUsage;
    }

    CliError failure;
    std::optional<LoadedProject> loaded =
        LoadProject(options.project, options.defaults, err, &failure);
    if (!loaded) {
        if (options.json) {
            PrintJsonError(failure, out);
        }
        return ExitFileError;
    }
    request.project = loaded->record;

    SearchControl control;
    control.threads = options.threads;
    control.stop = options.stop;
    std::unique_ptr<ProgressBar> bar;
    if (options.progress && request.grid.count() >= ProgressBarFrom) {
        bar = std::make_unique<ProgressBar>(err, request.grid.count());
        control.progress = [&bar](std::int64_t tried) { bar->show(tried); };
    }
    const SearchOutcome outcome = RunDesignSearch(request, control);
    bar.reset();

    if (!options.output.empty()) {
        if (outcome.best.empty()) {
            err << "korvath3-cli optimize: no compliant design; " << options.output.string()
                << " is not written\n";
        } else {
            try {
                WriteDesignFile(options.output, AllSections,
                                CandidateProject(request, outcome.best.front().index));
            } catch (const FileError& error) {
                err << "korvath3-cli: Error Saving File - " << error.number() << ": "
                    << error.description() << " (" << options.output.string() << ")\n";
                if (options.json) {
                    PrintJsonError({error.number(), error.description(), options.output.string()},
                                   out);
                }
                return ExitFileError;
            }
        }
    }

    const SearchReportInput report{request, outcome, options.ranges,
                                   options.concretePrice || options.tendonPrice};
    if (options.json) {
        out << SearchOutcomeJson(report).dump(2) << '\n';
    } else {
        PrintSearchListing(options.project, report, out);
    }
    if (outcome.interrupted) {
        return ExitInterrupted;
    }
    return outcome.best.empty() ? ExitNoCompliantDesign : ExitAnalysed;
}
