#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

// Center lift and edge lift moments on expansive soil by the manual's empirical equations, the
// fibre stresses they cause with the prestress, and the excess of each stress over its
// allowable. The long direction is primary: each short moment is derived from the long one.
// Makes `EmCenter` absolute in the record.
void ComputeExpansiveMoments(const EngineSettings& settings, DesignRecord& record,
                             ResultsRecord& results);

// The coefficients A and B of the center lift moment, for the edge moisture distance `emCenter`
// (made absolute), the differential movement `ymCenter` and the perimeter load `totalLoad`.
struct CenterLiftCoefficients {
    double A;
    double B;
};
CenterLiftCoefficients CenterLiftCoefficientsFor(double emCenter, double ymCenter,
                                                 double totalLoad);
