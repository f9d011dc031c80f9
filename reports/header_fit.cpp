#include "reports/header_fit.h"

#include <algorithm>

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

// Drops an incomplete UTF-8 sequence left at the end by a cut at a byte.
void DropPartialCharacter(std::string& text) {
    std::size_t start = text.size();
    while (start > 0 && (static_cast<unsigned char>(text[start - 1]) & 0xC0) == 0x80) {
        --start;
    }
    if (start == 0) {
        text.clear();
        return;
    }
    const unsigned char lead = static_cast<unsigned char>(text[start - 1]);
    const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (text.size() - (start - 1) < length) {
        text.resize(start - 1);
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
        // A first cut in proportion to the room, so that a very long text is not shortened one
        // letter at a time, then letter by letter until the text and the mark fit.
        const double markWidth = surface.TextWidth(CutMark);
        const double share = std::max(0.0, room - markWidth) / surface.TextWidth(shown);
        shown.resize(static_cast<std::size_t>(static_cast<double>(shown.size()) * share) + 1);
        DropPartialCharacter(shown);
        while (!shown.empty() && surface.TextWidth(shown + CutMark) > room) {
            DropLastCharacter(shown);
        }
        // Narrow letters at the start may leave room for more.
        while (shown.size() < text.size()) {
            std::size_t next = shown.size() + 1;
            while (next < text.size() && (static_cast<unsigned char>(text[next]) & 0xC0) == 0x80) {
                ++next;
            }
            if (surface.TextWidth(text.substr(0, next) + CutMark) > room) {
                break;
            }
            shown = text.substr(0, next);
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
