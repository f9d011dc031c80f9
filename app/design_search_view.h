#pragma once

#include "lifecycle/design_search_dialog.h"

#include <QDialog>
#include <QElapsedTimer>
#include <atomic>
#include <functional>
#include <optional>
#include <thread>

class QChartView;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTableWidget;
class QTreeWidget;

// The "Design Search" dialog `frmDesignSearch`: the fields to vary and their ranges, the
// objective and prices, the search with its progress, and what it found: the counts, the
// reasons candidates were refused or failed, the Pareto front as a chart and the best designs
// as a table, any of which "Use this design" puts into the input screen. The search runs on the
// search library's worker threads; this window only waits for their reports, so it never
// freezes.
class DesignSearchView : public QDialog {
  public:
    DesignSearchView(Program& program, ShellServices& services, std::function<void()> refreshMain,
                     QWidget* parent);
    ~DesignSearchView() override;

    // Opens on the input as it stands; nothing when the input does not pass its checks.
    void Open();
    // Whether a search is running.
    bool Searching() const { return m_worker.joinable(); }
    const DesignSearchDialog& model() const { return m_model; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

  private:
    void BuildFieldTable();
    void ReadFieldTable();
    void UpdatePlan();
    void StartSearch();
    void CancelSearch();
    void ShowProgress(std::int64_t tried);
    void FinishSearch(SearchRequest request, SearchOutcome outcome, std::string failure);
    void ShowOutcome();
    void DrawFront();
    void UseSelected();
    void Undo();
    void UpdateButtons();
    void StopAndWait();

    Program& m_program;
    ShellServices& m_services;
    std::function<void()> m_refreshMain;
    DesignSearchDialog m_model;
    bool m_filling = false;

    QTableWidget* m_fields;
    QComboBox* m_objective;
    QLineEdit* m_concreteCost;
    QLineEdit* m_tendonCost;
    QLabel* m_candidates;
    QPushButton* m_search;
    QPushButton* m_cancel;
    QProgressBar* m_progress;
    QLabel* m_progressText;
    QLabel* m_counts;
    QTreeWidget* m_reasons;
    QChartView* m_chart;
    QTableWidget* m_best;
    QPushButton* m_use;
    QPushButton* m_undo;
    QPushButton* m_close;

    std::atomic<bool> m_stop{false};
    std::thread m_worker;
    std::int64_t m_total = 0;
    bool m_priced = false; // a price was given for the search running or last run
    QElapsedTimer m_clock;
};
