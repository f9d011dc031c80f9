#include "cli/check_command.h"
#include "tests/cli/cli_test_support.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

struct CheckRun {
    int status;
    std::string out;
    std::string err;
};

CheckRun check(const std::filesystem::path& project, bool json, bool showAll = false,
               bool colour = false, bool inputChecks = true) {
    CheckOptions options;
    options.check = inputChecks;
    options.project = project;
    options.json = json;
    options.showAll = showAll;
    options.colour = colour;
    std::ostringstream out, err;
    const int status = RunCheckCommand(options, out, err);
    return {status, out.str(), err.str()};
}

int RedRuns(const nlohmann::json& runs) {
    int red = 0;
    for (const auto& run : runs) {
        red += run["red"].get<bool>() ? 1 : 0;
    }
    return red;
}

int CounterSum(const nlohmann::json& counters) {
    int sum = 0;
    for (const auto& [name, value] : counters.items()) {
        sum += value.get<int>();
    }
    return sum;
}

} // namespace

TEST(CheckCommand, JsonListsEveryBoxTheProjectHasAndCountsEachRedRow) {
    const struct {
        const char* example;
        bool uniform;
        bool lineLoad;
    } examples[] = {{"expansive_ribbed.kvt", false, false},
                    {"compressible_edge_down.kvt", false, false},
                    {"uniform_line_load.kvt", true, true}};
    for (const auto& example : examples) {
        for (const bool showAll : {false, true}) {
            const CheckRun run = check(ExamplePath(example.example), true, showAll);
            ASSERT_EQ(run.status, 0) << run.err;
            const auto document = nlohmann::json::parse(run.out);
            EXPECT_TRUE(document["fault"].is_null());
            const auto& compliance = document["compliance"];
            EXPECT_EQ(compliance["uniform"].is_null(), !example.uniform) << example.example;
            EXPECT_EQ(compliance["lineLoad"].is_null(), !example.lineLoad) << example.example;
            EXPECT_EQ(document["exceptions"]["uniform"].is_null(), !example.uniform);
            EXPECT_EQ(document["summary"]["UTFSummary"].is_null(), !example.uniform);
            EXPECT_EQ(document["summary"]["LLSummary"].is_null(), !example.lineLoad);
            // One red row per item counted, in every list.
            for (const char* list : {"ribbed", "uniform", "lineLoad"}) {
                if (compliance[list].is_null()) {
                    continue;
                }
                const int ribbedOut =
                    std::string(list) == "uniform" && document["RibbedOutCount"].get<int>() > 0 ? 1
                                                                                                : 0;
                EXPECT_EQ(RedRuns(compliance[list]["runs"]),
                          CounterSum(compliance[list]["counters"]) + ribbedOut)
                    << example.example << " " << list;
                const bool allWithinShown =
                    compliance[list].dump().find("ALL VALUES WITHIN") != std::string::npos;
                if (showAll) {
                    EXPECT_FALSE(allWithinShown) << example.example << " " << list;
                }
            }
        }
    }

    // The uniform example: two edge lift stiffness rows out on the ribbed foundation make the
    // uniform thickness analysis invalid.
    const auto document =
        nlohmann::json::parse(check(ExamplePath("uniform_line_load.kvt"), true).out);
    EXPECT_EQ(document["RibbedOutCount"], 2);
    EXPECT_EQ(document["summary"]["RibbedSummary"],
              "Ribbed Foundation has 2 items out of compliance\n"
              "Ribbed Foundation has no PTI Exceptions");
    EXPECT_EQ(document["compliance"]["uniform"]["runs"][1]["text"],
              "\tRIBBED FOUNDATION HAS 2 ITEMS OUT OF COMPLIANCE - UNIFORM THICKNESS ANALYSIS "
              "INVALID\n");
}

TEST(CheckCommand, TextShowsBadLinesInBoldRedOnlyOnATerminal) {
    const auto project = ExamplePath("expansive_ribbed.kvt");
    const CheckRun plain = check(project, false);
    EXPECT_EQ(plain.status, 0);
    EXPECT_EQ(plain.out.find('\033'), std::string::npos);
    EXPECT_NE(plain.out.find("\nRibbed Foundation - PTI Exceptions\n"), std::string::npos);
    EXPECT_NE(plain.out.find("\nCENTER LIFT MODE :\n"), std::string::npos);

    const CheckRun coloured = check(project, false, false, true);
    EXPECT_NE(coloured.out.find("  \033[1m\033[31mRibbed Foundation has 3 items out of "
                                "compliance\033[0m\n"),
              std::string::npos)
        << coloured.out;
    EXPECT_NE(coloured.out.find("\033[1mCENTER LIFT MODE :\033[0m\n"), std::string::npos);
}

TEST(CheckCommand, DepthRatioOfADirectionWithoutBeamsIsAFault) {
    ScratchFolder scratch;
    // QS1 (line 24, from 0) 0 and DS2 (line 29) 0: no short beam group with depth and quantity.
    const auto project = scratch.path() / "no_short_beams.kvt";
    WriteBytes(
        project,
        withLine(withLine(FileBytes(ExamplePath("expansive_ribbed.kvt")), 24, " 0 "), 29, " 0 "));
    // The input checks stop the project at its short beams; without them the exceptions meet
    // the depth ratio of a direction without beams.
    EXPECT_EQ(check(project, true).status, 4);
    CheckRun run = check(project, true, false, false, false);
    EXPECT_EQ(run.status, 3);
    const auto document = nlohmann::json::parse(run.out);
    EXPECT_EQ(document["fault"]["kind"], "division by zero");
    EXPECT_TRUE(document["fault"]["stage"].is_null());
    EXPECT_TRUE(document["exceptions"].is_null());
    EXPECT_TRUE(document["summary"].is_null());

    run = check(project, false, false, false, false);
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("division by zero in the beam depth ratio"), std::string::npos);
}
