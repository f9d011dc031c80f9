#include "shell/settings_at_start.h"

#include "common/run_time_error.h"
#include "shell/load_settings.h"
#include "shell/shell_services.h"

namespace {

std::string Notice(const std::string& filePath, const std::string& problem) {
    return "The settings file " + filePath + " " + problem +
           ". Korvath 3.0 starts with the factory defaults and does not write the file in this "
           "run.";
}

} // namespace

SettingsAtStart StartSettings(SettingsStore& file, SettingsStore& memory,
                              const std::optional<std::string>& fileProblem,
                              const std::string& filePath, UserDialogs& dialogs, const Clock& clock,
                              const std::string& programFolder, ProgramSettings& settings) {
    std::optional<std::string> problem = fileProblem;
    if (!problem) {
        ShellServices services{file, dialogs, clock, programFolder};
        try {
            return {&file, LoadSettings(services, settings), std::nullopt};
        } catch (const RunTimeError& error) {
            problem = "cannot be read (" + error.description() + ")";
        }
    }
    settings = ProgramSettings{};
    ShellServices services{memory, dialogs, clock, programFolder};
    SettingsAtStart start{&memory, LoadSettings(services, settings), Notice(filePath, *problem)};
    dialogs.ShowMessage({MessageIcon::Exclamation, SettingsNoticeTitle, *start.notice});
    return start;
}
