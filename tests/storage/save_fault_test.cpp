#include "storage/file_replace.h"

#include "storage_test_support.h"

#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <thread>

namespace {

using SaveFaultTest = StorageTest;

// The system's calls with one step made to fail with `error` the `nth` time it is taken;
// `taken` counts the times the step was taken.
struct FailingStep {
    std::string step;
    int error = 0;
    int nth = 1;
};

FileCalls CallsFailing(const FailingStep& failing, int& taken) {
    const FileCalls& system = SystemFileCalls();
    FileCalls calls = system;
    const auto fails = [&failing, &taken](const char* step) {
        if (failing.step != step || ++taken != failing.nth) {
            return false;
        }
        errno = failing.error;
        return true;
    };
    calls.openUnnamed = [=](const std::string& folder, mode_t mode) {
        return fails("openUnnamed") ? -1 : system.openUnnamed(folder, mode);
    };
    calls.openNew = [=](const std::string& path, mode_t mode) {
        return fails("openNew") ? -1 : system.openNew(path, mode);
    };
    calls.changeMode = [=](int descriptor, mode_t mode) {
        return fails("changeMode") ? -1 : system.changeMode(descriptor, mode);
    };
    calls.write = [=](int descriptor, const char* bytes, std::size_t count) -> ssize_t {
        return fails("write") ? -1 : system.write(descriptor, bytes, count);
    };
    calls.flushToDisk = [=](int descriptor) {
        return fails("flushToDisk") ? -1 : system.flushToDisk(descriptor);
    };
    calls.linkUnnamed = [=](int descriptor, const std::string& path) {
        return fails("linkUnnamed") ? -1 : system.linkUnnamed(descriptor, path);
    };
    calls.close = [=](int descriptor) {
        // A close that fails has still released the descriptor.
        const int closed = system.close(descriptor);
        return fails("close") ? -1 : closed;
    };
    calls.rename = [=](const std::string& from, const std::string& to) {
        return fails("rename") ? -1 : system.rename(from, to);
    };
    return calls;
}

std::size_t FilesIn(const std::filesystem::path& folder) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

} // namespace

// Whatever step of a save fails, the old project stays byte for byte, no other file is left in
// its folder, and the failure has the number the engineer is shown.
TEST_F(SaveFaultTest, AFailureAtAnyStepLeavesTheOldFileWholeAndNothingBeside) {
    const auto path = folder / "lot17.kvt";
    const std::string previous = "the project as saved before\r\n";
    const std::string next(100000, 'n');
    // clang-format off
    const struct {
        const char* row;
        FailingStep failing;
        bool noUnnamedFiles;
        int number;
    } cases[] = {
        {"no room for a new file",            {"openUnnamed", ENOSPC}, false, 61},
        {"folder refuses new files",          {"openUnnamed", EACCES}, false, 70},
        {"read-only file system",             {"openUnnamed", EROFS},  false, 70},
        {"permission bits refused",           {"changeMode", EPERM},   false, 70},
        {"disk full at the first write",      {"write", ENOSPC},       false, 61},
        {"quota reached",                     {"write", EDQUOT},       false, 61},
        {"device error while writing",        {"write", EIO},          false, 57},
        {"disk full when flushing",           {"flushToDisk", ENOSPC}, false, 61},
        {"device error when flushing",        {"flushToDisk", EIO},    false, 57},
        {"name for the new file refused",     {"linkUnnamed", EACCES}, false, 70},
        {"delayed write error at the close",  {"close", EIO},          false, 57},
        {"disk full at the close",            {"close", ENOSPC},       false, 61},
        {"rename refused",                    {"rename", EACCES},      false, 70},
        {"rename across devices",             {"rename", EXDEV},       false, 75},
        {"old file busy",                     {"rename", EBUSY},       false, 75},
        {"named file: none can be made",      {"openNew", ENOSPC},     true,  61},
        {"named file: disk full writing",     {"write", ENOSPC},       true,  61},
        {"named file: device error closing",  {"close", EIO},          true,  57},
        {"named file: rename refused",        {"rename", EPERM},       true,  70},
    };
    // clang-format on
    for (const auto& c : cases) {
        WriteBytes(path, previous);
        int taken = 0;
        FileCalls calls = CallsFailing(c.failing, taken);
        if (c.noUnnamedFiles) {
            calls.openUnnamed = [](const std::string&, mode_t) {
                errno = EOPNOTSUPP;
                return -1;
            };
        }
        EXPECT_EQ(ErrorNumberOf([&] { ReplaceFileContents(path, next, calls); }), c.number)
            << c.row;
        EXPECT_EQ(taken, 1) << c.row;
        EXPECT_EQ(ReadBytes(path), previous) << c.row;
        EXPECT_EQ(FilesIn(folder), 1u) << c.row;

        // The same save without the fault goes through.
        ReplaceFileContents(path, next, SystemFileCalls());
        EXPECT_EQ(ReadBytes(path), next) << c.row;
        EXPECT_EQ(FilesIn(folder), 1u) << c.row;
    }

    // A name already taken by another save is passed over for the next one.
    WriteBytes(path, previous);
    int taken = 0;
    ReplaceFileContents(path, next, CallsFailing({"linkUnnamed", EEXIST}, taken));
    EXPECT_EQ(taken, 2); // the second name was free
    EXPECT_EQ(ReadBytes(path), next);
    EXPECT_EQ(FilesIn(folder), 1u);
}

