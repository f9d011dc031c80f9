#include "engine/line_load.h"

#include "engine/checked_math.h"

namespace {

// The prestress that resists the bending comes from the direction across the line load: a
// load along the long direction takes the short direction's prestress. Any text but
// "Long Direction" counts as the short direction.
Real prestressAcross(const DesignRecord& record, Real psCenterShort, Real forceNetShort,
                     Real areaShort, Real psCenterLong, Real forceNetLong, Real areaLong) {
    const bool alongLong = record.DirLineLoad == "Long Direction";
    switch (record.PreLineLoadType) {
    case 0:
        return alongLong ? psCenterShort : psCenterLong;
    case 1:
        return alongLong ? forceNetShort * 1000 / areaShort : forceNetLong * 1000 / areaLong;
    default:
        return record.UDPreLineLoad;
    }
}

struct LineLoadStresses {
    double& compression;
    double& tension;
    double& excessCompression;
    double& excessTension;
};

// The fibre stresses of the slab under its line load moment, with the prestress, in psi, and
// their excess over the allowables.
void lineLoadStresses(Real moment, Real thickness, Real prestress, const ResultsRecord& r,
                      LineLoadStresses out) {
    const Real bending = (moment / 2) / Power(thickness, 2);
    out.compression = bending + prestress;
    out.tension = prestress - bending;
    out.excessCompression = (Real(out.compression) / r.AllowCompression - 1) * 100;
    // The tension allowable is in ksi.
    out.excessTension = (Real(out.tension) / 1000 / r.AllowTension - 1) * 100;
}

} // namespace

void ComputeLineLoad(const DesignRecord& record, ResultsRecord& r) {
    const Real Ec = record.Ec;
    const Real Ks = record.Ks;
    r.LLPrestress = prestressAcross(record, r.PsCenterShort, r.ForceNetShort, r.AreaShort,
                                    r.PsCenterLong, r.ForceNetLong, r.AreaLong);
    r.LLMoment = Power(Power(record.SlabThick, 3) * Ec / 3 / Ks, 0.25) * record.LineLoad / 4;
    lineLoadStresses(
        r.LLMoment, record.SlabThick, r.LLPrestress, r,
        {r.LLStressCompression, r.LLStressTension, r.ExcessLLCompression, r.ExcessLLTension});

    if (record.FlatSlab != 1) {
        return;
    }
    r.UTLLPrestress = prestressAcross(record, r.UTPsCenterShort, r.UTForceNetShort, r.UTAreaShort,
                                      r.UTPsCenterLong, r.UTForceNetLong, r.UTAreaLong);
    // The uniform slab carries the line load with a factor of 1.5.
    r.UTLLMoment =
        Power(Power(r.UTThickness, 3) * Ec / 3 / Ks, 0.25) * (Real(record.LineLoad) * 1.5) / 4;
    lineLoadStresses(r.UTLLMoment, r.UTThickness, r.UTLLPrestress, r,
                     {r.UTLLStressCompression, r.UTLLStressTension, r.UTExcessLLCompression,
                      r.UTExcessLLTension});
}
