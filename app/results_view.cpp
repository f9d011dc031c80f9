#include "app/results_view.h"

#include "app/styled_text_html.h"
#include "app/visible_focus.h"
#include "output/compliance_pages.h"
#include "output/results_paging.h"
#include "output/results_tabs.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QTabWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

bool IsSummaryLine(const std::string& name) {
    return name.rfind("RibbedSummary", 0) == 0 || name.rfind("UTFSummary", 0) == 0 ||
           name.rfind("LLSummary", 0) == 0;
}

constexpr int CaptionColumn = 0;
constexpr int FirstValueColumn = 1;
constexpr int UnitColumn = 3;

} // namespace

ResultsView::ResultsView(ResultsScreen& screen, const DesignRecord& record,
                         const ResultsRecord& results, QWidget* parent)
    : QWidget(parent), m_screen(screen), m_record(record), m_results(results) {
    setObjectName("frmOutput");
    m_main = new QTabWidget(this);
    m_main->setObjectName("tabMain");
    m_ribbed = new QTabWidget(this);
    m_ribbed->setObjectName("tabRibbed");
    m_ribbed->setProperty("frame", "fraMain(1)");
    m_uniform = new QTabWidget(this);
    m_uniform->setObjectName("tabUniform");
    for (QTabWidget* strip : {m_main, m_ribbed, m_uniform}) {
        strip->setUsesScrollButtons(false);
    }
    for (const ResultPage& page : m_screen.pages) {
        m_pages[page.frame] = MakePage(page);
        m_pages[page.frame]->hide(); // shown only in a tab
    }
    m_ribbed->hide();
    m_uniform->hide();
    connect(m_main, &QTabWidget::currentChanged, this, [this](int index) {
        if (!m_refreshing && index >= 0) {
            SelectMainTab(m_screen, index + 1);
        }
    });
    connect(m_ribbed, &QTabWidget::currentChanged, this, [this](int index) {
        if (!m_refreshing && index >= 0) {
            SelectRibbedTab(m_screen, m_record, index + 1);
        }
    });
    connect(m_uniform, &QTabWidget::currentChanged, this, [this](int index) {
        if (!m_refreshing && index >= 0) {
            SelectUniformTab(m_screen, m_record, index + 1);
        }
    });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_main);
    for (const auto& [keys, step] :
         {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | keys), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, step = step] {
            StepResultsPage(m_screen, m_record, step);
            Refresh();
        });
    }
}

std::vector<QWidget*> ResultsView::Widgets(const std::string& name) const {
    const auto found = m_widgets.find(name);
    return found == m_widgets.end() ? std::vector<QWidget*>{} : found->second;
}

