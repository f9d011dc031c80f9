#include "reports/page_frame.h"

#include "reports/header_fit.h"

#include <cmath>

namespace {

// Whole twips, a half to the even neighbour.
double WholeTwips(double value) {
    return std::nearbyint(value);
}

void DrawRule(DrawingSurface& surface, double y) {
    surface.SetLineWidth(4);
    surface.DrawLine(RuleLeft, y, RuleRight, y);
}

} // namespace

LineHeights MeasureLineHeights(PageContext& page) {
    DrawingSurface& surface = page.surface;
    surface.SetFontName(page.fontName);
    surface.SetUnderline(true);
    surface.SetBold(true);
    LineHeights heights;
    surface.SetFontSize(10);
    heights.points10 = WholeTwips(surface.TextHeight("Bg"));
    surface.SetFontSize(12);
    heights.points12 = WholeTwips(surface.TextHeight("Bg"));
    surface.SetFontSize(14);
    heights.points14 = WholeTwips(surface.TextHeight("Bg"));
    surface.SetUnderline(false);
    surface.SetBold(false);
    surface.SetFontSize(10);
    return heights;
}

double BodyTop(double lineHeight) {
    return WholeTwips(lineHeight * 2.25 + 2805);
}

void BoldBlack(DrawingSurface& surface) {
    surface.SetBold(true);
    surface.SetColour(Black);
}

void UnboldBlack(DrawingSurface& surface) {
    surface.SetBold(false);
    surface.SetColour(Black);
}

void BoldRed(DrawingSurface& surface) {
    surface.SetBold(true);
    surface.SetColour(Red);
}

double CentredX(DrawingSurface& surface, const std::string& text) {
    return (SheetWidth - surface.TextWidth(text)) / 2 - 360;
}

void DrawRightAligned(DrawingSurface& surface, double rightEdge, double y, const std::string& value,
                      const std::string& unit) {
    surface.DrawText(rightEdge - surface.TextWidth(value), y, value + unit);
}

void PrintHeader(PageContext& page, double lineHeight) {
    DrawingSurface& surface = page.surface;
    const DesignRecord& r = page.record;
    DrawRule(surface, 720);

    surface.SetFontSize(6);
    DrawRightAligned(surface, RightTextEdge, 765, BuildText);
    const double buildHeight = surface.TextHeight(BuildText);

    const std::string product = "Korvath 3.0";
    surface.SetFontSize(16);
    surface.SetBold(true);
    const double productY = 765 + buildHeight;
    surface.SetFontSize(16);
    surface.DrawText(CentredX(surface, product), productY, product);
    const double firmY = productY + surface.TextHeight(product);

    surface.SetBold(false);
    surface.SetFontSize(10);
    surface.DrawText(CentredX(surface, FirmLine), firmY, FirmLine);
    const double ruleY = firmY + lineHeight + 200;
    DrawRule(surface, ruleY);

    // The project's texts keep to their columns: the left ones end a little before the captions
    // of the right column, the title and the right ones at the right text edge.
    double y = ruleY + lineHeight / 2;
    const double column1 = page.column1;
    const double leftLimit = RightColumn - ColumnGap;
    DrawCaptionedText(surface, column1, y, RightTextEdge, "Project Title :    ", r.ProjName);
    y += lineHeight;
    DrawCaptionedText(surface, column1, y, leftLimit, "Project Engineer :  ", r.ProjEng);
    surface.DrawText(RightColumn, y, "Project Number :    ");
    DrawFittedText(surface, RightValueColumn, y, RightTextEdge, r.ProjNum);
    y += lineHeight;
    surface.DrawText(RightColumn, y, "Project Date :    ");
    DrawFittedText(surface, RightValueColumn, y, RightTextEdge, r.ProjDate);
    y += lineHeight * 2;
    DrawCaptionedText(surface, column1, y, leftLimit, "Geotechnical Report :  ", r.ProjGeoRep);
    surface.DrawText(RightColumn, y, "Report Date :  ");
    DrawFittedText(surface, RightValueColumn, y, RightTextEdge, r.ProjGeoDate);
    y += lineHeight;
    surface.DrawText(RightColumn, y, "Report Number : ");
    DrawFittedText(surface, RightValueColumn, y, RightTextEdge, r.ProjGeoNum);
}

void PrintFooter(PageContext& page, double lineHeight) {
    DrawingSurface& surface = page.surface;
    UnboldBlack(surface);
    surface.SetUnderline(false);
    surface.SetFontSize(10);
    const std::string pageText =
        "Page " + std::to_string(surface.PageNumber()) + " of " + std::to_string(page.totalSheets);
    surface.DrawText(CentredX(surface, pageText), 14260 - lineHeight * 1.5, pageText);
    DrawRule(surface, 14160);
    surface.SetFontSize(6);
    surface.DrawText(RuleLeft, 14200, page.projectPath);
    DrawRightAligned(surface, RightTextEdge, 14200, page.timeOfDay);
    surface.SetFontSize(10);
}

double PRNTState(PageContext& page, double x, double y, double lineHeight) {
    page.surface.DrawText(x, y,
                          "These Values Exceed Allowable Limits by the Percentage Indicated:");
    return y + lineHeight * 2;
}
