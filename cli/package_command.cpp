#include "cli/package_command.h"

#include "cli/checks_json.h"
#include "cli/exit_status.h"
#include "cli/file_digest.h"
#include "cli/input_check.h"
#include "cli/json_error.h"
#include "cli/project_loading.h"
#include "cli/run_fault.h"
#include "cli/sheets_json.h"
#include "lifecycle/package_content.h"
#include "lifecycle/package_study.h"
#include "output/results_run.h"
#include "reports/package_document.h"
#include "reports/qt/package_pdf.h"
#include "reports/recording_surface.h"
#include "search/search_request_error.h"
#include "storage/file_error.h"

#include <nlohmann/json.hpp>
#include <ostream>

int RunPackageCommand(const PackageOptions& options, std::ostream& out, std::ostream& err) {
    int failureStatus = ExitAnalysed;
    std::optional<LoadedProject> loaded = LoadCheckedProject(
        options.project, options.defaults, options.check, options.json, out, err, failureStatus);
    if (!loaded) {
        return failureStatus;
    }
    const std::optional<std::string> digest = FileSha256(options.project);
    if (!digest) {
        err << "korvath3-cli: the project file " << options.project.string()
            << " cannot be read again for its SHA-256. No package is written.\n";
        return ExitFileError;
    }
    DesignRecord& record = loaded->record;
    ResultsRecord results;
    ResultsScreen screen = LoadResultsScreen();
    const ResultsRun run = AnalyseAndFillResults(options.settings, record, results, screen);

    std::optional<RunFault> fault = run.fault;
    const std::vector<DesignCheck> checks = PackageChecks(record, results, fault);
    if (fault) {
        err << "korvath3-cli: the analysis of " << options.project.string()
            << " ended in a fault: " << RunFaultText(*fault)
            << ". The package holds only the page that says so.\n";
    }
    SystemClock systemClock;
    const Clock& clock = options.clock != nullptr ? *options.clock : systemClock;
    PackageInfo info;
    info.firm = options.firm;
    info.license = options.license;
    info.settings = options.settings;
    info.trace = {options.project.filename().string(), *digest, clock.TodayLongDate(),
                  clock.TimeOfDay()};
    const PackageContent content = MakePackageContent(record, results, checks, fault, info);
    std::vector<PackagePage> pages = PackagePages(content);
    if (!fault && !options.sensitivity.empty()) {
        // The study runs the project as it stands, after the package's own analysis.
        try {
            const SensitivityRun study = RunSensitivityRanges(loaded->record, options.settings,
                                                              options.sensitivity, options.threads);
            const auto place = pages.begin() + static_cast<std::ptrdiff_t>(StudyPagePlace(pages));
            pages.insert(place, SoilStudyPage(SoilStudyChartOf(study.request, study.outcome)));
        } catch (const SearchRequestError& error) {
            err << "korvath3-cli package: " << error.what() << '\n';
            if (options.json) {
                PrintJsonError({ExitBadUsage, error.what(), options.project.string()}, out);
            }
            return ExitBadUsage;
        }
    }
    const int status = fault ? ExitEngineFault : ExitAnalysed;

    if (options.json) {
        RecordingSurface surface;
        const int sheets = DrawPackage(surface, content, pages);
        nlohmann::ordered_json document;
        document["version"] = loaded->version;
        document["fault"] = fault ? RunFaultJson(*fault) : nlohmann::ordered_json(nullptr);
        if (fault) {
            document["verdict"] = nullptr;
            document["governing"] = nullptr;
        } else {
            nlohmann::ordered_json table;
            AddDesignChecksJson(checks, content.verdict, false, table);
            document["verdict"] = table["verdict"];
            document["governing"] = table["governing"];
        }
        document["sheets"] = sheets;
        document["pages"] = SheetsJson(surface, {LineStep(10), LineStep(12), LineStep(14)});
        out << document.dump(2) << '\n';
        return status;
    }
    int sheets = 0;
    try {
        sheets = WritePackagePdf(options.output, content, pages);
    } catch (const FileError& error) {
        err << "korvath3-cli: Error writing the calculation package - " << error.number() << ": "
            << error.description() << " (" << options.output.string() << ")\n";
        return ExitFileError;
    }
    out << "Wrote " << sheets << (sheets == 1 ? " sheet" : " sheets")
        << " of the calculation package to " << options.output.string() << '\n';
    return status;
}
