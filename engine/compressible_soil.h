#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// The ribbed foundation on compressible soil: center down from the expected settlement, and,
// when CLSettleState is on, edge down: the expansive center lift analysis with em fixed at 5 ft
// and ym taken as the settlement. The long direction is primary in both; center down scales the
// soil modulus by the settlement over a reference settlement.
void ComputeCompressibleSoil(const EngineSettings& settings, const DesignRecord& record,
                             ResultsRecord& results);
