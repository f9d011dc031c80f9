#include "app/results_view.h"

#include "app/styled_text_html.h"
#include "output/compliance_pages.h"
#include "output/results_tabs.h"

#include <QTabWidget>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

QString Escaped(const std::string& text) {
    return QString::fromStdString(text).toHtmlEscaped();
}

QString Trimmed(const std::string& text) {
    return QString::fromStdString(text).trimmed();
}

QTextBrowser* PageBrowser(const ResultsScreen& screen, const std::string& frame, QWidget* parent) {
    auto* browser = new QTextBrowser(parent);
    browser->setObjectName(QString::fromStdString(frame));
    browser->setHtml(PageHtml(screen, frame));
    return browser;
}

} // namespace

QString PageHtml(const ResultsScreen& screen, const std::string& frame) {
    const FormModel& form = screen.form;
    QString html = "<table cellspacing=\"0\" cellpadding=\"3\">";
    for (const ResultRow& row : PageOfFrame(screen.pages, frame).rows) {
        if (!IsRowShown(form, row)) {
            continue;
        }
        const Control& caption = form[row.caption];
        switch (row.kind) {
        case RowKind::Heading:
            html += "<tr><td colspan=\"4\"><br/><b>" + Escaped(caption.caption) + "</b></td></tr>";
            break;
        case RowKind::Note: {
            QString style = caption.bold ? "font-weight: bold;" : "";
            if (caption.red) {
                style += " color: rgb(255, 0, 0);";
            }
            html += "<tr><td colspan=\"4\" style=\"" + style + "\">" + Escaped(caption.caption) +
                    "</td></tr>";
            break;
        }
        case RowKind::Check:
            html += QString("<tr><td colspan=\"4\">[%1] ").arg(caption.checked ? "x" : " ") +
                    Escaped(caption.caption) + "</td></tr>";
            break;
        case RowKind::List:
            html += "<tr><td colspan=\"4\">" + StyledTextHtml(StyledList(screen, row.caption)) +
                    "</td></tr>";
            break;
        case RowKind::Columns:
        case RowKind::Value: {
            html += "<tr><td>" + Escaped(caption.caption) + "</td>";
            for (const std::string& value : row.values) {
                const Control& label = form[value];
                const QString align = row.text ? "left" : "right";
                html += "<td align=\"" + align + "\">" +
                        (label.visible ? Escaped(label.caption) : QString()) + "</td>";
            }
            html += "<td>" + (row.unit.empty() ? QString() : Escaped(form[row.unit].caption)) +
                    "</td></tr>";
            break;
        }
        }
    }
    return html + "</table>";
}

ResultsView::ResultsView(const ResultsScreen& screen, QWidget* parent)
    : QWidget(parent), m_screen(screen) {
    setObjectName("frmOutput");
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName("tabMain");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
}

void ResultsView::Refresh(std::int16_t soilType, std::int16_t clSettleState) {
    while (m_tabs->count() > 0) {
        QWidget* page = m_tabs->widget(0);
        m_tabs->removeTab(0);
        page->deleteLater();
    }
    for (int tab = 1; tab <= m_screen.tabMain.count(); ++tab) {
        const std::string& caption = m_screen.tabMain.captions[static_cast<std::size_t>(tab - 1)];
        const int frame = MainFrameOfTab(m_screen.tabMain, tab);
        if (frame == 1 || frame == 2) {
            const bool ribbed = frame == 1;
            const TabStrip& strip = ribbed ? m_screen.tabRibbed : m_screen.tabUniform;
            auto* inner = new QTabWidget(m_tabs);
            inner->setObjectName(ribbed ? "tabRibbed" : "tabUniform");
            for (int page = 1; page <= strip.count(); ++page) {
                const std::string pageFrame =
                    ribbed
                        ? ArrayName("fraExpOutput", RibbedFrameOfTab(soilType, clSettleState, page))
                        : ArrayName("fraUTFOutput",
                                    UniformFrameOfTab(soilType, clSettleState, page));
                inner->addTab(PageBrowser(m_screen, pageFrame, inner),
                              Trimmed(strip.captions[static_cast<std::size_t>(page - 1)]));
            }
            m_tabs->addTab(inner, Trimmed(caption));
        } else {
            m_tabs->addTab(PageBrowser(m_screen, ArrayName("fraMain", frame), m_tabs),
                           Trimmed(caption));
        }
    }
    m_tabs->setCurrentIndex(m_screen.tabMain.selected - 1);
}
