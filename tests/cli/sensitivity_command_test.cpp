#include "cli/checks_command.h"
#include "cli/sensitivity_command.h"
#include "storage/design_file.h"
#include "tests/cli/cli_test_support.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

struct SensitivityRun {
    int status;
    std::string out;
    std::string err;
};

SensitivityRun sensitivity(const std::filesystem::path& project,
                           const std::vector<std::string>& ranges, bool json) {
    SensitivityOptions options;
    options.project = project;
    options.ranges = ranges;
    options.json = json;
    options.threads = 2;
    options.defaults = Defaults();
    std::ostringstream out, err;
    const int status = RunSensitivityCommand(options, out, err);
    return {status, out.str(), err.str()};
}

std::vector<std::string> keys(const nlohmann::ordered_json& object) {
    std::vector<std::string> names;
    for (const auto& item : object.items()) {
        names.push_back(item.key());
    }
    return names;
}

TEST(SensitivityCommand, JsonOfEachPointAgreesWithTheCheckTable) {
    // em from 0 (refused) to the design's own 5.5 ft, with ym at 2.5 in.
    const SensitivityRun run =
        sensitivity(ExamplePath("expansive_ribbed.kvt"), {"EmCenter=0:5.5:5.5"}, true);
    ASSERT_EQ(run.status, 0) << run.err;
    const auto document = nlohmann::ordered_json::parse(run.out);
    EXPECT_EQ(keys(document),
              (std::vector<std::string>{"version", "fault", "fields", "design", "points"}));
    EXPECT_EQ(document["version"], 3);
    EXPECT_TRUE(document["fault"].is_null());
    EXPECT_EQ(document["fields"], nlohmann::ordered_json::array({"EmCenter"}));
    EXPECT_EQ(keys(document["design"]),
              (std::vector<std::string>{"values", "verdict", "maxRatio"}));
    EXPECT_EQ(document["design"]["values"]["EmCenter"], 5.5);
    ASSERT_EQ(document["points"].size(), 2u);

    const auto& refused = document["points"][0];
    EXPECT_EQ(keys(refused), (std::vector<std::string>{"values", "refused", "fault", "verdict",
                                                       "maxRatio", "governing"}));
    EXPECT_EQ(refused["values"]["EmCenter"], 0.0);
    EXPECT_EQ(refused["refused"], "Edge Moisture Variation Distance can not be zero");
    EXPECT_TRUE(refused["fault"].is_null());
    EXPECT_TRUE(refused["verdict"].is_null());
    EXPECT_TRUE(refused["maxRatio"].is_null());
    EXPECT_TRUE(refused["governing"].is_null());

    // The point at the design's values is the design: its governing check is the one of
    // `checks`, whose ratio is the point's max ratio.
    ChecksOptions options;
    options.project = ExamplePath("expansive_ribbed.kvt");
    options.json = true;
    options.defaults = Defaults();
    std::ostringstream out, err;
    ASSERT_EQ(RunChecksCommand(options, out, err), 0);
    const auto checks = nlohmann::ordered_json::parse(out.str());
    const auto& design = document["points"][1];
    EXPECT_TRUE(design["refused"].is_null());
    EXPECT_EQ(design["verdict"], checks["verdict"]);
    EXPECT_EQ(design["governing"]["ribbed"], checks["governing"]["ribbed"]);
    EXPECT_TRUE(design["governing"]["uniform"].is_null());
    EXPECT_EQ(design["maxRatio"]["ribbed"], checks["governing"]["ribbed"]["ratio"]);
    EXPECT_TRUE(design["maxRatio"]["uniform"].is_null());
    EXPECT_EQ(document["design"]["maxRatio"], design["maxRatio"]);
    EXPECT_EQ(document["design"]["verdict"], design["verdict"]);
}

