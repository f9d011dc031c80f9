#pragma once

#include "shell/clock.h"
#include "shell/program_settings.h"
#include "shell/settings_store.h"
#include "shell/user_dialogs.h"

#include <cstdint>
#include <optional>
#include <string>

// The settings of one run of the program, read at its start. A settings file that cannot serve
// (`fileProblem` given, or a stored value that cannot be read) is left as it is: the run keeps
// its settings in the store in memory, from the factory defaults, and says so once through the
// dialogs. Does not choose or open the file; the caller does.
struct SettingsAtStart {
    SettingsStore* store; // where this run reads and writes its settings
    std::int16_t showSplash = 1;
    std::optional<std::string> notice; // shown once, or none when the file served
};

SettingsAtStart StartSettings(SettingsStore& file, SettingsStore& memory,
                              const std::optional<std::string>& fileProblem,
                              const std::string& filePath, UserDialogs& dialogs, const Clock& clock,
                              const std::string& programFolder, ProgramSettings& settings);

// The title of the notice.
inline constexpr const char* SettingsNoticeTitle = "Korvath Settings";
