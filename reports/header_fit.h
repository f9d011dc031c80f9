#pragma once

#include "reports/drawing_surface.h"

#include <string>

// The header's texts kept to their columns. The project's texts are the engineer's own and can
// be as long as the input screen allows (or longer, from a file): a text that does not fit its
// column is printed smaller, down to 6 point, and below that cut short with "...", so that it
// never runs over the text beside it or off the right edge. A text that fits is printed at 10
// point exactly as always.

inline constexpr double HeaderTextSize = 10;
inline constexpr double SmallestHeaderSize = 6;
inline constexpr const char* CutMark = "...";

// Draws `text` with its left end at x on the 10 point line whose top is y, ending at `limit` at
// the latest. A smaller size keeps the line's baseline. The font is at 10 point afterwards.
void DrawFittedText(DrawingSurface& surface, double x, double y, double limit,
                    const std::string& text);

// A caption and its value, as "Project Title :    " and the title: one text at 10 point when
// both fit before `limit`, else the caption at 10 point and the value fitted after it.
void DrawCaptionedText(DrawingSurface& surface, double x, double y, double limit,
                       const std::string& caption, const std::string& value);
