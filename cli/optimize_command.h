#pragma once

#include "common/date_text.h"
#include "engine/design_record.h"
#include "search/candidate_score.h"
#include "shell/load_settings.h"

#include <atomic>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

struct OptimizeOptions {
    std::filesystem::path project;
    // Each "FIELD=FROM:TO[:STEP]".
    std::vector<std::string> ranges;
    SearchObjective objective = SearchObjective::Concrete;
    std::optional<double> concretePrice; // per cubic yard
    std::optional<double> tendonPrice;   // per foot
    int top = 10;
    // The best design is written here when it is not empty.
    std::filesystem::path output;
    bool json = false;
    int threads = 1;
    EngineSettings settings;
    // The record a new project starts from, for the fields an older file lacks.
    DesignRecord defaults = FirstStartDefaultRecord(TodayLongDateText());
    // Set by the interrupt of the terminal: the search ends with what it has found.
    const std::atomic<bool>* stop = nullptr;
    // Draw the progress of the search on `err`.
    bool progress = false;
};

// The most threads and best designs a search takes.
inline constexpr int MaxSearchThreads = 256;
inline constexpr int MaxBestDesigns = 1000;

// Reads the project, searches the candidates and prints the outcome, as text or one JSON
// object, and writes the best design to `output`. Gives the exit status (cli/exit_status.h):
// 0 with a compliant design, ExitNoCompliantDesign without one, ExitInterrupted when the stop
// flag ended the search (its best so far is still printed and written), 1 for a request that
// cannot be carried out, 2 for a file error.
int RunOptimizeCommand(const OptimizeOptions& options, std::ostream& out, std::ostream& err);
