#include "engine/compressible_soil.h"

#include "engine/checked_math.h"
#include "engine/section_checks.h"

namespace {

// The constant the equations write for e, the base of the natural logarithm.
constexpr double NaturalBase = 2.71828182846;

// The prestress terms of both directions for one family's forces at Beta.
struct DirectionTerms {
    PrestressTerms shortTerms;
    PrestressTerms longTerms;
};

DirectionTerms prestressTerms(const EngineSettings& settings, const ResultsRecord& r,
                              double forceNetShort, double forceNetLong) {
    const bool useBeta = settings.UseBeta == 1;
    return {{useBeta, forceNetShort, r.AreaShort, r.EccShort, r.PsCenterShort},
            {useBeta, forceNetLong, r.AreaLong, r.EccLong, r.PsCenterLong}};
}

// The tendon force left at Beta in each direction, never below 0.
void forcesAtBeta(const DesignRecord& record, const ResultsRecord& r, Real betaShort, Real betaLong,
                  double& forceNetShort, double& forceNetLong) {
    forceNetShort = ForceAtBeta(record.Subgradetype, r.ForceShort0, betaShort, r.FrictionShort,
                                record.RectWidth, record.UDSM);
    forceNetLong = ForceAtBeta(record.Subgradetype, r.ForceLong0, betaLong, r.FrictionLong,
                               record.RectLength, record.UDLM);
    ClampAtZero(forceNetShort);
    ClampAtZero(forceNetLong);
}

void centerDown(const EngineSettings& settings, const DesignRecord& record, ResultsRecord& r) {
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    const Real TotalLoad = record.TotalLoad;
    const Real Settle = record.Settle;
    const Real Ec = record.Ec;
    const Real Es = record.Es;

    r.SettleRefShort = Power(RectWidth, 1.28) * Power(r.SpacingShort, 0.8) /
                       (133 * Power(r.EquivDepthShort, 0.28) * Power(TotalLoad, 0.62));
    r.SettleRefLong = Power(RectLength, 1.28) * Power(r.SpacingLong, 0.8) /
                      (133 * Power(r.EquivDepthLong, 0.28) * Power(TotalLoad, 0.62));
    r.BetaCDShort = Power(Ec * r.InertiaShort / ((Settle / r.SettleRefShort) * Es), 0.25) / 12;
    r.BetaCDLong = Power(Ec * r.InertiaLong / ((Settle / r.SettleRefLong) * Es), 0.25) / 12;
    forcesAtBeta(record, r, r.BetaCDShort, r.BetaCDLong, r.ForceNetCDShort, r.ForceNetCDLong);

    // The long moment is the master: the short one is derived from it, so that only the long
    // reference settlement reaches the moments.
    r.MomentCDBase = Power(r.SpacingLong, 0.36) * Power(r.EquivDepthLong, 1.35) /
                     (80 * Power(RectLength, 0.12) * Power(TotalLoad, 0.1));
    r.MomentCDLong = Power(Settle / r.SettleRefLong, 0.5) * r.MomentCDBase;
    r.MomentCDShort = ((970 - Real(r.EquivDepthShort)) / 880) * r.MomentCDLong;

    // Center down puts the bottom fibre in tension.
    const DirectionTerms terms = prestressTerms(settings, r, r.ForceNetCDShort, r.ForceNetCDLong);
    const Real MS = Real(r.MomentCDShort) * RectLength * 12;
    const Real ML = Real(r.MomentCDLong) * RectWidth * 12;
    r.StressBotCDLong = terms.longTerms.axial() - ML / r.SecModBottomLong -
                        terms.longTerms.eccentric(r.SecModBottomLong);
    r.StressBotCDShort = terms.shortTerms.axial() - MS / r.SecModBottomShort -
                         terms.shortTerms.eccentric(r.SecModBottomShort);
    r.StressTopCDLong =
        ML / r.SecModTopLong + terms.longTerms.axial() + terms.longTerms.eccentric(r.SecModTopLong);
    r.StressTopCDShort = MS / r.SecModTopShort + terms.shortTerms.axial() +
                         terms.shortTerms.eccentric(r.SecModTopShort);
    const Real allowCompression = Real(r.AllowCompression) / 1000;
    r.ExcessTopCDShort = Excess(r.StressTopCDShort, allowCompression);
    r.ExcessTopCDLong = Excess(r.StressTopCDLong, allowCompression);
    r.ExcessBotCDShort = Excess(r.StressBotCDShort, r.AllowTension);
    r.ExcessBotCDLong = Excess(r.StressBotCDLong, r.AllowTension);

    const StiffnessLength longLength = StiffnessLengthFor(r.BetaCDLong, RectLength, "Length");
    r.StiffLengthCDLong = longLength.length;
    r.StiffBasisCDLong = longLength.basis;
    const StiffnessLength shortLength = StiffnessLengthFor(r.BetaCDShort, RectWidth, "Width");
    r.StiffLengthCDShort = shortLength.length;
    r.StiffBasisCDShort = shortLength.basis;
    r.AllowDeflCDShort = Real(r.StiffLengthCDShort) * 12 / record.DefSettle;
    r.AllowDeflCDLong = Real(r.StiffLengthCDLong) * 12 / record.DefSettle;

    // The center down deflection adds the camber of the prestress.
    r.DeflCDShort =
        Settle * Power(NaturalBase, 1.78 - 0.103 * Real(r.EquivDepthShort) - 1.65e-3 * TotalLoad +
                                        3.95e-7 * Power(TotalLoad, 2));
    r.DeflCDLong =
        Settle * Power(NaturalBase, 1.78 - 0.103 * Real(r.EquivDepthLong) - 1.65e-3 * TotalLoad +
                                        3.95e-7 * Power(TotalLoad, 2));
    r.DeflPsCDShort =
        PrestressDeflection(r.EccShort, r.ForceShort0, r.BetaCDShort, Ec, r.InertiaShort);
    r.DeflPsCDLong = PrestressDeflection(r.EccLong, r.ForceLong0, r.BetaCDLong, Ec, r.InertiaLong);
    r.NetDeflCDShort = Real(r.DeflPsCDShort) + r.DeflCDShort;
    r.NetDeflCDLong = Real(r.DeflPsCDLong) + r.DeflCDLong;
    r.ExcessDeflCDShort = Excess(r.NetDeflCDShort, r.AllowDeflCDShort);
    r.ExcessDeflCDLong = Excess(r.NetDeflCDLong, r.AllowDeflCDLong);

    const bool userFriction = record.Subgradetype == 2;
    r.AllowShearShort = AllowableShear(r.ForceShort0, userFriction ? record.UDSS : r.FrictionShort,
                                       r.AreaShort, record.Fpc);
    r.AllowShearLong = AllowableShear(r.ForceLong0, userFriction ? record.UDLS : r.FrictionLong,
                                      r.AreaLong, record.Fpc);
    r.ShearCDBase = Power(r.EquivDepthLong, 0.9) * Power(TotalLoad * r.SpacingLong, 0.3) /
                    (550 * Power(RectLength, 0.1));
    r.ShearForceCDLong = Power(Settle / r.SettleRefLong, 0.3) * r.ShearCDBase;
    r.ShearForceCDShort = ((116 - Real(r.EquivDepthShort)) / 94) * r.ShearForceCDLong;
    r.ShearCDShort = BeamShearStress(r.ShearForceCDShort, RectLength, r.BeamsShort,
                                     r.AvgBeamWidthShort, r.EquivDepthShort);
    r.ShearCDLong = BeamShearStress(r.ShearForceCDLong, RectWidth, r.BeamsLong, r.AvgBeamWidthLong,
                                    r.EquivDepthLong);
    r.ExcessShearCDShort = Excess(r.ShearCDShort, r.AllowShearShort);
    r.ExcessShearCDLong = Excess(r.ShearCDLong, r.AllowShearLong);
}

void edgeDown(const EngineSettings& settings, const DesignRecord& record, ResultsRecord& r) {
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    const Real TotalLoad = record.TotalLoad;
    const Real Settle = record.Settle;
    const Real Ec = record.Ec;

    r.BetaEDShort = Power(Ec * r.InertiaShort / record.Es, 0.25) / 12;
    r.BetaEDLong = Power(Ec * r.InertiaLong / record.Es, 0.25) / 12;
    forcesAtBeta(record, r, r.BetaEDShort, r.BetaEDLong, r.ForceNetEDShort, r.ForceNetEDLong);

    // The center lift moment with em 5 ft and ym the settlement; it takes the place of the
    // expansive base in the results.
    r.MomentCLBase = (Real(1) / 727) * Power(r.SpacingLong, 0.306) * Power(RectLength, 0.013) *
                     Power(r.EquivDepthLong, 0.688) * Power(TotalLoad, 0.534) *
                     Power(Settle, 0.193);
    r.MomentEDLong = Power(5, 1.238) * r.MomentCLBase;
    r.MomentEDShort = Real(r.MomentEDLong) * 63 / 60;
    if (RectLength / RectWidth < 1.1) {
        r.MomentEDShort = r.MomentEDLong;
    }

    // Edge down puts the top fibre in tension.
    const DirectionTerms terms = prestressTerms(settings, r, r.ForceNetEDShort, r.ForceNetEDLong);
    const Real MS = Real(r.MomentEDShort) * RectLength * 12;
    const Real ML = Real(r.MomentEDLong) * RectWidth * 12;
    r.StressTopEDLong =
        terms.longTerms.axial() - ML / r.SecModTopLong + terms.longTerms.eccentric(r.SecModTopLong);
    r.StressTopEDShort = terms.shortTerms.axial() - MS / r.SecModTopShort +
                         terms.shortTerms.eccentric(r.SecModTopShort);
    r.StressBotEDLong = ML / r.SecModBottomLong + terms.longTerms.axial() -
                        terms.longTerms.eccentric(r.SecModBottomLong);
    r.StressBotEDShort = MS / r.SecModBottomShort + terms.shortTerms.axial() -
                         terms.shortTerms.eccentric(r.SecModBottomShort);
    const Real allowCompression = Real(r.AllowCompression) / 1000;
    r.ExcessBotEDShort = Excess(r.StressBotEDShort, allowCompression);
    r.ExcessBotEDLong = Excess(r.StressBotEDLong, allowCompression);
    r.ExcessTopEDShort = Excess(r.StressTopEDShort, r.AllowTension);
    r.ExcessTopEDLong = Excess(r.StressTopEDLong, r.AllowTension);

    const StiffnessLength longLength = StiffnessLengthFor(r.BetaEDLong, RectLength, "Length");
    r.StiffLengthEDLong = longLength.length;
    r.StiffBasisEDLong = longLength.basis;
    const StiffnessLength shortLength = StiffnessLengthFor(r.BetaEDShort, RectWidth, "Width");
    r.StiffLengthEDShort = shortLength.length;
    r.StiffBasisEDShort = shortLength.basis;
    r.AllowDeflEDShort = Real(r.StiffLengthEDShort) * 12 / record.DefCLSettle;
    r.AllowDeflEDLong = Real(r.StiffLengthEDLong) * 12 / record.DefCLSettle;

    // The edge down deflection takes the camber off.
    r.DeflEDShort = Power(5, 1.296) * Power(TotalLoad, 0.523) * Power(r.SpacingShort, 1.059) *
                    Power(Settle * RectWidth, 0.205) / (380 * Power(r.EquivDepthShort, 1.214));
    r.DeflEDLong = Power(5, 1.296) * Power(TotalLoad, 0.523) * Power(r.SpacingLong, 1.059) *
                   Power(Settle * RectLength, 0.205) / (380 * Power(r.EquivDepthLong, 1.214));
    r.DeflPsEDShort =
        PrestressDeflection(r.EccShort, r.ForceShort0, r.BetaEDShort, Ec, r.InertiaShort);
    r.DeflPsEDLong = PrestressDeflection(r.EccLong, r.ForceLong0, r.BetaEDLong, Ec, r.InertiaLong);
    r.NetDeflEDShort = Real(r.DeflEDShort) - r.DeflPsEDShort;
    r.NetDeflEDLong = Real(r.DeflEDLong) - r.DeflPsEDLong;
    r.ExcessDeflEDShort = Excess(r.NetDeflEDShort, r.AllowDeflEDShort);
    r.ExcessDeflEDLong = Excess(r.NetDeflEDLong, r.AllowDeflEDLong);

    r.ShearForceEDShort = Power(5, 0.97) * Power(Settle, 0.04) * Power(TotalLoad, 0.54) *
                          Power(r.EquivDepthShort, 0.2) * Power(r.SpacingShort, 0.45) *
                          Power(RectWidth, 0.19) / 1350;
    r.ShearForceEDLong = Power(5, 0.93) * Power(Settle, 0.16) * Power(TotalLoad, 0.44) *
                         Power(r.EquivDepthLong, 0.43) * Power(r.SpacingLong, 0.71) *
                         Power(RectLength, 0.09) / 1940;
    r.ShearEDShort = BeamShearStress(r.ShearForceEDShort, RectLength, r.BeamsShort,
                                     r.AvgBeamWidthShort, r.EquivDepthShort);
    r.ShearEDLong = BeamShearStress(r.ShearForceEDLong, RectWidth, r.BeamsLong, r.AvgBeamWidthLong,
                                    r.EquivDepthLong);
    r.ExcessShearEDShort = Excess(r.ShearEDShort, r.AllowShearShort);
    r.ExcessShearEDLong = Excess(r.ShearEDLong, r.AllowShearLong);
}

} // namespace

void ComputeCompressibleSoil(const EngineSettings& settings, const DesignRecord& record,
                             ResultsRecord& results) {
    centerDown(settings, record, results);
    if (record.CLSettleState == 1) {
        edgeDown(settings, record, results);
    }
}
