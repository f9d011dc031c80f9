// korvath3-cli: the analysis of a Korvath 3 project from a terminal, for batch use.

#include "cli/analyze_command.h"
#include "cli/check_command.h"
#include "cli/exit_status.h"
#include "cli/upgrade_command.h"

#include <CLI/CLI.hpp>
#include <cstdlib>
#include <iostream>
#include <unistd.h>

namespace {

// The options that `analyze` and `check` share: the project, JSON output, the program options
// of the analysis and the input checks.
void AddRunOptions(CLI::App& command, std::filesystem::path& project, bool& json,
                   EngineSettings& settings, bool& noCheck) {
    command.add_option("PROJECT", project, "Project file (.kvt)")->required();
    command.add_flag("--json", json, "Print one JSON object");
    command.add_option("--use-beta", settings.UseBeta, "Stresses from the force at Beta (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    command
        .add_option("--use-beam-only", settings.UseBeamOnly,
                    "Bearing on the beam bottoms alone (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    command
        .add_option("--show-dd", settings.ShowDD,
                    "Also the differential deflection analysis (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    command.add_flag("--no-check", noCheck,
                     "Run the analysis on the record as it stands, without input checks");
}

// Bold and red only on a terminal, and not when the user has asked for no colour.
bool ColourOnStandardOutput() {
    return isatty(STDOUT_FILENO) == 1 && std::getenv("NO_COLOR") == nullptr;
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{"Korvath 3.0 - post-tensioned slabs on ground, from the command line"};
    app.require_subcommand(1);

    AnalyzeOptions analyze;
    bool analyzeNoCheck = false;
    CLI::App* analyzeCommand =
        app.add_subcommand("analyze", "Analyse a project and print the results");
    AddRunOptions(*analyzeCommand, analyze.project, analyze.json, analyze.settings, analyzeNoCheck);

    CheckOptions check;
    bool checkNoCheck = false;
    CLI::App* checkCommand = app.add_subcommand(
        "check", "Analyse a project and print its PTI exceptions and design compliance");
    AddRunOptions(*checkCommand, check.project, check.json, check.settings, checkNoCheck);
    checkCommand->add_flag("--show-all", check.showAll, "List the values within their limits too");

    std::filesystem::path upgradeInput;
    std::filesystem::path upgradeOutput;
    CLI::App* upgradeCommand =
        app.add_subcommand("upgrade", "Write a project of any version in the current format");
    upgradeCommand->add_option("OLD", upgradeInput, "Project file of any version")->required();
    upgradeCommand->add_option("-o,--output", upgradeOutput, "New project file")->required();

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const int status = app.exit(error);
        return status == 0 ? ExitAnalysed : ExitBadUsage;
    }

    if (*analyzeCommand) {
        analyze.check = !analyzeNoCheck;
        return RunAnalyzeCommand(analyze, std::cout, std::cerr);
    }
    if (*checkCommand) {
        check.check = !checkNoCheck;
        check.colour = ColourOnStandardOutput();
        return RunCheckCommand(check, std::cout, std::cerr);
    }
    return RunUpgradeCommand(upgradeInput, upgradeOutput, std::cerr);
}
