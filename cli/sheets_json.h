#pragma once

#include "reports/recording_surface.h"

#include <nlohmann/json.hpp>

// Every sheet as the recording surface kept it: texts with their place and style in drawing
// order, and lines, each sheet with the line heights given.
nlohmann::ordered_json SheetsJson(const RecordingSurface& surface,
                                  const nlohmann::ordered_json& lineHeights);
