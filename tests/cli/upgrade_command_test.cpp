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
        ASSERT_EQ(RunUpgradeCommand(ExamplePath(name), output, err), 0) << err.str();
        EXPECT_EQ(err.str(), "");
        EXPECT_EQ(FileBytes(output), FileBytes(ExamplePath(name))) << name;
    }
}

TEST(UpgradeCommand, AVersionTwoFileIsAnnouncedAndWrittenInTheCurrentFormat) {
    ScratchFolder scratch;
    // A version 2 project: no slab tendon cover pair beyond 0/1, no CLSettleState, SGFC among
    // the soil values, no SGFC at the end, no DefCLSettle.
    const std::string version2 =
        "Korvath 2.0\r\n 0 \r\n"
        "Old job\r\nMay 1, 2004\r\n04-12\r\nEng\r\nGeo\r\nG-1\r\nApril 2, 2004\r\n 0 \r\n"
        "Mat\r\n 3000 \r\n 1500000 \r\n 145 \r\n 270 \r\n 2 \r\n"
        "Rect\r\n 1 \r\n 50 \r\n 60 \r\n 0 \r\n 4 \r\n 40 \r\n 60 \r\n"
        " 7 \r\n 0 \r\n 5 \r\n 0 \r\n"
        " 24 \r\n 24 \r\n 24 \r\n 24 \r\n 12 \r\n 12 \r\n 12 \r\n 12 \r\n"
        " 1 \r\n 0 \r\n 1 \r\n 0 \r\n 3 \r\n 3 \r\n 3 \r\n 3 \r\n 1 \r\n 1 \r\n"
        "Soil\r\n 0 \r\n 2000 \r\n 5.5 \r\n 4 \r\n 2.5 \r\n 1.2 \r\n 1500 \r\n 0 \r\n .6 \r\n 1000 "
        "\r\n"
        " 40 \r\n 1500 \r\n 0 \r\n 480 \r\n 960 \r\n 960 \r\n 0 \r\n 15 \r\n"
        " 0 \r\n";
    const auto input = scratch.path() / "old.kvt";
    WriteBytes(input, version2);
    std::ostringstream err;
    const auto output = scratch.path() / "new.kvt";
    ASSERT_EQ(RunUpgradeCommand(input, output, err), 0) << err.str();
    EXPECT_EQ(err.str(), "korvath3-cli: Opening Korvath Win 2.x file\n"
                         "The file being opened was created in Korvath 2.x.\n"
                         "When saved it will be updated to version 3.x format.\n");
    const std::string written = FileBytes(output);
    EXPECT_TRUE(written.starts_with("Korvath 3.0\r\n 0 \r\nOld job\r\n"));
    // The soil section ends with Es after Settle, as SGFC moved to the load section's end.
    EXPECT_NE(written.find(" 1500 \r\n 0 \r\n 1000 \r\n 40 \r\n"), std::string::npos) << written;
    EXPECT_TRUE(written.ends_with(" 15 \r\n .6 \r\n 0 \r\n")) << written;
}

TEST(UpgradeCommand, ReadAndWriteFailuresGiveStatusTwoAndKeepTheOldFile) {
    ScratchFolder scratch;
    std::ostringstream err;
    EXPECT_EQ(RunUpgradeCommand(scratch.path() / "none.kvt", scratch.path() / "out.kvt", err), 2);
    EXPECT_NE(err.str().find("53: File not found"), std::string::npos) << err.str();
    EXPECT_FALSE(std::filesystem::exists(scratch.path() / "out.kvt"));

    // A folder that does not exist cannot take the new file.
    err.str("");
    EXPECT_EQ(RunUpgradeCommand(ExamplePath("expansive_ribbed.kvt"),
                                scratch.path() / "no" / "such" / "out.kvt", err),
              2);
    EXPECT_NE(err.str().find("Error Saving File - 76: Path not found"), std::string::npos)
        << err.str();
}
