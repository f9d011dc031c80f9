#pragma once

#include "common/date_text.h"
#include "engine/design_record.h"
#include "shell/load_settings.h"

#include <filesystem>
#include <iosfwd>

struct CheckOptions {
    std::filesystem::path project;
    bool json = false;
    // Run the input value checks before the analysis; off runs the record as it stands.
    bool check = true;
    EngineSettings settings;
    // The record a new project starts from, for the fields an older file lacks.
    DesignRecord defaults = FirstStartDefaultRecord(TodayLongDateText());
    // List the values within their limits too, on all three compliance pages.
    bool showAll = false;
    // Bold and red by terminal escapes.
    bool colour = false;
};

// Reads the project, runs the analysis and prints the design exceptions, the compliance lists
// and the summary lines, as text or as one JSON object. Errors go to `err`. Gives the exit
// status (cli/exit_status.h): a design out of compliance is still a finished analysis.
int RunCheckCommand(const CheckOptions& options, std::ostream& out, std::ostream& err);
