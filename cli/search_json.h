#pragma once

#include "cli/search_listing.h"

#include <nlohmann/json.hpp>

// The outcome of a search as one object: {"tried", "refused", "faulted", "outOfCompliance",
// "compliant", "best": [...], "pareto": [...], "candidates", "interrupted", "objective"}. Each
// design is {"fields": {name: value, ...}, "ConcreteVolume", "TendonLength", "cost", "margin"},
// the values of the varied fields in the kinds of their record fields, "cost" null without a
// price and "margin" null when no row of the lists has a limit.
nlohmann::ordered_json SearchOutcomeJson(const SearchReportInput& report);
