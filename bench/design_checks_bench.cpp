// The check table and the verdict of each bundled example, from results analysed once: what the
// desktop's live verdict costs after each analysis of the values as typed.

#include "common/date_text.h"
#include "compliance/design_checks.h"
#include "engine/analysis_run.h"
#include "engine/tendon_size.h"
#include "shell/load_settings.h"
#include "storage/design_file.h"

#include <benchmark/benchmark.h>
#include <string>

namespace {

void judge(benchmark::State& state, const std::string& name) {
    const DesignRecord defaults = FirstStartDefaultRecord(LongDateText(2026, 11, 23));
    DesignRecord record = defaults;
    ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/" + name + ".kvt", AllSections, record,
                   defaults, nullptr);
    ApplyTendonSize(record);
    ResultsRecord results;
    RunDesignEngine(EngineSettings{}, record, results);
    for (auto _ : state) {
        const std::vector<DesignCheck> checks = DesignChecks(record, results);
        DesignVerdict verdict = JudgeDesign(record, checks);
        benchmark::DoNotOptimize(verdict);
    }
}

void BM_DesignChecks_ExpansiveRibbed(benchmark::State& state) {
    judge(state, "expansive_ribbed");
}
void BM_DesignChecks_CompressibleEdgeDown(benchmark::State& state) {
    judge(state, "compressible_edge_down");
}
void BM_DesignChecks_UniformLineLoad(benchmark::State& state) {
    judge(state, "uniform_line_load");
}

} // namespace

BENCHMARK(BM_DesignChecks_ExpansiveRibbed);
BENCHMARK(BM_DesignChecks_CompressibleEdgeDown);
BENCHMARK(BM_DesignChecks_UniformLineLoad);
