#pragma once

#include "common/date_text.h"
#include "engine/design_record.h"
#include "shell/clock.h"
#include "shell/load_settings.h"

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

struct PackageOptions {
    std::filesystem::path project;
    std::filesystem::path output;
    bool json = false;
    std::string firm;
    std::string license;
    bool check = true;
    EngineSettings settings;
    DesignRecord defaults = FirstStartDefaultRecord(TodayLongDateText());
    // Each "FIELD=FROM:TO[:STEP]" of a soil sensitivity study (one or two fields) for a page of its
    // own after the key results; none leaves the page out.
    std::vector<std::string> sensitivity;
    int threads = 1;
    // The date and time the package gives for its run; the machine's clock when none is given.
    const Clock* clock = nullptr;
};

// Analyses the project and writes its calculation package as a PDF, or with `json` prints
// {"version", "fault", "verdict", "governing", "sheets", "pages"} with every text and line of
// every sheet. A run that faults gets a one-page package that says where and why, and the status
// ExitEngineFault; a file error leaves an existing PDF whole. Gives the exit status.
int RunPackageCommand(const PackageOptions& options, std::ostream& out, std::ostream& err);
