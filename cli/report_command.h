#pragma once

#include "common/date_text.h"
#include "engine/design_record.h"
#include "reports/print_dialog.h"
#include "shell/clock.h"
#include "shell/load_settings.h"

#include <array>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <vector>

struct ReportOptions {
    std::filesystem::path project;
    std::filesystem::path output;
    PrintRange range = PrintRange::Default;
    std::vector<int> pages; // the ticked boxes of the selected range, 0 to 9
    bool check = true;
    EngineSettings settings;
    DesignRecord defaults = FirstStartDefaultRecord(TodayLongDateText());
    std::array<std::int16_t, 10> defaultPages{};
    bool colour = false;
    bool showAll = false;
    std::string font = "Arial";
    // Print what the report draws, sheet by sheet, as JSON instead of writing a PDF.
    bool json = false;
    // The time the footer prints; the machine's clock when none is given.
    const Clock* clock = nullptr;
};

// Analyses the project and writes the report of the range as a PDF, or with `json` prints every
// text and line of every sheet as one JSON object. Gives the exit status: a run with nothing to
// print writes nothing and gives ExitNothingToPrint; a file error leaves an existing PDF whole.
int RunReportCommand(const ReportOptions& options, std::ostream& out, std::ostream& err);
