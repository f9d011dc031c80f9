#pragma once

#include "lifecycle/sensitivity_dialog.h"

#include <QWidget>

class QPainter;

// The heat map of a two-field sensitivity run: each point coloured by its governing ratio, the
// contour where the ratio reaches 1.0 (and thin lines every half beyond it), the design point
// marked, axes with the values of both fields and a colour key. The pointer over a point shows its
// words (PointCaption). It only draws what the model gives.
class SensitivityHeatMap : public QWidget {
  public:
    explicit SensitivityHeatMap(QWidget* parent);

    void Show(const SensitivityRequest& request, const SensitivityOutcome& outcome);
    void Clear();
    // Draws the chart into a painter of any device (a PNG image, an SVG file) of that size.
    void Draw(QPainter& painter, QSize size) const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    QRect Plot(QSize size) const;
    const SensitivityRequest* m_request = nullptr;
    const SensitivityOutcome* m_outcome = nullptr;
    std::vector<ContourSegment> m_contour;
    std::vector<ContourSegment> m_steps;
};
