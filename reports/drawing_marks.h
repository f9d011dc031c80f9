#pragma once

#include "reports/drawing_surface.h"

#include <string>
#include <vector>

// What the plan and section drawings are built of beside plain lines: a box to draw in, the
// texts already placed (so that a line can keep clear of them), dimension lines, arrows and
// wrapped text. Coordinates are the surface's twips from the top left.

struct DrawingBox {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

// The font of the drawings' dimensions, legends and notes, and of their titles and labels.
inline constexpr double DrawingTextPoints = 8;
inline constexpr double DrawingTitlePoints = 9;
void UseDrawingText(DrawingSurface& surface);
void UseDrawingTitle(DrawingSurface& surface);

// The boxes of the texts placed so far on a drawing.
class PlacedTexts {
  public:
    // Draws the lines of a block of text, one under the other, from its top left corner, and
    // keeps its box.
    void Place(DrawingSurface& surface, double x, double y, const std::vector<std::string>& lines);
    // Whether the straight line from one point to the other passes through a placed text.
    bool Crosses(double x1, double y1, double x2, double y2) const;

  private:
    std::vector<DrawingBox> m_boxes;
};

// The width and height of a block of lines in the surface's current font.
double BlockWidth(DrawingSurface& surface, const std::vector<std::string>& lines);
double BlockHeight(DrawingSurface& surface, const std::vector<std::string>& lines);

// A dimension line between two points on one level or one plumb line, with a slanted tick at
// each end.
void DrawDimensionLine(DrawingSurface& surface, double x1, double y1, double x2, double y2);

// A line with an arrowhead at both ends.
void DrawDoubleArrow(DrawingSurface& surface, double x1, double y1, double x2, double y2);

// A line that keeps clear of the placed texts: left out when it would pass through one.
void DrawClearLine(DrawingSurface& surface, const PlacedTexts& texts, double x1, double y1,
                   double x2, double y2);

// The text broken into lines no wider than `width` at its spaces; a word longer than the width
// stands on a line of its own.
std::vector<std::string> WrapText(DrawingSurface& surface, const std::string& text, double width);

// The outline of a rectangle.
void DrawOutline(DrawingSurface& surface, double x, double y, double width, double height);
