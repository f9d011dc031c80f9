#include "reports/input_data_pages.h"

#include "common/number_pattern.h"
#include "common/number_text.h"

#include <vector>

namespace {

constexpr double ValueEdge = 8640;
// Two columns, short then long (or center lift then edge lift), right-aligned on these edges.
constexpr double PairEdges[] = {6840, 8640};
// Four columns of the beam table: short Type I and II, long Type I and II.
constexpr double BeamEdges[] = {5040, 6240, 7440, 8640};
constexpr double UnitGap = 60;
// The user's subgrade friction: its heads share the line of a long label, so its columns stand
// further right than the other pairs, the short one on the value column, each head ending on its
// column's edge.
constexpr double FrictionEdges[] = {8640, 10140};
// The line load's stresses: labels as long as "Applied Stress (Uniform Thickness Foundation) :"
// and heads as wide as "Compression in Extreme Fiber" leave room for two columns only here, each
// head ending on its column's edge.
constexpr double LineLoadStressEdges[] = {7540, 10540};

std::string F(double value, const char* pattern) {
    return FormatNumber(value, pattern);
}

// A number without a pattern as plain printing gives it: a blank for its sign and one after.
std::string PlainNumber(double value) {
    return (value < 0 ? "" : " ") + GeneralNumberText(value) + " ";
}

// Texts right-aligned on the given edges, a unit after the last.
void Columns(PageWriter& w, const double* edges, std::size_t count,
             const std::vector<std::string>& values, const std::string& unit = {}) {
    for (std::size_t i = 0; i < count && i < values.size(); ++i) {
        w.Value(edges[i], values[i]);
    }
    if (!unit.empty()) {
        w.Text(edges[count - 1] + UnitGap, unit);
    }
}

// Heads centred over columns that end on the given edges, `width` wide.
void Heads(PageWriter& w, const double* edges, std::size_t count,
           const std::vector<std::string>& heads, double width) {
    DrawingSurface& s = w.surface();
    for (std::size_t i = 0; i < count && i < heads.size(); ++i) {
        w.Text(edges[i] - width / 2 - s.TextWidth(heads[i]) / 2, heads[i]);
    }
}

// Heads that end on the edges of the columns under them.
void RightAlignedHeads(PageWriter& w, const double* edges, const std::vector<std::string>& heads) {
    for (std::size_t i = 0; i < heads.size(); ++i) {
        w.Text(edges[i] - w.surface().TextWidth(heads[i]), heads[i]);
    }
}

// A label whose letter carries a small qualifier below it: "E" "c", "F" "pu", "e" "m".
void QualifiedLabel(PageWriter& w, const std::string& before, const std::string& qualifier) {
    double x = w.TextAt(w.page().column2, 0, before);
    x = w.Lowered(x, qualifier);
    w.TextAt(x, 0, " :");
}

void OneValue(PageWriter& w, const std::string& label, const std::string& value,
              const std::string& unit = {}) {
    w.Label(label);
    w.Value(ValueEdge, value, unit);
    w.Step();
}

void Heading12(PageWriter& w, const std::string& text) {
    w.Heading(text, 12);
    w.StepPastHeading(12);
}

void MaterialBlock(PageWriter& w, const DesignRecord& r) {
    Heading12(w, "Material Properties");
    // The label of the material is printed when the soil has a label: the test reads the soil
    // label, as it always has.
    if (!r.SoilLabel.empty()) {
        OneValue(w, "Material Label :", r.MatLabel);
    }
    double x = w.TextAt(w.page().column2, 0, "Concrete Strength,   f");
    x = w.TextAt(x, 0, "'");
    x = w.Lowered(x, "c");
    w.TextAt(x, 0, " :");
    w.Value(ValueEdge, F(r.Fpc, "###,##0.0"), "  PSI");
    w.Step();
    QualifiedLabel(w, "Concrete Creep Modulus,   E", "c");
    w.Value(ValueEdge, F(r.Ec, "###,###,##0.0"), "  PSI");
    w.Step();
    OneValue(w, "Concrete Unit Weight :", F(r.UW, "#,##0.0"), "  PCF");
    QualifiedLabel(w, "Tendon Strength,   F", "pu");
    w.Value(ValueEdge, F(r.Fpu, "#,##0.0"), "  KSI");
    w.Step();
    if (r.TendType >= 0 && r.TendType <= 2) {
        const char* diameters[] = {"3 / 8", "7 / 16", "1 / 2"};
        OneValue(w, "Tendon Diameter :", diameters[r.TendType], "  Inch");
    } else if (r.TendType == 3) {
        w.Label("Custom Tendon Area :");
        w.Value(ValueEdge, F(r.TendArea, "#0.000"), "  Inches");
        w.Raised(ValueEdge + w.surface().TextWidth("  Inches"), "2");
        w.Step();
    }
    w.Step();
}

void SlabBlock(PageWriter& w, const DesignRecord& r) {
    Heading12(w, "Slab Properties");
    if (!r.RectLabel.empty()) {
        OneValue(w, "Rectangle Label :", r.RectLabel);
    }
    OneValue(w, "Rectangle Geometry :",
             F(r.RectWidth, "#,##0.00") + " FT x " + F(r.RectLength, "#,##0.00") + " FT x " +
                 F(r.SlabThick, "#,##0.00"),
             "  Inches");
    Heads(w, PairEdges, 2, {"Short Direction", "Long Direction"}, 1200);
    w.Step();
    if (r.SlabRefType == 1) {
        w.Label("Minimum Permissible Prestress :");
        w.Value(PairEdges[0], F(r.StrLvlShort, "###,##0.00"), "  PSI");
        w.Value(PairEdges[1], F(r.StrLvlLong, "###,##0.00"), "  PSI");
    } else if (r.SlabRefType == 2) {
        w.Label("Minimum Permissible Prestress Force Factor:");
        Columns(w, PairEdges, 2, {F(r.ForceShort, "###,##0.000"), F(r.ForceLong, "###,##0.000")});
    } else {
        w.Label("Number of Slab Tendons :");
        Columns(w, PairEdges, 2, {F(r.NumSlabTenShort, "###,##0"), F(r.NumSlabTenLong, "###,##0")});
    }
    w.Step();
    if (r.SlabTenCovType == 1) {
        w.Label("Slab Tendon Cover :");
        w.Value(PairEdges[0], F(r.SlabTenCov, "#0.00"), " Inches");
        w.Value(PairEdges[1], F(r.SlabTenCov, "#0.00"), " Inches");
        w.Step();
    }
    w.Step();
}

void BeamBlock(PageWriter& w, const DesignRecord& r) {
    Heading12(w, "Beam Properties");
    const double pairs[] = {BeamEdges[1], BeamEdges[3]};
    Heads(w, pairs, 2, {"Short Direction", "Long Direction"}, 2400);
    w.Step();
    Heads(w, BeamEdges, 4, {"Type I", "Type II", "Type I", "Type II"}, 900);
    w.Step();
    const auto row = [&w](const std::string& label, std::vector<std::string> values,
                          const std::string& unit = {}) {
        w.Label(label);
        Columns(w, BeamEdges, 4, values, unit);
        w.Step();
    };
    row("Quantity :", {F(r.QS1, "##0"), F(r.QS2, "##0"), F(r.QL1, "##0"), F(r.QL2, "##0")});
    row("Depth :", {F(r.DS1, "##0.0"), F(r.DS2, "##0.0"), F(r.DL1, "##0.0"), F(r.DL2, "##0.0")},
        "Inches");
    row("Width :", {F(r.WS1, "##0.0"), F(r.WS2, "##0.0"), F(r.WL1, "##0.0"), F(r.WL2, "##0.0")},
        "Inches");
    row("Tendons :", {F(r.TS1, "##0"), F(r.TS2, "##0"), F(r.TL1, "##0"), F(r.TL2, "##0")});
    row("Cover :", {F(r.CS1, "##0.00"), F(r.CS2, "##0.00"), F(r.CL1, "##0.00"), F(r.CL2, "##0.00")},
        "Inches");
    w.Step();
    if (r.BeamSpacing == 0) {
        w.Label("Beam spacing calculated per PTI Manual 4.5.2.1");
        w.Step();
        Heads(w, pairs, 2, {"Short Direction", "Long Direction"}, 2400);
        w.Step();
        Heads(w, BeamEdges, 4, {"Max.", "Min.", "Max.", "Min."}, 900);
        w.Step();
        row("Spacing :",
            {F(r.SMax, "##0.00"), F(r.SMin, "##0.00"), F(r.LMax, "##0.00"), F(r.LMin, "##0.00")},
            "Feet");
    } else {
        w.Label("Average beam spacing used in analysis");
        w.Step();
    }
}

void SoilBlock(PageWriter& w, const DesignRecord& r) {
    Heading12(w, "Soil Properties");
    if (!r.SoilLabel.empty()) {
        OneValue(w, "Soil Label :", r.SoilLabel);
    }
    if (r.SoilType == 0) {
        OneValue(w, "Allowable Bearing Pressure :", F(r.ExpBearing, "###,##0.0"), "  PSF");
        Heads(w, PairEdges, 2, {"Center Lift", "Edge Lift"}, 1200);
        w.Step();
        QualifiedLabel(w, "Edge Moisture Variation Distance,   e", "m");
        w.Value(PairEdges[0], F(r.EmCenter, "##0.00"), "  Feet");
        w.Value(PairEdges[1], F(r.EmEdge, "##0.00"), "  Feet");
        w.Step();
        QualifiedLabel(w, "Differential Soil Movement,   y", "m");
        w.Value(PairEdges[0], F(r.YmCenter, "##0.000"), "  Inches");
        w.Value(PairEdges[1], F(r.YmEdge, "##0.000"), "  Inches");
        w.Step();
    } else if (r.SoilType == 1) {
        OneValue(w, "Allowable Bearing Pressure :", F(r.CompBearing, "###,##0.0"), "  PSF");
        OneValue(w, "Expected Settlement :", F(r.Settle, "##0.000"), "  Inches");
        if (r.CLSettleState == 1) {
            w.Label("Expansive soil center lift analysis performed per Section 6.13.2 in the 3rd "
                    "Edition PTI Manual.");
            w.Step();
            double x = w.TextAt(w.page().column2, 0, "e");
            x = w.Lowered(x, "m");
            x = w.TextAt(x, 0, " assumed to be 5 feet and y");
            x = w.Lowered(x, "m");
            w.TextAt(x, 0, " assumed to be Expected Settlement");
            w.Step();
        }
    }
    QualifiedLabel(w, "Soil Modulus of Elasticity,   E", "s");
    w.Value(ValueEdge, F(r.Es, "###,##0.0"), "  PSI");
    w.Step(2);
}

void LoadBlock(PageWriter& w, const DesignRecord& r) {
    Heading12(w, "Load, Deflection and Subgrade Properties");
    w.Heading("Slab Loading");
    w.Step();
    OneValue(w, "Uniform Superimposed Total Load :", F(r.ULoad, "###,##0.00"), "  PSF");
    OneValue(w, "Total Perimeter Load :", F(r.TotalLoad, "###,##0.00"), "  PLF");
    if (r.UseDeadLoad == 1) {
        OneValue(w, "Smallest Load Intensity :", F(r.DeadLoad, "###,##0.00"), "  PLF");
    }
    w.Step();
    if (r.SoilType == 0) {
        w.Heading("Stiffness Coefficients");
        w.Step();
        OneValue(w, "Center Lift :", PlainNumber(r.DefCenter));
        OneValue(w, "Edge Lift :", PlainNumber(r.DefEdge));
    } else if (r.SoilType == 1) {
        w.Heading(r.CLSettleState == 0 ? "Differential Deflection Coefficient"
                                       : "Differential Deflection Coefficients");
        w.Step();
        OneValue(w, "Compressible Soils (Center Down) :", PlainNumber(r.DefSettle));
        if (r.CLSettleState != 0) {
            OneValue(w, "Compressible Soils (Edge Down) :", PlainNumber(r.DefCLSettle));
        }
    }
    w.Step();
    w.Heading("Prestress Calculation");
    w.Step();
    if (r.Subgradetype == 0) {
        w.Label("Subgrade Friction calculated by method prescribed in PTI Manual");
        w.Step();
    } else if (r.Subgradetype == 1) {
        w.Label("Subgrade Friction calculated by \"Full Length Drag\" Method");
        w.Step();
    } else if (r.Subgradetype == 2) {
        w.Label("User Defined Subgrade Friction used in analysis");
        RightAlignedHeads(w, FrictionEdges, {"Short Direction", "Long Direction"});
        w.Step();
        // The maximum line prints the friction at Beta and the line at Beta the maximum: the
        // labels stand crossed, as they always have.
        w.Label("Maximum :");
        w.Value(FrictionEdges[0], F(r.UDSM, "##0.00"), " Kips");
        w.Value(FrictionEdges[1], F(r.UDLM, "##0.00"), " Kips");
        w.Step();
        w.Label("At Beta :");
        w.Value(FrictionEdges[0], F(r.UDSS, "##0.00"), " Kips");
        w.Value(FrictionEdges[1], F(r.UDLS, "##0.00"), " Kips");
        w.Step();
    }
    OneValue(w, "Prestress Loss :", F(r.Prestress, "##0.0"), "  KSI");
    OneValue(w, "Subgrade Friction Coefficient :", F(r.SGFC, "0.00"));
}

} // namespace

