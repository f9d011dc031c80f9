// korvath3-cli: the analysis of a Korvath 3 project from a terminal, for batch use.

#include "cli/analyze_command.h"
#include "cli/check_command.h"
#include "cli/exit_status.h"
#include "cli/json_error.h"
#include "cli/new_command.h"
#include "cli/optimize_command.h"
#include "cli/report_command.h"
#include "cli/results_command.h"
#include "cli/sketch_command.h"
#include "cli/stderr_dialogs.h"
#include "cli/upgrade_command.h"
#include "shell/program_folder.h"
#include "shell/qt/settings_file_start.h"

#include <CLI/CLI.hpp>
#include <QGuiApplication>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>
#include <thread>
#include <unistd.h>

namespace {

// The program options of an analysis given on the command line; those not given come from the
// settings store.
struct SettingsFlags {
    std::optional<std::int16_t> useBeta;
    std::optional<std::int16_t> useBeamOnly;
    std::optional<std::int16_t> showDD;

    EngineSettings over(const ProgramOptions& stored) const {
        return {useBeta.value_or(stored.UseBeta), useBeamOnly.value_or(stored.UseBeamOnly),
                showDD.value_or(stored.ShowDD)};
    }
};

// The options that `analyze` and `check` share: the project, JSON output, the program options
// of the analysis and the input checks.
void AddRunOptions(CLI::App& command, std::filesystem::path& project, bool& json,
                   SettingsFlags& flags, bool& noCheck) {
    command.add_option("PROJECT", project, "Project file (.kvt)")->required();
    command.add_flag("--json", json, "Print one JSON object");
    command
        .add_option("--use-beta", flags.useBeta,
                    "Stresses from the force at Beta (0 or 1); default from the settings")
        ->check(CLI::IsMember({0, 1}));
    command
        .add_option("--use-beam-only", flags.useBeamOnly,
                    "Bearing on the beam bottoms alone (0 or 1); default from the settings")
        ->check(CLI::IsMember({0, 1}));
    command
        .add_option("--show-dd", flags.showDD,
                    "Also the differential deflection analysis (0 or 1); default from the "
                    "settings")
        ->check(CLI::IsMember({0, 1}));
    command.add_flag("--no-check", noCheck,
                     "Run the analysis on the record as it stands, without input checks");
}

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

// Bold and red only on a terminal, and not when the user has asked for no colour.
bool ColourOnStandardOutput() {
    return isatty(STDOUT_FILENO) == 1 && std::getenv("NO_COLOR") == nullptr;
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{"Korvath 3.0 - post-tensioned slabs on ground, from the command line"};
    app.require_subcommand(1);

    AnalyzeOptions analyze;
    SettingsFlags analyzeFlags;
    bool analyzeNoCheck = false;
    CLI::App* analyzeCommand =
        app.add_subcommand("analyze", "Analyse a project and print the results");
    AddRunOptions(*analyzeCommand, analyze.project, analyze.json, analyzeFlags, analyzeNoCheck);

    CheckOptions check;
    SettingsFlags checkFlags;
    bool checkNoCheck = false;
    CLI::App* checkCommand = app.add_subcommand(
        "check", "Analyse a project and print its PTI exceptions and design compliance");
    AddRunOptions(*checkCommand, check.project, check.json, checkFlags, checkNoCheck);
    checkCommand->add_flag("--show-all", check.showAll, "List the values within their limits too");

    ResultsOptions results;
    SettingsFlags resultsFlags;
    bool resultsNoCheck = false;
    CLI::App* resultsCommand =
        app.add_subcommand("results", "Analyse a project and print the results screen, tab by tab");
    AddRunOptions(*resultsCommand, results.project, results.json, resultsFlags, resultsNoCheck);
    resultsCommand
        ->add_option("--show-all-ribbed", results.showAll.ShowAllRibbed,
                     "Display all values of the ribbed compliance list (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    resultsCommand
        ->add_option("--show-all-uniform", results.showAll.ShowAllUniform,
                     "Display all values of the uniform thickness compliance list (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    resultsCommand
        ->add_option("--show-all-lineload", results.showAll.ShowAllLineLoad,
                     "Display all values of the line load compliance list (0 or 1)")
        ->check(CLI::IsMember({0, 1}));

    ReportOptions report;
    SettingsFlags reportFlags;
    bool reportNoCheck = false;
    std::string reportRange = "default";
    std::optional<std::int16_t> reportColour;
    std::optional<std::int16_t> reportShowAll;
    CLI::App* reportCommand =
        app.add_subcommand("report", "Analyse a project and write its printed report as a PDF");
    reportCommand->add_option("PROJECT", report.project, "Project file (.kvt)")->required();
    reportCommand->add_option("-o,--output", report.output, "The PDF to write");
    reportCommand->add_flag("--json", report.json,
                            "Print every text and line of every sheet as JSON, instead of a PDF");
    reportCommand->add_option("--range", reportRange, "default, entire or selected")
        ->check(CLI::IsMember({"default", "entire", "selected"}));
    reportCommand
        ->add_option("--pages", report.pages,
                     "The pages of the selected range, 0 to 9, separated by commas")
        ->delimiter(',')
        ->check(CLI::Range(0, 9));
    reportCommand
        ->add_option("--color", reportColour,
                     "Items out of their limits in red (1) or in bold (0); default from the "
                     "settings")
        ->check(CLI::IsMember({0, 1}));
    reportCommand
        ->add_option("--show-all", reportShowAll,
                     "List the items within their limits too (0 or 1); default from the settings")
        ->check(CLI::IsMember({0, 1}));
    reportCommand->add_option("--font", report.font, "The report's font (Arial)");
    reportCommand
        ->add_option("--use-beta", reportFlags.useBeta,
                     "Stresses from the force at Beta (0 or 1); default from the settings")
        ->check(CLI::IsMember({0, 1}));
    reportCommand
        ->add_option("--use-beam-only", reportFlags.useBeamOnly,
                     "Bearing on the beam bottoms alone (0 or 1); default from the settings")
        ->check(CLI::IsMember({0, 1}));
    reportCommand
        ->add_option("--show-dd", reportFlags.showDD,
                     "Also the differential deflection analysis (0 or 1); default from the "
                     "settings")
        ->check(CLI::IsMember({0, 1}));
    reportCommand->add_flag("--no-check", reportNoCheck,
                            "Run the analysis on the record as it stands, without input checks");

    SketchOptions sketch;
    bool sketchNoCheck = false;
    CLI::App* sketchCommand = app.add_subcommand(
        "sketch", "Draw the plan and typical sections of a project as SVG, PNG or PDF");
    sketchCommand->add_option("PROJECT", sketch.project, "Project file (.kvt)")->required();
    sketchCommand->add_option("-o,--output", sketch.output,
                              "The drawing to write: FILE.svg, FILE.png or FILE.pdf");
    sketchCommand->add_flag("--json", sketch.json, "Print the plan's geometry as JSON instead");
    sketchCommand->add_flag("--no-check", sketchNoCheck,
                            "Draw the record as it stands, without input checks");

    std::filesystem::path upgradeInput;
    std::filesystem::path upgradeOutput;
    CLI::App* upgradeCommand =
        app.add_subcommand("upgrade", "Write a project of any version in the current format");
    upgradeCommand->add_option("OLD", upgradeInput, "Project file of any version")->required();
    upgradeCommand->add_option("-o,--output", upgradeOutput, "New project file")->required();

    std::string newKind;
    std::filesystem::path newOutput;
    CLI::App* newCommand =
        app.add_subcommand("new", "Write a new project from the default record of the settings");
    newCommand->add_option("--kind", newKind, "expansive, compressible or lineload")
        ->required()
        ->check(CLI::IsMember({"expansive", "compressible", "lineload"}));
    newCommand->add_option("-o,--output", newOutput, "New project file")->required();

    OptimizeOptions optimize;
    SettingsFlags optimizeFlags;
    std::string objective = "concrete";
    optimize.threads = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    CLI::App* optimizeCommand = app.add_subcommand(
        "optimize", "Search ranges of design fields for the lightest compliant foundation");
    optimizeCommand->add_option("PROJECT", optimize.project, "Project file (.kvt)")->required();
    optimizeCommand
        ->add_option("--vary", optimize.ranges,
                     "FIELD=FROM:TO[:STEP],... fields of the design record to vary (QS1, DS1, "
                     "WS1, TS1, SlabThick, ForceShort, ...); the step is 1 when not given")
        ->required()
        ->delimiter(',');
    optimizeCommand
        ->add_option("--objective", objective,
                     "Rank by the least concrete, tendons or cost (default concrete)")
        ->check(CLI::IsMember({"concrete", "tendons", "cost"}));
    optimizeCommand->add_option("--concrete-cost", optimize.concretePrice,
                                "Price of concrete per cubic yard");
    optimizeCommand->add_option("--tendon-cost", optimize.tendonPrice,
                                "Price of tendon per linear foot");
    optimizeCommand->add_option("--top", optimize.top, "How many of the best to list (10)");
    optimizeCommand->add_option("-o,--output", optimize.output,
                                "Write the best design as a project file");
    optimizeCommand->add_flag("--json", optimize.json, "Print one JSON object");
    optimizeCommand->add_option("--threads", optimize.threads,
                                "Threads that try candidates (default: one per core)");
    optimizeCommand
        ->add_option("--use-beta", optimizeFlags.useBeta,
                     "Stresses from the force at Beta (0 or 1); default from the settings")
        ->check(CLI::IsMember({0, 1}));
    optimizeCommand
        ->add_option("--use-beam-only", optimizeFlags.useBeamOnly,
                     "Bearing on the beam bottoms alone (0 or 1); default from the settings")
        ->check(CLI::IsMember({0, 1}));
    optimizeCommand
        ->add_option("--show-dd", optimizeFlags.showDD,
                     "Also the differential deflection analysis (0 or 1); default from the "
                     "settings")
        ->check(CLI::IsMember({0, 1}));

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
    if (*analyzeCommand) {
        analyze.check = !analyzeNoCheck;
        analyze.settings = analyzeFlags.over(settings.options);
        analyze.defaults = settings.defaults;
        return RunAnalyzeCommand(analyze, std::cout, std::cerr);
    }
    if (*checkCommand) {
        check.check = !checkNoCheck;
        check.settings = checkFlags.over(settings.options);
        check.defaults = settings.defaults;
        check.colour = ColourOnStandardOutput();
        return RunCheckCommand(check, std::cout, std::cerr);
    }
    if (*resultsCommand) {
        results.check = !resultsNoCheck;
        results.settings = resultsFlags.over(settings.options);
        results.defaults = settings.defaults;
        results.colour = ColourOnStandardOutput();
        return RunResultsCommand(results, std::cout, std::cerr);
    }
    if (*reportCommand) {
        if (report.output.empty() && !report.json) {
            std::cerr << "korvath3-cli report: --output is required (or --json)\n";
            return ExitBadUsage;
        }
        report.check = !reportNoCheck;
        report.settings = reportFlags.over(settings.options);
        report.defaults = settings.defaults;
        report.defaultPages = settings.options.DefaultPages;
        report.colour = reportColour.value_or(settings.options.PrintColor) == 1;
        report.showAll = reportShowAll.value_or(settings.options.PrintAll) == 1;
        report.range = reportRange == "entire"     ? PrintRange::Entire
                       : reportRange == "selected" ? PrintRange::Selected
                                                   : PrintRange::Default;
        // The report's fonts come from the desktop's font system, without a window.
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        // Qt's own notices (a missing runtime folder, ...) are no concern of a batch run.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        int qtArgc = 1;
        QGuiApplication fonts(qtArgc, argv);
        return RunReportCommand(report, std::cout, std::cerr);
    }
    if (*sketchCommand) {
        if (sketch.output.empty() == !sketch.json) {
            std::cerr << "korvath3-cli sketch: give either --output or --json\n";
            if (wantsJson) {
                PrintJsonError({ExitBadUsage, "give either --output or --json", ""}, std::cout);
            }
            return ExitBadUsage;
        }
        sketch.check = !sketchNoCheck;
        sketch.settings = settings.options.engineSettings();
        sketch.defaults = settings.defaults;
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        int qtArgc = 1;
        QGuiApplication fonts(qtArgc, argv);
        return RunSketchCommand(sketch, std::cout, std::cerr);
    }
    if (*optimizeCommand) {
        optimize.settings = optimizeFlags.over(settings.options);
        optimize.defaults = settings.defaults;
        optimize.objective = objective == "tendons" ? SearchObjective::Tendons
                             : objective == "cost"  ? SearchObjective::Cost
                                                    : SearchObjective::Concrete;
        optimize.progress = isatty(STDERR_FILENO) == 1;
        return RunInterruptibleSearch(optimize);
    }
    if (*newCommand) {
        const ProjectKind kind = newKind == "compressible" ? ProjectKind::Compressible
                                 : newKind == "lineload"   ? ProjectKind::LineLoad
                                                           : ProjectKind::Expansive;
        return RunNewCommand(kind, newOutput, settings.defaults, std::cerr);
    }
    return RunUpgradeCommand(upgradeInput, upgradeOutput, settings.defaults, std::cerr);
}
