#include "storage/file_error.h"

#include "storage/design_file.h"
#include "storage/line_reader.h"
#include "storage_test_support.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <limits>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {
// The number of the FileError that `action` throws, or 0 when it throws none.
template <typename Action> int ErrorNumberOf(Action action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.number();
    }
    return 0;
}

int ReadError(const std::filesystem::path& path, int selector = AllSections) {
    DesignRecord record;
    return ErrorNumberOf([&] { ReadDesignFile(path, selector, record, DesignRecord{}, {}); });
}

int WriteError(const std::filesystem::path& path, const DesignRecord& record = DesignRecord{}) {
    return ErrorNumberOf([&] { WriteDesignFile(path, AllSections, record); });
}

// Names in the folder, to see that a failed save leaves no temporary file behind.
std::vector<std::string> Listing(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}
} // namespace

using FileErrorTest = StorageTest;

TEST(FileErrorText, ClassicNumbersAndDescriptions) {
    const std::pair<int, const char*> table[] = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {7, "Out of memory"},
        {11, "Division by zero"},
        {13, "Type mismatch"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {57, "Device I/O error"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {70, "Permission denied"},
        {75, "Path/File access error"},
        {76, "Path not found"},
    };
    for (const auto& [number, description] : table) {
        const FileError error(number);
        EXPECT_EQ(error.number(), number);
        EXPECT_EQ(error.description(), description);
        EXPECT_EQ(ErrorDescription(number), description);
    }
    EXPECT_STREQ(FileError(53).what(), "Error 53: File not found");

    const std::filesystem::path somewhere = "/tmp/x.kvt";
    EXPECT_EQ(ErrorNumberForSystemError(EACCES, somewhere), 70);
    EXPECT_EQ(ErrorNumberForSystemError(EPERM, somewhere), 70);
    EXPECT_EQ(ErrorNumberForSystemError(EROFS, somewhere), 70);
    EXPECT_EQ(ErrorNumberForSystemError(EISDIR, somewhere), 75);
    EXPECT_EQ(ErrorNumberForSystemError(ENOSPC, somewhere), 61);
    EXPECT_EQ(ErrorNumberForSystemError(EDQUOT, somewhere), 61);
    EXPECT_EQ(ErrorNumberForSystemError(EFBIG, somewhere), 61);
    EXPECT_EQ(ErrorNumberForSystemError(ENAMETOOLONG, somewhere), 52);
    EXPECT_EQ(ErrorNumberForSystemError(EIO, somewhere), 57);
    EXPECT_EQ(ErrorNumberForSystemError(ENOENT, ""), 52);
}

TEST(NumberConversion, IntegersRoundHalfToEvenWithinSixteenBits) {
    EXPECT_EQ(Int16FromNumber(2.5), 2);
    EXPECT_EQ(Int16FromNumber(3.5), 4);
    EXPECT_EQ(Int16FromNumber(-0.5), 0);
    EXPECT_EQ(Int16FromNumber(-1.5), -2);
    EXPECT_EQ(Int16FromNumber(2.4999), 2);
    EXPECT_EQ(Int16FromNumber(32767.4), 32767);
    EXPECT_EQ(Int16FromNumber(-32768.5), -32768);
    EXPECT_EQ(ErrorNumberOf([] { Int16FromNumber(32767.5); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { Int16FromNumber(-32768.51); }), 6);
    EXPECT_EQ(ErrorNumberOf([] { Int16FromNumber(1e300); }), 6);

    EXPECT_EQ(NumberFromLine("  40 psf"), 40);
    EXPECT_EQ(NumberFromLine("-.75,2"), -0.75);
    EXPECT_EQ(ErrorNumberOf([] { NumberFromLine("   "); }), 13);
    EXPECT_EQ(ErrorNumberOf([] { NumberFromLine("forty"); }), 13);
}

TEST_F(FileErrorTest, BadContentsGiveTheirErrors) {
    const std::string head = CrLfLines({"Korvath 3.0", " 0 ", "Mat"});
    const std::string longDigits(300, '1');
    struct Case {
        const char* name;
        std::string bytes;
        int error;
    };
    const Case cases[] = {
        {"empty file", "", 62},
        {"version line only", "Korvath 3.0\r\n", 62},
        {"blank lines where a number belongs", head + "\r\n  \r\n\r\n", 62},
        {"text where a number belongs", head + "abc\r\n", 13},
        {"comma alone", head + ",3000\r\n", 13},
        {"number beyond a double", head + " 1E400 \r\n", 6},
        {"token too long", head + longDigits + "\r\n", 13},
        {"integer beyond 16 bits", head + CrLfLines({" 1 ", " 2 ", " 3 ", " 4 ", " 40000 "}), 6},
        {"NoDataFlag not a number", CrLfLines({"Korvath 3.0", "none"}), 13},
        {"binary zeros in a number", head + std::string("\0\0\0\r\n", 5), 13},
    };
    const auto path = folder / "bad.kv1";
    for (const Case& c : cases) {
        WriteBytes(path, c.bytes);
        EXPECT_EQ(ReadError(path, 1), c.error) << c.name;
    }

    // A line of exactly 1 MiB is taken; one character more is refused before it is held.
    const std::string longest(MaxLineLength, 'x');
    WriteBytes(path, CrLfLines({"Korvath 3.0", " 0 ", longest, " 1 ", " 2 ", " 3 ", " 4 ", " 0 "}));
    DesignRecord record;
    ReadDesignFile(path, 1, record, DesignRecord{}, {});
    EXPECT_EQ(record.MatLabel.size(), MaxLineLength);
    WriteBytes(path, CrLfLines({"Korvath 3.0", " 0 ", longest + "x"}));
    EXPECT_EQ(ReadError(path, 1), 7);
}

TEST_F(FileErrorTest, GarbageFailsWithoutHarm) {
    // Pseudo-random bytes of every value, a few hundred kilobytes.
    std::string garbage(300000, '\0');
    unsigned state = 12345;
    for (char& byte : garbage) {
        state = state * 1103515245u + 12345u;
        byte = static_cast<char>(state >> 16);
    }
    const auto path = folder / "garbage.kvt";
    WriteBytes(path, garbage);
    for (int selector : {AllSections, 0, 1, 2, 3, 4, 5}) {
        EXPECT_NE(ReadError(path, selector), 0) << selector;
    }
    // An endless stream of zeros is one endless line, stopped at the line limit.
    if (std::filesystem::exists("/dev/zero")) {
        EXPECT_EQ(ReadError("/dev/zero"), 7);
    }
}

TEST_F(FileErrorTest, PathsThatCannotBeRead) {
    EXPECT_EQ(ReadError(folder / "missing.kvt"), 53);
    EXPECT_EQ(ReadError(folder / "no such folder" / "x.kvt"), 76);
    EXPECT_EQ(ReadError(folder), 75);
    EXPECT_EQ(ReadError(""), 52);
    EXPECT_EQ(ReadError(folder / (std::string(300, 'n') + ".kvt")), 52);
    WriteBytes(folder / "plain", "x");
    EXPECT_EQ(ReadError(folder / "plain" / "x.kvt"), 76);
}

TEST_F(FileErrorTest, FailedSaveLeavesTheOldFileAlone) {
    EXPECT_EQ(WriteError(folder / "no such folder" / "x.kvt"), 76);
    EXPECT_EQ(WriteError(""), 52);
    WriteBytes(folder / "plain", "x");
    EXPECT_EQ(WriteError(folder / "plain" / "x.kvt"), 76);

    // A folder where the file should be is refused and kept as it is.
    std::filesystem::create_directory(folder / "taken.kvt");
    WriteBytes(folder / "taken.kvt" / "inside", "keep");
    EXPECT_EQ(WriteError(folder / "taken.kvt"), 75);
    EXPECT_EQ(ReadBytes(folder / "taken.kvt" / "inside"), "keep");

    // A record a file cannot hold is refused before the disk is touched.
    const auto old = folder / "old.kvt";
    WriteBytes(old, "previous project\r\n");
    DesignRecord broken;
    broken.ProjName = "two\r\nlines";
    EXPECT_EQ(WriteError(old, broken), 5);
    broken.ProjName = std::string(MaxLineLength + 1, 'x');
    EXPECT_EQ(WriteError(old, broken), 5);
    broken.ProjName = "";
    broken.Fpc = std::numeric_limits<double>::infinity();
    EXPECT_EQ(WriteError(old, broken), 5);
    EXPECT_EQ(ReadBytes(old), "previous project\r\n");
    EXPECT_EQ(Listing(folder), (std::vector<std::string>{"old.kvt", "plain", "taken.kvt"}));
}

TEST_F(FileErrorTest, WriteFailureMidwayLeavesTheOldFileAlone) {
    const auto path = folder / "p.kvt";
    WriteBytes(path, "previous project\r\n");
    // A file size limit makes the write itself fail part way, for any user; the signal that
    // would end the process is ignored so that the write reports the failure instead.
    rlimit saved{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &saved), 0);
    const auto savedHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = saved;
    small.rlim_cur = 64;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const int error = WriteError(path, PreviousProject());
    ::setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, savedHandler);

    EXPECT_EQ(error, 61);
    EXPECT_EQ(ReadBytes(path), "previous project\r\n");
    EXPECT_EQ(Listing(folder), std::vector<std::string>{"p.kvt"});
}

