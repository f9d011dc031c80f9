#include "app/plan_panel.h"

#include "reports/plan_drawing.h"
#include "reports/plan_sheet.h"
#include "reports/qt/painter_surface.h"

#include <QPainter>

namespace {

// The white margin round the drawing, in twips.
constexpr double Margin = 150;

} // namespace

PlanPanel::PlanPanel(QWidget* parent) : QWidget(parent) {
    setMinimumSize(240, 240);
}

void PlanPanel::Show(const FoundationPlan& plan, bool drawn, const std::string& reason,
                     const std::vector<std::string>& titleLines) {
    m_plan = plan;
    m_drawn = drawn;
    m_reason = reason;
    m_titleLines = titleLines;
    update();
}

void PlanPanel::paintEvent(QPaintEvent*) {
    {
        QPainter background(this);
        background.fillRect(rect(), Qt::white);
    }
    if (m_drawn) {
        PainterSurface surface(*this);
        surface.BeginDocument();
        const double twipsPerPixel = 1440.0 / logicalDpiX();
        const double width = this->width() * twipsPerPixel - 2 * Margin;
        const double height = this->height() * twipsPerPixel - 2 * Margin;
        if (!m_titleLines.empty()) {
            DrawPlanSheet(surface, m_plan, m_titleLines, {Margin, Margin, width, height});
        } else {
            // The sections under the plan when the panel is wide enough for them.
            const DrawingBox sections{Margin, Margin + height * 0.62, width, height * 0.38};
            const bool withSections = TypicalSectionsFit(surface, m_plan, sections);
            DrawFoundationPlan(
                surface, m_plan,
                {Margin, Margin, width, withSections ? height * 0.62 - 100 : height});
            if (withSections) {
                DrawTypicalSections(surface, m_plan, sections);
            }
        }
        surface.EndDocument();
    }
    if (!m_reason.empty()) {
        QPainter painter(this);
        if (m_drawn) {
            painter.fillRect(rect(), QColor(255, 255, 255, 185));
        }
        // The reason on a white band of its own, clear of the greyed drawing under it.
        const QRect area = rect().adjusted(12, 8, -12, -8);
        const QString reason = QString::fromStdString(m_reason);
        const QRect band = painter.boundingRect(area, Qt::AlignTop | Qt::TextWordWrap, reason)
                               .adjusted(-6, -4, 6, 4);
        painter.fillRect(band, Qt::white);
        painter.setPen(QColor(160, 0, 0));
        painter.drawRect(band);
        painter.drawText(area, Qt::AlignTop | Qt::TextWordWrap, reason);
    }
}
