#include "app/design_search_view.h"

#include "common/number_pattern.h"
#include "compliance/check_names.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMetaObject>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QLineSeries>
#include <QtCharts/QScatterSeries>
#include <QtCharts/QValueAxis>
#include <algorithm>
#include <exception>

namespace {

enum FieldColumn {
    VaryColumn,
    FieldColumnCaption,
    CurrentColumn,
    FromColumn,
    ToColumn,
    StepColumn,
    FieldColumns
};

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

QString Count(std::int64_t value) {
    return Q(FormatNumber(static_cast<double>(value), "#,##0"));
}

QTableWidgetItem* ReadOnlyItem(const QString& text, Qt::Alignment alignment = Qt::AlignLeft) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    item->setTextAlignment(alignment | Qt::AlignVCenter);
    return item;
}

// A value of a varied field in its shortest form, with the zero before a decimal point.
QString ValueText(double value) {
    return QString::number(value, 'g', 15);
}

} // namespace

DesignSearchView::DesignSearchView(Program& program, ShellServices& services,
                                   std::function<void()> refreshMain, QWidget* parent)
    : QDialog(parent), m_program(program), m_services(services),
      m_refreshMain(std::move(refreshMain)) {
    setObjectName("frmDesignSearch");
    setWindowTitle(DesignSearchTitle);
    setWindowModality(Qt::ApplicationModal);

    // The request: fields and ranges, objective and prices, the search's own controls.
    m_fields = new QTableWidget(0, FieldColumns, this);
    m_fields->setObjectName("grdFields");
    m_fields->setHorizontalHeaderLabels({"Vary", "Field", "Current", "From", "To", "Step"});
    m_fields->verticalHeader()->hide();
    m_fields->horizontalHeader()->setSectionResizeMode(FieldColumnCaption, QHeaderView::Stretch);
    m_fields->setSelectionMode(QAbstractItemView::NoSelection);
    connect(m_fields, &QTableWidget::itemChanged, this, [this] {
        if (!m_filling) {
            ReadFieldTable();
            UpdatePlan();
        }
    });

    m_objective = new QComboBox(this);
    m_objective->setObjectName("cboObjective");
    m_objective->addItems({"Least concrete volume", "Least tendon length", "Least cost"});
    m_concreteCost = new QLineEdit(this);
    m_concreteCost->setObjectName("txtConcreteCost");
    m_tendonCost = new QLineEdit(this);
    m_tendonCost->setObjectName("txtTendonCost");
    connect(m_objective, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_model.objective = static_cast<SearchObjective>(index);
        UpdatePlan();
    });
    connect(m_concreteCost, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_model.concreteCost = text.toStdString();
        UpdatePlan();
    });
    connect(m_tendonCost, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_model.tendonCost = text.toStdString();
        UpdatePlan();
    });
    auto* objective = new QFormLayout;
    objective->addRow("Objective :", m_objective);
    objective->addRow("Concrete cost per cubic yard :", m_concreteCost);
    objective->addRow("Tendon cost per foot :", m_tendonCost);

    m_candidates = new QLabel(this);
    m_candidates->setObjectName("lblCandidates");
    m_search = new QPushButton("&Search", this);
    m_search->setObjectName("cmdSearch");
    m_cancel = new QPushButton("Cancel", this);
    m_cancel->setObjectName("cmdCancelSearch");
    m_progress = new QProgressBar(this);
    m_progress->setObjectName("prgSearch");
    m_progress->setRange(0, 1000);
    m_progress->setValue(0);
    m_progressText = new QLabel(this);
    m_progressText->setObjectName("lblProgress");
    connect(m_search, &QPushButton::clicked, this, [this] { StartSearch(); });
    connect(m_cancel, &QPushButton::clicked, this, [this] { CancelSearch(); });

    auto* run = new QHBoxLayout;
    run->addWidget(m_candidates, 1);
    run->addWidget(m_search);
    run->addWidget(m_cancel);
    auto* request = new QGroupBox("Fields to vary", this);
    auto* requestLayout = new QVBoxLayout(request);
    requestLayout->addWidget(m_fields, 1);
    requestLayout->addLayout(objective);
    requestLayout->addLayout(run);
    requestLayout->addWidget(m_progress);
    requestLayout->addWidget(m_progressText);

    // What the search found.
    m_counts = new QLabel(this);
    m_counts->setObjectName("lblCounts");
    m_counts->setTextFormat(Qt::PlainText);
    m_reasons = new QTreeWidget(this);
    m_reasons->setObjectName("tvwReasons");
    m_reasons->setHeaderLabels({"Why candidates failed", "Candidates"});
    m_reasons->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_reasons->header()->setStretchLastSection(false);
    m_reasons->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_reasons->setRootIsDecorated(true);
    m_reasons->setSelectionMode(QAbstractItemView::NoSelection);
    m_reasons->setFocusPolicy(Qt::NoFocus);
    m_reasons->setWordWrap(true);

    auto* chart = new QChart;
    chart->setTitle("Pareto front: concrete volume against tendon length");
    chart->legend()->setAlignment(Qt::AlignBottom);
    m_chart = new QChartView(chart, this);
    m_chart->setObjectName("chtPareto");
    m_chart->setRenderHint(QPainter::Antialiasing);
    m_chart->setMinimumHeight(260);

    m_best = new QTableWidget(0, 0, this);
    m_best->setObjectName("grdBest");
    m_best->verticalHeader()->hide();
    m_best->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_best->setSelectionMode(QAbstractItemView::SingleSelection);
    m_best->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_best->horizontalHeader()->setStretchLastSection(true);
    connect(m_best, &QTableWidget::itemSelectionChanged, this, [this] { UpdateButtons(); });

    m_use = new QPushButton("&Use this design", this);
    m_use->setObjectName("cmdUse");
    m_undo = new QPushButton("U&ndo", this);
    m_undo->setObjectName("cmdUndo");
    m_close = new QPushButton("&Close", this);
    m_close->setObjectName("cmdClose");
    connect(m_use, &QPushButton::clicked, this, [this] { UseSelected(); });
    connect(m_undo, &QPushButton::clicked, this, [this] { Undo(); });
    connect(m_close, &QPushButton::clicked, this, [this] { reject(); });

    auto* found = new QGroupBox("Results", this);
    auto* foundLayout = new QVBoxLayout(found);
    auto* top = new QHBoxLayout;
    auto* left = new QVBoxLayout;
    left->addWidget(m_counts);
    left->addWidget(m_reasons, 1);
    top->addLayout(left, 1);
    top->addWidget(m_chart, 1);
    foundLayout->addLayout(top, 3);
    foundLayout->addWidget(m_best, 2);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_use);
    buttons->addWidget(m_undo);
    buttons->addStretch(1);
    buttons->addWidget(m_close);
    foundLayout->addLayout(buttons);

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(request, 4);
    layout->addWidget(found, 7);
    resize(1360, 760);
}

