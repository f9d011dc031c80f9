#include "output/ribbed_summary_pages.h"

#include "common/number_pattern.h"
#include "output/label_text.h"

#include <cmath>

namespace {

const std::string SummaryFrame = "fraExpOutput(0)";
const std::string BearingFrame = "fraExpOutput(5)";
const std::string VariablesFrame = "fraExpOutput(6)";

// The beam table of one direction, Type I beams in the first column and Type II in the second.
void AddBeamTable(PageBuilder& page, const std::string& direction, char d) {
    const std::string one = std::string(1, d) + "1";
    const std::string two = std::string(1, d) + "2";
    page.Heading("In the " + direction + " direction ...");
    page.Columns("Type I Beam", "Type II Beam");
    page.Row("Quantity of Beams :", {"lblQ" + one, "lblQ" + two});
    page.Row("Depth of Beams :", {"lblD" + one, "lblD" + two}, "Inches");
    page.Row("Width of Beams :", {"lblW" + one, "lblW" + two}, "Inches");
    page.Row("Tendons per Beam :", {"lblT" + one, "lblT" + two});
    page.Row("Beam Tendon Cover :", {"lblC" + one, "lblC" + two}, "Inches");
    page.Row("Analysis Beam Spacing :", {d == 'S' ? "lblSS" : "lblSL"}, "Feet");
    page.TextRow("Slab Tendons :", d == 'S' ? "lblSST" : "lblLST");
}

void SetBeams(FormModel& form, const std::string& group, double quantity, double depth,
              double width, double tendons, double cover) {
    SetNumber(form, "lblQ" + group, quantity, "#,##0");
    SetNumber(form, "lblD" + group, depth, "#,##0.0");
    SetNumber(form, "lblW" + group, width, "#,##0.0");
    SetNumber(form, "lblT" + group, tendons, "#,##0");
    SetNumber(form, "lblC" + group, cover, "#,##0.00");
}

std::string SlabTendonsText(double tendons, double spacing) {
    return ShownNumber(tendons, "#,##0") + " Tendons at " + ShownNumber(spacing, "#,##0.00") +
           " Feet O.C.";
}

// Beam tendons per direction may be a fraction when the tendons per beam are.
std::string BeamTendonText(double tendons) {
    return ShownNumber(tendons, tendons == std::floor(tendons) ? "#,##0" : "#,##0.0");
}

// A force in kips and the prestress it gives on the section, in psi.
double PrestressOf(double force, double area) {
    return force * 1000 / area;
}

} // namespace

std::string SlabDimensionsText(double width, double length, double thickness) {
    return ShownNumber(width, "#,##0.00") + " FT x " + ShownNumber(length, "#,##0.00") + " FT x " +
           ShownNumber(thickness, "#,##0.00") + " Inches thick";
}

std::string SubgradeFrictionText(std::int16_t subgradeType, bool uniformPage) {
    switch (subgradeType) {
    case 2:
        return uniformPage ? "Subgrade Friction calculated by user."
                           : "Subgrade Friction calculated by user.  Effective prestress at "
                             "mid-slab not calculated.";
    case 0:
        return "Subgrade Friction calculated by method prescribed in PTI Manual";
    case 1:
        return "Subgrade Friction calculated by \"Full Length Drag\" Method";
    default:
        return {};
    }
}

void AddRibbedSummaryPage(FormModel& form, std::vector<ResultPage>& pages,
                          LabelCounters& counters) {
    PageBuilder page(form, pages, counters, SummaryFrame);
    page.Heading("RIBBED FOUNDATION - DESIGN SUMMARY");
    page.TextRow("Slab Dimensions :", "lblWLT");
    page.Heading("Material Properties");
    page.TextRow("Concrete Strength :", "lblFpc");
    page.TextRow("Tendon Strength :", "lblFpu");
    page.Heading("Material Quantities");
    page.TextRow("Concrete Volume :", "lblConcVOL");
    page.TextRow("Prestressing Tendon :", "lblTNDNLGTH");
    page.Row("Number of End Anchorages :", {"lblNEA"});
    AddBeamTable(page, "LONG", 'L');
    AddBeamTable(page, "SHORT", 'S');
    page.Heading("Slab Tendons");
    page.TextRow("Average Slab Tendon Cover :", "lblSlabTenCov");
}

