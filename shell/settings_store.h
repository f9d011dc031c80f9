#pragma once

#include "shell/user_dialogs.h"

#include <optional>
#include <string>

// The store of everything that outlasts a run: a tree of keys, one per section, each holding
// named text values (numbers too are text). The logic needs only the operations below; a store
// is any backend that offers the four primitive services of `SettingsStore`.

// The primitive services of one store. The desktop program keeps them in an INI file
// (shell/qt/ini_settings_store); the tests in memory (shell/memory_settings_store).
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    // Creates the key of `path` if it does not exist, which also opens it. A failure of the
    // service itself throws RunTimeError.
    virtual void CreateKey(const std::string& path) = 0;
    // The text of a value, or nothing when it is absent or cannot be read.
    virtual std::optional<std::string> LookUp(const std::string& path, const std::string& name) = 0;
    // Writes a text value; false when the store refused it.
    virtual bool Write(const std::string& path, const std::string& name,
                       const std::string& text) = 0;
    // Closes an open key; false when that failed.
    virtual bool Close(const std::string& path) = 0;
};

// An open key of the store.
struct SettingsKey {
    std::string path;
    bool open = false;
};

// The sub-path of one section of the program's settings: "Brellin Works\Korvath3\" and the
// section's name ("DefMatProp", "Program Data").
std::string SettingsSectionPath(const std::string& section);

// Joins `software`, a backslash and `subPath`, creates the key if it does not exist and opens
// it. Only a failure of the service itself gives false, after a critical box "Error Creating
// Registry Key - " with the error number, its text the error's description.
bool OpenSection(SettingsStore& store, UserDialogs& dialogs, const std::string& software,
                 const std::string& subPath, SettingsKey& key);

// What QueryValue found.
enum QueryResult : int {
    ValueFound = 0,        // the stored text, not longer than 254 characters
    DefaultWritten = 1,    // absent or too long: the default was written and is the value
    DefaultNotWritten = 2, // and the store refused the default: the value is left as it was
};

// Looks `name` up. A value longer than 254 characters counts as absent, as it does not fit the
// classic 255-character buffer; an absent value springs into existence with its default.
QueryResult QueryValue(SettingsStore& store, const SettingsKey& key, const std::string& name,
                       std::string& value, const std::string& defaultText);

// True only when the value exists and its text is "1". Creates nothing.
bool ReadFlag(SettingsStore& store, const SettingsKey& key, const std::string& name);

// Writes a text value; a refusal is not reported.
void SetValue(SettingsStore& store, const SettingsKey& key, const std::string& name,
              const std::string& text);

// True when the key was closed.
bool CloseKey(SettingsStore& store, SettingsKey& key);
