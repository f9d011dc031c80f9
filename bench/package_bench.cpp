// The whole calculation package of each bundled example, from the analysis to the PDF file, as
// korvath3-cli package and the desktop's File menu write it.

#include "common/date_text.h"
#include "lifecycle/package_content.h"
#include "output/results_run.h"
#include "reports/qt/package_pdf.h"
#include "shell/load_settings.h"
#include "storage/design_file.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace {

void package(benchmark::State& state, const std::string& name) {
    const DesignRecord defaults = FirstStartDefaultRecord(LongDateText(2026, 11, 23));
    DesignRecord read = defaults;
    ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/" + name + ".kvt", AllSections, read,
                   defaults, nullptr);
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() /
        ("korvath3-package-bench-" + std::to_string(::getpid()) + ".pdf");
    PackageInfo info;
    info.firm = "Brellin Works Structural";
    info.license = "PE 12345";
    info.trace = {name + ".kvt", std::string(64, '0'), "November 25, 2026", "11:05:09 AM"};
    int sheets = 0;
    for (auto _ : state) {
        DesignRecord record = read;
        ResultsRecord results;
        ResultsScreen screen = LoadResultsScreen();
        std::optional<RunFault> fault = AnalyseAndFillResults({}, record, results, screen).fault;
        const std::vector<DesignCheck> checks = PackageChecks(record, results, fault);
        const PackageContent content = MakePackageContent(record, results, checks, fault, info);
        sheets = WritePackagePdf(file, content, PackagePages(content));
    }
    state.counters["sheets"] = sheets;
    std::filesystem::remove(file);
}

void BM_PackagePdf_ExpansiveRibbed(benchmark::State& state) {
    package(state, "expansive_ribbed");
}
void BM_PackagePdf_CompressibleEdgeDown(benchmark::State& state) {
    package(state, "compressible_edge_down");
}
void BM_PackagePdf_UniformLineLoad(benchmark::State& state) {
    package(state, "uniform_line_load");
}

} // namespace

BENCHMARK(BM_PackagePdf_ExpansiveRibbed)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PackagePdf_CompressibleEdgeDown)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PackagePdf_UniformLineLoad)->Unit(benchmark::kMillisecond);
