#include "engine/equivalent_depth.h"
#include "engine/prestress.h"
#include "engine/section_properties.h"
#include "engine/soil_bearing.h"
#include "tests/engine/engine_test_support.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {
ResultsRecord prestressOf(const DesignRecord& record) {
    ResultsRecord results;
    ComputeAllowablesAndSections(record, results);
    ComputeEquivalentDepths(record, results);
    ComputeEquivalentSections(record, results);
    ComputeSoilBearing(EngineSettings{}, record, results);
    ComputePrestress(record, results);
    return results;
}
} // namespace

TEST(Prestress, ForcesAndTendonPositionsOfTheSmallRibbedSlabByHand) {
    const ResultsRecord r = prestressOf(SmallRibbedRecord());
    // Beta = (1500000 x I / 1000) ^ 0.25 / 12 with I = 76760000/361 and 25163840/169.
    EXPECT_CLOSE(r.BetaShort, std::pow(1500.0 * 76760000.0 / 361.0, 0.25) / 12);
    EXPECT_NEAR(r.BetaShort, 11.136494572827, 1e-11);
    EXPECT_NEAR(r.BetaLong, 10.187417889360, 1e-11);
    EXPECT_CLOSE(r.TendonEffStress, 174.0); // 0.7 x 270 - 15
    // Half the weight of the concrete times 0.75, both directions alike.
    EXPECT_CLOSE(r.FrictionShort, 92.890625);
    // 0.05 x 4560 = 228 kips asked; (228 + 92.890625) / (0.153 x 174) = 12.05: 13 tendons less
    // the 7 in the beams. Long: (156 + 92.890625) / 26.622 = 9.35: 10 less 5.
    EXPECT_CLOSE(r.ReqForceShort, 228.0);
    EXPECT_EQ(r.SlabTenShort, 6.0);
    EXPECT_EQ(r.SlabTenLong, 5.0);
    EXPECT_EQ(r.TotalTenShort, 13);
    EXPECT_EQ(r.TotalTenLong, 10);
    EXPECT_CLOSE(r.ForceShort0, 346.086); // 13 x 174 x 0.153
    // Friction at Beta over half the side: 346.086 - 92.890625 x 11.1365 / 20.
    EXPECT_NEAR(r.ForceNetShort, 294.362202941048, 1e-10);
    EXPECT_NEAR(r.ForceNetLong, 234.676146170706, 1e-10);
    // (346.086 - 92.890625) x 1000 / 4560; the manual's method already halves the friction.
    EXPECT_CLOSE(r.PsCenterShort, 253195.375 / 4560.0);
    EXPECT_EQ(r.PsHalfShort, r.PsCenterShort);
    // Beam tendons 24 - 3 - 0.25 = 20.75 in down, slab tendons at mid-slab:
    // (20.75 x 7 + 2 x 6) / 13 and (20.75 x 5 + 2 x 5) / 10.
    EXPECT_CLOSE(r.TenCgShort, 157.25 / 13.0);
    EXPECT_CLOSE(r.TenCgLong, 11.375);
    EXPECT_CLOSE(r.EccShort, 122.0 / 19.0 - 157.25 / 13.0);
    EXPECT_CLOSE(r.EccLong, 86.0 / 13.0 - 11.375);
}