void AddBearingPrestressPage(FormModel& form, std::vector<ResultPage>& pages,
                             LabelCounters& counters) {
    PageBuilder page(form, pages, counters, BearingFrame);
    page.Heading("SOIL BEARING");
    page.Row("Total Applied Load :", {"lblTotalWT"}, "Pounds");
    page.Row("Bearing Area :", {"lblBBA"}, "Sq. Feet");
    page.Note("lblBeamOnly");
    page.Row("Soil Pressure :", {"lblSP"}, "PSF");
    page.Row("Factor of Safety :", {"lblSF"});
    page.Heading("PRESTRESS SUMMARY");
    page.Note("lblSubgradeType");
    page.Columns();
    page.Row("Number of Slab Tendons :", {"lblNSTS", "lblNSTL"});
    page.Row("Number of Beam Tendons :", {"lblTNBTS", "lblTNBTL"});
    page.Row("Slab Tendon Spacing :", {"lblTNDNSS", "lblTNDNSL"}, "Feet");
    page.Row("Center of Gravity of Section (from top) :", {"lblCGS", "lblCGL"}, "Inches");
    page.Row("Center of Gravity of Tendons (from top) :", {"lblCGSTLS", "lblCGSTLL"}, "Inches");
    page.Row("Tendon Eccentricity :", {"lblECCS", "lblECCL"}, "Inches");
    page.Row("Minimum Effective Prestress Force :", {"lblMEPFS", "lblMEPFL"}, "KIPS");
    page.Row("Minimum Effective Prestress :", {"lblMEPS", "lblMEPL"}, "PSI");
    page.NamedRow(ArrayName("lblSlab", 0),
                  "Effective Prestress Force at Beta :", {"lblEPFBS", "lblEPFBL"}, "KIPS");
    page.NamedRow(ArrayName("lblSlab", 1), "Effective Prestress at Beta :", {"lblEPBS", "lblEPBL"},
                  "PSI");
}

void AddSelectedVariablesPage(FormModel& form, std::vector<ResultPage>& pages,
                              LabelCounters& counters) {
    PageBuilder page(form, pages, counters, VariablesFrame);
    page.Heading("SELECTED VARIABLES");
    page.Row("Jacking Force per Tendon :", {"lblJack"}, "KIPS");
    page.Columns();
    page.Row("Cross Sectional Area :", {"lblAREAS", "lblAREAL"}, "Inches^2");
    page.Row("Moment of Inertia :", {"lblIXS", "lblIXL"}, "Inches^4");
    page.Row("Section Modulus, Top :", {"lblSXTS", "lblSXTL"}, "Inches^3");
    page.Row("Section Modulus, Bottom :", {"lblSXBS", "lblSXBL"}, "Inches^3");
    page.Row("Center of Gravity of Section (from top) :", {"lblCGS", "lblCGL"}, "Inches");
    page.Row("Center of Gravity of Tendons (from top) :", {"lblCGSTLS", "lblCGSTLL"}, "Inches");
    page.NamedRow(ArrayName("lblSV", 0),
                  "Beta Distance :", {ArrayName("lblBETA", 0), ArrayName("lblBETA", 1)}, "Feet");
    page.NamedRow(ArrayName("lblSV", 1), "Beta Distance  (Edge Down) :",
                  {ArrayName("lblBETA", 2), ArrayName("lblBETA", 3)}, "Feet");
    page.NamedRow(ArrayName("EqDepth", 0), "Equivalent Beam Depth, Short Direction :", {"lblDS"},
                  "Inches");
    page.NamedRow(ArrayName("EqDepth", 1), "Equivalent Beam Depth, Long Direction :", {"lblDL"},
                  "Inches");
}

void FillRibbedSummaryPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r) {
    SetLabel(form, "lblWLT",
             SlabDimensionsText(record.RectWidth, record.RectLength, record.SlabThick));
    SetLabel(form, "lblFpc", ShownNumber(record.Fpc, "#,##0") + " PSI");
    SetLabel(form, "lblFpu", ShownNumber(record.Fpu, "#,##0") + " KSI");
    SetLabel(form, "lblConcVOL", ShownNumber(r.ConcreteVolume, "#,##0.0") + " Cubic Yards");
    SetLabel(form, "lblTNDNLGTH", ShownNumber(r.TendonLength, "#,##0.0") + " Linear Feet");
    SetNumber(form, "lblNEA", r.TendonEndAllowance, "#,##0");

    SetBeams(form, "S1", record.QS1, record.DS1, record.WS1, record.TS1, record.CS1);
    SetBeams(form, "S2", record.QS2, record.DS2, record.WS2, record.TS2, record.CS2);
    SetBeams(form, "L1", record.QL1, record.DL1, record.WL1, record.TL1, record.CL1);
    SetBeams(form, "L2", record.QL2, record.DL2, record.WL2, record.TL2, record.CL2);
    SetNumber(form, "lblSS", r.SpacingShort, "#0.00");
    SetNumber(form, "lblSL", r.SpacingLong, "#0.00");
    SetLabel(form, "lblSST", SlabTendonsText(r.SlabTenShort, r.SlabTenSpacingShort));
    SetLabel(form, "lblLST", SlabTendonsText(r.SlabTenLong, r.SlabTenSpacingLong));

    // Without a cover given, the slab tendons lie at the middle of the slab: the cover is then
    // from the slab's centroid to the face of the tendon.
    const double cover =
        record.SlabTenCovType == 1 ? record.SlabTenCov : r.CgSlab - record.TendDiam / 2;
    SetLabel(form, "lblSlabTenCov", ShownNumber(cover, "#0.00") + " Inches");
}

void FillBearingPrestressPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r,
                              const EngineSettings& settings) {
    SetNumber(form, "lblTotalWT", r.TotalAppliedLoad, "#,###,##0");
    SetNumber(form, "lblBBA", r.BearingArea, "#,##0.0");
    SetLabel(form, "lblBeamOnly",
             settings.UseBeamOnly == 1 ? "(Based on beam bottom area only)" : "");
    SetNumber(form, "lblSP", r.SoilPressure, "#,##0");
    SetNumber(form, "lblSF", r.BearingSafety, "##0.00");
    SetLabel(form, "lblSubgradeType", SubgradeFrictionText(record.Subgradetype, false));

    SetNumber(form, "lblNSTS", r.SlabTenShort, "#,##0");
    SetNumber(form, "lblNSTL", r.SlabTenLong, "#,##0");
    SetLabel(form, "lblTNBTS", BeamTendonText(r.BeamTenShort));
    SetLabel(form, "lblTNBTL", BeamTendonText(r.BeamTenLong));
    SetNumber(form, "lblTNDNSS", r.SlabTenSpacingShort, "#,##0.00");
    SetNumber(form, "lblTNDNSL", r.SlabTenSpacingLong, "#,##0.00");
    SetNumber(form, "lblCGS", r.CgTopShort, "#,##0.00");
    SetNumber(form, "lblCGL", r.CgTopLong, "#,##0.00");
    SetNumber(form, "lblCGSTLS", r.TenCgShort, "#,##0.00");
    SetNumber(form, "lblCGSTLL", r.TenCgLong, "#,##0.00");
    SetNumber(form, "lblECCS", r.EccShort, "#,##0.00");
    SetNumber(form, "lblECCL", r.EccLong, "#,##0.00");
    SetNumber(form, "lblMEPFS", r.AreaShort * r.PsCenterShort / 1000, "#,##0.0");
    SetNumber(form, "lblMEPFL", r.AreaLong * r.PsCenterLong / 1000, "#,##0.0");
    SetNumber(form, "lblMEPS", r.PsCenterShort, "#,##0");
    SetNumber(form, "lblMEPL", r.PsCenterLong, "#,##0");

    const std::string forceCaption = ArrayName("lblSlab", 0);
    const std::string stressCaption = ArrayName("lblSlab", 1);
    if (record.SoilType != 0 && record.CLSettleState == 1) {
        SetLabel(form, forceCaption,
                 "Effective Prestress Force at Beta - Center Down (Edge Down) :");
        SetLabel(form, stressCaption, "Effective Prestress at Beta - Center Down (Edge Down) :");
        SetLabel(form, "lblEPFBS",
                 ShownNumber(r.ForceNetCDShort, "#,##0.0") + " (" +
                     ShownNumber(r.ForceNetEDShort, "#,##0.0") + ")");
        SetLabel(form, "lblEPFBL",
                 ShownNumber(r.ForceNetCDLong, "#,##0.0") + " (" +
                     ShownNumber(r.ForceNetEDLong, "#,##0.0") + ")");
        SetLabel(form, "lblEPBS",
                 ShownNumber(PrestressOf(r.ForceNetCDShort, r.AreaShort), "#,##0") + " (" +
                     ShownNumber(PrestressOf(r.ForceNetEDShort, r.AreaShort), "#,##0") + ")");
        SetLabel(form, "lblEPBL",
                 ShownNumber(PrestressOf(r.ForceNetCDLong, r.AreaLong), "#,##0") + " (" +
                     ShownNumber(PrestressOf(r.ForceNetEDLong, r.AreaLong), "#,##0") + ")");
    } else if (record.SoilType != 0) {
        SetLabel(form, forceCaption, "Effective Prestress Force at Beta - Center Down :");
        SetLabel(form, stressCaption, "Effective Prestress at Beta - Center Down :");
        SetNumber(form, "lblEPFBS", r.ForceNetCDShort, "#,##0.0");
        SetNumber(form, "lblEPFBL", r.ForceNetCDLong, "#,##0.0");
        SetNumber(form, "lblEPBS", PrestressOf(r.ForceNetCDShort, r.AreaShort), "#,##0");
        SetNumber(form, "lblEPBL", PrestressOf(r.ForceNetCDLong, r.AreaLong), "#,##0");
    } else {
        SetLabel(form, forceCaption, "Effective Prestress Force at Beta :");
        SetLabel(form, stressCaption, "Effective Prestress at Beta :");
        SetNumber(form, "lblEPFBS", r.ForceNetShort, "#,##0.0");
        SetNumber(form, "lblEPFBL", r.ForceNetLong, "#,##0.0");
        SetNumber(form, "lblEPBS", PrestressOf(r.ForceNetShort, r.AreaShort), "#,##0");
        SetNumber(form, "lblEPBL", PrestressOf(r.ForceNetLong, r.AreaLong), "#,##0");
    }
}

