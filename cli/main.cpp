// korvath3-cli: the analysis of a Korvath 3 project from a terminal, for batch use.

#include "cli/analyze_command.h"
#include "cli/exit_status.h"
#include "cli/upgrade_command.h"

#include <CLI/CLI.hpp>
#include <iostream>

int main(int argc, char** argv) {
    CLI::App app{"Korvath 3.0 - post-tensioned slabs on ground, from the command line"};
    app.require_subcommand(1);

    AnalyzeOptions analyze;
    bool noCheck = false;
    CLI::App* analyzeCommand =
        app.add_subcommand("analyze", "Analyse a project and print the results");
    analyzeCommand->add_option("PROJECT", analyze.project, "Project file (.kvt)")->required();
    analyzeCommand->add_flag("--json", analyze.json, "Print one JSON object");
    analyzeCommand
        ->add_option("--use-beta", analyze.settings.UseBeta,
                     "Stresses from the force at Beta (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    analyzeCommand
        ->add_option("--use-beam-only", analyze.settings.UseBeamOnly,
                     "Bearing on the beam bottoms alone (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    analyzeCommand
        ->add_option("--show-dd", analyze.settings.ShowDD,
                     "Also the differential deflection analysis (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    analyzeCommand->add_flag("--no-check", noCheck,
                             "Run the analysis on the record as it stands, without input checks");

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
        analyze.check = !noCheck;
        return RunAnalyzeCommand(analyze, std::cout, std::cerr);
    }
    return RunUpgradeCommand(upgradeInput, upgradeOutput, std::cerr);
}
