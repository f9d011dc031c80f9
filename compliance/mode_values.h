#pragma once

#include "engine/results_record.h"

#include <cstdint>

// The values of one analysis mode that the compliance lists hold against their limits, for one
// direction. The stresses are named by what they are checked as: in center lift and edge down the
// top fiber is in tension, in edge lift and center down the bottom fiber.
struct DirectionValues {
    double tension = 0;
    double tensionExcess = 0;
    double compression = 0;
    double compressionExcess = 0;
    // Lift modes: required against available moment of inertia. Down modes: actual against
    // allowable deflection.
    double demand = 0;
    double allowed = 0;
    double demandExcess = 0;
    double shear = 0;
    double allowShear = 0;
    double shearExcess = 0;
    // Lift modes only.
    double crackDemand = 0;
    double crackCapacity = 0;
    std::int16_t crackValid = 0;
    double crackExcess = 0;
};

struct ModeValues {
    DirectionValues shortDirection;
    DirectionValues longDirection;
};

ModeValues CenterLiftValues(const ResultsRecord& r);
ModeValues EdgeLiftValues(const ResultsRecord& r);
ModeValues CenterDownValues(const ResultsRecord& r);
ModeValues EdgeDownValues(const ResultsRecord& r);

ModeValues UniformCenterLiftValues(const ResultsRecord& r);
ModeValues UniformEdgeLiftValues(const ResultsRecord& r);
ModeValues UniformCenterDownValues(const ResultsRecord& r);
ModeValues UniformEdgeDownValues(const ResultsRecord& r);
