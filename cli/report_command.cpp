#include "cli/report_command.h"

#include "cli/exit_status.h"
#include "cli/input_check.h"
#include "cli/project_loading.h"
#include "cli/run_fault.h"
#include "cli/stderr_dialogs.h"
#include "output/results_run.h"
#include "reports/page_frame.h"
#include "reports/qt/pdf_report.h"
#include "reports/recording_surface.h"
#include "reports/report_run.h"
#include "shell/clock.h"
#include "storage/file_error.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace {

// The messages on the error stream, the last one kept for the JSON of a failure.
class RememberingDialogs : public StreamDialogs {
  public:
    using StreamDialogs::StreamDialogs;
    void ShowMessage(const MessageRequest& message) override {
        StreamDialogs::ShowMessage(message);
        last = message.text;
    }
    std::string last;
};

bool IsRed(Colour colour) {
    return colour.red == 255 && colour.green == 0 && colour.blue == 0;
}

// The heights of "Bg" at 10, 12 and 14 point as a page measures them on the recording surface,
// whose metrics are the same on every sheet.
nlohmann::ordered_json LineHeightsJson(const DesignRecord& record, const ResultsRecord& results,
                                       const std::string& fontName) {
    RecordingSurface scratch;
    PageContext page{scratch, record, results};
    page.fontName = fontName;
    const LineHeights heights = MeasureLineHeights(page);
    return {heights.points10, heights.points12, heights.points14};
}

// Every sheet as the recording surface kept it: texts with their place and style in drawing
// order, and lines.
nlohmann::ordered_json SheetsJson(const RecordingSurface& surface,
                                  const nlohmann::ordered_json& lineHeights) {
    nlohmann::ordered_json sheets = nlohmann::ordered_json::array();
    for (const RecordedSheet& sheet : surface.sheets()) {
        nlohmann::ordered_json texts = nlohmann::ordered_json::array();
        for (const RecordedText& t : sheet.texts) {
            texts.push_back({{"x", t.x},
                             {"y", t.y},
                             {"text", t.text},
                             {"size", t.size},
                             {"bold", t.bold},
                             {"underline", t.underline},
                             {"red", IsRed(t.colour)}});
        }
        nlohmann::ordered_json lines = nlohmann::ordered_json::array();
        for (const RecordedLine& l : sheet.lines) {
            lines.push_back(
                {{"x1", l.x1}, {"y1", l.y1}, {"x2", l.x2}, {"y2", l.y2}, {"width", l.width}});
        }
        sheets.push_back({{"lineHeights", lineHeights},
                          {"texts", std::move(texts)},
                          {"lines", std::move(lines)}});
    }
    return sheets;
}

// The report as JSON when no sheet is drawn: after a fault, or with nothing to print.
nlohmann::ordered_json EmptyReportJson(int version) {
    nlohmann::ordered_json document;
    document["version"] = version;
    document["fault"] = nullptr;
    document["warning"] = nullptr;
    document["sheets"] = 0;
    document["pages"] = nlohmann::ordered_json::array();
    return document;
}

// What the error stream says of a fault, as the report has always said it.
std::string ReportFaultText(const std::string& project, const RunFault& fault) {
    if (fault.place == RunFaultPlace::DesignExceptions) {
        return "korvath3-cli: the design exceptions of " + project +
               " ended in a fault: " + FaultKindName(fault.kind) +
               " in the beam depth ratio. No report is written.\n";
    }
    return "korvath3-cli: the analysis of " + project +
           " ended in a fault: " + RunFaultText(fault) + ". No report is written.\n";
}

} // namespace

int RunReportCommand(const ReportOptions& options, std::ostream& out, std::ostream& err) {
    int failureStatus = ExitAnalysed;
    std::optional<LoadedProject> loaded = LoadCheckedProject(
        options.project, options.defaults, options.check, options.json, out, err, failureStatus);
    if (!loaded) {
        return failureStatus;
    }
    DesignRecord& record = loaded->record;
    ResultsRecord results;
    ResultsScreen screen = LoadResultsScreen();
    const ResultsRun run = AnalyseAndFillResults(options.settings, record, results, screen);
    if (run.fault) {
        err << ReportFaultText(options.project.string(), *run.fault);
        if (options.json) {
            nlohmann::ordered_json document = EmptyReportJson(loaded->version);
            document["fault"] = RunFaultJson(*run.fault);
            out << document.dump(2) << '\n';
        }
        return ExitEngineFault;
    }
    const CompliancePass& pass = run.pass;

    PrintDialog dialog = LoadPrintDialog();
    ChoosePrintRange(dialog, record, options.range);
    for (const int page : options.pages) {
        Control& box = dialog.form[ArrayName("Check1", page)];
        box.checked = box.enabled;
    }
    dialog.form["cbbReportFont"].text = options.font;
    RememberingDialogs dialogs(err);
    SystemClock systemClock;
    const Clock& clock = options.clock != nullptr ? *options.clock : systemClock;
    std::optional<PrintJob> job = PressPrint(dialog, record, options.defaultPages, dialogs, clock);
    // Nothing to print: the report's object says why in "warning", and in "error" as every
    // failure of the command line does.
    const auto nothingToPrint = [&](const std::string& warning) {
        if (options.json) {
            nlohmann::ordered_json document = EmptyReportJson(loaded->version);
            document["warning"] = warning;
            document["error"] = {{"number", ExitNothingToPrint},
                                 {"message", warning},
                                 {"path", options.project.string()}};
            out << document.dump(2) << '\n';
        }
        return ExitNothingToPrint;
    };
    if (!job) {
        return nothingToPrint(dialogs.last);
    }
    if (job->pages.empty()) {
        const std::string warning = "the range holds no page to print; nothing is written";
        err << "korvath3-cli: Print Warning: " << warning << '\n';
        return nothingToPrint(warning);
    }

    ReportSettings settings;
    settings.projectPath = options.project.string();
    settings.colour = options.colour;
    settings.showAll = options.showAll;
    settings.RibbedOutCount = pass.RibbedOutCount;
    settings.engine = options.settings;
    if (options.json) {
        RecordingSurface surface;
        PrintReport(surface, *job, record, results, settings);
        nlohmann::ordered_json document = EmptyReportJson(loaded->version);
        document["sheets"] = surface.sheets().size();
        document["pages"] = SheetsJson(surface, LineHeightsJson(record, results, job->fontName));
        out << document.dump(2) << '\n';
        return ExitAnalysed;
    }
    try {
        WritePdfReport(options.output, *job, record, results, settings);
    } catch (const FileError& error) {
        err << "korvath3-cli: Error writing report - " << error.number() << ": "
            << error.description() << " (" << options.output.string() << ")\n";
        return ExitFileError;
    }
    out << "Wrote " << job->totalSheets << (job->totalSheets == 1 ? " sheet" : " sheets")
        << " of the report to " << options.output.string() << '\n';
    return ExitAnalysed;
}
