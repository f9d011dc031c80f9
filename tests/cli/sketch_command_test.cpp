#include "cli/sketch_command.h"
#include "tests/cli/cli_test_support.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <sys/wait.h>

namespace {

struct SketchRun {
    int status;
    nlohmann::json document;
    std::string err;
};

SketchRun sketch(const std::filesystem::path& project, bool inputChecks = true) {
    SketchOptions options;
    options.project = project;
    options.json = true;
    options.check = inputChecks;
    options.defaults = Defaults();
    std::ostringstream out, err;
    const int status = RunSketchCommand(options, out, err);
    return {status, nlohmann::json::parse(out.str()), err.str()};
}

std::vector<int> TypesOf(const nlohmann::json& beams, const std::string& direction) {
    std::vector<int> types;
    for (const auto& beam : beams) {
        if (beam["direction"] == direction) {
            types.push_back(beam["type"]);
        }
    }
    return types;
}

// korvath3-cli with its own settings file, standard error joined to the output.
int cli(const std::filesystem::path& settings, const std::string& arguments, std::string& out) {
    const std::string command = "KORVATH3_SETTINGS='" + settings.string() + "' " +
                                std::string(K3_BINARY_DIR) + "/bin/korvath3-cli " + arguments +
                                " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    char buffer[4096];
    while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe)) {
        out.append(buffer, n);
    }
    const int status = pclose(pipe);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

TEST(SketchCommand, JsonGivesTheBeamsAtTheirFacesAndTheSlabTendons) {
    // The example: 40 ft by 60 ft, 4 in slab. Short beams: five 12 x 24 in of type 1 and two
    // 12 x 28 in of type 2, 7 ft of beam on 60 ft, gaps of 53 / 6 ft. Long beams: four of type 1
    // and two of type 2, 6 ft of beam on 40 ft, gaps of 34 / 5 = 6.8 ft.
    const SketchRun run = sketch(ExamplePath("expansive_ribbed.kvt"));
    ASSERT_EQ(run.status, 0) << run.err;
    const nlohmann::json& plan = run.document;
    EXPECT_EQ(plan["version"], 3);
    EXPECT_EQ(plan["width"], 40.0);
    EXPECT_EQ(plan["length"], 60.0);
    EXPECT_EQ(plan["slabThick"], 4.0);
    EXPECT_TRUE(plan["reason"].is_null());
    const nlohmann::json& beams = plan["beams"];
    ASSERT_EQ(beams.size(), 13U);
    // The two type 2 beams of each direction each in the middle of its share of the inner places.
    EXPECT_EQ(TypesOf(beams, "short"), (std::vector<int>{1, 1, 2, 1, 2, 1, 1}));
    EXPECT_EQ(TypesOf(beams, "long"), (std::vector<int>{1, 2, 1, 1, 2, 1}));
    EXPECT_NEAR(beams[1]["from"].get<double>(), 1 + 53.0 / 6, 1e-9);
    EXPECT_NEAR(beams[2]["from"].get<double>(), 2 + 2 * 53.0 / 6, 1e-9);
    EXPECT_EQ(beams[2]["depth"], 28.0);
    EXPECT_NEAR(beams[6]["to"].get<double>(), 60, 1e-9);
    EXPECT_EQ(beams[7]["direction"], "long");
    EXPECT_NEAR(beams[8]["from"].get<double>(), 7.8, 1e-9);
    EXPECT_NEAR(beams[8]["to"].get<double>(), 8.8, 1e-9);
    EXPECT_NEAR(beams[12]["to"].get<double>(), 40, 1e-9);
    EXPECT_EQ(beams[0]["cover"], 3.0);
    // Six short slab tendons over 60 - 4 ft, five long ones over 40 - 4 ft.
    EXPECT_EQ(plan["slabTendons"]["short"]["count"], 6.0);
    EXPECT_NEAR(plan["slabTendons"]["short"]["spacing"].get<double>(), 56.0 / 5, 1e-12);
    EXPECT_EQ(plan["slabTendons"]["long"]["count"], 5.0);
    EXPECT_NEAR(plan["slabTendons"]["long"]["spacing"].get<double>(), 9, 1e-12);
    ASSERT_EQ(plan["sections"].size(), 4U);
    EXPECT_EQ(plan["sections"][3]["direction"], "long");
    EXPECT_EQ(plan["sections"][3]["type"], 2);
    // A 1/2 in strand in the middle of the 4 in slab.
    EXPECT_EQ(plan["sections"][0]["slabTendonDepth"], 2.0);
    EXPECT_EQ(plan["sections"][0]["tendonDiameter"], 0.5);
}

TEST(SketchCommand, ARecordThatMakesNoPlanSaysWhy) {
    ScratchFolder scratch;
    const std::string bytes = FileBytes(ExamplePath("expansive_ribbed.kvt"));
    // One long beam: the value checks stop it, and without them the plan gives its reason.
    const auto oneBeam = scratch.path() / "one_beam.kvt";
    WriteBytes(oneBeam, withLine(withLine(bytes, 26, " 1 "), 27, " 0 "));
    SketchRun run = sketch(oneBeam);
    EXPECT_EQ(run.status, 4);
    EXPECT_TRUE(run.document.contains("inputError"));
    run = sketch(oneBeam, false);
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.document["reason"],
              "There is only one long direction beam: a plan needs at least two beams in each "
              "direction, one at each edge, with the gaps between them.");
    EXPECT_TRUE(run.document["beams"].empty());
    EXPECT_NE(run.err.find("no plan of"), std::string::npos);
    // No short beams at all.
    const auto noBeams = scratch.path() / "no_beams.kvt";
    WriteBytes(noBeams, withLine(withLine(bytes, 24, " 0 "), 25, " 0 "));
    run = sketch(noBeams, false);
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.document["reason"],
              "There are no short direction beams: a plan needs at least two beams in each "
              "direction, one at each edge, with the gaps between them.");
}

TEST(SketchCommand, WritesSvgPngAndPdfAndRefusesOtherNames) {
    ScratchFolder scratch;
    const auto settings = scratch.path() / "settings.conf";
    const std::string example = "'" + ExamplePath("uniform_line_load.kvt").string() + "'";
    const struct {
        std::string name;
        std::string start;
    } files[] = {{"plan.svg", "<?xml"}, {"plan.png", "\x89PNG"}, {"plan.pdf", "%PDF"}};
    for (const auto& file : files) {
        std::string out;
        const auto path = scratch.path() / file.name;
        EXPECT_EQ(cli(settings, "sketch " + example + " -o '" + path.string() + "'", out), 0)
            << out;
        EXPECT_EQ(FileBytes(path).substr(0, file.start.size()), file.start) << file.name;
        EXPECT_FALSE(std::filesystem::exists(path.string() + ".partial"));
    }
    std::string out;
    EXPECT_EQ(cli(settings,
                  "sketch " + example + " -o '" + (scratch.path() / "plan.txt").string() + "'",
                  out),
              1);
    EXPECT_NE(out.find("must end in .svg, .png or .pdf"), std::string::npos) << out;
    EXPECT_FALSE(std::filesystem::exists(scratch.path() / "plan.txt"));
    out.clear();
    EXPECT_EQ(cli(settings, "sketch " + example, out), 1);
    out.clear();
    EXPECT_EQ(cli(settings, "sketch " + example + " --json -o x.svg", out), 1);
    out.clear();
    EXPECT_EQ(cli(settings, "sketch " + example + " -o '/no/such/folder/plan.svg'", out), 2);
    EXPECT_NE(out.find("76"), std::string::npos) << out;
}
