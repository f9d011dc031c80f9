#include "reports/plan_drawing.h"

#include "plan/plan_legend.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double SectionToDimension = 150;
constexpr double LineToText = 90;
constexpr double TickRoom = 150;
constexpr double ExtensionGap = 30;
constexpr double CellMargin = 60;
// Beam tendons drawn side by side in one beam at the most.
constexpr int MostTendonsDrawn = 8;

std::string Inches(double value) {
    return PlanNumber(value) + " in";
}

std::string SectionTitle(const TypicalSection& section) {
    return std::string(section.direction == PlanDirection::Short ? "SHORT" : "LONG") +
           " DIRECTION, TYPE " + std::to_string(section.type);
}

// The dimension texts of a section: at its left the slab thickness and the beam depth, at its
// right the beam tendon's cover and the slab tendon's depth, under it the beam width.
struct SectionTexts {
    std::vector<std::string> slab;
    std::vector<std::string> depth;
    std::vector<std::string> cover;
    std::vector<std::string> tendonDepth;
    std::vector<std::string> width;
};

SectionTexts TextsOf(const TypicalSection& section) {
    return {{Inches(section.slabThick)},
            {Inches(section.depth)},
            {Inches(section.cover), "cover"},
            {Inches(section.slabTendonDepth), "to tendon"},
            {Inches(section.width)}};
}

double ColumnWidth(DrawingSurface& surface, const std::vector<std::string>& text) {
    return BlockWidth(surface, text) + LineToText + TickRoom;
}

// The slab shown on each side of the beam, in inches.
double WingOf(const TypicalSection& section) {
    return std::max(section.width, 18.0);
}

// A tendon as a small square of its diameter, but never smaller than can be seen.
void DrawTendon(DrawingSurface& surface, double x, double y, double size) {
    surface.FillRectangle(x - size / 2, y - size / 2, size, size, TendonColour);
}

// The largest scale, in twips to the inch, at which every section fits a cell of that size with
// its texts around it; `bands` is the height of the title over it and the dimension under it.
double FitScale(DrawingSurface& surface, const FoundationPlan& plan, double cellWidth,
                double cellHeight, double bands) {
    double scale = -1;
    for (const TypicalSection& section : plan.sections) {
        const SectionTexts texts = TextsOf(section);
        const double sides = 2 * SectionToDimension + ColumnWidth(surface, texts.slab) +
                             ColumnWidth(surface, texts.depth) + ColumnWidth(surface, texts.cover) +
                             ColumnWidth(surface, texts.tendonDepth) + 2 * CellMargin;
        const double shown = section.width + 2 * WingOf(section);
        const double tall = std::max(section.depth, section.slabThick);
        const double fits = std::min((cellWidth - sides) / shown, (cellHeight - bands) / tall);
        scale = scale < 0 ? fits : std::min(scale, fits);
    }
    return scale;
}

} // namespace

