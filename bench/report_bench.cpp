// The entire report of each bundled example: drawn on the recording surface, and written as a
// PDF through Qt as the print dialog's "Save as PDF" and korvath3-cli report write it.

#include "common/date_text.h"
#include "engine/analysis_run.h"
#include "engine/tendon_size.h"
#include "output/results_screen.h"
#include "reports/print_dialog.h"
#include "reports/qt/pdf_report.h"
#include "reports/recording_surface.h"
#include "reports/report_run.h"
#include "shell/load_settings.h"
#include "storage/design_file.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

struct AnalysedExample {
    DesignRecord record;
    ResultsRecord results;
    PrintJob job;
    ReportSettings settings;
};

AnalysedExample Analyse(const std::string& name) {
    const DesignRecord defaults = FirstStartDefaultRecord(LongDateText(2026, 11, 23));
    AnalysedExample example{defaults, {}, {}, {}};
    ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/" + name + ".kvt", AllSections,
                   example.record, defaults, nullptr);
    ApplyTendonSize(example.record);
    RunDesignEngine(EngineSettings{}, example.record, example.results);
    ResultsScreen screen = LoadResultsScreen();
    const CompliancePass pass =
        FillResults(screen, example.record, example.results, EngineSettings{});
    example.job.pages = RangePages(PrintRange::Entire, example.record, {}, {});
    example.job.totalSheets = RangeSheetCount(PrintRange::Entire, example.record, {}, {});
    example.job.fontName = "Arial";
    example.job.timeOfDay = "3:05:09 PM";
    example.settings.projectPath = name + ".kvt";
    example.settings.RibbedOutCount = pass.RibbedOutCount;
    return example;
}

void record(benchmark::State& state, const std::string& name) {
    const AnalysedExample example = Analyse(name);
    for (auto _ : state) {
        RecordingSurface surface;
        PrintReport(surface, example.job, example.record, example.results, example.settings);
        benchmark::DoNotOptimize(surface);
    }
}

void pdf(benchmark::State& state, const std::string& name) {
    const AnalysedExample example = Analyse(name);
    const std::filesystem::path file = std::filesystem::temp_directory_path() /
                                       ("korvath3-bench-" + std::to_string(::getpid()) + ".pdf");
    for (auto _ : state) {
        WritePdfReport(file, example.job, example.record, example.results, example.settings);
    }
    state.counters["sheets"] = example.job.totalSheets;
    std::filesystem::remove(file);
}

void BM_RecordReport_ExpansiveRibbed(benchmark::State& state) {
    record(state, "expansive_ribbed");
}
void BM_RecordReport_CompressibleEdgeDown(benchmark::State& state) {
    record(state, "compressible_edge_down");
}
void BM_RecordReport_UniformLineLoad(benchmark::State& state) {
    record(state, "uniform_line_load");
}
void BM_PdfReport_ExpansiveRibbed(benchmark::State& state) {
    pdf(state, "expansive_ribbed");
}
void BM_PdfReport_CompressibleEdgeDown(benchmark::State& state) {
    pdf(state, "compressible_edge_down");
}
void BM_PdfReport_UniformLineLoad(benchmark::State& state) {
    pdf(state, "uniform_line_load");
}

} // namespace

BENCHMARK(BM_RecordReport_ExpansiveRibbed);
BENCHMARK(BM_RecordReport_CompressibleEdgeDown);
BENCHMARK(BM_RecordReport_UniformLineLoad);
BENCHMARK(BM_PdfReport_ExpansiveRibbed)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PdfReport_CompressibleEdgeDown)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PdfReport_UniformLineLoad)->Unit(benchmark::kMillisecond);
