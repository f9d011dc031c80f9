#pragma once

#include <cstdint>
#include <string>

// The state of the open project that the shell owns, and the parts of the main window that
// follow it: its caption and the commands that need saved input or fresh results.
struct ProjectState {
    std::string ProjFilePath;  // empty for a project never saved
    std::string ProjFileTitle; // the file's name with its extension
    std::int16_t ProjectChanged = 0;
    std::string caption;        // of the main window
    bool saveAsEnabled = false; // mnuSaveAs
    bool printEnabled = false;  // mnuPrint and its toolbar button
    bool outputEnabled = false; // mnuOutput and its toolbar button
    std::string dialogFolder;   // where the main window's file dialogs open
};

// Marks the project as changed by the user: the caption gets its star (once), Save As is
// offered, and printing and the results are withdrawn because they no longer fit the input.
void MarkProjectChanged(ProjectState& project);
