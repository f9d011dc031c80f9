#include "cli/subcommands.h"

#include "cli/analysis_flags.h"
#include "cli/analyze_command.h"
#include "cli/check_command.h"
#include "cli/checks_command.h"
#include "cli/exit_status.h"
#include "cli/json_error.h"
#include "cli/new_command.h"
#include "cli/report_command.h"
#include "cli/results_command.h"
#include "cli/sketch_command.h"
#include "cli/upgrade_command.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <unistd.h>

namespace {

// Bold and red only on a terminal, and not when the user has asked for no colour.
bool ColourOnStandardOutput() {
    return isatty(STDOUT_FILENO) == 1 && std::getenv("NO_COLOR") == nullptr;
}

// The options of a subcommand that analyses a project: its own, the program options of the
// analysis and --no-check.
template <typename Options> struct AnalysingLine {
    Options options;
    AnalysisFlags flags;
    bool noCheck = false;

    // The options with the settings store's values for what the command line left out.
    Options over(const ProgramSettings& settings) const {
        Options ready = options;
        ready.check = !noCheck;
        ready.settings = flags.over(settings.options);
        ready.defaults = settings.defaults;
        return ready;
    }
};

// Runs a command that measures or draws text through the desktop's font system, without a
// window: the report and the drawings.
int WithFonts(const std::function<int()>& command) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Qt's own notices (a missing runtime folder, ...) are no concern of a batch run.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    char programName[] = "korvath3-cli";
    char* qtArgv[] = {programName, nullptr};
    int qtArgc = 1;
    QGuiApplication fonts(qtArgc, qtArgv);
    return command();
}

} // namespace

Subcommand AddAnalyzeSubcommand(CLI::App& app) {
    auto line = std::make_shared<AnalysingLine<AnalyzeOptions>>();
    CLI::App* command = app.add_subcommand("analyze", "Analyse a project and print the results");
    AddProjectAndJson(*command, line->options.project, line->options.json);
    AddAnalysisOptions(*command, line->flags);
    AddNoCheckFlag(*command, line->noCheck);
    return {command, [line](const ProgramSettings& settings) {
                return RunAnalyzeCommand(line->over(settings), std::cout, std::cerr);
            }};
}

Subcommand AddCheckSubcommand(CLI::App& app) {
    auto line = std::make_shared<AnalysingLine<CheckOptions>>();
    CLI::App* command = app.add_subcommand(
        "check", "Analyse a project and print its PTI exceptions and design compliance");
    AddProjectAndJson(*command, line->options.project, line->options.json);
    AddAnalysisOptions(*command, line->flags);
    AddNoCheckFlag(*command, line->noCheck);
    command->add_flag("--show-all", line->options.showAll,
                      "List the values within their limits too");
    return {command, [line](const ProgramSettings& settings) {
                CheckOptions options = line->over(settings);
                options.colour = ColourOnStandardOutput();
                return RunCheckCommand(options, std::cout, std::cerr);
            }};
}

Subcommand AddChecksSubcommand(CLI::App& app) {
    auto line = std::make_shared<AnalysingLine<ChecksOptions>>();
    CLI::App* command = app.add_subcommand(
        "checks", "Analyse a project and print every check with its demand, limit and ratio, and "
                  "the verdict of each foundation");
    AddProjectAndJson(*command, line->options.project, line->options.json);
    AddAnalysisOptions(*command, line->flags);
    AddNoCheckFlag(*command, line->noCheck);
    command->add_flag("--failing", line->options.failing, "List only the checks that are not ok");
    return {command, [line](const ProgramSettings& settings) {
                ChecksOptions options = line->over(settings);
                options.colour = ColourOnStandardOutput();
                return RunChecksCommand(options, std::cout, std::cerr);
            }};
}

