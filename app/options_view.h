#pragma once

#include "app/form_widgets.h"
#include "lifecycle/options_dialog.h"
#include "lifecycle/program.h"

#include <QDialog>

class QPushButton;
class QTabWidget;

// The options dialog `frmOptions`: the program tab, then the seven tabs of the default record
// laid out as the input pages, with OK, Apply and Cancel. It mirrors the options controller.
class OptionsView : public QDialog {
  public:
    OptionsView(Program& program, ShellServices& services, AssociationTarget association,
                QWidget* parent = nullptr);

    // Fills the dialog from the settings with `tab` in front and shows it modally.
    void Open(int tab = 0);
    void Refresh();

  private:
    QWidget* ProgramTab();

    Program& m_program;
    ShellServices& m_services;
    AssociationTarget m_association;
    FormWidgets* m_widgets;
    QTabWidget* m_tabs;
    QPushButton* m_apply;
    bool m_refreshing = false;
};
