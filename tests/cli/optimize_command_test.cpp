#include "cli/analyze_command.h"
#include "cli/check_command.h"
#include "cli/optimize_command.h"
#include "cli/progress_bar.h"
#include "storage/design_file.h"
#include "tests/cli/cli_test_support.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>

namespace {

struct CommandRun {
    int status;
    std::string out;
    std::string err;
};

// The expansive example with little soil movement, 4000 psi concrete, two tendons in each beam,
// twenty slab tendons each way, every beam 24 in deep and the average beam spacing without the
// six foot rule, written to `path`. Over 2 to 10 short beams of 6 to 16 in the manual's rules
// alone decide compliance: widths from 8 to 14 in, spacings 60 / (QS1 + 1) from 6 to 15 ft.
void WriteWidthAndCountBase(const std::filesystem::path& path) {
    DesignRecord record = Defaults();
    ReadDesignFile(ExamplePath("expansive_ribbed.kvt"), AllSections, record, Defaults(), nullptr);
    record.Fpc = 4000;
    record.YmCenter = 0.8, record.YmEdge = 0.4;
    record.SlabRefType = 0, record.NumSlabTenShort = 20, record.NumSlabTenLong = 20;
    record.TS1 = 2, record.TS2 = 2, record.TL1 = 2, record.TL2 = 2;
    record.DS1 = 24, record.DS2 = 24, record.DL1 = 24, record.DL2 = 24;
    record.BeamSpacing = 1, record.SixFtRule = 0;
    WriteDesignFile(path, AllSections, record);
}

OptimizeOptions optionsFor(const std::filesystem::path& project, std::vector<std::string> ranges) {
    OptimizeOptions options;
    options.project = project;
    options.ranges = std::move(ranges);
    options.defaults = Defaults();
    options.threads = 2;
    return options;
}

CommandRun optimize(const OptimizeOptions& options) {
    std::ostringstream out, err;
    const int status = RunOptimizeCommand(options, out, err);
    return {status, out.str(), err.str()};
}

nlohmann::json runJson(const CommandRun& run) {
    return nlohmann::json::parse(run.out);
}

} // namespace

