#include "cli/analyze_command.h"
#include "cli/check_command.h"
#include "cli/checks_command.h"
#include "tests/cli/cli_test_support.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

struct ChecksRun {
    int status;
    std::string out;
    std::string err;
};

ChecksRun checks(const std::filesystem::path& project, bool json, bool failing = false,
                 bool inputChecks = true) {
    ChecksOptions options;
    options.project = project;
    options.json = json;
    options.failing = failing;
    options.check = inputChecks;
    options.defaults = Defaults();
    std::ostringstream out, err;
    const int status = RunChecksCommand(options, out, err);
    return {status, out.str(), err.str()};
}

nlohmann::json analysed(const std::filesystem::path& project) {
    AnalyzeOptions options;
    options.project = project;
    options.json = true;
    options.defaults = Defaults();
    std::ostringstream out, err;
    RunAnalyzeCommand(options, out, err);
    return nlohmann::json::parse(out.str());
}

} // namespace

// Every check of every example: a demand or limit named by a plain result or record field has
// exactly the value the analysis gives that field; the verdict of a foundation is "pass" exactly
// when all its checks are "ok", and its governing check is the one with the largest ratio.
TEST(ChecksCommand, JsonGivesTheEnginesValuesAndAVerdictThatCountsEveryCheck) {
    for (const char* example :
         {"expansive_ribbed.kvt", "compressible_edge_down.kvt", "uniform_line_load.kvt"}) {
        SCOPED_TRACE(example);
        const ChecksRun run = checks(ExamplePath(example), true);
        ASSERT_EQ(run.status, 0) << run.err;
        const auto document = nlohmann::json::parse(run.out);
        const auto analysis = analysed(ExamplePath(example));
        EXPECT_EQ(document["version"], 3);
        EXPECT_TRUE(document["fault"].is_null());
        const bool uniform = analysis["record"]["FlatSlab"] == 1;
        EXPECT_EQ(document["verdict"]["uniform"].is_null(), !uniform);

        int named = 0;
        for (const char* foundation : {"ribbed", "uniform"}) {
            if (document["verdict"][foundation].is_null()) {
                continue;
            }
            bool allOk = true;
            double largest = -1e300;
            nlohmann::json governing;
            for (const auto& check : document["checks"]) {
                for (const char* side : {"demand", "limit"}) {
                    const auto& quantity = check[side];
                    if (quantity.is_null() || quantity["name"].is_null()) {
                        continue;
                    }
                    const std::string name = quantity["name"];
                    for (const char* record : {"results", "record"}) {
                        if (analysis[record].contains(name)) {
                            EXPECT_EQ(quantity["value"].get<double>(),
                                      analysis[record][name].get<double>())
                                << name;
                            ++named;
                        }
                    }
                }
                if (check["foundation"] != foundation) {
                    continue;
                }
                allOk = allOk && check["status"] == "ok";
                if (!check["ratio"].is_null() && check["ratio"].get<double>() > largest) {
                    largest = check["ratio"].get<double>();
                    governing = check;
                }
            }
            EXPECT_EQ(document["verdict"][foundation], allOk ? "pass" : "fail");
            EXPECT_EQ(document["governing"][foundation], governing);
        }
        EXPECT_GT(named, 40);
    }
}

