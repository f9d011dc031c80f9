#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <sys/types.h>

// The calls to the operating system that a save goes through, one member a step, so that a
// test can make any single step fail as a full disk, a refused write or a vanished folder would.
// Each returns what the system call returns and leaves its error in errno. Does not decide
// anything: the order of the steps and what a failure means are the save's.
struct FileCalls {
    // A file without a name in `folder`, open for writing; -1 where the file system has none.
    std::function<int(const std::string& folder, mode_t mode)> openUnnamed;
    // A new file of the given name, open for writing; fails when the name exists.
    std::function<int(const std::string& path, mode_t mode)> openNew;
    std::function<int(int descriptor, mode_t mode)> changeMode;
    std::function<ssize_t(int descriptor, const char* bytes, std::size_t count)> write;
    std::function<int(int descriptor)> flushToDisk;
    // Gives the unnamed file of `descriptor` the name `path`.
    std::function<int(int descriptor, const std::string& path)> linkUnnamed;
    std::function<int(int descriptor)> close;
    std::function<int(const std::string& from, const std::string& to)> rename;
    std::function<int(const std::string& path)> remove;
};

// The real calls.
const FileCalls& SystemFileCalls();