void PrintSOID(PageContext& page, const LineHeights& heights, bool lastPage) {
    const DesignRecord& r = page.record;
    PageWriter w(page, heights);
    w.Begin("SUMMARY OF INPUT DATA");
    MaterialBlock(w, r);
    SlabBlock(w, r);
    BeamBlock(w, r);
    w.End(false);

    w.Begin("SUMMARY OF INPUT DATA - Continued");
    SoilBlock(w, r);
    LoadBlock(w, r);
    w.End(lastPage);
}

void PrintLLA(PageContext& page, const LineHeights& heights, bool lastPage) {
    const DesignRecord& r = page.record;
    const ResultsRecord& res = page.results;
    const bool uniform = r.FlatSlab == 1;
    PageWriter w(page, heights);
    w.Begin("LINE LOAD ANALYSIS");
    Heading12(w, "Summary of Input Data");
    OneValue(w, "Line Load :", F(r.LineLoad, "###,##0.0"), "  lb/ft");
    OneValue(w, "Direction Of Line Load :", "Parallel to " + r.DirLineLoad);
    if (r.PreLineLoadType == 0) {
        OneValue(w, "Prestress at Line Load :", "Minimum Effective Prestress");
    } else if (r.PreLineLoadType == 1) {
        OneValue(w, "Prestress at Line Load :", "Effective Prestress at Beta");
    } else {
        OneValue(w, "Prestress at Line Load :", F(r.UDPreLineLoad, "##0.00"), " PSI");
    }
    QualifiedLabel(w, "Soil Modulus,   K", "s");
    w.Value(ValueEdge, F(r.Ks, "###,###,##0"), "  PCI");
    w.Step();
    if (uniform) {
        OneValue(w, "Slab Thickness (Ribbed Slab) :", F(r.SlabThick, "#0.00"), " Inch");
        OneValue(w, "Slab Thickness (Uniform Thickness Foundation) :", F(res.UTThickness, "#0.00"),
                 " Inch");
    } else {
        OneValue(w, "Slab Thickness : ", F(r.SlabThick, "#0.00"), " Inch");
    }
    QualifiedLabel(w, "Concrete Creep Modulus,   E", "c");
    w.Value(ValueEdge, F(r.Ec, "###,###,##0.0"), "  PSI");
    w.Step(2);

    w.Heading("Summary of Line Load Analysis");
    w.Step();
    const std::string ribbedSlab = F(r.SlabThick, "#0.00");
    const std::string moment = F((res.LLMoment / 12) / 1000, "###,##0.00");
    if (uniform) {
        OneValue(w, "Applied Moment (" + ribbedSlab + " Inch Thick Slab) :", moment, "  Ft-K/Ft");
        OneValue(w, "Applied Moment (Uniform Thickness Foundation) :",
                 F((res.UTLLMoment / 12) / 1000, "###,##0.00"), "  Ft-K/Ft");
    } else {
        OneValue(w, "Applied Moment :", moment, "  Ft-K/Ft");
    }
    w.Step();
    BoldBlack(w.surface());
    w.Label("Bending Stresses (KSI)");
    UnboldBlack(w.surface());
    w.Step();
    RightAlignedHeads(w, LineLoadStressEdges,
                      {"Tension in Extreme Fiber", "Compression in Extreme Fiber"});
    w.Step();
    const auto stresses = [&w](const std::string& label, double tension, double compression) {
        w.Label(label);
        Columns(w, LineLoadStressEdges, 2,
                {F(tension, "###,##0.000"), F(compression, "###,##0.000")});
        w.Step();
    };
    stresses("Allowable Stress :", res.AllowTension, res.AllowCompression / 1000);
    if (uniform) {
        stresses("Applied Stress (" + ribbedSlab + " Inch Thick Slab) :",
                 res.LLStressTension / 1000, res.LLStressCompression / 1000);
        stresses("Applied Stress (Uniform Thickness Foundation) :", res.UTLLStressTension / 1000,
                 res.UTLLStressCompression / 1000);
        OneValue(w, "Prestress at Line Load (" + ribbedSlab + " In. Thick Slab) :",
                 F(res.LLPrestress, "###,##0.0"), "  PSI");
        OneValue(w, "Prestress at Line Load (Uniform Thickness Foundation) :",
                 F(res.UTLLPrestress, "###,##0.0"), "  PSI");
    } else {
        stresses("Applied Stress :", res.LLStressTension / 1000, res.LLStressCompression / 1000);
        OneValue(w, "Prestress at Line Load :", F(res.LLPrestress, "###,##0.0"), "  PSI");
    }
    w.Step();

    Heading12(w, "Design Compliance Summary");
    DrawingSurface& s = w.surface();
    const bool colour = page.colour;
    double x = w.TextAt(page.column1, 0, "The ");
    if (colour) {
        BoldRed(s);
    } else {
        BoldBlack(s);
    }
    x = w.TextAt(x, 0, colour ? "RED" : "BOLD");
    UnboldBlack(s);
    w.TextAt(x, 0,
             " values exceed allowable or are less than minimum limits by the percentage "
             "indicated:");
    w.Step(2);

    // The uniform slab's compression is tested on the ribbed stress, as it always has been: the
    // two compression lines fail or pass together.
    const std::string prefix = uniform ? F(r.SlabThick, "#,##0.00") + " INCH THICK SLAB - " : "";
    struct Line {
        std::string label;
        double excess;
        bool fails;
        bool printed;
    };
    const Line lines[] = {
        {prefix + "COMPRESSION IN EXTREME FIBER : ", res.ExcessLLCompression,
         res.LLStressCompression > res.AllowCompression, true},
        {prefix + "TENSION IN EXTREME FIBER : ", res.ExcessLLTension,
         res.LLStressTension / 1000 < res.AllowTension, true},
        {"UNIFORM THICKNESS SLAB - COMPRESSION IN EXTREME FIBER : ", res.UTExcessLLCompression,
         uniform && res.LLStressCompression > res.AllowCompression, uniform},
        {"UNIFORM THICKNESS SLAB - TENSION IN EXTREME FIBER : ", res.UTExcessLLTension,
         uniform && res.UTLLStressTension / 1000 < res.AllowTension, uniform},
    };
    bool printed = false;
    for (const Line& line : lines) {
        if (!line.printed) {
            continue;
        }
        if (line.fails) {
            if (colour) {
                BoldRed(s);
            } else {
                BoldBlack(s);
            }
        } else if (page.showAll) {
            UnboldBlack(s);
        } else {
            continue;
        }
        w.Label(line.label + F(line.excess, "#,##0.0") + "%");
        w.Step();
        printed = true;
    }
    UnboldBlack(s);
    if (!printed) {
        w.Label("ALL VALUES WITHIN ALLOWABLE LIMITS.");
        w.Step();
    }
    w.End(lastPage);
}
