#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

// A failure to read or write a file, with the classic run-time error number and its
// description ("53", "File not found"), as the engineer sees them in a message title and text.
// what() reads "Error 53: File not found".
class FileError : public std::runtime_error {
  public:
    explicit FileError(int number);
    int number() const { return m_number; }
    const std::string& description() const { return m_description; }

  private:
    int m_number;
    std::string m_description;
};

// The classic description of an error number: 53 "File not found", 62 "Input past end of
// file", 13 "Type mismatch", ...
std::string ErrorDescription(int number);

// The classic error number for a failure of the operating system (an errno value) met while
// opening, reading or writing `path`. A missing file is 53 when its folder exists and 76 when
// the folder itself is missing.
int ErrorNumberForSystemError(int errorCode, const std::filesystem::path& path);