// The uniform thickness example: its edge lift stiffness is 0.5 % and 2.2 % over in the classic
// list, which is a ratio of 1.005 and 1.022; the uniform slab's long direction 2.9 % over.
TEST(ChecksCommand, TextListsTheChecksAndTheVerdictLines) {
    const ChecksRun run = checks(ExamplePath("uniform_line_load.kvt"), false);
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("Korvath 3.0 design checks of "), std::string::npos);
    EXPECT_NE(run.out.find("\nVerdict\n-------\n"
                           "  Ribbed foundation: FAIL: 2 checks over their limits, governing "
                           "STIFFNESS, EDGE LIFT, LONG (1.02)\n"
                           "  Uniform thickness foundation: FAIL: 2 checks over their limits, "
                           "governing STIFFNESS, EDGE LIFT, LONG (1.03)\n"),
              std::string::npos)
        << run.out;
    // A rule with its section, an item in its mode with both numbers and the unit.
    EXPECT_NE(run.out.find("  Beam spacing at least 6 ft, short"), std::string::npos);
    EXPECT_NE(run.out.find("4.5.2.1\n"), std::string::npos);
    EXPECT_NE(run.out.find("Edge lift\n"), std::string::npos);

    // Only the four checks that are not ok, under their modes.
    const ChecksRun failing = checks(ExamplePath("uniform_line_load.kvt"), false, true);
    int listed = 0;
    std::istringstream lines(failing.out);
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with("  NG") || line.find("  NG  ") != std::string::npos) {
            ++listed;
        }
    }
    EXPECT_EQ(listed, 4);
    EXPECT_EQ(failing.out.find("  OK"), std::string::npos);

    const auto document =
        nlohmann::json::parse(checks(ExamplePath("uniform_line_load.kvt"), true, true).out);
    EXPECT_EQ(document["checks"].size(), 4u);
}

// A soil pressure over its limit and nothing else: the classic summary keeps the ribbed
// foundation in compliance, the verdict fails it.
TEST(ChecksCommand, BearingAloneFailsTheVerdict) {
    ScratchFolder scratch;
    const auto project = scratch.path() / "bearing.kvt";
    // CompBearing, line 55 of the compressible example, from 1500 psf down to 100.
    WriteBytes(project,
               withLine(FileBytes(ExamplePath("compressible_edge_down.kvt")), 54, " 100 "));
    const auto document = nlohmann::json::parse(checks(project, true, true).out);
    EXPECT_EQ(document["verdict"]["ribbed"], "fail");
    ASSERT_EQ(document["checks"].size(), 1u);
    EXPECT_EQ(document["checks"][0]["mode"], "bearing");
    EXPECT_EQ(document["checks"][0]["limit"]["name"], "CompBearing");
    EXPECT_EQ(document["checks"][0]["limit"]["value"], 100.0);

    CheckOptions classic;
    classic.project = project;
    classic.json = true;
    classic.defaults = Defaults();
    std::ostringstream out, err;
    RunCheckCommand(classic, out, err);
    EXPECT_EQ(nlohmann::json::parse(out.str())["summary"]["RibbedSummary"],
              "Ribbed Foundation in compliance\nRibbed Foundation has no PTI Exceptions");
}

TEST(ChecksCommand, FaultsAndBadFilesEndAsForAnalyze) {
    ScratchFolder scratch;
    const auto project = scratch.path() / "one_beam.kvt";
    // QL1, line 28 of the compressible example: one long beam.
    WriteBytes(project, withLine(FileBytes(ExamplePath("compressible_edge_down.kvt")), 27, " 1 "));

    const ChecksRun refused = checks(project, false);
    EXPECT_EQ(refused.status, 4);
    EXPECT_NE(refused.err.find("There must be at least 2 beams in the long direction"),
              std::string::npos);

    const ChecksRun fault = checks(project, true, false, false);
    EXPECT_EQ(fault.status, 3);
    const auto document = nlohmann::json::parse(fault.out);
    EXPECT_EQ(document["fault"]["kind"], "division by zero");
    EXPECT_EQ(document["fault"]["stage"], 3);
    EXPECT_TRUE(document["verdict"].is_null() && document["checks"].is_null());
    const ChecksRun faultText = checks(project, false, false, false);
    EXPECT_EQ(faultText.err, "korvath3-cli: the checks of " + project.string() +
                                 " ended in a fault: division by zero in stage 3 (soil bearing). "
                                 "No checks are given.\n");

    const ChecksRun missing = checks(scratch.path() / "missing.kvt", true);
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(nlohmann::json::parse(missing.out)["error"]["number"], 53);
}
