#pragma once

#include "app/form_widgets.h"
#include "input/live_plan.h"
#include "lifecycle/program.h"

#include <QWidget>
#include <functional>

class PlanPanel;
class QTabWidget;
class QTextBrowser;
class QToolButton;

// The input screen `frmInput`: the page toolbar, the seven pages built from the input model and
// the variable information panel beside them. It mirrors the model and hands every event to
// it; after each event `changed` redraws the program's windows. The slab and beam pages show the
// plan of the values as typed beside their fields.
class InputView : public QWidget {
  public:
    InputView(Program& program, ShellServices& services, std::function<void()> changed,
              QWidget* parent = nullptr);

    void Refresh();
    FormWidgets& widgets() { return *m_widgets; }

  private:
    InputContext Context();
    void After();

    Program& m_program;
    ShellServices& m_services;
    std::function<void()> m_changed;
    FormWidgets* m_widgets;
    QTabWidget* m_tabs;
    QTextBrowser* m_info;
    QToolButton* m_open;
    QToolButton* m_save;
    bool m_refreshing = false;
    // The plan of the values as typed, beside the slab and beam pages' fields.
    LivePlan m_livePlan;
    std::vector<PlanPanel*> m_planPanels;
};
