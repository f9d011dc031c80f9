#include "reports/recording_surface.h"

void RecordingSurface::BeginDocument() {
    m_sheets.assign(1, RecordedSheet{});
    m_ended = false;
}

void RecordingSurface::NewPage() {
    m_sheets.emplace_back();
}

void RecordingSurface::EndDocument() {
    m_ended = true;
}

RecordedSheet& RecordingSurface::Current() {
    if (m_sheets.empty()) {
        m_sheets.emplace_back();
    }
    return m_sheets.back();
}

double RecordingSurface::TextWidth(std::string_view text) {
    return static_cast<double>(text.size()) * m_size * 10;
}

double RecordingSurface::TextHeight(std::string_view) {
    return m_size * 23;
}

void RecordingSurface::DrawText(double x, double y, std::string_view text) {
    Current().texts.push_back(
        {x, y, std::string(text), m_font, m_size, m_bold, m_underline, m_colour});
}

void RecordingSurface::DrawLine(double x1, double y1, double x2, double y2) {
    Current().lines.push_back({x1, y1, x2, y2, m_lineWidth, m_colour, m_lineStyle});
}

void RecordingSurface::FillRectangle(double x, double y, double width, double height, Colour fill) {
    Current().rectangles.push_back({x, y, width, height, fill});
}

std::vector<std::string> RecordingSurface::FontNames() {
    return {"Arial", "Courier New", "Times New Roman"};
}
