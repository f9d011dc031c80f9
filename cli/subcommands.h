#pragma once

#include "cli/optimize_command.h"
#include "shell/program_settings.h"

#include <CLI/CLI.hpp>
#include <functional>

// A subcommand of korvath3-cli as the program's main runs it: the parsed subcommand, and what
// runs it once the settings store has been read. Each subcommand keeps its own options.
struct Subcommand {
    CLI::App* command = nullptr;
    std::function<int(const ProgramSettings&)> run;
};

// The subcommands, each added to `app` with its options. Output goes to standard output, notices
// and errors to standard error.
Subcommand AddAnalyzeSubcommand(CLI::App& app);
Subcommand AddCheckSubcommand(CLI::App& app);
Subcommand AddChecksSubcommand(CLI::App& app);
Subcommand AddResultsSubcommand(CLI::App& app);
Subcommand AddReportSubcommand(CLI::App& app);
Subcommand AddSketchSubcommand(CLI::App& app);
Subcommand AddUpgradeSubcommand(CLI::App& app);
Subcommand AddNewSubcommand(CLI::App& app);
// The search runs through `runSearch`, which may catch the terminal's interrupt around it.
Subcommand AddOptimizeSubcommand(CLI::App& app, std::function<int(OptimizeOptions&)> runSearch);
