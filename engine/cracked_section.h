#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// The ultimate moment capacity of the cracked section, carried by the tendons on the tension
// side alone, against 0.9 times the moment on the whole section, for center lift (slab tendons,
// compression in the beam bottoms) and edge lift (beam tendons, compression in the slab). Runs
// for both soils on whatever center lift and edge lift moments the results hold.
void ComputeCrackedSection(const DesignRecord& record, ResultsRecord& results);
