#include "app/sensitivity_chart.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <cmath>
#include <vector>

namespace {

QColor ToQColor(ChartColour colour) {
    return QColor(colour.red, colour.green, colour.blue);
}

QString Number(double value) {
    return QString::fromStdString(FieldValueText(value));
}

constexpr int KeyWidth = 16;

} // namespace

SensitivityHeatMap::SensitivityHeatMap(QWidget* parent) : QWidget(parent) {
    setObjectName("picHeatMap");
    setMouseTracking(true);
    setMinimumSize(560, 440);
}

void SensitivityHeatMap::Show(const SensitivityRequest& request,
                              const SensitivityOutcome& outcome) {
    m_request = &request;
    m_outcome = &outcome;
    const std::vector<VariedField>& fields = request.grid.fields;
    m_contour = fields.size() == 2
                    ? RatioContour(outcome.points, fields[0].count, fields[1].count, 1.0)
                    : std::vector<ContourSegment>{};
    m_steps.clear();
    if (fields.size() == 2) {
        for (double level = 1.5; level < ChartTop(outcome); level += 0.5) {
            const std::vector<ContourSegment> step =
                RatioContour(outcome.points, fields[0].count, fields[1].count, level);
            m_steps.insert(m_steps.end(), step.begin(), step.end());
        }
    }
    update();
}

void SensitivityHeatMap::Clear() {
    m_request = nullptr;
    m_outcome = nullptr;
    m_contour.clear();
    m_steps.clear();
    update();
}

QRect SensitivityHeatMap::Plot(QSize size) const {
    // Room for the axis values and titles on the left and below, and the key on the right.
    return QRect(QPoint(90, 20), QPoint(size.width() - 110, size.height() - 70));
}

void SensitivityHeatMap::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    Draw(painter, size());
}

