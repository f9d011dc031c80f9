#include "reports/report_run.h"

#include "reports/compliance_pages.h"
#include "reports/design_summary_pages.h"
#include "reports/exceptions_page.h"
#include "reports/input_data_pages.h"
#include "reports/report_pages.h"
#include "reports/ribbed_results_pages.h"
#include "reports/selected_variables_page.h"
#include "reports/uniform_results_pages.h"

PageProcedure FindPageProcedure(const std::string& name) {
    static const std::pair<const char*, PageProcedure> procedures[] = {
        {"PrintRDS", PrintRDS},   {"PrintUDS", PrintUDS},
        {"PrintRDCS", PrintRDCS}, {"PrintRDCS_Comp", PrintRDCS_Comp},
        {"PrintUDCS", PrintUDCS}, {"PrintUDCS_Comp", PrintUDCS_Comp},
        {"PrintPE", PrintPE},     {"PrintSOID", PrintSOID},
        {"PrintLLA", PrintLLA},   {"PrintRSV", PrintRSV},
        {"PrintRROA", PrintRROA}, {"PrintRROA_Comp", PrintRROA_Comp},
        {"PrintUROA", PrintUROA}, {"PrintUROA_Comp", PrintUROA_Comp},
    };
    for (const auto& [procedureName, procedure] : procedures) {
        if (name == procedureName) {
            return procedure;
        }
    }
    return nullptr;
}

void PrintReport(DrawingSurface& surface, const PrintJob& job, const DesignRecord& record,
                 const ResultsRecord& results, const ReportSettings& settings) {
    PageContext page{surface, record, results, settings.projectPath, job.totalSheets};
    page.column1 = job.column1;
    page.column2 = job.column2;
    page.column3 = job.column3;
    page.timeOfDay = job.timeOfDay;
    page.fontName = job.fontName;
    page.colour = settings.colour;
    page.showAll = settings.showAll;
    page.RibbedOutCount = settings.RibbedOutCount;
    page.settings = settings.engine;

    surface.BeginDocument();
    for (std::size_t i = 0; i < job.pages.size(); ++i) {
        const PageProcedure procedure = FindPageProcedure(job.pages[i].procedure);
        if (procedure == nullptr) {
            continue;
        }
        const LineHeights heights = MeasureLineHeights(page);
        procedure(page, heights, i + 1 == job.pages.size());
    }
    surface.EndDocument();
}
