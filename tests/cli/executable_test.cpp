// The executable as a batch script sees it: its exit status and its streams.

#include "tests/cli/cli_test_support.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace {

struct Outcome {
    int status;
    std::string out;
};

// Runs korvath3-cli with `arguments` through the shell, standard error joined to the output,
// with its settings in `settings` so that no test touches the user's own.
Outcome cli(const std::filesystem::path& settings, const std::string& arguments) {
    const std::string command = "KORVATH3_SETTINGS='" + settings.string() + "' " +
                                std::string(K3_BINARY_DIR) + "/bin/korvath3-cli " + arguments +
                                " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    std::string out;
    char buffer[4096];
    while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe)) {
        out.append(buffer, n);
    }
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, out};
}

} // namespace

TEST(Executable, ExitStatusTellsAnalysedBadUsageAndFileError) {
    ScratchFolder scratch;
    const auto settings = scratch.path() / "settings.conf";
    const auto cli = [&](const std::string& arguments) { return ::cli(settings, arguments); };
    const std::string example = ExamplePath("uniform_line_load.kvt").string();
    Outcome run = cli("analyze '" + example + "' --use-beta 1 --no-check");
    EXPECT_EQ(run.status, 0) << run.out;
    EXPECT_NE(run.out.find("Hilltop Storage Warehouse"), std::string::npos);

    EXPECT_EQ(cli("").status, 1);
    EXPECT_EQ(cli("analyze").status, 1);
    EXPECT_EQ(cli("analyze '" + example + "' --use-beta 2").status, 1);
    EXPECT_EQ(cli("frobnicate").status, 1);
    EXPECT_EQ(cli("upgrade '" + example + "'").status, 1);
    EXPECT_EQ(cli("--help").status, 0);

    run = cli("analyze /nonexistent/folder/x.kvt");
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.out.find("76: Path not found"), std::string::npos) << run.out;

    // A binary file is taken for a version 1 project and fails in reading, without a crash.
    std::string binary;
    for (int i = 0; i < 4096; ++i) {
        binary += static_cast<char>((i * 7919) % 256);
    }
    WriteBytes(scratch.path() / "binary.kvt", binary);
    run = cli("analyze '" + (scratch.path() / "binary.kvt").string() + "' --json");
    EXPECT_EQ(run.status, 2) << run.out;
    EXPECT_NE(run.out.find("Opening Korvath Win 1.x file"), std::string::npos);
}

TEST(Executable, OptionsAndNewProjectsComeFromTheSettingsStore) {
    ScratchFolder scratch;
    const auto settings = scratch.path() / "settings.conf";
    const std::string example = ExamplePath("expansive_ribbed.kvt").string();
    // The first run writes every default; ShowDD is never written.
    Outcome run = cli(settings, "analyze '" + example + "'");
    EXPECT_NE(run.out.find("Options:    UseBeta 0, UseBeamOnly 0, ShowDD 0"), std::string::npos);
    std::string stored = FileBytes(settings);
    EXPECT_EQ(stored.find("ShowDD"), std::string::npos);

    // The stored options count unless a flag says otherwise.
    const std::string programData = "[Program%20Data]\n";
    stored.replace(stored.find(programData), programData.size(), programData + "ShowDD=1\n");
    stored.replace(stored.find("UseBeta=0"), 9, "UseBeta=1");
    stored.replace(stored.find("Fpc=3000"), 8, "Fpc=4500");
    WriteBytes(settings, stored);
    run = cli(settings, "analyze '" + example + "' --use-beta 0");
    EXPECT_NE(run.out.find("Options:    UseBeta 0, UseBeamOnly 0, ShowDD 1"), std::string::npos)
        << run.out;

    // A new project starts from the stored default record.
    const auto project = scratch.path() / "new.kvt";
    EXPECT_EQ(cli(settings, "new --kind compressible -o '" + project.string() + "'").status, 0);
    EXPECT_EQ(cli(settings, "new --kind clay -o '" + project.string() + "'").status, 1);
    run = cli(settings, "analyze '" + project.string() + "' --json --no-check");
    const std::string json = run.out.substr(run.out.find('{'));
    EXPECT_NE(json.find("\"Fpc\": 4500"), std::string::npos);
    EXPECT_NE(json.find("\"SoilType\": 1"), std::string::npos);
    EXPECT_NE(json.find("\"ProjDate\": \""), std::string::npos);
}

