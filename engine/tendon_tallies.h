#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// The jacking force per tendon, the tendon totals with their end allowances, and the spacing of
// the slab tendons of the ribbed foundation. Runs in every analysis.
void ComputeTendonTallies(const DesignRecord& record, ResultsRecord& results);

// The quarter-inch bands of the uniform slab: below .125 down, to .375 a quarter, to .625 a
// half, to .875 three quarters, from .875 up to the next inch. For values of 0 or more.
double RoundToQuarterInch(double value);
