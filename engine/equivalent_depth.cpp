#include "engine/equivalent_depth.h"

#include "engine/checked_math.h"

#include <cstdint>

double EquivalentDepth(double Width, double Slab, double Stem, double Inertia, double Depth1,
                       double Depth2, double& Centroid) {
    if (Depth1 == Depth2) {
        return Depth1;
    }
    Real upper = Depth1 > Depth2 ? Depth1 : Depth2;
    Real lower = Depth1 > Depth2 ? Depth2 : Depth1;
    std::int16_t steps = 0;
    Real candidateDepth = 0.0;
    Real candidateInertia = 0.0;
    do {
        candidateDepth = Abs((lower + upper) / 2);
        const Real stemDepth = candidateDepth - Slab;
        const Real stemArea = stemDepth * Stem;
        const Real slabArea = Real(Width) * Slab;
        Centroid = ((stemDepth / 2 + Slab) * stemArea + (Real(Slab) / 2) * slabArea) /
                   (stemArea + slabArea);
        candidateInertia = Power(Centroid - Real(Slab) / 2, 2) * slabArea +
                           Power(Slab, 3) * Width / 12 + Power(stemDepth, 3) * Stem / 12 +
                           Power(stemDepth / 2 + Slab - Centroid, 2) * stemArea;
        if (candidateInertia > Inertia) {
            upper = candidateDepth;
        } else if (candidateInertia < Inertia) {
            lower = candidateDepth;
        }
        steps = Sum16(steps, 1);
    } while (Abs(Inertia - candidateInertia) > 1e-07);
    return candidateDepth;
}

void ComputeEquivalentDepths(const DesignRecord& record, ResultsRecord& results) {
    results.EquivDepthShort =
        EquivalentDepth(Real(record.RectLength) * 12, record.SlabThick,
                        record.QS2 * Real(record.WS2) + record.QS1 * Real(record.WS1),
                        results.InertiaShort, record.DS1, record.DS2, results.CgTopShort);
    results.EquivDepthLong =
        EquivalentDepth(Real(record.RectWidth) * 12, record.SlabThick,
                        record.QL2 * Real(record.WL2) + record.QL1 * Real(record.WL1),
                        results.InertiaLong, record.DL1, record.DL2, results.CgTopLong);
}
