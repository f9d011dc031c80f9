#include "cli/project_loading.h"

#include "storage/design_file.h"
#include "storage/file_error.h"

#include <algorithm>
#include <ostream>

std::optional<LoadedProject> LoadProject(const std::filesystem::path& path,
                                         const DesignRecord& defaults, std::ostream& err,
                                         CliError* failure) {
    LoadedProject loaded{defaults, 0};
    const auto tell = [&](const OldVersionNotice& notice) {
        std::string text = notice.text;
        std::replace(text.begin(), text.end(), '\r', '\n');
        err << "korvath3-cli: " << notice.title << "\n" << text << "\n";
    };
    try {
        loaded.version = ReadDesignFile(path, AllSections, loaded.record, defaults, tell);
    } catch (const FileError& error) {
        err << "korvath3-cli: Error opening file - " << error.number() << ": "
            << error.description() << " (" << path.string() << ")\n";
        if (failure != nullptr) {
            *failure = {error.number(), error.description(), path.string()};
        }
        return std::nullopt;
    }
    return loaded;
}
