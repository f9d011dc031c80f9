#include "storage/file_error.h"

#include <cerrno>
#include <system_error>

namespace {
std::string WhatText(int number) {
    return "Error " + std::to_string(number) + ": " + ErrorDescription(number);
}
} // namespace

FileError::FileError(int number)
    : std::runtime_error(WhatText(number)), m_number(number),
      m_description(ErrorDescription(number)) {}

std::string ErrorDescription(int number) {
    switch (number) {
    case 5:
        return "Invalid procedure call or argument";
    case 6:
        return "Overflow";
    case 7:
        return "Out of memory";
    case 11:
        return "Division by zero";
    case 13:
        return "Type mismatch";
    case 52:
        return "Bad file name or number";
    case 53:
        return "File not found";
    case 57:
        return "Device I/O error";
    case 61:
        return "Disk full";
    case 62:
        return "Input past end of file";
    case 70:
        return "Permission denied";
    case 75:
        return "Path/File access error";
    case 76:
        return "Path not found";
    default:
        return "Application-defined or object-defined error";
    }
}

int ErrorNumberForSystemError(int errorCode, const std::filesystem::path& path) {
    if (path.empty()) {
        return 52;
    }
    switch (errorCode) {
    case ENOENT: {
        // The file is missing (53) unless its folder is missing too (76).
        const std::filesystem::path folder =
            path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
        std::error_code ignored;
        return std::filesystem::is_directory(folder, ignored) ? 53 : 76;
    }
    case ENOTDIR:
        return 76;
    case EACCES:
    case EPERM:
    case EROFS:
        return 70;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return 61;
    case ENAMETOOLONG:
        return 52;
    case EIO:
        return 57;
    case ENOMEM:
        return 7;
    default:
        // EISDIR, ETXTBSY, ELOOP and every other refusal to reach the file.
        return 75;
    }
}
