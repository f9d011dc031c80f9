#include "reports/report_pages.h"

const std::array<ReportPageInfo, ReportPageCount>& ReportPages() {
    static const std::array<ReportPageInfo, ReportPageCount> pages = {{
        {"Ribbed Foundation - Design Summary", "drRDS", "PrintRDS", "PrintRDS"},
        {"Ribbed Foundation - Design Compliance Summary", "drRDCS", "PrintRDCS", "PrintRDCS_Comp"},
        {"Ribbed Foundation - Results of Analysis", "drRROA", "PrintRROA", "PrintRROA_Comp"},
        {"Ribbed Foundation - Selected Variables", "drRSV", "PrintRSV", "PrintRSV"},
        {"Uniform Thickness Foundation - Design Summary", "drUDS", "PrintUDS", "PrintUDS"},
        {"Uniform Thickness Foundation - Design Compliance Summary", "drUDCS", "PrintUDCS",
         "PrintUDCS_Comp"},
        {"Uniform Thickness Foundation - Results of Analysis", "drUROA", "PrintUROA",
         "PrintUROA_Comp"},
        {"Summary of Input Data", "drSOID", "PrintSOID", "PrintSOID"},
        {"PTI Exception Summary", "drPES", "PrintPE", "PrintPE"},
        {"Line Load Analysis", "drLLA", "PrintLLA", "PrintLLA"},
    }};
    return pages;
}

bool ReportPageExists(int page, const DesignRecord& record) {
    if (page >= FirstUniformPage && page <= LastUniformPage) {
        return record.FlatSlab == 1;
    }
    if (page == LineLoadPage) {
        return record.LineLoadType == 1;
    }
    return true;
}

std::int16_t ReportPageSheets(int page, const DesignRecord& record) {
    const bool centerDownOnly = record.SoilType == 1 && record.CLSettleState == 0;
    switch (page) {
    case 2:
    case 6:
        return centerDownOnly ? 1 : 2;
    case 7:
        return 2;
    default:
        return 1;
    }
}

std::string ReportPageProcedure(int page, const DesignRecord& record) {
    const ReportPageInfo& info = ReportPages().at(static_cast<std::size_t>(page));
    return record.SoilType == 0 ? info.expansiveProcedure : info.compressibleProcedure;
}
