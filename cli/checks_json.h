#pragma once

#include "compliance/design_checks.h"

#include <nlohmann/json.hpp>
#include <span>

// One check as {"foundation", "mode", "direction", "rule", "item", "demand": {"name", "value",
// "unit"}, "limit": {...}, "ratio", "status", "reference"}, with null where a part does not
// apply.
nlohmann::ordered_json DesignCheckJson(const DesignCheck& check);

// Adds "verdict": {"ribbed", "uniform"} ("pass", "fail", or null without a uniform thickness
// foundation), "governing": {"ribbed", "uniform"} (a check, or null) and "checks", every check or
// with `failingOnly` those not ok.
void AddDesignChecksJson(std::span<const DesignCheck> checks, const DesignVerdict& verdict,
                         bool failingOnly, nlohmann::ordered_json& document);