TEST(Prestress, SlabTendonCountsFromTheTargetPrestress) {
    DesignRecord record = SmallRibbedRecord();
    record.SlabRefType = 1;
    record.SGFC = 0;
    // 50 psi on 4560 in2 asks 228 kips; a custom tendon of 0.125 in2 at 0.7 x 250 - 23 = 152 ksi
    // delivers 19 kips: a quotient of exactly 12, which still adds a tendon.
    record.StrLvlShort = 50;
    record.StrLvlLong = 50;
    record.TendType = 3;
    record.TendArea = 0.125;
    record.Fpu = 250;
    record.Prestress = 23;
    ResultsRecord r = prestressOf(record);
    EXPECT_EQ(r.ReqForceShort, 228.0);
    EXPECT_EQ(r.SlabTenShort, 13.0 - 7.0);

    // Beam tendons beyond the need leave no slab tendons, not a negative count.
    record.TS1 = 4;
    record.TL1 = 4;
    r = prestressOf(record);
    EXPECT_EQ(r.SlabTenShort, 0.0);
    EXPECT_EQ(r.SlabTenLong, 0.0);
    EXPECT_EQ(r.TotalTenShort, 28);

    // Counts typed directly, for any kind other than 1 and 2; the required forces stay.
    record.SlabRefType = 0;
    record.NumSlabTenShort = 9;
    record.NumSlabTenLong = -3;
    ResultsRecord kept = r;
    ComputePrestress(record, kept);
    EXPECT_EQ(kept.SlabTenShort, 9.0);
    EXPECT_EQ(kept.SlabTenLong, 0.0);
    EXPECT_EQ(kept.ReqForceShort, r.ReqForceShort);
}

TEST(Prestress, FrictionModesAndTheirAveragePrestress) {
    // Slab tendons given as counts, so that the forces stay 346.086 and 266.22 kips whatever the
    // friction.
    DesignRecord record = SmallRibbedRecord();
    record.SlabRefType = 0;
    record.NumSlabTenShort = 6;
    record.NumSlabTenLong = 5;
    record.Subgradetype = 1;
    ResultsRecord r = prestressOf(record);
    // Full length drag: the whole friction 185.78125, halved in PsHalf only.
    EXPECT_CLOSE(r.FrictionShort, 185.78125);
    EXPECT_CLOSE(r.PsCenterShort, (346.086 - 185.78125) * 1000 / 4560);
    EXPECT_CLOSE(r.PsHalfShort, (346.086 - 92.890625) * 1000 / 4560);
    EXPECT_NEAR(r.ForceNetShort, 346.086 - (40 - r.BetaShort) * 185.78125 / 40, 1e-10);

    record.Subgradetype = 2;
    record.UDSS = 10;
    record.UDLS = 20;
    record.UDSM = 30;
    record.UDLM = 400; // more than the force: clamped to 0
    r = prestressOf(record);
    EXPECT_EQ(r.FrictionShort, 10.0);
    EXPECT_EQ(r.FrictionLong, 20.0);
    EXPECT_EQ(r.PsHalfShort, 0.0);
    EXPECT_CLOSE(r.ForceNetShort, 346.086 - 30);
    EXPECT_EQ(r.ForceNetLong, 0.0);
    EXPECT_CLOSE(r.PsCenterLong, (266.22 - 20) * 1000 / 3120);
}

TEST(Prestress, NoTendonsAndFractionalBeamTendons) {
    DesignRecord record = SmallRibbedRecord();
    record.SlabRefType = 0;
    record.TS1 = 0;
    record.TL1 = 0;
    ResultsRecord r = prestressOf(record);
    EXPECT_EQ(r.TenCountShort, 0.001);
    EXPECT_EQ(r.TenCgShort, 0.0);
    EXPECT_EQ(r.EccShort, r.CgTopShort);
    EXPECT_EQ(r.TotalTenShort, 0);
    EXPECT_EQ(r.ForceShort0, 0.0);
    EXPECT_EQ(r.PsCenterShort, 0.0);

    // 3 beams of 1.5 tendons: 4.5 in the count, 4 in the rounded total (ties to even);
    // with one slab tendon 5.5 rounds to 6.
    record.QS1 = 3;
    record.TS1 = 1.5;
    r = prestressOf(record);
    EXPECT_EQ(r.TenCountShort, 4.5);
    EXPECT_EQ(r.TotalTenShort, 4);
    record.NumSlabTenShort = 1;
    r = prestressOf(record);
    EXPECT_EQ(r.TenCountShort, 5.5);
    EXPECT_EQ(r.TotalTenShort, 6);

    // A given slab tendon cover places the slab tendons by the diameter, not at mid-slab.
    record.SlabTenCovType = 1;
    record.SlabTenCov = 1.5;
    r = prestressOf(record);
    EXPECT_EQ(r.CgSlabTenShort, 1.75);
}
