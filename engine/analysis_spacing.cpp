#include "engine/analysis_spacing.h"

#include "engine/checked_math.h"

namespace {

// The mean spacing of a direction's beams over the side they are spread across.
Real meanSpacing(Real sideFt, std::int16_t quantity1, std::int16_t quantity2) {
    return sideFt / Difference16(Sum16(quantity2, quantity1), 1);
}

// With widely varying spacings (largest over smallest above 1.5) the analysis uses 85 percent
// of the largest; otherwise the mean. The extremes only decide which; the mean is not made
// from them.
Real spacingFromExtremes(Real maximum, Real minimum, Real sideFt, std::int16_t quantity1,
                         std::int16_t quantity2) {
    if (maximum / minimum > 1.5) {
        return maximum * 0.85;
    }
    return meanSpacing(sideFt, quantity1, quantity2);
}

} // namespace

void ComputeAnalysisSpacing(const DesignRecord& record, ResultsRecord& results) {
    if (record.BeamSpacing == 1) {
        results.SpacingShort = meanSpacing(record.RectLength, record.QS1, record.QS2);
        results.SpacingLong = meanSpacing(record.RectWidth, record.QL1, record.QL2);
    } else if (record.BeamSpacing == 0) {
        results.SpacingShort = spacingFromExtremes(record.SMax, record.SMin, record.RectLength,
                                                   record.QS1, record.QS2);
        results.SpacingLong =
            spacingFromExtremes(record.LMax, record.LMin, record.RectWidth, record.QL1, record.QL2);
    }

    // PTI 4.5.2.1: a calculated spacing below 6 ft is taken as 6 ft when the engineer asks.
    if (record.SixFtRule == 1) {
        if (results.SpacingLong < 6) {
            results.SpacingLong = 6;
        }
        if (results.SpacingShort < 6) {
            results.SpacingShort = 6;
        }
    }

    results.PerimeterLoad = record.UseDeadLoad == 1 ? record.DeadLoad : record.TotalLoad;
}
