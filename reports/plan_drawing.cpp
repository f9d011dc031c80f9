#include "reports/plan_drawing.h"

#include "plan/plan_legend.h"

#include <algorithm>

namespace {

// Clear spaces of the drawing, in twips: between the plan and its first dimension, between a
// dimension line and its text, and the room a dimension's ticks take beyond its line.
constexpr double PlanToDimension = 200;
constexpr double LineToText = 90;
constexpr double TickRoom = 150;
constexpr double ExtensionGap = 30;
constexpr double SwatchWidth = 300;

// A dimension along one side of the plan, in feet from the origin, with its text.
struct PlanDimension {
    double from = 0;
    double to = 0;
    std::vector<std::string> text;
};

double Clamp(double value, double low, double high) {
    return std::max(low, std::min(value, high));
}

// The dimensions of one direction's side, nearest the plan first: the clear gap between the
// first two beams, the analysis beam spacing from the centre of the first beam, the whole side.
// The dimensions at the left of the plan stand their texts in two lines, to keep them narrow.
std::vector<PlanDimension> DimensionsOf(const FoundationPlan& plan, PlanDirection direction,
                                        bool twoLines) {
    std::vector<const PlanBeam*> beams;
    for (const PlanBeam& beam : plan.beams) {
        if (beam.direction == direction) {
            beams.push_back(&beam);
        }
    }
    const double side = direction == PlanDirection::Short ? plan.length : plan.width;
    const double gap = direction == PlanDirection::Short ? plan.gapShort : plan.gapLong;
    const double spacing = direction == PlanDirection::Short ? plan.spacingShort : plan.spacingLong;
    const auto text = [twoLines](const std::string& value, const std::string& what) {
        return twoLines ? std::vector<std::string>{value, what}
                        : std::vector<std::string>{value + " " + what};
    };
    std::vector<PlanDimension> dimensions;
    if (beams.size() >= 2) {
        dimensions.push_back({beams[0]->to, beams[1]->from, text(PlanFeet(gap), "clear")});
        if (spacing > 0) {
            const double start = (beams[0]->from + beams[0]->to) / 2;
            dimensions.push_back({start, std::min(start + spacing, side),
                                  text(PlanFeet(spacing), "analysis spacing")});
        }
    }
    dimensions.push_back({0, side, {PlanFeet(side)}});
    return dimensions;
}

// The room a column of dimensions at the left of the plan takes: the text, its clearance and
// the ticks of the next dimension.
double ColumnWidth(DrawingSurface& surface, const PlanDimension& dimension) {
    return BlockWidth(surface, dimension.text) + LineToText + TickRoom;
}

struct LegendLayout {
    std::vector<LegendEntry> beams;
    std::vector<LegendEntry> tendons;
    bool twoColumns = false;
    double beamColumn = 0;
    double tendonColumn = 0;
    std::size_t rows = 0;
};

LegendLayout ArrangeLegend(DrawingSurface& surface, const FoundationPlan& plan, double width) {
    LegendLayout legend;
    for (const LegendEntry& entry : PlanLegend(plan)) {
        (entry.swatch == LegendSwatch::SlabTendon ? legend.tendons : legend.beams).push_back(entry);
    }
    const auto columnWidth = [&surface](const std::vector<LegendEntry>& entries) {
        double widest = 0;
        for (const LegendEntry& entry : entries) {
            widest = std::max(widest, surface.TextWidth(entry.text));
        }
        return SwatchWidth + 100 + widest;
    };
    legend.beamColumn = columnWidth(legend.beams);
    legend.tendonColumn = columnWidth(legend.tendons);
    legend.twoColumns = legend.beamColumn + 300 + legend.tendonColumn <= width;
    legend.rows = legend.twoColumns ? std::max(legend.beams.size(), legend.tendons.size())
                                    : legend.beams.size() + legend.tendons.size();
    return legend;
}

void DrawLegendEntry(DrawingSurface& surface, PlacedTexts& placed, const LegendEntry& entry,
                     double x, double y) {
    const double lineHeight = surface.TextHeight("Bg");
    if (entry.swatch == LegendSwatch::SlabTendon) {
        surface.SetColour(TendonColour);
        surface.SetLineStyle(LineStyle::Dashed);
        surface.SetLineWidth(TendonLineWidth);
        surface.DrawLine(x, y + lineHeight / 2, x + SwatchWidth, y + lineHeight / 2);
        surface.SetLineWidth(DimensionLineWidth);
        surface.SetLineStyle(LineStyle::Solid);
        surface.SetColour(Black);
    } else {
        surface.FillRectangle(x, y + lineHeight * 0.2, SwatchWidth, lineHeight * 0.6,
                              entry.swatch == LegendSwatch::Type1Beam ? Type1BeamFill
                                                                      : Type2BeamFill);
    }
    placed.Place(surface, x + SwatchWidth + 100, y, {entry.text});
}

void DrawReason(DrawingSurface& surface, const std::string& reason, const DrawingBox& box) {
    UseDrawingText(surface);
    surface.SetColour(Black);
    PlacedTexts placed;
    placed.Place(surface, box.x, box.y, WrapText(surface, reason, box.width));
}

} // namespace

