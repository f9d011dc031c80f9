#include "shell/options_form.h"

#include "common/number_text.h"
#include "common/run_time_error.h"
#include "shell/load_settings.h"
#include "shell/record_controls.h"
#include "shell/settings_sections.h"

#include <filesystem>

namespace {

constexpr int PrintOptionCount = 2;

Control NamedControl(std::string name) {
    Control control;
    control.name = std::move(name);
    return control;
}

// The control or controls of one record field.
void AddFieldControls(FormModel& form, std::string_view field) {
    const FieldControl binding = ControlForField(field);
    if (binding.kind == ControlKind::OptionGroup) {
        for (int i = 0; i < binding.options; ++i) {
            form.add(NamedControl(ArrayName(binding.control, i)));
        }
    } else if (form.has(binding.control)) {
        return;
    } else {
        Control control;
        control.name = binding.control;
        if (binding.kind == ControlKind::List) {
            control.items = {"Long Direction", "Short Direction"};
        }
        form.add(std::move(control));
    }
}

// Copies one field from its control into the record; a blank box is 0.
void CopyField(const FormModel& form, DesignRecord& record, std::string_view name) {
    CopyControlToField(form, record, name, BlankText::Zero);
}

void CopyFields(const FormModel& form, DesignRecord& record,
                std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) {
        CopyField(form, record, name);
    }
}

// The fields of a tab that take no normalisation, in the order of its section.
void CopyPlainFieldsOfTab(const FormModel& form, DesignRecord& record, int tab,
                          std::initializer_list<std::string_view> normalised) {
    for (const DefaultValue& value : DefaultSectionFor(tab)->values) {
        bool isNormalised = false;
        for (const std::string_view name : normalised) {
            isNormalised = isNormalised || name == value.field;
        }
        if (!isNormalised) {
            CopyField(form, record, value.field);
        }
    }
}

void CopyProgramTab(const FormModel& form, ProgramSettings& settings) {
    settings.FilePath = form["dlbDefFilePath"].text;
    ProgramOptions& options = settings.options;
    options.UseBeta = form["cbUseBeta"].checked ? 1 : 0;
    options.UseBeamOnly = form["cbUseBeamOnly"].checked ? 1 : 0;
    options.PrintColor = form[ArrayName("chkPrintOptions", 0)].checked ? 1 : 0;
    options.PrintAll = form[ArrayName("chkPrintOptions", 1)].checked ? 1 : 0;
    for (std::size_t i = 0; i < options.DefaultPages.size(); ++i) {
        options.DefaultPages[i] = form[ArrayName("chkDR", static_cast<int>(i))].checked ? 1 : 0;
    }
}

void CopyMaterialTab(const FormModel& form, DesignRecord& r) {
    CopyPlainFieldsOfTab(form, r, 2, {"TendType", "TendArea"});
    // The three standard strands have their area from the table; another takes the typed one.
    const double standardAreas[] = {0.085, 0.115, 0.153};
    const int type = SelectedOption(form, "optTendType", 4);
    if (type >= 0 && type <= 2) {
        r.TendType = static_cast<std::int16_t>(type);
        r.TendArea = standardAreas[type];
    } else if (type == 3) {
        r.TendType = 3;
        CopyField(form, r, "TendArea");
    }
}

void CopySlabTab(const FormModel& form, DesignRecord& r) {
    CopyPlainFieldsOfTab(form, r, 3,
                         {"NumSlabTenShort", "NumSlabTenLong", "StrLvlShort", "StrLvlLong",
                          "ForceShort", "ForceLong", "SlabTenCov"});
    // Only the reinforcement row of the chosen reference is kept; the other two are 0.
    r.NumSlabTenShort = r.NumSlabTenLong = 0;
    r.StrLvlShort = r.StrLvlLong = 0;
    r.ForceShort = r.ForceLong = 0;
    switch (r.SlabRefType) {
    case 0:
        CopyFields(form, r, {"NumSlabTenShort", "NumSlabTenLong"});
        break;
    case 1:
        CopyFields(form, r, {"StrLvlShort", "StrLvlLong"});
        break;
    case 2:
        CopyFields(form, r, {"ForceShort", "ForceLong"});
        break;
    default:
        break;
    }
    r.SlabTenCov = 0;
    if (r.SlabTenCovType == 1) {
        CopyField(form, r, "SlabTenCov");
    }
}

