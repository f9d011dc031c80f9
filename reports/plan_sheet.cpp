#include "reports/plan_sheet.h"

#include "plan/plan_legend.h"
#include "reports/plan_drawing.h"

std::vector<std::string> PlanSheetTitle(const DesignRecord& record) {
    std::vector<std::string> lines{"FOUNDATION PLAN AND TYPICAL SECTIONS"};
    std::string project = record.ProjName;
    if (!record.RectLabel.empty()) {
        project += (project.empty() ? "" : " - ") + record.RectLabel;
    }
    if (!project.empty()) {
        lines.push_back(project);
    }
    return lines;
}

void DrawPlanSheet(DrawingSurface& surface, const FoundationPlan& plan,
                   const std::vector<std::string>& titleLines, const DrawingBox& sheet,
                   SheetScale sheetScale) {
    surface.SetColour(Black);
    PlacedTexts placed;
    double y = sheet.y;
    // The scale of a printed sheet stands at its top right, beside the title.
    UseDrawingText(surface);
    const bool scaleShown = sheetScale == SheetScale::Printed && plan.reason.empty();
    const PlanFit fit = scaleShown ? PlanFit::EngineersScale : PlanFit::Exact;
    const double scaleRoom =
        scaleShown ? surface.TextWidth("Plan scale: 1 in = 9,999.99 ft") + 300 : 0;
    for (std::size_t i = 0; i < titleLines.size(); ++i) {
        if (i == 0) {
            UseDrawingTitle(surface);
        } else {
            UseDrawingText(surface);
        }
        const std::vector<std::string> lines =
            WrapText(surface, titleLines[i], sheet.width - scaleRoom);
        placed.Place(surface, sheet.x, y, lines);
        y += BlockHeight(surface, lines);
    }
    y += 200;
    // The sections take the lower part of the sheet; where they cannot fit, a line says so.
    const double bottom = sheet.y + sheet.height;
    const double sectionsHeight = (bottom - y) * 0.4;
    UseDrawingTitle(surface);
    const double headHeight = surface.TextHeight("Bg") + 150;
    const DrawingBox sections{sheet.x, bottom - sectionsHeight + headHeight, sheet.width,
                              sectionsHeight - headHeight};
    double scale = 0;
    if (plan.sections.empty() || !plan.reason.empty()) {
        scale = DrawFoundationPlan(surface, plan, {sheet.x, y, sheet.width, bottom - y}, fit);
    } else if (TypicalSectionsFit(surface, plan, sections)) {
        scale = DrawFoundationPlan(
            surface, plan, {sheet.x, y, sheet.width, bottom - y - sectionsHeight - 200}, fit);
        UseDrawingTitle(surface);
        placed.Place(surface, sheet.x, bottom - sectionsHeight, {"TYPICAL SECTIONS (INCHES)"});
        DrawTypicalSections(surface, plan, sections);
    } else {
        UseDrawingText(surface);
        const std::vector<std::string> note =
            WrapText(surface, "The typical sections need a wider drawing.", sheet.width);
        const double noteHeight = BlockHeight(surface, note);
        scale = DrawFoundationPlan(surface, plan,
                                   {sheet.x, y, sheet.width, bottom - y - noteHeight - 200}, fit);
        UseDrawingText(surface);
        placed.Place(surface, sheet.x, bottom - noteHeight, note);
    }
    if (scaleShown && scale > 0) {
        UseDrawingText(surface);
        const std::string text = "Plan scale: 1 in = " + PlanNumber(1440 / scale) + " ft";
        placed.Place(surface, sheet.x + sheet.width - surface.TextWidth(text), sheet.y, {text});
    }
}