TEST(Executable, ReportWritesAWholePdfOrNothing) {
    ScratchFolder scratch;
    const auto settings = scratch.path() / "settings.conf";
    const auto cli = [&](const std::string& arguments) { return ::cli(settings, arguments); };
    const std::string example = ExamplePath("expansive_ribbed.kvt").string();
    const auto pdf = scratch.path() / "report.pdf";

    // The entire report of a ribbed foundation on expansive soil without uniform foundation or
    // line load: design summary, compliance, results (two sheets), selected variables, input data
    // (two sheets) and exceptions.
    Outcome run = cli("report '" + example + "' -o '" + pdf.string() + "' --range entire");
    ASSERT_EQ(run.status, 0) << run.out;
    EXPECT_NE(run.out.find("Wrote 8 sheets of the report to"), std::string::npos) << run.out;
    const std::string bytes = FileBytes(pdf);
    EXPECT_EQ(bytes.substr(0, 5), "%PDF-");

    // Only the uniform foundation's pages, which this project does not have: the warning, exit
    // 5, and the PDF of before untouched.
    run = cli("report '" + example + "' -o '" + pdf.string() + "' --range selected --pages 4,5");
    EXPECT_EQ(run.status, 5) << run.out;
    EXPECT_EQ(FileBytes(pdf), bytes);

    // A folder that does not exist: a file error, nothing written.
    run = cli("report '" + example + "' -o '" + (scratch.path() / "none" / "r.pdf").string() + "'");
    EXPECT_EQ(run.status, 2) << run.out;
    EXPECT_NE(run.out.find("Error writing report - 76: Path not found"), std::string::npos)
        << run.out;
    EXPECT_FALSE(std::filesystem::exists(scratch.path() / "none"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(scratch.path()),
                            std::filesystem::directory_iterator()),
              2); // the settings and the first PDF, no partial file
}

TEST(Executable, ABrokenSettingsFileIsLeftAsItIsAndTheRunTakesTheFactoryDefaults) {
    ScratchFolder scratch;
    const auto settings = scratch.path() / "settings.conf";
    const std::string example = ExamplePath("expansive_ribbed.kvt").string();
    std::string broken = "[Program%20Data]\nUseBeta=1\n";
    broken += '\0';
    broken += "\xff\xfe half a settings file";
    WriteBytes(settings, broken);

    Outcome run = cli(settings, "analyze '" + example + "'");
    EXPECT_EQ(run.status, 0) << run.out;
    const std::string notice = "korvath3-cli: Korvath Settings: The settings file " +
                               settings.string() +
                               " is not a settings file. Korvath 3.0 starts with the factory "
                               "defaults and does not write the file in this run.\n";
    EXPECT_EQ(run.out.find(notice), 0u) << run.out;
    EXPECT_EQ(run.out.find("Korvath Settings", notice.size()), std::string::npos);
    EXPECT_NE(run.out.find("Options:    UseBeta 0, UseBeamOnly 0, ShowDD 0"), std::string::npos);
    EXPECT_EQ(FileBytes(settings), broken);

    // A new project of the same kind of run takes the factory default record; the file stays.
    const auto project = scratch.path() / "new.kvt";
    run = cli(settings, "new --kind expansive -o '" + project.string() + "'");
    EXPECT_EQ(run.status, 0) << run.out;
    EXPECT_EQ(FileBytes(settings), broken);
    EXPECT_TRUE(std::filesystem::exists(project));
}

// The search as a script runs it: the same JSON on one thread or two, the best written and
// analysed, and a bad range refused with status 1 and one error object.
TEST(Executable, OptimizeGivesTheSameAnswerOnOneThreadOrTwo) {
    ScratchFolder scratch;
    const auto settings = scratch.path() / "settings.conf";
    const auto cli = [&](const std::string& arguments) { return ::cli(settings, arguments); };
    const std::string example = ExamplePath("expansive_ribbed.kvt").string();
    const std::string search = "optimize '" + example +
                               "' --vary ForceShort=0.1:0.3:0.05,ForceLong=0.1:0.3:0.05 "
                               "--vary DS1=20:30:2,QS1=4:6 --objective tendons --top 4 --json";
    const Outcome one = cli(search + " --threads 1");
    const Outcome two =
        cli(search + " --threads 2 -o '" + (scratch.path() / "best.kvt").string() + "'");
    ASSERT_EQ(one.status, 0) << one.out;
    EXPECT_EQ(two.status, 0) << two.out;
    EXPECT_EQ(two.out, one.out);
    const std::string tendons = "\"TendonLength\": ";
    const std::size_t at = one.out.find(tendons);
    ASSERT_NE(at, std::string::npos);
    const std::string best = one.out.substr(at, one.out.find('\n', at) - at);
    const Outcome analysed = cli("analyze '" + (scratch.path() / "best.kvt").string() + "' --json");
    EXPECT_EQ(analysed.status, 0);
    EXPECT_NE(analysed.out.find(best), std::string::npos) << best;

    const Outcome refused = cli("optimize '" + example + "' --vary DS1=20:30:0 --json");
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.out.find("\"message\": \"the step of \\\"DS1=20:30:0\\\" is 0\""),
              std::string::npos)
        << refused.out;
    EXPECT_EQ(cli("optimize '" + example + "'").status, 1);
    EXPECT_EQ(cli("optimize '" + example + "' --vary DS1=20:22 --objective mass").status, 1);
}
