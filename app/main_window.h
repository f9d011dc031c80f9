#pragma once

#include "lifecycle/options_dialog.h"
#include "lifecycle/program.h"
#include "shell/shell_services.h"

#include <QMainWindow>
#include <map>
#include <string>

class DesignSearchView;
class InputView;
class OptionsView;
class PrintView;
class QAction;
class QStackedWidget;
class QToolButton;
class ResultsView;

// The main window `mdiKorvath`: its menus, the toolbar with the New drop-down, and the input
// and results screens in its middle. Every command goes to the lifecycle controller; the
// window then mirrors the program's state: caption, enabled commands, recent files, the screen
// shown.
class MainWindow : public QMainWindow {
  public:
    // The services' message boxes and file dialogs are the program's: Qt boxes over this window
    // in the program, a script in tests.
    MainWindow(Program& program, ShellServices& services, AssociationTarget association);

    // Places the window as the settings say, on the screen it opens on.
    void Place();
    // Redraws everything from the program's state.
    void Refresh();

    QAction* Action(const std::string& name) const;
    QToolButton* ToolbarButton(const std::string& key) const;
    ShellServices& services() { return m_services; }
    InputView* inputView() const { return m_input; }
    ResultsView* resultsView() const { return m_results; }
    OptionsView* optionsView() const { return m_options; }
    PrintView* printView() const { return m_print; }
    DesignSearchView* designSearchView() const { return m_search; }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void BuildMenus();
    void BuildToolbar();
    QAction* AddAction(QMenu* menu, const std::string& name, const QString& caption);
    void RunAnalysis();
    void OpenPrintDialog(PrintPath path);
    void OpenDesignSearch();
    void ShowAbout();

    Program& m_program;
    ShellServices& m_services;
    AssociationTarget m_association;
    std::map<std::string, QAction*> m_actions;
    std::map<std::string, QToolButton*> m_buttons;
    QStackedWidget* m_stack;
    InputView* m_input;
    ResultsView* m_results;
    OptionsView* m_options;
    PrintView* m_print;
    DesignSearchView* m_search;
    bool m_ending = false;
};
