#include "storage/file_replace.h"

#include "storage/file_error.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// The file to replace: the path itself, or what a symbolic link at the path names.
std::filesystem::path ResolveTarget(const std::filesystem::path& path) {
    std::error_code error;
    if (std::filesystem::is_symlink(path, error)) {
        const std::filesystem::path resolved = std::filesystem::weakly_canonical(path, error);
        if (!error) {
            return resolved;
        }
    }
    return path;
}

// A name in the target's folder that no other file has, created and opened for writing. The
// name does not derive from the target's, so a long file name cannot make it too long.
int CreateUniqueFile(const std::filesystem::path& folder, mode_t mode,
                     std::filesystem::path& created, const std::filesystem::path& target) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        const std::string name = ".korvath3-save-" + std::to_string(::getpid()) + "-" +
                                 std::to_string(attempt) + "-" +
                                 std::to_string(static_cast<unsigned long long>(ticks) % 1000000);
        created = folder / name;
        int descriptor = -1;
        do {
            descriptor = ::open(created.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        } while (descriptor < 0 && errno == EINTR);
        if (descriptor >= 0) {
            return descriptor;
        }
        if (errno != EEXIST) {
            throw FileError(ErrorNumberForSystemError(errno, target));
        }
    }
    throw FileError(75);
}

bool WriteAll(int descriptor, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t written = ::write(descriptor, contents.data(), contents.size());
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        contents.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}
} // namespace

void ReplaceFileContents(const std::filesystem::path& path, std::string_view contents) {
    if (path.empty()) {
        throw FileError(52);
    }
    const std::filesystem::path target = ResolveTarget(path);
    const std::filesystem::path folder =
        target.has_parent_path() ? target.parent_path() : std::filesystem::path(".");

    // A new file is created 0666 and the kernel takes off what the umask forbids; an existing
    // file's own bits are put back on the replacement below.
    struct stat existing {};
    const bool replacing = ::stat(target.c_str(), &existing) == 0;
    // Only a plain file is replaced: a folder, a device or a pipe at the path is refused
    // rather than swapped for a file.
    if (replacing && !S_ISREG(existing.st_mode)) {
        throw FileError(75);
    }
    if (!replacing && errno != ENOENT) {
        throw FileError(ErrorNumberForSystemError(errno, target));
    }

    std::filesystem::path temporary;
    const int descriptor = CreateUniqueFile(folder, 0666, temporary, target);
    const auto fail = [&](int errorCode, bool open) {
        if (open) {
            ::close(descriptor);
        }
        ::unlink(temporary.c_str());
        throw FileError(ErrorNumberForSystemError(errorCode, target));
    };

    if (replacing && ::fchmod(descriptor, existing.st_mode & 07777) != 0) {
        fail(errno, true);
    }
    if (!WriteAll(descriptor, contents)) {
        fail(errno, true);
    }
    // The new file must be on the disk before it replaces the old one, or a crash could leave
    // an empty project behind the old name. File systems that cannot sync say EINVAL.
    if (::fsync(descriptor) != 0 && errno != EINVAL) {
        fail(errno, true);
    }
    if (::close(descriptor) != 0) {
        fail(errno, false);
    }
    if (::rename(temporary.c_str(), target.c_str()) != 0) {
        fail(errno, false);
    }
}
