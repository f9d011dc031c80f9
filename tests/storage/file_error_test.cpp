#include "storage/file_error.h"

#include "storage/field_stream.h"
#include "storage_test_support.h"

#include <csignal>
#include <sys/resource.h>
#include <tuple>

using FileErrorTest = StorageTest;

TEST_F(FileErrorTest, UnreadableFilesGiveTheirErrors) {
    const std::string head = Lines({"Korvath 3.0", " 0 ", "Mat"});
    const std::string longest(MaxLineLength, 'x');
    // clang-format off
    const std::tuple<const char*, std::string, int> cases[] = {
        {"blank lines, then the end where a number belongs", head + "\r\n  \r\n", 62},
        {"text where a number belongs", head + "abc\r\n", 13},
        {"integer beyond 16 bits", head + Lines({" 1 ", " 2 ", " 3 ", " 4 ", " 32768 "}), 6},
        {"line of the longest length", Lines({"Korvath 3.0", " 0 ", longest, " 1 ", " 2 ", " 3 ",
                                              " 4 ", "-32768 "}), 0},
        {"line one character longer", Lines({"Korvath 3.0", " 0 ", longest + "x"}), 7},
    };
    // clang-format on
    DesignRecord record;
    const auto readError = [&](auto path) { return ErrorNumberOf([&] { Open(path, 1, record); }); };
    for (const auto& [row, bytes, error] : cases) {
        WriteBytes(folder / "bad.kv1", bytes);
        EXPECT_EQ(readError(folder / "bad.kv1"), error) << row;
    }
    EXPECT_EQ(readError(folder / "missing.kvt"), 53);
    EXPECT_EQ(readError(folder / "no such folder" / "x.kvt"), 76);
    EXPECT_EQ(readError(folder), 75);
    EXPECT_EQ(readError(""), 52);
}

// A save writes the whole new file before it takes the old one's place, with its permission
// bits; a failed save leaves the old file byte for byte and no other file behind.
TEST_F(FileErrorTest, SaveReplacesTheOldFileWholeOrNotAtAll) {
    using std::filesystem::perms;
    const auto path = folder / "p.kvt";
    const perms kept = perms::owner_read | perms::owner_write | perms::others_read;
    WriteBytes(path, "previous project\r\n");
    std::filesystem::permissions(path, kept);
    WriteDesignFile(path, 0, MinimumProject());
    EXPECT_EQ(ReadBytes(path), Header + InfoLines);
    EXPECT_EQ(std::filesystem::status(path).permissions(), kept);

    // A file size limit makes the write itself fail part way, for any user; the signal that
    // would end the process is ignored so that the write reports the failure instead.
    rlimit saved{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &saved), 0);
    const rlimit small{64, saved.rlim_max};
    const auto savedHandler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const int error = ErrorNumberOf([&] { WriteDesignFile(path, AllSections, MinimumProject()); });
    ::setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, savedHandler);
    EXPECT_EQ(error, 61);
    EXPECT_EQ(ReadBytes(path), Header + InfoLines);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
}
