#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// A line load that does not stand on a beam: the slab's bending under it on a subgrade of
// modulus Ks, against the prestress across it, for the ribbed slab and, when the uniform
// thickness foundation is analysed, for that slab with its 1.5 load factor.
void ComputeLineLoad(const DesignRecord& record, ResultsRecord& results);
