// korvath3-cli: the analysis of a Korvath 3 project from a terminal, for batch use.

#include "cli/exit_status.h"
#include "cli/json_error.h"
#include "cli/optimize_command.h"
#include "cli/stderr_dialogs.h"
#include "cli/subcommands.h"
#include "shell/clock.h"
#include "shell/program_folder.h"
#include "shell/qt/settings_file_start.h"

#include <CLI/CLI.hpp>
#include <atomic>
#include <csignal>
#include <iostream>
#include <string>
#include <vector>

namespace {

// Reads the settings store as the desktop program does at its start, so that both work from
// the same options and default record. A value missing from the store is written with its
// default. A settings file that cannot serve is left as it is: the run takes the factory
// defaults and says so once on standard error.
ProgramSettings LoadProgramSettings() {
    StreamDialogs dialogs(std::cerr);
    SystemClock clock;
    ProgramSettings settings;
    SettingsFileStart start(dialogs, clock, ProgramFolder().string(), settings);
    return settings;
}

// The interrupt of the terminal (Ctrl-C) during a design search, which then ends with the best it
// has found. A signal handler can reach nothing but a lock-free flag of static storage: this is
// the program's one such flag, set only by the handler and read only by the search.
std::atomic<bool> searchInterrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void InterruptSearch(int) {
    searchInterrupted.store(true);
    // A second interrupt ends the program at once.
    std::signal(SIGINT, SIG_DFL);
}

// Runs the search with the interrupt caught, and puts the earlier handling back after it.
int RunInterruptibleSearch(OptimizeOptions& options) {
    options.stop = &searchInterrupted;
    const auto earlier = std::signal(SIGINT, InterruptSearch);
    const int status = RunOptimizeCommand(options, std::cout, std::cerr);
    std::signal(SIGINT, earlier == SIG_ERR ? SIG_DFL : earlier);
    return status;
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{"Korvath 3.0 - post-tensioned slabs on ground, from the command line"};
    app.require_subcommand(1);
    const std::vector<Subcommand> subcommands = {
        AddAnalyzeSubcommand(app),     AddCheckSubcommand(app),
        AddChecksSubcommand(app),      AddResultsSubcommand(app),
        AddReportSubcommand(app),      AddSketchSubcommand(app),
        AddPackageSubcommand(app),     AddUpgradeSubcommand(app),
        AddNewSubcommand(app),         AddOptimizeSubcommand(app, RunInterruptibleSearch),
        AddSensitivitySubcommand(app),
    };

    // Whether the command asked for JSON, so that even a failure to understand it is an object.
    bool wantsJson = false;
    for (int i = 1; i < argc; ++i) {
        wantsJson = wantsJson || std::string(argv[i]) == "--json";
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const int status = app.exit(error);
        if (status != 0 && wantsJson) {
            PrintJsonError({ExitBadUsage, error.what(), ""}, std::cout);
        }
        return status == 0 ? ExitAnalysed : ExitBadUsage;
    }

    const ProgramSettings settings = LoadProgramSettings();
    for (const Subcommand& subcommand : subcommands) {
        if (*subcommand.command) {
            return subcommand.run(settings);
        }
    }
    return ExitBadUsage;
}