void SensitivityHeatMap::Draw(QPainter& painter, QSize size) const {
    painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    if (m_request == nullptr || m_request->grid.fields.size() != 2) {
        return;
    }
    const double top = ChartTop(*m_outcome);
    const VariedField& rows = m_request->grid.fields[0];    // along y, first value at the bottom
    const VariedField& columns = m_request->grid.fields[1]; // along x
    const QRect plot = Plot(size);
    const double cellWidth = double(plot.width()) / double(columns.count);
    const double cellHeight = double(plot.height()) / double(rows.count);
    // Grid places to the painter: the middle of cell (r, c); rows run upward.
    const auto at = [&](double column, double row) {
        return QPointF(plot.left() + (column + 0.5) * cellWidth,
                       plot.bottom() + 1 - (row + 0.5) * cellHeight);
    };
    for (std::int64_t r = 0; r < rows.count; ++r) {
        for (std::int64_t c = 0; c < columns.count; ++c) {
            const SensitivityPoint& point =
                m_outcome->points[static_cast<std::size_t>(r * columns.count + c)];
            const std::optional<double> ratio = ChartRatio(point);
            const QColor colour =
                ratio ? ToQColor(RatioColour(*ratio, top)) : ToQColor(UnjudgedColour(point));
            const QPointF middle = at(double(c), double(r));
            const QRectF cell(middle.x() - cellWidth / 2, middle.y() - cellHeight / 2,
                              cellWidth + 0.6, cellHeight + 0.6);
            painter.fillRect(cell, colour);
            // A point that fails by a rule of the manual while its ratios are within limits.
            if (ratio && *ratio < 1.0 && !point.passes()) {
                painter.fillRect(cell, QBrush(QColor(120, 0, 30), Qt::BDiagPattern));
            }
        }
    }
    painter.setRenderHint(QPainter::Antialiasing);
    // Thin lines every half of a ratio beyond the limit, to read how far a region fails.
    painter.setPen(QPen(QColor(255, 255, 255, 150), 1, Qt::DashLine));
    for (const ContourSegment& segment : m_steps) {
        painter.drawLine(at(segment.x1, segment.y1), at(segment.x2, segment.y2));
    }
    painter.setPen(QPen(Qt::black, 2.5));
    for (const ContourSegment& segment : m_contour) {
        painter.drawLine(at(segment.x1, segment.y1), at(segment.x2, segment.y2));
    }
    painter.setPen(QPen(Qt::darkGray, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(plot);

    // The design point, where its values fall on the axes (it may lie between the points).
    const double designColumn = (m_request->project.*columns.field->real - columns.valueAt(0)) /
                                (columns.valueAt(1) - columns.valueAt(0));
    const double designRow = (m_request->project.*rows.field->real - rows.valueAt(0)) /
                             (rows.valueAt(1) - rows.valueAt(0));
    if (designColumn > -0.5 && designColumn < columns.count - 0.5 && designRow > -0.5 &&
        designRow < rows.count - 0.5) {
        const QPointF design = at(designColumn, designRow);
        painter.setPen(QPen(Qt::white, 5));
        painter.drawEllipse(design, 7, 7);
        painter.setPen(QPen(Qt::black, 2));
        painter.drawEllipse(design, 7, 7);
        painter.drawLine(design + QPointF(-11, 0), design + QPointF(11, 0));
        painter.drawLine(design + QPointF(0, -11), design + QPointF(0, 11));
    }

    // Axis values: about eight along each axis.
    QFont font = painter.font();
    font.setPointSizeF(9);
    painter.setFont(font);
    painter.setPen(Qt::black);
    const auto every = [](std::int64_t count) { return std::max<std::int64_t>(1, count / 8); };
    for (std::int64_t c = 0; c < columns.count; c += every(columns.count)) {
        const QPointF p = at(double(c), -0.5);
        painter.drawLine(p, p + QPointF(0, 4));
        painter.drawText(QRectF(p.x() - 40, p.y() + 6, 80, 16), Qt::AlignHCenter,
                         Number(columns.valueAt(c)));
    }
    for (std::int64_t r = 0; r < rows.count; r += every(rows.count)) {
        const QPointF p = at(-0.5, double(r));
        painter.drawLine(p, p - QPointF(4, 0));
        painter.drawText(QRectF(p.x() - 68, p.y() - 8, 60, 16), Qt::AlignRight | Qt::AlignVCenter,
                         Number(rows.valueAt(r)));
    }
    QFont title = font;
    title.setPointSizeF(10);
    title.setBold(true);
    painter.setFont(title);
    painter.drawText(QRectF(plot.left(), plot.bottom() + 28, plot.width(), 20), Qt::AlignHCenter,
                     QString::fromStdString(FieldAxisTitle(std::string(columns.field->name))));
    painter.save();
    painter.translate(plot.left() - 72, plot.center().y());
    painter.rotate(-90);
    painter.drawText(QRectF(-plot.height() / 2.0, -18, plot.height(), 20), Qt::AlignHCenter,
                     QString::fromStdString(FieldAxisTitle(std::string(rows.field->name))));
    painter.restore();

    // The colour key: governing ratio from 0 to the top.
    const QRect key(plot.right() + 24, plot.top(), KeyWidth, plot.height());
    for (int y = 0; y < key.height(); ++y) {
        const double ratio = top * (1.0 - double(y) / key.height());
        painter.fillRect(QRect(key.left(), key.top() + y, key.width(), 1),
                         ToQColor(RatioColour(ratio, top)));
    }
    painter.setPen(Qt::darkGray);
    painter.drawRect(key);
    painter.setFont(font);
    painter.setPen(Qt::black);
    // A tick every half (every whole beyond a ratio of 5), and the top.
    std::vector<double> ticks;
    const double tickStep = top > 5 ? 1.0 : 0.5;
    for (double ratio = 0; ratio < top - 0.05; ratio += tickStep) {
        ticks.push_back(ratio);
    }
    ticks.push_back(top);
    for (const double ratio : ticks) {
        const double y = key.bottom() - ratio / top * key.height();
        painter.drawLine(QPointF(key.right(), y), QPointF(key.right() + 4, y));
        painter.drawText(QRectF(key.right() + 6, y - 8, 40, 16), Qt::AlignLeft | Qt::AlignVCenter,
                         QString::number(ratio, 'f', 1));
    }
    painter.save();
    painter.translate(key.right() + 58, key.center().y());
    painter.rotate(90);
    painter.drawText(QRectF(-key.height() / 2.0, -10, key.height(), 20), Qt::AlignHCenter,
                     "Governing ratio");
    painter.restore();
}

void SensitivityHeatMap::mouseMoveEvent(QMouseEvent* event) {
    if (m_request == nullptr || m_request->grid.fields.size() != 2) {
        return;
    }
    const VariedField& rows = m_request->grid.fields[0];
    const VariedField& columns = m_request->grid.fields[1];
    const QRect plot = Plot(size());
    const QPointF p = event->position();
    if (!plot.contains(p.toPoint())) {
        QToolTip::hideText();
        return;
    }
    const auto column =
        static_cast<std::int64_t>((p.x() - plot.left()) * double(columns.count) / plot.width());
    const auto row =
        static_cast<std::int64_t>((plot.bottom() + 1 - p.y()) * double(rows.count) / plot.height());
    if (column < 0 || column >= columns.count || row < 0 || row >= rows.count) {
        return;
    }
    QToolTip::showText(
        event->globalPosition().toPoint(),
        QString::fromStdString(PointCaption(*m_request, *m_outcome, row * columns.count + column)),
        this);
}