void CopyBeamTab(const FormModel& form, DesignRecord& r) {
    CopyPlainFieldsOfTab(form, r, 4, {"BeamSpacing", "SMin", "SMax", "LMin", "LMax"});
    if (form[ArrayName("optBeamSpacing", 1)].checked) {
        r.BeamSpacing = 1;
        r.SMin = r.SMax = r.LMin = r.LMax = 0;
    } else {
        CopyFields(form, r, {"BeamSpacing", "SMin", "SMax", "LMin", "LMax"});
    }
}

void CopyLoadTab(const FormModel& form, DesignRecord& r) {
    CopyPlainFieldsOfTab(form, r, 6, {"DeadLoad"});
    r.DeadLoad = 0;
    if (r.UseDeadLoad == 1) {
        CopyField(form, r, "DeadLoad");
    }
}

void CopyLineLoadTab(const FormModel& form, DesignRecord& r) {
    CopyField(form, r, "LineLoadType");
    if (r.LineLoadType == 1) {
        CopyFields(form, r, {"LineLoad", "DirLineLoad", "PreLineLoadType", "UDPreLineLoad", "Ks"});
    }
}

void CopyTab(const FormModel& form, ProgramSettings& settings, int tab) {
    DesignRecord& r = settings.defaults;
    switch (tab) {
    case 0:
        CopyProgramTab(form, settings);
        break;
    case 1:
    case 5:
        CopyPlainFieldsOfTab(form, r, tab, {});
        break;
    case 2:
        CopyMaterialTab(form, r);
        break;
    case 3:
        CopySlabTab(form, r);
        break;
    case 4:
        CopyBeamTab(form, r);
        break;
    case 6:
        CopyLoadTab(form, r);
        break;
    case 7:
        CopyLineLoadTab(form, r);
        break;
    default:
        break; // 8: nothing from the screen
    }
}

void WriteProgramData(SettingsStore& store, const SettingsKey& key,
                      const ProgramSettings& settings) {
    const ProgramOptions& options = settings.options;
    SetValue(store, key, "FilePath", settings.FilePath);
    SetValue(store, key, "UseBeta", GeneralNumberText(options.UseBeta));
    SetValue(store, key, "UseBeamOnly", GeneralNumberText(options.UseBeamOnly));
    SetValue(store, key, "PrintColor", GeneralNumberText(options.PrintColor));
    SetValue(store, key, "PrintAll", GeneralNumberText(options.PrintAll));
    for (std::size_t i = 0; i < DefaultPageNames.size(); ++i) {
        SetValue(store, key, DefaultPageNames[i], GeneralNumberText(options.DefaultPages[i]));
    }
}

void WriteSection(ShellServices& services, const ProgramSettings& settings, int section) {
    const DefaultSection* defaults = DefaultSectionFor(section);
    if (section != 0 && defaults == nullptr) {
        return;
    }
    SettingsKey key;
    const std::string name = section == 0 ? ProgramDataSection : defaults->name;
    if (!OpenSection(services.store, services.dialogs, "Software", SettingsSectionPath(name),
                     key)) {
        return;
    }
    if (section == 0) {
        WriteProgramData(services.store, key, settings);
    } else {
        for (const DefaultValue& value : defaults->values) {
            SetValue(services.store, key, value.name,
                     FieldStoreText(settings.defaults, FieldNamed(value.writeFrom)));
        }
    }
    CloseKey(services.store, key);
}

