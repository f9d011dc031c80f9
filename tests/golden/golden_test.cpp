// The command line's output for every example, byte for byte against the files beside this
// test. A change of layout, spacing or a single digit fails here, where a search for a phrase
// would pass. After a deliberate change, `make golden` writes the files anew (the environment
// variable K3_WRITE_GOLDEN), and the review reads the difference.

#include "cli/analyze_command.h"
#include "cli/check_command.h"
#include "cli/report_command.h"
#include "cli/results_command.h"
#include "shell/clock.h"
#include "shell/load_settings.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace {

const std::filesystem::path GoldenFolder = std::filesystem::path(K3_SOURCE_DIR) / "tests/golden";
const std::filesystem::path ExampleFolder = std::filesystem::path(K3_SOURCE_DIR) / "examples";

// The day and time of every run, so that a report's footer reads the same on any day.
class GoldenClock : public Clock {
  public:
    std::string TodayLongDate() const override { return "November 23, 2026"; }
    std::string TodayShortDate() const override { return "11/23/2026"; }
    std::string TimeOfDay() const override { return "3:05:09 PM"; }
};

// The record a fresh settings store gives a new project, on the fixed day.
DesignRecord GoldenDefaults() {
    return FirstStartDefaultRecord(GoldenClock().TodayLongDate());
}

// One command line as a call of its command, with the factory options of a fresh settings
// store and no colour, as a batch run writing to a file prints it.
struct GoldenCase {
    std::string file; // the golden file's name in the example's folder
    std::function<int(const std::filesystem::path&, std::ostream&, std::ostream&)> run;
};

std::vector<GoldenCase> GoldenCases() {
    const auto analyze = [](bool json) {
        return [json](const std::filesystem::path& project, std::ostream& out, std::ostream& err) {
            AnalyzeOptions options;
            options.project = project;
            options.json = json;
            options.defaults = GoldenDefaults();
            return RunAnalyzeCommand(options, out, err);
        };
    };
    const auto check = [](bool json, bool showAll) {
        return [json, showAll](const std::filesystem::path& project, std::ostream& out,
                               std::ostream& err) {
            CheckOptions options;
            options.project = project;
            options.json = json;
            options.showAll = showAll;
            options.defaults = GoldenDefaults();
            return RunCheckCommand(options, out, err);
        };
    };
    const auto results = [](bool json) {
        return [json](const std::filesystem::path& project, std::ostream& out, std::ostream& err) {
            ResultsOptions options;
            options.project = project;
            options.json = json;
            options.defaults = GoldenDefaults();
            return RunResultsCommand(options, out, err);
        };
    };
    const auto report = [](const std::filesystem::path& project, std::ostream& out,
                           std::ostream& err) {
        const GoldenClock clock;
        ReportOptions options;
        options.project = project;
        options.json = true;
        options.range = PrintRange::Entire;
        options.defaults = GoldenDefaults();
        options.clock = &clock;
        return RunReportCommand(options, out, err);
    };
    return {
        {"analyze.txt", analyze(false)},
        {"analyze.json", analyze(true)},
        {"check.txt", check(false, false)},
        {"check.json", check(true, false)},
        {"check-show-all.txt", check(false, true)},
        {"check-show-all.json", check(true, true)},
        {"results.txt", results(false)},
        {"results.json", results(true)},
        {"report-entire.json", report},
    };
}

std::string FileText(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The first line on which two texts differ, numbered from 1, with both versions of it.
std::string FirstDifference(const std::string& expected, const std::string& actual) {
    std::istringstream a(expected), b(actual);
    std::string lineA, lineB;
    for (int line = 1;; ++line) {
        const bool moreA = static_cast<bool>(std::getline(a, lineA));
        const bool moreB = static_cast<bool>(std::getline(b, lineB));
        if (!moreA && !moreB) {
            return "the texts differ only in their last line end";
        }
        if (!moreA || !moreB || lineA != lineB) {
            return "line " + std::to_string(line) + "\n  golden: " + (moreA ? lineA : "(end)") +
                   "\n  now:    " + (moreB ? lineB : "(end)");
        }
    }
}

class GoldenOutput : public testing::TestWithParam<std::string> {};

TEST_P(GoldenOutput, EveryCommandPrintsExactlyItsGoldenFile) {
    const std::string example = GetParam();
    // Run from the top of the source tree with the path a user types there, so that the heading
    // and the report's footer name the project alike on every machine.
    std::filesystem::current_path(K3_SOURCE_DIR);
    const std::filesystem::path project = std::filesystem::path("examples") / (example + ".kvt");
    const std::filesystem::path folder = GoldenFolder / example;
    const bool write = std::getenv("K3_WRITE_GOLDEN") != nullptr;
    for (const GoldenCase& golden : GoldenCases()) {
        SCOPED_TRACE(golden.file);
        std::ostringstream out, err;
        const int status = golden.run(project, out, err);
        EXPECT_EQ(status, 0) << err.str();
        const std::filesystem::path path = folder / golden.file;
        if (write) {
            std::filesystem::create_directories(folder);
            std::ofstream(path, std::ios::binary) << out.str();
            continue;
        }
        ASSERT_TRUE(std::filesystem::exists(path)) << path << " is missing: run make golden";
        const std::string expected = FileText(path);
        EXPECT_TRUE(expected == out.str()) << FirstDifference(expected, out.str());
    }
}

INSTANTIATE_TEST_SUITE_P(Examples, GoldenOutput,
                         testing::Values("expansive_ribbed", "compressible_edge_down",
                                         "uniform_line_load"));

// Every example has its golden files, and no folder is left of an example that is gone.
TEST(GoldenFiles, OneFolderPerExample) {
    std::vector<std::string> examples, folders;
    for (const auto& entry : std::filesystem::directory_iterator(ExampleFolder)) {
        if (entry.path().extension() == ".kvt") {
            examples.push_back(entry.path().stem().string());
        }
    }
    for (const auto& entry : std::filesystem::directory_iterator(GoldenFolder)) {
        if (entry.is_directory()) {
            folders.push_back(entry.path().filename().string());
        }
    }
    std::sort(examples.begin(), examples.end());
    std::sort(folders.begin(), folders.end());
    EXPECT_EQ(examples, folders);
}

} // namespace
