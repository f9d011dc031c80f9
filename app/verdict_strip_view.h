#pragma once

#include "output/checks_panel.h"

#include <QWidget>
#include <functional>
#include <vector>

class QLabel;

// The verdict strip `fraVerdict` above the results tabs: one line a foundation, green when it
// passes, red when it fails; a click on it calls `clicked` (which opens the Checks panel).
class VerdictStripView : public QWidget {
  public:
    VerdictStripView(std::function<void()> clicked, QWidget* parent = nullptr);

    void Refresh(const std::vector<VerdictStripLine>& lines);

  protected:
    void mousePressEvent(QMouseEvent* event) override;

  private:
    std::function<void()> m_clicked;
    std::vector<QLabel*> m_labels;
};
