#pragma once

#include "engine/design_record.h"

#include <array>
#include <cstdint>
#include <string>

// The ten pages of the printed report, in printing order, with the caption of their box in the
// print dialog and the procedure that draws each soil's variant.

inline constexpr int ReportPageCount = 10;

struct ReportPageInfo {
    const char* caption;
    const char* key; // of the default report setting
    const char* expansiveProcedure;
    const char* compressibleProcedure;
};

const std::array<ReportPageInfo, ReportPageCount>& ReportPages();

// The pages of the uniform thickness foundation and of the line load.
inline constexpr int FirstUniformPage = 4;
inline constexpr int LastUniformPage = 6;
inline constexpr int LineLoadPage = 9;

// Whether the analysed project has the page: the uniform thickness pages with `FlatSlab` 1, the
// line load page with `LineLoadType` 1, the others always.
bool ReportPageExists(int page, const DesignRecord& record);

// The sheets page `page` prints: the results of analysis take two, one on compressible soil
// without edge down; the summary of input data two; the others one.
std::int16_t ReportPageSheets(int page, const DesignRecord& record);

// The procedure that draws the page for the record's soil.
std::string ReportPageProcedure(int page, const DesignRecord& record);
