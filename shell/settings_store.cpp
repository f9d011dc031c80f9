#include "shell/settings_store.h"

#include "common/run_time_error.h"

namespace {

// The longest text the classic 255-character buffer holds with its terminating zero.
constexpr std::size_t LongestValue = 254;

} // namespace

std::string SettingsSectionPath(const std::string& section) {
    return "Brellin Works\\Korvath3\\" + section;
}

bool OpenSection(SettingsStore& store, UserDialogs& dialogs, const std::string& software,
                 const std::string& subPath, SettingsKey& key) {
    const std::string path = software + "\\" + subPath;
    try {
        store.CreateKey(path);
    } catch (const RunTimeError& error) {
        dialogs.ShowMessage({MessageIcon::Critical,
                             "Error Creating Registry Key - " + std::to_string(error.number()),
                             error.description()});
        return false;
    }
    key = {path, true};
    return true;
}

QueryResult QueryValue(SettingsStore& store, const SettingsKey& key, const std::string& name,
                       std::string& value, const std::string& defaultText) {
    const std::optional<std::string> stored = store.LookUp(key.path, name);
    if (stored && stored->size() <= LongestValue) {
        value = *stored;
        return ValueFound;
    }
    if (!store.Write(key.path, name, defaultText)) {
        return DefaultNotWritten;
    }
    value = defaultText;
    return DefaultWritten;
}

bool ReadFlag(SettingsStore& store, const SettingsKey& key, const std::string& name) {
    const std::optional<std::string> stored = store.LookUp(key.path, name);
    return stored && *stored == "1";
}

void SetValue(SettingsStore& store, const SettingsKey& key, const std::string& name,
              const std::string& text) {
    store.Write(key.path, name, text);
}

bool CloseKey(SettingsStore& store, SettingsKey& key) {
    key.open = false;
    return store.Close(key.path);
}