// Three 8 in beams: (800 + 600 + 34 x 48 x 20 / 144) / 27 = 60.2469 yd3 and 30 x 40 + 32 x 60 +
// 2 x 62 = 3244 ft of tendon, written to a project file that the analysis gives the same
// quantities of, to the last bit, and the check finds within every limit without exceptions.
TEST(OptimizeCommand, WritesTheBestDesignAsAProjectThatAnalyzeAndCheckConfirm) {
    ScratchFolder scratch;
    WriteWidthAndCountBase(scratch.path() / "base.kvt");
    OptimizeOptions options = optionsFor(scratch.path() / "base.kvt", {"QS1=2:10", "WS1=6:16:2"});
    options.json = true;
    options.output = scratch.path() / "best.kvt";
    const CommandRun run = optimize(options);
    ASSERT_EQ(run.status, 0) << run.err;
    const nlohmann::json document = runJson(run);
    EXPECT_EQ(document["tried"], 54);
    EXPECT_EQ(document["refused"], 0);
    EXPECT_EQ(document["faulted"], 0);
    EXPECT_EQ(document["outOfCompliance"], 26);
    EXPECT_EQ(document["compliant"], 28);
    // Each candidate out of compliance counts under every check it fails: widths of 6 and 16 in
    // for each of the 9 counts, spacings of 60 / 3 = 20 ft and 60 / 11 = 5.5 ft for each of the
    // 6 widths. The 20 ft spans of two beams also overstress some in the analysis, which comes
    // after these four, less often.
    const nlohmann::json failures = nlohmann::json::parse(R"([
        {"foundation": "ribbed", "mode": "rules", "direction": null, "rule": "beamWidthMax",
         "item": "Beam width at most 14 in", "count": 9},
        {"foundation": "ribbed", "mode": "rules", "direction": null, "rule": "beamWidthMin",
         "item": "Beam width at least 8 in", "count": 9},
        {"foundation": "ribbed", "mode": "rules", "direction": "short", "rule": "beamSpacingMax",
         "item": "Beam spacing at most 15 ft", "count": 6},
        {"foundation": "ribbed", "mode": "rules", "direction": "short", "rule": "beamSpacingMin",
         "item": "Beam spacing at least 6 ft", "count": 6}])");
    ASSERT_GE(document["failures"].size(), 4u);
    for (std::size_t i = 0; i < document["failures"].size(); ++i) {
        if (i < 4) {
            EXPECT_EQ(document["failures"][i], failures[i]);
        } else {
            EXPECT_EQ(document["failures"][i]["mode"], "centerLift");
            EXPECT_LE(document["failures"][i]["count"], 6);
        }
    }
    EXPECT_TRUE(document["refusals"].empty());
    EXPECT_EQ(document["candidates"], 54);
    EXPECT_EQ(document["interrupted"], false);
    EXPECT_EQ(document["objective"], "concrete");
    ASSERT_EQ(document["best"].size(), 10u);
    const nlohmann::json& best = document["best"][0];
    EXPECT_EQ(best["fields"].dump(), R"({"QS1":3,"WS1":8.0})");
    EXPECT_NEAR(best["ConcreteVolume"].get<double>(), (1400 + 34.0 * 48 * 20 / 144) / 27, 1e-12);
    EXPECT_EQ(best["TendonLength"], 3244.0);
    EXPECT_TRUE(best["cost"].is_null());
    EXPECT_GT(best["margin"].get<double>(), 0);
    EXPECT_EQ(document["pareto"].size(), 1u);
    EXPECT_EQ(document["pareto"][0], best);

    AnalyzeOptions analyze;
    analyze.project = options.output;
    analyze.json = true;
    analyze.defaults = Defaults();
    std::ostringstream analyzeOut, analyzeErr;
    ASSERT_EQ(RunAnalyzeCommand(analyze, analyzeOut, analyzeErr), 0) << analyzeErr.str();
    const nlohmann::json analysed = nlohmann::json::parse(analyzeOut.str());
    EXPECT_EQ(analysed["record"]["QS1"], 3);
    EXPECT_EQ(analysed["record"]["WS1"], 8.0);
    EXPECT_EQ(analysed["results"]["ConcreteVolume"].get<double>(),
              best["ConcreteVolume"].get<double>());
    EXPECT_EQ(analysed["results"]["TendonLength"].get<double>(),
              best["TendonLength"].get<double>());

    CheckOptions check;
    check.project = options.output;
    check.json = true;
    check.defaults = Defaults();
    std::ostringstream checkOut, checkErr;
    ASSERT_EQ(RunCheckCommand(check, checkOut, checkErr), 0) << checkErr.str();
    const nlohmann::json checked = nlohmann::json::parse(checkOut.str());
    EXPECT_EQ(checked["exceptions"]["ribbed"]["count"], 0);
    for (const auto& [name, counter] : checked["compliance"]["ribbed"]["counters"].items()) {
        EXPECT_EQ(counter, 0) << name;
    }

    // Priced, each design has its cost: 60.2469 x 150 + 3244 x 2.
    options.concretePrice = 150, options.tendonPrice = 2;
    options.objective = SearchObjective::Cost;
    options.top = 2;
    const nlohmann::json priced = runJson(optimize(options));
    ASSERT_EQ(priced["best"].size(), 2u);
    EXPECT_NEAR(priced["best"][0]["cost"].get<double>(),
                (1400 + 34.0 * 48 * 20 / 144) / 27 * 150 + 3244 * 2, 1e-9);
}

TEST(OptimizeCommand, ListsTheCountsTheBestAndTheFrontInColumns) {
    ScratchFolder scratch;
    WriteWidthAndCountBase(scratch.path() / "base.kvt");
    OptimizeOptions options = optionsFor(scratch.path() / "base.kvt", {"QS1=2:4", "WS1=8:10:2"});
    options.top = 3;
    const CommandRun run = optimize(options);
    ASSERT_EQ(run.status, 0) << run.err;
    std::vector<std::string> lines;
    std::istringstream text(run.out);
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    // Two beams are 20 ft apart, over 15 ft: 4 of 6 comply. Three beams 10 in wide:
    // (1400 + 34 x 54 x 20 / 144) / 27 = 61.30 yd3; four beams 8 in wide: 61.65 yd3 and
    // 32 x 40 + 1920 + 2 x 64 = 3328 ft. The margin closes each row of a design.
    const std::vector<std::string> expected = {
        "Design search of " + (scratch.path() / "base.kvt").string(),
        "6 candidates (QS1=2:4, WS1=8:10:2), least concrete volume first",
        "",
        "  Candidates tried               6",
        "    refused by the value checks  0",
        "    ended in a fault             0",
        "    out of compliance            2",
        "    compliant                    4",
        "",
        "Checks failed most often:",
        "  2  Ribbed foundation: Shear stress, center lift, short",
        "  2  Ribbed foundation: Beam spacing at most 15 ft, short",
        "  1  Ribbed foundation: Stiffness, center lift, short",
        "",
        "The best 3, by least concrete volume:",
        "  Rank  QS1  WS1  Concrete yd3  Tendon ft  Margin",
        "     1    3    8         60.25    3,244.0   0.",
        "     2    3   10         61.30    3,244.0   0.",
        "     3    4    8         61.65    3,328.0   0.",
        "",
        "Pareto front of concrete volume against tendon length, 1 design:",
        "  QS1  WS1  Concrete yd3  Tendon ft  Margin",
        "    3    8         60.25    3,244.0   0.",
    };
    ASSERT_EQ(lines.size(), expected.size()) << run.out;
    const std::regex margin("0\\.[0-9]{3}$");
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (expected[i].ends_with("   0.")) {
            EXPECT_EQ(lines[i].substr(0, lines[i].size() - 3), expected[i]) << i;
            EXPECT_TRUE(std::regex_search(lines[i], margin)) << lines[i];
        } else {
            EXPECT_EQ(lines[i], expected[i]) << i;
        }
    }
}

