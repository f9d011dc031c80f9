// The uniform thickness slab on compressible soil: center down and, when asked for, edge down,
// under the ribbed moments, shear forces and soil deflections. No cracked section here.

#include "engine/checked_math.h"
#include "engine/section_checks.h"
#include "engine/uniform_thickness.h"

namespace {

void centerDown(const EngineSettings& settings, const DesignRecord& record, ResultsRecord& r) {
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    const Real Ec = record.Ec;
    const Real Settle = record.Settle;
    r.UTBetaCDShort =
        Power(Ec * r.UTInertiaShort / ((Settle / r.SettleRefShort) * record.Es), 0.25) / 12;
    r.UTBetaCDLong =
        Power(Ec * r.UTInertiaLong / ((Settle / r.SettleRefLong) * record.Es), 0.25) / 12;
    // User-defined friction writes the force at Beta of the expansive names, the one force the
    // line load then finds set on this soil, and leaves the center down forces as they were.
    if (record.Subgradetype == 0 || record.Subgradetype == 1) {
        r.UTForceNetCDShort = ForceAtBeta(record.Subgradetype, r.UTForceShort0, r.UTBetaCDShort,
                                          r.UTFrictionShort, RectWidth, record.UDSM);
        r.UTForceNetCDLong = ForceAtBeta(record.Subgradetype, r.UTForceLong0, r.UTBetaCDLong,
                                         r.UTFrictionLong, RectLength, record.UDLM);
    } else {
        r.UTForceNetShort = Real(r.UTForceShort0) - record.UDSM;
        r.UTForceNetLong = Real(r.UTForceLong0) - record.UDLM;
    }
    ClampAtZero(r.UTForceNetCDShort);
    ClampAtZero(r.UTForceNetCDLong);

    const bool useBeta = settings.UseBeta == 1;
    const PrestressTerms shortTerms{useBeta, r.UTForceNetCDShort, r.UTAreaShort, r.UTEccShort,
                                    r.UTPsCenterShort};
    const PrestressTerms longTerms{useBeta, r.UTForceNetCDLong, r.UTAreaLong, r.UTEccLong,
                                   r.UTPsCenterLong};
    const Real SS = r.UTSecModShort;
    const Real SL = r.UTSecModLong;
    const Real MS = Real(r.MomentCDShort) * RectLength * 12;
    const Real ML = Real(r.MomentCDLong) * RectWidth * 12;
    r.UTStressBotCDShort = shortTerms.axial() - MS / SS - shortTerms.eccentric(SS);
    r.UTStressBotCDLong = longTerms.axial() - ML / SL - longTerms.eccentric(SL);
    r.UTStressTopCDShort = MS / SS + shortTerms.axial() + shortTerms.eccentric(SS);
    if (useBeta) {
        // The eccentric term of the long top fibre takes the short direction's force; it has
        // always been computed so.
        r.UTStressTopCDLong = ML / SL + Real(r.UTForceNetCDLong) / r.UTAreaLong +
                              Real(r.UTForceNetCDShort) * r.UTEccLong / SL;
    } else {
        r.UTStressTopCDLong = ML / SL + longTerms.axial() + longTerms.eccentric(SL);
    }
    const Real allowCompression = Real(r.AllowCompression) / 1000;
    r.UTExcessTopCDShort = Excess(r.UTStressTopCDShort, allowCompression);
    r.UTExcessTopCDLong = Excess(r.UTStressTopCDLong, allowCompression);
    r.UTExcessBotCDShort = Excess(r.UTStressBotCDShort, r.AllowTension);
    r.UTExcessBotCDLong = Excess(r.UTStressBotCDLong, r.AllowTension);

    const StiffnessLength longLength = StiffnessLengthFor(r.UTBetaCDLong, RectLength, "Length");
    r.UTStiffLengthCDLong = longLength.length;
    r.UTStiffBasisCDLong = longLength.basis;
    const StiffnessLength shortLength = StiffnessLengthFor(r.UTBetaCDShort, RectWidth, "Width");
    r.UTStiffLengthCDShort = shortLength.length;
    r.UTStiffBasisCDShort = shortLength.basis;
    r.UTAllowDeflCDShort = Real(r.UTStiffLengthCDShort) * 12 / record.DefSettle;
    r.UTAllowDeflCDLong = Real(r.UTStiffLengthCDLong) * 12 / record.DefSettle;

    r.UTDeflPsCDShort =
        PrestressDeflection(r.UTEccShort, r.UTForceShort0, r.UTBetaCDShort, Ec, r.UTInertiaShort);
    r.UTDeflPsCDLong =
        PrestressDeflection(r.UTEccLong, r.UTForceLong0, r.UTBetaCDLong, Ec, r.UTInertiaLong);
    r.UTNetDeflCDShort = Real(r.DeflCDShort) + r.UTDeflPsCDShort;
    r.UTNetDeflCDLong = Real(r.DeflCDLong) + r.UTDeflPsCDLong;
    r.UTExcessDeflCDShort = Excess(r.UTNetDeflCDShort, r.UTAllowDeflCDShort);
    r.UTExcessDeflCDLong = Excess(r.UTNetDeflCDLong, r.UTAllowDeflCDLong);

    const Real t = r.UTThickness;
    r.UTShearCDShort = Real(r.ShearForceCDShort) * 1000 / t / 12;
    r.UTShearCDLong = Real(r.ShearForceCDLong) * 1000 / t / 12;
    r.UTExcessShearCDShort = Excess(r.UTShearCDShort, r.UTAllowShearShort);
    r.UTExcessShearCDLong = Excess(r.UTShearCDLong, r.UTAllowShearLong);
}

void edgeDown(const EngineSettings& settings, const DesignRecord& record, ResultsRecord& r) {
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    const Real Ec = record.Ec;
    r.UTBetaEDShort = Power(Ec * r.UTInertiaShort / record.Es, 0.25) / 12;
    r.UTBetaEDLong = Power(Ec * r.UTInertiaLong / record.Es, 0.25) / 12;
    r.UTForceNetEDShort = ForceAtBeta(record.Subgradetype, r.UTForceShort0, r.UTBetaEDShort,
                                      r.UTFrictionShort, RectWidth, record.UDSM);
    r.UTForceNetEDLong = ForceAtBeta(record.Subgradetype, r.UTForceLong0, r.UTBetaEDLong,
                                     r.UTFrictionLong, RectLength, record.UDLM);
    ClampAtZero(r.UTForceNetEDShort);
    ClampAtZero(r.UTForceNetEDLong);

    const bool useBeta = settings.UseBeta == 1;
    const PrestressTerms shortTerms{useBeta, r.UTForceNetEDShort, r.UTAreaShort, r.UTEccShort,
                                    r.UTPsCenterShort};
    const PrestressTerms longTerms{useBeta, r.UTForceNetEDLong, r.UTAreaLong, r.UTEccLong,
                                   r.UTPsCenterLong};
    const Real SS = r.UTSecModShort;
    const Real SL = r.UTSecModLong;
    const Real MS = Real(r.MomentEDShort) * RectLength * 12;
    const Real ML = Real(r.MomentEDLong) * RectWidth * 12;
    r.UTStressTopEDShort = shortTerms.axial() - MS / SS + shortTerms.eccentric(SS);
    r.UTStressTopEDLong = longTerms.axial() - ML / SL + longTerms.eccentric(SL);
    r.UTStressBotEDShort = MS / SS + shortTerms.axial() - shortTerms.eccentric(SS);
    r.UTStressBotEDLong = ML / SL + longTerms.axial() - longTerms.eccentric(SL);
    const Real allowCompression = Real(r.AllowCompression) / 1000;
    r.UTExcessBotEDShort = Excess(r.UTStressBotEDShort, allowCompression);
    r.UTExcessBotEDLong = Excess(r.UTStressBotEDLong, allowCompression);
    r.UTExcessTopEDShort = Excess(r.UTStressTopEDShort, r.AllowTension);
    r.UTExcessTopEDLong = Excess(r.UTStressTopEDLong, r.AllowTension);

    const StiffnessLength longLength = StiffnessLengthFor(r.UTBetaEDLong, RectLength, "Length");
    r.UTStiffLengthEDLong = longLength.length;
    r.UTStiffBasisEDLong = longLength.basis;
    const StiffnessLength shortLength = StiffnessLengthFor(r.UTBetaEDShort, RectWidth, "Width");
    r.UTStiffLengthEDShort = shortLength.length;
    r.UTStiffBasisEDShort = shortLength.basis;
    r.UTAllowDeflEDShort = Real(r.UTStiffLengthEDShort) * 12 / record.DefCLSettle;
    r.UTAllowDeflEDLong = Real(r.UTStiffLengthEDLong) * 12 / record.DefCLSettle;

    r.UTDeflPsEDShort =
        PrestressDeflection(r.UTEccShort, r.UTForceShort0, r.UTBetaEDShort, Ec, r.UTInertiaShort);
    r.UTDeflPsEDLong =
        PrestressDeflection(r.UTEccLong, r.UTForceLong0, r.UTBetaEDLong, Ec, r.UTInertiaLong);
    r.UTNetDeflEDShort = Real(r.DeflEDShort) - r.UTDeflPsEDShort;
    r.UTNetDeflEDLong = Real(r.DeflEDLong) - r.UTDeflPsEDLong;
    r.UTExcessDeflEDShort = Excess(r.UTNetDeflEDShort, r.UTAllowDeflEDShort);
    r.UTExcessDeflEDLong = Excess(r.UTNetDeflEDLong, r.UTAllowDeflEDLong);

    const Real t = r.UTThickness;
    r.UTShearEDShort = Real(r.ShearForceEDShort) * 1000 / t / 12;
    r.UTShearEDLong = Real(r.ShearForceEDLong) * 1000 / t / 12;
    r.UTExcessShearEDShort = Excess(r.UTShearEDShort, r.UTAllowShearShort);
    r.UTExcessShearEDLong = Excess(r.UTShearEDLong, r.UTAllowShearLong);
}

} // namespace

void ComputeUniformCompressible(const EngineSettings& settings, const DesignRecord& record,
                                ResultsRecord& results) {
    centerDown(settings, record, results);
    if (record.CLSettleState == 1) {
        edgeDown(settings, record, results);
    }
}
