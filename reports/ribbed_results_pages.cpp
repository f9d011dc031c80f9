#include "reports/ribbed_results_pages.h"

#include "reports/fitted_sheet.h"
#include "reports/result_blocks.h"
#include "reports/result_tables.h"

namespace {

// The bearing area's label.
std::string BearingAreaLabel(const PageContext& page, bool compressiblePage) {
    if (page.settings.UseBeamOnly != 1) {
        return "Bearing Area";
    }
    return compressiblePage ? "Bearing Area (based on beam bottom area only)"
                            : "Bearing Area (Based on beam bottom area only)";
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

} // namespace

void PrintRROA(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    const ModeValues centerLift = CenterLiftValues(r);
    const ModeValues edgeLift = EdgeLiftValues(r);
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
                       ModeStressTable("Tension in Top Fiber (KSI)",
                                       "Compression in Bottom Fiber (KSI)", centerLift,
                                       "###,##0.000"));
            StiffnessBlock(w, {"Stiffness Analysis - Center Lift Mode", page.record.DefCenter,
                               centerLift, r.StiffBasisShort, r.StiffBasisLong});
            ShearBlock(w, {"Shear Analysis - Center Lift Mode", "Maximum Shear, Short Direction.",
                           r.ShearForceCLShort, r.ShearForceCLLong, centerLift});
        });
    DrawFittedSheet(
        page, heights, "RIBBED FOUNDATION - RESULTS OF ANALYSIS continued", lastPage,
        [&](PageWriter& w) {
            CrackedBlock(w, "Cracked Section Analysis - Center Lift Mode", centerLift);
            MomentHeading(w, "Moment Analysis - Edge Lift Mode", useBeta, BetaNote);
            Moments(w, r.MomentELShort, r.MomentELLong);
            StressRows(w, r,
                       ModeStressTable("Tension in Bottom Fiber (KSI)",
                                       "Compression in Top Fiber (KSI)", edgeLift, "###,##0.00#"));
            StiffnessBlock(w, {"Stiffness Analysis - Edge Lift Mode", page.record.DefEdge, edgeLift,
                               r.StiffBasisShort, r.StiffBasisLong});
            ShearBlock(w, {"Shear Analysis - Edge Lift Mode", "Maximum Shear, Short Direction",
                           r.ShearForceELShort, r.ShearForceELLong, edgeLift});
            BetweenBlocks(w);
            CrackedBlock(w, "Cracked Section Analysis - Edge Lift Mode", edgeLift);
            if (page.settings.ShowDD == 1) {
                DifferentialDeflectionPerSecondEdition(w);
            }
        });
}

void PrintRROA_Comp(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    const bool useBeta = page.settings.UseBeta == 1;
    const ModeValues centerDown = CenterDownValues(r);
    const ModeValues edgeDown = EdgeDownValues(r);
    const bool withEdgeDown = page.record.CLSettleState == 1;
    DrawFittedSheet(
        page, heights, "RIBBED FOUNDATION - RESULTS OF ANALYSIS", withEdgeDown ? false : lastPage,
        [&](PageWriter& w) {
            SoilBearingBlock(w, true);
            RibbedPrestressHead(w);
            // The center down lines stand alone without edge down; the center / edge lines always
            // print, as the page always has.
            if (!withEdgeDown) {
                PairRow(w, "Beta Distance Effective Prestress Force - Center Down (K)",
                        F(r.ForceNetCDShort, "#,##0.0"), F(r.ForceNetCDLong, "#,##0.0"));
            }
            PairRow(w, "Beta Distance Effective Prestress Force - Center/Edge (K)",
                    DownPair(r.ForceNetCDShort, r.ForceNetEDShort, "#,##0.0"),
                    DownPair(r.ForceNetCDLong, r.ForceNetEDLong, "#,##0.0"));
            PairRow(w, "Minimum Effective Prestress  (PSI)", F(r.PsCenterShort, "#,##0"),
                    F(r.PsCenterLong, "#,##0"));
            if (!withEdgeDown) {
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
                       ModeStressTable("Tension in Bottom Fiber (KSI)",
                                       "Compression in Top Fiber (KSI)", centerDown,
                                       "###,##0.00#"));
            DeflectionBlock(
                w, {"Differential Deflection Analysis - Compressible Soils Mode (Center Down)",
                    page.record.DefSettle, "Allowable Differential Deflection controlled by",
                    r.StiffBasisCDShort, r.StiffBasisCDLong,
                    "Allowable Differential Deflections  (Inch)",
                    "Actual Differential Deflections  (Inch)", centerDown});
            // The center down shear block prints the edge down shear forces, as the page always
            // has.
            ShearBlock(w, {"Shear Analysis - Compressible Soils Mode  (Center Down)",
                           "Maximum Shear, Short Direction.", r.ShearForceEDShort,
                           r.ShearForceEDLong, centerDown});
        });
    if (!withEdgeDown) {
        return;
    }
    DrawFittedSheet(
        page, heights, "RIBBED FOUNDATION - RESULTS OF ANALYSIS continued", lastPage,
        [&](PageWriter& w) {
            MomentHeading(w, "Moment Analysis - Compressible Soils Mode (Edge Down)", useBeta,
                          CompressibleBetaNote);
            Moments(w, r.MomentEDShort, r.MomentEDLong);
            // The edge down stresses print the top fibre under the bottom's caption and the
            // bottom under the top's, as the page always has.
            StressRows(w, r,
                       ModeStressTable("Tension in Bottom Fiber (KSI)",
                                       "Compression in Top Fiber (KSI)", edgeDown, "###,##0.00#"));
            DeflectionBlock(
                w, {"Differential Deflection Analysis - Compressible Soils Mode (Edge Down)",
                    page.record.DefCLSettle, "Allowable Differential Deflection controlled by",
                    r.StiffBasisEDShort, r.StiffBasisEDLong,
                    "Allowable Differential Deflections  (Inch)",
                    "Actual Differential Deflections  (Inch)", edgeDown});
            ShearBlock(w, {"Shear Analysis - Compressible Soils Mode (Edge Down)",
                           "Maximum Shear, Short Direction", r.ShearForceEDShort,
                           r.ShearForceEDLong, edgeDown});
        });
}
