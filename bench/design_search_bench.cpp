// Candidates per second of a design search on the expansive example: on one thread, and on one
// thread per core (argument 0).

#include "common/date_text.h"
#include "search/design_search.h"
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

// Beam depths of both groups each way, the count of the first short group and its tendons: the
// question an engineer asks of a ribbed foundation. 6 x 6 x 6 x 6 x 3 x 3 = 11,664 candidates,
// most with two depths in a direction, so that the equivalent depth is bisected for. The slab
// tendons are for a force ratio of 0.25 ksi, where about one candidate in five is compliant and
// takes its place among the best and on the front.
void BM_DesignSearch_ExpansiveRibbed(benchmark::State& state) {
    const std::vector<std::string> ranges = {"DS1=20:30:2", "DS2=20:30:2", "DL1=20:30:2",
                                             "DL2=20:30:2", "QS1=4:6",     "TS1=1:3"};
    SearchRequest request;
    request.project = expansiveExample();
    request.project.ForceShort = 0.25;
    request.project.ForceLong = 0.25;
    request.grid = ParseCandidateGrid(ranges);
    SearchControl control;
    control.threads = state.range(0) > 0
                          ? static_cast<int>(state.range(0))
                          : static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    std::int64_t tried = 0;
    for (auto _ : state) {
        const SearchOutcome outcome = RunDesignSearch(request, control);
        tried += outcome.tried;
        benchmark::DoNotOptimize(outcome.best);
    }
    state.counters["candidates"] =
        benchmark::Counter(static_cast<double>(tried), benchmark::Counter::kIsRate);
    state.counters["threads"] = control.threads;
}

} // namespace

BENCHMARK(BM_DesignSearch_ExpansiveRibbed)
    ->Arg(1)
    ->Arg(0)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
