#include "reports/results_pages.h"

#include "common/number_text.h"
#include "reports/fitted_sheet.h"
#include "reports/result_tables.h"

namespace {

const char* const BetaNote = "    (Bending stresses calculated using prestress at Beta)";
const char* const CompressibleBetaNote = "  (Stresses calculated using prestress at Beta)";

std::string F(double value, const char* pattern) {
    return Formatted(value, pattern);
}

void BetweenBlocks(PageWriter& w) {
    w.Step();
}

// Rule 1: the bearing area's label.
std::string BearingAreaLabel(const PageContext& page, bool compressiblePage) {
    if (page.settings.UseBeamOnly != 1) {
        return "Bearing Area";
    }
    return compressiblePage ? "Bearing Area (based on beam bottom area only)"
                            : "Bearing Area (Based on beam bottom area only)";
}

// Rule 2: how the subgrade friction was found.
std::string FrictionLine(std::int16_t subgradeType) {
    switch (subgradeType) {
    case 0:
        return "Subgrade Friction calculated by method prescribed in PTI Manual";
    case 1:
        return "Subgrade Friction calculated by \"Full Length Drag\" Method";
    case 2:
        return "Subgrade Friction calculated by user.  Effective prestress at mid-slab not "
               "calculated.";
    default:
        return {};
    }
}

// The bearing area and the pressure on the soil share one line: the area in the middle, the
// pressure's label after it and its value in the value column. The label that names the beam
// bottoms leaves no room for that at 10 point: the area then ends its line in the value column
// and the pressure follows as a line of its own.
constexpr double BearingAreaEdge = 5040;
constexpr double PressureLabelX = 5760;
constexpr double LabelGap = 200;

void AreaValue(PageWriter& w, double rightEdge, const std::string& area) {
    w.Value(rightEdge, area, "  FT");
    w.Raised(rightEdge + w.surface().TextWidth("  FT"), "2");
}

void SoilBearingBlock(PageWriter& w, bool compressiblePage) {
    const ResultsRecord& r = w.page().results;
    DrawingSurface& s = w.surface();
    BlockHeading(w, "Soil Bearing Analysis");
    SingleRow(w, "Total Applied Load", F(r.TotalAppliedLoad, "###,##0"), "  LB");
    const std::string label = BearingAreaLabel(w.page(), compressiblePage);
    const std::string area = F(r.BearingArea, "###,##0");
    const std::string pressure = F(r.SoilPressure, "###,##0");
    w.Label(label);
    const double labelEnd = w.page().column2 + s.TextWidth(label);
    if (labelEnd + LabelGap + s.TextWidth(area) <= BearingAreaEdge) {
        AreaValue(w, BearingAreaEdge, area);
        w.Text(PressureLabelX, "Applied Pressure on Soil");
        w.Value(SingleValueEdge, pressure, "  PSF");
        w.Step();
    } else {
        AreaValue(w, SingleValueEdge, area);
        w.Step();
        SingleRow(w, "Applied Pressure on Soil", pressure, "  PSF");
    }
    SingleRow(w, "Soil Pressure Safety Factor", F(r.BearingSafety, "###,##0.00"), "");
    BetweenBlocks(w);
}

void RibbedPrestressHead(PageWriter& w) {
    const PageContext& page = w.page();
    const ResultsRecord& r = page.results;
    BlockHeading(w, "Prestress Summary");
    w.Label(FrictionLine(page.record.Subgradetype));
    w.Step();
    DirectionHeads(w);
    PairRow(w, "Number of Slab Tendons", F(r.SlabTenShort, "#,##0"), F(r.SlabTenLong, "#,##0"));
    PairRow(w, "Number of Beam Tendons", F(r.BeamTenShort, "#,##0"), F(r.BeamTenLong, "#,##0"));
    PairRow(w, "Spacing of Slab Tendons  (Feet)", F(r.SlabTenSpacingShort, "#,##0.00"),
            F(r.SlabTenSpacingLong, "#,##0.00"));
    PairRow(w, "Center of Gravity of Concrete (from top of slab) (Inch)",
            F(r.CgTopShort, "#,##0.00"), F(r.CgTopLong, "#,##0.00"));
    PairRow(w, "Center of Gravity of Tendons (from top of slab) (Inch)",
            F(r.TenCgShort, "#,##0.00"), F(r.TenCgLong, "#,##0.00"));
    PairRow(w, "Eccentricity of Prestressing  (Inch)", F(r.EccShort, "#,##0.00"),
            F(r.EccLong, "#,##0.00"));
    PairRow(w, "Minimum Effective Prestress Force (K)",
            F((r.AreaShort * r.PsCenterShort) / 1000, "#,##0.0"),
            F((r.AreaLong * r.PsCenterLong) / 1000, "#,##0.0"));
}

// Rule 4: the center lift moments' labels, both tested on the long direction's flag.
void CenterLiftMoments(PageWriter& w, double momentShort, double momentLong, const char* em5) {
    const ResultsRecord& r = w.page().results;
    const bool em5Rule = r.Em5ControlLong == 1;
    const std::string shortLabel = em5Rule ? std::string("Maximum Moment, Short Dir.") + em5
                                           : "Maximum Moment, Short Direction";
    const std::string longLabel =
        em5Rule ? std::string("Maximum Moment, Long Dir.") + em5 : "Maximum Moment, Long Direction";
    SingleRow(w, shortLabel, F(momentShort, "###,##0.00"), "  FT-K/FT");
    SingleRow(w, longLabel, F(momentLong, "###,##0.00"), "  FT-K/FT");
}

void Moments(PageWriter& w, double momentShort, double momentLong) {
    SingleRow(w, "Maximum Moment, Short Direction", F(momentShort, "###,##0.00"), "  FT-K/FT");
    SingleRow(w, "Maximum Moment, Long Direction", F(momentLong, "###,##0.00"), "  FT-K/FT");
}

struct Stiffness {
    const char* heading;
    double coefficient;
    double inertiaShort, inertiaLong, requiredShort, requiredLong;
    std::string basisShort, basisLong;
};

void StiffnessBlock(PageWriter& w, const Stiffness& s) {
    BetweenBlocks(w);
    BlockHeading(w, s.heading);
    w.Label("Based on a Stiffness Coefficient of " + GeneralNumberText(s.coefficient));
    w.Step();
    DirectionHeads(w);
    PowerPairRow(w, "Available Moment of Inertia  (Inch", "4", ")", F(s.inertiaShort, "#,##0"),
                 F(s.inertiaLong, "#,##0"));
    PowerPairRow(w, "Required Moment of Inertia  (Inch", "4", ")", F(s.requiredShort, "#,##0"),
                 F(s.requiredLong, "#,##0"));
    PairRow(w, "Required Moment of Inertia controlled by", s.basisShort, s.basisLong);
}

struct Shear {
    const char* heading;
    const char* shortLabel; // "Maximum Shear, Short Direction." on some pages
    double forceShort, forceLong, allowShort, allowLong, stressShort, stressLong;
};

void ShearBlock(PageWriter& w, const Shear& s) {
    BetweenBlocks(w);
    BlockHeading(w, s.heading);
    SingleRow(w, s.shortLabel, F(s.forceShort, "###,##0.00"), "  K/FT");
    SingleRow(w, "Maximum Shear, Long Direction", F(s.forceLong, "###,##0.00"), "  K/FT");
    DirectionHeads(w);
    PairRow(w, "Allowable Shear Stress  (PSI)", F(s.allowShort, "#,##0"), F(s.allowLong, "#,##0"));
    PairRow(w, "Actual Shear Stress  (PSI)", F(s.stressShort, "#,##0"), F(s.stressLong, "#,##0"));
}

void CrackedBlock(PageWriter& w, const char* heading, double capacityShort, double capacityLong,
                  double demandShort, double demandLong) {
    BlockHeading(w, heading);
    DirectionHeads(w);
    PairRow(w, "Cracked Section Capacity  (FT-K)", F(capacityShort, "#,##0.0"),
            F(capacityLong, "#,##0.0"));
    PairRow(w, "0.9 Moment  (FT-K)", F(demandShort, "#,##0.0"), F(demandLong, "#,##0.0"));
    BetweenBlocks(w);
}

struct Deflection {
    const char* heading;
    double coefficient;
    const char* basisLabel;
    std::string basisShort, basisLong;
    const char* allowLabel;
    const char* actualLabel;
    double allowShort, allowLong, actualShort, actualLong;
};

void DeflectionBlock(PageWriter& w, const Deflection& d) {
    BetweenBlocks(w);
    BlockHeading(w, d.heading);
    w.Label("Based on a Differential Deflection Coefficient of " +
            GeneralNumberText(d.coefficient));
    w.Step();
    DirectionHeads(w);
    PairRow(w, d.basisLabel, d.basisShort, d.basisLong);
    PairRow(w, d.allowLabel, F(d.allowShort, "##0.00"), F(d.allowLong, "##0.00"));
    PairRow(w, d.actualLabel, F(d.actualShort, "##0.00"), F(d.actualLong, "##0.00"));
}

// A pair of center down and edge down values in one column: "12.3 / 10.1".
std::string DownPair(double centerDown, double edgeDown, const char* pattern) {
    return F(centerDown, pattern) + " / " + F(edgeDown, pattern);
}

void DifferentialDeflectionPerSecondEdition(PageWriter& w) {
    const ResultsRecord& r = w.page().results;
    BlockHeading(w, "Differential Deflection Analysis Per 2nd Edition Manual");
    DirectionHeads(w);
    const struct {
        const char* mode;
        double allowShort, allowLong, actualShort, actualLong;
    } modes[] = {
        {"Center Lift", r.AllowDeflCLShort, r.AllowDeflCLLong, r.NetDeflCLShort, r.NetDeflCLLong},
        {"Edge Lift", r.AllowDeflELShort, r.AllowDeflELLong, r.NetDeflELShort, r.NetDeflELLong},
    };
    // The mode's heading at column 1 runs past column 2: its lines stand at column 3.
    const double column3 = w.page().column3;
    for (const auto& m : modes) {
        w.Heading(m.mode);
        PairRowAt(w, column3, "Allowable Deflection (Inch)", F(m.allowShort, "#,##0.00"),
                  F(m.allowLong, "#,##0.00"));
        PairRowAt(w, column3, "Actual Deflection (Inch)", F(m.actualShort, "#,##0.00"),
                  F(m.actualLong, "#,##0.00"));
    }
}

void UniformHead(PageWriter& w) {
    const PageContext& page = w.page();
    const ResultsRecord& r = page.results;
    BoldBlack(w.surface());
    w.Label("Uniform Thickness Slab");
    w.Value(SingleValueEdge,
            F(r.UTThickness, "#,##0.00") + " (" + F(r.EquivSlabThick, "#,##0.00") + ")", " Inches");
    UnboldBlack(w.surface());
    w.Step();
    w.Label("(rounded to nearest 0.25 inch)");
    w.Step(2);
    BlockHeading(w, "Prestress Summary");
    w.Label(FrictionLine(page.record.Subgradetype));
    w.Step();
    DirectionHeads(w);
    PairRow(w, "Number of Tendons", F(r.UTTotalTenShort, "#,##0"), F(r.UTTotalTenLong, "#,##0"));
    PairRow(w, "Spacing of Tendons  (FT)", F(r.UTTenSpacingShort, "#,##0.00"),
            F(r.UTTenSpacingLong, "#,##0.00"));
    PairRow(w, "Center of Gravity of Concrete (from top of slab) (Inch)",
            F(r.UTThickness / 2, "#,##0.00"), F(r.UTThickness / 2, "#,##0.00"));
    PairRow(w, "Center of Gravity of Tendons (from top of slab) (Inch)",
            F((r.UTThickness / 2) - r.UTEccShort, "#,##0.00"),
            F((r.UTThickness / 2) - r.UTEccLong, "#,##0.00"));
    PairRow(w, "Eccentricity of Prestressing  (Inch)", F(r.UTEccShort, "#,##0.00"),
            F(r.UTEccLong, "#,##0.00"));
    PairRow(w, "Minimum Effective Prestress Force (K)",
            F((r.UTAreaShort * r.UTPsCenterShort) / 1000, "#,##0.0"),
            F((r.UTAreaLong * r.UTPsCenterLong) / 1000, "#,##0.0"));
}

} // namespace

