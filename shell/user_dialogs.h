#pragma once

#include <optional>
#include <string>

// Message boxes as requests of the program's logic. The desktop program answers them with its
// toolkit's boxes, the command line on standard error, the tests with a script.

// `None` is a plain box without a symbol.
enum class MessageIcon { Critical, Exclamation, Information, Question, None };

struct MessageRequest {
    MessageIcon icon = MessageIcon::Information;
    std::string title;
    std::string text;
};

// A common file dialog. The filter is written as the program has always written it: pairs of a
// description and a pattern separated by "|", as in "Material Prop. (*.kv1) | *.kv1".
struct FileDialogRequest {
    std::string title;
    std::string filter;
    std::string fileName;         // proposed name, may be empty
    std::string defaultExtension; // without the point
    std::string folder;           // the folder it opens in, may be empty
};

// The answer to a question box with the buttons Yes, No and Cancel.
enum class Answer { Yes, No, Cancel };

class UserDialogs {
  public:
    virtual ~UserDialogs() = default;
    virtual void ShowMessage(const MessageRequest& message) = 0;
    // A question box with Yes, No and Cancel; closing it is Cancel.
    virtual Answer AskYesNoCancel(const MessageRequest& question) = 0;
    // The chosen path, or nothing when the user cancelled.
    virtual std::optional<std::string> ShowOpenDialog(const FileDialogRequest& request) = 0;
    virtual std::optional<std::string> ShowSaveDialog(const FileDialogRequest& request) = 0;
};
