#pragma once

#include "reports/page_frame.h"

#include <string>

// Writes a page's body line by line: headings at column 1, lines at column 2, values right-
// aligned on a column's edge with their units hanging after them. `y` is the top of the line
// being written; Step moves it down by whole 10 point lines.
class PageWriter {
  public:
    PageWriter(PageContext& page, const LineHeights& heights);

    // The font set-up, the header and the page's title, centred at 12 point, bold and underlined.
    // The body begins two lines below the title.
    void Begin(const std::string& title);
    // The footer, and a new sheet unless this page is the run's last.
    void End(bool lastPage);

    void Heading(const std::string& text, double size = 10);
    void Label(const std::string& text);
    void Text(double x, const std::string& text);
    void Value(double rightEdge, const std::string& value, const std::string& unit = {});
    // A text raised (negative) or lowered by `shift` twips, placed after the text before it.
    double TextAt(double x, double shift, const std::string& text);
    // A power ("2" of square inches) or a subscript ("c" of f'c, "pu" of Fpu) at 70% of the
    // line's size, placed at x: the power raised to the top of the line, the subscript lowered
    // to its bottom, so that neither reaches into the line above or below. Give the x after it.
    double Raised(double x, const std::string& text);
    double Lowered(double x, const std::string& text);
    void Step(int lines = 1);
    // A step of a share of the line height (1, a whole line, unless a full sheet must be fitted
    // above its footer).
    void SetLineStep(double share) { m_lineStep = share; }
    // Moves down past a heading of `points` size: its own height and a little air.
    void StepPastHeading(double points);

    PageContext& page() { return m_page; }
    DrawingSurface& surface() { return m_page.surface; }
    double y() const { return m_y; }
    double lineHeight() const { return m_heights.points10; }

  private:
    PageContext& m_page;
    LineHeights m_heights;
    double m_y = 0;
    double m_lineStep = 1;
};
