#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// Allowable stresses from the concrete strength, and the first cross-section of each direction
// with the beams at their real depths: a T whose flange is the whole slab and whose stem is all
// beams of the direction. The short section is `RectLength` wide and holds S1, S2; the long one
// is `RectWidth` wide and holds L1, L2.
void ComputeAllowablesAndSections(const DesignRecord& record, ResultsRecord& results);

// The section values that rest on the equivalent beam depths: centroid from the bottom, section
// moduli, the areas again on the equivalent depth, mean beam widths and beam counts. Runs after
// the equivalent depths are known.
void ComputeEquivalentSections(const DesignRecord& record, ResultsRecord& results);
