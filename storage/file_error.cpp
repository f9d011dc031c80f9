#include "storage/file_error.h"

#include <cerrno>
#include <system_error>

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
