// The analysis of each bundled example, from the record read once.

#include "common/date_text.h"
#include "compliance/compliance_pass.h"
#include "engine/analysis_run.h"
#include "engine/tendon_size.h"
#include "shell/load_settings.h"
#include "storage/design_file.h"

#include <benchmark/benchmark.h>
#include <string>

namespace {

DesignRecord exampleRecord(const std::string& name) {
    const DesignRecord defaults = FirstStartDefaultRecord(LongDateText(2026, 11, 23));
    DesignRecord record = defaults;
    ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/" + name + ".kvt", AllSections, record,
                   defaults, nullptr);
    ApplyTendonSize(record);
    return record;
}

void analyse(benchmark::State& state, const std::string& name) {
    DesignRecord record = exampleRecord(name);
    ResultsRecord results;
    for (auto _ : state) {
        RunDesignEngine(EngineSettings{}, record, results);
        benchmark::DoNotOptimize(results);
    }
}

void BM_RunDesignEngine_ExpansiveRibbed(benchmark::State& state) {
    analyse(state, "expansive_ribbed");
}
void BM_RunDesignEngine_CompressibleEdgeDown(benchmark::State& state) {
    analyse(state, "compressible_edge_down");
}
void BM_RunDesignEngine_UniformLineLoad(benchmark::State& state) {
    analyse(state, "uniform_line_load");
}

} // namespace

BENCHMARK(BM_RunDesignEngine_ExpansiveRibbed);
BENCHMARK(BM_RunDesignEngine_CompressibleEdgeDown);
BENCHMARK(BM_RunDesignEngine_UniformLineLoad);

// The compliance and exception lists of the uniform example with every row shown: the most
// rows any example makes.
void BM_RunCompliancePass_UniformLineLoadShowAll(benchmark::State& state) {
    DesignRecord record = exampleRecord("uniform_line_load");
    ResultsRecord results;
    RunDesignEngine(EngineSettings{}, record, results);
    for (auto _ : state) {
        CompliancePass pass = RunCompliancePass(record, results, {1, 1, 1});
        benchmark::DoNotOptimize(pass);
    }
}
BENCHMARK(BM_RunCompliancePass_UniformLineLoadShowAll);
