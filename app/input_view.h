#pragma once

#include "app/form_widgets.h"
#include "lifecycle/program.h"

#include <QWidget>
#include <functional>

class QTabWidget;
class QTextBrowser;
class QToolButton;

// The input screen `frmInput`: the page toolbar, the seven pages built from the input model and
// the variable information panel beside them. It mirrors the model and hands every event to
// it; after each event `changed` redraws the program's windows.
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
};
