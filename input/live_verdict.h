#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"
#include "shell/form_model.h"

#include <cstdint>
#include <optional>
#include <string>

// The verdict of the values as they are typed on the input pages, for the status bar: the
// input form read into a copy of the record and analysed into a copy of the results, then
// every check judged, as the Analysis command would check, read and analyse them. Nothing of the
// program's record, results or results screen is touched; those change only with the Analysis
// command.

// How long after the last edit the verdict is worked out, so that typing is not held up.
inline constexpr std::int64_t LiveVerdictDelayMs = 150;

// "As typed: Ribbed foundation: PASS; Uniform thickness foundation: FAIL: 2 checks over their
// limits, governing ...", or "not checked: " and the first fault that the Analysis command would
// stop at (a blank field, a value, a fault of the analysis).
struct LiveVerdict {
    std::string text;
    bool checked = false; // the values were analysed
    bool pass = false;    // checked, and every foundation passes
};

// `record` and `results` are the program's, copied here: the fields the pages do not show and
// the results a branch leaves are those the Analysis command would start from.
LiveVerdict JudgeValuesAsTyped(const FormModel& input, const DesignRecord& record,
                               const ResultsRecord& results, const EngineSettings& settings);

// When the verdict is due: each edit puts it off to LiveVerdictDelayMs after the edit; it is
// due once, when that time has come.
class LiveVerdictSchedule {
  public:
    // Gives the time from now until the verdict is due.
    std::int64_t Edited(std::int64_t nowMs);
    // True once the time has come after the last edit; then nothing is due until the next edit.
    bool TakeDue(std::int64_t nowMs);
    // The time still to wait for a verdict due later than now; 0 when it is due or none is.
    // A timer that fires a little early waits this rest.
    std::int64_t TimeLeft(std::int64_t nowMs) const;

  private:
    std::optional<std::int64_t> m_dueAt;
};
