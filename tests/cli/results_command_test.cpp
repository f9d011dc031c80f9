#include "cli/results_command.h"
#include "tests/cli/cli_test_support.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

struct ResultsRun {
    int status;
    std::string out;
    std::string err;
};

ResultsRun results(const std::filesystem::path& project, bool json, ShowAllFlags showAll = {},
                   bool inputChecks = true) {
    ResultsOptions options;
    options.project = project;
    options.json = json;
    options.check = inputChecks;
    options.showAll = showAll;
    options.defaults = Defaults();
    std::ostringstream out, err;
    const int status = RunResultsCommand(options, out, err);
    return {status, out.str(), err.str()};
}

std::string Widened(const std::string& caption, int blanks) {
    return std::string(blanks, ' ') + caption + std::string(blanks, ' ');
}

} // namespace

TEST(ResultsCommand, JsonGivesTheTabStripsAndEveryControlOfEachExample) {
    const struct {
        const char* example;
        int mainTabs;
        int ribbedTabs;
        int uniformTabs;
        std::string ribbedFirst;
        std::string ribbedFifth;
        std::string slab; // the design summary's dimensions, from the file's rectangle
    } cases[] = {
        {"expansive_ribbed.kvt", 2, 7, 6, "Design Summary", "Edge Lift Analysis",
         "40.00 FT x 60.00 FT x 4.00 Inches thick"},
        {"compressible_edge_down.kvt", 2, 7, 6, Widened("Design Summary", 13), "Edge Down Analysis",
         "36.00 FT x 54.00 FT x 5.00 Inches thick"},
        {"uniform_line_load.kvt", 4, 7, 6, "Design Summary", "Edge Lift Analysis",
         "50.00 FT x 80.00 FT x 5.00 Inches thick"},
    };
    for (const auto& c : cases) {
        const ResultsRun run = results(ExamplePath(c.example), true);
        ASSERT_EQ(run.status, 0) << c.example << run.err;
        const auto document = nlohmann::json::parse(run.out);
        EXPECT_EQ(document["version"], 3);
        EXPECT_TRUE(document["fault"].is_null());
        const auto& tabs = document["tabs"];
        EXPECT_EQ(tabs["tabMain"]["count"], c.mainTabs) << c.example;
        EXPECT_EQ(tabs["tabMain"]["captions"].size(), static_cast<std::size_t>(c.mainTabs));
        EXPECT_EQ(tabs["tabMain"]["selected"], 1);
        EXPECT_EQ(tabs["tabRibbed"]["count"], c.ribbedTabs) << c.example;
        EXPECT_EQ(tabs["tabUniform"]["count"], c.uniformTabs) << c.example;
        EXPECT_EQ(tabs["tabRibbed"]["captions"]["1"], c.ribbedFirst) << c.example;
        EXPECT_EQ(tabs["tabRibbed"]["captions"]["5"], c.ribbedFifth) << c.example;

        const auto& controls = document["controls"];
        EXPECT_EQ(controls["lblWLT"]["text"], c.slab) << c.example;
        for (const char* name : {"lblCLMS", "lblcPMT(1)", "lbleqcCLNMT(0)", "lblFT(8)",
                                 "RibbedSummary(2)", "rtbRibbedDC", "lblSlab(1)", "EqDepth(0)"}) {
            ASSERT_TRUE(controls.contains(name)) << name;
            const auto& control = controls[name];
            EXPECT_TRUE(control.contains("text") && control.contains("visible") &&
                        control.contains("bold") && control.contains("red"))
                << name;
        }
        EXPECT_FALSE(controls["chkRibbedDC"]["checked"].get<bool>());
    }
}

TEST(ResultsCommand, TextShowsEachTabWithItsRowsAligned) {
    const ResultsRun run = results(ExamplePath("uniform_line_load.kvt"), false);
    ASSERT_EQ(run.status, 0) << run.err;
    // The main tabs in order, each strip's tabs under its foundation.
    std::size_t at = 0;
    for (const char* title :
         {"== Project Summary ==", "== Ribbed Foundation ==", "-- Design Summary --",
          "-- Selected Variables --", "== Uniform Thickness Foundation ==",
          "-- Prestress Summary / Selected Variables --", "== Line Load Analysis =="}) {
        at = run.out.find(std::string("\n") + title + "\n", at);
        ASSERT_NE(at, std::string::npos) << title << "\n" << run.out;
    }
    // The rectangle is 50 x 80 ft with a 5 in slab.
    EXPECT_NE(run.out.find("  Slab Dimensions :  "), std::string::npos);
    EXPECT_NE(run.out.find("50.00 FT x 80.00 FT x 5.00 Inches thick\n"), std::string::npos);
    EXPECT_NE(run.out.find("Calculated Moment (5.00 In.Thick Slab) :"), std::string::npos);

    // The value columns end at the same place on every row of a page.
    const std::size_t heads = run.out.find("Short Direction   Long Direction\n");
    ASSERT_NE(heads, std::string::npos);
    const std::size_t headsEnd = heads + std::string("Short Direction   Long Direction").size() -
                                 (run.out.rfind('\n', heads) + 1);
    const std::size_t row = run.out.find("  Actual Stress :", heads);
    const std::size_t rowEnd = run.out.find('\n', row);
    EXPECT_EQ(rowEnd - row, headsEnd) << run.out.substr(row, rowEnd - row);
}

TEST(ResultsCommand, DisplayAllFlagsCheckTheirBoxesAndListEveryValue) {
    const ResultsRun run = results(ExamplePath("uniform_line_load.kvt"), true,
                                   {.ShowAllRibbed = 1, .ShowAllLineLoad = 1});
    ASSERT_EQ(run.status, 0) << run.err;
    const auto controls = nlohmann::json::parse(run.out)["controls"];
    EXPECT_TRUE(controls["chkRibbedDC"]["checked"].get<bool>());
    EXPECT_FALSE(controls["chkUniformDC"]["checked"].get<bool>());
    EXPECT_TRUE(controls["chkRibbedLLDC"]["checked"].get<bool>());
    const std::string within = "ALL VALUES WITHIN ALLOWABLE LIMITS.";
    EXPECT_EQ(controls["rtbRibbedDC"]["text"].get<std::string>().find(within), std::string::npos);
    EXPECT_NE(controls["rtbUniformDC"]["text"].get<std::string>().find(within), std::string::npos);
}

TEST(ResultsCommand, InputErrorsAndFaultsGiveTheirStatusAndNoScreen) {
    ScratchFolder scratch;
    // A single long beam: QL1 (line 26, from 0) set to 1 and QL2 to 0.
    const auto oneBeam = scratch.path() / "one_beam.kvt";
    WriteBytes(
        oneBeam,
        withLine(withLine(FileBytes(ExamplePath("expansive_ribbed.kvt")), 26, " 1 "), 27, " 0 "));
    ResultsRun run = results(oneBeam, true);
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(nlohmann::json::parse(run.out)["inputError"]["control"], "txtQL1");

    run = results(oneBeam, true, {}, false);
    EXPECT_EQ(run.status, 3);
    const auto document = nlohmann::json::parse(run.out);
    EXPECT_EQ(document["fault"]["kind"], "division by zero");
    EXPECT_EQ(document["fault"]["stage"], 3);
    EXPECT_TRUE(document["tabs"].is_null());
    EXPECT_TRUE(document["controls"].is_null());

    run = results(oneBeam, false, {}, false);
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("division by zero in stage 3 (soil bearing)"), std::string::npos);

    EXPECT_EQ(results(scratch.path() / "missing.kvt", false).status, 2);
}
