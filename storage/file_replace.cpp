#include "storage/file_replace.h"

#include "storage/file_error.h"

#include <cerrno>
#include <chrono>
#include <climits>
#include <csignal>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const std::string TemporaryPrefix = ".korvath3-save-";

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

std::string HostName() {
    char name[HOST_NAME_MAX + 1] = {};
    if (::gethostname(name, sizeof name - 1) != 0) {
        return "localhost";
    }
    return name;
}

// A name in the target's folder for the new file while it is being put in place:
// ".korvath3-save-PID-ATTEMPT-TICKS@HOST". It does not derive from the target's name, so a long
// file name cannot make it too long, and it tells which process on which machine made it.
std::filesystem::path TemporaryName(const std::filesystem::path& folder, int attempt) {
    const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
    return folder /
           (TemporaryPrefix + std::to_string(::getpid()) + "-" + std::to_string(attempt) + "-" +
            std::to_string(static_cast<unsigned long long>(ticks) % 1000000) + "@" + HostName());
}

// A save that was killed between naming its new file and putting it in place leaves that file
// behind. Such files of this machine whose process has ended are removed before the next save
// in the folder; those of running processes and of other machines are left alone.
void RemoveAbandonedSaves(const std::filesystem::path& folder, const FileCalls& calls) {
    const std::string host = "@" + HostName();
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.rfind(TemporaryPrefix, 0) != 0 || name.size() < host.size() ||
            name.compare(name.size() - host.size(), host.size(), host) != 0) {
            continue;
        }
        const std::string digits =
            name.substr(TemporaryPrefix.size(),
                        name.find('-', TemporaryPrefix.size()) - TemporaryPrefix.size());
        if (digits.empty() || digits.size() > 9 ||
            digits.find_first_not_of("0123456789") != std::string::npos) {
            continue;
        }
        const pid_t process = static_cast<pid_t>(std::stol(digits));
        if (process != ::getpid() && ::kill(process, 0) != 0 && errno == ESRCH) {
            calls.remove(entry->path().string());
        }
    }
}

// A new file of a unique name in the folder, for file systems that have no unnamed files.
int OpenNamedFile(const std::filesystem::path& folder, const std::filesystem::path& target,
                  const FileCalls& calls, std::filesystem::path& created) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        created = TemporaryName(folder, attempt);
        const int descriptor = calls.openNew(created.string(), 0666);
        if (descriptor >= 0) {
            return descriptor;
        }
        if (errno != EEXIST) {
            created.clear();
            throw FileError(ErrorNumberForSystemError(errno, target));
        }
    }
    created.clear();
    throw FileError(75);
}

bool WriteAll(const FileCalls& calls, int descriptor, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t written = calls.write(descriptor, contents.data(), contents.size());
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
    ReplaceFileContents(path, contents, SystemFileCalls());
}

void ReplaceFileContents(const std::filesystem::path& path, std::string_view contents,
                         const FileCalls& calls) {
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
    RemoveAbandonedSaves(folder, calls);

    // The new file has no name while it is written, so a save that is killed leaves nothing
    // behind; file systems without unnamed files get a named one at once.
    std::filesystem::path named;
    int descriptor = calls.openUnnamed(folder.string(), 0666);
    if (descriptor < 0) {
        if (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL) {
            throw FileError(ErrorNumberForSystemError(errno, target));
        }
        descriptor = OpenNamedFile(folder, target, calls, named);
    }
    const auto fail = [&](int errorCode, bool open) {
        if (open) {
            calls.close(descriptor);
        }
        if (!named.empty()) {
            calls.remove(named.string());
        }
        throw FileError(ErrorNumberForSystemError(errorCode, target));
    };

    if (replacing && calls.changeMode(descriptor, existing.st_mode & 07777) != 0) {
        fail(errno, true);
    }
    if (!WriteAll(calls, descriptor, contents)) {
        fail(errno, true);
    }
    // The new file must be on the disk before it replaces the old one, or a crash could leave
    // an empty project behind the old name. File systems that cannot sync say EINVAL.
    if (calls.flushToDisk(descriptor) != 0 && errno != EINVAL) {
        fail(errno, true);
    }
    for (int attempt = 0; named.empty(); ++attempt) {
        const std::filesystem::path name = TemporaryName(folder, attempt);
        if (calls.linkUnnamed(descriptor, name.string()) == 0) {
            named = name;
        } else if (errno != EEXIST || attempt == 99) {
            fail(errno, true);
        }
    }
    if (calls.close(descriptor) != 0) {
        fail(errno, false);
    }
    if (calls.rename(named.string(), target.string()) != 0) {
        fail(errno, false);
    }
}
