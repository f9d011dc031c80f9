#pragma once

#include "storage/file_calls.h"

#include <filesystem>
#include <string_view>

// Puts `contents` in the file at `path` so that a failure never leaves the engineer with less
// than before: the bytes go to a new file in the same folder, without a name while it is
// written, every write, the flush to the disk and the close are checked, and only then does the
// new file take the place of the old one in one rename. On a failure the new file is removed, the
// old one is untouched and FileError is thrown with the number of the failure (76 for a missing
// folder, 61 for a full disk, 70 for a refused write, ...).
//
// A replaced file keeps its permission bits; a new file gets those the process's umask allows.
// A symbolic link is followed, so that the file it names is replaced and the link stays.
void ReplaceFileContents(const std::filesystem::path& path, std::string_view contents);

// The same save through the given calls, so that a test can make any step fail.
void ReplaceFileContents(const std::filesystem::path& path, std::string_view contents,
                         const FileCalls& calls);
