#include "reports/header_fit.h"

namespace {

// Sizes are tried in half points, from just below 10 down to 6.
constexpr double SizeStep = 0.5;

// The ascent of Arial is about 81% of its line height: a smaller text placed this share of the
// height difference lower stands on the same baseline.
constexpr double AscentShare = 0.81;

// `text` without its last character, a whole UTF-8 sequence at a time.
void DropLastCharacter(std::string& text) {
    while (!text.empty()) {
        const unsigned char last = static_cast<unsigned char>(text.back());
        text.pop_back();
        if ((last & 0xC0) != 0x80) {
            return;
        }
    }
}

} // namespace

void DrawFittedText(DrawingSurface& surface, double x, double y, double limit,
                    const std::string& text) {
    surface.SetFontSize(HeaderTextSize);
    const double lineHeight = surface.TextHeight(text);
    const double room = limit - x;
    double size = HeaderTextSize;
    while (surface.TextWidth(text) > room && size > SmallestHeaderSize) {
        size -= SizeStep;
        surface.SetFontSize(size);
    }
    std::string shown = text;
    if (surface.TextWidth(shown) > room) {
        while (!shown.empty() && surface.TextWidth(shown + CutMark) > room) {
            DropLastCharacter(shown);
        }
        shown += CutMark;
    }
    const double top = y + (lineHeight - surface.TextHeight(shown)) * AscentShare;
    surface.DrawText(x, top, shown);
    surface.SetFontSize(HeaderTextSize);
}

void DrawCaptionedText(DrawingSurface& surface, double x, double y, double limit,
                       const std::string& caption, const std::string& value) {
    surface.SetFontSize(HeaderTextSize);
    const std::string whole = caption + value;
    if (x + surface.TextWidth(whole) <= limit) {
        surface.DrawText(x, y, whole);
        return;
    }
    surface.DrawText(x, y, caption);
    DrawFittedText(surface, x + surface.TextWidth(caption), y, limit, value);
}
