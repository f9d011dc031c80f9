// The results screen filled from each bundled example's analysis, on a screen loaded once, as
// the program does after every run; and the loading of the screen itself.

#include "common/date_text.h"
#include "engine/analysis_run.h"
#include "engine/tendon_size.h"
#include "output/results_screen.h"
#include "output/results_tabs.h"
#include "shell/load_settings.h"
#include "storage/design_file.h"

#include <benchmark/benchmark.h>
#include <string>

namespace {

void fill(benchmark::State& state, const std::string& name) {
    const DesignRecord defaults = FirstStartDefaultRecord(LongDateText(2026, 11, 23));
    DesignRecord record = defaults;
    ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/" + name + ".kvt", AllSections, record,
                   defaults, nullptr);
    ApplyTendonSize(record);
    ResultsRecord results;
    RunDesignEngine(EngineSettings{}, record, results);
    ResultsScreen screen = LoadResultsScreen();
    for (auto _ : state) {
        FillResults(screen, record, results, EngineSettings{});
        ArrangeResultsScreen(screen, record, ResultsScreenWidth);
        benchmark::DoNotOptimize(screen);
    }
}

void BM_FillResults_ExpansiveRibbed(benchmark::State& state) {
    fill(state, "expansive_ribbed");
}
void BM_FillResults_CompressibleEdgeDown(benchmark::State& state) {
    fill(state, "compressible_edge_down");
}
void BM_FillResults_UniformLineLoad(benchmark::State& state) {
    fill(state, "uniform_line_load");
}

void BM_LoadResultsScreen(benchmark::State& state) {
    for (auto _ : state) {
        ResultsScreen screen = LoadResultsScreen();
        benchmark::DoNotOptimize(screen);
    }
}

} // namespace

BENCHMARK(BM_FillResults_ExpansiveRibbed);
BENCHMARK(BM_FillResults_CompressibleEdgeDown);
BENCHMARK(BM_FillResults_UniformLineLoad);
BENCHMARK(BM_LoadResultsScreen);
