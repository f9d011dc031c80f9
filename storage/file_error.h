#pragma once

#include "common/run_time_error.h"

#include <filesystem>

// A failure to read or write a file, with its classic run-time error number.
class FileError : public RunTimeError {
  public:
    using RunTimeError::RunTimeError;
};

// The classic error number for a failure of the operating system (an errno value) met while
// opening, reading or writing `path`. A missing file is 53 when its folder exists and 76 when
// the folder itself is missing.
int ErrorNumberForSystemError(int errorCode, const std::filesystem::path& path);
