#include "reports/qt/painter_surface.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPen>
#include <algorithm>

namespace {

QString FromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A line width in the printer's dots as the pages give it, in twips: a dot of a 600 dpi
// printer is 2.4 twips.
constexpr double TwipsPerPrinterDot = 2.4;

} // namespace

PainterSurface::PainterSurface(QPagedPaintDevice& device, std::string printerName)
    : m_device(device), m_pages(&device), m_printerName(std::move(printerName)) {
    m_font.setFamily(QStringLiteral("Arial"));
    m_font.setPointSizeF(10);
}

PainterSurface::PainterSurface(QPaintDevice& canvas) : m_device(canvas), m_printerName("Canvas") {
    m_font.setFamily(QStringLiteral("Arial"));
    m_font.setPointSizeF(10);
}

PainterSurface::~PainterSurface() {
    if (m_painter && m_painter->isActive()) {
        m_painter->end();
    }
}

void PainterSurface::BeginDocument() {
    m_dotsPerTwip = m_device.logicalDpiX() / 1440.0;
    m_painter = std::make_unique<QPainter>(&m_device);
    if (!m_pages) {
        m_painter->setRenderHint(QPainter::Antialiasing);
    }
    m_page = 1;
    ApplyFont();
}

void PainterSurface::NewPage() {
    if (m_pages) {
        m_pages->newPage();
    }
    ++m_page;
}

void PainterSurface::EndDocument() {
    if (m_painter) {
        m_painter->end();
    }
}

void PainterSurface::ApplyFont() {
    if (m_painter) {
        m_painter->setFont(m_font);
    }
}

void PainterSurface::SetFontName(const std::string& name) {
    m_font.setFamily(QString::fromStdString(name));
    ApplyFont();
}

void PainterSurface::SetFontSize(double points) {
    m_font.setPointSizeF(points);
    ApplyFont();
}

void PainterSurface::SetBold(bool bold) {
    m_font.setBold(bold);
    ApplyFont();
}

void PainterSurface::SetUnderline(bool underline) {
    m_font.setUnderline(underline);
    ApplyFont();
}

void PainterSurface::SetColour(Colour colour) {
    m_colour = QColor(colour.red, colour.green, colour.blue);
}

void PainterSurface::SetLineWidth(int width) {
    m_lineWidth = width;
}

double PainterSurface::TextWidth(std::string_view text) {
    return QFontMetricsF(m_font, &m_device).horizontalAdvance(FromUtf8(text)) / m_dotsPerTwip;
}

double PainterSurface::TextHeight(std::string_view) {
    return QFontMetricsF(m_font, &m_device).height() / m_dotsPerTwip;
}

void PainterSurface::DrawText(double x, double y, std::string_view text) {
    if (!m_painter) {
        return;
    }
    m_painter->setPen(m_colour);
    const QFontMetricsF metrics(m_font, &m_device);
    m_painter->drawText(QPointF(x * m_dotsPerTwip, y * m_dotsPerTwip + metrics.ascent()),
                        FromUtf8(text));
}

void PainterSurface::DrawLine(double x1, double y1, double x2, double y2) {
    if (!m_painter) {
        return;
    }
    QPen pen(m_colour);
    pen.setWidthF(m_lineWidth * TwipsPerPrinterDot * m_dotsPerTwip);
    if (!m_pages) {
        // A canvas of screen dots shows no line thinner than one.
        pen.setWidthF(std::max(pen.widthF(), 1.0));
    }
    if (m_lineStyle == LineStyle::Dashed) {
        // Dashes of 80 twips with gaps of 50, whatever the width of the line; the pattern is
        // counted in widths of the pen.
        const double widthTwips = pen.widthF() / m_dotsPerTwip;
        pen.setDashPattern({80 / widthTwips, 50 / widthTwips});
    }
    m_painter->setPen(pen);
    m_painter->drawLine(QPointF(x1 * m_dotsPerTwip, y1 * m_dotsPerTwip),
                        QPointF(x2 * m_dotsPerTwip, y2 * m_dotsPerTwip));
}

void PainterSurface::FillRectangle(double x, double y, double width, double height, Colour fill) {
    if (!m_painter) {
        return;
    }
    m_painter->fillRect(
        QRectF(x * m_dotsPerTwip, y * m_dotsPerTwip, width * m_dotsPerTwip, height * m_dotsPerTwip),
        QColor(fill.red, fill.green, fill.blue));
}

std::vector<std::string> PainterSurface::FontNames() {
    std::vector<std::string> names;
    for (const QString& family : QFontDatabase::families()) {
        names.push_back(family.toStdString());
    }
    return names;
}