DesignSearchView::~DesignSearchView() {
    StopAndWait();
}

void DesignSearchView::StopAndWait() {
    m_stop = true;
    if (m_worker.joinable()) {
        m_worker.join();
    }
}

void DesignSearchView::Open() {
    const std::optional<DesignRecord> input = SearchableInput(m_program);
    if (!input) {
        return;
    }
    m_model = OpenDesignSearchDialog(m_program, *input);
    BuildFieldTable();
    m_filling = true;
    m_objective->setCurrentIndex(static_cast<int>(m_model.objective));
    m_concreteCost->clear();
    m_tendonCost->clear();
    m_filling = false;
    m_progress->setValue(0);
    m_progressText->clear();
    ShowOutcome();
    UpdatePlan();
    show();
    raise();
}

void DesignSearchView::BuildFieldTable() {
    m_filling = true;
    m_fields->setRowCount(static_cast<int>(m_model.rows.size()));
    for (std::size_t i = 0; i < m_model.rows.size(); ++i) {
        const SearchFieldRow& row = m_model.rows[i];
        const int r = static_cast<int>(i);
        auto* vary = new QTableWidgetItem;
        vary->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
        vary->setCheckState(row.chosen ? Qt::Checked : Qt::Unchecked);
        m_fields->setItem(r, VaryColumn, vary);
        auto* caption = ReadOnlyItem(Q(row.caption));
        // The record's name of the field, which the table of results heads its column with.
        caption->setToolTip(Q(row.field));
        caption->setStatusTip(Q(row.page));
        m_fields->setItem(r, FieldColumnCaption, caption);
        m_fields->setItem(r, CurrentColumn, ReadOnlyItem(ValueText(row.current), Qt::AlignRight));
        m_fields->setItem(r, FromColumn, new QTableWidgetItem(Q(row.from)));
        m_fields->setItem(r, ToColumn, new QTableWidgetItem(Q(row.to)));
        m_fields->setItem(r, StepColumn, new QTableWidgetItem(Q(row.step)));
    }
    m_fields->resizeColumnsToContents();
    m_fields->horizontalHeader()->setSectionResizeMode(FieldColumnCaption, QHeaderView::Stretch);
    m_filling = false;
}

