#include "engine/tendon_tallies.h"

#include "engine/checked_math.h"

#include <cmath>

namespace {

// The spacing of a direction's slab tendons over the side they are spread across, less 2 ft at
// each edge; a single tendon stands in the middle, and no tendons have no spacing.
double slabTendonSpacing(Real tendons, Real sideFt) {
    Real spacing = tendons == 1 ? sideFt / 2 : (sideFt - 4) / (tendons - 1);
    if (!(tendons > 0)) {
        spacing = 0;
    }
    return spacing;
}

} // namespace

double RoundToQuarterInch(double value) {
    const double whole = std::floor(value);
    const double fraction = value - whole;
    if (fraction < 0.125) {
        return whole;
    }
    if (fraction < 0.375) {
        return whole + 0.25;
    }
    if (fraction < 0.625) {
        return whole + 0.5;
    }
    if (fraction < 0.875) {
        return whole + 0.75;
    }
    return whole + 1;
}

void ComputeTendonTallies(const DesignRecord& record, ResultsRecord& r) {
    r.TendonJackForce = Real(record.Fpu) * 0.8 * record.TendArea;
    // Every tendon gets a two foot allowance at its ends.
    const std::int16_t tendons = Sum16(r.TotalTenShort, r.TotalTenLong);
    r.TendonEndAllowance = Sum16(tendons, tendons);
    r.TendonLength = r.TotalTenShort * Real(record.RectWidth) +
                     r.TotalTenLong * Real(record.RectLength) + r.TendonEndAllowance;
    r.SlabTenSpacingShort = slabTendonSpacing(r.SlabTenShort, record.RectLength);
    r.SlabTenSpacingLong = slabTendonSpacing(r.SlabTenLong, record.RectWidth);
}
