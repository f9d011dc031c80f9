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

// Runs korvath3-cli with `arguments` through the shell, standard error joined to the output.
Outcome cli(const std::string& arguments) {
    const std::string command =
        std::string(K3_BINARY_DIR) + "/bin/korvath3-cli " + arguments + " 2>&1";
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
    ScratchFolder scratch;
    std::string binary;
    for (int i = 0; i < 4096; ++i) {
        binary += static_cast<char>((i * 7919) % 256);
    }
    WriteBytes(scratch.path() / "binary.kvt", binary);
    run = cli("analyze '" + (scratch.path() / "binary.kvt").string() + "' --json");
    EXPECT_EQ(run.status, 2) << run.out;
    EXPECT_NE(run.out.find("Opening Korvath Win 1.x file"), std::string::npos);
}