// The folder removed before the save, or while the new file is being written: the save says
// the path is not found and makes nothing again.
TEST_F(SaveFaultTest, AFolderRemovedBeforeOrDuringTheSaveIsAPathNotFound) {
    const auto inner = folder / "jobs";
    std::filesystem::create_directory(inner);
    WriteBytes(inner / "lot17.kvt", "before\r\n");
    std::filesystem::remove_all(inner);
    EXPECT_EQ(ErrorNumberOf([&] { ReplaceFileContents(inner / "lot17.kvt", "after"); }), 76);
    EXPECT_FALSE(std::filesystem::exists(inner));

    std::filesystem::create_directory(inner);
    WriteBytes(inner / "lot17.kvt", "before\r\n");
    const FileCalls& system = SystemFileCalls();
    FileCalls calls = system;
    calls.write = [&](int descriptor, const char* bytes, std::size_t count) {
        std::filesystem::remove_all(inner);
        return system.write(descriptor, bytes, count);
    };
    EXPECT_EQ(ErrorNumberOf([&] { ReplaceFileContents(inner / "lot17.kvt", "after", calls); }), 76);
    EXPECT_FALSE(std::filesystem::exists(inner));
}

// A process killed while it saves, at many different instants: the project is always the old
// file or the new one whole, never a mix, and the next save leaves only the project in its
// folder.
TEST_F(SaveFaultTest, ASaveKilledAtAnyInstantLeavesAWholeFile) {
    const auto path = folder / "lot17.kvt";
    const std::string first(400000, 'a');
    const std::string second(300000, 'b');
    WriteBytes(path, first);
    int strays = 0;
    for (int kill = 0; kill < 120; ++kill) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int save = 0;; ++save) {
                try {
                    ReplaceFileContents(path, save % 2 == 0 ? second : first);
                } catch (...) {
                    ::_exit(3);
                }
            }
        }
        // From at once to a few saves in, a different instant each time.
        std::this_thread::sleep_for(std::chrono::microseconds(kill * 97 % 6000));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the saving process failed on its own";
        const std::string found = ReadBytes(path);
        ASSERT_TRUE(found == first || found == second)
            << "kill " << kill << ": a file of " << found.size() << " bytes";
        strays += FilesIn(folder) > 1 ? 1 : 0;
    }
    ReplaceFileContents(path, first);
    EXPECT_EQ(ReadBytes(path), first);
    EXPECT_EQ(FilesIn(folder), 1u) << strays << " kills left a named new file behind";
}
