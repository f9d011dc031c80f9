#pragma once

#include "shell/clock.h"
#include "shell/settings_store.h"
#include "shell/user_dialogs.h"

#include <string>

// The platform services the shell's logic works through, and the program's own folder.
struct ShellServices {
    SettingsStore& store;
    UserDialogs& dialogs;
    const Clock& clock;
    std::string programFolder;
};
