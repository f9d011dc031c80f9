#pragma once

#include "compliance/design_checks.h"
#include "engine/checked_math.h"
#include "engine/design_record.h"
#include "input/input_fault.h"
#include "search/candidate_grid.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

// How a design holds when one or two of its real values (typically the soil's em and ym) are not
// what the report says: each point of a grid over those fields is the project with the values
// changed, put through the value checks, the analysis and the check table. It does not print or
// draw anything; the command line and the desktop do that from these numbers.

// The most points a sensitivity grid may have. Unlike a design search, every point is kept with
// its governing checks and given back, so the grid is held to what can be shown and printed.
inline constexpr std::int64_t MaxSensitivityPoints = 1'000'000;

// Reads one or two ranges "FIELD=FROM:TO[:STEP]" as the design search does (search/varied_field.h)
// and holds them to real fields of the record. Throws SearchRequestError also for more than two
// fields, a count such as QS1 and more than MaxSensitivityPoints points.
CandidateGrid ParseSensitivityGrid(std::span<const std::string> ranges);

// One foundation of one point: whether every check is ok, the largest ratio among the checks
// that have one, and the check it belongs to (the governing check of the check table).
struct FoundationStanding {
    bool pass = true;
    std::optional<double> maxRatio;
    std::optional<DesignCheck> governing;
};

// A fault of the analysis (in a stage) or of the rules (the beam depth ratio of the design
// exceptions, without a stage).
struct SensitivityFault {
    FaultKind kind = FaultKind::Overflow;
    std::optional<int> stage;
};

// How one point came out: refused by a value check, ended in a fault, or judged. The two
// foundations are only given for a judged point; `uniform` only with a uniform thickness slab.
struct SensitivityPoint {
    std::optional<InputFault> refused;
    std::optional<SensitivityFault> fault;
    std::optional<FoundationStanding> ribbed;
    std::optional<FoundationStanding> uniform;

    bool judged() const { return ribbed.has_value(); }
    // Judged, and every foundation it has passes.
    bool passes() const;
    // The larger max ratio of the two foundations, when either has one.
    std::optional<double> largestRatio() const;
};

// The values of each varied field over which the design passes while the other field stays at
// its design value: the unbroken run of passing grid values on each side of the design value.
// `from` and `to` are the design value itself where the neighbouring grid value does not pass;
// a side that reaches the end of the grid without a value that does not pass is open (the design
// may pass beyond it), and otherwise the first value that does not pass is given.
struct PassingRange {
    const DesignField* field = nullptr;
    double design = 0;
    bool designPasses = false; // when false nothing else is given
    double from = 0;
    double to = 0;
    bool openBelow = false;
    bool openAbove = false;
    std::optional<double> failsBelow;
    std::optional<double> failsAbove;
};

struct SensitivityRequest {
    DesignRecord project;
    CandidateGrid grid;
    EngineSettings settings;
};

struct SensitivityControl {
    // Threads that run points; the calling thread only waits and reports progress.
    int threads = 1;
    // Set from elsewhere (the dialog's Cancel, its closing) to end the run early; the outcome
    // is then marked interrupted, the points not run are left neither judged, refused nor
    // faulted, and no passing range is given.
    const std::atomic<bool>* stop = nullptr;
    // Called on the calling thread a few times a second with the points done and the total.
    std::function<void(std::int64_t done, std::int64_t total)> progress;
};

struct SensitivityOutcome {
    // The project as it stands.
    SensitivityPoint design;
    // Every point of the grid in grid order: the first field changing slowest.
    std::vector<SensitivityPoint> points;
    // One per varied field, in the order of the fields.
    std::vector<PassingRange> passing;
    bool interrupted = false;
};

// Runs the project and every point of the grid, and the lines of each field through the design
// value for the passing ranges. The outcome does not depend on the number of threads.
SensitivityOutcome RunSensitivityGrid(const SensitivityRequest& request,
                                      const SensitivityControl& control);

// A whole run from the ranges as the engineer gives them ("EmCenter=2.75:8.25:0.1375"), for a
// front end that has no dialog: the command line and a printed page of the calculation package.
// Throws SearchRequestError as ParseSensitivityGrid does.
struct SensitivityRun {
    SensitivityRequest request;
    SensitivityOutcome outcome;
};
SensitivityRun RunSensitivityRanges(const DesignRecord& project, const EngineSettings& settings,
                                    std::span<const std::string> ranges, int threads);

// Runs one record as a point: the value checks, the analysis on fresh results, the check table.
SensitivityPoint RunSensitivityPoint(const EngineSettings& settings, const DesignRecord& record);

// The passing range of a field from the points of the line through the design value, given with
// the field's grid values in grid order.
PassingRange FindPassingRange(const DesignField* field, double design, bool designPasses,
                              std::span<const double> values,
                              std::span<const SensitivityPoint> line);
