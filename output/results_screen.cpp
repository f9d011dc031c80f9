#include "output/results_screen.h"

#include "output/analysis_pages.h"
#include "output/compliance_pages.h"
#include "output/line_load_page.h"
#include "output/project_page.h"
#include "output/results_tabs.h"
#include "output/ribbed_summary_pages.h"
#include "output/uniform_summary_pages.h"

namespace {

void AddFrames(FormModel& form, std::string_view array, int count, const std::string& parent) {
    for (int i = 0; i < count; ++i) {
        Control frame;
        frame.name = ArrayName(array, i);
        frame.parent = parent;
        frame.visible = i == 0;
        frame.tabStop = false;
        form.add(std::move(frame));
    }
}

} // namespace

ResultsScreen LoadResultsScreen() {
    ResultsScreen screen;
    screen.tabMain = DesignedMainTabs();
    screen.tabRibbed = DesignedRibbedTabs();
    screen.tabUniform = DesignedUniformTabs();

    FormModel& form = screen.form;
    AddFrames(form, "fraMain", MainFrames, "");
    AddFrames(form, "fraExpOutput", RibbedFrames, ArrayName("fraMain", 1));
    AddFrames(form, "fraUTFOutput", UniformFrames, ArrayName("fraMain", 2));

    LabelCounters counters;
    std::vector<ResultPage>& pages = screen.pages;
    AddProjectPage(form, pages, counters);
    AddRibbedSummaryPage(form, pages, counters);
    AddCompliancePages(form, pages, counters);
    AddAnalysisPages(form, pages, counters);
    AddBearingPrestressPage(form, pages, counters);
    AddSelectedVariablesPage(form, pages, counters);
    AddUniformSummaryPage(form, pages, counters);
    AddUniformPrestressPage(form, pages, counters);
    AddLineLoadPage(form, pages, counters);
    return screen;
}

CompliancePass FillResults(ResultsScreen& screen, const DesignRecord& record,
                           const ResultsRecord& results, const EngineSettings& settings) {
    const CompliancePass pass = RunCompliancePass(record, results, screen.flags);
    FillCompliancePages(screen, pass);

    FormModel& form = screen.form;
    FillProjectPage(form, record);
    FillSummaryLines(form, record, pass);

    FillRibbedSummaryPage(form, record, results);
    FillBearingPrestressPage(form, record, results, settings);
    FillSelectedVariablesPage(form, record, results);
    FillAnalysisPageNotes(form, results, settings);
    if (record.SoilType == 0) {
        FillRibbedLiftPages(form, record, results);
    } else if (record.SoilType == 1) {
        FillRibbedDownPages(form, record, results);
    }
    if (record.FlatSlab == 1) {
        FillUniformSummaryPage(form, record, results);
        FillUniformPrestressPage(form, record, results);
        if (record.SoilType == 0) {
            FillUniformLiftPages(form, record, results);
        } else if (record.SoilType == 1) {
            FillUniformDownPages(form, record, results);
        }
    }
    if (record.LineLoadType == 1) {
        FillLineLoadPage(form, record, results);
    }
    return pass;
}
