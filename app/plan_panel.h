#pragma once

#include "plan/foundation_plan.h"

#include <QWidget>
#include <string>
#include <vector>

// Paints a plan fitted to the widget: the plan over its typical sections, or with title lines a
// whole plan sheet. An earlier drawing shown with a reason is greyed under it; a reason without
// a drawing stands alone. It only paints what it is given.
class PlanPanel : public QWidget {
  public:
    explicit PlanPanel(QWidget* parent = nullptr);

    void Show(const FoundationPlan& plan, bool drawn, const std::string& reason,
              const std::vector<std::string>& titleLines = {});

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    FoundationPlan m_plan;
    bool m_drawn = false;
    std::string m_reason;
    std::vector<std::string> m_titleLines;
};
