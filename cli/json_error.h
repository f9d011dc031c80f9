#pragma once

#include <iosfwd>
#include <string>

// A failure of the command line as a batch script reads it with --json: one object
// {"error": {"number", "message", "path"}} on standard output, beside the line on standard
// error. `number` is the classic run-time error number of a file error, and otherwise the exit
// status (1 bad usage, 5 nothing to print); `path` is the file concerned, or empty.
struct CliError {
    int number = 0;
    std::string message;
    std::string path;
};

void PrintJsonError(const CliError& error, std::ostream& out);
