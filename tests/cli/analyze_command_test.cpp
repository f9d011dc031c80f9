#include "cli/analyze_command.h"
#include "engine/results_record.h"
#include "tests/cli/cli_test_support.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

struct CommandRun {
    int status;
    std::string out;
    std::string err;
};

CommandRun analyze(const std::filesystem::path& project, bool json, EngineSettings settings = {},
                   bool check = true) {
    AnalyzeOptions options;
    options.project = project;
    options.json = json;
    options.settings = settings;
    options.check = check;
    std::ostringstream out, err;
    const int status = RunAnalyzeCommand(options, out, err);
    return {status, out.str(), err.str()};
}

} // namespace

TEST(AnalyzeCommand, JsonNamesEveryFieldAndResultWithNumbersThatReadBackExactly) {
    const CommandRun run = analyze(ExamplePath("expansive_ribbed.kvt"), true);
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err, "");
    const auto document = nlohmann::json::parse(run.out);
    EXPECT_EQ(document["version"], 3);
    EXPECT_TRUE(document["fault"].is_null());
    EXPECT_EQ(document["record"].size(), DesignRecordFields().size());
    EXPECT_EQ(document["results"].size(), ResultsRecordFields().size());
    EXPECT_EQ(document["record"]["ProjName"], "Meadowbrook Residence, Lot 14");
    EXPECT_EQ(document["record"]["TendDiam"], 0.5);
    EXPECT_TRUE(document["results"]["BeamsShort"].is_number_integer());
    EXPECT_TRUE(document["results"]["TotalTenLong"].is_number_integer());
    EXPECT_TRUE(document["results"]["EquivDepthShort"].is_number_float());
    // 5 + 2 short beams and 4 + 2 long ones; sqrt(3000) x 0.45 x ... as by hand.
    EXPECT_EQ(document["results"]["BeamsShort"], 7);
    EXPECT_EQ(document["results"]["BeamsLong"], 6);
    EXPECT_EQ(document["results"]["AllowCompression"], 1350.0);
    // Spacings from the extremes: 13 / 8 and 12 / 6 exceed 1.5, so 0.85 of the largest.
    EXPECT_DOUBLE_EQ(document["results"]["SpacingShort"].template get<double>(), 11.05);
    EXPECT_DOUBLE_EQ(document["results"]["SpacingLong"].template get<double>(), 10.2);

    // The setting reaches the engine: on the beam bottoms alone, 7 short beams of 1 ft between
    // 6 long ones, (40 - 6) x 7 + 6 x 60 = 598 ft2.
    const CommandRun beamOnly =
        analyze(ExamplePath("expansive_ribbed.kvt"), true, EngineSettings{0, 1, 0});
    EXPECT_EQ(nlohmann::json::parse(beamOnly.out)["results"]["BearingArea"], 598.0);

    // The text of every number parses back to the double that was printed: a second run gives
    // byte-identical text.
    EXPECT_EQ(nlohmann::ordered_json::parse(run.out).dump(2) + "\n", run.out);
}

TEST(AnalyzeCommand, SummaryGroupsTheResultsWithUnits) {
    const CommandRun run = analyze(ExamplePath("compressible_edge_down.kvt"), false);
    ASSERT_EQ(run.status, 0) << run.err;
    for (const char* expected :
         {"Riverside Commons, Building C", "Allowable stresses", "Section properties",
          "Soil bearing", "Prestress", "Analysis beam spacing", "compressible soil",
          "Allowable compression", "1,575.0", "in4", "psf", "kips"}) {
        EXPECT_NE(run.out.find(expected), std::string::npos) << expected << "\n" << run.out;
    }
}

TEST(AnalyzeCommand, FaultsAndFileErrorsGiveTheirStatusAndNoResults) {
    ScratchFolder scratch;
    const std::string example = FileBytes(ExamplePath("expansive_ribbed.kvt"));

    // A single long beam: QL1 (line 26, from 0) set to 1 and QL2 to 0.
    const auto oneBeam = scratch.path() / "one_beam.kvt";
    WriteBytes(oneBeam, withLine(withLine(example, 26, " 1 "), 27, " 0 "));
    // The input checks stop it before the analysis, as the program would.
    CommandRun run = analyze(oneBeam, true);
    EXPECT_EQ(run.status, 4);
    auto document = nlohmann::json::parse(run.out);
    EXPECT_EQ(document["inputError"]["tab"], 4);
    EXPECT_EQ(document["inputError"]["control"], "txtQL1");
    EXPECT_EQ(document["inputError"]["message"],
              "There must be at least 2 beams in the long direction");
    EXPECT_FALSE(document.contains("results"));
    run = analyze(oneBeam, false);
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("There must be at least 2 beams in the long direction (tab 4 \"Beam "
                           "Properties\", txtQL1)"),
              std::string::npos)
        << run.err;

    // Without them the engine meets the single beam and faults.
    run = analyze(oneBeam, true, {}, false);
    EXPECT_EQ(run.status, 3);
    document = nlohmann::json::parse(run.out);
    EXPECT_EQ(document["fault"]["kind"], "division by zero");
    EXPECT_EQ(document["fault"]["stage"], 3);
    EXPECT_TRUE(document["results"].is_null());

    run = analyze(oneBeam, false, {}, false);
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("division by zero in stage 3 (soil bearing)"), std::string::npos)
        << run.err;

    // Text where the concrete strength belongs.
    const auto text = scratch.path() / "text.kvt";
    WriteBytes(text, withLine(example, 11, "three thousand"));
    run = analyze(text, true);
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("13: Type mismatch"), std::string::npos) << run.err;
    // With --json the failure is one object on standard output as well.
    const auto failure = nlohmann::json::parse(run.out);
    EXPECT_EQ(failure["error"]["number"], 13);
    EXPECT_EQ(failure["error"]["message"], "Type mismatch");
    EXPECT_EQ(failure["error"]["path"], text.string());

    // A file cut short in its beams.
    const auto truncated = scratch.path() / "truncated.kvt";
    WriteBytes(truncated, example.substr(0, example.find(" 24 \r\n")));
    run = analyze(truncated, false);
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("62: Input past end of file"), std::string::npos) << run.err;
}
