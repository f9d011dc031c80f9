#include "engine/expansive_moments.h"

#include "engine/checked_math.h"
#include "engine/section_checks.h"

CenterLiftCoefficients CenterLiftCoefficientsFor(double emCenter, double ymCenter,
                                                 double totalLoad) {
    if (emCenter <= 5) {
        return {1, 0};
    }
    // No lower limit on A: it turns negative below a movement of 1 in.
    Real A = (Real(ymCenter) - 1) / 3;
    if (A > 1) {
        A = 1;
    }
    Real B = ((8 - (Real(totalLoad) - 613) / 255) * (4 - Real(ymCenter))) / 3;
    if (B <= 0) {
        B = 0;
    }
    return {A, B};
}

void ComputeExpansiveMoments(const EngineSettings& settings, DesignRecord& record,
                             ResultsRecord& results) {
    // Center lift.
    record.EmCenter = Abs(record.EmCenter);
    const Real EmCenter = record.EmCenter;
    const Real YmCenter = record.YmCenter;
    const Real TotalLoad = record.TotalLoad;
    const Real RectLength = record.RectLength;
    const Real RectWidth = record.RectWidth;
    const CenterLiftCoefficients coefficients =
        CenterLiftCoefficientsFor(EmCenter, YmCenter, TotalLoad);

    results.MomentCLBase = Power(YmCenter, 0.193) * Power(TotalLoad, 0.534) *
                           Power(results.EquivDepthLong, 0.688) * Power(RectLength, 0.013) *
                           Power(results.SpacingLong, 0.306) * (Real(1) / 727);
    results.MomentCLLong =
        (Power(EmCenter, 1.238) * coefficients.A + coefficients.B) * results.MomentCLBase;
    results.MomentCLShort = ((EmCenter + 58) * results.MomentCLLong) / 60;

    // The moment at an edge moisture distance of 5 ft governs when it is the larger.
    if (EmCenter > 5) {
        results.MomentCLLongEm5 = Power(5, 1.238) * results.MomentCLBase;
        results.MomentCLShortEm5 = (Real(results.MomentCLLongEm5) * 63) / 60;
        if (results.MomentCLLongEm5 > results.MomentCLLong) {
            results.Em5ControlLong = 1;
            results.MomentCLLong = results.MomentCLLongEm5;
        } else {
            results.Em5ControlLong = 0;
        }
        if (results.MomentCLShortEm5 > results.MomentCLShort) {
            results.Em5ControlShort = 1;
            results.MomentCLShort = results.MomentCLShortEm5;
        } else {
            results.Em5ControlShort = 0;
        }
    } else {
        results.Em5ControlLong = 0;
        results.Em5ControlShort = 0;
    }

    // A nearly square rectangle takes the long moment in both directions; the control flag of
    // the short direction stays as it was set.
    if (RectLength / RectWidth < 1.1) {
        results.MomentCLShort = results.MomentCLLong;
    }

    // Edge lift.
    const Real YmEdge = record.YmEdge;
    const Real EmEdge = record.EmEdge;
    const Real PerimeterLoad = results.PerimeterLoad;
    results.MomentELLong = (Power(YmEdge, 0.66) * Power(results.SpacingLong, 0.1) *
                            Power(EmEdge * results.EquivDepthLong, 0.78)) /
                           (Power(PerimeterLoad, 0.04) * Power(RectLength, 0.0065) * 7.2);
    results.MomentELShort =
        (Power(results.EquivDepthShort, 0.35) * results.MomentELLong * (EmEdge + 19)) / 57.75;
    if (RectLength / RectWidth < 1.1) {
        results.MomentELShort = results.MomentELLong;
    }

    // Fibre stresses, compression positive. A moment per foot acts over the width of the
    // section in feet, times 12 for kip-inches.
    const bool useBeta = settings.UseBeta == 1;
    const PrestressTerms shortTerms{useBeta, results.ForceNetShort, results.AreaShort,
                                    results.EccShort, results.PsCenterShort};
    const PrestressTerms longTerms{useBeta, results.ForceNetLong, results.AreaLong, results.EccLong,
                                   results.PsCenterLong};
    const auto shortMoment = [&](double moment) { return Real(moment) * RectLength * 12; };
    const auto longMoment = [&](double moment) { return Real(moment) * RectWidth * 12; };
    const Real SecModTopShort = results.SecModTopShort;
    const Real SecModTopLong = results.SecModTopLong;
    const Real SecModBottomShort = results.SecModBottomShort;
    const Real SecModBottomLong = results.SecModBottomLong;

    results.StressTopCLShort = shortTerms.axial() -
                               shortMoment(results.MomentCLShort) / SecModTopShort +
                               shortTerms.eccentric(SecModTopShort);
    results.StressTopCLLong = longTerms.axial() - longMoment(results.MomentCLLong) / SecModTopLong +
                              longTerms.eccentric(SecModTopLong);
    results.StressBotCLShort = shortMoment(results.MomentCLShort) / SecModBottomShort +
                               shortTerms.axial() - shortTerms.eccentric(SecModBottomShort);
    results.StressBotCLLong = longMoment(results.MomentCLLong) / SecModBottomLong +
                              longTerms.axial() - longTerms.eccentric(SecModBottomLong);
    results.StressBotELShort = shortTerms.axial() -
                               shortMoment(results.MomentELShort) / SecModBottomShort -
                               shortTerms.eccentric(SecModBottomShort);
    results.StressBotELLong = longTerms.axial() -
                              longMoment(results.MomentELLong) / SecModBottomLong -
                              longTerms.eccentric(SecModBottomLong);
    results.StressTopELShort = shortMoment(results.MomentELShort) / SecModTopShort +
                               shortTerms.axial() + shortTerms.eccentric(SecModTopShort);
    results.StressTopELLong = longMoment(results.MomentELLong) / SecModTopLong + longTerms.axial() +
                              longTerms.eccentric(SecModTopLong);

    // Center lift puts the top in tension, edge lift the bottom.
    const Real allowTension = results.AllowTension;
    const Real allowCompression = Real(results.AllowCompression) / 1000;
    results.ExcessTopCLShort = Excess(results.StressTopCLShort, allowTension);
    results.ExcessBotCLShort = Excess(results.StressBotCLShort, allowCompression);
    results.ExcessTopCLLong = Excess(results.StressTopCLLong, allowTension);
    results.ExcessBotCLLong = Excess(results.StressBotCLLong, allowCompression);
    results.ExcessTopELShort = Excess(results.StressTopELShort, allowCompression);
    results.ExcessBotELShort = Excess(results.StressBotELShort, allowTension);
    results.ExcessTopELLong = Excess(results.StressTopELLong, allowCompression);
    results.ExcessBotELLong = Excess(results.StressBotELLong, allowTension);
}
