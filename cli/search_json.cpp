#include "cli/search_json.h"

#include "compliance/check_names.h"

namespace {

const char* objectiveName(SearchObjective objective) {
    switch (objective) {
    case SearchObjective::Concrete:
        return "concrete";
    case SearchObjective::Tendons:
        return "tendons";
    case SearchObjective::Cost:
        return "cost";
    }
    return "";
}

nlohmann::ordered_json designJson(const SearchReportInput& report, const CandidateScore& score) {
    const CandidateGrid& grid = report.request.grid;
    const std::vector<std::int64_t> places = grid.places(score.index);
    nlohmann::ordered_json fields = nlohmann::ordered_json::object();
    for (std::size_t i = 0; i < grid.fields.size(); ++i) {
        const VariedField& varied = grid.fields[i];
        const std::string name(varied.field->name);
        if (varied.field->kind == FieldKind::Int16) {
            fields[name] = static_cast<std::int16_t>(varied.first + places[i] * varied.step);
        } else {
            fields[name] = varied.valueAt(places[i]);
        }
    }
    nlohmann::ordered_json design;
    design["fields"] = std::move(fields);
    design["ConcreteVolume"] = score.concreteVolume;
    design["TendonLength"] = score.tendonLength;
    design["cost"] = report.priced ? nlohmann::ordered_json(score.cost) : nullptr;
    design["margin"] = score.margin ? nlohmann::ordered_json(*score.margin) : nullptr;
    return design;
}

} // namespace

nlohmann::ordered_json SearchOutcomeJson(const SearchReportInput& report) {
    const SearchOutcome& outcome = report.outcome;
    nlohmann::ordered_json document;
    document["tried"] = outcome.tried;
    document["refused"] = outcome.refused;
    document["faulted"] = outcome.faulted;
    document["outOfCompliance"] = outcome.outOfCompliance;
    document["compliant"] = outcome.compliant;
    document["refusals"] = nlohmann::ordered_json::array();
    for (const RefusalCount& refusal : outcome.refusals) {
        nlohmann::ordered_json entry;
        entry["message"] = refusal.message;
        entry["count"] = refusal.count;
        document["refusals"].push_back(std::move(entry));
    }
    document["failures"] = nlohmann::ordered_json::array();
    for (const FailureCount& failure : outcome.failures) {
        nlohmann::ordered_json entry;
        entry["foundation"] = FoundationKey(failure.foundation);
        entry["mode"] = ModeKey(failure.mode);
        const char* direction = DirectionKey(failure.direction);
        entry["direction"] = direction ? nlohmann::ordered_json(direction) : nullptr;
        entry["rule"] = failure.rule.empty() ? nlohmann::ordered_json(nullptr)
                                             : nlohmann::ordered_json(failure.rule);
        entry["item"] = failure.item;
        entry["count"] = failure.count;
        document["failures"].push_back(std::move(entry));
    }
    document["best"] = nlohmann::ordered_json::array();
    for (const CandidateScore& score : outcome.best) {
        document["best"].push_back(designJson(report, score));
    }
    document["pareto"] = nlohmann::ordered_json::array();
    for (const CandidateScore& score : outcome.pareto) {
        document["pareto"].push_back(designJson(report, score));
    }
    document["candidates"] = report.request.grid.count();
    document["interrupted"] = outcome.interrupted;
    document["objective"] = objectiveName(report.request.objective);
    return document;
}