// Writes one field of the default record into its control, blank when its condition does not
// hold.
void ShowField(FormModel& form, const DesignRecord& record, std::string_view name) {
    const DesignField& field = FieldNamed(name);
    const FieldControl binding = ControlForField(name);
    switch (binding.kind) {
    case ControlKind::CheckBox:
        form[binding.control].checked = record.*field.int16 == 1;
        return;
    case ControlKind::OptionGroup:
        SelectOption(form, binding.control, binding.options, record.*field.int16);
        return;
    case ControlKind::List:
    case ControlKind::TextBox:
        break;
    }
    Control& control = form[binding.control];
    control.text = FieldConditionHolds(record, name) ? FieldStoreText(record, field) : "";
    if (binding.kind == ControlKind::List) {
        control.selectedIndex = -1;
        for (std::size_t i = 0; i < control.items.size(); ++i) {
            if (control.items[i] == control.text) {
                control.selectedIndex = static_cast<int>(i);
            }
        }
    }
}

} // namespace

FormModel MakeOptionsForm() {
    FormModel form;
    Control tabs = NamedControl("tabOptions");
    tabs.selectedIndex = 0;
    form.add(std::move(tabs));
    form.add(NamedControl("dlbDefFilePath"));
    form.add(NamedControl("lblDefFilePath"));
    form.add(NamedControl("cbUseBeta"));
    form.add(NamedControl("cbUseBeamOnly"));
    for (int i = 0; i < PrintOptionCount; ++i) {
        form.add(NamedControl(ArrayName("chkPrintOptions", i)));
    }
    for (int i = 0; i < static_cast<int>(DefaultPageNames.size()); ++i) {
        form.add(NamedControl(ArrayName("chkDR", i)));
    }
    form.add(NamedControl("cbClear"));
    form.add(NamedControl("cbRestore"));
    form.add(NamedControl("cbAssociate"));
    for (const DefaultSection& section : DefaultRecordSections()) {
        for (const DefaultValue& value : section.values) {
            AddFieldControls(form, value.field);
        }
    }
    return form;
}

void LoadOptionValues(const ShellServices& services, ProgramSettings& settings, FormModel& form) {
    std::error_code error;
    if (!std::filesystem::is_directory(settings.FilePath, error)) {
        settings.FilePath = services.programFolder;
    }
    form["dlbDefFilePath"].text = settings.FilePath;
    form["lblDefFilePath"].caption = settings.FilePath;
    form["cbClear"].checked = false;
    form["cbRestore"].checked = false;
    form["cbAssociate"].checked = false;

    const ProgramOptions& options = settings.options;
    form["cbUseBeta"].checked = options.UseBeta == 1;
    form["cbUseBeamOnly"].checked = options.UseBeamOnly == 1;
    form[ArrayName("chkPrintOptions", 0)].checked = options.PrintColor == 1;
    form[ArrayName("chkPrintOptions", 1)].checked = options.PrintAll == 1;
    for (std::size_t i = 0; i < options.DefaultPages.size(); ++i) {
        form[ArrayName("chkDR", static_cast<int>(i))].checked = options.DefaultPages[i] == 1;
    }
    for (const DefaultSection& section : DefaultRecordSections()) {
        for (const DefaultValue& value : section.values) {
            ShowField(form, settings.defaults, value.field);
        }
    }
}

void SaveOptionValues(ShellServices& services, ProgramSettings& settings, const FormModel& form,
                      int tabSelector, int sectionSelector) {
    CopyTab(form, settings, tabSelector);
    WriteSection(services, settings, sectionSelector);
}

void RestoreFactoryDefaults(const ShellServices& services, ProgramSettings& settings) {
    settings.FilePath = services.programFolder;
    ProgramOptions& options = settings.options;
    options.UseBeta = options.UseBeamOnly = 0;
    options.PrintColor = options.PrintAll = 0;
    options.DefaultPages.fill(1);

    DesignRecord restored = FirstStartDefaultRecord(services.clock.TodayLongDate());
    restored.UW = 150;
    restored.TendArea = 0.153;
    restored.StrLvlShort = 0;
    restored.StrLvlLong = 0;
    settings.defaults = restored;
}
