// Turns bytes into a design record and runs everything an analysis runs: the value checks, the
// engine, the compliance and exception lists, the results screen, the check table and the entire
// report on the recording surface. Each record must end in an input error, an engine fault, or
// results that are all finite and a report whose every sheet is drawn, and a plan drawn at
// finite places.

#include "compliance/design_checks.h"
#include "engine/tendon_size.h"
#include "input/record_values.h"
#include "output/results_run.h"
#include "plan/foundation_plan.h"
#include "reports/plan_drawing.h"
#include "reports/plan_sheet.h"
#include "reports/print_dialog.h"
#include "reports/recording_surface.h"
#include "reports/report_run.h"

#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <string>

namespace {

// A ribbed foundation that passes the value checks, which the bytes then change field by field,
// so that most records reach the engine.
DesignRecord BaseRecord() {
    DesignRecord r;
    r.ProjName = "Fuzz", r.Fpc = 3000, r.Ec = 1500000, r.UW = 145, r.Fpu = 270;
    r.TendType = 2, r.TendArea = 0.153;
    r.SlabRefType = 2, r.ForceShort = 0.05, r.ForceLong = 0.05;
    r.SlabThick = 4, r.RectWidth = 40, r.RectLength = 60;
    r.QS1 = 7, r.DS1 = 24, r.WS1 = 12, r.TS1 = 1, r.CS1 = 3, r.DS2 = 24, r.WS2 = 12;
    r.QL1 = 5, r.DL1 = 24, r.WL1 = 12, r.TL1 = 1, r.CL1 = 3, r.DL2 = 24, r.WL2 = 12;
    r.BeamSpacing = 1, r.SixFtRule = 1;
    r.SoilType = 0, r.ExpBearing = 2000, r.EmCenter = 5.5, r.EmEdge = 4, r.YmCenter = 2.5,
    r.YmEdge = 1.2, r.CompBearing = 1500, r.Settle = 1, r.Es = 1000;
    r.SGFC = 0.75, r.ULoad = 40, r.TotalLoad = 1500, r.DefCenter = 480, r.DefEdge = 960,
    r.DefSettle = 960, r.DefCLSettle = 480, r.Prestress = 15;
    r.LineLoad = 2000, r.DirLineLoad = "Long Direction", r.Ks = 100;
    return r;
}

void Fail(const char* what) {
    std::fprintf(stderr, "design run fuzzer: %s\n", what);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider bytes(data, size);
    DesignRecord record = BaseRecord();
    for (const DesignField& field : DesignRecordFields()) {
        if (bytes.remaining_bytes() == 0 || !bytes.ConsumeBool()) {
            continue;
        }
        switch (field.kind) {
        case FieldKind::Text: {
            // In capitals, so that the words a number that is not finite is printed as
            // ("Infinity", "NaN") can only come from a number.
            std::string text = bytes.ConsumeRandomLengthString(40);
            for (char& c : text) {
                c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
            }
            record.*field.text = text;
            break;
        }
        case FieldKind::Int16:
            record.*field.int16 = bytes.ConsumeIntegralInRange<std::int16_t>(-2, 40);
            break;
        case FieldKind::Real: {
            // Mostly a scaling of the sensible value, sometimes any double at all.
            const double old = record.*field.real;
            record.*field.real = bytes.ConsumeBool()
                                     ? old * bytes.ConsumeIntegralInRange<int>(0, 400) / 100.0
                                     : bytes.ConsumeFloatingPoint<double>();
            break;
        }
        }
    }
    const EngineSettings settings{bytes.ConsumeIntegralInRange<std::int16_t>(0, 1),
                                  bytes.ConsumeIntegralInRange<std::int16_t>(0, 1),
                                  bytes.ConsumeIntegralInRange<std::int16_t>(0, 1)};
    try {
        ApplyTendonSize(record);
    } catch (const ArithmeticFault&) {
        return 0;
    }
    if (FindRecordValueFault(record)) {
        return 0; // an input error: the program stops here with its message
    }
    ResultsRecord results;
    // The screen stays loaded from one analysis to the next, as in the program.
    static ResultsScreen screen = LoadResultsScreen();
    const ResultsRun run = AnalyseAndFillResults(settings, record, results, screen);
    if (run.fault && run.fault->place == RunFaultPlace::Stage) {
        return 0;
    }
    for (const ResultField& field : ResultsRecordFields()) {
        if (field.kind == FieldKind::Real && !std::isfinite(results.*field.real)) {
            Fail("a result is not finite");
        }
    }
    if (run.fault) {
        return 0; // the design exceptions, or a value too large to show, end the run as a fault
    }
    const CompliancePass& pass = run.pass;
    // The check table of the same results: every ratio a number, and a verdict that fails a
    // foundation exactly when one of its checks is not ok.
    const std::vector<DesignCheck> checks = DesignChecks(record, results);
    const DesignVerdict verdict = JudgeDesign(record, checks);
    bool ribbedOk = true;
    for (const DesignCheck& check : checks) {
        if (check.ratio && !std::isfinite(*check.ratio)) {
            Fail("a ratio of the check table is not finite");
        }
        if (check.foundation == Foundation::Ribbed && check.status != CheckStatus::Ok) {
            ribbedOk = false;
        }
    }
    if (verdict.ribbed.pass != ribbedOk) {
        Fail("the ribbed verdict does not follow its checks");
    }
    PrintJob job;
    job.pages = RangePages(PrintRange::Entire, record, {}, {});
    job.totalSheets = RangeSheetCount(PrintRange::Entire, record, {}, {});
    RecordingSurface surface;
    PrintReport(
        surface, job, record, results,
        {.projectPath = "fuzz.kvt", .RibbedOutCount = pass.RibbedOutCount, .engine = settings});
    // The print dialog counts a flag's sheets by "is 0", the pages draw them by "is 1", as the
    // report has always done; they agree for every flag the screens can set.
    const auto isSwitch = [](std::int16_t flag) { return flag == 0 || flag == 1; };
    const bool switchesOnly = isSwitch(record.SoilType) && isSwitch(record.CLSettleState) &&
                              isSwitch(record.FlatSlab) && isSwitch(record.LineLoadType);
    if (switchesOnly && static_cast<int>(surface.sheets().size()) != job.totalSheets) {
        Fail("the report drew another number of sheets than it counted");
    }
    for (const RecordedSheet& sheet : surface.sheets()) {
        for (const RecordedText& text : sheet.texts) {
            if (text.text.find("Infinity") != std::string::npos ||
                text.text.find("NaN") != std::string::npos) {
                Fail("a report text holds a number that is not finite");
            }
        }
    }
    // The plan of the analysed design, drawn on a sheet: every place on it a number.
    RecordingSurface planSheet;
    planSheet.BeginDocument();
    DrawPlanSheet(planSheet, PlanOf(record, results), PlanSheetTitle(record),
                  {720, 720, 14400, 10800}, SheetScale::Printed);
    for (const RecordedSheet& sheet : planSheet.sheets()) {
        for (const RecordedText& text : sheet.texts) {
            if (!std::isfinite(text.x) || !std::isfinite(text.y)) {
                Fail("a text of the plan stands at a place that is not finite");
            }
        }
        for (const RecordedLine& line : sheet.lines) {
            if (!std::isfinite(line.x1) || !std::isfinite(line.y1) || !std::isfinite(line.x2) ||
                !std::isfinite(line.y2)) {
                Fail("a line of the plan has an end that is not finite");
            }
        }
        for (const RecordedRectangle& area : sheet.rectangles) {
            if (!std::isfinite(area.x) || !std::isfinite(area.y) || !std::isfinite(area.width) ||
                !std::isfinite(area.height)) {
                Fail("a filled area of the plan is not finite");
            }
        }
    }
    return 0;
}
