#include "shell/settings_file_check.h"

#include <fstream>
#include <iterator>
#include <unistd.h>

namespace {

// An INI file holds blank lines, comments, "[group]" lines and "key=value" lines, in text.
bool LooksLikeSettings(const std::string& content) {
    if (content.find('\0') != std::string::npos) {
        return false;
    }
    std::size_t start = 0;
    while (start < content.size()) {
        std::size_t end = content.find('\n', start);
        if (end == std::string::npos) {
            end = content.size();
        }
        std::string line = content.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        const std::size_t first = line.find_first_not_of(" \t");
        if (first != std::string::npos) {
            const char lead = line[first];
            const bool group = lead == '[' && line.find(']') != std::string::npos;
            const bool comment = lead == ';' || lead == '#';
            const bool value = line.find('=') != std::string::npos;
            if (!group && !comment && !value) {
                return false;
            }
        }
        start = end + 1;
    }
    return true;
}

// The nearest folder of the path that exists, where a missing file and its folders would be made.
std::filesystem::path ExistingFolder(std::filesystem::path folder) {
    std::error_code error;
    while (!folder.empty() && !std::filesystem::exists(folder, error)) {
        if (folder == folder.parent_path()) {
            break;
        }
        folder = folder.parent_path();
    }
    return folder.empty() ? std::filesystem::path(".") : folder;
}

bool WritableFolder(const std::filesystem::path& folder) {
    const std::filesystem::path place = folder.empty() ? std::filesystem::path(".") : folder;
    std::error_code error;
    return std::filesystem::is_directory(place, error) && ::access(place.c_str(), W_OK) == 0;
}

} // namespace

std::optional<std::string> SettingsFileProblem(const std::filesystem::path& file) {
    std::error_code error;
    if (std::filesystem::exists(file, error)) {
        if (!std::filesystem::is_regular_file(file, error)) {
            return "cannot be read: it is not a file";
        }
        // A settings file is a few kilobytes; anything far larger is something else.
        constexpr std::uintmax_t largestSettingsFile = 1 << 20;
        if (std::filesystem::file_size(file, error) > largestSettingsFile) {
            return "is not a settings file";
        }
        std::ifstream in(file, std::ios::binary);
        if (!in) {
            return "cannot be read";
        }
        const std::string content{std::istreambuf_iterator<char>(in),
                                  std::istreambuf_iterator<char>()};
        if (!LooksLikeSettings(content)) {
            return "is not a settings file";
        }
        // The file is written whole beside itself and moved over the old one, so its folder
        // must take new files too.
        if (::access(file.c_str(), W_OK) != 0 || !WritableFolder(file.parent_path())) {
            return "cannot be written";
        }
        return std::nullopt;
    }
    if (!WritableFolder(ExistingFolder(file.parent_path()))) {
        return "cannot be written: its folder cannot be made or written";
    }
    return std::nullopt;
}
