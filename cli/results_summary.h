#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

#include <filesystem>
#include <iosfwd>
#include <string>

// The results an engineer scans after a run, grouped by stage, aligned, with units: the short
// and long directions side by side.
void PrintResultsSummary(const std::filesystem::path& project, int version,
                         const EngineSettings& settings, const DesignRecord& record,
                         const ResultsRecord& results, std::ostream& out);

// The lines that head a printout: what it is ("analysis"), the file, the project, the rectangle
// and the options of the run.
void PrintProjectHeading(const std::string& title, const std::filesystem::path& project,
                         int version, const EngineSettings& settings, const DesignRecord& record,
                         std::ostream& out);
