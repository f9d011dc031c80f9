#include "output/uniform_summary_pages.h"

#include "common/number_pattern.h"
#include "output/label_text.h"
#include "output/ribbed_summary_pages.h"

namespace {

std::string ForceAndEdgeDown(double centerDown, double edgeDown, const char* pattern) {
    return ShownNumber(centerDown, pattern) + " (" + ShownNumber(edgeDown, pattern) + ")";
}

} // namespace

void AddUniformSummaryPage(FormModel& form, std::vector<ResultPage>& pages,
                           LabelCounters& counters) {
    PageBuilder page(form, pages, counters, "fraUTFOutput(0)");
    page.Heading("UNIFORM THICKNESS FOUNDATION - DESIGN SUMMARY");
    page.TextRow("Slab Dimensions :", "lbleqWLT");
    page.NamedRow("lblEFS", "Uniform Thickness Slab :", {"lblEqFST"}, "Inches");
    page.Heading("Material Properties");
    page.TextRow("Concrete Strength :", "lbleqFpc");
    page.TextRow("Tendon Strength :", "lbleqFpu");
    page.Heading("Material Quantities");
    page.TextRow("Concrete Volume :", "lbleqConcVOL");
    page.TextRow("Prestressing Tendon :", "lbleqTNDNLGTH");
    page.Row("Number of End Anchorages :", {"lbleqNEA"});
    page.Heading("Slab Tendons");
    page.Columns();
    page.Row("Number of Slab Tendons :", {"lbleqNSTS", "lbleqNSTL"});
    page.Row("Slab Tendon Spacing :", {"lbleqTNDNSS", "lbleqTNDNSL"}, "Feet");
}

void AddUniformPrestressPage(FormModel& form, std::vector<ResultPage>& pages,
                             LabelCounters& counters) {
    PageBuilder page(form, pages, counters, "fraUTFOutput(5)");
    page.Heading("PRESTRESS SUMMARY");
    page.Note("lbleqSubgradeType");
    page.Columns();
    page.Row("Center of Gravity of Section (from top) :", {"lbleqCG"}, "Inches");
    page.Row("Center of Gravity of Tendons (from top) :", PairArray("lbleqCGT"), "Inches");
    page.Row("Tendon Eccentricity :", PairArray("lbleqECC"), "Inches");
    page.Row("Minimum Effective Prestress Force :", PairArray("lbleqMEPF"), "KIPS");
    page.Row("Minimum Effective Prestress :", PairArray("lbleqMEP"), "PSI");
    page.NamedRow(ArrayName("lblUTS", 0),
                  "Effective Prestress Force at Beta :", PairArray("lbleqBEPF"), "KIPS");
    page.NamedRow(ArrayName("lblUTS", 1), "Effective Prestress at Beta :", PairArray("lbleqBEP"),
                  "PSI");
    page.Heading("SELECTED VARIABLES");
    page.Columns();
    page.Row("Cross Sectional Area :", PairArray("lbleqAREA"), "Inches^2");
    page.Row("Moment of Inertia :", PairArray("lbleqIX"), "Inches^4");
    page.Row("Section Modulus, Top and Bottom :", PairArray("lbleqSX"), "Inches^3");
    page.NamedRow(ArrayName("lbleqSV", 0),
                  "Beta Distance :", {ArrayName("lbleqBETA", 0), ArrayName("lbleqBETA", 1)},
                  "Feet");
    page.NamedRow(ArrayName("lbleqSV", 1), "Beta Distance  (Edge Down) :",
                  {ArrayName("lbleqBETA", 2), ArrayName("lbleqBETA", 3)}, "Feet");
}

void FillUniformSummaryPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r) {
    SetLabel(form, "lbleqWLT",
             SlabDimensionsText(record.RectWidth, record.RectLength, r.UTThickness));
    SetLabel(form, "lblEqFST",
             ShownNumber(r.UTThickness, "#0.00") + " (" + ShownNumber(r.EquivSlabThick, "#0.00") +
                 ")");
    SetLabel(form, "lblEFS", "Uniform Thickness Slab :");
    SetLabel(form, "lbleqFpc", ShownNumber(record.Fpc, "#,##0") + " PSI");
    SetLabel(form, "lbleqFpu", ShownNumber(record.Fpu, "#,##0") + " KSI");
    SetLabel(form, "lbleqConcVOL", ShownNumber(r.UTConcreteVolume, "#,##0.0") + " Cubic Yards");
    SetLabel(form, "lbleqTNDNLGTH", ShownNumber(r.UTTendonLength, "#,##0.0") + " Linear Feet");
    SetNumber(form, "lbleqNEA", r.UTTendonEndAllowance, "#,##0");
    SetNumber(form, "lbleqNSTS", r.UTTotalTenShort, "#,##0");
    SetNumber(form, "lbleqNSTL", r.UTTotalTenLong, "#,##0");
    SetNumber(form, "lbleqTNDNSS", r.UTTenSpacingShort, "#,##0.00");
    SetNumber(form, "lbleqTNDNSL", r.UTTenSpacingLong, "#,##0.00");
}

void FillUniformPrestressPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r) {
    SetLabel(form, "lbleqSubgradeType", SubgradeFrictionText(record.Subgradetype, true));
    SetNumber(form, "lbleqCG", r.UTThickness / 2, "#,##0.00");
    SetPairArray(form, "lbleqCGT", r.UTThickness / 2 - r.UTEccShort,
                 r.UTThickness / 2 - r.UTEccLong, "#,##0.00");
    SetPairArray(form, "lbleqECC", r.UTEccShort, r.UTEccLong, "#,##0.00");
    SetPairArray(form, "lbleqMEPF", r.UTAreaShort * r.UTPsCenterShort / 1000,
                 r.UTAreaLong * r.UTPsCenterLong / 1000, "#,##0.0");
    SetPairArray(form, "lbleqMEP", r.UTPsCenterShort, r.UTPsCenterLong, "#,##0");

    const std::string forceCaption = ArrayName("lblUTS", 0);
    const std::string stressCaption = ArrayName("lblUTS", 1);
    if (record.SoilType != 0 && record.CLSettleState == 1) {
        SetLabel(form, forceCaption,
                 "Effective Prestress Force at Beta - Center Down (Edge Down) :");
        SetLabel(form, stressCaption, "Effective Prestress at Beta - Center Down (Edge Down) :");
        SetLabel(form, ArrayName("lbleqBEPF", 0),
                 ForceAndEdgeDown(r.UTForceNetCDShort, r.UTForceNetEDShort, "#,##0.0"));
        SetLabel(form, ArrayName("lbleqBEPF", 1),
                 ForceAndEdgeDown(r.UTForceNetCDLong, r.UTForceNetEDLong, "#,##0.0"));
        SetLabel(form, ArrayName("lbleqBEP", 0),
                 ForceAndEdgeDown(r.UTForceNetCDShort * 1000 / r.UTAreaShort,
                                  r.UTForceNetEDShort * 1000 / r.UTAreaShort, "#,##0"));
        SetLabel(form, ArrayName("lbleqBEP", 1),
                 ForceAndEdgeDown(r.UTForceNetCDLong * 1000 / r.UTAreaLong,
                                  r.UTForceNetEDLong * 1000 / r.UTAreaLong, "#,##0"));
    } else if (record.SoilType != 0) {
        SetLabel(form, forceCaption, "Effective Prestress Force at Beta - Center Down :");
        SetLabel(form, stressCaption, "Effective Prestress at Beta - Center Down :");
        SetPairArray(form, "lbleqBEPF", r.UTForceNetCDShort, r.UTForceNetCDLong, "#,##0.0");
        SetPairArray(form, "lbleqBEP", r.UTForceNetCDShort * 1000 / r.UTAreaShort,
                     r.UTForceNetCDLong * 1000 / r.UTAreaLong, "#,##0");
    } else {
        SetLabel(form, forceCaption, "Effective Prestress Force at Beta :");
        SetLabel(form, stressCaption, "Effective Prestress at Beta :");
        SetPairArray(form, "lbleqBEPF", r.UTForceNetShort, r.UTForceNetLong, "#,##0.0");
        SetPairArray(form, "lbleqBEP", r.UTForceNetShort * 1000 / r.UTAreaShort,
                     r.UTForceNetLong * 1000 / r.UTAreaLong, "#,##0");
    }

    SetPairArray(form, "lbleqAREA", r.UTAreaShort, r.UTAreaLong, "#,##0.00");
    SetPairArray(form, "lbleqIX", r.UTInertiaShort, r.UTInertiaLong, "#,##0.00");
    SetPairArray(form, "lbleqSX", r.UTSecModShort, r.UTSecModLong, "#,##0.00");
    SetBetaRows(form, "lbleqSV", "lbleqBETA", record.SoilType, record.CLSettleState,
                {r.UTBetaShort, r.UTBetaLong, r.UTBetaCDShort, r.UTBetaCDLong, r.UTBetaEDShort,
                 r.UTBetaEDLong});
}
