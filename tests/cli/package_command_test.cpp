#include "cli/checks_command.h"
#include "cli/file_digest.h"
#include "cli/package_command.h"
#include "storage/design_file.h"
#include "tests/cli/cli_test_support.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <sys/wait.h>

namespace {

class FixedClock : public Clock {
  public:
    std::string TodayLongDate() const override { return "November 25, 2026"; }
    std::string TodayShortDate() const override { return "11/25/2026"; }
    std::string TimeOfDay() const override { return "11:05:09 AM"; }
};

struct PackageRun {
    int status;
    nlohmann::json document;
    std::string err;
    nlohmann::ordered_json ordered; // the same, with its keys in the order printed
};

PackageRun package(const std::filesystem::path& project, bool inputChecks = true) {
    static const FixedClock clock;
    PackageOptions options;
    options.project = project;
    options.json = true;
    options.firm = "Brellin Works Structural";
    options.license = "PE 12345";
    options.defaults = Defaults();
    options.clock = &clock;
    options.check = inputChecks;
    std::ostringstream out, err;
    const int status = RunPackageCommand(options, out, err);
    return {status, nlohmann::json::parse(out.str()), err.str(),
            nlohmann::ordered_json::parse(out.str())};
}

nlohmann::json checks(const std::filesystem::path& project) {
    ChecksOptions options;
    options.project = project;
    options.json = true;
    options.defaults = Defaults();
    std::ostringstream out, err;
    RunChecksCommand(options, out, err);
    return nlohmann::json::parse(out.str());
}

// The texts of one sheet.
std::vector<std::string> Texts(const nlohmann::json& sheet) {
    std::vector<std::string> texts;
    for (const auto& t : sheet["texts"]) {
        texts.push_back(t["text"]);
    }
    return texts;
}

bool Contains(const std::vector<std::string>& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
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

// The expansive example with a single long beam: the bearing area divides by nought in stage 3.
std::filesystem::path FaultingProject(const std::filesystem::path& folder) {
    DesignRecord record = Defaults();
    ReadDesignFile(ExamplePath("expansive_ribbed.kvt"), AllSections, record, record, {});
    record.QL1 = 1;
    record.QL2 = 0;
    const std::filesystem::path path = folder / "one_long_beam.kvt";
    WriteDesignFile(path, AllSections, record);
    return path;
}

} // namespace

// The SHA-256 of known bytes, as published for the algorithm: "abc" and the empty file.
TEST(PackageCommand, Sha256OfKnownFiles) {
    ScratchFolder scratch;
    WriteBytes(scratch.path() / "abc.kvt", "abc");
    WriteBytes(scratch.path() / "empty.kvt", "");
    EXPECT_EQ(FileSha256(scratch.path() / "abc.kvt"),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(FileSha256(scratch.path() / "empty.kvt"),
              "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_FALSE(FileSha256(scratch.path() / "missing.kvt").has_value());
}

// The JSON has the shape of the issue, the verdict and governing check of `checks`, and the cover
// carries the file's name, its SHA-256, the firm and the license.
TEST(PackageCommand, JsonAgreesWithTheChecksAndTracesTheFile) {
    for (const char* name :
         {"expansive_ribbed.kvt", "compressible_edge_down.kvt", "uniform_line_load.kvt"}) {
        SCOPED_TRACE(name);
        const PackageRun run = package(ExamplePath(name));
        ASSERT_EQ(run.status, 0) << run.err;
        const nlohmann::json& d = run.document;
        std::vector<std::string> keys;
        for (const auto& item : run.ordered.items()) {
            keys.push_back(item.key());
        }
        EXPECT_EQ(keys, (std::vector<std::string>{"version", "fault", "verdict", "governing",
                                                  "sheets", "pages"}));
        EXPECT_TRUE(d["fault"].is_null());
        const nlohmann::json table = checks(ExamplePath(name));
        EXPECT_EQ(d["verdict"], table["verdict"]);
        EXPECT_EQ(d["governing"], table["governing"]);
        EXPECT_EQ(d["sheets"].get<std::size_t>(), d["pages"].size());
        const std::vector<std::string> cover = Texts(d["pages"][0]);
        EXPECT_TRUE(Contains(cover, name));
        EXPECT_TRUE(Contains(cover, *FileSha256(ExamplePath(name))));
        EXPECT_TRUE(Contains(cover, "Brellin Works Structural"));
        EXPECT_TRUE(Contains(cover, "PE 12345"));
        EXPECT_TRUE(Contains(cover, "November 25, 2026, 11:05:09 AM"));
        EXPECT_TRUE(Contains(cover, "Design of Post-Tensioned Slabs-on-Ground, 3rd Edition, "
                                    "Post-Tensioning Institute"));
    }
}

// A run that faults: one sheet that says which stage and why, the fault in the JSON, no verdict,
// and a one-page PDF moved into place whole; a PDF for a folder that does not exist is refused.
TEST(PackageCommand, FaultedRunGivesOnePageAndPdfIsWrittenWhole) {
    ScratchFolder scratch;
    const std::filesystem::path faulting = FaultingProject(scratch.path());
    // The input checks would stop the record before the analysis: it runs as it stands.
    const PackageRun run = package(faulting, false);
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.document["fault"]["stage"], 3);
    EXPECT_TRUE(run.document["verdict"].is_null());
    EXPECT_TRUE(run.document["governing"].is_null());
    ASSERT_EQ(run.document["sheets"], 1);
    EXPECT_TRUE(Contains(Texts(run.document["pages"][0]),
                         "The analysis stopped: division by zero in stage 3 (soil bearing)."));
    EXPECT_NE(run.err.find("stage 3"), std::string::npos);

    const auto settings = scratch.path() / "settings.conf";
    const auto good = scratch.path() / "good.pdf";
    std::string out;
    EXPECT_EQ(cli(settings,
                  "package '" + ExamplePath("uniform_line_load.kvt").string() + "' -o '" +
                      good.string() + "' --firm 'Brellin Works' --license 'PE 1'",
                  out),
              0)
        << out;
    EXPECT_NE(out.find("sheets of the calculation package"), std::string::npos) << out;
    EXPECT_EQ(FileBytes(good).substr(0, 4), "%PDF");
    EXPECT_FALSE(std::filesystem::exists(good.string() + ".partial"));
    out.clear();
    const auto bad = scratch.path() / "fault.pdf";
    EXPECT_EQ(cli(settings,
                  "package --no-check '" + faulting.string() + "' -o '" + bad.string() + "'", out),
              3);
    EXPECT_EQ(FileBytes(bad).substr(0, 4), "%PDF");
    EXPECT_FALSE(std::filesystem::exists(bad.string() + ".partial"));
    out.clear();
    EXPECT_EQ(cli(settings,
                  "package --no-check '" + faulting.string() + "' -o '/no/such/folder/package.pdf'",
                  out),
              2);
    out.clear();
    EXPECT_EQ(cli(settings, "package '" + faulting.string() + "'", out), 1);
}

// A soil sensitivity study adds its page after the key results and before the line load page;
// a range the study cannot run (a count, not a real value) is refused before anything is drawn.
TEST(PackageCommand, SensitivityPageStandsAfterTheKeyResults) {
    static const FixedClock clock;
    const auto run = [](std::vector<std::string> sensitivity, std::string& err) {
        PackageOptions options;
        options.project = ExamplePath("uniform_line_load.kvt");
        options.json = true;
        options.defaults = Defaults();
        options.clock = &clock;
        options.sensitivity = std::move(sensitivity);
        std::ostringstream out, errors;
        const int status = RunPackageCommand(options, out, errors);
        err = errors.str();
        return std::make_pair(status, nlohmann::json::parse(out.str()));
    };
    std::string err;
    const auto [plainStatus, plain] = run({}, err);
    const auto [status, studied] = run({"EmEdge=3:6:1.5", "YmEdge=1:2:0.5"}, err);
    ASSERT_EQ(plainStatus, 0);
    ASSERT_EQ(status, 0) << err;
    EXPECT_EQ(studied["sheets"].get<int>(), plain["sheets"].get<int>() + 1);
    // The title of each sheet is its first bold 13 point text.
    std::vector<std::string> titles;
    for (const auto& sheet : studied["pages"]) {
        for (const auto& t : sheet["texts"]) {
            if (t["size"] == 13.0 && t["bold"] == true) {
                titles.push_back(t["text"]);
                break;
            }
        }
    }
    const auto study = std::find(titles.begin(), titles.end(), "Soil sensitivity");
    ASSERT_NE(study, titles.end());
    EXPECT_EQ(study[-1].rfind("Key results", 0), 0u);
    EXPECT_EQ(study[1], "Line load");

    const auto [refused, document] = run({"QS1=4:6"}, err);
    EXPECT_EQ(refused, 1);
    EXPECT_TRUE(document.contains("error"));
}
