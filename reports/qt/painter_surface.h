#pragma once

#include "reports/drawing_surface.h"

#include <QFont>
#include <QPainter>
#include <memory>
#include <string>

class QPagedPaintDevice;
class QPaintDevice;

// The drawing surface on a Qt paint device of pages (a printer or a PDF writer), or on one
// canvas (an image, an SVG file, a widget), which has a single sheet. Twips are turned into the
// device's dots by its resolution: a PDF writer at 1440 dots to the inch takes them as they are.
// "Arial" is found through fontconfig, which gives its metric twin Liberation Sans.
class PainterSurface : public DrawingSurface {
  public:
    PainterSurface(QPagedPaintDevice& device, std::string printerName);
    // A canvas is drawn with smoothed edges; a new page on it draws over the same canvas.
    explicit PainterSurface(QPaintDevice& canvas);
    ~PainterSurface() override;

    void BeginDocument() override;
    void NewPage() override;
    void EndDocument() override;
    void SetFontName(const std::string& name) override;
    void SetFontSize(double points) override;
    void SetBold(bool bold) override;
    void SetUnderline(bool underline) override;
    void SetColour(Colour colour) override;
    void SetLineWidth(int width) override;
    void SetLineStyle(LineStyle style) override { m_lineStyle = style; }
    double TextWidth(std::string_view text) override;
    double TextHeight(std::string_view text) override;
    void DrawText(double x, double y, std::string_view text) override;
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void FillRectangle(double x, double y, double width, double height, Colour fill) override;
    std::vector<std::string> FontNames() override;
    std::string PrinterName() override { return m_printerName; }
    int PageNumber() override { return m_page; }

  private:
    void ApplyFont();

    QPaintDevice& m_device;
    QPagedPaintDevice* m_pages = nullptr; // nothing for a canvas
    std::string m_printerName;
    std::unique_ptr<QPainter> m_painter;
    QFont m_font;
    QColor m_colour = Qt::black;
    int m_lineWidth = 1;
    LineStyle m_lineStyle = LineStyle::Solid;
    int m_page = 0;
    double m_dotsPerTwip = 1;
};
