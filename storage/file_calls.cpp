#include "storage/file_calls.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int OpenUnnamed(const std::string& folder, mode_t mode) {
    int descriptor = -1;
    do {
        descriptor = ::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode);
    } while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

int OpenNew(const std::string& path, mode_t mode) {
    int descriptor = -1;
    do {
        descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    } while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

// Through the process's own view of its descriptors, which needs no privilege; where that view
// is not mounted, by the descriptor itself, which the superuser may do.
int LinkUnnamed(int descriptor, const std::string& path) {
    const std::string self = "/proc/self/fd/" + std::to_string(descriptor);
    if (::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0) {
        return 0;
    }
    if (errno != ENOENT) {
        return -1;
    }
    return ::linkat(descriptor, "", AT_FDCWD, path.c_str(), AT_EMPTY_PATH);
}

} // namespace

const FileCalls& SystemFileCalls() {
    static const FileCalls calls{
        OpenUnnamed,
        OpenNew,
        [](int descriptor, mode_t mode) { return ::fchmod(descriptor, mode); },
        [](int descriptor, const char* bytes, std::size_t count) {
            return ::write(descriptor, bytes, count);
        },
        [](int descriptor) { return ::fsync(descriptor); },
        LinkUnnamed,
        [](int descriptor) { return ::close(descriptor); },
        [](const std::string& from, const std::string& to) {
            return ::rename(from.c_str(), to.c_str());
        },
        [](const std::string& path) { return ::unlink(path.c_str()); },
    };
    return calls;
}
