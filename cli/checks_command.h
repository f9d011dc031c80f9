#pragma once

#include "common/date_text.h"
#include "engine/design_record.h"
#include "shell/load_settings.h"

#include <filesystem>
#include <iosfwd>

struct ChecksOptions {
    std::filesystem::path project;
    bool json = false;
    // Only the checks that are not ok.
    bool failing = false;
    // Run the input value checks before the analysis; off runs the record as it stands.
    bool check = true;
    EngineSettings settings;
    // The record a new project starts from, for the fields an older file lacks.
    DesignRecord defaults = FirstStartDefaultRecord(TodayLongDateText());
    // Checks not ok in bold red, by terminal escapes.
    bool colour = false;
};

// Reads the project, runs the analysis and prints every check with its demand, limit and ratio,
// grouped by foundation and mode, and the verdict of each foundation with its governing check;
// as text or as one JSON object. Errors go to `err`. Gives the exit status
// (cli/exit_status.h): a design that fails its checks is still a finished analysis.
int RunChecksCommand(const ChecksOptions& options, std::ostream& out, std::ostream& err);
