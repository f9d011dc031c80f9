#include "input/live_verdict.h"

#include "common/run_time_error.h"
#include "compliance/design_checks.h"
#include "compliance/verdict_text.h"
#include "engine/analysis_run.h"
#include "input/blank_fields.h"
#include "input/input_record.h"
#include "input/record_values.h"
#include "storage/design_file.h"

namespace {

LiveVerdict NotChecked(const std::string& reason) {
    return {"not checked: " + reason, false, false};
}

} // namespace

LiveVerdict JudgeValuesAsTyped(const FormModel& input, const DesignRecord& record,
                               const ResultsRecord& results, const EngineSettings& settings) {
    DesignRecord typed = record;
    if (const std::optional<InputFault> blank = FindBlankField(input, typed, AllSections, false)) {
        return NotChecked(blank->message);
    }
    try {
        ReadInputRecord(input, typed, AllSections);
    } catch (const RunTimeError& error) {
        return NotChecked(error.description());
    }
    if (const std::optional<InputFault> fault = FindRecordValueFault(typed)) {
        return NotChecked(fault->message);
    }
    ResultsRecord analysed = results;
    std::vector<DesignCheck> checks;
    try {
        RunDesignEngine(settings, typed, analysed);
        checks = DesignChecks(typed, analysed);
    } catch (const EngineFault& fault) {
        return NotChecked("the analysis ends in " + FaultKindName(fault.kind()) + " in stage " +
                          std::to_string(fault.stage()) + " (" + AnalysisStageName(fault.stage()) +
                          ")");
    } catch (const ArithmeticFault& fault) {
        return NotChecked(FaultKindName(fault.kind) +
                          " in the beam depth ratio of the design exceptions");
    }
    const DesignVerdict verdict = JudgeDesign(typed, checks);
    LiveVerdict live{"As typed: " + VerdictSentence(Foundation::Ribbed, verdict.ribbed, checks,
                                                    GoverningShown::OnFailure),
                     true, verdict.ribbed.pass};
    if (verdict.uniform) {
        live.text += "; " + VerdictSentence(Foundation::Uniform, *verdict.uniform, checks,
                                            GoverningShown::OnFailure);
        live.pass = live.pass && verdict.uniform->pass;
    }
    return live;
}

std::int64_t LiveVerdictSchedule::Edited(std::int64_t nowMs) {
    m_dueAt = nowMs + LiveVerdictDelayMs;
    return LiveVerdictDelayMs;
}

bool LiveVerdictSchedule::TakeDue(std::int64_t nowMs) {
    if (!m_dueAt || nowMs < *m_dueAt) {
        return false;
    }
    m_dueAt.reset();
    return true;
}

std::int64_t LiveVerdictSchedule::TimeLeft(std::int64_t nowMs) const {
    return m_dueAt && nowMs < *m_dueAt ? *m_dueAt - nowMs : 0;
}
