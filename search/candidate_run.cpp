#include "search/candidate_run.h"

#include "compliance/compliance_tally.h"
#include "engine/project_analysis.h"
#include "input/record_values.h"

#include <optional>
#include <utility>

CandidateRunner::CandidateRunner(const DesignRecord& project, const CandidateGrid& grid,
                                 const EngineSettings& settings, const SearchPrices& prices)
    : m_project(project), m_grid(grid), m_settings(settings), m_prices(prices), m_record(project) {
    for (const DesignField& field : DesignRecordFields()) {
        if (field.kind != FieldKind::Text) {
            m_numbers.push_back(&field);
        }
    }
}

CandidateVerdict CandidateRunner::run(std::int64_t index) {
    for (const DesignField* field : m_numbers) {
        if (field->kind == FieldKind::Int16) {
            m_record.*field->int16 = m_project.*field->int16;
        } else {
            m_record.*field->real = m_project.*field->real;
        }
    }
    m_grid.apply(index, m_record);

    if (std::optional<InputFault> fault = FindReadyRecordValueFault(m_record)) {
        m_refusal = std::move(fault->message);
        return CandidateVerdict::Refused;
    }
    // A project read from a file starts from results never computed.
    m_results = m_fresh;
    if (AnalyseProject(m_settings, m_record, m_results, &m_memo).faultKind) {
        return CandidateVerdict::Faulted;
    }
    ComplianceTally tally;
    try {
        tally = TallyCompliance(m_record, m_results);
    } catch (const ArithmeticFault&) {
        return CandidateVerdict::Faulted;
    }
    if (!tally.clean()) {
        // The table names what failed; the tally above has already met any fault it could.
        try {
            FillFailedChecks(m_record, m_results, m_checks);
        } catch (const ArithmeticFault&) {
            m_checks.clear();
        }
        return CandidateVerdict::OutOfCompliance;
    }
    m_score.index = index;
    m_score.concreteVolume = m_results.ConcreteVolume;
    m_score.tendonLength = m_results.TendonLength;
    m_score.cost = m_results.ConcreteVolume * m_prices.concretePerCubicYard +
                   m_results.TendonLength * m_prices.tendonPerFoot;
    m_score.margin = tally.smallestMargin;
    return CandidateVerdict::Compliant;
}
