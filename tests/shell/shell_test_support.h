#pragma once

#include "shell/memory_settings_store.h"
#include "shell/shell_services.h"

#include <string>
#include <vector>

class FixedClock : public Clock {
  public:
    explicit FixedClock(std::string date) : date(std::move(date)) {}
    std::string TodayLongDate() const override { return date; }
    std::string TodayShortDate() const override { return "11/23/2026"; }
    std::string TimeOfDay() const override { return "3:05:09 PM"; }
    std::string date;
};

// Keeps every message the logic asks to show.
class RecordingDialogs : public UserDialogs {
  public:
    void ShowMessage(const MessageRequest& message) override { messages.push_back(message); }
    // Questions answer with the next scripted answer, Cancel when none is left.
    Answer AskYesNoCancel(const MessageRequest& question) override {
        messages.push_back(question);
        if (replies.empty()) {
            return Answer::Cancel;
        }
        const Answer reply = replies.front();
        replies.erase(replies.begin());
        return reply;
    }
    // File dialogs answer with the next scripted path; an empty script is a cancel.
    std::optional<std::string> ShowOpenDialog(const FileDialogRequest& request) override {
        return NextPath(request);
    }
    std::optional<std::string> ShowSaveDialog(const FileDialogRequest& request) override {
        return NextPath(request);
    }
    std::vector<MessageRequest> messages;
    std::vector<FileDialogRequest> fileDialogs;
    std::vector<std::string> answers;
    std::vector<Answer> replies;

  private:
    std::optional<std::string> NextPath(const FileDialogRequest& request) {
        fileDialogs.push_back(request);
        if (answers.empty()) {
            return std::nullopt;
        }
        std::string path = answers.front();
        answers.erase(answers.begin());
        return path;
    }
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
