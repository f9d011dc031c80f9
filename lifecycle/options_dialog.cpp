#include "lifecycle/options_dialog.h"

#include "common/run_time_error.h"
#include "input/enabling_rules.h"
#include "input/input_checks.h"
#include "input/input_form.h"
#include "lifecycle/program.h"
#include "shell/file_association.h"
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

int OptionCount(const FormModel& form, const std::string& group) {
    int count = 0;
    while (form.has(ArrayName(group, count))) {
        ++count;
    }
    return count;
}

int SelectedIn(const FormModel& form, const std::string& group) {
    return SelectedOption(form, group, OptionCount(form, group));
}

// The rule of a check box or option group, applied to the form as it stands.
void ApplyRule(FormModel& form, const std::string& group, const DesignRecord* fill) {
    if (group == "optTendType") {
        ApplyTendType(form, SelectedIn(form, group), fill);
    } else if (group == "optSlabRefType") {
        ApplySlabRefType(form, SelectedIn(form, group), fill);
    } else if (group == "cbSlabTenCovType") {
        ApplySlabTenCovType(form, form[group].checked, fill);
    } else if (group == "optBeamSpacing") {
        ApplyBeamSpacing(form, SelectedIn(form, group), fill);
    } else if (group == "optSubgradetype") {
        ApplySubgradetype(form, SelectedIn(form, group), fill);
    } else if (group == "cbUseDeadLoad") {
        ApplyUseDeadLoad(form, form[group].checked, fill);
    } else if (group == "cbCLSettleState") {
        ApplyCLSettleState(form, form[group].checked, fill);
    } else if (group == "optPreLineLoad") {
        ApplyPreLineLoad(form, SelectedIn(form, group), fill);
    } else if (group == "cbLineLoadType") {
        ApplyLineLoadType(form, form[group].checked, fill);
    }
}

// The check boxes and option groups that switch other fields.
const char* const RuledControls[] = {"optTendType",     "optSlabRefType",  "cbSlabTenCovType",
                                     "optBeamSpacing",  "optSubgradetype", "cbUseDeadLoad",
                                     "cbCLSettleState", "optPreLineLoad",  "cbLineLoadType"};

// LoadOptionValues, then the switches of the loaded choices: the fields they switch off are
// blank already and are disabled too, the ones they switch on enabled.
void FillOptionsForm(Program& program, ShellServices& services) {
    FormModel& form = program.options.form;
    LoadOptionValues(services, program.settings, form);
    for (const char* ruled : RuledControls) {
        ApplyRule(form, ruled, nullptr);
    }
}

const FormModel& InputCaptions() {
    static const FormModel form = MakeInputForm();
    return form;
}

} // namespace

OptionsDialog LoadOptionsDialog() {
    OptionsDialog dialog;
    dialog.form = MakeOptionsForm();
    // The record's tabs hold both soils at once: no soil list, every frame shown; no spins.
    for (Control control : InputCaptions().controls()) {
        if (dialog.form.has(control.name)) {
            Control& own = dialog.form[control.name];
            if (own.caption.empty()) {
                own.caption = control.caption;
            }
            continue;
        }
        if (control.name == "cboSoilType" || control.name.rfind("ud", 0) == 0) {
            continue;
        }
        control.visible = true;
        dialog.form.add(std::move(control));
    }
    return dialog;
}

int OptionsTabOfControl(const std::string& control) {
    return InputCaptions().has(control) ? PageOfControl(InputCaptions(), control) : 0;
}

void ClickOptionsControl(OptionsDialog& dialog, const ProgramSettings& settings,
                         const std::string& control) {
    FormModel& form = dialog.form;
    std::string group = control;
    if (control.rfind("opt", 0) == 0) {
        group = control.substr(0, control.find('('));
        const int index = std::stoi(control.substr(control.find('(') + 1));
        SelectOption(form, group, OptionCount(form, group), index);
    } else {
        form[control].checked = !form[control].checked;
    }
    ApplyRule(form, group, &settings.defaults);
    ChangeOptionsControl(dialog, OptionsTabOfControl(control));
}

int OptionsTabShown(const OptionsDialog& dialog) {
    return dialog.form["tabOptions"].selectedIndex;
}

void ShowOptionsDialog(Program& program, ShellServices& services, int tab) {
    FillOptionsForm(program, services);
    program.options.form["tabOptions"].selectedIndex = tab;
    program.options.visible = true;
}

void ChangeOptionsControl(OptionsDialog& dialog, int tab) {
    dialog.TabChanged.at(static_cast<std::size_t>(tab)) = true;
    dialog.applyEnabled = true;
}

void ChangeOptionsText(OptionsDialog& dialog, const std::string& box, const std::string& text) {
    dialog.form[box].text = text;
    ChangeOptionsControl(dialog, OptionsTabOfControl(box));
}

void ChooseOptionsListItem(OptionsDialog& dialog, const std::string& list, int index) {
    Control& control = dialog.form[list];
    if (index < 0 || index >= static_cast<int>(control.items.size())) {
        return;
    }
    control.selectedIndex = index;
    control.text = control.items[static_cast<std::size_t>(index)];
    ChangeOptionsControl(dialog, OptionsTabOfControl(list));
}

void ChooseDefaultFolder(OptionsDialog& dialog, const std::string& folder) {
    dialog.form["dlbDefFilePath"].text = folder;
    dialog.form["lblDefFilePath"].caption = folder;
    ChangeOptionsControl(dialog, ProgramTab);
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
    // With every flag cleared nothing is left for Apply: it comes back with the next change.
    dialog.TabChanged.fill(false);
    dialog.applyEnabled = false;
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
        FillOptionsForm(program, services);
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
