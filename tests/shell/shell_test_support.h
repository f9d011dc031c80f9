#pragma once

#include "shell/memory_settings_store.h"
#include "shell/shell_services.h"

#include <string>
#include <vector>

class FixedClock : public Clock {
  public:
    explicit FixedClock(std::string date) : date(std::move(date)) {}
    std::string TodayLongDate() const override { return date; }
    std::string date;
};

// Keeps every message the logic asks to show.
class RecordingDialogs : public UserDialogs {
  public:
    void ShowMessage(const MessageRequest& message) override { messages.push_back(message); }
    std::vector<MessageRequest> messages;
};

// A store in memory, a clock fixed on November 23, 2026 and the program in "/opt/korvath3".
struct ShellFixture {
    MemorySettingsStore store;
    RecordingDialogs dialogs;
    FixedClock clock{"November 23, 2026"};
    ShellServices services{store, dialogs, clock, "/opt/korvath3"};

    std::map<std::string, std::string>& section(const std::string& name) {
        return store.keys["Software\\Brellin Works\\Korvath3\\" + name];
    }
};
