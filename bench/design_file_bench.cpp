// Reading and writing a whole project file.

#include "common/date_text.h"
#include "shell/load_settings.h"
#include "storage/design_file.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>

namespace {

const std::string examplePath = std::string(K3_SOURCE_DIR) + "/examples/expansive_ribbed.kvt";

void BM_ReadDesignFile(benchmark::State& state) {
    const DesignRecord defaults = FirstStartDefaultRecord(LongDateText(2026, 11, 23));
    for (auto _ : state) {
        DesignRecord record = defaults;
        benchmark::DoNotOptimize(
            ReadDesignFile(examplePath, AllSections, record, defaults, nullptr));
    }
}

void BM_WriteDesignFile(benchmark::State& state) {
    const DesignRecord defaults = FirstStartDefaultRecord(LongDateText(2026, 11, 23));
    DesignRecord record = defaults;
    ReadDesignFile(examplePath, AllSections, record, defaults, nullptr);
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "korvath3-bench";
    std::filesystem::create_directories(folder);
    const std::filesystem::path target = folder / "written.kvt";
    for (auto _ : state) {
        WriteDesignFile(target, AllSections, record);
    }
    std::filesystem::remove_all(folder);
}

} // namespace

BENCHMARK(BM_ReadDesignFile);
BENCHMARK(BM_WriteDesignFile);
