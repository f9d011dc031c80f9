#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// The uniform thickness slab that stands for the finished ribbed design: as stiff per foot as
// the stiffer ribbed section, rounded to a quarter inch, with the ribbed average prestress and
// force times eccentricity. It reuses the ribbed moments, shear forces and soil deflections and
// recomputes what depends on the section, for the soil type of the project.
void ComputeUniformThickness(const EngineSettings& settings, const DesignRecord& record,
                             ResultsRecord& results);

// The branches of the two soils, run by ComputeUniformThickness after the slab's section,
// tendons and prestress are known.
void ComputeUniformExpansive(const EngineSettings& settings, const DesignRecord& record,
                             ResultsRecord& results);
void ComputeUniformCompressible(const EngineSettings& settings, const DesignRecord& record,
                                ResultsRecord& results);