void PrintRSV(PageContext& page, const LineHeights& heights, bool lastPage) {
    const DesignRecord& d = page.record;
    const ResultsRecord& r = page.results;
    PageWriter w(page, heights);
    w.Begin("RIBBED FOUNDATION - SELECTED VARIABLES");
    DirectionHeads(w);
    PowerPairRow(w, "Cross Sectional Area (Inch", "2", ") :", F(r.AreaShort, "#,##0"),
                 F(r.AreaLong, "#,##0"));
    PowerPairRow(w, "Moment of Inertia  (Inch", "4", ") :", F(r.InertiaShort, "#,##0"),
                 F(r.InertiaLong, "#,##0"));
    PowerPairRow(w, "Section Modulus, Top  (Inch", "3", ") :", F(r.SecModTopShort, "#,##0"),
                 F(r.SecModTopLong, "#,##0"));
    PowerPairRow(w, "Section Modulus, Bottom  (Inch", "3", ") :", F(r.SecModBottomShort, "#,##0"),
                 F(r.SecModBottomLong, "#,##0"));
    PairRow(w, "Center of Gravity of Concrete - from top  (Inch) :", F(r.CgTopShort, "#,##0.00"),
            F(r.CgTopLong, "#,##0.00"));
    PairRow(w, "Center of Gravity of Prestressing Tendons - from top  (Inch) :",
            F(r.TenCgShort, "#,##0.00"), F(r.TenCgLong, "#,##0.00"));
    PairRow(w, "Eccentricity of Prestress  (Inch) :", F(r.EccShort, "#,##0.00"),
            F(r.EccLong, "#,##0.00"));
    if (d.SoilType == 0) {
        PairRow(w, "Beta Distance (Feet) :", F(r.BetaShort, "#,##0.00"), F(r.BetaLong, "#,##0.00"));
    } else {
        PairRow(w, "Beta Distance (Center Down) (Feet) :", F(r.BetaCDShort, "#,##0.00"),
                F(r.BetaCDLong, "#,##0.00"));
        if (d.CLSettleState == 1) {
            PairRow(w, "Beta Distance (Edge Down) (Feet) :", F(r.BetaEDShort, "#,##0.00"),
                    F(r.BetaEDLong, "#,##0.00"));
        }
    }
    const bool shortDiffers = d.QS1 != 0 && d.QS2 != 0 && d.DS1 != d.DS2;
    const bool longDiffers = d.QL1 != 0 && d.QL2 != 0 && d.DL1 != d.DL2;
    if (shortDiffers || longDiffers) {
        PairRow(w, "Equivalent Beam Depth (Inches) :",
                shortDiffers ? F(r.EquivDepthShort, "#,##0.00") : "",
                longDiffers ? F(r.EquivDepthLong, "#,##0.00") : "");
        w.Label("Note: All Calculations above and other reported values which");
        w.Step();
        w.Label("depend on depths use the equivalent depths as shown above.");
        w.Step();
    }
    w.Step();
    SingleRow(w, "Jacking Force :", F(r.TendonJackForce, "##0.00"), "  KIPS ");
    w.End(lastPage);
}

