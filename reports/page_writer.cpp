#include "reports/page_writer.h"

PageWriter::PageWriter(PageContext& page, const LineHeights& heights)
    : m_page(page), m_heights(heights) {}

void PageWriter::Begin(const std::string& title) {
    DrawingSurface& s = surface();
    s.SetFontName(m_page.fontName);
    UnboldBlack(s);
    PrintHeader(m_page, lineHeight());
    m_y = BodyTop(lineHeight());
    s.SetFontSize(12);
    s.SetBold(true);
    s.SetUnderline(true);
    s.DrawText(CentredX(s, title), m_y, title);
    s.SetUnderline(false);
    UnboldBlack(s);
    s.SetFontSize(10);
    Step(2);
}

void PageWriter::End(bool lastPage) {
    PrintFooter(m_page, lineHeight());
    if (!lastPage) {
        surface().NewPage();
    }
}

void PageWriter::Heading(const std::string& text, double size) {
    DrawingSurface& s = surface();
    s.SetFontSize(size);
    s.SetBold(true);
    s.SetUnderline(true);
    s.DrawText(m_page.column1, m_y, text);
    s.SetUnderline(false);
    s.SetBold(false);
    s.SetFontSize(10);
}

void PageWriter::Label(const std::string& text) {
    surface().DrawText(m_page.column2, m_y, text);
}

void PageWriter::Text(double x, const std::string& text) {
    surface().DrawText(x, m_y, text);
}

void PageWriter::Value(double rightEdge, const std::string& value, const std::string& unit) {
    DrawRightAligned(surface(), rightEdge, m_y, value, unit);
}

double PageWriter::TextAt(double x, double shift, const std::string& text) {
    surface().DrawText(x, m_y + shift, text);
    return x + surface().TextWidth(text);
}

namespace {

// The lines that carry powers and subscripts are the body's 10 point lines; those small letters
// are printed at 70% of that.
constexpr double BodySize = 10;
constexpr double SmallLetterShare = 0.7;

} // namespace

double PageWriter::Raised(double x, const std::string& text) {
    DrawingSurface& s = surface();
    s.SetFontSize(BodySize * SmallLetterShare);
    s.DrawText(x, m_y, text);
    const double after = x + s.TextWidth(text);
    s.SetFontSize(BodySize);
    return after;
}

double PageWriter::Lowered(double x, const std::string& text) {
    DrawingSurface& s = surface();
    s.SetFontSize(BodySize);
    const double lineHeight = s.TextHeight(text);
    s.SetFontSize(BodySize * SmallLetterShare);
    s.DrawText(x, m_y + lineHeight - s.TextHeight(text), text);
    const double after = x + s.TextWidth(text);
    s.SetFontSize(BodySize);
    return after;
}

void PageWriter::Step(int lines) {
    m_y += lineHeight() * m_lineStep * lines;
}

void PageWriter::StepPastHeading(double points) {
    const double height = points >= 14   ? m_heights.points14
                          : points >= 12 ? m_heights.points12
                                         : lineHeight();
    m_y += height + lineHeight() / 4;
}
