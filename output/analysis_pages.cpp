#include "output/analysis_pages.h"

#include "common/number_pattern.h"
#include "compliance/mode_values.h"
#include "output/label_text.h"

#include <string>
#include <vector>

namespace {

using Names = std::vector<std::string>; // a short and a long value

// Where one analysis page shows its values.
struct AnalysisPage {
    std::string frame{};
    int copy = 0; // of lblFT, lblFc, lblUseBeta
    bool lift = true;
    std::string heading{};
    std::string momentShort{};
    std::string momentLong{};
    bool em5Notes = false;
    std::string tensionHeading{};
    Names tension{};
    std::string compressionHeading{};
    Names compression{};
    // The stiffness coefficient or the deflection ratio. The two down pages share the array
    // `lblDefSettle`: (0) the center down ratio `DefSettle`, (1) the edge down one `DefCLSettle`.
    std::string criterion{};
    Names demand{};        // lift: required inertia; down: actual deflection
    Names allowed{};       // lift: available inertia; down: allowable deflection
    std::string ddPanel{}; // ribbed lift pages: the differential deflection panel
    Names ddAllowed{};
    Names ddActual{};
    Names shear{};
    Names allowShear{};
    Names crackDemand{}; // lift pages
    Names crackCapacity{};
};

Names Pair(const std::string& shortName, const std::string& longName) {
    return {shortName, longName};
}

const AnalysisPage RibbedCenterLift{
    .frame = "fraExpOutput(3)",
    .copy = 0,
    .heading = "MOMENT ANALYSIS - CENTER LIFT MODE",
    .momentShort = "lblCLMS",
    .momentLong = "lblCLML",
    .em5Notes = true,
    .tensionHeading = "Tension in Top Fiber",
    .tension = Pair("lblNMTS", "lblNMTL"),
    .compressionHeading = "Compression in Bottom Fiber",
    .compression = Pair("lblNMCS", "lblNMCL"),
    .criterion = "lblDefCenter",
    .demand = Pair("lblIRSc", "lblIRLc"),
    .allowed = Pair("lblIXSc", "lblIXLc"),
    .ddPanel = "fraDD(0)",
    .ddAllowed = Pair("lblACLDDS", "lblACLDDL"),
    .ddActual = Pair("lblCLDDS", "lblCLDDL"),
    .shear = Pair("lblCLVSS", "lblCLVSL"),
    .allowShear = Pair("lblVCS", "lblVCL"),
    .crackDemand = Pair("lblclP9TMS", "lblclP9TML"),
    .crackCapacity = Pair("lblclMcrS", "lblclMcrL"),
};

const AnalysisPage RibbedEdgeLift{
    .frame = "fraExpOutput(4)",
    .copy = 1,
    .heading = "MOMENT ANALYSIS - EDGE LIFT MODE",
    .momentShort = "lblELMS",
    .momentLong = "lblELML",
    .tensionHeading = "Tension in Bottom Fiber",
    .tension = Pair("lblPMTS", "lblPMTL"),
    .compressionHeading = "Compression in Top Fiber",
    .compression = Pair("lblPMCS", "lblPMCL"),
    .criterion = "lblDefEdge",
    .demand = Pair("lblIRSe", "lblIRLe"),
    .allowed = Pair("lblIXSe", "lblIXLe"),
    .ddPanel = "fraDD(1)",
    .ddAllowed = Pair("lblAELDDS", "lblAELDDL"),
    .ddActual = Pair("lblELDDS", "lblELDDL"),
    .shear = Pair("lblELVSS", "lblELVSL"),
    .allowShear = Pair("lblVCS", "lblVCL"),
    .crackDemand = Pair("lblelP9TMS", "lblelP9TML"),
    .crackCapacity = Pair("lblelMcrS", "lblelMcrL"),
};

const AnalysisPage RibbedCenterDown{
    .frame = "fraExpOutput(7)",
    .copy = 2,
    .lift = false,
    .heading = "MOMENT ANALYSIS",
    .momentShort = "lblcMS",
    .momentLong = "lblcML",
    .tensionHeading = "Tension in Bottom Fiber",
    .tension = PairArray("lblcPMT"),
    .compressionHeading = "Compression in Top Fiber",
    .compression = PairArray("lblcPMC"),
    .criterion = ArrayName("lblDefSettle", 0),
    .demand = Pair("lblcDDS", "lblcDDL"),
    .allowed = Pair("lblAcDDS", "lblAcDDL"),
    .shear = PairArray("lblcVS"),
    .allowShear = Pair("lblVCS", "lblVCL"),
};

const AnalysisPage RibbedEdgeDown{
    .frame = "fraExpOutput(8)",
    .copy = 3,
    .lift = false,
    .heading = "MOMENT ANALYSIS",
    .momentShort = "lblcCLMS",
    .momentLong = "lblcCLML",
    .tensionHeading = "Tension in Top Fiber",
    .tension = PairArray("lblcNMT"),
    .compressionHeading = "Compression in Bottom Fiber",
    .compression = PairArray("lblcNMC"),
    .criterion = ArrayName("lblDefSettle", 1),
    .demand = Pair("lblcCLDDS", "lblcCLDDL"),
    .allowed = Pair("lblcACLDDS", "lblcACLDDL"),
    .shear = PairArray("lblcCLVS"),
    .allowShear = Pair("lblVCS", "lblVCL"),
};

const AnalysisPage UniformCenterLift{
    .frame = "fraUTFOutput(3)",
    .copy = 4,
    .heading = "MOMENT ANALYSIS - CENTER LIFT MODE",
    .momentShort = "lbleqCLMS",
    .momentLong = "lbleqCLML",
    .em5Notes = true,
    .tensionHeading = "Tension in Top Fiber",
    .tension = Pair("lbleqNMTS", "lbleqNMTL"),
    .compressionHeading = "Compression in Bottom Fiber",
    .compression = Pair("lbleqNMCS", "lbleqNMCL"),
    .criterion = "lbleqDefCenter",
    .demand = Pair("lbleqIRSc", "lbleqIRLc"),
    .allowed = Pair("lbleqIXS", "lbleqIXL"),
    .shear = Pair("lbleqCLVSS", "lbleqCLVSL"),
    .allowShear = Pair("lbleqVCS", "lbleqVCL"),
    .crackDemand = Pair("lbleqclP9TMS", "lbleqclP9TML"),
    .crackCapacity = Pair("lbleqclMcrS", "lbleqclMcrL"),
};

const AnalysisPage UniformEdgeLift{
    .frame = "fraUTFOutput(4)",
    .copy = 5,
    .heading = "MOMENT ANALYSIS - EDGE LIFT MODE",
    .momentShort = "lbleqELMS",
    .momentLong = "lbleqELML",
    .tensionHeading = "Tension in Bottom Fiber",
    .tension = Pair("lbleqPMTS", "lbleqPMTL"),
    .compressionHeading = "Compression in Top Fiber",
    .compression = Pair("lbleqPMCS", "lbleqPMCL"),
    .criterion = "lbleqDefEdge",
    .demand = Pair("lbleqIRSe", "lbleqIRLe"),
    .allowed = Pair("lbleqIXS", "lbleqIXL"),
    .shear = Pair("lbleqELVSS", "lbleqELVSL"),
    .allowShear = Pair("lbleqVCS", "lbleqVCL"),
    .crackDemand = Pair("lbleqelP9TMS", "lbleqelP9TML"),
    .crackCapacity = Pair("lbleqelMcrS", "lbleqelMcrL"),
};

const AnalysisPage UniformCenterDown{
    .frame = "fraUTFOutput(6)",
    .copy = 6,
    .lift = false,
    .heading = "MOMENT ANALYSIS",
    .momentShort = "lbleqcMS",
    .momentLong = "lbleqcML",
    .tensionHeading = "Tension in Bottom Fiber",
    .tension = PairArray("lbleqcPMT"),
    .compressionHeading = "Compression in Top Fiber",
    .compression = PairArray("lbleqcPMC"),
    .criterion = ArrayName("lbleqDefSettle", 0),
    .demand = PairArray("lbleqcDD"),
    .allowed = PairArray("lbleqcADD"),
    .shear = PairArray("lbleqcVS"),
    .allowShear = Pair("lbleqVCS", "lbleqVCL"),
};

const AnalysisPage UniformEdgeDown{
    .frame = "fraUTFOutput(7)",
    .copy = 7,
    .lift = false,
    .heading = "MOMENT ANALYSIS",
    .momentShort = "lbleqcCLMS",
    .momentLong = "lbleqcCLML",
    .tensionHeading = "Tension in Top Fiber",
    .tension = PairArray("lbleqcCLNMT"),
    .compressionHeading = "Compression in Bottom Fiber",
    .compression = PairArray("lbleqcCLNMC"),
    .criterion = ArrayName("lbleqDefSettle", 1),
    .demand = PairArray("lbleqcCLDD"),
    .allowed = PairArray("lbleqcCLADD"),
    .shear = PairArray("lbleqcCLVS"),
    .allowShear = Pair("lbleqVCS", "lbleqVCL"),
};

const std::string StressHeading = "Bending Stresses (KSI) ";

void AddAnalysisPage(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters,
                     const AnalysisPage& p) {
    PageBuilder page(form, pages, counters, p.frame);
    page.Heading(p.heading);
    if (p.lift) {
        page.Row("Maximum Moment, Short Direction :", {p.momentShort}, "FT-K/FT");
        if (p.em5Notes) {
            page.Note("lblEm5RuleS", "(Moment calculated with Em=5.0 per PTI 4.3.2)");
        }
        page.Row("Maximum Moment, Long Direction :", {p.momentLong}, "FT-K/FT");
        if (p.em5Notes) {
            page.Note("lblEm5RuleL", "(Moment calculated with Em=5.0 per PTI 4.3.2)");
        }
    } else {
        page.Row("Calculated Moment, Short Direction", {p.momentShort}, "FT-K/FT");
        page.Row("Calculated Moment, Long Direction", {p.momentLong}, "FT-K/FT");
    }

    page.Heading(StressHeading);
    page.Note(ArrayName("lblUseBeta", p.copy),
              "(Bending stresses calculated using prestress at Beta)");
    page.Columns();
    page.Heading(p.tensionHeading);
    page.Row("Actual Stress :", p.tension);
    page.Row("Allowable Stress :", {ArrayName("lblFT", p.copy)});
    page.Heading(p.compressionHeading);
    page.Row("Actual Stress :", p.compression);
    page.Row("Allowable Stress :", {ArrayName("lblFc", p.copy)});

    if (p.lift) {
        page.Heading("STIFFNESS ANALYSIS");
        page.Row("Based on Stiffness Criteria of: ", {p.criterion});
        page.Row("Required Moment of Inertia :", p.demand, "Inches^4");
        page.Row("Available Moment of Inertia :", p.allowed, "Inches^4");
        if (!p.ddPanel.empty()) {
            page.Panel(p.ddPanel, "DIFFERENTIAL DEFLECTION");
            page.Note(ArrayName("lblDDNote", p.copy),
                      "Note:  This calculation is not included in or required by the 3rd "
                      "Edition PTI Manual");
            page.Row("Actual Deflection :", p.ddActual, "Inches");
            page.Row("Allowable Deflection :", p.ddAllowed, "Inches");
            page.Panel({});
        }
    } else {
        page.Heading("DIFFERENTIAL DEFLECTION ANALYSIS");
        page.Row("Based on an allowable deflection of L /", {p.criterion});
        page.Row("Actual Deflection :", p.demand, "Inches");
        page.Row("Allowable Deflection :", p.allowed, "Inches");
    }

    page.Heading("SHEAR STRESS ANALYSIS");
    page.Row("Actual Shear Stress :", p.shear, "PSI");
    page.Row("Allowable Shear Stress :", p.allowShear, "PSI");

    if (p.lift) {
        page.Heading("EQUIVALENT CRACKED SECTION ANALYSIS");
        page.Row("0.9 Moment :", p.crackDemand, "FT-K");
        page.Row("Cracked Moment Capacity :", p.crackCapacity, "FT-K");
    }
}

void SetPair(FormModel& form, const Names& names, double shortValue, double longValue,
             std::string_view pattern) {
    SetNumber(form, names[0], shortValue, pattern);
    SetNumber(form, names[1], longValue, pattern);
}

// Everything of a page but the allowables and notes, which FillAnalysisPageNotes writes.
void FillAnalysisPage(FormModel& form, const AnalysisPage& p, double momentShort, double momentLong,
                      double criterion, const ModeValues& v) {
    const DirectionValues& s = v.shortDirection;
    const DirectionValues& l = v.longDirection;
    SetNumber(form, p.momentShort, momentShort, "#,##0.00");
    SetNumber(form, p.momentLong, momentLong, "#,##0.00");
    SetPair(form, p.tension, s.tension, l.tension, "#,##0.000");
    SetPair(form, p.compression, s.compression, l.compression, "#,##0.000");
    SetNumber(form, p.criterion, criterion, "#,##0");
    const char* demandPattern = p.lift ? "#,##0" : "#,##0.00"; // inertia or deflection
    SetPair(form, p.demand, s.demand, l.demand, demandPattern);
    SetPair(form, p.allowed, s.allowed, l.allowed, demandPattern);
    SetPair(form, p.shear, s.shear, l.shear, "#,##0");
    SetPair(form, p.allowShear, s.allowShear, l.allowShear, "#,##0");
    if (p.lift) {
        SetPair(form, p.crackDemand, s.crackDemand, l.crackDemand, "#,##0.0");
        SetPair(form, p.crackCapacity, s.crackCapacity, l.crackCapacity, "#,##0.0");
    }
}

} // namespace

