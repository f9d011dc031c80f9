#pragma once

#include "search/sensitivity_grid.h"

#include <nlohmann/json.hpp>

// The outcome of a sensitivity run as one object: {"version", "fault", "fields", "design":
// {"values", "verdict", "maxRatio"}, "points": [{"values", "refused", "fault", "verdict",
// "maxRatio", "governing"}]}, the points in grid order. A point that was refused or faulted has
// null verdict, maxRatio and governing; "fault" at the top is the design's own.
nlohmann::ordered_json SensitivityOutcomeJson(int version, const SensitivityRequest& request,
                                              const SensitivityOutcome& outcome);
