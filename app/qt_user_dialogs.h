#pragma once

#include "shell/user_dialogs.h"

class QFileDialog;
class QWidget;

// The program's messages, questions and file dialogs as Qt boxes over the main window.
class QtUserDialogs : public UserDialogs {
  public:
    explicit QtUserDialogs(QWidget* parent = nullptr) : m_parent(parent) {}

    // The window the boxes stand over.
    void SetParent(QWidget* parent) { m_parent = parent; }

    void ShowMessage(const MessageRequest& message) override;
    Answer AskYesNoCancel(const MessageRequest& question) override;
    std::optional<std::string> ShowOpenDialog(const FileDialogRequest& request) override;
    std::optional<std::string> ShowSaveDialog(const FileDialogRequest& request) override;

  private:
    QWidget* m_parent;
};

// A filter as the program writes it ("Projects (*.kvt)|*.kvt", pairs split by "|") as Qt's
// name filters ("Projects (*.kvt)", one a line).
std::string QtNameFilters(const std::string& filter);

// A file dialog as the program opens it: large, with the detail columns, the size, kind and date
// as wide as what they hold.
void PrepareFileDialog(QFileDialog& dialog);
