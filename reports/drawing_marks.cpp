#include "reports/drawing_marks.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace {

// Half the length of a dimension's end tick and of an arrowhead's side, in twips.
constexpr double TickHalf = 45;
constexpr double ArrowHead = 90;

// Whether a segment meets a box: the segment is clipped to the box (Liang and Barsky).
bool SegmentMeetsBox(double x1, double y1, double x2, double y2, const DrawingBox& box) {
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    double enter = 0;
    double leave = 1;
    const double p[4] = {-dx, dx, -dy, dy};
    const double q[4] = {x1 - box.x, box.x + box.width - x1, y1 - box.y, box.y + box.height - y1};
    for (int i = 0; i < 4; ++i) {
        if (p[i] == 0) {
            if (q[i] < 0) {
                return false;
            }
            continue;
        }
        const double t = q[i] / p[i];
        if (p[i] < 0) {
            enter = std::max(enter, t);
        } else {
            leave = std::min(leave, t);
        }
    }
    return enter <= leave;
}

} // namespace

void UseDrawingText(DrawingSurface& surface) {
    surface.SetFontName("Arial");
    surface.SetFontSize(DrawingTextPoints);
    surface.SetBold(false);
    surface.SetUnderline(false);
}

void UseDrawingTitle(DrawingSurface& surface) {
    surface.SetFontName("Arial");
    surface.SetFontSize(DrawingTitlePoints);
    surface.SetBold(true);
    surface.SetUnderline(false);
}

double BlockWidth(DrawingSurface& surface, const std::vector<std::string>& lines) {
    double width = 0;
    for (const std::string& line : lines) {
        width = std::max(width, surface.TextWidth(line));
    }
    return width;
}

double BlockHeight(DrawingSurface& surface, const std::vector<std::string>& lines) {
    return static_cast<double>(lines.size()) * surface.TextHeight("Bg");
}

void PlacedTexts::Place(DrawingSurface& surface, double x, double y,
                        const std::vector<std::string>& lines) {
    const double lineHeight = surface.TextHeight("Bg");
    for (std::size_t i = 0; i < lines.size(); ++i) {
        surface.DrawText(x, y + static_cast<double>(i) * lineHeight, lines[i]);
    }
    m_boxes.push_back(
        {x, y, BlockWidth(surface, lines), lineHeight * static_cast<double>(lines.size())});
}

bool PlacedTexts::Crosses(double x1, double y1, double x2, double y2) const {
    return std::any_of(m_boxes.begin(), m_boxes.end(),
                       [&](const DrawingBox& box) { return SegmentMeetsBox(x1, y1, x2, y2, box); });
}

void DrawDimensionLine(DrawingSurface& surface, double x1, double y1, double x2, double y2) {
    surface.DrawLine(x1, y1, x2, y2);
    // Architects' ticks, slanted up to the right, and a short stroke across the line.
    for (const auto& [x, y] : {std::pair{x1, y1}, std::pair{x2, y2}}) {
        surface.DrawLine(x - TickHalf, y + TickHalf, x + TickHalf, y - TickHalf);
        if (y1 == y2) {
            surface.DrawLine(x, y - TickHalf, x, y + TickHalf);
        } else {
            surface.DrawLine(x - TickHalf, y, x + TickHalf, y);
        }
    }
}

void DrawDoubleArrow(DrawingSurface& surface, double x1, double y1, double x2, double y2) {
    surface.DrawLine(x1, y1, x2, y2);
    const double length = std::hypot(x2 - x1, y2 - y1);
    if (length <= 0) {
        return;
    }
    const double ux = (x2 - x1) / length;
    const double uy = (y2 - y1) / length;
    const double side = ArrowHead * 0.45;
    for (const double sign : {1.0, -1.0}) {
        const double tipX = sign > 0 ? x2 : x1;
        const double tipY = sign > 0 ? y2 : y1;
        const double backX = tipX - sign * ux * ArrowHead;
        const double backY = tipY - sign * uy * ArrowHead;
        surface.DrawLine(tipX, tipY, backX - uy * side, backY + ux * side);
        surface.DrawLine(tipX, tipY, backX + uy * side, backY - ux * side);
    }
}

void DrawClearLine(DrawingSurface& surface, const PlacedTexts& texts, double x1, double y1,
                   double x2, double y2) {
    if (!texts.Crosses(x1, y1, x2, y2)) {
        surface.DrawLine(x1, y1, x2, y2);
    }
}

std::vector<std::string> WrapText(DrawingSurface& surface, const std::string& text, double width) {
    std::vector<std::string> lines;
    std::istringstream words(text);
    std::string word;
    std::string line;
    while (words >> word) {
        const std::string longer = line.empty() ? word : line + " " + word;
        if (!line.empty() && surface.TextWidth(longer) > width) {
            lines.push_back(line);
            line = word;
        } else {
            line = longer;
        }
    }
    if (!line.empty()) {
        lines.push_back(line);
    }
    return lines;
}

void DrawOutline(DrawingSurface& surface, double x, double y, double width, double height) {
    surface.DrawLine(x, y, x + width, y);
    surface.DrawLine(x + width, y, x + width, y + height);
    surface.DrawLine(x + width, y + height, x, y + height);
    surface.DrawLine(x, y + height, x, y);
}
