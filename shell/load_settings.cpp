#include "shell/load_settings.h"

#include "common/number_text.h"
#include "shell/settings_sections.h"

#include <stdexcept>

namespace {

std::int16_t StoredInteger(const std::string& text) {
    return RoundedInt16(LeadingNumberValue(text));
}

// Reads one integer value of the program's section; a value the store neither holds nor takes
// is 0.
std::int16_t QueryInteger(SettingsStore& store, const SettingsKey& key, const std::string& name,
                          const std::string& defaultText) {
    std::string text;
    QueryValue(store, key, name, text, defaultText);
    return StoredInteger(text);
}

std::string RecentFileName(std::size_t index) {
    return "RecentFile" + std::to_string(index + 1);
}

std::int16_t LoadProgramData(ShellServices& services, ProgramSettings& settings) {
    SettingsStore& store = services.store;
    SettingsKey key;
    std::int16_t showSplash = 0;
    if (!OpenSection(store, services.dialogs, "Software", SettingsSectionPath(ProgramDataSection),
                     key)) {
        return showSplash;
    }
    QueryValue(store, key, "FilePath", settings.FilePath, services.programFolder);
    if (settings.FilePath.empty()) {
        // The store learns the program's folder for the next start; this run keeps no folder.
        SetValue(store, key, "FilePath", services.programFolder);
    }
    for (std::size_t i = 0; i < settings.RecentFiles.size(); ++i) {
        QueryValue(store, key, RecentFileName(i), settings.RecentFiles[i], "");
    }
    ProgramOptions& options = settings.options;
    options.UseBeta = QueryInteger(store, key, "UseBeta", "0");
    options.UseBeamOnly = QueryInteger(store, key, "UseBeamOnly", "0");
    options.PrintColor = QueryInteger(store, key, "PrintColor", "0");
    options.PrintAll = QueryInteger(store, key, "PrintAll", "0");
    for (std::size_t i = 0; i < DefaultPageNames.size(); ++i) {
        options.DefaultPages[i] = QueryInteger(store, key, DefaultPageNames[i], "1");
    }
    showSplash = QueryInteger(store, key, "ShowSplash", "1");
    QueryValue(store, key, "StartX", settings.StartX, "");
    QueryValue(store, key, "StartY", settings.StartY, "");
    options.ShowDD = ReadFlag(store, key, "ShowDD") ? 1 : 0;
    CloseKey(store, key);
    return showSplash;
}

void LoadDefaultRecord(ShellServices& services, DesignRecord& defaults) {
    const std::string today = services.clock.TodayLongDate();
    for (const DefaultSection& section : DefaultRecordSections()) {
        SettingsKey key;
        if (!OpenSection(services.store, services.dialogs, "Software",
                         SettingsSectionPath(section.name), key)) {
            continue;
        }
        for (const DefaultValue& value : section.values) {
            std::string text;
            QueryValue(services.store, key, value.name, text,
                       value.defaultText ? value.defaultText : today);
            SetFieldFromStoreText(defaults, FieldNamed(value.readInto), text);
        }
        CloseKey(services.store, key);
    }
}

} // namespace

const DesignField& FieldNamed(std::string_view name) {
    const DesignField* field = FindDesignField(name);
    if (!field) {
        throw std::logic_error("no design record field named " + std::string(name));
    }
    return *field;
}

void SetFieldFromStoreText(DesignRecord& record, const DesignField& field,
                           const std::string& text) {
    switch (field.kind) {
    case FieldKind::Text:
        record.*field.text = text;
        break;
    case FieldKind::Int16:
        record.*field.int16 = StoredInteger(text);
        break;
    case FieldKind::Real:
        record.*field.real = LeadingNumberValue(text);
        break;
    }
}

std::string FieldStoreText(const DesignRecord& record, const DesignField& field) {
    switch (field.kind) {
    case FieldKind::Text:
        return record.*field.text;
    case FieldKind::Int16:
        return GeneralNumberText(record.*field.int16);
    case FieldKind::Real:
        return GeneralNumberText(record.*field.real);
    }
    return {};
}

std::int16_t LoadSettings(ShellServices& services, ProgramSettings& settings) {
    const std::int16_t showSplash = LoadProgramData(services, settings);
    LoadDefaultRecord(services, settings.defaults);
    return showSplash;
}

DesignRecord FirstStartDefaultRecord(const std::string& projectDate) {
    DesignRecord record;
    for (const DefaultSection& section : DefaultRecordSections()) {
        for (const DefaultValue& value : section.values) {
            SetFieldFromStoreText(record, FieldNamed(value.readInto),
                                  value.defaultText ? value.defaultText : projectDate);
        }
    }
    return record;
}

void SaveRecentFilesAndWindowPosition(ShellServices& services, const ProgramSettings& settings,
                                      const std::string& left, const std::string& top) {
    SettingsKey key;
    if (!OpenSection(services.store, services.dialogs, "Software",
                     SettingsSectionPath(ProgramDataSection), key)) {
        return;
    }
    for (std::size_t i = 0; i < settings.RecentFiles.size(); ++i) {
        SetValue(services.store, key, RecentFileName(i), settings.RecentFiles[i]);
    }
    SetValue(services.store, key, "StartX", left);
    SetValue(services.store, key, "StartY", top);
    CloseKey(services.store, key);
}