void DesignSearchView::ReadFieldTable() {
    for (std::size_t i = 0; i < m_model.rows.size(); ++i) {
        SearchFieldRow& row = m_model.rows[i];
        const int r = static_cast<int>(i);
        row.chosen = m_fields->item(r, VaryColumn)->checkState() == Qt::Checked;
        row.from = m_fields->item(r, FromColumn)->text().toStdString();
        row.to = m_fields->item(r, ToColumn)->text().toStdString();
        row.step = m_fields->item(r, StepColumn)->text().toStdString();
    }
}

void DesignSearchView::UpdatePlan() {
    if (m_filling) {
        return;
    }
    const SearchPlan plan = PlanSearch(m_model);
    m_candidates->setText(Q(CandidateCountText(plan)));
    m_candidates->setStyleSheet(plan.request ? "" : "color: rgb(255, 0, 0);");
    UpdateButtons();
}

void DesignSearchView::UpdateButtons() {
    const bool running = Searching();
    m_search->setEnabled(!running && PlanSearch(m_model).request.has_value());
    m_cancel->setEnabled(running);
    m_fields->setEnabled(!running);
    m_objective->setEnabled(!running);
    m_concreteCost->setEnabled(!running);
    m_tendonCost->setEnabled(!running);
    const bool chosen = !m_best->selectedItems().isEmpty();
    m_use->setEnabled(!running && chosen && m_model.last.has_value());
    m_undo->setEnabled(!running && !m_model.undo.empty());
}

void DesignSearchView::StartSearch() {
    if (Searching()) {
        return;
    }
    SearchPlan plan = PlanSearch(m_model);
    if (!plan.request) {
        return;
    }
    m_total = plan.candidates;
    m_priced =
        !m_concreteCost->text().trimmed().isEmpty() || !m_tendonCost->text().trimmed().isEmpty();
    m_stop = false;
    m_progress->setValue(0);
    m_progressText->setText(Q(SearchProgressText(0, m_total, 0)));
    m_clock.start();
    SearchRequest request = std::move(*plan.request);
    m_worker = std::thread([this, request = std::move(request)]() mutable {
        SearchControl control;
        control.threads = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
        control.stop = &m_stop;
        control.progress = [this](std::int64_t tried) {
            QMetaObject::invokeMethod(
                this, [this, tried] { ShowProgress(tried); }, Qt::QueuedConnection);
        };
        SearchOutcome outcome;
        std::string failure;
        try {
            outcome = RunDesignSearch(request, control);
        } catch (const std::exception& error) {
            failure = error.what();
        }
        QMetaObject::invokeMethod(
            this,
            [this, request = std::move(request), outcome = std::move(outcome),
             failure = std::move(failure)]() mutable {
                FinishSearch(std::move(request), std::move(outcome), std::move(failure));
            },
            Qt::QueuedConnection);
    });
    UpdateButtons();
}

void DesignSearchView::CancelSearch() {
    m_stop = true;
    m_cancel->setEnabled(false);
}

void DesignSearchView::ShowProgress(std::int64_t tried) {
    if (!Searching() || m_total <= 0) {
        return;
    }
    m_progress->setValue(
        static_cast<int>(1000.0 * static_cast<double>(tried) / static_cast<double>(m_total)));
    m_progressText->setText(
        Q(SearchProgressText(tried, m_total, static_cast<double>(m_clock.elapsed()) / 1000.0)));
}

