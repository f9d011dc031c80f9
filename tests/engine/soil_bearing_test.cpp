#include "engine/analysis_spacing.h"
#include "engine/equivalent_depth.h"
#include "engine/section_properties.h"
#include "engine/soil_bearing.h"
#include "tests/engine/engine_test_support.h"

#include <gtest/gtest.h>

namespace {
ResultsRecord bearingOf(const DesignRecord& record, std::int16_t useBeamOnly = 0) {
    ResultsRecord results;
    ComputeAllowablesAndSections(record, results);
    ComputeEquivalentDepths(record, results);
    ComputeEquivalentSections(record, results);
    ComputeSoilBearing(EngineSettings{0, useBeamOnly, 0}, record, results);
    return results;
}
} // namespace

TEST(SoilBearing, WeightLoadAndPressureOfTheSmallRibbedSlabByHand) {
    const ResultsRecord r = bearingOf(SmallRibbedRecord());
    // (40 x 60 x 4 / 12 + 1200/144 x 60 + (40 - 5) x 1680/144) / 27 = (800 + 500 + 408 1/3) / 27
    EXPECT_CLOSE(r.ConcreteVolume, 5125.0 / 81.0);
    // 145 pcf x 5125/81 yd3 x 27 / 1000
    EXPECT_CLOSE(r.ConcreteWeight, 743125.0 / 3000.0);
    EXPECT_CLOSE(r.SuperimposedLoad, 96.0);
    EXPECT_CLOSE(r.TotalAppliedLoad, 1031125000.0 / 3000.0);
    // Short beams 7 ft wide in all, gaps 53/6 ft: strips 16 x 4 / 12 = 5 1/3 ft inside, 2 ft at
    // the ends, TS = 5 x 5 1/3 + 4 = 92/3. Long: gaps 8.75 ft, TL = 3 x 5 1/3 + 4 = 20.
    // (40 - 5 - 20) x (92/3 + 7) + (5 + 20) x 60 = 565 + 1500.
    EXPECT_CLOSE(r.BearingArea, 2065.0);
    EXPECT_CLOSE(r.SoilPressure, 1031125.0 / 6195.0);
    EXPECT_CLOSE(r.BearingSafety, 2000.0 * 6195.0 / 1031125.0);
    EXPECT_CLOSE(r.BearingExcess, (1031125.0 / 6195.0 / 2000.0 - 1) * 100);

    // On the beam bottoms alone: (40 - 5) x 7 + 5 x 60.
    EXPECT_CLOSE(bearingOf(SmallRibbedRecord(), 1).BearingArea, 545.0);
}

TEST(SoilBearing, StripsBesideTheBeamsAndTheLimitOfTheWholeRectangle) {
    // Three long beams of 12 in across 40 ft: gaps of 18.5 ft, wider than 16 slab thicknesses,
    // so one interior strip of 5 1/3 ft and two end strips of 2 ft: TL = 9 1/3 ft.
    // Two short beams across 60 ft: the interior factor is 0, TS = 2 + 2 = 4 ft.
    DesignRecord record = SmallRibbedRecord();
    record.QL1 = 3;
    record.QS1 = 2;
    // (40 - 3 - 28/3) x (4 + 2) + (3 + 28/3) x 60 = 166 + 740
    EXPECT_CLOSE(bearingOf(record).BearingArea, 906.0);

    // A slab so thick that its strips close every gap bears on the whole rectangle.
    record.SlabThick = 20;
    record.DS1 = record.DS2 = record.DL1 = record.DL2 = 30;
    EXPECT_CLOSE(bearingOf(record).BearingArea, 2400.0);

    // Compressible soil compares with its own allowable pressure.
    record = SmallRibbedRecord();
    record.SoilType = 1;
    EXPECT_CLOSE(bearingOf(record).BearingSafety, 1500.0 * 6195.0 / 1031125.0);
}

TEST(AnalysisSpacing, AverageOrEightyFivePercentOfTheLargestAndTheSixFootRule) {
    DesignRecord record = SmallRibbedRecord();
    ResultsRecord r;
    ComputeAnalysisSpacing(record, r);
    EXPECT_CLOSE(r.SpacingShort, 10.0); // 60 ft over 6 gaps
    EXPECT_CLOSE(r.SpacingLong, 10.0);  // 40 ft over 4 gaps

    record.BeamSpacing = 0;
    record.SMax = 15;
    record.SMin = 10; // exactly 1.5: the mean stays
    record.LMax = 16;
    record.LMin = 10; // above 1.5: 0.85 x 16
    ComputeAnalysisSpacing(record, r);
    EXPECT_CLOSE(r.SpacingShort, 10.0);
    EXPECT_CLOSE(r.SpacingLong, 13.6);

    // Another spacing kind computes nothing: the spacings of the run before stay.
    record.BeamSpacing = 2;
    record.RectWidth = 99;
    ComputeAnalysisSpacing(record, r);
    EXPECT_CLOSE(r.SpacingLong, 13.6);

    // 5.9 ft spacings become 6 ft with the rule and stay without it.
    record = SmallRibbedRecord();
    record.RectLength = 35.4;
    record.RectWidth = 23.6;
    record.SixFtRule = 1;
    ComputeAnalysisSpacing(record, r);
    EXPECT_EQ(r.SpacingShort, 6.0);
    EXPECT_EQ(r.SpacingLong, 6.0);
    record.SixFtRule = 0;
    ComputeAnalysisSpacing(record, r);
    EXPECT_CLOSE(r.SpacingShort, 5.9);
    EXPECT_CLOSE(r.SpacingLong, 5.9);

    // The perimeter load of edge lift: the dead load only when asked for.
    record.TotalLoad = 1500;
    record.DeadLoad = 900;
    record.UseDeadLoad = 0;
    ComputeAnalysisSpacing(record, r);
    EXPECT_EQ(r.PerimeterLoad, 1500.0);
    record.UseDeadLoad = 1;
    ComputeAnalysisSpacing(record, r);
    EXPECT_EQ(r.PerimeterLoad, 900.0);
}
