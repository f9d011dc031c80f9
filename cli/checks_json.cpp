#include "cli/checks_json.h"

#include "compliance/check_names.h"

namespace {

nlohmann::ordered_json TextOrNull(const char* text) {
    return text == nullptr ? nlohmann::ordered_json(nullptr) : nlohmann::ordered_json(text);
}

nlohmann::ordered_json QuantityJson(const std::optional<CheckQuantity>& quantity) {
    if (!quantity) {
        return nullptr;
    }
    nlohmann::ordered_json json;
    json["name"] = TextOrNull(quantity->name);
    json["value"] = quantity->value;
    json["unit"] = TextOrNull(quantity->unit);
    return json;
}

nlohmann::ordered_json VerdictJson(const std::optional<FoundationVerdict>& verdict) {
    if (!verdict) {
        return nullptr;
    }
    return verdict->pass ? "pass" : "fail";
}

nlohmann::ordered_json GoverningJson(const std::optional<FoundationVerdict>& verdict,
                                     std::span<const DesignCheck> checks) {
    if (!verdict || !verdict->governing) {
        return nullptr;
    }
    return DesignCheckJson(checks[*verdict->governing]);
}

} // namespace

nlohmann::ordered_json DesignCheckJson(const DesignCheck& check) {
    nlohmann::ordered_json json;
    json["foundation"] = FoundationKey(check.foundation);
    json["mode"] = ModeKey(check.mode);
    json["direction"] = TextOrNull(DirectionKey(check.direction));
    json["rule"] = TextOrNull(check.rule);
    json["item"] = check.item;
    json["demand"] = QuantityJson(check.demand);
    json["limit"] = QuantityJson(check.limit);
    json["ratio"] = check.ratio ? nlohmann::ordered_json(*check.ratio) : nullptr;
    json["status"] = StatusKey(check.status);
    json["reference"] = TextOrNull(check.reference);
    return json;
}

void AddDesignChecksJson(std::span<const DesignCheck> checks, const DesignVerdict& verdict,
                         bool failingOnly, nlohmann::ordered_json& document) {
    document["verdict"] = {{"ribbed", VerdictJson(verdict.ribbed)},
                           {"uniform", VerdictJson(verdict.uniform)}};
    document["governing"] = {{"ribbed", GoverningJson(verdict.ribbed, checks)},
                             {"uniform", GoverningJson(verdict.uniform, checks)}};
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const DesignCheck& check : checks) {
        if (!failingOnly || check.status != CheckStatus::Ok) {
            list.push_back(DesignCheckJson(check));
        }
    }
    document["checks"] = std::move(list);
}
