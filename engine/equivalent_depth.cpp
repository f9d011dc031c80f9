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
    // Every trial section has the same slab: half its thickness, its area and its own inertia
    // are the same in each trial and are not worked out again. Half the thickness is exact. The
    // area is taken before the first trial, ahead of steps that can only fail by an overflow,
    // as it can itself, so the fault met is the same. The slab's inertia is worked out in the
    // first trial in its place within the sum, where a fault would always have been met; later
    // trials reuse the value, which cannot fail a second time.
    const Real halfSlab = Real(Slab) / 2;
    const Real slabArea = Real(Width) * Slab;
    Real slabInertia = 0.0;
    do {
        candidateDepth = Abs((lower + upper) / 2);
        const Real stemDepth = candidateDepth - Slab;
        const Real stemArea = stemDepth * Stem;
        Centroid =
            ((stemDepth / 2 + Slab) * stemArea + halfSlab * slabArea) / (stemArea + slabArea);
        if (steps == 0) {
            candidateInertia = Power(Centroid - halfSlab, 2) * slabArea +
                               Power(Slab, 3) * Width / 12 + Power(stemDepth, 3) * Stem / 12 +
                               Power(stemDepth / 2 + Slab - Centroid, 2) * stemArea;
            slabInertia = Power(Slab, 3) * Width / 12;
        } else {
            candidateInertia = Power(Centroid - halfSlab, 2) * slabArea + slabInertia +
                               Power(stemDepth, 3) * Stem / 12 +
                               Power(stemDepth / 2 + Slab - Centroid, 2) * stemArea;
        }
        if (candidateInertia > Inertia) {
            upper = candidateDepth;
        } else if (candidateInertia < Inertia) {
            lower = candidateDepth;
        }
        steps = Sum16(steps, 1);
    } while (Abs(Inertia - candidateInertia) > 1e-07);
    return candidateDepth;
}

namespace {

// The bisection, or what it gave before for the same section. Equal depths need no bisection
// and are not remembered.
double rememberedDepth(EquivalentDepthMemo* memo, double Width, double Slab, double Stem,
                       double Inertia, double Depth1, double Depth2, double& Centroid) {
    if (memo == nullptr || Depth1 == Depth2) {
        return EquivalentDepth(Width, Slab, Stem, Inertia, Depth1, Depth2, Centroid);
    }
    const EquivalentDepthMemo::Section section{Width, Slab, Stem, Inertia, Depth1, Depth2};
    if (const EquivalentDepthMemo::Found* found = memo->find(section)) {
        if (found->fault) {
            throw ArithmeticFault{*found->fault};
        }
        Centroid = found->centroid;
        return found->depth;
    }
    try {
        const double depth = EquivalentDepth(Width, Slab, Stem, Inertia, Depth1, Depth2, Centroid);
        memo->remember(section, {depth, Centroid, std::nullopt});
        return depth;
    } catch (const ArithmeticFault& fault) {
        memo->remember(section, {0.0, 0.0, fault.kind});
        throw;
    }
}

} // namespace

void ComputeEquivalentDepths(const DesignRecord& record, ResultsRecord& results,
                             EquivalentDepthMemo* memo) {
    results.EquivDepthShort =
        rememberedDepth(memo, Real(record.RectLength) * 12, record.SlabThick,
                        record.QS2 * Real(record.WS2) + record.QS1 * Real(record.WS1),
                        results.InertiaShort, record.DS1, record.DS2, results.CgTopShort);
    results.EquivDepthLong =
        rememberedDepth(memo, Real(record.RectWidth) * 12, record.SlabThick,
                        record.QL2 * Real(record.WL2) + record.QL1 * Real(record.WL1),
                        results.InertiaLong, record.DL1, record.DL2, results.CgTopLong);
}