void DrawTypicalSections(DrawingSurface& surface, const FoundationPlan& plan,
                         const DrawingBox& box) {
    if (plan.sections.empty() || !plan.reason.empty()) {
        return;
    }
    surface.SetColour(Black);
    surface.SetLineWidth(DimensionLineWidth);
    surface.SetLineStyle(LineStyle::Solid);
    UseDrawingTitle(surface);
    const double titleHeight = 2 * surface.TextHeight("Bg") + 120;
    UseDrawingText(surface);
    const double lineHeight = surface.TextHeight("Bg");
    // Under the section: the width's dimension and text, below the side texts that hang half
    // their two lines under the bottom of the beam.
    const double bottomBand = SectionToDimension + 50 + 2 * lineHeight + 60;

    // The sections stand in rows of cells, as many to a row as gives them the largest scale,
    // one scale for all.
    const int count = static_cast<int>(plan.sections.size());
    int columns = 1;
    double scale = -1;
    for (int across = 1; across <= count; ++across) {
        const int rows = (count + across - 1) / across;
        const double fits = FitScale(surface, plan, box.width / across, box.height / rows,
                                     titleHeight + bottomBand);
        if (fits > scale) {
            scale = fits;
            columns = across;
        }
    }
    if (!(scale > 0)) {
        return;
    }
    const double cellWidth = box.width / columns;
    const double cellHeight = box.height / ((count + columns - 1) / columns);

    PlacedTexts placed;
    for (std::size_t i = 0; i < plan.sections.size(); ++i) {
        const TypicalSection& section = plan.sections[i];
        const SectionTexts texts = TextsOf(section);
        const double cellLeft =
            box.x + static_cast<double>(static_cast<int>(i) % columns) * cellWidth;
        const double cellTop =
            box.y + static_cast<double>(static_cast<int>(i) / columns) * cellHeight;

        UseDrawingTitle(surface);
        const std::vector<std::string> title =
            WrapText(surface, SectionTitle(section), cellWidth - 2 * CellMargin);
        placed.Place(surface,
                     cellLeft + std::max(CellMargin, (cellWidth - BlockWidth(surface, title)) / 2),
                     cellTop, title);
        UseDrawingText(surface);

        const double wing = WingOf(section) * scale;
        const double shownWidth = section.width * scale + 2 * wing;
        const double leftRoom = SectionToDimension + ColumnWidth(surface, texts.slab) +
                                ColumnWidth(surface, texts.depth);
        const double rightRoom = SectionToDimension + ColumnWidth(surface, texts.cover) +
                                 ColumnWidth(surface, texts.tendonDepth);
        const double left =
            cellLeft + (cellWidth - leftRoom - shownWidth - rightRoom) / 2 + leftRoom;
        const double right = left + shownWidth;
        const double top = cellTop + titleHeight;
        const double slabBottom = top + section.slabThick * scale;
        const double bottom = top + std::max(section.depth, section.slabThick) * scale;
        const double middle = (left + right) / 2;
        const double stemLeft = middle - section.width * scale / 2;
        const double stemRight = middle + section.width * scale / 2;

        surface.FillRectangle(left, top, shownWidth, slabBottom - top, ConcreteFill);
        if (bottom > slabBottom) {
            surface.FillRectangle(stemLeft, slabBottom, stemRight - stemLeft, bottom - slabBottom,
                                  ConcreteFill);
        }
        surface.SetLineWidth(SectionOutlineWidth);
        if (bottom > slabBottom) {
            const double outline[][2] = {{left, top},
                                         {right, top},
                                         {right, slabBottom},
                                         {stemRight, slabBottom},
                                         {stemRight, bottom},
                                         {stemLeft, bottom},
                                         {stemLeft, slabBottom},
                                         {left, slabBottom},
                                         {left, top}};
            for (std::size_t k = 0; k + 1 < std::size(outline); ++k) {
                surface.DrawLine(outline[k][0], outline[k][1], outline[k + 1][0],
                                 outline[k + 1][1]);
            }
        } else {
            DrawOutline(surface, left, top, shownWidth, slabBottom - top);
        }
        surface.SetLineWidth(DimensionLineWidth);

        // The slab tendon in each wing; the beam's tendons side by side at their cover.
        const double tendonSize = std::max(section.tendonDiameter * scale, 45.0);
        const double slabTendonLevel = top + section.slabTendonDepth * scale;
        DrawTendon(surface, left + wing / 2, slabTendonLevel, tendonSize);
        DrawTendon(surface, right - wing / 2, slabTendonLevel, tendonSize);
        const int beamTendons =
            section.tendons > 0
                ? std::clamp(static_cast<int>(std::lround(section.tendons)), 1, MostTendonsDrawn)
                : 0;
        const double coverFace = bottom - section.cover * scale;
        const double beamTendonLevel = coverFace - section.tendonDiameter * scale / 2;
        const double pitch =
            std::min((stemRight - stemLeft) / std::max(beamTendons, 1), 2.5 * tendonSize);
        for (int t = 0; t < beamTendons; ++t) {
            DrawTendon(surface, middle + (t - (beamTendons - 1) / 2.0) * pitch, beamTendonLevel,
                       tendonSize);
        }

        // Dimensions: the columns at the left, then those at the right, then the width under.
        double lowestText = 0;
        const auto textLevel = [&](double y1, double y2, const std::vector<std::string>& text) {
            const double height = BlockHeight(surface, text);
            const double level = std::clamp((y1 + y2) / 2 - height / 2, top,
                                            std::max(top, cellTop + cellHeight - height));
            lowestText = std::max(lowestText, level + height);
            return level;
        };
        const double slabColumn = left - SectionToDimension;
        DrawDimensionLine(surface, slabColumn, top, slabColumn, slabBottom);
        placed.Place(surface, slabColumn - LineToText - BlockWidth(surface, texts.slab),
                     textLevel(top, slabBottom, texts.slab), texts.slab);
        const double depthColumn = slabColumn - ColumnWidth(surface, texts.slab);
        DrawDimensionLine(surface, depthColumn, top, depthColumn, bottom);
        placed.Place(surface, depthColumn - LineToText - BlockWidth(surface, texts.depth),
                     textLevel(top, bottom, texts.depth), texts.depth);
        const double coverColumn = right + SectionToDimension;
        DrawDimensionLine(surface, coverColumn, coverFace, coverColumn, bottom);
        placed.Place(surface, coverColumn + LineToText, textLevel(coverFace, bottom, texts.cover),
                     texts.cover);
        const double tendonColumn = coverColumn + ColumnWidth(surface, texts.cover);
        DrawDimensionLine(surface, tendonColumn, top, tendonColumn, slabTendonLevel);
        placed.Place(surface, tendonColumn + LineToText,
                     textLevel(top, slabTendonLevel, texts.tendonDepth), texts.tendonDepth);
        const double widthLevel = std::max(bottom + SectionToDimension, lowestText - 40);
        DrawDimensionLine(surface, stemLeft, widthLevel, stemRight, widthLevel);
        const double widthText = BlockWidth(surface, texts.width);
        placed.Place(surface,
                     std::clamp(middle - widthText / 2, cellLeft,
                                std::max(cellLeft, cellLeft + cellWidth - widthText)),
                     widthLevel + 50, texts.width);

        // Extension lines, where they pass clear of the texts.
        DrawClearLine(surface, placed, left - ExtensionGap, top, slabColumn - 45, top);
        DrawClearLine(surface, placed, left - ExtensionGap, slabBottom, slabColumn - 45,
                      slabBottom);
        DrawClearLine(surface, placed, slabColumn - 45, top, depthColumn - 45, top);
        DrawClearLine(surface, placed, stemLeft - ExtensionGap, bottom, depthColumn - 45, bottom);
        DrawClearLine(surface, placed, stemRight + ExtensionGap, bottom, coverColumn + 45, bottom);
        DrawClearLine(surface, placed, stemRight + ExtensionGap, coverFace, coverColumn + 45,
                      coverFace);
        DrawClearLine(surface, placed, right + ExtensionGap, top, tendonColumn + 45, top);
        DrawClearLine(surface, placed, right + ExtensionGap, slabTendonLevel, tendonColumn + 45,
                      slabTendonLevel);
        DrawClearLine(surface, placed, stemLeft, bottom + ExtensionGap, stemLeft, widthLevel + 45);
        DrawClearLine(surface, placed, stemRight, bottom + ExtensionGap, stemRight,
                      widthLevel + 45);
    }
}
