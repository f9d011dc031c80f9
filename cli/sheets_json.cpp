#include "cli/sheets_json.h"

namespace {

bool IsRed(Colour colour) {
    return colour.red == 255 && colour.green == 0 && colour.blue == 0;
}

} // namespace

nlohmann::ordered_json SheetsJson(const RecordingSurface& surface,
                                  const nlohmann::ordered_json& lineHeights) {
    nlohmann::ordered_json sheets = nlohmann::ordered_json::array();
    for (const RecordedSheet& sheet : surface.sheets()) {
        nlohmann::ordered_json texts = nlohmann::ordered_json::array();
        for (const RecordedText& t : sheet.texts) {
            texts.push_back({{"x", t.x},
                             {"y", t.y},
                             {"text", t.text},
                             {"size", t.size},
                             {"bold", t.bold},
                             {"underline", t.underline},
                             {"red", IsRed(t.colour)}});
        }
        nlohmann::ordered_json lines = nlohmann::ordered_json::array();
        for (const RecordedLine& l : sheet.lines) {
            lines.push_back(
                {{"x1", l.x1}, {"y1", l.y1}, {"x2", l.x2}, {"y2", l.y2}, {"width", l.width}});
        }
        sheets.push_back({{"lineHeights", lineHeights},
                          {"texts", std::move(texts)},
                          {"lines", std::move(lines)}});
    }
    return sheets;
}
