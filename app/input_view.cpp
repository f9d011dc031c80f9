#include "app/input_view.h"

#include "app/input_layout.h"
#include "app/plan_panel.h"
#include "app/styled_text_html.h"
#include "app/visible_focus.h"
#include "input/input_events.h"
#include "input/input_form.h"
#include "input/tab_files.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// The pages whose fields the plan beside them draws, numbered from 1.
constexpr int SlabPage = 3;
constexpr int BeamPage = 4;

} // namespace

InputView::InputView(Program& program, ShellServices& services, std::function<void()> changed,
                     QWidget* parent)
    : QWidget(parent), m_program(program), m_services(services), m_changed(std::move(changed)) {
    setObjectName("frmInput");
    ControlEvents events;
    events.click = [this](const std::string& name) {
        InputContext context = Context();
        Click(m_program.input, context, name);
        After();
    };
    events.choose = [this](const std::string& list, int index) {
        InputContext context = Context();
        ChooseListItem(m_program.input, context, list, index);
        After();
    };
    events.change = [this](const std::string& box, const std::string& text) {
        InputContext context = Context();
        ChangeText(m_program.input, context, box, text);
        After();
    };
    events.spinUp = [this](const std::string& spin) {
        InputContext context = Context();
        SpinUp(m_program.input, context, spin);
        After();
    };
    events.spinDown = [this](const std::string& spin) {
        InputContext context = Context();
        SpinDown(m_program.input, context, spin);
        After();
    };
    events.key = [this](const std::string& box, int key) {
        const int kept = KeyPress(m_program.input, box, key);
        if (kept == 0) {
            After();
        }
        return kept;
    };
    events.focusIn = [this](const std::string& control, bool byTab) {
        FocusIn(m_program.input, control, byTab ? FocusReason::TabKey : FocusReason::Other);
        After();
    };
    events.rightClick = [this](const std::string& control) {
        InputContext context = Context();
        RightClick(m_program.input, context, control);
        After();
    };
    m_widgets = new FormWidgets(std::move(events));
    m_widgets->setParent(this);

    auto* toolbar = new QToolBar(this);
    toolbar->setObjectName("tlbInput");
    m_open = new QToolButton(toolbar);
    m_open->setObjectName("tlbInput(1)");
    m_open->setText("Open");
    m_open->setIcon(style()->standardIcon(QStyle::SP_DialogOpenButton));
    m_open->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_save = new QToolButton(toolbar);
    m_save->setObjectName("tlbInput(2)");
    m_save->setText("Save");
    m_save->setIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
    m_save->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    // The page file buttons have no menu item: they stay tab stops, with a frame that shows
    // when they have the focus.
    for (QToolButton* button : {m_open, m_save}) {
        button->setFocusPolicy(Qt::TabFocus);
        button->setStyleSheet(VisibleFocusStyle("QToolButton"));
    }
    toolbar->addWidget(m_open);
    toolbar->addWidget(m_save);
    connect(m_open, &QToolButton::clicked, this, [this] {
        InputContext context = Context();
        OpenTabFile(m_program.input, context, m_program.input.CurrentInputTab - 1);
        After();
    });
    connect(m_save, &QToolButton::clicked, this, [this] {
        InputContext context = Context();
        SaveTabFile(m_program.input, context, m_program.input.CurrentInputTab - 1);
        After();
    });

    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName("tabInput");
    // All seven captions stand in full; the panel beside the pages gives way.
    m_tabs->setUsesScrollButtons(false);
    const FormModel& form = m_program.input.form;
    const FormModel noCaptions;
    for (int page = 1; page <= InputPageCount; ++page) {
        auto* scroll = new QScrollArea(m_tabs);
        scroll->setFocusPolicy(Qt::NoFocus); // the page's fields take the focus, not the page
        scroll->setWidgetResizable(true);
        scroll->setFrameShape(QFrame::NoFrame);
        auto* host = new QWidget(scroll);
        host->setObjectName(QString::fromStdString(PageFrame(page)));
        // The slab and beam pages keep their fields at the left and the plan beside them.
        const bool withPlan = page == SlabPage || page == BeamPage;
        QWidget* fields = host;
        if (withPlan) {
            fields = new QWidget(host);
            auto* beside = new QHBoxLayout(host);
            beside->setContentsMargins(0, 0, 0, 0);
            beside->addWidget(fields, 0, Qt::AlignTop);
            auto* panel = new PlanPanel(host);
            panel->setObjectName(QString("picPlan(%1)").arg(page));
            beside->addWidget(panel, 1);
            m_planPanels.push_back(panel);
        }
        for (const ContainerLayout& layout : InputPageLayouts()) {
            if (layout.container == PageFrame(page)) {
                BuildContainer(layout, InputPageLayouts(), form, noCaptions, *m_widgets, fields);
            }
        }
        scroll->setWidget(host);
        m_tabs->addTab(scroll, QString::fromStdString(PageCaption(page)));
    }
    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (m_refreshing) {
            return;
        }
        InputContext context = Context();
        SelectPage(m_program.input, context, index + 1);
        After();
    });
    m_widgets->OrderTabs(form);
    for (const auto& [keys, step] :
         {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | keys), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, step = step] {
            InputContext context = Context();
            StepPage(m_program.input, context, step);
            After();
        });
    }

    m_info = new QTextBrowser(this);
    m_info->setObjectName("rtbMoreInfo");
    m_info->setMinimumWidth(180);
    // The panel explains; it is read, not typed into, and stands outside the tab sequence.
    m_info->setFocusPolicy(Qt::ClickFocus);
    m_info->setMaximumWidth(380);

    auto* pages = new QVBoxLayout;
    pages->addWidget(toolbar);
    pages->addWidget(m_tabs, 1);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(pages, 1);
    layout->addWidget(m_info);
}

InputContext InputView::Context() {
    return InputContextOf(m_program, m_services);
}

void InputView::After() {
    if (m_changed) {
        m_changed();
    }
}

void InputView::Refresh() {
    m_refreshing = true;
    const FormModel& form = m_program.input.form;
    const Control& tabs = form["tabInput"];
    for (int i = 0; i < m_tabs->count() && i < static_cast<int>(tabs.items.size()); ++i) {
        m_tabs->setTabText(i, QString::fromStdString(tabs.items[static_cast<std::size_t>(i)]));
    }
    if (tabs.selectedIndex >= 0) {
        m_tabs->setCurrentIndex(tabs.selectedIndex);
    }
    m_open->setToolTip(QString::fromStdString(form["tlbInput(1)"].toolTip));
    m_save->setToolTip(QString::fromStdString(form["tlbInput(2)"].toolTip));
    m_widgets->Refresh(form);
    m_info->setHtml(StyledTextHtml(m_program.input.moreInfo));
    UpdateLivePlan(m_livePlan, form, m_program.record);
    for (PlanPanel* panel : m_planPanels) {
        panel->Show(m_livePlan.drawing, m_livePlan.drawn, m_livePlan.reason);
    }
    m_refreshing = false;
}
