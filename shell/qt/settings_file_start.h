#pragma once

#include "shell/memory_settings_store.h"
#include "shell/settings_at_start.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

// The settings store of one run of the program, as its start finds it: the settings file, or,
// when the file cannot serve, a store in memory from the factory defaults, the file left as it
// is and the notice shown once. Holds whichever store the run keeps; does not outlive it.
class SettingsFileStart {
  public:
    SettingsFileStart(UserDialogs& dialogs, const Clock& clock, const std::string& programFolder,
                      ProgramSettings& settings);
    SettingsFileStart(const SettingsFileStart&) = delete;
    SettingsFileStart& operator=(const SettingsFileStart&) = delete;

    SettingsStore& store() { return *m_start->store; }
    std::int16_t showSplash() const { return m_start->showSplash; }

  private:
    MemorySettingsStore m_memory;
    std::unique_ptr<SettingsStore> m_file;
    std::optional<SettingsAtStart> m_start;
};
