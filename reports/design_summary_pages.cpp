#include "reports/design_summary_pages.h"

#include "common/number_pattern.h"

namespace {

constexpr double ValueEdge = 8280;       // the single value column
constexpr double FirstTypeCentre = 6040; // "Type I Beam", values right-aligned on it
constexpr double SecondTypeCentre = 8250;
constexpr double SecondTypeEdge = 8280;
// The uniform page's selected variables have longer labels: their short column stands further
// right than the beam tables' first column.
constexpr double VariablesShortCentre = 6900;
constexpr double VariablesShortEdge = 7200;

std::string F(double value, const char* pattern) {
    return FormatNumber(value, pattern);
}

// Two column heads centred on the columns, plain.
void ColumnHeads(PageWriter& w, const std::string& first, const std::string& second,
                 double firstCentre) {
    DrawingSurface& s = w.surface();
    w.Text(firstCentre - s.TextWidth(first) / 2, first);
    w.Text(SecondTypeCentre - s.TextWidth(second) / 2, second);
}

// The beam tables' heads, "Type I Beam" and "Type II Beam", are headings: bold and underlined.
void BeamColumnHeads(PageWriter& w) {
    DrawingSurface& s = w.surface();
    s.SetBold(true);
    s.SetUnderline(true);
    ColumnHeads(w, "Type I Beam", "Type II Beam", FirstTypeCentre);
    s.SetUnderline(false);
    s.SetBold(false);
}

void TwoValues(PageWriter& w, const std::string& label, const std::string& first,
               const std::string& second, const std::string& unit = {}) {
    w.Label(label);
    w.Value(FirstTypeCentre, first, unit);
    w.Value(SecondTypeEdge, second, unit);
    w.Step();
}

void OneValue(PageWriter& w, const std::string& label, const std::string& value,
              const std::string& unit = {}) {
    w.Label(label);
    w.Value(ValueEdge, value, unit);
    w.Step();
}

// "Concrete Strength, f'c :" with its subscript after the prime, and the tendon strength's
// subscript "pu".
void MaterialLines(PageWriter& w, const DesignRecord& r) {
    const double column2 = w.page().column2;
    double x = w.TextAt(column2, 0, "Concrete Strength,   f");
    x = w.TextAt(x, 0, "'");
    x = w.Lowered(x, "c");
    w.TextAt(x, 0, " :");
    w.Value(ValueEdge, F(r.Fpc, "###,##0"), "  PSI");
    w.Step();
    x = w.TextAt(column2, 0, "Tendon Strength,   F");
    x = w.Lowered(x, "pu");
    w.TextAt(x, 0, " :");
    w.Value(ValueEdge, F(r.Fpu, "#,##0"), "  KSI");
    w.Step();
    if (r.TendType != 3) {
        const char* diameters[] = {"3 / 8", "7 / 16", "1 / 2"};
        const int type = r.TendType >= 0 && r.TendType <= 2 ? r.TendType : 0;
        OneValue(w, "Tendon Diameter :", diameters[type], "  Inch");
    } else {
        w.Label("Custom Tendon Area :");
        const std::string area = F(r.TendArea, "#0.000");
        w.Value(ValueEdge, area, "  Inches");
        w.Raised(ValueEdge + w.surface().TextWidth("  Inches"), "2");
        w.Step();
    }
}

void SlabTendonCentroid(PageWriter& w, const DesignRecord& r, const ResultsRecord& results) {
    const double centroid = r.SlabTenCovType == 1 ? r.TendDiam / 2 + r.SlabTenCov : results.CgSlab;
    OneValue(w, "Slab Tendon Centroid :", F(centroid, "#0.00"), " Inches from top of slab");
}

struct DirectionBeams {
    const char* heading;
    double quantity1, quantity2, depth1, depth2, width1, width2, tendons1, tendons2, cover1, cover2,
        spacing, slabTendons, slabSpacing;
};

void BeamBlock(PageWriter& w, const DesignRecord& r, const ResultsRecord& results,
               const DirectionBeams& d) {
    w.Heading(d.heading);
    w.Step();
    BeamColumnHeads(w);
    w.Step();
    TwoValues(w, "Quantity of Beams :", F(d.quantity1, "#,##0"), F(d.quantity2, "#,##0"));
    TwoValues(w, "Depth of Beams :", F(d.depth1, "#,##0.0"), F(d.depth2, "#,##0.0"), " Inches");
    TwoValues(w, "Width of Beams :", F(d.width1, "#,##0.0"), F(d.width2, "#,##0.0"), " Inches");
    TwoValues(w, "Tendons per Beam :", F(d.tendons1, "#,##0"), F(d.tendons2, "#,##0"));
    TwoValues(w, "Beam Tendon Centroid :", F(r.TendDiam / 2 + d.cover1, "#,##0.00"),
              F(r.TendDiam / 2 + d.cover2, "#,##0.00"), " Inches");
    OneValue(w, "Beam Spacing :", F(d.spacing, "#,##0.00"), " Feet O.C.");
    OneValue(w, "Number of Slab Tendons :", F(d.slabTendons, "#,##0"));
    OneValue(w, "Slab Tendon Spacing :", F(d.slabSpacing, "#0.00"), " Feet O.C.");
    SlabTendonCentroid(w, r, results);
}

} // namespace

