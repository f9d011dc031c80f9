#pragma once

#include "engine/design_record.h"
#include "input/input_fault.h"

#include <filesystem>
#include <optional>
#include <ostream>

// The value check the program runs before every analysis, for a project read from a file: the
// first value that makes no design sense, with the page and the field the program would take
// the user to. The record is looked at as the analysis would see it, with the diameter of its
// tendon derived from its type; a tendon without a diameter is left to the analysis to report.
std::optional<InputFault> FindProjectInputFault(const DesignRecord& record);

// Tells the fault on the error stream, or as the JSON object {"version", "inputError": {"tab",
// "page", "control", "message"}} on the output stream.
void PrintInputFault(const std::filesystem::path& project, int version, const InputFault& fault,
                     bool json, std::ostream& out, std::ostream& err);

struct LoadedProject;

// Reads the project and, when `check` is on, runs the value check on it, telling a failure as
// the command line does. Gives the project, or nothing with `failureStatus` set to the exit
// status of the file error or the input error.
std::optional<LoadedProject> LoadCheckedProject(const std::filesystem::path& project,
                                                const DesignRecord& defaults, bool check, bool json,
                                                std::ostream& out, std::ostream& err,
                                                int& failureStatus);