TEST_F(FileErrorTest, ReadOnlyFolderRefusesTheSave) {
    // The superuser is not refused by permissions.
    if (::geteuid() == 0) {
        GTEST_SKIP() << "running as root: a read-only folder does not stop a write";
    }
    const auto locked = folder / "locked";
    std::filesystem::create_directory(locked);
    WriteBytes(locked / "p.kvt", "previous project\r\n");
    std::filesystem::permissions(locked, std::filesystem::perms::owner_read |
                                             std::filesystem::perms::owner_exec);
    EXPECT_EQ(WriteError(locked / "p.kvt"), 70);
    EXPECT_EQ(ReadBytes(locked / "p.kvt"), "previous project\r\n");
    EXPECT_EQ(Listing(locked), std::vector<std::string>{"p.kvt"});
}

TEST_F(FileErrorTest, SaveKeepsPermissionsAndFollowsLinks) {
    const auto path = folder / "p.kvt";
    const mode_t oldMask = ::umask(027);
    WriteDesignFile(path, AllSections, DesignRecord{});
    ::umask(oldMask);
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms::owner_read |
                                                               std::filesystem::perms::owner_write |
                                                               std::filesystem::perms::group_read);

    std::filesystem::permissions(path, std::filesystem::perms::owner_read |
                                           std::filesystem::perms::owner_write |
                                           std::filesystem::perms::others_read);
    WriteDesignFile(path, 0, DesignRecord{});
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms::owner_read |
                                                               std::filesystem::perms::owner_write |
                                                               std::filesystem::perms::others_read);
    EXPECT_EQ(CountCrLf(ReadBytes(path)), 10);

    // Saving through a link replaces the file it names; the link stays a link.
    std::filesystem::create_symlink("p.kvt", folder / "link.kvt");
    WriteDesignFile(folder / "link.kvt", 6, DesignRecord{});
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.kvt"));
    EXPECT_EQ(ReadBytes(path), CrLfLines({"Korvath 3.0", " 0 ", " 0 "}));
    EXPECT_EQ(Listing(folder), (std::vector<std::string>{"link.kvt", "p.kvt"}));
}
