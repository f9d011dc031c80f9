#include "common/run_time_error.h"

namespace {
std::string WhatText(int number) {
    return "Error " + std::to_string(number) + ": " + ErrorDescription(number);
}
} // namespace

RunTimeError::RunTimeError(int number)
    : std::runtime_error(WhatText(number)), m_number(number),
      m_description(ErrorDescription(number)) {}

std::string ErrorDescription(int number) {
    switch (number) {
    case 5:
        return "Invalid procedure call or argument";
    case 6:
        return "Overflow";
    case 7:
        return "Out of memory";
    case 11:
        return "Division by zero";
    case 13:
        return "Type mismatch";
    case 52:
        return "Bad file name or number";
    case 53:
        return "File not found";
    case 57:
        return "Device I/O error";
    case 61:
        return "Disk full";
    case 62:
        return "Input past end of file";
    case 70:
        return "Permission denied";
    case 75:
        return "Path/File access error";
    case 76:
        return "Path not found";
    default:
        return "Application-defined or object-defined error";
    }
}
