// The uniform thickness slab on expansive soil: stiffness, shear, fibre stresses and cracked
// capacity under the ribbed center lift and edge lift moments.

#include "engine/checked_math.h"
#include "engine/section_checks.h"
#include "engine/uniform_thickness.h"

namespace {

struct SlabCracking {
    double& moment;
    double& demand;
    double& force;
    double& block;
    double& capacity;
    std::int16_t& valid;
    double& excess;
};

// The capacity of the cracked slab under one moment: the tendons at the eccentricity carry the
// tension and the block lies at the far face. `leverFromFace` is the depth from the compression
// face to the tendons. A direction without tendons has no capacity to report.
void crackedSlab(Real ribbedMoment, Real sideFt, Real ribbedCrackMoment, std::int16_t tendons,
                 Real leverFromFace, const DesignRecord& record, const ResultsRecord& r,
                 SlabCracking out) {
    out.moment = ribbedMoment * sideFt;
    out.demand = ribbedCrackMoment * 0.9;
    if (tendons == 0) {
        out.valid = 0;
        out.capacity = 0;
        return;
    }
    out.valid = 1;
    out.force = tendons * Real(r.TendonEffStress) * record.TendArea;
    out.block = Real(out.force) / ((Real(record.Fpc) / 1000) * 0.85 * sideFt * 12);
    out.capacity = (leverFromFace - Real(out.block) / 2) * out.force / 12;
    out.excess = Excess(out.demand, out.capacity);
}

} // namespace