void PrintRROA(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    const bool useBeta = page.settings.UseBeta == 1;
    DrawFittedSheet(
        page, heights, "RIBBED FOUNDATION - RESULTS OF ANALYSIS", false, [&](PageWriter& w) {
            SoilBearingBlock(w, false);
            RibbedPrestressHead(w);
            PairRow(w, "Beta Distance Effective Prestress Force (K)", F(r.ForceNetShort, "#,##0.0"),
                    F(r.ForceNetLong, "#,##0.0"));
            PairRow(w, "Minimum Effective Prestress  (PSI)", F(r.PsCenterShort, "#,##0"),
                    F(r.PsCenterLong, "#,##0"));
            PairRow(w, "Beta Distance Effective Prestress  (PSI)",
                    F((r.ForceNetShort * 1000) / r.AreaShort, "#,##0"),
                    F((r.ForceNetLong * 1000) / r.AreaLong, "#,##0"));
            BetweenBlocks(w);

            MomentHeading(w, "Moment Analysis - Center Lift Mode", useBeta, BetaNote);
            CenterLiftMoments(w, r.MomentCLShort, r.MomentCLLong,
                              " (controlled by Em=5.0 per PTI 4.3.2)");
            StressRows(w, r,
                       {"Tension in Top Fiber (KSI)", "Compression in Bottom Fiber (KSI)",
                        r.StressTopCLShort, r.StressTopCLLong, r.StressBotCLShort,
                        r.StressBotCLLong, "###,##0.000"});
            StiffnessBlock(w, {"Stiffness Analysis - Center Lift Mode", page.record.DefCenter,
                               r.InertiaShort, r.InertiaLong, r.ReqInertiaCLShort,
                               r.ReqInertiaCLLong, r.StiffBasisShort, r.StiffBasisLong});
            ShearBlock(w, {"Shear Analysis - Center Lift Mode", "Maximum Shear, Short Direction.",
                           r.ShearForceCLShort, r.ShearForceCLLong, r.AllowShearShort,
                           r.AllowShearLong, r.ShearCLShort, r.ShearCLLong});
        });
    DrawFittedSheet(
        page, heights, "RIBBED FOUNDATION - RESULTS OF ANALYSIS continued", lastPage,
        [&](PageWriter& w) {
            CrackedBlock(w, "Cracked Section Analysis - Center Lift Mode", r.CrackCapacityCLShort,
                         r.CrackCapacityCLLong, r.CrackDemandCLShort, r.CrackDemandCLLong);
            MomentHeading(w, "Moment Analysis - Edge Lift Mode", useBeta, BetaNote);
            Moments(w, r.MomentELShort, r.MomentELLong);
            StressRows(w, r,
                       {"Tension in Bottom Fiber (KSI)", "Compression in Top Fiber (KSI)",
                        r.StressBotELShort, r.StressBotELLong, r.StressTopELShort,
                        r.StressTopELLong, "###,##0.00#"});
            StiffnessBlock(w, {"Stiffness Analysis - Edge Lift Mode", page.record.DefEdge,
                               r.InertiaShort, r.InertiaLong, r.ReqInertiaELShort,
                               r.ReqInertiaELLong, r.StiffBasisShort, r.StiffBasisLong});
            ShearBlock(w, {"Shear Analysis - Edge Lift Mode", "Maximum Shear, Short Direction",
                           r.ShearForceELShort, r.ShearForceELLong, r.AllowShearShort,
                           r.AllowShearLong, r.ShearELShort, r.ShearELLong});
            BetweenBlocks(w);
            CrackedBlock(w, "Cracked Section Analysis - Edge Lift Mode", r.CrackCapacityELShort,
                         r.CrackCapacityELLong, r.CrackDemandELShort, r.CrackDemandELLong);
            if (page.settings.ShowDD == 1) {
                DifferentialDeflectionPerSecondEdition(w);
            }
        });
}

