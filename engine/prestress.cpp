#include "engine/prestress.h"

#include "engine/checked_math.h"
#include "engine/section_checks.h"

namespace {

// Slab tendons to deliver the required force against the subgrade friction. The floor plus one
// always adds a tendon, also when the quotient is whole; the beam tendons are then taken off.
Real slabTendonsFor(Real requiredForce, Real friction, Real tendonCapacity, std::int16_t quantity1,
                    double tendons1, std::int16_t quantity2, double tendons2) {
    return Floor((requiredForce + friction) / tendonCapacity) + 1 - quantity1 * Real(tendons1) -
           quantity2 * Real(tendons2);
}

} // namespace

void ComputePrestress(const DesignRecord& record, ResultsRecord& results) {
    results.BetaShort = Power(Real(record.Ec) * results.InertiaShort / record.Es, 0.25) / 12;
    results.BetaLong = Power(Real(record.Ec) * results.InertiaLong / record.Es, 0.25) / 12;
    results.TendonEffStress = Real(record.Fpu) * 0.7 - record.Prestress;

    const SubgradeFriction friction = SubgradeFrictionFor(
        record.Subgradetype, record.SGFC, results.ConcreteWeight, record.UDSS, record.UDLS);
    results.FrictionShort = friction.shortDirection;
    results.FrictionLong = friction.longDirection;

    if (record.SlabRefType == 1 || record.SlabRefType == 2) {
        if (record.SlabRefType == 1) {
            results.ReqForceShort = Real(record.StrLvlShort) * results.AreaShort / 1000;
            results.ReqForceLong = Real(record.StrLvlLong) * results.AreaLong / 1000;
        } else {
            results.ReqForceShort = Real(record.ForceShort) * results.AreaShort;
            results.ReqForceLong = Real(record.ForceLong) * results.AreaLong;
        }
        results.SlabTenShort = slabTendonsFor(results.ReqForceShort, results.FrictionShort,
                                              Real(record.TendArea) * results.TendonEffStress,
                                              record.QS1, record.TS1, record.QS2, record.TS2);
        results.SlabTenLong = slabTendonsFor(results.ReqForceLong, results.FrictionLong,
                                             Real(record.TendArea) * results.TendonEffStress,
                                             record.QL1, record.TL1, record.QL2, record.TL2);
    } else {
        results.SlabTenShort = record.NumSlabTenShort;
        results.SlabTenLong = record.NumSlabTenLong;
    }
    ClampAtZero(results.SlabTenShort);
    ClampAtZero(results.SlabTenLong);

    // Fractional beam tendons are rounded here, and only here.
    results.TotalTenShort = Round16(record.QS1 * Real(record.TS1) + results.SlabTenShort +
                                    record.QS2 * Real(record.TS2));
    results.TotalTenLong = Round16(record.QL1 * Real(record.TL1) + results.SlabTenLong +
                                   record.QL2 * Real(record.TL2));
    results.ForceShort0 = results.TotalTenShort * Real(results.TendonEffStress) * record.TendArea;
    results.ForceLong0 = results.TotalTenLong * Real(results.TendonEffStress) * record.TendArea;

    const Real ForceShort0 = results.ForceShort0;
    const Real ForceLong0 = results.ForceLong0;
    const Real FrictionShort = results.FrictionShort;
    const Real FrictionLong = results.FrictionLong;
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    switch (record.Subgradetype) {
    case 0:
        // The friction builds up from the edge to the middle: at Beta its share is Beta over
        // half the side.
        results.ForceNetShort = ForceShort0 - (FrictionShort * results.BetaShort) / (RectWidth / 2);
        results.ForceNetLong = ForceLong0 - (FrictionLong * results.BetaLong) / (RectLength / 2);
        results.PsHalfShort = (ForceShort0 - FrictionShort) * 1000 / results.AreaShort;
        results.PsHalfLong = (ForceLong0 - FrictionLong) * 1000 / results.AreaLong;
        results.PsCenterShort = (ForceShort0 - FrictionShort) * 1000 / results.AreaShort;
        results.PsCenterLong = (ForceLong0 - FrictionLong) * 1000 / results.AreaLong;
        break;
    case 1:
        results.ForceNetShort =
            ForceShort0 - ((RectWidth - results.BetaShort) * FrictionShort) / RectWidth;
        results.ForceNetLong =
            ForceLong0 - ((RectLength - results.BetaLong) * FrictionLong) / RectLength;
        results.PsHalfShort = (ForceShort0 - FrictionShort / 2) * 1000 / results.AreaShort;
        results.PsHalfLong = (ForceLong0 - FrictionLong / 2) * 1000 / results.AreaLong;
        results.PsCenterShort = (ForceShort0 - FrictionShort) * 1000 / results.AreaShort;
        results.PsCenterLong = (ForceLong0 - FrictionLong) * 1000 / results.AreaLong;
        break;
    default:
        results.ForceNetShort = ForceShort0 - record.UDSM;
        results.ForceNetLong = ForceLong0 - record.UDLM;
        results.PsHalfShort = 0;
        results.PsHalfLong = 0;
        results.PsCenterShort = (ForceShort0 - record.UDSS) * 1000 / results.AreaShort;
        results.PsCenterLong = (ForceLong0 - record.UDLS) * 1000 / results.AreaLong;
        break;
    }
    ClampAtZero(results.ForceNetShort);
    ClampAtZero(results.PsHalfShort);
    ClampAtZero(results.PsCenterShort);
    ClampAtZero(results.ForceNetLong);
    ClampAtZero(results.PsHalfLong);
    ClampAtZero(results.PsCenterLong);

    // With no tendons at all the count is a token 0.001, so that the centroid comes out 0
    // instead of failing; no force rests on this count.
    results.TenCountShort =
        record.QS2 * Real(record.TS2) + record.QS1 * Real(record.TS1) + results.SlabTenShort;
    if (results.TenCountShort == 0) {
        results.TenCountShort = 0.001;
    }
    results.TenCountLong =
        record.QL2 * Real(record.TL2) + record.QL1 * Real(record.TL1) + results.SlabTenLong;
    if (results.TenCountLong == 0) {
        results.TenCountLong = 0.001;
    }

    if (record.SlabTenCovType == 1) {
        results.CgSlabTenShort = Real(record.TendDiam) / 2 + record.SlabTenCov;
        results.CgSlabTenLong = Real(record.TendDiam) / 2 + record.SlabTenCov;
    } else {
        results.CgSlabTenShort = results.CgSlab;
        results.CgSlabTenLong = results.CgSlab;
    }

    // Beam tendons are placed up from the bottom of the equivalent depth, not of their own beam.
    const Real halfDiam = Real(record.TendDiam) / 2;
    const Real EquivDepthShort = results.EquivDepthShort;
    const Real EquivDepthLong = results.EquivDepthLong;
    results.TenCgShort =
        ((EquivDepthShort - record.CS2 - halfDiam) * (record.QS2 * Real(record.TS2)) +
         (EquivDepthShort - record.CS1 - halfDiam) * (record.QS1 * Real(record.TS1)) +
         Real(results.CgSlabTenShort) * results.SlabTenShort) /
        results.TenCountShort;
    results.TenCgLong =
        ((EquivDepthLong - record.CL1 - halfDiam) * (record.QL1 * Real(record.TL1)) +
         (EquivDepthLong - record.CL2 - halfDiam) * (record.QL2 * Real(record.TL2)) +
         Real(results.CgSlabTenLong) * results.SlabTenLong) /
        results.TenCountLong;
    results.BeamTenShort = record.QS2 * Real(record.TS2) + record.QS1 * Real(record.TS1);
    results.BeamTenLong = record.QL2 * Real(record.TL2) + record.QL1 * Real(record.TL1);
    results.EccShort = Real(results.CgTopShort) - results.TenCgShort;
    results.EccLong = Real(results.CgTopLong) - results.TenCgLong;
}
