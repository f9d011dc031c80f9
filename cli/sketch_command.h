#pragma once

#include "common/date_text.h"
#include "engine/design_record.h"
#include "plan/foundation_plan.h"
#include "shell/load_settings.h"

#include <filesystem>
#include <iosfwd>
#include <nlohmann/json.hpp>

struct SketchOptions {
    std::filesystem::path project;
    // The drawing to write: its name ends in .svg, .png or .pdf.
    std::filesystem::path output;
    bool json = false;
    bool check = true;
    EngineSettings settings;
    DesignRecord defaults = FirstStartDefaultRecord(TodayLongDateText());
};

// Analyses the project and writes its plan and typical sections as an SVG drawing, a PNG picture
// or a PDF sheet, or with `json` prints the plan's geometry as one JSON object. A record that
// makes no plan (fewer than two beams a way, a side of 0, beams that do not fit) writes nothing:
// its reason goes to the error stream, or into "reason", and the status is ExitInputError. Gives
// the exit status.
int RunSketchCommand(const SketchOptions& options, std::ostream& out, std::ostream& err);

// The plan as the command line prints it: {"version", "width", "length", "slabThick", "beams",
// "slabTendons", "sections", "reason"}.
nlohmann::ordered_json PlanJson(int version, const FoundationPlan& plan);
