#include "reports/uniform_results_pages.h"

#include "reports/fitted_sheet.h"
#include "reports/result_blocks.h"
#include "reports/result_tables.h"

namespace {

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

void PrintUROA(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    const ModeValues centerLift = UniformCenterLiftValues(r);
    const ModeValues edgeLift = UniformEdgeLiftValues(r);
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
                       ModeStressTable("Tension in Top Fiber (KSI)",
                                       "Compression in Bottom Fiber (KSI)", centerLift,
                                       "###,##0.000"));
            StiffnessBlock(w, {"Stiffness Analysis - Center Lift Mode", page.record.DefCenter,
                               centerLift, r.UTStiffBasisShort, r.UTStiffBasisLong});
            ShearBlock(w, {"Shear Analysis - Center Lift Mode", "Maximum Shear, Short Direction",
                           r.ShearForceCLShort, r.ShearForceCLLong, centerLift});
        });
    DrawFittedSheet(
        page, heights, "UNIFORM THICKNESS FOUNDATION - RESULTS OF ANALYSIS continued", lastPage,
        [&](PageWriter& w) {
            CrackedBlock(w, "Cracked Section Analysis - Center Lift Mode", centerLift);
            MomentHeading(w, "Moment Analysis - Edge Lift Mode", useBeta, BetaNote);
            Moments(w, r.MomentELShort, r.MomentELLong);
            StressRows(w, r,
                       ModeStressTable("Tension in Bottom Fiber (KSI)",
                                       "Compression in Top Fiber (KSI)", edgeLift, "###,##0.000"));
            StiffnessBlock(w, {"Stiffness Analysis - Edge Lift Mode", page.record.DefEdge, edgeLift,
                               r.UTStiffBasisShort, r.UTStiffBasisLong});
            ShearBlock(w,
                       {"Shear Stress Analysis - Edge Lift Mode", "Maximum Shear, Short Direction",
                        r.ShearForceELShort, r.ShearForceELLong, edgeLift});
            BetweenBlocks(w);
            CrackedBlock(w, "Cracked Section Analysis - Edge Lift Mode", edgeLift);
        });
}

void PrintUROA_Comp(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    const bool useBeta = page.settings.UseBeta == 1;
    const ModeValues centerDown = UniformCenterDownValues(r);
    const ModeValues edgeDown = UniformEdgeDownValues(r);
    const bool withEdgeDown = page.record.CLSettleState == 1;
    DrawFittedSheet(
        page, heights, "UNIFORM THICKNESS FOUNDATION - RESULTS OF ANALYSIS",
        withEdgeDown ? false : lastPage, [&](PageWriter& w) {
            UniformHead(w);
            if (!withEdgeDown) {
                PairRow(w, "Beta Distance Effective Prestress Force - Center Down (K)",
                        F(r.UTForceNetCDShort, "#,##0.0"), F(r.UTForceNetCDLong, "#,##0.0"));
            }
            PairRow(w, "Beta Distance Effective Prestress Force - Center / Edge (K)",
                    DownPair(r.UTForceNetCDShort, r.UTForceNetEDShort, "#,##0.0"),
                    DownPair(r.UTForceNetCDLong, r.UTForceNetEDLong, "#,##0.0"));
            PairRow(w, "Minimum Effective Prestress  (PSI)", F(r.UTPsCenterShort, "#,##0"),
                    F(r.UTPsCenterLong, "#,##0"));
            if (!withEdgeDown) {
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
                       ModeStressTable("Tension in Bottom Fiber (KSI)",
                                       "Compression in Top Fiber (KSI)", centerDown,
                                       "###,##0.00#"));
            DeflectionBlock(
                w, {"Differential Deflection Analysis - Compressible Soils Mode (Center Down)",
                    page.record.DefSettle, "Allowable Differential Deflections controlled by",
                    r.UTStiffBasisCDShort, r.UTStiffBasisCDLong,
                    "Allowable Differential Deflections  (Inches)",
                    "Actual Differential Deflections  (Inches)", centerDown});
            ShearBlock(w, {"Shear Stress Analysis - Compressible Soils Mode (Center Down)",
                           "Maximum Shear, Short Dirextion", r.ShearForceCDShort,
                           r.ShearForceCDLong, centerDown});
        });
    if (!withEdgeDown) {
        return;
    }
    DrawFittedSheet(
        page, heights, "UNIFORM THICKNESS FOUNDATION - RESULTS OF ANALYSIS continued", lastPage,
        [&](PageWriter& w) {
            MomentHeading(w, "Moment Analysis - Compressible Soils Mode (Edge Down)", useBeta,
                          CompressibleBetaNote);
            Moments(w, r.MomentEDShort, r.MomentEDLong);
            StressRows(w, r,
                       ModeStressTable("Tension in Bottom Fiber (KSI)",
                                       "Compression in Top Fiber (KSI)", edgeDown, "###,##0.00#"));
            DeflectionBlock(
                w, {"Differential Deflection Analysis - Compressible Soils Mode (Edge Down)",
                    page.record.DefCLSettle, "Allowable Differential Deflection controlled by",
                    r.UTStiffBasisEDShort, r.UTStiffBasisEDLong,
                    "Allowable Differential Deflections  (Inch)",
                    "Actual Differential Deflections  (Inch)", edgeDown});
            ShearBlock(w, {"Shear Analysis - Compressible Soils Mode (Edge Down)",
                           "Maximum Shear, Short Direction", r.ShearForceEDShort,
                           r.ShearForceEDLong, edgeDown});
        });
}
