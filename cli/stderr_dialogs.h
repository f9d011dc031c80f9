#pragma once

#include "shell/user_dialogs.h"

#include <ostream>

// Message boxes of the shared logic, written as lines on the error stream.
class StreamDialogs : public UserDialogs {
  public:
    explicit StreamDialogs(std::ostream& err) : m_err(err) {}
    void ShowMessage(const MessageRequest& message) override {
        m_err << "korvath3-cli: " << message.title << ": " << message.text << '\n';
    }
    // Nobody is there to answer: nothing is done.
    Answer AskYesNoCancel(const MessageRequest& question) override {
        ShowMessage(question);
        return Answer::Cancel;
    }
    // The command line chooses its files by arguments; a file dialog is cancelled.
    std::optional<std::string> ShowOpenDialog(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> ShowSaveDialog(const FileDialogRequest&) override { return {}; }

  private:
    std::ostream& m_err;
};