void FillSelectedVariablesPage(FormModel& form, const DesignRecord& record,
                               const ResultsRecord& r) {
    SetNumber(form, "lblJack", r.TendonJackForce, "##0.0");
    SetNumber(form, "lblAREAS", r.AreaShort, "#,##0.00");
    SetNumber(form, "lblAREAL", r.AreaLong, "#,##0.00");
    SetNumber(form, "lblIXS", r.InertiaShort, "#,##0.00");
    SetNumber(form, "lblIXL", r.InertiaLong, "#,##0.00");
    SetNumber(form, "lblSXTS", r.SecModTopShort, "#,##0.00");
    SetNumber(form, "lblSXTL", r.SecModTopLong, "#,##0.00");
    SetNumber(form, "lblSXBS", r.SecModBottomShort, "#,##0.00");
    SetNumber(form, "lblSXBL", r.SecModBottomLong, "#,##0.00");

    SetBetaRows(
        form, "lblSV", "lblBETA", record.SoilType, record.CLSettleState,
        {r.BetaShort, r.BetaLong, r.BetaCDShort, r.BetaCDLong, r.BetaEDShort, r.BetaEDLong});

    // The equivalent depth says something only where a direction has two groups of beams of
    // different depths.
    const bool shortRow = record.QS1 != 0 && record.QS2 != 0 && record.DS1 != record.DS2;
    const bool longRow = record.QL1 != 0 && record.QL2 != 0 && record.DL1 != record.DL2;
    SetNumber(form, "lblDS", r.EquivDepthShort, "#,##0.00");
    SetNumber(form, "lblDL", r.EquivDepthLong, "#,##0.00");
    ShowLabel(form, "lblDS", shortRow);
    ShowLabel(form, ArrayName("EqDepth", 0), shortRow);
    ShowLabel(form, "lblDL", longRow);
    ShowLabel(form, ArrayName("EqDepth", 1), longRow);
}
