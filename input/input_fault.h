#pragma once

#include <string>

// The first fault an input check finds: the control to take the user to, its tab (1 project
// information to 7 line load, as the input pages are numbered) and the message to show.
struct InputFault {
    std::string control;
    int tab = 0;
    std::string message;

    bool operator==(const InputFault&) const = default;
};
