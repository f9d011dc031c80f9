#pragma once

#include "shell/settings_store.h"

#include <filesystem>
#include <memory>

class QSettings;

// The settings store as an INI file, one group per section ("[DefMatProp]", "[Program
// Data]"). Every write is flushed at once, so that a file that cannot be written is known at
// the write that failed.
class IniSettingsStore : public SettingsStore {
  public:
    explicit IniSettingsStore(const std::filesystem::path& file);
    ~IniSettingsStore() override;

    void CreateKey(const std::string& path) override;
    std::optional<std::string> LookUp(const std::string& path, const std::string& name) override;
    bool Write(const std::string& path, const std::string& name, const std::string& text) override;
    bool Close(const std::string& path) override;

  private:
    std::unique_ptr<QSettings> m_settings;
};

// Where the program keeps its settings: the file named by the variable KORVATH3_SETTINGS, or
// else "Brellin Works/Korvath3.conf" in the user's configuration folder ($XDG_CONFIG_HOME, or
// ~/.config).
std::filesystem::path SettingsFilePath();
