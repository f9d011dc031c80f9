#pragma once

#include "common/date_text.h"
#include "engine/design_record.h"
#include "shell/load_settings.h"

#include <filesystem>
#include <iosfwd>

struct AnalyzeOptions {
    std::filesystem::path project;
    bool json = false;
    // Run the input value checks before the analysis; off runs the record as it stands.
    bool check = true;
    EngineSettings settings;
    // The record a new project starts from, for the fields an older file lacks.
    DesignRecord defaults = FirstStartDefaultRecord(TodayLongDateText());
};

// Reads the project, runs the analysis and prints the results: a readable summary, or one JSON
// object. Notices and errors go to `err`. Gives the exit status (cli/exit_status.h).
int RunAnalyzeCommand(const AnalyzeOptions& options, std::ostream& out, std::ostream& err);
