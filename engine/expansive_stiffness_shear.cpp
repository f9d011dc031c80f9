#include "engine/expansive_stiffness_shear.h"

#include "engine/checked_math.h"
#include "engine/section_checks.h"

namespace {

void computeDifferentialDeflection(const DesignRecord& record, ResultsRecord& r) {
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    r.StiffLengthShort = StiffnessLengthFor(r.BetaShort, RectWidth, "Width").length;
    r.StiffLengthLong = StiffnessLengthFor(r.BetaLong, RectLength, "Length").length;
    r.AllowDeflCLShort = (Real(r.StiffLengthShort) * 12) / record.DefCenter;
    r.AllowDeflCLLong = (Real(r.StiffLengthLong) * 12) / record.DefCenter;
    r.AllowDeflELShort = (Real(r.StiffLengthShort) * 12) / record.DefEdge;
    r.AllowDeflELLong = (Real(r.StiffLengthLong) * 12) / record.DefEdge;

    const Real EmCenter = record.EmCenter;
    const Real TotalLoad = record.TotalLoad;
    const Real YmCenter = record.YmCenter;
    r.DeflCLShort = (Power(EmCenter, 1.296) * Power(TotalLoad, 0.523) *
                     Power(r.SpacingShort, 1.059) * Power(YmCenter * RectWidth, 0.205)) /
                    (Power(r.EquivDepthShort, 1.214) * 380);
    r.DeflCLLong = (Power(EmCenter, 1.296) * Power(TotalLoad, 0.523) * Power(r.SpacingLong, 1.059) *
                    Power(YmCenter * RectLength, 0.205)) /
                   (Power(r.EquivDepthLong, 1.214) * 380);

    const Real YmEdge = record.YmEdge;
    const Real EmEdge = record.EmEdge;
    r.DeflELShort = (Power(YmEdge, 0.76) * Power(EmEdge, 0.74) * Power(r.SpacingShort, 0.88) *
                     Power(RectWidth, 0.35)) /
                    (Power(r.PerimeterLoad, 0.01) * Power(r.EquivDepthShort, 0.85) * 15.9);
    r.DeflELLong = (Power(YmEdge, 0.76) * Power(EmEdge, 0.74) * Power(r.SpacingLong, 0.88) *
                    Power(RectLength, 0.35)) /
                   (Power(r.PerimeterLoad, 0.01) * Power(r.EquivDepthLong, 0.85) * 15.9);

    // The camber of the eccentric force before friction. The same quantity in both
    // directions, written in two orders of operation.
    const Real Ec = record.Ec;
    r.DeflPsLong = (Real(r.EccLong) * r.ForceLong0 * r.BetaLong * r.BetaLong * 144 * 1000) /
                   ((Ec + Ec) * r.InertiaLong);
    r.DeflPsShort = (Real(r.EccShort) * r.ForceShort0 * r.BetaShort * r.BetaShort * 144 * 1000) /
                    2 / Ec / r.InertiaShort;

    r.NetDeflCLShort = Real(r.DeflCLShort) - r.DeflPsShort;
    r.NetDeflCLLong = Real(r.DeflCLLong) - r.DeflPsLong;
    r.NetDeflELShort = Real(r.DeflPsShort) + r.DeflELShort;
    r.NetDeflELLong = Real(r.DeflPsLong) + r.DeflELLong;
}

void computeRequiredStiffness(const DesignRecord& record, ResultsRecord& r) {
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    const StiffnessLength shortLength = StiffnessLengthFor(r.BetaShort, RectWidth, "Width");
    r.StiffLengthShort = shortLength.length;
    r.StiffBasisShort = shortLength.basis;
    const StiffnessLength longLength = StiffnessLengthFor(r.BetaLong, RectLength, "Length");
    r.StiffLengthLong = longLength.length;
    r.StiffBasisLong = longLength.basis;

    const Real Ec = record.Ec;
    r.ReqInertiaCLShort =
        (Real(r.MomentCLShort) * 18000 * RectLength * record.DefCenter * r.StiffLengthShort) / Ec;
    r.ReqInertiaCLLong =
        (Real(r.MomentCLLong) * 18000 * RectWidth * record.DefCenter * r.StiffLengthLong) / Ec;
    r.ReqInertiaELShort =
        (Real(r.MomentELShort) * 18000 * RectLength * record.DefEdge * r.StiffLengthShort) / Ec;
    r.ReqInertiaELLong =
        (Real(r.MomentELLong) * 18000 * RectWidth * record.DefEdge * r.StiffLengthLong) / Ec;

    r.ExcessStiffCLShort = Excess(r.ReqInertiaCLShort, r.InertiaShort);
    r.ExcessStiffCLLong = Excess(r.ReqInertiaCLLong, r.InertiaLong);
    r.ExcessStiffELShort = Excess(r.ReqInertiaELShort, r.InertiaShort);
    r.ExcessStiffELLong = Excess(r.ReqInertiaELLong, r.InertiaLong);
}

void computeShear(const DesignRecord& record, ResultsRecord& r) {
    const bool userFriction = record.Subgradetype == 2;
    r.AllowShearShort = AllowableShear(r.ForceShort0, userFriction ? record.UDSS : r.FrictionShort,
                                       r.AreaShort, record.Fpc);
    r.AllowShearLong = AllowableShear(r.ForceLong0, userFriction ? record.UDLS : r.FrictionLong,
                                      r.AreaLong, record.Fpc);

    // Center lift has an equation for each direction; edge lift one equation for both.
    const Real EmCenter = record.EmCenter;
    const Real YmCenter = record.YmCenter;
    const Real TotalLoad = record.TotalLoad;
    const Real RectWidth = record.RectWidth;
    const Real RectLength = record.RectLength;
    r.ShearForceCLShort =
        (Power(EmCenter, 0.97) * Power(YmCenter, 0.04) * Power(TotalLoad, 0.54) *
         Power(r.EquivDepthShort, 0.2) * Power(r.SpacingShort, 0.45) * Power(RectWidth, 0.19)) /
        1350;
    r.ShearForceCLLong =
        (Power(EmCenter, 0.93) * Power(YmCenter, 0.16) * Power(TotalLoad, 0.44) *
         Power(r.EquivDepthLong, 0.43) * Power(r.SpacingLong, 0.71) * Power(RectLength, 0.09)) /
        1940;
    const Real YmEdge = record.YmEdge;
    const Real EmEdge = record.EmEdge;
    r.ShearForceELShort =
        (Power(YmEdge, 0.67) * Power(EmEdge, 0.16) * Power(r.PerimeterLoad, 0.03) *
         Power(RectWidth, 0.07) * Power(r.EquivDepthShort, 0.4)) /
        (Power(r.SpacingShort, 0.015) * 3);
    r.ShearForceELLong = (Power(YmEdge, 0.67) * Power(EmEdge, 0.16) * Power(r.PerimeterLoad, 0.03) *
                          Power(RectLength, 0.07) * Power(r.EquivDepthLong, 0.4)) /
                         (Power(r.SpacingLong, 0.015) * 3);

    r.ShearCLShort = BeamShearStress(r.ShearForceCLShort, RectLength, r.BeamsShort,
                                     r.AvgBeamWidthShort, r.EquivDepthShort);
    r.ShearCLLong = BeamShearStress(r.ShearForceCLLong, RectWidth, r.BeamsLong, r.AvgBeamWidthLong,
                                    r.EquivDepthLong);
    r.ShearELShort = BeamShearStress(r.ShearForceELShort, RectLength, r.BeamsShort,
                                     r.AvgBeamWidthShort, r.EquivDepthShort);
    r.ShearELLong = BeamShearStress(r.ShearForceELLong, RectWidth, r.BeamsLong, r.AvgBeamWidthLong,
                                    r.EquivDepthLong);

    r.ExcessShearCLShort = Excess(r.ShearCLShort, r.AllowShearShort);
    r.ExcessShearCLLong = Excess(r.ShearCLLong, r.AllowShearLong);
    r.ExcessShearELShort = Excess(r.ShearELShort, r.AllowShearShort);
    r.ExcessShearELLong = Excess(r.ShearELLong, r.AllowShearLong);
}

} // namespace

void ComputeExpansiveStiffnessAndShear(const EngineSettings& settings, const DesignRecord& record,
                                       ResultsRecord& results) {
    if (settings.ShowDD == 1) {
        computeDifferentialDeflection(record, results);
    }
    computeRequiredStiffness(record, results);
    computeShear(record, results);
}