void PrintRROA_Comp(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    const bool useBeta = page.settings.UseBeta == 1;
    const bool edgeDown = page.record.CLSettleState == 1;
    DrawFittedSheet(
        page, heights, "RIBBED FOUNDATION - RESULTS OF ANALYSIS", edgeDown ? false : lastPage,
        [&](PageWriter& w) {
            SoilBearingBlock(w, true);
            RibbedPrestressHead(w);
            // The center down lines stand alone without edge down; the center / edge lines always
            // print, as the page always has.
            if (!edgeDown) {
                PairRow(w, "Beta Distance Effective Prestress Force - Center Down (K)",
                        F(r.ForceNetCDShort, "#,##0.0"), F(r.ForceNetCDLong, "#,##0.0"));
            }
            PairRow(w, "Beta Distance Effective Prestress Force - Center/Edge (K)",
                    DownPair(r.ForceNetCDShort, r.ForceNetEDShort, "#,##0.0"),
                    DownPair(r.ForceNetCDLong, r.ForceNetEDLong, "#,##0.0"));
            PairRow(w, "Minimum Effective Prestress  (PSI)", F(r.PsCenterShort, "#,##0"),
                    F(r.PsCenterLong, "#,##0"));
            if (!edgeDown) {
                PairRow(w, "Beta Distance Effective Prestress - Center Down (PSI)",
                        F((r.ForceNetCDShort * 1000) / r.AreaShort, "#,##0"),
                        F((r.ForceNetCDLong * 1000) / r.AreaLong, "#,##0"));
            }
            PairRow(w, "Beta Distance Effective Prestress - Center/Edge (PSI)",
                    DownPair((r.ForceNetCDShort * 1000) / r.AreaShort,
                             (r.ForceNetEDShort * 1000) / r.AreaShort, "#,##0"),
                    DownPair((r.ForceNetCDLong * 1000) / r.AreaLong,
                             (r.ForceNetEDLong * 1000) / r.AreaLong, "#,##0"));
            BetweenBlocks(w);

            MomentHeading(w, "Moment Analysis - Compressible Soils Mode (Center Down)", useBeta,
                          CompressibleBetaNote);
            Moments(w, r.MomentCDShort, r.MomentCDLong);
            StressRows(w, r,
                       {"Tension in Bottom Fiber (KSI)", "Compression in Top Fiber (KSI)",
                        r.StressBotCDShort, r.StressBotCDLong, r.StressTopCDShort,
                        r.StressTopCDLong, "###,##0.00#"});
            DeflectionBlock(
                w, {"Differential Deflection Analysis - Compressible Soils Mode (Center Down)",
                    page.record.DefSettle, "Allowable Differential Deflection controlled by",
                    r.StiffBasisCDShort, r.StiffBasisCDLong,
                    "Allowable Differential Deflections  (Inch)",
                    "Actual Differential Deflections  (Inch)", r.AllowDeflCDShort,
                    r.AllowDeflCDLong, r.NetDeflCDShort, r.NetDeflCDLong});
            // The center down shear block prints the edge down shear forces, as the page always
            // has.
            ShearBlock(w,
                       {"Shear Analysis - Compressible Soils Mode  (Center Down)",
                        "Maximum Shear, Short Direction.", r.ShearForceEDShort, r.ShearForceEDLong,
                        r.AllowShearShort, r.AllowShearLong, r.ShearCDShort, r.ShearCDLong});
        });
    if (!edgeDown) {
        return;
    }
    DrawFittedSheet(
        page, heights, "RIBBED FOUNDATION - RESULTS OF ANALYSIS continued", lastPage,
        [&](PageWriter& w) {
            MomentHeading(w, "Moment Analysis - Compressible Soils Mode (Edge Down)", useBeta,
                          CompressibleBetaNote);
            Moments(w, r.MomentEDShort, r.MomentEDLong);
            StressRows(w, r,
                       {"Tension in Bottom Fiber (KSI)", "Compression in Top Fiber (KSI)",
                        r.StressTopEDShort, r.StressTopEDLong, r.StressBotEDShort,
                        r.StressBotEDLong, "###,##0.00#"});
            DeflectionBlock(
                w, {"Differential Deflection Analysis - Compressible Soils Mode (Edge Down)",
                    page.record.DefCLSettle, "Allowable Differential Deflection controlled by",
                    r.StiffBasisEDShort, r.StiffBasisEDLong,
                    "Allowable Differential Deflections  (Inch)",
                    "Actual Differential Deflections  (Inch)", r.AllowDeflEDShort,
                    r.AllowDeflEDLong, r.NetDeflEDShort, r.NetDeflEDLong});
            ShearBlock(w,
                       {"Shear Analysis - Compressible Soils Mode (Edge Down)",
                        "Maximum Shear, Short Direction", r.ShearForceEDShort, r.ShearForceEDLong,
                        r.AllowShearShort, r.AllowShearLong, r.ShearEDShort, r.ShearEDLong});
        });
}

