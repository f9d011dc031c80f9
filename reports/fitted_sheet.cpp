#include "reports/fitted_sheet.h"

namespace {

// Hands the font and the measuring of texts on to the printer's surface and draws nothing: a
// body written on it leaves only the place of its lowest text.
class MeasuringSurface : public DrawingSurface {
  public:
    explicit MeasuringSurface(DrawingSurface& surface) : m_surface(surface) {}

    void BeginDocument() override {}
    void NewPage() override {}
    void EndDocument() override {}
    void SetFontName(const std::string& name) override { m_surface.SetFontName(name); }
    void SetFontSize(double points) override { m_surface.SetFontSize(points); }
    void SetBold(bool bold) override { m_surface.SetBold(bold); }
    void SetUnderline(bool underline) override { m_surface.SetUnderline(underline); }
    void SetColour(Colour colour) override { m_surface.SetColour(colour); }
    void SetLineWidth(int width) override { m_surface.SetLineWidth(width); }
    void SetLineStyle(LineStyle style) override { m_surface.SetLineStyle(style); }
    double TextWidth(std::string_view text) override { return m_surface.TextWidth(text); }
    double TextHeight(std::string_view text) override { return m_surface.TextHeight(text); }
    void DrawText(double, double y, std::string_view text) override {
        if (y >= m_lowestTop) {
            m_lowestTop = y;
            m_lowestHeight = m_surface.TextHeight(text);
        }
    }
    void DrawLine(double, double, double, double) override {}
    void FillRectangle(double, double, double, double, Colour) override {}
    std::vector<std::string> FontNames() override { return m_surface.FontNames(); }
    std::string PrinterName() override { return m_surface.PrinterName(); }
    int PageNumber() override { return m_surface.PageNumber(); }

    double lowestTop() const { return m_lowestTop; }
    double lowestHeight() const { return m_lowestHeight; }

  private:
    DrawingSurface& m_surface;
    double m_lowestTop = 0;
    double m_lowestHeight = 0;
};

PageContext OnSurface(const PageContext& page, DrawingSurface& surface) {
    return {surface,      page.record,  page.results,        page.projectPath, page.totalSheets,
            page.column1, page.column2, page.column3,        page.timeOfDay,   page.fontName,
            page.colour,  page.showAll, page.RibbedOutCount, page.settings};
}

// The lowest line of a sheet ends half a line above the footer's page number, which stands one
// and a half lines above its baseline near y 14260.
double LowestLineEnd(double lineHeight) {
    return 14260 - lineHeight * 1.5 - lineHeight / 2;
}

} // namespace

void DrawFittedSheet(PageContext& page, const LineHeights& heights, const std::string& title,
                     bool lastSheet, const SheetBody& body) {
    MeasuringSurface measuring(page.surface);
    PageContext measuringPage = OnSurface(page, measuring);
    PageWriter measure(measuringPage, heights);
    measure.Begin(title);
    body(measure);

    // Every step below the top of the body is shortened alike, so the lowest line moves up in
    // proportion to its distance from that top.
    const double top = BodyTop(heights.points10);
    const double room = LowestLineEnd(heights.points10) - measuring.lowestHeight() - top;
    const double used = measuring.lowestTop() - top;
    const double share = used > room ? room / used : 1;

    DrawingSurface& surface = page.surface;
    surface.SetUnderline(false);
    surface.SetFontSize(10);
    PageWriter w(page, heights);
    w.SetLineStep(share);
    w.Begin(title);
    body(w);
    w.End(lastSheet);
}
