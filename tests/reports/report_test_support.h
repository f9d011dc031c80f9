#pragma once

#include "reports/recording_surface.h"

#include <string>
#include <vector>

// Texts of a recorded sheet's body that share a line and run into each other, as
// "first | second", by the recording surface's own widths (half the font size per character).
// The header, whose places are fixed for a printer's Arial, and the footer are left out.
inline std::vector<std::string> OverlappingTexts(const RecordedSheet& sheet) {
    const auto inBody = [](const RecordedText& t) { return t.y >= 3322 && t.y < 13900; };
    const auto width = [](const RecordedText& t) {
        return static_cast<double>(t.text.size()) * t.size * 10;
    };
    std::vector<std::string> overlaps;
    for (std::size_t i = 0; i < sheet.texts.size(); ++i) {
        for (std::size_t j = i + 1; j < sheet.texts.size(); ++j) {
            const RecordedText& a = sheet.texts[i];
            const RecordedText& b = sheet.texts[j];
            if (inBody(a) && a.y == b.y && a.x < b.x + width(b) && b.x < a.x + width(a)) {
                overlaps.push_back(a.text + " | " + b.text);
            }
        }
    }
    return overlaps;
}
