#pragma once

#include "lifecycle/sensitivity_dialog.h"

#include <QDialog>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>

class QButtonGroup;
class QChartView;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QStackedWidget;
class QTimer;
class SensitivityHeatMap;

// The "Soil Sensitivity" dialog `frmSensitivity`: the view of SensitivityDialog. The grid runs on
// worker threads started from here; a timer reads their progress into the bar, and the chart
// (a heat map for two fields, a line chart for one) is drawn when they are done.
class SensitivityView : public QDialog {
  public:
    SensitivityView(const DesignRecord& record, const EngineSettings& settings, QWidget* parent);
    ~SensitivityView() override;

    // Runs the grid and waits for it (the screenshots).
    void RunAndWait();
    // Tells `finished` the ranges of every run that ends whole, for the calculation package.
    void OnRunFinished(std::function<void(const std::vector<std::string>&)> finished) {
        m_finishedRun = std::move(finished);
    }
    // Draws the chart shown into an image, or writes it as SVG.
    QImage ChartImage() const;
    bool WriteSvg(const QString& path) const;

  private:
    void Refresh();
    void ReadSpans();
    void StartRun();
    void FinishRun();
    void ShowLineChart();
    void CopyChart();
    void ExportChart(bool svg);
    QWidget* ShownChart() const;

    DesignRecord m_record;
    EngineSettings m_settings;
    SensitivityDialog m_dialog;
    std::optional<SensitivityRequest> m_request;
    std::optional<SensitivityOutcome> m_outcome;
    std::unique_ptr<SensitivityOutcome> m_pending;
    std::atomic<std::int64_t> m_done{0};
    std::atomic<std::int64_t> m_total{1};
    std::atomic<bool> m_finished{false};
    std::atomic<bool> m_stop{false};
    std::jthread m_worker;
    std::function<void(const std::vector<std::string>&)> m_finishedRun;

    QButtonGroup* m_pair;
    QComboBox* m_field;
    QLabel* m_spanLabel[2];
    QLineEdit* m_from[2];
    QLineEdit* m_to[2];
    QSpinBox* m_points;
    QPushButton* m_run;
    QProgressBar* m_progress;
    QLabel* m_error;
    QStackedWidget* m_charts;
    SensitivityHeatMap* m_heatMap;
    QChartView* m_lineChart;
    QLabel* m_summary;
    QTimer* m_timer;
};