// Every request that cannot be carried out ends with status 1, its reason on standard error and,
// with --json, as the one error object on standard output. The refusals of the ranges are those
// of the search's own tests.
TEST(OptimizeCommand, RefusesBadRequestsClearly) {
    const std::filesystem::path example = ExamplePath("expansive_ribbed.kvt");
    const struct {
        std::vector<std::string> ranges;
        void (*change)(OptimizeOptions&);
        std::string reason;
    } rows[] = {
        {{"QS9=1:2"},
         [](OptimizeOptions&) {},
         "unknown field \"QS9\": give a field of the design record by its name, such as DS1, "
         "QS1, TS1 or SlabThick"},
        {{"DS1=20:30"},
         [](OptimizeOptions& o) { o.objective = SearchObjective::Cost; },
         "--objective cost needs --concrete-cost or --tendon-cost"},
        {{"DS1=20:30"},
         [](OptimizeOptions& o) { o.concretePrice = -1; },
         "--concrete-cost must be from 0 to 1,000,000,000"},
        {{"DS1=20:30"},
         [](OptimizeOptions& o) { o.tendonPrice = 1e10; },
         "--tendon-cost must be from 0 to 1,000,000,000"},
        {{"DS1=20:30"}, [](OptimizeOptions& o) { o.top = 0; }, "--top must be from 1 to 1000"},
        {{"DS1=20:30"},
         [](OptimizeOptions& o) { o.threads = 0; },
         "--threads must be from 1 to 256"},
    };
    for (const auto& row : rows) {
        OptimizeOptions options = optionsFor(example, row.ranges);
        row.change(options);
        const CommandRun text = optimize(options);
        EXPECT_EQ(text.status, 1);
        EXPECT_EQ(text.out, "");
        EXPECT_EQ(text.err, "korvath3-cli optimize: " + row.reason + "\n");
        options.json = true;
        const CommandRun json = optimize(options);
        EXPECT_EQ(json.status, 1);
        EXPECT_EQ(json.out, nlohmann::ordered_json(
                                {{"error", {{"number", 1}, {"message", row.reason}, {"path", ""}}}})
                                    .dump(2) +
                                "\n");
    }

    // A project that is not there is a file error.
    OptimizeOptions missing = optionsFor("/nonexistent/folder/x.kvt", {"DS1=20:30"});
    missing.json = true;
    const CommandRun run = optimize(missing);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(runJson(run)["error"]["number"], 76);
    EXPECT_EQ(runJson(run)["error"]["path"], "/nonexistent/folder/x.kvt");
}

// Slabs thicker than every beam is deep: every candidate is refused by the value checks, there
// is no best design, and the project file already in place of the output is left as it was.
TEST(OptimizeCommand, WithoutACompliantDesignNothingIsWritten) {
    ScratchFolder scratch;
    WriteWidthAndCountBase(scratch.path() / "base.kvt");
    const std::filesystem::path output = scratch.path() / "best.kvt";
    WriteBytes(output, "an earlier good file");
    OptimizeOptions options = optionsFor(scratch.path() / "base.kvt", {"SlabThick=24:30:2"});
    options.output = output;
    options.json = true;
    const CommandRun run = optimize(options);
    EXPECT_EQ(run.status, 6);
    const nlohmann::json document = runJson(run);
    EXPECT_EQ(document["tried"], 4);
    EXPECT_EQ(document["refused"], 4);
    EXPECT_EQ(document["compliant"], 0);
    const nlohmann::json refusals = nlohmann::json::parse(R"([{"message":
        "Depth of Type 1 Beams in the short direction must be greater than slab thickness",
        "count": 4}])");
    EXPECT_EQ(document["refusals"], refusals);
    EXPECT_TRUE(document["failures"].empty());
    EXPECT_TRUE(document["best"].empty());
    EXPECT_TRUE(document["pareto"].empty());
    EXPECT_EQ(FileBytes(output), "an earlier good file");
    EXPECT_NE(run.err.find("no compliant design; " + output.string() + " is not written"),
              std::string::npos);

    options.json = false;
    options.output.clear();
    const std::string listing = optimize(options).out;
    EXPECT_NE(listing.find("    compliant                    0\n"
                           "\n"
                           "Refused most often by:\n"
                           "  4  Depth of Type 1 Beams in the short direction must be greater "
                           "than slab thickness\n"
                           "\n"
                           "No candidate is within every limit"),
              std::string::npos)
        << listing;
}

