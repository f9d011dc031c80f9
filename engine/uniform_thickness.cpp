#include "engine/uniform_thickness.h"

#include "engine/checked_math.h"
#include "engine/section_checks.h"
#include "engine/tendon_tallies.h"

namespace {

// The slab tendons of one direction: enough to carry the required force against the friction,
// plus one. On the manual's friction a direction that had no tendons in the ribbed design gets
// none and no friction; the other friction modes always give at least one.
std::int16_t slabTendons(std::int16_t subgradetype, std::int16_t ribbedTendons, Real requiredForce,
                         double& friction, Real tendonCapacity) {
    if (subgradetype == 0 && ribbedTendons == 0) {
        friction = 0;
        return 0;
    }
    return Round16(Floor((requiredForce + friction) / tendonCapacity) + 1);
}

double tendonSpacing(std::int16_t tendons, Real sideFt) {
    if (tendons == 1) {
        return sideFt / 2;
    }
    return (sideFt - 2) / Difference16(tendons, 1);
}

// The eccentricity that keeps the ribbed force times eccentricity with the slab's tendon count,
// rounded by its size to the quarter inch, with its sign kept.
double slabEccentricity(std::int16_t ribbedTendons, Real ribbedEcc, std::int16_t slabTendons) {
    if (ribbedTendons == 0) {
        return 0;
    }
    const Real value = ribbedTendons * ribbedEcc / slabTendons;
    const double rounded = RoundToQuarterInch(Abs(value));
    return value < 0 ? -rounded : rounded;
}

void computeSlabSection(const DesignRecord& record, ResultsRecord& r) {
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    const Real shortThickness = Power(Real(r.InertiaShort) / RectLength, 1.0 / 3);
    const Real longThickness = Power(Real(r.InertiaLong) / RectWidth, 1.0 / 3);
    r.EquivSlabThick = longThickness >= shortThickness ? longThickness : shortThickness;
    r.UTThickness = RoundToQuarterInch(r.EquivSlabThick);

    const Real t = r.UTThickness;
    r.UTAreaShort = RectLength * 12 * t;
    r.UTAreaLong = RectWidth * 12 * t;
    r.UTConcreteVolume = RectWidth * RectLength * t / 12 / 27;
    r.UTSlabWeight = Real(record.UW) * r.UTConcreteVolume / 1000 * 27;
    r.UTInertiaShort = Power(t, 3) * (RectLength * 12) / 12;
    r.UTInertiaLong = Power(t, 3) * (RectWidth * 12) / 12;
}

void computeSlabPrestress(const DesignRecord& record, ResultsRecord& r) {
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    const SubgradeFriction friction = SubgradeFrictionFor(record.Subgradetype, record.SGFC,
                                                          r.UTSlabWeight, record.UDSS, record.UDLS);
    r.UTFrictionShort = friction.shortDirection;
    r.UTFrictionLong = friction.longDirection;

    // The slab carries the average prestress of the ribbed section.
    r.UTReqForceShort = Real(r.PsCenterShort) * r.UTAreaShort / 1000;
    r.UTReqForceLong = Real(r.PsCenterLong) * r.UTAreaLong / 1000;
    const Real tendonCapacity = Real(record.TendArea) * r.TendonEffStress;
    r.UTTotalTenShort = slabTendons(record.Subgradetype, r.TotalTenShort, r.UTReqForceShort,
                                    r.UTFrictionShort, tendonCapacity);
    r.UTTotalTenLong = slabTendons(record.Subgradetype, r.TotalTenLong, r.UTReqForceLong,
                                   r.UTFrictionLong, tendonCapacity);

    r.UTTenSpacingShort = tendonSpacing(r.UTTotalTenShort, RectLength);
    r.UTTenSpacingLong = tendonSpacing(r.UTTotalTenLong, RectWidth);
    // Each direction's count clears the other direction's spacing; it has always been so.
    if (r.UTTotalTenShort <= 0) {
        r.UTTenSpacingLong = 0;
    }
    if (r.UTTotalTenLong <= 0) {
        r.UTTenSpacingShort = 0;
    }
    const std::int16_t tendons = Sum16(r.UTTotalTenShort, r.UTTotalTenLong);
    r.UTTendonEndAllowance = Sum16(tendons, tendons);
    r.UTTendonLength =
        r.UTTotalTenShort * RectWidth + r.UTTotalTenLong * RectLength + r.UTTendonEndAllowance;

    r.UTForceShort0 = r.UTTotalTenShort * Real(r.TendonEffStress) * record.TendArea;
    r.UTForceLong0 = r.UTTotalTenLong * Real(r.TendonEffStress) * record.TendArea;
    r.UTPsCenterShort = (Real(r.UTForceShort0) - r.UTFrictionShort) * 1000 / r.UTAreaShort;
    r.UTPsCenterLong = (Real(r.UTForceLong0) - r.UTFrictionLong) * 1000 / r.UTAreaLong;
    if (record.Subgradetype == 0) {
        r.UTPsHalfShort = r.UTPsCenterShort;
        r.UTPsHalfLong = r.UTPsCenterLong;
    } else if (record.Subgradetype == 1) {
        r.UTPsHalfShort =
            (Real(r.UTForceShort0) - Real(r.UTFrictionShort) / 2) * 1000 / r.UTAreaShort;
        r.UTPsHalfLong = (Real(r.UTForceLong0) - Real(r.UTFrictionLong) / 2) * 1000 / r.UTAreaLong;
    }
    ClampAtZero(r.UTPsHalfShort);
    ClampAtZero(r.UTPsCenterShort);
    ClampAtZero(r.UTPsHalfLong);
    ClampAtZero(r.UTPsCenterLong);

    const bool userFriction = record.Subgradetype == 2;
    r.UTAllowShearShort = AllowableShear(
        r.UTForceShort0, userFriction ? record.UDSS : r.UTFrictionShort, r.UTAreaShort, record.Fpc);
    r.UTAllowShearLong = AllowableShear(
        r.UTForceLong0, userFriction ? record.UDLS : r.UTFrictionLong, r.UTAreaLong, record.Fpc);
    // One modulus serves both fibres of the solid slab.
    r.UTSecModShort = Power(r.UTThickness, 2) * (RectLength * 12) / 6;
    r.UTSecModLong = Power(r.UTThickness, 2) * (RectWidth * 12) / 6;
    r.UTEccLong = slabEccentricity(r.TotalTenLong, r.EccLong, r.UTTotalTenLong);
    r.UTEccShort = slabEccentricity(r.TotalTenShort, r.EccShort, r.UTTotalTenShort);
}

} // namespace

void ComputeUniformThickness(const EngineSettings& settings, const DesignRecord& record,
                             ResultsRecord& results) {
    computeSlabSection(record, results);
    computeSlabPrestress(record, results);
    if (record.SoilType == 0) {
        ComputeUniformExpansive(settings, record, results);
    } else if (record.SoilType == 1) {
        ComputeUniformCompressible(settings, record, results);
    }
}
