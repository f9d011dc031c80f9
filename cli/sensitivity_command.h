#pragma once

#include "common/date_text.h"
#include "engine/design_record.h"
#include "shell/load_settings.h"

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

struct SensitivityOptions {
    std::filesystem::path project;
    // One or two "FIELD=FROM:TO[:STEP]".
    std::vector<std::string> ranges;
    bool json = false;
    int threads = 1;
    EngineSettings settings;
    // The record a new project starts from, for the fields an older file lacks.
    DesignRecord defaults = FirstStartDefaultRecord(TodayLongDateText());
};

// Reads the project, runs it and every point of the grid through the value checks, the
// analysis and the check table, and prints the max ratios, the verdicts and the passing ranges,
// as text or one JSON object. Gives the exit status (cli/exit_status.h): 0 when the project
// itself analysed (whether it or the points pass or not), 1 for a request that cannot be
// carried out, 2 a file error, 3 the project itself ended in a fault, 4 the project itself
// failed a value check.
int RunSensitivityCommand(const SensitivityOptions& options, std::ostream& out, std::ostream& err);
