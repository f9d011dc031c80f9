#include "shell/lifecycle/options_dialog.h"

#include "common/run_time_error.h"
#include "input/input_checks.h"
#include "shell/file_association.h"
#include "shell/lifecycle/program.h"
#include "shell/options_form.h"
#include "shell/recent_files.h"

namespace {

constexpr int ProgramTab = 0;
constexpr int AllTabs = 10;
constexpr int NoTab = 8; // SaveOptionValues copies nothing from the screen

// The file dialogs of the main window and of the input screen start in `FilePath`.
void SetStartFolders(Program& program) {
    program.project.dialogFolder = program.settings.FilePath;
    program.input.dialogFolder = program.settings.FilePath;
}

void WriteAssociation(ShellServices& services, const AssociationTarget& association) {
    try {
        AssociateFileType(association.dataFolder, association.program);
    } catch (const RunTimeError& error) {
        services.dialogs.ShowMessage(
            {MessageIcon::Critical,
             "Error associating file type - " + std::to_string(error.number()),
             error.description()});
    }
}

void RestoreAndSaveAll(Program& program, ShellServices& services) {
    RestoreFactoryDefaults(services, program.settings);
    for (int section = 0; section < OptionsTabCount; ++section) {
        SaveOptionValues(services, program.settings, program.options.form, NoTab, section);
    }
}

} // namespace

OptionsDialog LoadOptionsDialog() {
    OptionsDialog dialog;
    dialog.form = MakeOptionsForm();
    return dialog;
}

int OptionsTabShown(const OptionsDialog& dialog) {
    return dialog.form["tabOptions"].selectedIndex;
}

void ShowOptionsDialog(Program& program, ShellServices& services, int tab) {
    LoadOptionValues(services, program.settings, program.options.form);
    program.options.form["tabOptions"].selectedIndex = tab;
    program.options.visible = true;
}

void ChangeOptionsControl(OptionsDialog& dialog, int tab) {
    dialog.TabChanged.at(static_cast<std::size_t>(tab)) = true;
    dialog.applyEnabled = true;
}

bool OptionsOK(Program& program, ShellServices& services, const AssociationTarget& association) {
    OptionsDialog& dialog = program.options;
    FormModel& form = dialog.form;
    if (form["cbClear"].checked) {
        ClearRecentFile(program.settings);
    }
    if (form["cbRestore"].checked) {
        RestoreAndSaveAll(program, services);
    } else {
        if (CheckOptionsBlankFields(form, program.settings.defaults, services.dialogs, AllTabs) !=
            0) {
            return false;
        }
        for (int tab = ProgramTab; tab < OptionsTabCount; ++tab) {
            SaveOptionValues(services, program.settings, form, tab, tab);
        }
    }
    SetStartFolders(program);
    if (form["cbAssociate"].checked) {
        WriteAssociation(services, association);
    }
    dialog.TabChanged.fill(false);
    dialog.visible = false;
    return true;
}

void OptionsApply(Program& program, ShellServices& services, const AssociationTarget& association) {
    OptionsDialog& dialog = program.options;
    FormModel& form = dialog.form;
    const int tab = OptionsTabShown(dialog);
    dialog.TabChanged.at(static_cast<std::size_t>(tab)) = false;
    dialog.applyEnabled = false;
    if (tab != ProgramTab) {
        if (CheckOptionsBlankFields(form, program.settings.defaults, services.dialogs, tab) == 0) {
            SaveOptionValues(services, program.settings, form, tab, tab);
        }
        return;
    }
    if (form["cbClear"].checked) {
        ClearRecentFile(program.settings);
    }
    const bool associate = form["cbAssociate"].checked;
    if (form["cbRestore"].checked) {
        RestoreAndSaveAll(program, services);
        SetStartFolders(program);
        LoadOptionValues(services, program.settings, form);
        dialog.TabChanged.fill(false);
        dialog.applyEnabled = false;
    } else {
        SaveOptionValues(services, program.settings, form, ProgramTab, ProgramTab);
        SetStartFolders(program);
    }
    if (associate) {
        WriteAssociation(services, association);
    }
}

void OptionsCancel(OptionsDialog& dialog) {
    dialog.visible = false;
}
