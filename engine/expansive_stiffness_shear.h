#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// On expansive soil, after the moments: the differential deflection analysis of the earlier
// manual when ShowDD is on, the moment of inertia the moments require against the section's
// own, and the allowable and actual shear stress in both lift modes.
void ComputeExpansiveStiffnessAndShear(const EngineSettings& settings, const DesignRecord& record,
                                       ResultsRecord& results);
