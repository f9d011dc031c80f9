#pragma once

#include "engine/project_kind.h"
#include "lifecycle/program.h"
#include "shell/user_dialogs.h"
#include "shell/window_placement.h"

#include <string>

// The open project's lifecycle on the main window: new projects, opening, saving, the recent
// files, the switch between input and results, and the end of the program. Every question and
// message goes through the services' dialogs; a cancelled file dialog is silent.

// The prompts for unsaved changes of each path that would lose the project.
inline constexpr const char* NewPrompt = "Save before opening new project?";
inline constexpr const char* OpenPrompt = "Save before opening project?";
inline constexpr const char* ExitPrompt = "Save before Exit?";

// The main window as it loads: the file dialogs in `FilePath`, the product caption, the commands
// that need a project disabled, and its place on a screen of that size in twips, for a window of
// the given size.
WindowPlace LoadMainWindow(Program& program, ShellServices& services, double screenWidth,
                           double screenHeight, double windowWidth = MainWindowWidth,
                           double windowHeight = MainWindowHeight);

// Asks about unsaved changes, only when there are any: Yes saves (after the blank check, which
// turns Yes into Cancel when it finds a blank field; a project never saved goes through the save
// dialog, whose cancel is Cancel too), No saves nothing, Cancel stops the caller.
Answer SaveCurrentFile(Program& program, ShellServices& services, const std::string& prompt);

// A new untitled project of that kind from the default record, shown on page 1 of the input.
void NewProjectReset(Program& program, ShellServices& services, ProjectKind kind);

// The New menu items and the toolbar: the prompt, then the new project. Choosing a kind in the
// toolbar's list makes it the button's tooltip; a click on the button starts that kind again.
void NewProjectCommand(Program& program, ShellServices& services, ProjectKind kind);
// The item of the toolbar's list for a kind, which is also the button's tooltip once chosen.
std::string NewKindCaption(ProjectKind kind);
void ChooseNewKind(Program& program, ShellServices& services, ProjectKind kind);
void ClickNewButton(Program& program, ShellServices& services);

// `mnuLine` does nothing: a line load project is started from the toolbar's list.
void LineLoadMenuItem(Program& program);

// Open by the menu or toolbar: the prompt, the file dialog, the project.
void OpenCommand(Program& program, ShellServices& services);
// A recent file `mnuRU1` to `mnuRU5` (index 1 to 5): the prompt, then that project.
void OpenRecentCommand(Program& program, ShellServices& services, int index);

// Opening a path, with or without the dialog, and the program's start with a path on its
// command line (one pair of surrounding quotation marks is removed). An older version is
// announced and leaves the project changed. A failure shows "Error opening file - N", hides the
// input and leaves the caption "Korvath 3.0 - "; the path chosen in the dialog stays the
// project's, while a recent file or the command line leaves the former path in place.
void OpenProject(Program& program, ShellServices& services);
void OpenRecentProject(Program& program, ShellServices& services, const std::string& path);
void OpenAssociatedProject(Program& program, ShellServices& services,
                           const std::string& commandLine);

// `mnuSave` and the toolbar's Save, and `mnuSaveAs`. The toolbar's Save on a project never saved
// is Save As.
void SaveCommand(Program& program, ShellServices& services);
void SaveAsCommand(Program& program, ShellServices& services);

// The input and output commands.
void ShowInputScreen(Program& program);
void ShowOutputScreen(Program& program);

// Closing the main window: the prompt; gives false when the user keeps the program running.
bool QueryUnload(Program& program, ShellServices& services);

// The end of the program: the recent files and the window's place written to the store.
void EndProgram(Program& program, ShellServices& services, const std::string& left,
                const std::string& top);

// The main window's caption for the project as it stands.
std::string MainCaption(const ProjectState& project);