void ComputeUniformExpansive(const EngineSettings& settings, const DesignRecord& record,
                             ResultsRecord& r) {
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    const Real Ec = record.Ec;
    r.UTBetaShort = Power(Ec * r.UTInertiaShort / record.Es, 0.25) / 12;
    r.UTBetaLong = Power(Ec * r.UTInertiaLong / record.Es, 0.25) / 12;
    r.UTForceNetShort = ForceAtBeta(record.Subgradetype, r.UTForceShort0, r.UTBetaShort,
                                    r.UTFrictionShort, RectWidth, record.UDSM);
    r.UTForceNetLong = ForceAtBeta(record.Subgradetype, r.UTForceLong0, r.UTBetaLong,
                                   r.UTFrictionLong, RectLength, record.UDLM);
    ClampAtZero(r.UTForceNetShort);
    ClampAtZero(r.UTForceNetLong);

    const StiffnessLength shortLength = StiffnessLengthFor(r.UTBetaShort, RectWidth, "Width");
    r.UTStiffLengthShort = shortLength.length;
    r.UTStiffBasisShort = shortLength.basis;
    const StiffnessLength longLength = StiffnessLengthFor(r.UTBetaLong, RectLength, "Length");
    r.UTStiffLengthLong = longLength.length;
    r.UTStiffBasisLong = longLength.basis;
    r.UTReqInertiaCLShort =
        Real(r.MomentCLShort) * 18000 * RectLength * record.DefCenter * r.UTStiffLengthShort / Ec;
    r.UTReqInertiaCLLong =
        Real(r.MomentCLLong) * 18000 * RectWidth * record.DefCenter * r.UTStiffLengthLong / Ec;
    r.UTReqInertiaELShort =
        Real(r.MomentELShort) * 18000 * RectLength * record.DefEdge * r.UTStiffLengthShort / Ec;
    r.UTReqInertiaELLong =
        Real(r.MomentELLong) * 18000 * RectWidth * record.DefEdge * r.UTStiffLengthLong / Ec;
    r.UTExcessStiffCLShort = Excess(r.UTReqInertiaCLShort, r.UTInertiaShort);
    r.UTExcessStiffCLLong = Excess(r.UTReqInertiaCLLong, r.UTInertiaLong);
    r.UTExcessStiffELShort = Excess(r.UTReqInertiaELShort, r.UTInertiaShort);
    r.UTExcessStiffELLong = Excess(r.UTReqInertiaELLong, r.UTInertiaLong);

    // The whole slab depth carries the shear, per inch of a foot's width.
    const Real t = r.UTThickness;
    r.UTShearCLShort = Real(r.ShearForceCLShort) * 1000 / t / 12;
    r.UTShearCLLong = Real(r.ShearForceCLLong) * 1000 / t / 12;
    r.UTShearELShort = Real(r.ShearForceELShort) * 1000 / t / 12;
    r.UTShearELLong = Real(r.ShearForceELLong) * 1000 / t / 12;
    r.UTExcessShearCLShort = Excess(r.UTShearCLShort, r.UTAllowShearShort);
    r.UTExcessShearCLLong = Excess(r.UTShearCLLong, r.UTAllowShearLong);
    r.UTExcessShearELShort = Excess(r.UTShearELShort, r.UTAllowShearShort);
    r.UTExcessShearELLong = Excess(r.UTShearELLong, r.UTAllowShearLong);

    const bool useBeta = settings.UseBeta == 1;
    const PrestressTerms shortTerms{useBeta, r.UTForceNetShort, r.UTAreaShort, r.UTEccShort,
                                    r.UTPsCenterShort};
    const PrestressTerms longTerms{useBeta, r.UTForceNetLong, r.UTAreaLong, r.UTEccLong,
                                   r.UTPsCenterLong};
    const Real SS = r.UTSecModShort;
    const Real SL = r.UTSecModLong;
    const Real MCS = Real(r.MomentCLShort) * RectLength * 12;
    const Real MCL = Real(r.MomentCLLong) * RectWidth * 12;
    const Real MES = Real(r.MomentELShort) * RectLength * 12;
    const Real MEL = Real(r.MomentELLong) * RectWidth * 12;
    r.UTStressTopCLShort = shortTerms.axial() - MCS / SS + shortTerms.eccentric(SS);
    r.UTStressTopCLLong = longTerms.axial() - MCL / SL + longTerms.eccentric(SL);
    r.UTStressBotCLShort = MCS / SS + shortTerms.axial() - shortTerms.eccentric(SS);
    r.UTStressBotCLLong = MCL / SL + longTerms.axial() - longTerms.eccentric(SL);
    r.UTStressBotELShort = shortTerms.axial() - MES / SS - shortTerms.eccentric(SS);
    r.UTStressBotELLong = longTerms.axial() - MEL / SL - longTerms.eccentric(SL);
    r.UTStressTopELShort = MES / SS + shortTerms.axial() + shortTerms.eccentric(SS);
    r.UTStressTopELLong = MEL / SL + longTerms.axial() + longTerms.eccentric(SL);

    const Real allowTension = r.AllowTension;
    const Real allowCompression = Real(r.AllowCompression) / 1000;
    r.UTExcessTopCLShort = Excess(r.UTStressTopCLShort, allowTension);
    r.UTExcessBotCLShort = Excess(r.UTStressBotCLShort, allowCompression);
    r.UTExcessTopCLLong = Excess(r.UTStressTopCLLong, allowTension);
    r.UTExcessBotCLLong = Excess(r.UTStressBotCLLong, allowCompression);
    r.UTExcessTopELShort = Excess(r.UTStressTopELShort, allowCompression);
    r.UTExcessBotELShort = Excess(r.UTStressBotELShort, allowTension);
    r.UTExcessTopELLong = Excess(r.UTStressTopELLong, allowCompression);
    r.UTExcessBotELLong = Excess(r.UTStressBotELLong, allowTension);

    // Center lift: tension at the top, tendons at t/2 - e below it. Edge lift: tension at the
    // bottom, tendons at t/2 + e above it.
    crackedSlab(r.MomentCLLong, RectWidth, r.CrackMomentCLLong, r.UTTotalTenLong,
                t - (t / 2 - r.UTEccLong), record, r,
                {r.UTCrackMomentCLLong, r.UTCrackDemandCLLong, r.UTCrackForceCLLong,
                 r.UTCrackBlockCLLong, r.UTCrackCapacityCLLong, r.UTCrackValidCLLong,
                 r.UTExcessCrackCLLong});
    crackedSlab(r.MomentCLShort, RectLength, r.CrackMomentCLShort, r.UTTotalTenShort,
                t - (t / 2 - r.UTEccShort), record, r,
                {r.UTCrackMomentCLShort, r.UTCrackDemandCLShort, r.UTCrackForceCLShort,
                 r.UTCrackBlockCLShort, r.UTCrackCapacityCLShort, r.UTCrackValidCLShort,
                 r.UTExcessCrackCLShort});
    crackedSlab(r.MomentELLong, RectWidth, r.CrackMomentELLong, r.UTTotalTenLong,
                t - (t / 2 + r.UTEccLong), record, r,
                {r.UTCrackMomentELLong, r.UTCrackDemandELLong, r.UTCrackForceELLong,
                 r.UTCrackBlockELLong, r.UTCrackCapacityELLong, r.UTCrackValidELLong,
                 r.UTExcessCrackELLong});
    crackedSlab(r.MomentELShort, RectLength, r.CrackMomentELShort, r.UTTotalTenShort,
                t - (t / 2 + r.UTEccShort), record, r,
                {r.UTCrackMomentELShort, r.UTCrackDemandELShort, r.UTCrackForceELShort,
                 r.UTCrackBlockELShort, r.UTCrackCapacityELShort, r.UTCrackValidELShort,
                 r.UTExcessCrackELShort});
}
