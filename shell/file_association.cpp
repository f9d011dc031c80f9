#include "shell/file_association.h"

#include "storage/file_replace.h"

#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

// Quotes a path for the Exec line of a desktop entry: inside double quotation marks, with a
// backslash before ", `, $ and \ (and each backslash doubled once more for the entry's own
// string escapes).
std::string ExecQuoted(const std::string& path) {
    std::string quoted = "\"";
    for (const char c : path) {
        if (c == '"' || c == '`' || c == '$') {
            quoted += "\\\\";
        } else if (c == '\\') {
            quoted += "\\\\\\";
        }
        quoted += c;
    }
    return quoted + "\"";
}

// The full path of a command found on the PATH, or nothing.
std::filesystem::path FindCommand(const std::string& name) {
    const char* path = std::getenv("PATH");
    if (!path) {
        return {};
    }
    std::string folders = path;
    std::size_t start = 0;
    while (start <= folders.size()) {
        const std::size_t end = std::min(folders.find(':', start), folders.size());
        const std::filesystem::path candidate =
            std::filesystem::path(folders.substr(start, end - start)) / name;
        std::error_code error;
        if (end > start && std::filesystem::is_regular_file(candidate, error)) {
            return candidate;
        }
        start = end + 1;
    }
    return {};
}

// Runs a command present on this machine and waits for it; its failure is of no consequence to
// the association already written.
void RunIfPresent(const std::string& name, const std::filesystem::path& folder) {
    const std::filesystem::path command = FindCommand(name);
    if (command.empty()) {
        return;
    }
    std::string program = command.string();
    std::string argument = folder.string();
    char* arguments[] = {program.data(), argument.data(), nullptr};
    // The commands' own remarks are of no use to the engineer.
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    if (posix_spawn(&child, program.c_str(), &quiet, nullptr, arguments, environ) == 0) {
        int status = 0;
        waitpid(child, &status, 0);
    }
    posix_spawn_file_actions_destroy(&quiet);
}

} // namespace

std::filesystem::path UserDataFolder() {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data) {
        return data;
    }
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home && *home ? home : ".") / ".local" / "share";
}

std::string DesktopEntryText(const std::filesystem::path& program) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Korvath 3.0\n"
           "Comment=Design of post-tensioned slabs on ground\n"
           "Exec=" +
           ExecQuoted(program.string()) +
           " %f\n"
           "MimeType=application/x-korvath3-project;\n"
           "Terminal=false\n"
           "Categories=Engineering;Science;\n";
}

std::string MimePackageText() {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
           "  <mime-type type=\"application/x-korvath3-project\">\n"
           "    <comment>Korvath3 Document</comment>\n"
           "    <glob pattern=\"*.kvt\"/>\n"
           "  </mime-type>\n"
           "</mime-info>\n";
}

FileAssociation AssociateFileType(const std::filesystem::path& dataFolder,
                                  const std::filesystem::path& program) {
    const std::filesystem::path mimeFolder = dataFolder / "mime";
    const std::filesystem::path applications = dataFolder / "applications";
    const FileAssociation files{mimeFolder / "packages" / "korvath3.xml",
                                applications / "korvath3.desktop"};
    std::error_code error;
    std::filesystem::create_directories(files.mimePackage.parent_path(), error);
    std::filesystem::create_directories(applications, error);
    ReplaceFileContents(files.mimePackage, MimePackageText());
    ReplaceFileContents(files.desktopEntry, DesktopEntryText(program));
    RunIfPresent("update-mime-database", mimeFolder);
    RunIfPresent("update-desktop-database", applications);
    return files;
}
