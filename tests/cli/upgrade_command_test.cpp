#include "cli/upgrade_command.h"
#include "tests/cli/cli_test_support.h"

#include <gtest/gtest.h>
#include <sstream>

TEST(UpgradeCommand, CurrentExamplesComeBackByteForByte) {
    ScratchFolder scratch;
    for (const char* name :
         {"expansive_ribbed.kvt", "compressible_edge_down.kvt", "uniform_line_load.kvt"}) {
        std::ostringstream err;
        const auto output = scratch.path() / name;
        ASSERT_EQ(RunUpgradeCommand(ExamplePath(name), output, Defaults(), err), 0) << err.str();
        EXPECT_EQ(err.str(), "");
        EXPECT_EQ(FileBytes(output), FileBytes(ExamplePath(name))) << name;
    }
}

TEST(UpgradeCommand, ReadAndWriteFailuresGiveStatusTwoAndKeepTheOldFile) {
    ScratchFolder scratch;
    std::ostringstream err;
    EXPECT_EQ(
        RunUpgradeCommand(scratch.path() / "none.kvt", scratch.path() / "out.kvt", Defaults(), err),
        2);
    EXPECT_NE(err.str().find("53: File not found"), std::string::npos) << err.str();
    EXPECT_FALSE(std::filesystem::exists(scratch.path() / "out.kvt"));

    // A folder that does not exist cannot take the new file.
    err.str("");
    EXPECT_EQ(RunUpgradeCommand(ExamplePath("expansive_ribbed.kvt"),
                                scratch.path() / "no" / "such" / "out.kvt", Defaults(), err),
              2);
    EXPECT_NE(err.str().find("Error Saving File - 76: Path not found"), std::string::npos)
        << err.str();
}
