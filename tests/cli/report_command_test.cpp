#include "cli/report_command.h"
#include "tests/cli/cli_test_support.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

struct ReportRun {
    int status;
    nlohmann::json document;
    std::string err;
};

ReportRun report(const std::filesystem::path& project, PrintRange range, bool colour,
                 std::vector<int> pages = {}, bool inputChecks = true) {
    ReportOptions options;
    options.project = project;
    options.json = true;
    options.range = range;
    options.pages = std::move(pages);
    options.colour = colour;
    options.check = inputChecks;
    options.defaults = Defaults();
    std::ostringstream out, err;
    const int status = RunReportCommand(options, out, err);
    return {status, nlohmann::json::parse(out.str()), err.str()};
}

// The texts of a sheet that read `text`.
std::vector<nlohmann::json> TextsReading(const nlohmann::json& sheet, const std::string& text) {
    std::vector<nlohmann::json> found;
    for (const auto& t : sheet["texts"]) {
        if (t["text"] == text) {
            found.push_back(t);
        }
    }
    return found;
}

} // namespace

TEST(ReportCommand, JsonHoldsEverySheetAsTheRecordingSurfaceReceivedIt) {
    const ReportRun plain = report(ExamplePath("expansive_ribbed.kvt"), PrintRange::Entire, false);
    ASSERT_EQ(plain.status, 0) << plain.err;
    const nlohmann::json& document = plain.document;
    std::vector<std::string> keys;
    for (const auto& [key, value] : document.items()) {
        keys.push_back(key);
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"fault", "pages", "sheets", "version", "warning"}));
    EXPECT_EQ(document["version"], 3);
    EXPECT_TRUE(document["fault"].is_null());
    EXPECT_TRUE(document["warning"].is_null());
    // Design summary, compliance, results (two sheets), selected variables, input data (two
    // sheets) and exceptions.
    EXPECT_EQ(document["sheets"], 8);
    ASSERT_EQ(document["pages"].size(), 8u);
    for (std::size_t i = 0; i < 8; ++i) {
        const auto& sheet = document["pages"][i];
        // "Bg" is 23 twips a point high on the recording surface: 10, 12 and 14 point.
        EXPECT_EQ(sheet["lineHeights"], nlohmann::json({230, 276, 322})) << i;
        EXPECT_EQ(TextsReading(sheet, "Page " + std::to_string(i + 1) + " of 8").size(), 1u) << i;
        // The header's first rule runs from 940 to 9640 twips, 4 wide.
        const auto& rule = sheet["lines"][0];
        EXPECT_EQ(rule["x1"], 940);
        EXPECT_EQ(rule["x2"], 9640);
        EXPECT_EQ(rule["y1"], rule["y2"]);
        EXPECT_EQ(rule["width"], 4);
        for (const auto& text : sheet["texts"]) {
            ASSERT_EQ(text.size(), 7u) << text.dump();
            EXPECT_FALSE(text["red"].get<bool>()) << text.dump();
        }
    }

    // The cracked capacity of the short beams is out of its limit: on the compliance page it is
    // bold in black, or red with the colour option.
    const std::string cracked = "CRACKED MOMENT CAPACITY IN SHORT DIRECTION : 121.3%";
    const auto black = TextsReading(document["pages"][1], cracked);
    ASSERT_EQ(black.size(), 1u);
    EXPECT_TRUE(black[0]["bold"].get<bool>());
    const ReportRun coloured =
        report(ExamplePath("expansive_ribbed.kvt"), PrintRange::Entire, true);
    const auto red = TextsReading(coloured.document["pages"][1], cracked);
    ASSERT_EQ(red.size(), 1u);
    EXPECT_TRUE(red[0]["red"].get<bool>());
    EXPECT_EQ(red[0]["x"], black[0]["x"]);
    EXPECT_EQ(red[0]["y"], black[0]["y"]);
}

TEST(ReportCommand, FaultsAndNothingToPrintGiveOneObjectWithoutSheets) {
    ScratchFolder scratch;
    // A single long beam, run without the input checks, divides by zero in the soil bearing.
    const auto oneBeam = scratch.path() / "one_beam.kvt";
    WriteBytes(
        oneBeam,
        withLine(withLine(FileBytes(ExamplePath("expansive_ribbed.kvt")), 26, " 1 "), 27, " 0 "));
    ReportRun run = report(oneBeam, PrintRange::Entire, false, {}, false);
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.document["fault"], nlohmann::json({{"kind", "division by zero"}, {"stage", 3}}));
    EXPECT_EQ(run.document["sheets"], 0);
    EXPECT_TRUE(run.document["pages"].empty());
    EXPECT_FALSE(run.document.contains("error"));

    // Only the uniform foundation's pages, which this project does not have.
    run = report(ExamplePath("expansive_ribbed.kvt"), PrintRange::Selected, false, {4, 5, 6});
    EXPECT_EQ(run.status, 5);
    const std::string warning = "the range holds no page to print; nothing is written";
    EXPECT_EQ(run.document["warning"], warning);
    EXPECT_EQ(run.document["sheets"], 0);
    EXPECT_EQ(run.document["error"]["number"], 5);
    EXPECT_EQ(run.document["error"]["message"], warning);
}
