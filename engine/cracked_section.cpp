#include "engine/cracked_section.h"

#include "engine/checked_math.h"

namespace {

// One direction of one lift mode: the tendons on the tension side and where the compression
// block lies.
struct CrackedCase {
    Real tendons; // tendons on the tension side
    // The width of the compression block as the two factors it is made of (beam width and
    // number of beams, or section width in feet and 12), multiplied in that order.
    Real blockWidth1;
    Real blockWidth2;
    Real depthToTendons; // from the compression face to the tendon centroid, in
};

struct CrackedResults {
    double& force;
    double& block;
    double& capacity;
    std::int16_t& valid;
    double& excess;
};

// A direction without tendons on its tension side has no capacity to report: it is marked
// invalid with a capacity of 0, and its force, block and excess keep their earlier values.
void crackedCapacity(const CrackedCase& c, Real demand, const DesignRecord& record, Real fpc,
                     Real tendonEffStress, CrackedResults out) {
    if (c.tendons == 0) {
        out.valid = 0;
        out.capacity = 0;
        return;
    }
    out.valid = 1;
    out.force = c.tendons * tendonEffStress * record.TendArea;
    out.block = Real(out.force) / (((fpc / 1000) * 0.85) * c.blockWidth1 * c.blockWidth2);
    out.capacity = (c.depthToTendons - Real(out.block) / 2) * (Real(out.force) / 12);
    out.excess = (demand / out.capacity - 1) * 100;
}

// The height of the beam tendons' centroid above the bottom of the equivalent section.
Real beamTendonHeight(Real equivDepth, double cover1, std::int16_t quantity1, double tendons1,
                      double cover2, std::int16_t quantity2, double tendons2, Real halfDiam) {
    return equivDepth - ((equivDepth - cover1 - halfDiam) * (quantity1 * Real(tendons1)) +
                         (equivDepth - cover2 - halfDiam) * (quantity2 * Real(tendons2))) /
                            (quantity2 * Real(tendons2) + quantity1 * Real(tendons1));
}

} // namespace

void ComputeCrackedSection(const DesignRecord& record, ResultsRecord& r) {
    const Real Fpc = record.Fpc;
    const Real TendonEffStress = r.TendonEffStress;
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    const Real EquivDepthLong = r.EquivDepthLong;
    const Real EquivDepthShort = r.EquivDepthShort;

    // Center lift: the top in tension.
    r.CrackMomentCLLong = Real(r.MomentCLLong) * RectWidth;
    r.CrackMomentCLShort = Real(r.MomentCLShort) * RectLength;
    r.CrackDemandCLLong = Real(r.CrackMomentCLLong) * 0.9;
    r.CrackDemandCLShort = Real(r.CrackMomentCLShort) * 0.9;
    crackedCapacity(
        {r.SlabTenLong, r.AvgBeamWidthLong, Real(r.BeamsLong), EquivDepthLong - r.CgSlabTenLong},
        r.CrackDemandCLLong, record, Fpc, TendonEffStress,
        {r.CrackForceCLLong, r.CrackBlockCLLong, r.CrackCapacityCLLong, r.CrackValidCLLong,
         r.ExcessCrackCLLong});
    crackedCapacity({r.SlabTenShort, r.AvgBeamWidthShort, Real(r.BeamsShort),
                     EquivDepthShort - r.CgSlabTenShort},
                    r.CrackDemandCLShort, record, Fpc, TendonEffStress,
                    {r.CrackForceCLShort, r.CrackBlockCLShort, r.CrackCapacityCLShort,
                     r.CrackValidCLShort, r.ExcessCrackCLShort});

    // Edge lift: the bottom in tension.
    r.CrackMomentELLong = Real(r.MomentELLong) * RectWidth;
    r.CrackMomentELShort = Real(r.MomentELShort) * RectLength;
    r.CrackDemandELLong = Real(r.CrackMomentELLong) * 0.9;
    r.CrackDemandELShort = Real(r.CrackMomentELShort) * 0.9;

    const Real halfDiam = Real(record.TendDiam) / 2;
    Real longHeight = 0;
    if (!((record.TL1 == 0 || record.QL1 == 0) && (record.TL2 == 0 || record.QL2 == 0))) {
        longHeight = beamTendonHeight(EquivDepthLong, record.CL1, record.QL1, record.TL1,
                                      record.CL2, record.QL2, record.TL2, halfDiam);
    }
    // The short condition reads the second long group's tendons, TL2, where TS2 would be the
    // mirror of the long rule. It has always been so and decides which sections are analysed.
    Real shortHeight = 0;
    if (!((record.TS1 == 0 || record.QS1 == 0) && (record.TL2 == 0 || record.QS2 == 0))) {
        shortHeight = beamTendonHeight(EquivDepthShort, record.CS2, record.QS2, record.TS2,
                                       record.CS1, record.QS1, record.TS1, halfDiam);
    }

    // Each block spans the whole section width; the long beam tendons listed type 2 first.
    crackedCapacity({record.QL2 * Real(record.TL2) + record.QL1 * Real(record.TL1), RectWidth, 12,
                     EquivDepthLong - longHeight},
                    r.CrackDemandELLong, record, Fpc, TendonEffStress,
                    {r.CrackForceELLong, r.CrackBlockELLong, r.CrackCapacityELLong,
                     r.CrackValidELLong, r.ExcessCrackELLong});
    crackedCapacity({record.QS1 * Real(record.TS1) + record.QS2 * Real(record.TS2), RectLength, 12,
                     EquivDepthShort - shortHeight},
                    r.CrackDemandELShort, record, Fpc, TendonEffStress,
                    {r.CrackForceELShort, r.CrackBlockELShort, r.CrackCapacityELShort,
                     r.CrackValidELShort, r.ExcessCrackELShort});
}
