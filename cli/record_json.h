#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

#include <nlohmann/json.hpp>

// Every field of a record as one JSON object keyed by its exact name: doubles as numbers that
// read back to the same double, 16-bit values as integers, texts as strings.
nlohmann::ordered_json DesignRecordJson(const DesignRecord& record);
nlohmann::ordered_json ResultsRecordJson(const ResultsRecord& results);
