#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// The beam spacings used in the empirical moment equations, and the perimeter load of the edge
// lift case.
void ComputeAnalysisSpacing(const DesignRecord& record, ResultsRecord& results);
