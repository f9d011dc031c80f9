#include "engine/soil_bearing.h"

#include "engine/checked_math.h"

namespace {

// The slab strips that bear beside the beams of one direction: 16 slab thicknesses (or the clear
// gap, if less) beside each interior gap and 6 thicknesses (or half the gap) at each outside beam.
struct BearingStrips {
    double beamWidthFt;  // summed width of the direction's beams
    double stripWidthFt; // summed width of the bearing slab strips
};

BearingStrips bearingStrips(std::int16_t quantity1, double width1, std::int16_t quantity2,
                            double width2, Real sideFt, Real slabThick) {
    const Real beamWidth = (quantity2 * Real(width2) + quantity1 * Real(width1)) / 12;
    const Real clearGap = (sideFt - beamWidth) / Difference16(Sum16(quantity2, quantity1), 1);
    const Real interiorStrip = Lesser(clearGap, slabThick * 16 / 12);
    const Real edgeStrip = Lesser(clearGap / 2, slabThick * 6 / 12);
    const Real strips =
        Difference16(Sum16(quantity2, quantity1), 2) * interiorStrip + edgeStrip + edgeStrip;
    return {beamWidth, strips};
}

} // namespace

void ComputeSoilBearing(const EngineSettings& settings, const DesignRecord& record,
                        ResultsRecord& results) {
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;

    // The long beams run the full length; the short beams only between them, so that no
    // crossing is counted twice.
    const Real longBeamWidthFt =
        (record.QL2 * Real(record.WL2) + record.QL1 * Real(record.WL1)) / 12;
    results.ConcreteVolume =
        ((RectWidth * RectLength * record.SlabThick) / 12 +
         ((Real(results.AreaBeamL2) + results.AreaBeamL1) / 144) * RectLength +
         (RectWidth - longBeamWidthFt) * ((Real(results.AreaBeamS2) + results.AreaBeamS1) / 144)) /
        27;
    results.ConcreteWeight = ((Real(record.UW) * results.ConcreteVolume) / 1000) * 27;
    results.SuperimposedLoad = RectWidth * RectLength * record.ULoad / 1000;
    results.TotalAppliedLoad = (Real(results.SuperimposedLoad) + results.ConcreteWeight) * 1000;

    const BearingStrips shortStrips =
        bearingStrips(record.QS1, record.WS1, record.QS2, record.WS2, RectLength, record.SlabThick);
    const BearingStrips longStrips =
        bearingStrips(record.QL1, record.WL1, record.QL2, record.WL2, RectWidth, record.SlabThick);
    const Real BS = shortStrips.beamWidthFt;
    const Real BL = longStrips.beamWidthFt;
    const Real TS = shortStrips.stripWidthFt;
    const Real TL = longStrips.stripWidthFt;

    if (settings.UseBeamOnly == 1) {
        results.BearingArea = (RectWidth - BL) * BS + BL * RectLength;
    } else {
        results.BearingArea = (RectWidth - BL - TL) * (TS + BS) + (BL + TL) * RectLength;
        if (results.BearingArea > RectWidth * RectLength) {
            results.BearingArea = RectWidth * RectLength;
        }
    }

    results.SoilPressure = Real(results.TotalAppliedLoad) / results.BearingArea;
    const Real allowableBearing = record.SoilType == 0 ? record.ExpBearing : record.CompBearing;
    results.BearingSafety = allowableBearing / results.SoilPressure;
    results.BearingExcess = (Real(results.SoilPressure) / allowableBearing - 1) * 100;
}