void DrawFoundationPlan(DrawingSurface& surface, const FoundationPlan& plan,
                        const DrawingBox& box) {
    surface.SetColour(Black);
    surface.SetLineWidth(DimensionLineWidth);
    surface.SetLineStyle(LineStyle::Solid);
    if (!plan.reason.empty()) {
        DrawReason(surface, plan.reason, box);
        return;
    }

    UseDrawingTitle(surface);
    const double titleHeight = surface.TextHeight("Bg");
    const std::string shortLabel = "SHORT DIRECTION";
    const std::string longLabel = "LONG DIRECTION";
    const double shortLabelWidth = surface.TextWidth(shortLabel);
    const double longLabelWidth = surface.TextWidth(longLabel);
    UseDrawingText(surface);
    const double lineHeight = surface.TextHeight("Bg");

    const std::vector<PlanDimension> alongLength = DimensionsOf(plan, PlanDirection::Short, false);
    const std::vector<PlanDimension> alongWidth = DimensionsOf(plan, PlanDirection::Long, true);
    double leftWidth = PlanToDimension;
    for (const PlanDimension& dimension : alongWidth) {
        leftWidth += ColumnWidth(surface, dimension);
    }
    const double rightWidth = 250 + 100 + shortLabelWidth + 60;
    const double topBand = 150 + 60 + titleHeight + 60;
    const double tierStep = 50 + lineHeight + 110;
    const double bottomBand =
        PlanToDimension + static_cast<double>(alongLength.size()) * tierStep + 40;
    const LegendLayout legend = ArrangeLegend(surface, plan, box.width);
    const double legendHeight = static_cast<double>(legend.rows) * (lineHeight + 50);
    std::vector<std::string> noteLines;
    for (const std::string& note : plan.notes) {
        for (const std::string& line : WrapText(surface, note, box.width)) {
            noteLines.push_back(line);
        }
    }
    const double notesHeight =
        noteLines.empty() ? 0 : 100 + static_cast<double>(noteLines.size()) * lineHeight;

    const double roomWidth = box.width - leftWidth - rightWidth;
    const double roomHeight = box.height - topBand - bottomBand - legendHeight - notesHeight;
    if (roomWidth <= 0 || roomHeight <= 0) {
        DrawReason(surface, "The box is too small for the plan.", box);
        return;
    }
    // Feet to twips, the same both ways.
    const double scale = std::min(roomWidth / plan.length, roomHeight / plan.width);
    const double planWidth = plan.length * scale;
    const double planHeight = plan.width * scale;
    const double left = box.x + (box.width - leftWidth - planWidth - rightWidth) / 2 + leftWidth;
    const double top = box.y + topBand;
    const double bottom = top + planHeight;
    const double right = left + planWidth;
    const auto X = [&](double feet) { return left + feet * scale; };
    const auto Y = [&](double feet) { return top + (plan.width - feet) * scale; };

    // The long beams run the full length over the short beams, as they are cast.
    for (const PlanDirection direction : {PlanDirection::Short, PlanDirection::Long}) {
        for (const PlanBeam& beam : plan.beams) {
            if (beam.direction != direction) {
                continue;
            }
            const Colour fill = beam.type == 1 ? Type1BeamFill : Type2BeamFill;
            const double across = (beam.to - beam.from) * scale;
            if (direction == PlanDirection::Short) {
                surface.FillRectangle(X(beam.from), top, across, planHeight, fill);
            } else {
                surface.FillRectangle(left, Y(beam.to), planWidth, across, fill);
            }
        }
    }
    surface.SetColour(TendonColour);
    surface.SetLineStyle(LineStyle::Dashed);
    surface.SetLineWidth(TendonLineWidth);
    for (const double place : plan.slabTendonsShort.places) {
        surface.DrawLine(X(place), top, X(place), bottom);
    }
    for (const double place : plan.slabTendonsLong.places) {
        surface.DrawLine(left, Y(place), right, Y(place));
    }
    surface.SetLineStyle(LineStyle::Solid);
    surface.SetColour(Black);
    surface.SetLineWidth(OutlineWidth);
    DrawOutline(surface, left, top, planWidth, planHeight);
    surface.SetLineWidth(DimensionLineWidth);

    PlacedTexts placed;
    // Along the length, under the plan, one tier a dimension.
    std::vector<double> tierLevels;
    double level = bottom + PlanToDimension;
    for (const PlanDimension& dimension : alongLength) {
        const double x1 = X(dimension.from);
        const double x2 = X(dimension.to);
        DrawDimensionLine(surface, x1, level, x2, level);
        const double width = BlockWidth(surface, dimension.text);
        const double x = Clamp((x1 + x2) / 2 - width / 2, box.x, box.x + box.width - width);
        placed.Place(surface, x, level + 50, dimension.text);
        tierLevels.push_back(level);
        level += tierStep;
    }
    // Along the width, left of the plan, one column a dimension.
    std::vector<double> columnPlaces;
    double column = left - PlanToDimension;
    for (const PlanDimension& dimension : alongWidth) {
        const double y1 = Y(dimension.to);
        const double y2 = Y(dimension.from);
        DrawDimensionLine(surface, column, y1, column, y2);
        const double width = BlockWidth(surface, dimension.text);
        const double height = BlockHeight(surface, dimension.text);
        const double y = Clamp((y1 + y2) / 2 - height / 2, box.y, box.y + box.height - height);
        placed.Place(surface, column - LineToText - width, y, dimension.text);
        columnPlaces.push_back(column);
        column -= ColumnWidth(surface, dimension);
    }

    // The two directions: the long one over the plan, the short one at its right.
    UseDrawingTitle(surface);
    const double arrowLevel = top - 150;
    DrawDoubleArrow(surface, left, arrowLevel, right, arrowLevel);
    const double longX =
        Clamp(left + planWidth / 2 - longLabelWidth / 2, left, box.x + box.width - longLabelWidth);
    placed.Place(surface, longX, arrowLevel - 60 - titleHeight, {longLabel});
    const double arrowPlace = right + 250;
    DrawDoubleArrow(surface, arrowPlace, top, arrowPlace, bottom);
    const double shortY = std::max(top, top + planHeight / 2 - titleHeight / 2);
    placed.Place(surface, arrowPlace + 100, shortY, {shortLabel});
    UseDrawingText(surface);

    // The extension lines from the plan to its dimensions, where they pass clear of the texts.
    for (std::size_t i = 0; i < alongLength.size(); ++i) {
        for (const double feet : {alongLength[i].from, alongLength[i].to}) {
            DrawClearLine(surface, placed, X(feet), bottom + ExtensionGap, X(feet),
                          tierLevels[i] + 45);
        }
    }
    for (std::size_t i = 0; i < alongWidth.size(); ++i) {
        for (const double feet : {alongWidth[i].from, alongWidth[i].to}) {
            DrawClearLine(surface, placed, left - ExtensionGap, Y(feet), columnPlaces[i] - 45,
                          Y(feet));
        }
    }

    // The legend under the dimensions, from the left of the dimensions at the left.
    const double legendWidth = legend.twoColumns ? legend.beamColumn + 300 + legend.tendonColumn
                                                 : std::max(legend.beamColumn, legend.tendonColumn);
    const double legendLeft =
        std::max(box.x, std::min(left - leftWidth, box.x + box.width - legendWidth));
    const double legendTop = level + 40;
    const double rowStep = lineHeight + 50;
    for (std::size_t i = 0; i < legend.beams.size(); ++i) {
        DrawLegendEntry(surface, placed, legend.beams[i], legendLeft,
                        legendTop + static_cast<double>(i) * rowStep);
    }
    for (std::size_t i = 0; i < legend.tendons.size(); ++i) {
        const double x = legend.twoColumns ? legendLeft + legend.beamColumn + 300 : legendLeft;
        const std::size_t row = legend.twoColumns ? i : legend.beams.size() + i;
        DrawLegendEntry(surface, placed, legend.tendons[i], x,
                        legendTop + static_cast<double>(row) * rowStep);
    }
    if (!noteLines.empty()) {
        surface.SetColour(Red);
        placed.Place(surface, box.x, legendTop + legendHeight + 100, noteLines);
        surface.SetColour(Black);
    }
}

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
                   const std::vector<std::string>& titleLines, const DrawingBox& sheet) {
    surface.SetColour(Black);
    PlacedTexts placed;
    double y = sheet.y;
    for (std::size_t i = 0; i < titleLines.size(); ++i) {
        if (i == 0) {
            UseDrawingTitle(surface);
        } else {
            UseDrawingText(surface);
        }
        const std::vector<std::string> lines = WrapText(surface, titleLines[i], sheet.width);
        placed.Place(surface, sheet.x, y, lines);
        y += BlockHeight(surface, lines);
    }
    y += 200;
    const double sectionsHeight = plan.sections.empty() ? 0 : (sheet.y + sheet.height - y) * 0.4;
    DrawFoundationPlan(
        surface, plan,
        {sheet.x, y, sheet.width, sheet.y + sheet.height - y - sectionsHeight - 200});
    if (sectionsHeight > 0) {
        const double sectionsTop = sheet.y + sheet.height - sectionsHeight;
        UseDrawingTitle(surface);
        placed.Place(surface, sheet.x, sectionsTop, {"TYPICAL SECTIONS (INCHES)"});
        const double headHeight = surface.TextHeight("Bg") + 150;
        DrawTypicalSections(
            surface, plan,
            {sheet.x, sectionsTop + headHeight, sheet.width, sectionsHeight - headHeight});
    }
}
