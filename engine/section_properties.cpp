#include "engine/section_properties.h"

#include "engine/checked_math.h"
#include "engine/equivalent_depth.h"

namespace {

// The two beam groups of one direction and the side of the rectangle across which they lie
// side by side, in feet.
struct DirectionInput {
    std::int16_t quantity1;
    double width1;
    double depth1;
    std::int16_t quantity2;
    double width2;
    double depth2;
    double sectionWidthFt;
};

struct DirectionSection {
    double areaBeam1, areaBeam2, areaSlab, area;
    double cgBeam1, cgBeam2, cgSlab, cgTop;
    double inertiaBeam1, inertiaBeam2, inertiaSlab, inertia;
};

// The first section of one direction, in the order the engineer computes it: areas, centroids,
// then inertias.
DirectionSection firstSection(const DirectionInput& in, Real slabThick) {
    DirectionSection out{};
    out.areaBeam1 = (in.quantity1 * Real(in.width1)) * (Real(in.depth1) - slabThick);
    out.areaBeam2 = (in.quantity2 * Real(in.width2)) * (Real(in.depth2) - slabThick);
    out.areaSlab = (Real(in.sectionWidthFt) * 12) * slabThick;
    out.area = Real(out.areaBeam2) + out.areaBeam1 + out.areaSlab;

    out.cgBeam1 = (Real(in.depth1) - slabThick) / 2 + slabThick;
    out.cgBeam2 = (Real(in.depth2) - slabThick) / 2 + slabThick;
    out.cgSlab = slabThick / 2;
    out.cgTop = (Real(out.cgBeam2) * out.areaBeam2 + Real(out.cgBeam1) * out.areaBeam1 +
                 Real(out.cgSlab) * out.areaSlab) /
                out.area;

    out.inertiaBeam1 =
        Power(Real(in.depth1) - slabThick, 3) * (in.quantity1 * Real(in.width1)) / 12;
    out.inertiaBeam2 =
        Power(Real(in.depth2) - slabThick, 3) * (in.quantity2 * Real(in.width2)) / 12;
    // The width in inches times the cube over 12, with the two factors of 12 cancelled.
    out.inertiaSlab = Power(slabThick, 3) * in.sectionWidthFt;
    const Real cgTop = out.cgTop;
    out.inertia = Real(out.inertiaBeam2) + out.inertiaBeam1 + out.inertiaSlab +
                  Power(cgTop - out.cgBeam1, 2) * out.areaBeam1 +
                  Power(cgTop - out.cgBeam2, 2) * out.areaBeam2 +
                  Power(cgTop - out.cgSlab, 2) * out.areaSlab;
    return out;
}

} // namespace

void ComputeAllowablesAndSections(const DesignRecord& record, ResultsRecord& results) {
    const Real Fpc = record.Fpc;
    results.AllowTension = Sqrt(Fpc) * -6 / 1000;
    results.AllowCompression = Fpc * 0.45;
    results.CrackingStress = Sqrt(Fpc) * 7.5;

    const DirectionSection shortSection = firstSection(
        {record.QS1, record.WS1, record.DS1, record.QS2, record.WS2, record.DS2, record.RectLength},
        record.SlabThick);
    results.AreaBeamS1 = shortSection.areaBeam1;
    results.AreaBeamS2 = shortSection.areaBeam2;
    results.AreaSlabShort = shortSection.areaSlab;
    results.AreaShort = shortSection.area;
    results.CgBeamS1 = shortSection.cgBeam1;
    results.CgBeamS2 = shortSection.cgBeam2;
    results.CgSlab = shortSection.cgSlab;
    results.CgTopShort = shortSection.cgTop;
    results.InertiaBeamS1 = shortSection.inertiaBeam1;
    results.InertiaBeamS2 = shortSection.inertiaBeam2;
    results.InertiaSlabShort = shortSection.inertiaSlab;
    results.InertiaShort = shortSection.inertia;

    const DirectionSection longSection = firstSection(
        {record.QL1, record.WL1, record.DL1, record.QL2, record.WL2, record.DL2, record.RectWidth},
        record.SlabThick);
    results.AreaBeamL1 = longSection.areaBeam1;
    results.AreaBeamL2 = longSection.areaBeam2;
    results.AreaSlabLong = longSection.areaSlab;
    results.AreaLong = longSection.area;
    results.CgBeamL1 = longSection.cgBeam1;
    results.CgBeamL2 = longSection.cgBeam2;
    results.CgTopLong = longSection.cgTop;
    results.InertiaBeamL1 = longSection.inertiaBeam1;
    results.InertiaBeamL2 = longSection.inertiaBeam2;
    results.InertiaSlabLong = longSection.inertiaSlab;
    results.InertiaLong = longSection.inertia;
}

void ComputeEquivalentSections(const DesignRecord& record, ResultsRecord& results) {
    results.CgBottomShort = Real(results.EquivDepthShort) - results.CgTopShort;
    results.CgTopShortCopy = results.CgTopShort;
    results.CgBottomLong = Real(results.EquivDepthLong) - results.CgTopLong;
    results.CgTopLongCopy = results.CgTopLong;

    // The inertia stays that of the real section; the centroid is that of the equivalent one.
    results.SecModBottomShort = Real(results.InertiaShort) / results.CgBottomShort;
    results.SecModBottomLong = Real(results.InertiaLong) / results.CgBottomLong;
    results.SecModTopShort = Real(results.InertiaShort) / results.CgTopShort;
    results.SecModTopLong = Real(results.InertiaLong) / results.CgTopLong;

    // From here on every area is that of the equivalent section.
    const Real SlabThick = record.SlabThick;
    const Real shortStemDepth = Real(results.EquivDepthShort) - SlabThick;
    const Real longStemDepth = Real(results.EquivDepthLong) - SlabThick;
    results.AreaBeamS1 = (record.QS1 * Real(record.WS1)) * shortStemDepth;
    results.AreaBeamS2 = (record.QS2 * Real(record.WS2)) * shortStemDepth;
    results.AreaBeamL1 = (record.QL1 * Real(record.WL1)) * longStemDepth;
    results.AreaBeamL2 = (record.QL2 * Real(record.WL2)) * longStemDepth;
    results.AreaSlabShort = (Real(record.RectLength) * 12) * SlabThick;
    results.AreaSlabLong = (Real(record.RectWidth) * 12) * SlabThick;
    results.AreaShort = Real(results.AreaBeamS2) + results.AreaBeamS1 + results.AreaSlabShort;
    results.AreaLong = Real(results.AreaBeamL2) + results.AreaBeamL1 + results.AreaSlabLong;

    results.AvgBeamWidthShort = (record.QS2 * Real(record.WS2) + record.QS1 * Real(record.WS1)) /
                                Sum16(record.QS2, record.QS1);
    results.AvgBeamWidthLong = (record.QL2 * Real(record.WL2) + record.QL1 * Real(record.WL1)) /
                               Sum16(record.QL2, record.QL1);
    results.BeamsShort = Sum16(record.QS2, record.QS1);
    results.BeamsLong = Sum16(record.QL2, record.QL1);
}
