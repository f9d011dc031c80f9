#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The state of the open project that the shell owns, and the parts of the main window that
// follow it: its caption and the commands that need a project, saved input or fresh results.
// Before any project nothing but New, Open, Options and Exit can be used.
struct ProjectState {
    std::string ProjFilePath;  // empty for a project never saved
    std::string ProjFileTitle; // the file's name with its extension
    std::int16_t ProjectChanged = 0;
    std::string caption = "Korvath 3.0"; // of the main window
    bool saveEnabled = false;            // mnuSave
    bool saveButtonEnabled = false;      // the toolbar's "Save", position 4
    bool saveAsEnabled = false;          // mnuSaveAs
    bool printEnabled = false;           // mnuPrint and the toolbar's "Print", position 6
    bool outputEnabled = false;          // mnuOutput and the toolbar's "Output", position 10
    bool screenEnabled = false;          // the menu mnuScreen
    bool inputEnabled = false;           // mnuInput and the toolbar's "Input", position 8
    bool analysisEnabled = false;        // mnuAnalysis and the toolbar's "Analysis", position 9
    std::string dialogFolder;            // where the main window's file dialogs open
    // Set when the path names a file that could not be read (a failed open from the dialog).
    // Such a file may be a damaged project the engineer still hopes to recover, so Save does not
    // write over it: it asks for a name as Save As does.
    bool pathUnread = false;
    // The kind of project the toolbar's "New" button starts, as its tooltip says.
    std::string newToolTip = "New Expansive Soil Project";
};

// The product's name as the main window's caption begins.
inline constexpr const char* ProductCaption = "Korvath 3.0";

// Whether a menu item (`mnuSave`, `mnuOutput`, ...) can be chosen. Items the state does not
// govern always can.
bool MenuEnabled(const ProjectState& project, std::string_view item);

// Whether the toolbar button at `position` (1 to 10) can be pressed.
bool ToolbarButtonEnabled(const ProjectState& project, int position);

// Marks the project as changed by the user: the caption gets its star (once), Save As is
// offered, and printing and the results are withdrawn because they no longer fit the input.
void MarkProjectChanged(ProjectState& project);
