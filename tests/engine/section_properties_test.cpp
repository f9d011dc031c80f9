#include "engine/checked_math.h"
#include "engine/equivalent_depth.h"
#include "engine/section_properties.h"
#include "tests/engine/engine_test_support.h"

#include <gtest/gtest.h>

namespace {
ResultsRecord sectionsOf(const DesignRecord& record) {
    ResultsRecord results;
    ComputeAllowablesAndSections(record, results);
    ComputeEquivalentDepths(record, results);
    ComputeEquivalentSections(record, results);
    return results;
}
} // namespace

TEST(SectionProperties, AllowablesAndTheTSectionOfEqualDepthsByHand) {
    const ResultsRecord r = sectionsOf(SmallRibbedRecord());

    // sqrt(3000) = 54.772255750516611; times -6 / 1000, times 0.45 and times 7.5.
    EXPECT_CLOSE(r.AllowTension, -0.32863353450309967);
    EXPECT_CLOSE(r.AllowCompression, 1350.0);
    EXPECT_CLOSE(r.CrackingStress, 410.79191812887458);

    // Short: 7 beams of 12 x 20 below the slab = 1680 in2; slab 720 x 4 = 2880 in2.
    EXPECT_CLOSE(r.AreaBeamS1, 1680.0);
    EXPECT_CLOSE(r.AreaShort, 4560.0);
    // (14 x 1680 + 2 x 2880) / 4560 = 122/19.
    EXPECT_CLOSE(r.CgTopShort, 122.0 / 19.0);
    EXPECT_CLOSE(r.InertiaBeamS1, 56000.0);
    // The slab's own inertia is the cube times the width in feet: 64 x 60.
    EXPECT_CLOSE(r.InertiaSlabShort, 3840.0);
    // 59840 + (144/19)^2 x 1680 + (84/19)^2 x 2880 = 76760000/361.
    EXPECT_CLOSE(r.InertiaShort, 76760000.0 / 361.0);

    // Long: 5 beams, slab 480 x 4; centroid 86/13, inertia 25163840/169.
    EXPECT_CLOSE(r.AreaLong, 3120.0);
    EXPECT_CLOSE(r.CgTopLong, 86.0 / 13.0);
    EXPECT_CLOSE(r.InertiaLong, 25163840.0 / 169.0);

    // Equal depths: the equivalent depth is that depth and the centroid stays the first one.
    EXPECT_EQ(r.EquivDepthShort, 24.0);
    EXPECT_CLOSE(r.CgTopShortCopy, 122.0 / 19.0);
    EXPECT_CLOSE(r.CgBottomShort, 334.0 / 19.0);
    EXPECT_CLOSE(r.SecModBottomShort, 76760000.0 / 6346.0);
    EXPECT_CLOSE(r.SecModTopShort, 76760000.0 / 2318.0);
    EXPECT_CLOSE(r.SecModTopLong, 25163840.0 / 1118.0);
    EXPECT_CLOSE(r.AvgBeamWidthShort, 12.0);
    EXPECT_EQ(r.BeamsShort, 7);
    EXPECT_EQ(r.BeamsLong, 5);
}

TEST(SectionProperties, TwoBeamDepthsMeetInOneEquivalentDepthWhateverTheirOrder) {
    DesignRecord record = SmallRibbedRecord();
    record.QS1 = 3;
    record.WS1 = 12;
    record.DS1 = 30;
    record.QS2 = 4;
    record.WS2 = 10;
    record.DS2 = 18;
    const ResultsRecord r = sectionsOf(record);

    // The real section: inertia 238483.07617306... in4. The T section of one depth with the
    // same inertia, solved to 40 digits by a root finder: 25.581883078656370 in, with its
    // centroid at 6.6413633648900002 in from the top.
    EXPECT_NEAR(r.InertiaShort, 238483.0761730652, 1e-8);
    EXPECT_NEAR(r.EquivDepthShort, 25.581883078656371, 1e-10);
    EXPECT_NEAR(r.CgTopShort, 6.6413633648900002, 1e-10);
    EXPECT_NEAR(r.CgTopShortCopy, 6.6413633648900002, 1e-10);
    // The moduli mix the inertia of the real section with the centroid of the equivalent one.
    EXPECT_CLOSE(r.SecModTopShort, r.InertiaShort / r.CgTopShort);
    EXPECT_CLOSE(r.SecModBottomShort, r.InertiaShort / (r.EquivDepthShort - r.CgTopShort));
    // Areas are those of the equivalent depth: (36 + 40) x (25.58... - 4) plus the slab.
    EXPECT_NEAR(r.AreaShort, 76 * (25.581883078656371 - 4) + 2880, 1e-8);
    // (4 x 10 + 3 x 12) / 7
    EXPECT_CLOSE(r.AvgBeamWidthShort, 76.0 / 7.0);

    std::swap(record.QS1, record.QS2);
    std::swap(record.WS1, record.WS2);
    std::swap(record.DS1, record.DS2);
    EXPECT_EQ(sectionsOf(record).EquivDepthShort, r.EquivDepthShort);
}

TEST(SectionProperties, NearlyEqualDepthsStillIterateAndMoveTheCentroid) {
    DesignRecord record = SmallRibbedRecord();
    record.QS2 = 2;
    record.DS2 = 24.0000001;
    const ResultsRecord r = sectionsOf(record);
    // The first section's centroid: (14 x 1680 + 14.00000005 x 480.0000024 + 2 x 2880) /
    // 5040.0000024
    const double firstCentroid =
        (14 * 1680 + 14.00000005 * 480.0000024 + 2.0 * 2880) / (1680 + 480.0000024 + 2880);
    EXPECT_GT(r.EquivDepthShort, 24.0);
    EXPECT_LT(r.EquivDepthShort, 24.0000001);
    EXPECT_NE(r.CgTopShort, firstCentroid);
    EXPECT_NEAR(r.CgTopShort, firstCentroid, 1e-6);
}

TEST(EquivalentDepth, EqualDepthsReturnAtOnceAndAnUnreachableInertiaOverflowsTheCounter) {
    double centroid = 99;
    EXPECT_EQ(EquivalentDepth(720, 4, 84, 1e6, 24, 24, centroid), 24);
    EXPECT_EQ(centroid, 99);

    // An inertia above that of the deeper bound: the bracket closes on 30 without ever meeting
    // it, and the 16-bit step counter overflows at its 32768th step.
    try {
        EquivalentDepth(720, 4, 84, 1e12, 18, 30, centroid);
        ADD_FAILURE() << "no fault";
    } catch (const ArithmeticFault& fault) {
        EXPECT_EQ(fault.kind, FaultKind::Overflow);
    }
    EXPECT_NEAR(centroid, (17.0 * 26 * 84 + 2.0 * 2880) / (26 * 84 + 2880), 1e-9);
}
