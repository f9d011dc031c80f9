#include "reports/selected_variables_page.h"

#include "reports/result_blocks.h"
#include "reports/result_tables.h"

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
