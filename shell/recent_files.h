#pragma once

#include "shell/program_settings.h"

#include <string>
#include <vector>

// The list of the five projects opened or saved last, newest first, as the File menu shows it.

// Puts `path` at the top. A path already in the list (compared exactly, case and all) moves up
// from where it stood, the entries above it shifting down by one; a new path pushes every entry
// down and the fifth falls out.
void ModifyRecentFiles(ProgramSettings& settings, const std::string& path);

// Empties all five entries.
void ClearRecentFile(ProgramSettings& settings);

// The menu items `mnuRU1` to `mnuRU5`: "&1. " and the full path; an empty entry is hidden.
struct RecentFileItem {
    std::string caption;
    bool visible = false;
};
std::vector<RecentFileItem> RecentFileItems(const ProgramSettings& settings);

// The separator before the items shows while any entry holds a path.
bool RecentFilesSeparatorVisible(const ProgramSettings& settings);
