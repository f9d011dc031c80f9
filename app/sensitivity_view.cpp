#include "app/sensitivity_view.h"

#include "app/sensitivity_chart.h"

#include <QApplication>
#include <QButtonGroup>
#include <QChartView>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLegend>
#include <QLineEdit>
#include <QLineSeries>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScatterSeries>
#include <QSpinBox>
#include <QStackedWidget>
#include <QSvgGenerator>
#include <QTimer>
#include <QVBoxLayout>
#include <QValueAxis>
#include <thread>

namespace {

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

SensitivityView::SensitivityView(const DesignRecord& record, const EngineSettings& settings,
                                 QWidget* parent)
    : QDialog(parent), m_record(record), m_settings(settings),
      m_dialog(OpenSensitivityDialog(record)) {
    setObjectName("frmSensitivity");
    setWindowTitle("Soil Sensitivity");
    auto* layout = new QHBoxLayout(this);
    auto* side = new QVBoxLayout;
    layout->addLayout(side);

    auto* pairBox = new QGroupBox("Vary", this);
    auto* pairLayout = new QVBoxLayout(pairBox);
    m_pair = new QButtonGroup(this);
    const char* captions[] = {"Center lift em and ym", "Edge lift em and ym", "One field:"};
    for (int i = 0; i < 3; ++i) {
        auto* option = new QRadioButton(captions[i], pairBox);
        option->setObjectName(QString("optPair(%1)").arg(i));
        m_pair->addButton(option, i);
        pairLayout->addWidget(option);
    }
    m_field = new QComboBox(pairBox);
    m_field->setObjectName("cboField");
    for (const std::string& field : m_dialog.fieldChoices) {
        m_field->addItem(Text(FieldAxisTitle(field)), Text(field));
    }
    pairLayout->addWidget(m_field);
    side->addWidget(pairBox);

    auto* spanBox = new QGroupBox("Spans", this);
    auto* spans = new QGridLayout(spanBox);
    spans->addWidget(new QLabel("From", spanBox), 0, 1);
    spans->addWidget(new QLabel("To", spanBox), 0, 2);
    for (int i = 0; i < 2; ++i) {
        m_spanLabel[i] = new QLabel(spanBox);
        m_spanLabel[i]->setObjectName(QString("lblField(%1)").arg(i));
        m_from[i] = new QLineEdit(spanBox);
        m_from[i]->setObjectName(QString("txtFrom(%1)").arg(i));
        m_to[i] = new QLineEdit(spanBox);
        m_to[i]->setObjectName(QString("txtTo(%1)").arg(i));
        m_from[i]->setMaximumWidth(90);
        m_to[i]->setMaximumWidth(90);
        spans->addWidget(m_spanLabel[i], i + 1, 0);
        spans->addWidget(m_from[i], i + 1, 1);
        spans->addWidget(m_to[i], i + 1, 2);
    }
    spans->addWidget(new QLabel("Values along each", spanBox), 3, 0);
    m_points = new QSpinBox(spanBox);
    m_points->setObjectName("udPoints");
    m_points->setRange(MinSensitivityPoints, MaxSensitivityPointsPerField);
    m_points->setValue(m_dialog.points);
    spans->addWidget(m_points, 3, 1);
    side->addWidget(spanBox);

    m_run = new QPushButton("Run", this);
    m_run->setObjectName("cmbRun");
    m_run->setDefault(true);
    side->addWidget(m_run);
    m_progress = new QProgressBar(this);
    m_progress->setObjectName("prgRun");
    m_progress->setRange(0, 1000);
    side->addWidget(m_progress);
    m_error = new QLabel(this);
    m_error->setObjectName("lblError");
    m_error->setWordWrap(true);
    m_error->setStyleSheet("color: rgb(200, 0, 0)");
    side->addWidget(m_error);
    m_summary = new QLabel(this);
    m_summary->setObjectName("lblSummary");
    m_summary->setWordWrap(true);
    m_summary->setMaximumWidth(300);
    side->addWidget(m_summary);
    side->addStretch();
    auto* buttons = new QGridLayout;
    const auto button = [this](const char* name, const char* caption) {
        auto* b = new QPushButton(caption, this);
        b->setObjectName(name);
        return b;
    };
    QPushButton* copy = button("cmbCopy", "Copy");
    QPushButton* png = button("cmbExportPng", "Export PNG...");
    QPushButton* svg = button("cmbExportSvg", "Export SVG...");
    QPushButton* close = button("cmbClose", "Close");
    buttons->addWidget(copy, 0, 0);
    buttons->addWidget(close, 0, 1);
    buttons->addWidget(png, 1, 0);
    buttons->addWidget(svg, 1, 1);
    side->addLayout(buttons);

    m_charts = new QStackedWidget(this);
    m_charts->setObjectName("picChart");
    m_heatMap = new SensitivityHeatMap(m_charts);
    m_lineChart = new QChartView(m_charts);
    m_lineChart->setObjectName("picLineChart");
    m_lineChart->setRenderHint(QPainter::Antialiasing);
    m_charts->addWidget(m_heatMap);
    m_charts->addWidget(m_lineChart);
    layout->addWidget(m_charts, 1);

    m_timer = new QTimer(this);
    m_timer->setInterval(50);
    connect(m_timer, &QTimer::timeout, this, [this] {
        m_progress->setValue(
            static_cast<int>(1000 * m_done.load() / std::max<std::int64_t>(1, m_total.load())));
        if (m_finished.load()) {
            FinishRun();
        }
    });
    connect(m_pair, &QButtonGroup::idClicked, this, [this](int id) {
        ChooseSensitivityPair(m_dialog, m_record, static_cast<SensitivityPair>(id));
        Refresh();
    });
    connect(m_field, &QComboBox::activated, this, [this](int index) {
        ChooseSensitivityField(m_dialog, m_record,
                               m_field->itemData(index).toString().toStdString());
        Refresh();
    });
    connect(m_points, &QSpinBox::valueChanged, this,
            [this](int value) { SetSensitivityPoints(m_dialog, value); });
    connect(m_run, &QPushButton::clicked, this, [this] { StartRun(); });
    connect(copy, &QPushButton::clicked, this, [this] { CopyChart(); });
    connect(png, &QPushButton::clicked, this, [this] { ExportChart(false); });
    connect(svg, &QPushButton::clicked, this, [this] { ExportChart(true); });
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    resize(1100, 640);
    Refresh();
}

SensitivityView::~SensitivityView() {
    m_stop.store(true);
}

void SensitivityView::Refresh() {
    m_pair->button(0)->setEnabled(m_dialog.pairsEnabled);
    m_pair->button(1)->setEnabled(m_dialog.pairsEnabled);
    m_pair->button(static_cast<int>(m_dialog.pair))->setChecked(true);
    m_field->setEnabled(m_dialog.pair == SensitivityPair::OneField);
    m_field->setCurrentIndex(m_field->findData(Text(m_dialog.oneField)));
    for (int i = 0; i < 2; ++i) {
        const bool shown = i < static_cast<int>(m_dialog.spans.size());
        m_spanLabel[i]->setVisible(shown);
        m_from[i]->setVisible(shown);
        m_to[i]->setVisible(shown);
        if (shown) {
            const SensitivitySpan& span = m_dialog.spans[static_cast<std::size_t>(i)];
            m_spanLabel[i]->setText(Text(FieldAxisTitle(span.field)));
            m_from[i]->setText(Text(span.from));
            m_to[i]->setText(Text(span.to));
        }
    }
    m_error->setText(Text(m_dialog.error));
}

void SensitivityView::ReadSpans() {
    for (std::size_t i = 0; i < m_dialog.spans.size(); ++i) {
        m_dialog.spans[i].from = m_from[i]->text().toStdString();
        m_dialog.spans[i].to = m_to[i]->text().toStdString();
    }
}

void SensitivityView::StartRun() {
    if (m_worker.joinable()) {
        return;
    }
    ReadSpans();
    std::optional<SensitivityRequest> request =
        SensitivityRequestOf(m_dialog, m_record, m_settings);
    m_error->setText(Text(m_dialog.error));
    if (!request) {
        return;
    }
    m_request = std::move(request);
    m_outcome.reset();
    m_heatMap->Clear();
    m_summary->clear();
    m_run->setEnabled(false);
    m_progress->setValue(0);
    m_done = 0;
    m_finished = false;
    m_worker = std::jthread([this] {
        SensitivityControl control;
        control.threads = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
        control.stop = &m_stop;
        control.progress = [this](std::int64_t done, std::int64_t total) {
            m_total = total;
            m_done = done;
        };
        m_pending = std::make_unique<SensitivityOutcome>(RunSensitivityGrid(*m_request, control));
        m_finished = true;
    });
    m_timer->start();
}

void SensitivityView::FinishRun() {
    m_timer->stop();
    m_worker.join();
    m_worker = std::jthread();
    m_outcome = std::move(*m_pending);
    m_pending.reset();
    m_progress->setValue(1000);
    m_run->setEnabled(true);
    QString summary;
    for (const std::string& line : SensitivitySummaryLines(*m_request, *m_outcome)) {
        summary += Text(line) + "\n";
    }
    m_summary->setText(summary.trimmed());
    if (m_finishedRun && !m_outcome->interrupted) {
        m_finishedRun(SensitivityRanges(m_dialog));
    }
    if (m_request->grid.fields.size() == 2) {
        m_heatMap->Show(*m_request, *m_outcome);
        m_charts->setCurrentWidget(m_heatMap);
    } else {
        ShowLineChart();
        m_charts->setCurrentWidget(m_lineChart);
    }
}

void SensitivityView::RunAndWait() {
    StartRun();
    if (m_worker.joinable()) {
        while (!m_finished.load()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        FinishRun();
    }
    QApplication::processEvents();
}

void SensitivityView::ShowLineChart() {
    auto* chart = new QChart;
    const std::string field(m_request->grid.fields.front().field->name);
    const QColor colours[] = {QColor(31, 90, 180), QColor(230, 120, 20)};
    double top = 1.2;
    std::size_t i = 0;
    auto* axisX = new QValueAxis;
    auto* axisY = new QValueAxis;
    axisX->setTitleText(Text(FieldAxisTitle(field)));
    axisY->setTitleText("Max ratio");
    axisX->setRange(
        std::min(m_request->grid.fields[0].valueAt(0),
                 m_request->grid.fields[0].valueAt(m_request->grid.fields[0].count - 1)),
        std::max(m_request->grid.fields[0].valueAt(0),
                 m_request->grid.fields[0].valueAt(m_request->grid.fields[0].count - 1)));
    chart->addAxis(axisX, Qt::AlignBottom);
    chart->addAxis(axisY, Qt::AlignLeft);
    for (const ChartSeries& data : OneFieldSeries(*m_request, *m_outcome)) {
        auto* series = new QLineSeries;
        series->setName(Text(data.name));
        series->setPen(QPen(colours[i++ % 2], 2.5));
        for (const auto& [x, y] : data.values) {
            series->append(x, y);
            top = std::max(top, y * 1.05);
        }
        chart->addSeries(series);
        series->attachAxis(axisX);
        series->attachAxis(axisY);
    }
    // The limit: a ratio of 1.0.
    auto* limit = new QLineSeries;
    limit->setName("Limit (ratio 1.0)");
    limit->setPen(QPen(QColor(200, 0, 0), 1.5, Qt::DashLine));
    limit->append(axisX->min(), 1.0);
    limit->append(axisX->max(), 1.0);
    chart->addSeries(limit);
    limit->attachAxis(axisX);
    limit->attachAxis(axisY);
    // The design value.
    auto* design = new QScatterSeries;
    design->setName("Design");
    design->setMarkerSize(12);
    design->setColor(Qt::black);
    const SensitivityPoint& point = m_outcome->design;
    if (point.judged() && point.largestRatio()) {
        design->append(m_record.*m_request->grid.fields[0].field->real, *point.largestRatio());
    }
    chart->addSeries(design);
    design->attachAxis(axisX);
    design->attachAxis(axisY);
    axisY->setRange(0, top);
    axisY->applyNiceNumbers();
    chart->legend()->setAlignment(Qt::AlignBottom);
    chart->setTitle("Max ratio of each foundation against " + Text(field));
    QChart* old = m_lineChart->chart();
    m_lineChart->setChart(chart);
    delete old;
}

QWidget* SensitivityView::ShownChart() const {
    return m_charts->currentWidget();
}

QImage SensitivityView::ChartImage() const {
    QImage image(ShownChart()->size() * 2, QImage::Format_ARGB32);
    image.setDevicePixelRatio(2);
    image.fill(Qt::white);
    QPainter painter(&image);
    if (ShownChart() == m_heatMap) {
        m_heatMap->Draw(painter, m_heatMap->size());
    } else {
        m_lineChart->render(&painter);
    }
    return image;
}

bool SensitivityView::WriteSvg(const QString& path) const {
    QSvgGenerator svg;
    svg.setFileName(path);
    svg.setSize(ShownChart()->size());
    svg.setViewBox(QRect(QPoint(0, 0), ShownChart()->size()));
    svg.setTitle("Soil sensitivity");
    QPainter painter;
    if (!painter.begin(&svg)) {
        return false;
    }
    if (ShownChart() == m_heatMap) {
        m_heatMap->Draw(painter, m_heatMap->size());
    } else {
        m_lineChart->render(&painter);
    }
    return painter.end();
}

void SensitivityView::CopyChart() {
    if (m_outcome) {
        QApplication::clipboard()->setImage(ChartImage());
    }
}

void SensitivityView::ExportChart(bool svg) {
    if (!m_outcome) {
        return;
    }
    const QString path = QFileDialog::getSaveFileName(
        this, svg ? "Export Chart as SVG" : "Export Chart as PNG", "sensitivity",
        svg ? "SVG drawing (*.svg)" : "PNG image (*.png)");
    if (path.isEmpty()) {
        return;
    }
    const bool written = svg ? WriteSvg(path) : ChartImage().save(path, "PNG");
    if (!written) {
        m_error->setText("The chart could not be written to " + path);
    }
}