void PrintUROA(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    const bool useBeta = page.settings.UseBeta == 1;
    DrawFittedSheet(
        page, heights, "UNIFORM THICKNESS FOUNDATION - RESULTS OF ANALYSIS", false,
        [&](PageWriter& w) {
            UniformHead(w);
            PairRow(w, "Beta Distance Effective Prestress Force (K)",
                    F(r.UTForceNetShort, "#,##0.0"), F(r.UTForceNetLong, "#,##0.0"));
            PairRow(w, "Minimum Effective Prestress  (PSI)", F(r.UTPsCenterShort, "#,##0"),
                    F(r.UTPsCenterLong, "#,##0"));
            PairRow(w, "Beta Distance Effective Prestress  (PSI)",
                    F((r.UTForceNetShort * 1000) / r.UTAreaShort, "#,##0"),
                    F((r.UTForceNetLong * 1000) / r.UTAreaLong, "#,##0"));
            BetweenBlocks(w);

            MomentHeading(w, "Moment Analysis - Center Lift Mode", useBeta, BetaNote);
            CenterLiftMoments(w, r.MomentCLShort, r.MomentCLLong,
                              " (calculated with Em=5.0 per PTI 4.3.2)");
            StressRows(w, r,
                       {"Tension in Top Fiber (KSI)", "Compression in Bottom Fiber (KSI)",
                        r.UTStressTopCLShort, r.UTStressTopCLLong, r.UTStressBotCLShort,
                        r.UTStressBotCLLong, "###,##0.000"});
            StiffnessBlock(w, {"Stiffness Analysis - Center Lift Mode", page.record.DefCenter,
                               r.UTInertiaShort, r.UTInertiaLong, r.UTReqInertiaCLShort,
                               r.UTReqInertiaCLLong, r.UTStiffBasisShort, r.UTStiffBasisLong});
            ShearBlock(w, {"Shear Analysis - Center Lift Mode", "Maximum Shear, Short Direction",
                           r.ShearForceCLShort, r.ShearForceCLLong, r.UTAllowShearShort,
                           r.UTAllowShearLong, r.UTShearCLShort, r.UTShearCLLong});
        });
    DrawFittedSheet(
        page, heights, "UNIFORM THICKNESS FOUNDATION - RESULTS OF ANALYSIS continued", lastPage,
        [&](PageWriter& w) {
            CrackedBlock(w, "Cracked Section Analysis - Center Lift Mode", r.UTCrackCapacityCLShort,
                         r.UTCrackCapacityCLLong, r.UTCrackDemandCLShort, r.UTCrackDemandCLLong);
            MomentHeading(w, "Moment Analysis - Edge Lift Mode", useBeta, BetaNote);
            Moments(w, r.MomentELShort, r.MomentELLong);
            StressRows(w, r,
                       {"Tension in Bottom Fiber (KSI)", "Compression in Top Fiber (KSI)",
                        r.UTStressBotELShort, r.UTStressBotELLong, r.UTStressTopELShort,
                        r.UTStressTopELLong, "###,##0.000"});
            StiffnessBlock(w, {"Stiffness Analysis - Edge Lift Mode", page.record.DefEdge,
                               r.UTInertiaShort, r.UTInertiaLong, r.UTReqInertiaELShort,
                               r.UTReqInertiaELLong, r.UTStiffBasisShort, r.UTStiffBasisLong});
            ShearBlock(w,
                       {"Shear Stress Analysis - Edge Lift Mode", "Maximum Shear, Short Direction",
                        r.ShearForceELShort, r.ShearForceELLong, r.UTAllowShearShort,
                        r.UTAllowShearLong, r.UTShearELShort, r.UTShearELLong});
            BetweenBlocks(w);
            CrackedBlock(w, "Cracked Section Analysis - Edge Lift Mode", r.UTCrackCapacityELShort,
                         r.UTCrackCapacityELLong, r.UTCrackDemandELShort, r.UTCrackDemandELLong);
        });
}

