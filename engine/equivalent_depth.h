#pragma once

#include "engine/design_record.h"
#include "engine/equivalent_depth_memo.h"
#include "engine/results_record.h"

// The depth of a single-depth T section (flange `Width` by `Slab`, stem `Stem` wide) whose moment
// of inertia equals `Inertia`, the inertia of the real section with beams of two depths. Found
// by bisection between the two depths to within 1e-07 in4, with no other stopping rule: a
// bracket that cannot close on the inertia ends in the overflow of the 16-bit step counter.
// `Centroid` receives the centroid of every candidate section as it is tried; when the two
// depths are equal the depth is returned at once and `Centroid` is left alone.
double EquivalentDepth(double Width, double Slab, double Stem, double Inertia, double Depth1,
                       double Depth2, double& Centroid);

// The equivalent beam depths of both directions, short first. With a memo, a direction whose
// section was bisected before takes the depth and centroid found then.
void ComputeEquivalentDepths(const DesignRecord& record, ResultsRecord& results,
                             EquivalentDepthMemo* memo = nullptr);
