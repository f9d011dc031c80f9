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
            dimensions.push_back(
                {start, std::min(start + spacing, side),
                 twoLines ? std::vector<std::string>{PlanFeet(spacing), "analysis", "spacing"}
                          : text(PlanFeet(spacing), "analysis spacing")});
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

// A legend entry with its text in lines, wrapped when the box is narrow.
struct LegendRow {
    LegendSwatch swatch;
    std::vector<std::string> lines;
};

struct LegendLayout {
    std::vector<LegendRow> beams;
    std::vector<LegendRow> tendons;
    bool twoColumns = false;
    double beamColumn = 0;
    double tendonColumn = 0;
    std::size_t rows = 0;
};

LegendLayout ArrangeLegend(DrawingSurface& surface, const FoundationPlan& plan, double width) {
    LegendLayout legend;
    const std::vector<LegendEntry> entries = PlanLegend(plan);
    double beamWidest = 0;
    double tendonWidest = 0;
    for (const LegendEntry& entry : entries) {
        double& widest = entry.swatch == LegendSwatch::SlabTendon ? tendonWidest : beamWidest;
        widest = std::max(widest, surface.TextWidth(entry.text));
    }
    legend.beamColumn = SwatchWidth + 100 + beamWidest;
    legend.tendonColumn = SwatchWidth + 100 + tendonWidest;
    legend.twoColumns = legend.beamColumn + 300 + legend.tendonColumn <= width;
    // In one column an entry wider than the box goes on in further lines.
    const double textWidth = width - SwatchWidth - 100;
    for (const LegendEntry& entry : entries) {
        LegendRow row{entry.swatch, legend.twoColumns ? std::vector<std::string>{entry.text}
                                                      : WrapText(surface, entry.text, textWidth)};
        if (!legend.twoColumns) {
            legend.rows += row.lines.size();
        }
        (entry.swatch == LegendSwatch::SlabTendon ? legend.tendons : legend.beams)
            .push_back(std::move(row));
    }
    if (legend.twoColumns) {
        legend.rows = std::max(legend.beams.size(), legend.tendons.size());
    } else {
        legend.beamColumn = std::min(legend.beamColumn, width);
        legend.tendonColumn = std::min(legend.tendonColumn, width);
    }
    return legend;
}

void DrawLegendEntry(DrawingSurface& surface, PlacedTexts& placed, const LegendRow& entry, double x,
                     double y) {
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
    placed.Place(surface, x + SwatchWidth + 100, y, entry.lines);
}

void DrawReason(DrawingSurface& surface, const std::string& reason, const DrawingBox& box) {
    UseDrawingText(surface);
    surface.SetColour(Black);
    PlacedTexts placed;
    placed.Place(surface, box.x, box.y, WrapText(surface, reason, box.width));
}

// The first engineer's scale, in feet to the inch, at which a plan needing `feetPerInch` fits:
// 1, 2, 3, 4, 5, 6, 8 and their tens, with 15 beside 10 and 20.
double EngineersFeetPerInch(double feetPerInch) {
    const double steps[] = {1, 1.5, 2, 3, 4, 5, 6, 8};
    double decade = 1;
    while (decade * 10 < feetPerInch && decade < 1e12) {
        decade *= 10;
    }
    for (double candidate = decade / 10; candidate < decade * 100; candidate *= 10) {
        for (const double step : steps) {
            if (step * candidate >= feetPerInch) {
                return step * candidate;
            }
        }
    }
    return feetPerInch;
}

} // namespace