// Of more than five messages the listing names the five most frequent and says how many there
// are; the JSON lists them all, most frequent first, adding up to the refused. The expansive
// example with too few short beams, too shallow, too narrow, covers too deep and minimum
// spacings of 0 or above the average: seven messages over 864 candidates.
TEST(OptimizeCommand, ListsTheFiveMostFrequentRefusals) {
    OptimizeOptions options = optionsFor(ExamplePath("expansive_ribbed.kvt"),
                                         {"SlabThick=4:8:2", "DS1=6:12:6", "QS1=0:3", "QS2=0:2:2",
                                          "WS1=0:8:4", "CS1=5:8:3", "SMin=0:16:8"});
    options.json = true;
    const nlohmann::json document = runJson(optimize(options));
    ASSERT_GT(document["refusals"].size(), 5u) << document.dump(2);
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < document["refusals"].size(); ++i) {
        sum += document["refusals"][i]["count"].get<std::int64_t>();
        if (i > 0) {
            EXPECT_GE(document["refusals"][i - 1]["count"], document["refusals"][i]["count"]);
        }
    }
    EXPECT_EQ(sum, document["refused"].get<std::int64_t>());

    options.json = false;
    const std::string listing = optimize(options).out;
    EXPECT_NE(listing.find("Refused most often by (5 of " +
                           std::to_string(document["refusals"].size()) + " messages):\n"),
              std::string::npos)
        << listing;
    for (std::size_t i = 0; i < document["refusals"].size(); ++i) {
        const std::string message = document["refusals"][i]["message"];
        EXPECT_EQ(listing.find("  " + message + "\n") != std::string::npos, i < 5) << message;
    }
}

TEST(OptimizeCommand, AnOutputThatCannotBeWrittenIsAFileErrorAlone) {
    ScratchFolder scratch;
    WriteWidthAndCountBase(scratch.path() / "base.kvt");
    OptimizeOptions options = optionsFor(scratch.path() / "base.kvt", {"QS1=3:4"});
    options.output = "/nonexistent/folder/best.kvt";
    options.json = true;
    const CommandRun run = optimize(options);
    EXPECT_EQ(run.status, 2);
    const nlohmann::json document = runJson(run);
    EXPECT_EQ(document.size(), 1u);
    EXPECT_EQ(document["error"]["number"], 76);
    EXPECT_EQ(document["error"]["path"], "/nonexistent/folder/best.kvt");
}

// The interrupt of the terminal before any candidate is tried: the search ends at once with
// the status of an interrupt and says so.
TEST(OptimizeCommand, AnInterruptEndsWithTheBestSoFar) {
    ScratchFolder scratch;
    WriteWidthAndCountBase(scratch.path() / "base.kvt");
    std::atomic<bool> stop{true};
    OptimizeOptions options = optionsFor(scratch.path() / "base.kvt", {"QS1=2:10", "WS1=6:16:2"});
    options.stop = &stop;
    options.json = true;
    CommandRun run = optimize(options);
    EXPECT_EQ(run.status, 130);
    EXPECT_EQ(runJson(run)["interrupted"], true);
    EXPECT_EQ(runJson(run)["tried"], 0);
    options.json = false;
    run = optimize(options);
    EXPECT_NE(run.out.find("Interrupted: the best of the candidates tried so far"),
              std::string::npos);
}

TEST(ProgressBar, ShowsTheShareDoneAndThePace) {
    EXPECT_EQ(ProgressBarLine(450'000, 1'000'000, 2.0),
              "[##################----------------------]  45%  450,000 of 1,000,000 candidates, "
              "225,000 a second");
    EXPECT_EQ(ProgressBarLine(0, 10, 0), "[----------------------------------------]   0%  0 of 10 "
                                         "candidates");
    EXPECT_EQ(ProgressBarLine(10, 10, 4.0),
              "[########################################] 100%  10 of "
              "10 candidates, 2 a second");
}