void PrintUROA_Comp(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    const bool useBeta = page.settings.UseBeta == 1;
    const bool edgeDown = page.record.CLSettleState == 1;
    DrawFittedSheet(
        page, heights, "UNIFORM THICKNESS FOUNDATION - RESULTS OF ANALYSIS",
        edgeDown ? false : lastPage, [&](PageWriter& w) {
            UniformHead(w);
            if (!edgeDown) {
                PairRow(w, "Beta Distance Effective Prestress Force - Center Down (K)",
                        F(r.UTForceNetCDShort, "#,##0.0"), F(r.UTForceNetCDLong, "#,##0.0"));
            }
            PairRow(w, "Beta Distance Effective Prestress Force - Center / Edge (K)",
                    DownPair(r.UTForceNetCDShort, r.UTForceNetEDShort, "#,##0.0"),
                    DownPair(r.UTForceNetCDLong, r.UTForceNetEDLong, "#,##0.0"));
            PairRow(w, "Minimum Effective Prestress  (PSI)", F(r.UTPsCenterShort, "#,##0"),
                    F(r.UTPsCenterLong, "#,##0"));
            if (!edgeDown) {
                // The center down prestress line divides the edge down forces, as the page always
                // has.
                PairRow(w, "Beta Distance Effective Prestress - Center Down (PSI)",
                        F((r.UTForceNetEDShort * 1000) / r.UTAreaShort, "#,##0"),
                        F((r.UTForceNetEDLong * 1000) / r.UTAreaLong, "#,##0"));
            }
            PairRow(w, "Beta Distance Effective Prestress - Center / Edge (PSI)",
                    DownPair((r.UTForceNetCDShort * 1000) / r.UTAreaShort,
                             (r.UTForceNetEDShort * 1000) / r.UTAreaShort, "#,##0"),
                    DownPair((r.UTForceNetCDLong * 1000) / r.UTAreaLong,
                             (r.UTForceNetEDLong * 1000) / r.UTAreaLong, "#,##0"));
            BetweenBlocks(w);

            MomentHeading(w, "Moment Analysis - Compressible Soils Mode (Center Down)", useBeta,
                          CompressibleBetaNote);
            Moments(w, r.MomentCDShort, r.MomentCDLong);
            StressRows(w, r,
                       {"Tension in Bottom Fiber (KSI)", "Compression in Top Fiber (KSI)",
                        r.UTStressBotCDShort, r.UTStressBotCDLong, r.UTStressTopCDShort,
                        r.UTStressTopCDLong, "###,##0.00#"});
            DeflectionBlock(
                w, {"Differential Deflection Analysis - Compressible Soils Mode (Center Down)",
                    page.record.DefSettle, "Allowable Differential Deflections controlled by",
                    r.UTStiffBasisCDShort, r.UTStiffBasisCDLong,
                    "Allowable Differential Deflections  (Inches)",
                    "Actual Differential Deflections  (Inches)", r.UTAllowDeflCDShort,
                    r.UTAllowDeflCDLong, r.UTNetDeflCDShort, r.UTNetDeflCDLong});
            ShearBlock(w, {"Shear Stress Analysis - Compressible Soils Mode (Center Down)",
                           "Maximum Shear, Short Dirextion", r.ShearForceCDShort,
                           r.ShearForceCDLong, r.UTAllowShearShort, r.UTAllowShearLong,
                           r.UTShearCDShort, r.UTShearCDLong});
        });
    if (!edgeDown) {
        return;
    }
    DrawFittedSheet(
        page, heights, "UNIFORM THICKNESS FOUNDATION - RESULTS OF ANALYSIS continued", lastPage,
        [&](PageWriter& w) {
            MomentHeading(w, "Moment Analysis - Compressible Soils Mode (Edge Down)", useBeta,
                          CompressibleBetaNote);
            Moments(w, r.MomentEDShort, r.MomentEDLong);
            StressRows(w, r,
                       {"Tension in Bottom Fiber (KSI)", "Compression in Top Fiber (KSI)",
                        r.UTStressTopEDShort, r.UTStressTopEDLong, r.UTStressBotEDShort,
                        r.UTStressBotEDLong, "###,##0.00#"});
            DeflectionBlock(
                w, {"Differential Deflection Analysis - Compressible Soils Mode (Edge Down)",
                    page.record.DefCLSettle, "Allowable Differential Deflection controlled by",
                    r.UTStiffBasisEDShort, r.UTStiffBasisEDLong,
                    "Allowable Differential Deflections  (Inch)",
                    "Actual Differential Deflections  (Inch)", r.UTAllowDeflEDShort,
                    r.UTAllowDeflEDLong, r.UTNetDeflEDShort, r.UTNetDeflEDLong});
            ShearBlock(w, {"Shear Analysis - Compressible Soils Mode (Edge Down)",
                           "Maximum Shear, Short Direction", r.ShearForceEDShort,
                           r.ShearForceEDLong, r.UTAllowShearShort, r.UTAllowShearLong,
                           r.UTShearEDShort, r.UTShearEDLong});
        });
}