void DesignSearchView::FinishSearch(SearchRequest request, SearchOutcome outcome,
                                    std::string failure) {
    if (m_worker.joinable()) {
        m_worker.join();
    }
    if (!failure.empty()) {
        m_progressText->setText(Q("The search ended in a fault: " + failure));
        UpdateButtons();
        return;
    }
    const bool priced = m_priced;
    const std::int64_t tried = outcome.tried;
    m_model.last = FinishedSearch{std::move(request), std::move(outcome), priced};
    m_progress->setValue(m_total > 0 ? static_cast<int>(1000.0 * static_cast<double>(tried) /
                                                        static_cast<double>(m_total))
                                     : 0);
    m_progressText->setText(
        Q(SearchProgressText(tried, m_total, static_cast<double>(m_clock.elapsed()) / 1000.0) +
          (m_model.last->outcome.interrupted ? "; cancelled, the best of those tried" : "")));
    ShowOutcome();
    UpdateButtons();
}

void DesignSearchView::ShowOutcome() {
    m_reasons->clear();
    m_best->clear();
    m_best->setRowCount(0);
    m_best->setColumnCount(0);
    if (!m_model.last) {
        m_counts->setText("No search yet: choose the fields to vary and press Search.");
        DrawFront();
        return;
    }
    const SearchOutcome& outcome = m_model.last->outcome;
    m_counts->setText(QString("Candidates tried: %1\n  refused by the value checks: %2\n"
                              "  ended in a fault: %3\n  out of compliance: %4\n  compliant: %5")
                          .arg(Count(outcome.tried), Count(outcome.refused), Count(outcome.faulted),
                               Count(outcome.outOfCompliance), Count(outcome.compliant)));

    auto* refused =
        new QTreeWidgetItem(m_reasons, {"Refused by the value checks", Count(outcome.refused)});
    for (const RefusalCount& refusal : outcome.refusals) {
        new QTreeWidgetItem(refused, {Q(refusal.message), Count(refusal.count)});
    }
    auto* failed = new QTreeWidgetItem(
        m_reasons, {"Out of compliance, by the checks failed", Count(outcome.outOfCompliance)});
    // The ribbed foundation is the one every project has: its checks go by their own names, those
    // of the uniform thickness foundation with the foundation's.
    for (const FailureCount& failure : outcome.failures) {
        const std::string text = failure.foundation == Foundation::Ribbed
                                     ? CheckTitle(failure.check())
                                     : FailedCheckText(failure);
        new QTreeWidgetItem(failed, {Q(text), Count(failure.count)});
    }
    for (QTreeWidgetItem* group : {refused, failed}) {
        group->setTextAlignment(1, Qt::AlignRight);
        for (int i = 0; i < group->childCount(); ++i) {
            group->child(i)->setTextAlignment(1, Qt::AlignRight);
            group->child(i)->setToolTip(0, group->child(i)->text(0));
        }
    }
    m_reasons->expandAll();

    // The best designs, in the order of the objective.
    const CandidateGrid& grid = m_model.last->request.grid;
    QStringList headings = {"Rank"};
    for (const VariedField& varied : grid.fields) {
        headings << Q(std::string(varied.field->name));
    }
    headings << "Concrete (yd3)"
             << "Tendon (ft)";
    const bool priced = m_model.last->priced;
    if (priced) {
        headings << "Cost";
    }
    headings << "Margin";
    m_best->setColumnCount(static_cast<int>(headings.size()));
    m_best->setHorizontalHeaderLabels(headings);
    for (int column = 1; column <= static_cast<int>(grid.fields.size()); ++column) {
        for (const SearchFieldRow& row : m_model.rows) {
            if (row.field == grid.fields[static_cast<std::size_t>(column - 1)].field->name) {
                m_best->horizontalHeaderItem(column)->setToolTip(Q(row.caption));
            }
        }
    }
    m_best->setRowCount(static_cast<int>(outcome.best.size()));
    for (std::size_t rank = 0; rank < outcome.best.size(); ++rank) {
        const CandidateScore& score = outcome.best[rank];
        const int r = static_cast<int>(rank);
        int column = 0;
        m_best->setItem(r, column++, ReadOnlyItem(QString::number(rank + 1), Qt::AlignRight));
        for (const double value : CandidateValues(*m_model.last, score.index)) {
            m_best->setItem(r, column++, ReadOnlyItem(ValueText(value), Qt::AlignRight));
        }
        m_best->setItem(
            r, column++,
            ReadOnlyItem(Q(FormatNumber(score.concreteVolume, "#,##0.00")), Qt::AlignRight));
        m_best->setItem(
            r, column++,
            ReadOnlyItem(Q(FormatNumber(score.tendonLength, "#,##0.0")), Qt::AlignRight));
        if (priced) {
            m_best->setItem(r, column++,
                            ReadOnlyItem(Q(FormatNumber(score.cost, "#,##0.00")), Qt::AlignRight));
        }
        m_best->setItem(r, column++,
                        ReadOnlyItem(score.margin ? Q(FormatNumber(*score.margin, "0.000")) : "-",
                                     Qt::AlignRight));
    }
    m_best->resizeColumnsToContents();
    if (!outcome.best.empty()) {
        m_best->selectRow(0);
    }
    DrawFront();
}

