#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// The weight of the foundation, the total load on the soil, the area that bears and the mean
// soil pressure against the allowable bearing of the soil type. Reads the areas of the
// equivalent section.
void ComputeSoilBearing(const EngineSettings& settings, const DesignRecord& record,
                        ResultsRecord& results);
