#include "shell/recent_files.h"

#include <algorithm>

void ModifyRecentFiles(ProgramSettings& settings, const std::string& path) {
    std::array<std::string, 5>& files = settings.RecentFiles;
    const auto found = std::find(files.begin(), files.end(), path);
    // Everything above the old place, or the whole list for a new path, moves down by one.
    const auto last = found == files.end() ? files.end() - 1 : found;
    std::move_backward(files.begin(), last, last + 1);
    files.front() = path;
}

void ClearRecentFile(ProgramSettings& settings) {
    settings.RecentFiles.fill({});
}

std::vector<RecentFileItem> RecentFileItems(const ProgramSettings& settings) {
    std::vector<RecentFileItem> items;
    for (std::size_t i = 0; i < settings.RecentFiles.size(); ++i) {
        const std::string& path = settings.RecentFiles[i];
        items.push_back({"&" + std::to_string(i + 1) + ". " + path, !path.empty()});
    }
    return items;
}

bool RecentFilesSeparatorVisible(const ProgramSettings& settings) {
    return std::any_of(settings.RecentFiles.begin(), settings.RecentFiles.end(),
                       [](const std::string& path) { return !path.empty(); });
}