Subcommand AddResultsSubcommand(CLI::App& app) {
    auto line = std::make_shared<AnalysingLine<ResultsOptions>>();
    CLI::App* command =
        app.add_subcommand("results", "Analyse a project and print the results screen, tab by tab");
    AddProjectAndJson(*command, line->options.project, line->options.json);
    AddAnalysisOptions(*command, line->flags);
    AddNoCheckFlag(*command, line->noCheck);
    ShowAllFlags& showAll = line->options.showAll;
    command
        ->add_option("--show-all-ribbed", showAll.ShowAllRibbed,
                     "Display all values of the ribbed compliance list (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    command
        ->add_option("--show-all-uniform", showAll.ShowAllUniform,
                     "Display all values of the uniform thickness compliance list (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    command
        ->add_option("--show-all-lineload", showAll.ShowAllLineLoad,
                     "Display all values of the line load compliance list (0 or 1)")
        ->check(CLI::IsMember({0, 1}));
    return {command, [line](const ProgramSettings& settings) {
                ResultsOptions options = line->over(settings);
                options.colour = ColourOnStandardOutput();
                return RunResultsCommand(options, std::cout, std::cerr);
            }};
}

Subcommand AddReportSubcommand(CLI::App& app) {
    struct ReportLine : AnalysingLine<ReportOptions> {
        std::string range = "default";
        std::optional<std::int16_t> colour;
        std::optional<std::int16_t> showAll;
    };
    auto line = std::make_shared<ReportLine>();
    ReportOptions& report = line->options;
    CLI::App* command =
        app.add_subcommand("report", "Analyse a project and write its printed report as a PDF");
    command->add_option("PROJECT", report.project, "Project file (.kvt)")->required();
    command->add_option("-o,--output", report.output, "The PDF to write");
    command->add_flag("--json", report.json,
                      "Print every text and line of every sheet as JSON, instead of a PDF");
    command->add_option("--range", line->range, "default, entire or selected")
        ->check(CLI::IsMember({"default", "entire", "selected"}));
    command
        ->add_option("--pages", report.pages,
                     "The pages of the selected range, 0 to 9, separated by commas")
        ->delimiter(',')
        ->check(CLI::Range(0, 9));
    command
        ->add_option("--color", line->colour,
                     "Items out of their limits in red (1) or in bold (0); default from the "
                     "settings")
        ->check(CLI::IsMember({0, 1}));
    command
        ->add_option("--show-all", line->showAll,
                     "List the items within their limits too (0 or 1); default from the settings")
        ->check(CLI::IsMember({0, 1}));
    command->add_option("--font", report.font, "The report's font (Arial)");
    AddAnalysisOptions(*command, line->flags);
    AddNoCheckFlag(*command, line->noCheck);
    return {command, [line](const ProgramSettings& settings) {
                if (line->options.output.empty() && !line->options.json) {
                    std::cerr << "korvath3-cli report: --output is required (or --json)\n";
                    return static_cast<int>(ExitBadUsage);
                }
                ReportOptions options = line->over(settings);
                options.defaultPages = settings.options.DefaultPages;
                options.colour = line->colour.value_or(settings.options.PrintColor) == 1;
                options.showAll = line->showAll.value_or(settings.options.PrintAll) == 1;
                options.range = line->range == "entire"     ? PrintRange::Entire
                                : line->range == "selected" ? PrintRange::Selected
                                                            : PrintRange::Default;
                return WithFonts(
                    [&options] { return RunReportCommand(options, std::cout, std::cerr); });
            }};
}

Subcommand AddSketchSubcommand(CLI::App& app) {
    struct SketchLine {
        SketchOptions options;
        bool noCheck = false;
    };
    auto line = std::make_shared<SketchLine>();
    SketchOptions& sketch = line->options;
    CLI::App* command = app.add_subcommand(
        "sketch", "Draw the plan and typical sections of a project as SVG, PNG or PDF");
    command->add_option("PROJECT", sketch.project, "Project file (.kvt)")->required();
    command->add_option("-o,--output", sketch.output,
                        "The drawing to write: FILE.svg, FILE.png or FILE.pdf");
    command->add_flag("--json", sketch.json, "Print the plan's geometry as JSON instead");
    command->add_flag("--no-check", line->noCheck,
                      "Draw the record as it stands, without input checks");
    return {
        command, [line](const ProgramSettings& settings) {
            SketchOptions options = line->options;
            if (options.output.empty() == !options.json) {
                std::cerr << "korvath3-cli sketch: give either --output or --json\n";
                if (options.json) {
                    PrintJsonError({ExitBadUsage, "give either --output or --json", ""}, std::cout);
                }
                return static_cast<int>(ExitBadUsage);
            }
            options.check = !line->noCheck;
            options.settings = settings.options.engineSettings();
            options.defaults = settings.defaults;
            return WithFonts(
                [&options] { return RunSketchCommand(options, std::cout, std::cerr); });
        }};
}

Subcommand AddUpgradeSubcommand(CLI::App& app) {
    struct UpgradeLine {
        std::filesystem::path input;
        std::filesystem::path output;
    };
    auto line = std::make_shared<UpgradeLine>();
    CLI::App* command =
        app.add_subcommand("upgrade", "Write a project of any version in the current format");
    command->add_option("OLD", line->input, "Project file of any version")->required();
    command->add_option("-o,--output", line->output, "New project file")->required();
    return {command, [line](const ProgramSettings& settings) {
                return RunUpgradeCommand(line->input, line->output, settings.defaults, std::cerr);
            }};
}

Subcommand AddNewSubcommand(CLI::App& app) {
    struct NewLine {
        std::string kind;
        std::filesystem::path output;
    };
    auto line = std::make_shared<NewLine>();
    CLI::App* command =
        app.add_subcommand("new", "Write a new project from the default record of the settings");
    command->add_option("--kind", line->kind, "expansive, compressible or lineload")
        ->required()
        ->check(CLI::IsMember({"expansive", "compressible", "lineload"}));
    command->add_option("-o,--output", line->output, "New project file")->required();
    return {command, [line](const ProgramSettings& settings) {
                const ProjectKind kind = line->kind == "compressible" ? ProjectKind::Compressible
                                         : line->kind == "lineload"   ? ProjectKind::LineLoad
                                                                      : ProjectKind::Expansive;
                return RunNewCommand(kind, line->output, settings.defaults, std::cerr);
            }};
}

Subcommand AddOptimizeSubcommand(CLI::App& app, std::function<int(OptimizeOptions&)> runSearch) {
    struct OptimizeLine {
        OptimizeOptions options;
        AnalysisFlags flags;
        std::string objective = "concrete";
    };
    auto line = std::make_shared<OptimizeLine>();
    OptimizeOptions& optimize = line->options;
    optimize.threads = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    CLI::App* command = app.add_subcommand(
        "optimize", "Search ranges of design fields for the lightest compliant foundation");
    command->add_option("PROJECT", optimize.project, "Project file (.kvt)")->required();
    command
        ->add_option("--vary", optimize.ranges,
                     "FIELD=FROM:TO[:STEP],... fields of the design record to vary (QS1, DS1, "
                     "WS1, TS1, SlabThick, ForceShort, ...); the step is 1 when not given")
        ->required()
        ->delimiter(',');
    command
        ->add_option("--objective", line->objective,
                     "Rank by the least concrete, tendons or cost (default concrete)")
        ->check(CLI::IsMember({"concrete", "tendons", "cost"}));
    command->add_option("--concrete-cost", optimize.concretePrice,
                        "Price of concrete per cubic yard");
    command->add_option("--tendon-cost", optimize.tendonPrice, "Price of tendon per linear foot");
    command->add_option("--top", optimize.top, "How many of the best to list (10)");
    command->add_option("-o,--output", optimize.output, "Write the best design as a project file");
    command->add_flag("--json", optimize.json, "Print one JSON object");
    command->add_option("--threads", optimize.threads,
                        "Threads that try candidates (default: one per core)");
    AddAnalysisOptions(*command, line->flags);
    return {command, [line, runSearch](const ProgramSettings& settings) {
                OptimizeOptions options = line->options;
                options.settings = line->flags.over(settings.options);
                options.defaults = settings.defaults;
                options.objective = line->objective == "tendons" ? SearchObjective::Tendons
                                    : line->objective == "cost"  ? SearchObjective::Cost
                                                                 : SearchObjective::Concrete;
                options.progress = isatty(STDERR_FILENO) == 1;
                return runSearch(options);
            }};
}
