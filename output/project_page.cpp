#include "output/project_page.h"

#include "output/label_text.h"

namespace {

void SetSummaryItem(FormModel& form, const std::string& name, const SummaryLine& line) {
    Control& item = form[name];
    item.caption = line.text;
    item.bold = line.bad;
    item.red = line.bad;
    item.visible = true;
}

void HideItems(FormModel& form, std::string_view group, int first, int count) {
    for (int i = first; i < count; ++i) {
        ShowLabel(form, ArrayName(group, i), false);
    }
}

std::vector<SummaryLine> ShownItems(const FormModel& form, std::string_view group, int first,
                                    int count) {
    std::vector<SummaryLine> lines;
    for (int i = first; i < count; ++i) {
        const Control& item = form[ArrayName(group, i)];
        if (item.visible) {
            lines.push_back({item.caption, item.bold});
        }
    }
    return lines;
}

} // namespace

void AddProjectPage(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters) {
    PageBuilder page(form, pages, counters, "fraMain(0)");
    page.Heading("PROJECT INFORMATION");
    page.TextRow("Project Name :", "lblProjName");
    page.TextRow("Project Date :", "lblProjDate");
    page.TextRow("Project Number :", "lblProjNum");
    page.TextRow("Rectangle Label :", "lblRectLabel");
    page.TextRow("Project Engineer :", "lblProjEng");
    page.Heading("Geotechnical Information Source");
    page.TextRow("Geotechnical Report Source :", "lblProjGeoRep");
    page.TextRow("Geotechnical Report Date :", "lblProjGeoDate");
    page.TextRow("Geotechnical Report Number :", "lblProjGeoNum");
    page.Heading("DESIGN SUMMARY");
    for (int i = 0; i < RibbedSummaryItems; ++i) {
        page.Note(ArrayName("RibbedSummary", i));
    }
    for (int i = 0; i < UTFSummaryItems; ++i) {
        page.Note(ArrayName("UTFSummary", i));
    }
    for (int i = 0; i < LLSummaryItems; ++i) {
        page.Note(ArrayName("LLSummary", i));
    }
    HideItems(form, "UTFSummary", 0, UTFSummaryItems);
    HideItems(form, "LLSummary", 0, LLSummaryItems);
}

void FillProjectPage(FormModel& form, const DesignRecord& record) {
    SetLabel(form, "lblProjName", record.ProjName);
    SetLabel(form, "lblProjDate", record.ProjDate);
    SetLabel(form, "lblProjNum", record.ProjNum);
    SetLabel(form, "lblRectLabel", record.RectLabel);
    SetLabel(form, "lblProjEng", record.ProjEng);
    SetLabel(form, "lblProjGeoRep", record.ProjGeoRep);
    SetLabel(form, "lblProjGeoDate", record.ProjGeoDate);
    SetLabel(form, "lblProjGeoNum", record.ProjGeoNum);
}

void FillSummaryLines(FormModel& form, const DesignRecord& record, const CompliancePass& pass) {
    SetSummaryItem(form, ArrayName("RibbedSummary", 0),
                   {"Ribbed Foundation - Design Summary", false});
    const std::vector<SummaryLine> ribbed = RibbedSummary(record, pass);
    for (std::size_t i = 0; i < ribbed.size(); ++i) {
        SetSummaryItem(form, ArrayName("RibbedSummary", static_cast<int>(i) + 1), ribbed[i]);
    }

    const std::vector<SummaryLine> uniform = UTFSummary(pass);
    if (uniform.empty()) {
        HideItems(form, "UTFSummary", 0, UTFSummaryItems);
    } else {
        SetSummaryItem(form, ArrayName("UTFSummary", 0),
                       {"Uniform Thickness Foundation - Design Summary", false});
        for (std::size_t i = 0; i < uniform.size(); ++i) {
            SetSummaryItem(form, ArrayName("UTFSummary", static_cast<int>(i) + 1), uniform[i]);
        }
    }

    const std::vector<SummaryLine> lineLoad = LLSummary(record, pass);
    for (std::size_t i = 0; i < lineLoad.size(); ++i) {
        SetSummaryItem(form, ArrayName("LLSummary", static_cast<int>(i)), lineLoad[i]);
    }
    HideItems(form, "LLSummary", static_cast<int>(lineLoad.size()), LLSummaryItems);
}

ShownSummary SummaryLinesShown(const FormModel& form) {
    return {ShownItems(form, "RibbedSummary", 1, RibbedSummaryItems),
            ShownItems(form, "UTFSummary", 1, UTFSummaryItems),
            ShownItems(form, "LLSummary", 0, LLSummaryItems)};
}
