#include "app/checks_dock.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

// The red of the classic lists' items out of their limits (color value 255).
const QColor FailingRed(255, 0, 0);

bool RightAligned(int column) {
    const auto c = static_cast<CheckColumn>(column);
    return c == CheckColumn::Demand || c == CheckColumn::Limit || c == CheckColumn::Ratio;
}

} // namespace

ChecksDock::ChecksDock(ChecksPanel& panel, std::function<void(std::size_t)> open, QWidget* parent)
    : QDockWidget("Checks", parent), m_panel(panel), m_open(std::move(open)) {
    setObjectName("dckChecks");
    auto* body = new QWidget(this);
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(4, 4, 4, 4);
    m_caption = new QLabel(body);
    m_caption->setObjectName("lblChecksCaption");
    m_caption->setWordWrap(true);
    m_failingOnly = new QCheckBox("Failing only", body);
    m_failingOnly->setObjectName("chkFailingOnly");
    m_table = new QTableWidget(0, CheckColumns, body);
    m_table->setObjectName("grdChecks");
    QStringList captions;
    for (const char* caption : CheckColumnCaptions) {
        captions << caption;
    }
    m_table->setHorizontalHeaderLabels(captions);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 6);
    m_table->setWordWrap(false);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->horizontalHeader()->setSectionsClickable(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    // The item and its numbers near the start, where the eye is; the mode, which the item names
    // too, last.
    QHeaderView* header = m_table->horizontalHeader();
    for (const CheckColumn column : {CheckColumn::Mode}) {
        header->moveSection(header->visualIndex(static_cast<int>(column)), CheckColumns - 1);
    }
    layout->addWidget(m_caption);
    layout->addWidget(m_failingOnly);
    layout->addWidget(m_table);
    setWidget(body);

    connect(m_failingOnly, &QCheckBox::toggled, this, [this](bool on) {
        m_panel.failingOnly = on;
        Refresh(m_current);
    });
    connect(m_table->horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
        SortChecks(m_panel, static_cast<CheckColumn>(column));
        Refresh(m_current);
    });
    connect(m_table, &QTableWidget::cellDoubleClicked, this, [this](int row, int) {
        const QTableWidgetItem* item = m_table->item(row, 0);
        if (item != nullptr && m_open) {
            m_open(item->data(Qt::UserRole).value<qulonglong>());
        }
    });
}

void ChecksDock::Refresh(bool current) {
    m_current = current;
    if (!m_panel.loaded) {
        m_caption->setText("The checks appear after an analysis (F5).");
    } else if (current) {
        m_caption->setText("Every check of the last analysis, with its demand and limit. Double "
                           "click a row for the results page that shows it.");
    } else {
        m_caption->setText("The checks of the last analysis; the input has changed since. Run "
                           "the analysis (F5) to check the values as they stand.");
    }
    m_failingOnly->setChecked(m_panel.failingOnly);
    const std::vector<ChecksPanelRow> rows = ChecksPanelRows(m_panel);
    m_table->setRowCount(static_cast<int>(rows.size()));
    for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
        const ChecksPanelRow& row = rows[static_cast<std::size_t>(r)];
        for (int c = 0; c < CheckColumns; ++c) {
            auto* item = new QTableWidgetItem(
                QString::fromStdString(row.cells[static_cast<std::size_t>(c)]));
            if (RightAligned(c)) {
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            }
            if (row.failing) {
                item->setForeground(FailingRed);
                QFont font = item->font();
                font.setBold(true);
                item->setFont(font);
            }
            item->setData(Qt::UserRole, QVariant::fromValue<qulonglong>(row.check));
            m_table->setItem(r, c, item);
        }
    }
    m_table->resizeColumnsToContents();
    m_table->setEnabled(current);
    const auto sorted = m_panel.sortColumn;
    m_table->horizontalHeader()->setSortIndicatorShown(sorted.has_value());
    if (sorted) {
        m_table->horizontalHeader()->setSortIndicator(static_cast<int>(*sorted),
                                                      m_panel.ascending ? Qt::AscendingOrder
                                                                        : Qt::DescendingOrder);
    }
}
