#pragma once

#include "shell/settings_store.h"

#include <map>
#include <string>

// A settings store held in memory, for tests and for runs that must leave no trace. It can be
// told to refuse every write, or to fail when a key is created.
class MemorySettingsStore : public SettingsStore {
  public:
    void CreateKey(const std::string& path) override;
    std::optional<std::string> LookUp(const std::string& path, const std::string& name) override;
    bool Write(const std::string& path, const std::string& name, const std::string& text) override;
    bool Close(const std::string& path) override;

    // The values of every key, by key path and value name.
    std::map<std::string, std::map<std::string, std::string>> keys;
    bool refuseWrites = false;
    // A run-time error number that creating a key fails with; 0 for none.
    int createKeyError = 0;
};
