#pragma once

#include "input/live_verdict.h"
#include "lifecycle/options_dialog.h"
#include "lifecycle/program.h"
#include "output/checks_panel.h"
#include "shell/shell_services.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <map>
#include <string>

class ChecksDock;
class DesignSearchView;
class InputView;
class QLabel;
class QTimer;
class VerdictStripView;
class OptionsView;
class PlanPanel;
class PrintView;
class QDockWidget;
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
    ChecksDock* checksDock() const { return m_checksDock; }
    QDockWidget* planDock() const { return m_planDock; }
    DesignSearchView* designSearchView() const { return m_search; }

    // The Analysis command (F5): the results screen, the verdict strip and the Checks panel
    // from the values on the input pages.
    void RunAnalysis();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void BuildMenus();
    void BuildToolbar();
    QAction* AddAction(QMenu* menu, const std::string& name, const QString& caption);
    void OpenPrintDialog(PrintPath path);
    void OpenDesignSearch();
    void ShowAbout();
    void ShowSensitivityDialog();

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
    // The plan of the analysed design, beside the results.
    QDockWidget* m_planDock;
    bool m_planPlaced = false; // the plan has been opened once and given its place
    PlanPanel* m_plan;
    DesignSearchView* m_search;
    bool m_ending = false;

    // The check table of the last analysis and its views; the verdict of the values as typed.
    void BuildChecks();
    void RefreshChecks();
    void ShowScreen(QWidget* screen);
    void InputEdited();
    void ShowLiveVerdict();
    ChecksPanel m_checksPanel;
    int m_checksLoads = 0;
    std::pair<int, bool> m_checksShown{-1, false};
    ChecksDock* m_checksDock;
    VerdictStripView* m_strip;
    QLabel* m_liveVerdict;
    QTimer* m_liveTimer;
    QElapsedTimer m_clock;
    LiveVerdictSchedule m_liveSchedule;
};