void AddAnalysisPages(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters) {
    for (const AnalysisPage* page :
         {&RibbedCenterLift, &RibbedEdgeLift, &RibbedCenterDown, &RibbedEdgeDown,
          &UniformCenterLift, &UniformEdgeLift, &UniformCenterDown, &UniformEdgeDown}) {
        AddAnalysisPage(form, pages, counters, *page);
    }
}

void FillAnalysisPageNotes(FormModel& form, const ResultsRecord& r,
                           const EngineSettings& settings) {
    for (int copy = 0; copy < AllowableCopies; ++copy) {
        // The line load page gives its allowables with their unit.
        const std::string unit = copy == LineLoadCopy ? " KSI" : "";
        SetLabel(form, ArrayName("lblFT", copy), ShownNumber(r.AllowTension, "#,##0.000") + unit);
        SetLabel(form, ArrayName("lblFc", copy),
                 ShownNumber(r.AllowCompression / 1000, "#,##0.000") + unit);
        ShowLabel(form, ArrayName("lblUseBeta", copy), settings.UseBeta == 1);
    }
    ShowLabel(form, "lblEm5RuleS", r.Em5ControlShort != 0);
    ShowLabel(form, "lblEm5RuleL", r.Em5ControlLong != 0);
    ShowLabel(form, RibbedCenterLift.ddPanel, settings.ShowDD == 1);
    ShowLabel(form, RibbedEdgeLift.ddPanel, settings.ShowDD == 1);
}

