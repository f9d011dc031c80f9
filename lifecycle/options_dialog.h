#pragma once

#include "shell/form_model.h"
#include "shell/program_settings.h"
#include "shell/shell_services.h"

#include <array>
#include <filesystem>

// The options dialog `frmOptions` as a controller: its form, the eight `TabChanged` flags that
// the change events of each tab set, and OK, Apply and Cancel. Tab 0 is the program tab, 1 to 7
// the tabs of the default record. What is chosen here affects the next new project, never the
// open one, but for the program tab's options.

struct Program;

inline constexpr int OptionsTabCount = 8;

struct OptionsDialog {
    // The options form's controls, with the captions, frames and spins of the input screen whose
    // layout the record's tabs share.
    FormModel form;
    std::array<bool, OptionsTabCount> TabChanged{};
    bool applyEnabled = false; // cmbApply
    bool visible = false;
};

// Where the association of project files is written, and the program it opens them with.
struct AssociationTarget {
    std::filesystem::path dataFolder;
    std::filesystem::path program;
};

OptionsDialog LoadOptionsDialog();

// `mnuOptions`: fills the form from the settings and shows it with `tab` in front.
void ShowOptionsDialog(Program& program, ShellServices& services, int tab = 0);

// A change in a control of tab `tab` (its text, a tick): the tab's flag is set and Apply
// offered. The control's own state is changed by the caller.
void ChangeOptionsControl(OptionsDialog& dialog, int tab);

// The user typed into a text box of the dialog: its text, then its tab's flag and Apply.
void ChangeOptionsText(OptionsDialog& dialog, const std::string& box, const std::string& text);

// The user chose item `index` of a list (`cboDirLineLoad`): the list shows it, its tab's flag is
// set and Apply offered. An index outside the list changes nothing.
void ChooseOptionsListItem(OptionsDialog& dialog, const std::string& list, int index);

// The user chose another start folder in the folder list: the list and `lblDefFilePath` show
// it, and the program tab is flagged; OK or Apply make it `FilePath`.
void ChooseDefaultFolder(OptionsDialog& dialog, const std::string& folder);

// A click on a check box or option button of the dialog: it is ticked or chosen, the fields it
// switches on and off follow as on the input screen (a field switched on shows the default
// record's value), and its tab's flag is set.
void ClickOptionsControl(OptionsDialog& dialog, const ProgramSettings& settings,
                         const std::string& control);

// The tab of the dialog a control stands on: 0 the program tab, 1 to 7 the record's tabs.
int OptionsTabOfControl(const std::string& control);

// OK: clears the recent files when asked; restores the factory defaults when asked, ignoring
// every other edit; otherwise the blank check of every tab (a blank keeps the dialog open on its
// field) and every tab saved. Then the file dialogs start in `FilePath`, the association is
// written when asked, the flags are cleared, Apply withdrawn and the dialog hidden. Gives
// whether it closed.
//
// A value that cannot be stored throws RunTimeError, as SaveOptionValues does.
bool OptionsOK(Program& program, ShellServices& services, const AssociationTarget& association);

// Apply: the tab in front only, after its blank check; its flag cleared, Apply withdrawn.
void OptionsApply(Program& program, ShellServices& services, const AssociationTarget& association);

// Cancel hides the form; what it holds is replaced at the next showing.
void OptionsCancel(OptionsDialog& dialog);

// The tab in front of `tabOptions`.
int OptionsTabShown(const OptionsDialog& dialog);