TEST(SensitivityCommand, FaultsAndRefusedRequests) {
    // 189 ksi of loss leaves the strand without stress: the prestress stage divides by zero.
    SensitivityRun run =
        sensitivity(ExamplePath("expansive_ribbed.kvt"), {"Prestress=189:189"}, true);
    ASSERT_EQ(run.status, 0) << run.err;
    auto document = nlohmann::ordered_json::parse(run.out);
    EXPECT_EQ(document["points"][0]["fault"],
              nlohmann::ordered_json({{"kind", "division by zero"}, {"stage", 4}}));
    EXPECT_TRUE(document["points"][0]["verdict"].is_null());

    run = sensitivity(ExamplePath("expansive_ribbed.kvt"), {"QS1=2:4"}, true);
    EXPECT_EQ(run.status, 1);
    document = nlohmann::ordered_json::parse(run.out);
    EXPECT_EQ(document["error"]["number"], 1);
    EXPECT_EQ(document["error"]["message"],
              "\"QS1\" is a count: a sensitivity grid varies real values such as EmCenter, "
              "YmCenter or Settle");
    EXPECT_EQ(run.err, "korvath3-cli sensitivity: \"QS1\" is a count: a sensitivity grid varies "
                       "real values such as EmCenter, YmCenter or Settle\n");

    run = sensitivity(ExamplePath("no_such_project.kvt"), {"EmCenter=1:2"}, false);
    EXPECT_EQ(run.status, 2);

    // A project that itself faults: its fault heads the object, its design has no verdict, the
    // grid is still given, and the status is that of a fault.
    ScratchFolder folder;
    DesignRecord record = Defaults();
    ReadDesignFile(ExamplePath("expansive_ribbed.kvt"), AllSections, record, Defaults(), nullptr);
    record.Prestress = 189;
    const std::filesystem::path project = folder.path() / "dead.kvt";
    WriteDesignFile(project, AllSections, record);
    run = sensitivity(project, {"Prestress=188:189"}, true);
    EXPECT_EQ(run.status, 3);
    document = nlohmann::ordered_json::parse(run.out);
    EXPECT_EQ(document["fault"],
              nlohmann::ordered_json({{"kind", "division by zero"}, {"stage", 4}}));
    EXPECT_TRUE(document["design"]["verdict"].is_null());
    EXPECT_TRUE(document["design"]["maxRatio"].is_null());
    EXPECT_EQ(document["points"][0]["verdict"]["ribbed"], "fail");
    EXPECT_FALSE(document["points"][1]["fault"].is_null());
}

TEST(SensitivityCommand, TextTableAndPassingRanges) {
    // Two fields: rows along the first, columns along the second.
    const SensitivityRun run = sensitivity(ExamplePath("expansive_ribbed.kvt"),
                                           {"EmCenter=0:5.5:5.5", "YmCenter=2.5:3:0.5"}, false);
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("Korvath 3.0 soil sensitivity of "), std::string::npos);
    EXPECT_NE(run.out.find("  EmCenter \\ YmCenter   2.5      3\n"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("\n  0" + std::string(18, ' ') + "     R      R\n"), std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("4 points: 0 pass, 2 do not pass, 0 ended in a fault, 2 refused "
                           "(Edge Moisture Variation Distance can not be zero)"),
              std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("  EmCenter (design 5.5): the design does not pass at its own values"),
              std::string::npos);
}

// The expansive example with little soil movement, 4000 psi concrete, two tendons in every
// 24 in beam and twenty slab tendons each way: its soil pressure is 161.58 psf, and every other
// check is well within its limit, so that it passes from an allowable bearing of 300 psf up.
TEST(SensitivityCommand, PassingRangeToTheEndOfTheGrid) {
    ScratchFolder folder;
    DesignRecord record = Defaults();
    ReadDesignFile(ExamplePath("expansive_ribbed.kvt"), AllSections, record, Defaults(), nullptr);
    record.Fpc = 4000;
    record.YmCenter = 0.8, record.YmEdge = 0.4;
    record.SlabRefType = 0, record.NumSlabTenShort = 20, record.NumSlabTenLong = 20;
    record.TS1 = 2, record.TS2 = 2, record.TL1 = 2, record.TL2 = 2;
    record.DS1 = 24, record.DS2 = 24, record.DL1 = 24, record.DL2 = 24;
    record.BeamSpacing = 1, record.SixFtRule = 0;
    const std::filesystem::path project = folder.path() / "quiet.kvt";
    WriteDesignFile(project, AllSections, record);

    const SensitivityRun run = sensitivity(project, {"ExpBearing=150:2400:150"}, false);
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.out.find("Design (ExpBearing 2000): ribbed passes, max ratio "),
              std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("  ExpBearing (design 2000): passes from 300 to 2400 (end of the "
                           "grid); does not pass at 150\n"),
              std::string::npos)
        << run.out;
    EXPECT_NE(run.out.find("16 points: 15 pass, 1 do not pass, 0 ended in a fault\n"),
              std::string::npos);
}

} // namespace
