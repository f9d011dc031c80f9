#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// Relative stiffness length Beta, subgrade friction, slab tendon counts, tendon forces, the
// average prestress at the center and at Beta, and the centroid and eccentricity of the tendons,
// for both directions.
void ComputePrestress(const DesignRecord& record, ResultsRecord& results);