double DrawFoundationPlan(DrawingSurface& surface, const FoundationPlan& plan,
                          const DrawingBox& box, PlanFit fit) {
    surface.SetColour(Black);
    surface.SetLineWidth(DimensionLineWidth);
    surface.SetLineStyle(LineStyle::Solid);
    if (!plan.reason.empty()) {
        DrawReason(surface, plan.reason, box);
        return 0;
    }

    UseDrawingTitle(surface);
    const double titleHeight = surface.TextHeight("Bg");
    const std::vector<std::string> shortLabel{"SHORT", "DIRECTION"};
    const std::string longLabel = "LONG DIRECTION";
    const double shortLabelWidth = BlockWidth(surface, shortLabel);
    const double shortLabelHeight = BlockHeight(surface, shortLabel);
    const double longLabelWidth = surface.TextWidth(longLabel);
    UseDrawingText(surface);
    const double lineHeight = surface.TextHeight("Bg");

    const std::vector<PlanDimension> alongLength = DimensionsOf(plan, PlanDirection::Short, false);
    std::vector<PlanDimension> alongWidth = DimensionsOf(plan, PlanDirection::Long, true);
    const auto widthOfColumns = [&surface](const std::vector<PlanDimension>& dimensions) {
        double width = PlanToDimension;
        for (const PlanDimension& dimension : dimensions) {
            width += ColumnWidth(surface, dimension);
        }
        return width;
    };
    const double rightWidth = 250 + 100 + shortLabelWidth + 60;
    // In a narrow box the gap and the spacing across the width are told in a line under the
    // legend, so that the plan keeps at least half the box's width.
    std::vector<std::string> toldLines;
    if (alongWidth.size() > 1 &&
        box.width - widthOfColumns(alongWidth) - rightWidth < box.width / 2) {
        std::string told = "Long direction beams:";
        for (std::size_t i = 0; i + 1 < alongWidth.size(); ++i) {
            told += i == 0 ? " " : ", ";
            for (std::size_t line = 0; line < alongWidth[i].text.size(); ++line) {
                told += (line == 0 ? "" : " ") + alongWidth[i].text[line];
            }
        }
        toldLines = WrapText(surface, told, box.width);
        alongWidth.erase(alongWidth.begin(), alongWidth.end() - 1);
    }
    const double leftWidth = widthOfColumns(alongWidth);
    const double topBand = 150 + 60 + titleHeight + 60;
    const double tierStep = 50 + lineHeight + 110;
    const double bottomBand =
        PlanToDimension + static_cast<double>(alongLength.size()) * tierStep + 40;
    const LegendLayout legend = ArrangeLegend(surface, plan, box.width);
    const double legendHeight = static_cast<double>(legend.rows) * (lineHeight + 50);
    const double toldHeight =
        toldLines.empty() ? 0 : static_cast<double>(toldLines.size()) * lineHeight + 50;
    std::vector<std::string> noteLines;
    for (const std::string& note : plan.notes) {
        for (const std::string& line : WrapText(surface, note, box.width)) {
            noteLines.push_back(line);
        }
    }
    const double notesHeight =
        noteLines.empty() ? 0 : 100 + static_cast<double>(noteLines.size()) * lineHeight;

    const double roomWidth = box.width - leftWidth - rightWidth;
    const double roomHeight =
        box.height - topBand - bottomBand - legendHeight - toldHeight - notesHeight;
    if (roomWidth <= 0 || roomHeight <= 0) {
        DrawReason(surface, "The box is too small for the plan.", box);
        return 0;
    }
    // Feet to twips, the same both ways.
    double scale = std::min(roomWidth / plan.length, roomHeight / plan.width);
    if (fit == PlanFit::EngineersScale) {
        scale = 1440 / EngineersFeetPerInch(1440 / scale);
    }
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
    const double shortY = std::max(top, top + planHeight / 2 - shortLabelHeight / 2);
    placed.Place(surface, arrowPlace + 100, shortY, shortLabel);
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
    // Two columns side by side, or one after the other with each entry in its lines.
    std::size_t row = 0;
    for (const LegendRow& entry : legend.beams) {
        DrawLegendEntry(surface, placed, entry, legendLeft,
                        legendTop + static_cast<double>(row) * rowStep);
        row += legend.twoColumns ? 1 : entry.lines.size();
    }
    if (legend.twoColumns) {
        row = 0;
    }
    for (const LegendRow& entry : legend.tendons) {
        const double x = legend.twoColumns ? legendLeft + legend.beamColumn + 300 : legendLeft;
        DrawLegendEntry(surface, placed, entry, x, legendTop + static_cast<double>(row) * rowStep);
        row += legend.twoColumns ? 1 : entry.lines.size();
    }
    if (!toldLines.empty()) {
        placed.Place(surface, box.x, legendTop + legendHeight, toldLines);
    }
    if (!noteLines.empty()) {
        surface.SetColour(Red);
        placed.Place(surface, box.x, legendTop + legendHeight + toldHeight + 100, noteLines);
        surface.SetColour(Black);
    }
    return scale;
}
