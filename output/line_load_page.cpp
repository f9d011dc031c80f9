#include "output/line_load_page.h"

#include "common/number_pattern.h"
#include "output/analysis_pages.h"
#include "output/label_text.h"

namespace {

std::string Line(int index) {
    return ArrayName("lblLine", index);
}

// The uniform thickness slab's rows and their captions.
const std::vector<std::string> UniformRows = {
    "lblllPMeq", "lblllSTeq", "lblllSBeq", "lblllPrestresseq", Line(3), Line(4), Line(5)};

void SetRows(FormModel& form, const std::string& suffix, double moment, double compression,
             double tension, double prestress) {
    SetLabel(form, "lblllPM" + suffix, ShownNumber(moment / 1000, "#,##0.00") + " K FT/FT");
    SetLabel(form, "lblllST" + suffix, ShownNumber(compression / 1000, "#,##0.000") + " KSI");
    SetLabel(form, "lblllSB" + suffix, ShownNumber(tension / 1000, "#,##0.000") + " KSI");
    SetLabel(form, "lblllPrestress" + suffix, ShownNumber(prestress, "#,##0.0") + " PSI");
}

} // namespace

void AddLineLoadPage(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters) {
    PageBuilder page(form, pages, counters, "fraMain(3)");
    page.Heading("LINE LOAD ANALYSIS");
    page.Note("lblllDesc");
    page.Note(ArrayName("lblUseBeta", LineLoadCopy),
              "(Bending stresses calculated using prestress at Beta)");
    page.Columns("Compression", "Tension");
    page.NamedRow(Line(0), "Calculated Moment :", {"lblllPM"});
    page.NamedRow(Line(1), "Applied Bending Stress :", {"lblllST", "lblllSB"});
    page.NamedRow(Line(2), "Prestress at Line Load :", {"lblllPrestress"});
    page.NamedRow(Line(3), "", {"lblllPMeq"});
    page.NamedRow(Line(4), "", {"lblllSTeq", "lblllSBeq"});
    page.NamedRow(Line(5), "", {"lblllPrestresseq"});
    page.Row("Allowable Stress :",
             {ArrayName("lblFc", LineLoadCopy), ArrayName("lblFT", LineLoadCopy)});
    page.Heading("DESIGN COMPLIANCE");
    page.Check("chkRibbedLLDC", "Display all");
    page.List("rtbLLDC");
}

void FillLineLoadPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r) {
    SetLabel(form, "lblllDesc", "for Line Load running parallel to the " + record.DirLineLoad);
    SetRows(form, "", r.LLMoment, r.LLStressCompression, r.LLStressTension, r.LLPrestress);

    const bool uniform = record.FlatSlab == 1;
    if (uniform) {
        SetRows(form, "eq", r.UTLLMoment, r.UTLLStressCompression, r.UTLLStressTension,
                r.UTLLPrestress);
        // Both slabs are on the page: each row names its slab's thickness.
        const std::string ribbed = ShownNumber(record.SlabThick, "#0.00");
        SetLabel(form, Line(0), "Calculated Moment (" + ribbed + " In.Thick Slab) :");
        SetLabel(form, Line(1), "Applied Bending Stress (" + ribbed + " In. Thick Slab) :");
        SetLabel(form, Line(2), "Prestress at Line Load (" + ribbed + " In. Thick Slab) :");
        const std::string flat = ShownNumber(r.UTThickness, "#0.00");
        SetLabel(form, Line(3), "Calculated Moment (" + flat + " In.Thick Slab) :");
        SetLabel(form, Line(4), "Applied Bending Stress (" + flat + " In. Thick Slab) :");
        SetLabel(form, Line(5), "Prestress at Line Load (" + flat + " In. Thick Slab) :");
    } else {
        SetLabel(form, Line(0), "Calculated Moment :");
        SetLabel(form, Line(1), "Applied Bending Stress :");
        SetLabel(form, Line(2), "Prestress at Line Load :");
    }
    for (const std::string& name : UniformRows) {
        ShowLabel(form, name, uniform);
    }
}
