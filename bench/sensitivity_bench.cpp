// A soil sensitivity grid of 41 x 41 points on the expansive example: the center lift em and
// ym each from half to one and a half times the design value, as the desktop dialog opens it.
// On one thread, and on one thread per core (argument 0).

#include "common/date_text.h"
#include "search/sensitivity_grid.h"
#include "shell/load_settings.h"
#include "storage/design_file.h"

#include <benchmark/benchmark.h>
#include <string>
#include <thread>
#include <vector>

namespace {

DesignRecord expansiveExample() {
    const DesignRecord defaults = FirstStartDefaultRecord(LongDateText(2026, 11, 23));
    DesignRecord record = defaults;
    ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/expansive_ribbed.kvt", AllSections,
                   record, defaults, nullptr);
    return record;
}

void BM_Sensitivity_ExpansiveCenterLift41x41(benchmark::State& state) {
    const std::vector<std::string> ranges = {"EmCenter=2.75:8.25:0.1375",
                                             "YmCenter=1.25:3.75:0.0625"};
    SensitivityRequest request;
    request.project = expansiveExample();
    request.grid = ParseSensitivityGrid(ranges);
    SensitivityControl control;
    control.threads = state.range(0) > 0
                          ? static_cast<int>(state.range(0))
                          : static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    for (auto _ : state) {
        const SensitivityOutcome outcome = RunSensitivityGrid(request, control);
        benchmark::DoNotOptimize(outcome.points.data());
    }
    state.counters["points"] = static_cast<double>(request.grid.count());
    state.counters["threads"] = control.threads;
}

} // namespace

BENCHMARK(BM_Sensitivity_ExpansiveCenterLift41x41)
    ->Arg(1)
    ->Arg(0)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