QWidget* ResultsView::MakePage(const ResultPage& page) {
    auto* scroll = new QScrollArea(this);
    scroll->setFocusPolicy(Qt::NoFocus); // the page's boxes and lists take the focus
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* host = new QWidget(scroll);
    host->setObjectName(Text(page.frame));
    auto* grid = new QGridLayout(host);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(4);
    const auto named = [this](QWidget* widget, const std::string& name) {
        widget->setObjectName(Text(name));
        m_widgets[name].push_back(widget);
        return widget;
    };
    int r = 0;
    for (const ResultRow& row : page.rows) {
        std::vector<QWidget*> cells;
        switch (row.kind) {
        case RowKind::Heading: {
            auto* heading = new QLabel(host);
            QFont font = heading->font();
            font.setBold(true);
            heading->setFont(font);
            if (r > 0) {
                heading->setContentsMargins(0, 10, 0, 0);
            }
            grid->addWidget(named(heading, row.caption), r, 0, 1, 4);
            cells.push_back(heading);
            break;
        }
        case RowKind::Note: {
            auto* note = new QLabel(host);
            note->setWordWrap(true);
            if (IsSummaryLine(row.caption)) {
                note->setCursor(Qt::PointingHandCursor);
                note->installEventFilter(this);
            }
            grid->addWidget(named(note, row.caption), r, 0, 1, UnitColumn + 2);
            cells.push_back(note);
            break;
        }
        case RowKind::Check: {
            auto* box = new QCheckBox(host);
            const std::string name = row.caption;
            connect(box, &QCheckBox::clicked, this, [this, name](bool checked) {
                if (!m_refreshing) {
                    ClickDisplayAll(m_screen, name, checked, m_record, m_results);
                    Refresh();
                }
            });
            grid->addWidget(named(box, row.caption), r, 0, 1, 4);
            cells.push_back(box);
            break;
        }
        case RowKind::List: {
            auto* list = new QTextBrowser(host);
            list->setMinimumHeight(360);
            list->setStyleSheet(VisibleFocusStyle("QTextBrowser"));
            // The list runs across the whole page, the stretching column included.
            grid->addWidget(named(list, row.caption), r, 0, 1, UnitColumn + 2);
            cells.push_back(list);
            break;
        }
        case RowKind::Columns:
        case RowKind::Value: {
            auto* caption = new QLabel(host);
            grid->addWidget(named(caption, row.caption), r, CaptionColumn);
            cells.push_back(caption);
            int column = FirstValueColumn;
            for (const std::string& value : row.values) {
                auto* label = new QLabel(host);
                label->setTextInteractionFlags(Qt::TextSelectableByMouse);
                const bool text = row.text || row.kind == RowKind::Columns;
                label->setAlignment((text ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
                if (row.kind == RowKind::Columns) {
                    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
                }
                // A text value (a name, a dimension line) runs across the value columns.
                const int span = row.text ? 2 : 1;
                grid->addWidget(named(label, value), r, column, 1, span);
                cells.push_back(label);
                ++column;
            }
            if (!row.unit.empty()) {
                auto* unit = new QLabel(host);
                grid->addWidget(named(unit, row.unit), r, UnitColumn);
                cells.push_back(unit);
            }
            break;
        }
        }
        m_rows.emplace_back(&row, cells);
        ++r;
    }
    grid->setColumnMinimumWidth(FirstValueColumn, 130);
    grid->setColumnMinimumWidth(FirstValueColumn + 1, 130);
    grid->setRowStretch(r, 1);
    grid->setColumnStretch(UnitColumn + 1, 1);
    scroll->setWidget(host);
    return scroll;
}

void ResultsView::FillTabs(QTabWidget* tabs, const TabStrip& strip,
                           const std::function<int(int)>& frameOf, const std::string& array) {
    while (tabs->count() > 0) {
        tabs->removeTab(0);
    }
    for (int tab = 1; tab <= strip.count(); ++tab) {
        QWidget* page = m_pages.at(ArrayName(array, frameOf(tab)));
        // The classic captions are padded with blanks to widen their tabs; without them every
        // tab of the strip stands in the window's width.
        tabs->addTab(page, Text(strip.captions[static_cast<std::size_t>(tab - 1)]).trimmed());
    }
    tabs->setCurrentIndex(strip.selected - 1);
}

void ResultsView::Refresh() {
    m_refreshing = true;
    const FormModel& form = m_screen.form;
    for (const auto& [name, widgets] : m_widgets) {
        if (!form.has(name)) {
            continue;
        }
        const Control& control = form[name];
        for (QWidget* widget : widgets) {
            if (auto* label = qobject_cast<QLabel*>(widget)) {
                label->setText(Text(control.caption));
                if (IsSummaryLine(name)) {
                    QFont font = label->font();
                    font.setBold(control.bold);
                    label->setFont(font);
                    label->setStyleSheet(control.red ? "color: rgb(255, 0, 0);" : "");
                }
            } else if (auto* box = qobject_cast<QCheckBox*>(widget)) {
                box->setText(Text(control.caption));
                box->setChecked(control.checked);
            } else if (auto* list = qobject_cast<QTextBrowser*>(widget)) {
                list->setHtml(StyledTextHtml(StyledList(m_screen, name)));
            }
        }
    }
    for (const auto& [row, cells] : m_rows) {
        const bool shown = IsRowShown(form, *row);
        for (std::size_t i = 0; i < cells.size(); ++i) {
            bool visible = shown;
            // A value the model hides leaves its cell empty on a row that shows.
            if (shown && i >= 1 && i <= row->values.size()) {
                visible = form[row->values[i - 1]].visible;
            }
            cells[i]->setVisible(visible);
        }
    }

    const std::int16_t soil = m_record.SoilType;
    const std::int16_t settle = m_record.CLSettleState;
    FillTabs(
        m_ribbed, m_screen.tabRibbed,
        [soil, settle](int tab) { return RibbedFrameOfTab(soil, settle, tab); }, "fraExpOutput");
    FillTabs(
        m_uniform, m_screen.tabUniform,
        [soil, settle](int tab) { return UniformFrameOfTab(soil, settle, tab); }, "fraUTFOutput");
    while (m_main->count() > 0) {
        m_main->removeTab(0);
    }
    for (int tab = 1; tab <= m_screen.tabMain.count(); ++tab) {
        const int frame = MainFrameOfTab(m_screen.tabMain, tab);
        QWidget* page = frame == 1   ? static_cast<QWidget*>(m_ribbed)
                        : frame == 2 ? static_cast<QWidget*>(m_uniform)
                                     : m_pages.at(ArrayName("fraMain", frame));
        m_main->addTab(page, Text(m_screen.tabMain.captions[static_cast<std::size_t>(tab - 1)]));
    }
    m_main->setCurrentIndex(m_screen.tabMain.selected - 1);
    m_refreshing = false;
}

bool ResultsView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        ClickSummaryLine(m_screen, m_record, watched->objectName().toStdString());
        Refresh();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
