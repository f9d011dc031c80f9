#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"
#include "reports/drawing_surface.h"

#include <cstdint>
#include <string>

// The frame every report page shares: what a print run hands each page procedure, the line
// heights measured from the font, the header, the footer and the three colour states.

struct PageContext {
    DrawingSurface& surface;
    const DesignRecord& record;
    const ResultsRecord& results;
    std::string projectPath{};    // printed small in the footer
    std::int16_t totalSheets = 0; // "Page n of N"
    int column1 = 1440;
    int column2 = 2160;
    int column3 = 2880;
    std::string timeOfDay{}; // the footer's right text, taken once per print
    std::string fontName = "Arial";
    bool colour = false;  // PrintColor: items out of limits in red rather than bold
    bool showAll = false; // PrintAll: items within their limits listed too
    std::int16_t RibbedOutCount = 0;
    EngineSettings settings{}; // UseBeta, UseBeamOnly, ShowDD of the analysis printed
};

// The width of the sheet (Letter, 8.5 in) and the fixed positions of every page.
inline constexpr double SheetWidth = 12240;
inline constexpr double RuleLeft = 940;
inline constexpr double RuleRight = 9640;
inline constexpr double RightTextEdge = 10580;
// The header's right column: its captions and their values; the texts of the left column end
// a gap before it.
inline constexpr double RightColumn = 7200;
inline constexpr double RightValueColumn = 8750;
inline constexpr double ColumnGap = 120;

// The heights of "Bg" at 10, 12 and 14 point, bold and underlined, in whole twips (a half
// rounded to even). The 10 point height is the line step of a page.
struct LineHeights {
    double points10 = 0;
    double points12 = 0;
    double points14 = 0;
};
LineHeights MeasureLineHeights(PageContext& page);

// The y at which a page's body begins below the header.
double BodyTop(double lineHeight);

void BoldBlack(DrawingSurface& surface);
void UnboldBlack(DrawingSurface& surface);
void BoldRed(DrawingSurface& surface);

// The x that centres a text on the sheet as the report centres it: 360 twips left of the middle.
double CentredX(DrawingSurface& surface, const std::string& text);

// A value right-aligned on `rightEdge` with its unit hanging after it.
void DrawRightAligned(DrawingSurface& surface, double rightEdge, double y, const std::string& value,
                      const std::string& unit = {});

// The header: rules, the build, the product, the firm, the project's title, engineer, number and
// date, and the geotechnical report.
void PrintHeader(PageContext& page, double lineHeight);

// The footer: "Page n of N" from the surface's own page number, a rule, the project's path and
// the time of day of the print.
void PrintFooter(PageContext& page, double lineHeight);

// "These Values Exceed Allowable Limits by the Percentage Indicated:" at x, then an empty line;
// gives the y after it.
double PRNTState(PageContext& page, double x, double y, double lineHeight);

// The build of the program as the header prints it.
inline constexpr const char* BuildText = "Build 100712";
inline constexpr const char* FirmLine = "Brellin Works - Post-Tensioned Slabs-On-Ground";
