#include "app/verdict_strip_view.h"

#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {

const char* const PassStyle = "color: #1a7f1a; font-weight: bold;";
const char* const FailStyle = "color: #ff0000; font-weight: bold;";

} // namespace

VerdictStripView::VerdictStripView(std::function<void()> clicked, QWidget* parent)
    : QWidget(parent), m_clicked(std::move(clicked)) {
    setObjectName("fraVerdict");
    setAttribute(Qt::WA_StyledBackground, true);
    setStyleSheet("#fraVerdict { background: #f7f7f2; border-bottom: 1px solid #c8c8c0; }");
    setCursor(Qt::PointingHandCursor);
    setToolTip("Every check with its numbers: click for the Checks panel (F6)");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->setSpacing(2);
    for (int i = 0; i < 2; ++i) {
        auto* label = new QLabel(this);
        label->setObjectName(QString("lblVerdict(%1)").arg(i));
        layout->addWidget(label);
        m_labels.push_back(label);
    }
}

void VerdictStripView::Refresh(const std::vector<VerdictStripLine>& lines) {
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        QLabel* label = m_labels[i];
        if (i >= lines.size()) {
            label->hide();
            continue;
        }
        label->setText(QString::fromStdString(lines[i].text));
        label->setStyleSheet(lines[i].pass ? PassStyle : FailStyle);
        label->show();
    }
}

void VerdictStripView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && m_clicked) {
        m_clicked();
    }
    QWidget::mousePressEvent(event);
}