void FillRibbedLiftPages(FormModel& form, const DesignRecord& record, const ResultsRecord& r) {
    FillAnalysisPage(form, RibbedCenterLift, r.MomentCLShort, r.MomentCLLong, record.DefCenter,
                     CenterLiftValues(r));
    FillAnalysisPage(form, RibbedEdgeLift, r.MomentELShort, r.MomentELLong, record.DefEdge,
                     EdgeLiftValues(r));
    SetPair(form, RibbedCenterLift.ddAllowed, r.AllowDeflCLShort, r.AllowDeflCLLong, "#,##0.00");
    SetPair(form, RibbedCenterLift.ddActual, r.NetDeflCLShort, r.NetDeflCLLong, "#,##0.00");
    SetPair(form, RibbedEdgeLift.ddAllowed, r.AllowDeflELShort, r.AllowDeflELLong, "#,##0.00");
    SetPair(form, RibbedEdgeLift.ddActual, r.NetDeflELShort, r.NetDeflELLong, "#,##0.00");
}

void FillRibbedDownPages(FormModel& form, const DesignRecord& record, const ResultsRecord& r) {
    FillAnalysisPage(form, RibbedCenterDown, r.MomentCDShort, r.MomentCDLong, record.DefSettle,
                     CenterDownValues(r));
    if (record.CLSettleState == 1) {
        FillAnalysisPage(form, RibbedEdgeDown, r.MomentEDShort, r.MomentEDLong, record.DefCLSettle,
                         EdgeDownValues(r));
    }
}

// The uniform thickness foundation carries the ribbed foundation's moments.
void FillUniformLiftPages(FormModel& form, const DesignRecord& record, const ResultsRecord& r) {
    FillAnalysisPage(form, UniformCenterLift, r.MomentCLShort, r.MomentCLLong, record.DefCenter,
                     UniformCenterLiftValues(r));
    FillAnalysisPage(form, UniformEdgeLift, r.MomentELShort, r.MomentELLong, record.DefEdge,
                     UniformEdgeLiftValues(r));
}

void FillUniformDownPages(FormModel& form, const DesignRecord& record, const ResultsRecord& r) {
    FillAnalysisPage(form, UniformCenterDown, r.MomentCDShort, r.MomentCDLong, record.DefSettle,
                     UniformCenterDownValues(r));
    if (record.CLSettleState == 1) {
        FillAnalysisPage(form, UniformEdgeDown, r.MomentEDShort, r.MomentEDLong, record.DefCLSettle,
                         UniformEdgeDownValues(r));
    }
}
