#pragma once

#include <string>

// Message boxes as requests of the program's logic. The desktop program answers them with its
// toolkit's boxes, the command line on standard error, the tests with a script.

enum class MessageIcon { Critical, Exclamation, Information, Question };

struct MessageRequest {
    MessageIcon icon = MessageIcon::Information;
    std::string title;
    std::string text;
};

class UserDialogs {
  public:
    virtual ~UserDialogs() = default;
    virtual void ShowMessage(const MessageRequest& message) = 0;
};
