#pragma once

#include <stdexcept>
#include <string>

// A failure with the classic run-time error number and its description ("6", "Overflow";
// "53", "File not found"), as the engineer sees them in a message title and text. what() reads
// "Error 6: Overflow".
class RunTimeError : public std::runtime_error {
  public:
    explicit RunTimeError(int number);
    int number() const { return m_number; }
    const std::string& description() const { return m_description; }

  private:
    int m_number;
    std::string m_description;
};

// The classic description of an error number: 6 "Overflow", 13 "Type mismatch", 53 "File not
// found", 62 "Input past end of file", ...
std::string ErrorDescription(int number);
