#include "cli/sensitivity_json.h"

#include "cli/checks_json.h"

namespace {

nlohmann::ordered_json FaultJson(const std::optional<SensitivityFault>& fault) {
    if (!fault) {
        return nullptr;
    }
    nlohmann::ordered_json json;
    json["kind"] = FaultKindName(fault->kind);
    json["stage"] = fault->stage ? nlohmann::ordered_json(*fault->stage) : nullptr;
    return json;
}

nlohmann::ordered_json VerdictJson(const std::optional<FoundationStanding>& standing) {
    if (!standing) {
        return nullptr;
    }
    return standing->pass ? "pass" : "fail";
}

nlohmann::ordered_json RatioJson(const std::optional<FoundationStanding>& standing) {
    if (!standing || !standing->maxRatio) {
        return nullptr;
    }
    return *standing->maxRatio;
}

nlohmann::ordered_json GoverningJson(const std::optional<FoundationStanding>& standing) {
    if (!standing || !standing->governing) {
        return nullptr;
    }
    return DesignCheckJson(*standing->governing);
}

// Verdict and max ratio of a point; null for a point that was not judged.
void AddStanding(const SensitivityPoint& point, bool governing, nlohmann::ordered_json& json) {
    if (!point.judged()) {
        json["verdict"] = nullptr;
        json["maxRatio"] = nullptr;
        if (governing) {
            json["governing"] = nullptr;
        }
        return;
    }
    json["verdict"] = {{"ribbed", VerdictJson(point.ribbed)},
                       {"uniform", VerdictJson(point.uniform)}};
    json["maxRatio"] = {{"ribbed", RatioJson(point.ribbed)}, {"uniform", RatioJson(point.uniform)}};
    if (governing) {
        json["governing"] = {{"ribbed", GoverningJson(point.ribbed)},
                             {"uniform", GoverningJson(point.uniform)}};
    }
}

} // namespace

nlohmann::ordered_json SensitivityOutcomeJson(int version, const SensitivityRequest& request,
                                              const SensitivityOutcome& outcome) {
    const std::vector<VariedField>& fields = request.grid.fields;
    nlohmann::ordered_json document;
    document["version"] = version;
    document["fault"] = FaultJson(outcome.design.fault);
    document["fields"] = nlohmann::ordered_json::array();
    for (const VariedField& varied : fields) {
        document["fields"].push_back(varied.field->name);
    }

    nlohmann::ordered_json design;
    design["values"] = nlohmann::ordered_json::object();
    for (const VariedField& varied : fields) {
        design["values"][std::string(varied.field->name)] = request.project.*varied.field->real;
    }
    AddStanding(outcome.design, false, design);
    document["design"] = std::move(design);

    nlohmann::ordered_json points = nlohmann::ordered_json::array();
    for (std::size_t index = 0; index < outcome.points.size(); ++index) {
        const SensitivityPoint& point = outcome.points[index];
        const std::vector<std::int64_t> places =
            request.grid.places(static_cast<std::int64_t>(index));
        nlohmann::ordered_json json;
        json["values"] = nlohmann::ordered_json::object();
        for (std::size_t i = 0; i < fields.size(); ++i) {
            json["values"][std::string(fields[i].field->name)] = fields[i].valueAt(places[i]);
        }
        json["refused"] = point.refused ? nlohmann::ordered_json(point.refused->message) : nullptr;
        json["fault"] = FaultJson(point.fault);
        AddStanding(point, true, json);
        points.push_back(std::move(json));
    }
    document["points"] = std::move(points);
    return document;
}