void DesignSearchView::DrawFront() {
    QChart* chart = m_chart->chart();
    chart->removeAllSeries();
    for (QAbstractAxis* axis : chart->axes()) {
        chart->removeAxis(axis);
        delete axis;
    }
    // The front as a line through its designs, each design a point on it.
    auto* line = new QLineSeries;
    line->setName("Pareto front");
    auto* points = new QScatterSeries;
    points->setName("Pareto front");
    points->setMarkerSize(9);
    auto* current = new QScatterSeries;
    current->setName(m_model.current && m_model.current->compliant ? "Current design"
                                                                   : "Current design (fails)");
    current->setMarkerShape(QScatterSeries::MarkerShapeRectangle);
    current->setMarkerSize(12);
    current->setColor(QColor(255, 0, 0));

    double xMin = 0, xMax = 0, yMin = 0, yMax = 0;
    bool any = false;
    const auto extend = [&](double x, double y) {
        xMin = any ? std::min(xMin, x) : x;
        xMax = any ? std::max(xMax, x) : x;
        yMin = any ? std::min(yMin, y) : y;
        yMax = any ? std::max(yMax, y) : y;
        any = true;
    };
    if (m_model.last) {
        for (const CandidateScore& score : m_model.last->outcome.pareto) {
            line->append(score.concreteVolume, score.tendonLength);
            points->append(score.concreteVolume, score.tendonLength);
            extend(score.concreteVolume, score.tendonLength);
        }
    }
    if (m_model.current) {
        current->append(m_model.current->concreteVolume, m_model.current->tendonLength);
        extend(m_model.current->concreteVolume, m_model.current->tendonLength);
    }
    chart->addSeries(line);
    chart->addSeries(points);
    chart->addSeries(current);
    auto* x = new QValueAxis;
    x->setTitleText("Concrete volume (cubic yards)");
    auto* y = new QValueAxis;
    y->setTitleText("Tendon length (ft)");
    if (any) {
        const double dx = std::max((xMax - xMin) * 0.1, std::max(std::abs(xMax) * 0.02, 0.5));
        const double dy = std::max((yMax - yMin) * 0.1, std::max(std::abs(yMax) * 0.02, 5.0));
        x->setRange(xMin - dx, xMax + dx);
        y->setRange(yMin - dy, yMax + dy);
    }
    if (any) {
        x->applyNiceNumbers();
        y->applyNiceNumbers();
    }
    x->setLabelFormat("%.0f");
    y->setLabelFormat("%.0f");
    chart->addAxis(x, Qt::AlignBottom);
    chart->addAxis(y, Qt::AlignLeft);
    for (QAbstractSeries* series : chart->series()) {
        series->attachAxis(x);
        series->attachAxis(y);
    }
    // One entry for the front, the points' own.
    for (QLegendMarker* marker : chart->legend()->markers(line)) {
        marker->setVisible(false);
    }
}

void DesignSearchView::UseSelected() {
    const QList<QTableWidgetItem*> selected = m_best->selectedItems();
    if (selected.isEmpty()) {
        return;
    }
    if (UseDesign(m_model, m_program, m_services, static_cast<std::size_t>(selected[0]->row()))) {
        m_refreshMain();
    }
    UpdateButtons();
}

void DesignSearchView::Undo() {
    UndoUse(m_model, m_program, m_services);
    m_refreshMain();
    UpdateButtons();
}

void DesignSearchView::reject() {
    // Closing while a search runs ends it first: its threads must not outlive the window.
    StopAndWait();
    QDialog::reject();
}

void DesignSearchView::closeEvent(QCloseEvent* event) {
    StopAndWait();
    event->accept();
}
