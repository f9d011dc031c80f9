#include "shell/qt/settings_file_start.h"

#include "shell/qt/ini_settings_store.h"
#include "shell/settings_file_check.h"

SettingsFileStart::SettingsFileStart(UserDialogs& dialogs, const Clock& clock,
                                     const std::string& programFolder, ProgramSettings& settings) {
    const std::filesystem::path file = SettingsFilePath();
    const std::optional<std::string> problem = SettingsFileProblem(file);
    if (!problem) {
        m_file = std::make_unique<IniSettingsStore>(file);
    }
    m_start.emplace(StartSettings(m_file ? *m_file : m_memory, m_memory, problem, file.string(),
                                  dialogs, clock, programFolder, settings));
}