void PrintRDS(PageContext& page, const LineHeights& heights, bool lastPage) {
    const DesignRecord& r = page.record;
    const ResultsRecord& res = page.results;
    PageWriter w(page, heights);
    w.Begin("RIBBED FOUNDATION - DESIGN SUMMARY");
    OneValue(w, "Slab Dimensions :",
             F(r.RectWidth, "#,##0.00") + " FT x " + F(r.RectLength, "#,##0.00") + " FT x " +
                 F(r.SlabThick, "#,##0.00"),
             "  Inches");
    w.Step();
    w.Heading("Material Properties");
    w.Step();
    MaterialLines(w, r);
    w.Step();
    w.Heading("Material Quantities");
    w.Step();
    OneValue(w, "Concrete Volume :", F(res.ConcreteVolume, "#,##0.0"), "  Cubic Yards");
    OneValue(w, "Prestressing Tendon :", F(res.TendonLength, "#,##0"), "  Linear Feet");
    OneValue(w, "Number of End Anchorages :", F(res.TendonEndAllowance, "#,##0"));
    w.Step();
    BeamBlock(w, r, res,
              {"In the LONG direction ...", static_cast<double>(r.QL1), static_cast<double>(r.QL2),
               r.DL1, r.DL2, r.WL1, r.WL2, r.TL1, r.TL2, r.CL1, r.CL2, res.SpacingLong,
               res.SlabTenLong, res.SlabTenSpacingLong});
    w.Step();
    BeamBlock(w, r, res,
              {"In the SHORT direction ...", static_cast<double>(r.QS1), static_cast<double>(r.QS2),
               r.DS1, r.DS2, r.WS1, r.WS2, r.TS1, r.TS2, r.CS1, r.CS2, res.SpacingShort,
               res.SlabTenShort, res.SlabTenSpacingShort});
    w.End(lastPage);
}

void PrintUDS(PageContext& page, const LineHeights& heights, bool lastPage) {
    const DesignRecord& r = page.record;
    const ResultsRecord& res = page.results;
    PageWriter w(page, heights);
    w.Begin("UNIFORM THICKNESS FOUNDATION - DESIGN SUMMARY");
    OneValue(w, "Slab Dimensions :",
             F(r.RectWidth, "#,##0.00") + " FT x " + F(r.RectLength, "#,##0.00") + " FT x " +
                 F(res.UTThickness, "#,##0.00"),
             "  Inches");
    OneValue(w, "Uniform Thickness Slab :",
             F(res.UTThickness, "#,##0.00") + " (" + F(res.EquivSlabThick, "#,##0.00") + ")",
             "  Inches");
    w.Label("(rounded to the nearest 0.25 inch)");
    w.Step(2);
    w.Heading("Material Properties");
    w.Step();
    MaterialLines(w, r);
    w.Step();
    w.Heading("Material Quantities");
    w.Step();
    OneValue(w, "Concrete Volume :", F(res.UTConcreteVolume, "#,##0.0"), "  Cubic Yards");
    OneValue(w, "Prestressing Tendon :", F(res.UTTendonLength, "#,##0.0"), "  Linear Feet");
    OneValue(w, "Number of End Anchorages :", F(res.UTTendonEndAllowance, "#,##0"));
    w.Step();
    const struct {
        const char* heading;
        double tendons, spacing, ecc;
    } directions[] = {
        {"In the LONG direction ...", static_cast<double>(res.UTTotalTenLong), res.UTTenSpacingLong,
         res.UTEccLong},
        {"In the SHORT direction ...", static_cast<double>(res.UTTotalTenShort),
         res.UTTenSpacingShort, res.UTEccShort},
    };
    for (const auto& d : directions) {
        w.Heading(d.heading);
        w.Step();
        OneValue(w, "Number of Slab Tendons :", F(d.tendons, "#,##0"));
        OneValue(w, "Slab Tendon Spacing :", F(d.spacing, "#0.00"), " Feet O.C.");
        OneValue(w, "Slab Tendon Centroid :", F((res.UTThickness / 2) - d.ecc, "#0.00"),
                 " Inches from top of slab");
        w.Step();
    }
    w.Heading("Selected Variables");
    w.Step();
    ColumnHeads(w, "Short", "Long", VariablesShortCentre);
    w.Step();
    ColumnHeads(w, "Direction", "Direction", VariablesShortCentre);
    w.Step();
    const auto superscriptRow = [&w](const std::string& before, const std::string& power,
                                     double shortValue, double longValue, const char* pattern) {
        double x = w.TextAt(w.page().column2, 0, before);
        x = w.Raised(x, power);
        w.TextAt(x, 0, ") :");
        w.Value(VariablesShortEdge, F(shortValue, pattern));
        w.Value(SecondTypeEdge, F(longValue, pattern));
        w.Step();
    };
    superscriptRow("Cross Sectional Area  (Inch", "2", res.UTAreaShort, res.UTAreaLong, "#,##0");
    superscriptRow("Moment of Inertia  (Inch", "4", res.UTInertiaShort, res.UTInertiaLong, "#,##0");
    superscriptRow("Section Modulus, Top and Bottom  (Inch", "3", res.UTSecModShort,
                   res.UTSecModLong, "#,##0");
    const auto betaRow = [&w](const std::string& label, double shortValue, double longValue) {
        w.Label(label);
        w.Value(VariablesShortEdge, F(shortValue, "#,##0.00"));
        w.Value(SecondTypeEdge, F(longValue, "#,##0.00"));
        w.Step();
    };
    if (r.SoilType == 0) {
        betaRow("Beta Distance (Feet) :", res.UTBetaShort, res.UTBetaLong);
    } else {
        betaRow("Beta Distance (Center Down) (Feet) :", res.UTBetaCDShort, res.UTBetaCDLong);
        if (r.CLSettleState == 1) {
            betaRow("Beta Distance (Edge Down) (Feet) :", res.UTBetaEDShort, res.UTBetaEDLong);
        }
    }
    OneValue(w, "Jacking Force :", F(res.TendonJackForce, "##0.00"), "  KIPS ");
    w.End(lastPage);
}
