#include "search/sensitivity_point.h"

#include "engine/project_analysis.h"
#include "input/record_values.h"

namespace {

FoundationStanding Standing(const FoundationVerdict& verdict, std::span<const DesignCheck> checks) {
    FoundationStanding standing;
    standing.pass = verdict.pass;
    if (verdict.governing) {
        standing.governing = checks[*verdict.governing];
        standing.maxRatio = standing.governing->ratio;
    }
    return standing;
}

// Analyses `record` into `results` (fresh) and fills the point.
void AnalyseAndJudge(const EngineSettings& settings, DesignRecord& record, ResultsRecord& results,
                     EquivalentDepthMemo* memo, SensitivityPoint& point) {
    if (std::optional<InputFault> refused = FindReadyRecordValueFault(record)) {
        point.refused = std::move(refused);
        return;
    }
    const AnalysisOutcome outcome = AnalyseProject(settings, record, results, memo);
    if (outcome.faultKind) {
        point.fault = SensitivityFault{*outcome.faultKind, outcome.faultStage};
        return;
    }
    try {
        JudgeSensitivityPoint(record, results, point);
    } catch (const ArithmeticFault& ratioFault) {
        point.ribbed.reset();
        point.uniform.reset();
        point.fault = SensitivityFault{ratioFault.kind, std::nullopt};
    }
}

} // namespace

bool SensitivityPoint::passes() const {
    return ribbed && ribbed->pass && (!uniform || uniform->pass);
}

std::optional<double> SensitivityPoint::largestRatio() const {
    std::optional<double> largest;
    for (const std::optional<FoundationStanding>* standing : {&ribbed, &uniform}) {
        if (*standing && (*standing)->maxRatio && (!largest || *(*standing)->maxRatio > *largest)) {
            largest = (*standing)->maxRatio;
        }
    }
    return largest;
}

void JudgeSensitivityPoint(const DesignRecord& record, const ResultsRecord& results,
                           SensitivityPoint& point) {
    const std::vector<DesignCheck> checks = DesignChecks(record, results);
    const DesignVerdict verdict = JudgeDesign(record, checks);
    point.ribbed = Standing(verdict.ribbed, checks);
    if (verdict.uniform) {
        point.uniform = Standing(*verdict.uniform, checks);
    }
}

SensitivityPoint RunSensitivityPoint(const EngineSettings& settings, const DesignRecord& record) {
    DesignRecord ready = record;
    ResultsRecord results;
    SensitivityPoint point;
    AnalyseAndJudge(settings, ready, results, nullptr, point);
    return point;
}

SensitivityRunner::SensitivityRunner(const DesignRecord& project, const EngineSettings& settings)
    : m_project(project), m_settings(settings), m_record(project) {
    for (const DesignField& field : DesignRecordFields()) {
        if (field.kind != FieldKind::Text) {
            m_numbers.push_back(&field);
        }
    }
}

SensitivityPoint SensitivityRunner::run(std::span<const VariedField> fields,
                                        std::span<const double> values) {
    for (const DesignField* field : m_numbers) {
        if (field->kind == FieldKind::Int16) {
            m_record.*field->int16 = m_project.*field->int16;
        } else {
            m_record.*field->real = m_project.*field->real;
        }
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
        m_record.*fields[i].field->real = values[i];
    }
    // A project read from a file starts from results never computed.
    m_results = m_fresh;
    SensitivityPoint point;
    AnalyseAndJudge(m_settings, m_record, m_results, &m_memo, point);
    return point;
}
