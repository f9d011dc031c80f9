#pragma once

#include "common/date_text.h"
#include "compliance/compliance_pass.h"
#include "engine/design_record.h"
#include "shell/load_settings.h"

#include <filesystem>
#include <iosfwd>

struct ResultsOptions {
    std::filesystem::path project;
    bool json = false;
    // Run the input value checks before the analysis; off runs the record as it stands.
    bool check = true;
    EngineSettings settings;
    // The record a new project starts from, for the fields an older file lacks.
    DesignRecord defaults = FirstStartDefaultRecord(TodayLongDateText());
    // The "Display all" boxes of the three compliance lists.
    ShowAllFlags showAll;
    // Bold and red by terminal escapes.
    bool colour = false;
};

// Reads the project, runs the analysis, fills a freshly loaded results screen and prints it as
// the engineer reads it: every tab that shows, with its visible rows, or one JSON object with
// the tab strips and every control. Errors go to `err`. Gives the exit status
// (cli/exit_status.h).
int RunResultsCommand(const ResultsOptions& options, std::ostream& out, std::ostream& err);
