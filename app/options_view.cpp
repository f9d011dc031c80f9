#include "app/options_view.h"

#include "app/input_layout.h"
#include "input/input_form.h"
#include "reports/report_pages.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

OptionsView::OptionsView(Program& program, ShellServices& services, AssociationTarget association,
                         QWidget* parent)
    : QDialog(parent), m_program(program), m_services(services),
      m_association(std::move(association)) {
    setObjectName("frmOptions");
    setWindowTitle("Options");
    ControlEvents events;
    events.click = [this](const std::string& name) {
        ClickOptionsControl(m_program.options, m_program.settings, name);
        Refresh();
    };
    events.choose = [this](const std::string& list, int index) {
        ChooseOptionsListItem(m_program.options, list, index);
        Refresh();
    };
    events.change = [this](const std::string& box, const std::string& text) {
        ChangeOptionsText(m_program.options, box, text);
        Refresh();
    };
    m_widgets = new FormWidgets(std::move(events));
    m_widgets->setParent(this);

    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName("tabOptions");
    m_tabs->addTab(ProgramTab(), "Program");
    const FormModel& form = m_program.options.form;
    for (int page = 1; page <= InputPageCount; ++page) {
        auto* host = new QWidget(m_tabs);
        for (const ContainerLayout& layout : InputPageLayouts()) {
            if (layout.container == PageFrame(page)) {
                BuildContainer(layout, InputPageLayouts(), form, form, *m_widgets, host);
            }
        }
        m_tabs->addTab(host, QString::fromStdString(PageCaption(page)));
    }
    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (!m_refreshing) {
            m_program.options.form["tabOptions"].selectedIndex = index;
        }
    });

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = buttons->addButton(QDialogButtonBox::Ok);
    ok->setObjectName("cmbOK");
    m_apply = buttons->addButton(QDialogButtonBox::Apply);
    m_apply->setObjectName("cmbApply");
    QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName("cmbCancel");
    connect(ok, &QPushButton::clicked, this, [this] {
        if (OptionsOK(m_program, m_services, m_association)) {
            accept();
        } else {
            Refresh();
        }
    });
    connect(m_apply, &QPushButton::clicked, this, [this] {
        OptionsApply(m_program, m_services, m_association);
        Refresh();
    });
    // Cancel, Escape and the window's close button all end in reject.
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::rejected, this, [this] { OptionsCancel(m_program.options); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(buttons);
    setMinimumSize(1160, 700);
}

QWidget* OptionsView::ProgramTab() {
    const FormModel& form = m_program.options.form;
    auto* tab = new QWidget(m_tabs);
    auto* grid = new QGridLayout(tab);
    const auto make = [this, &form, tab](const std::string& name, const std::string& caption) {
        Control control = form[name];
        control.caption = caption;
        return m_widgets->Make(control, tab);
    };

    auto* folder = new QGroupBox("Default Project Folder", tab);
    auto* folderLine = new QGridLayout(folder);
    QWidget* path = make("lblDefFilePath", "");
    auto* browse = new QPushButton("Change ...", folder);
    browse->setObjectName("dlbDefFilePath");
    path->setParent(folder);
    folderLine->addWidget(path, 0, 0);
    folderLine->addWidget(browse, 0, 1);
    folderLine->setColumnStretch(0, 1);
    connect(browse, &QPushButton::clicked, this, [this] {
        const FormModel& form = m_program.options.form;
        const QString chosen = QFileDialog::getExistingDirectory(
            this, "Default Project Folder", QString::fromStdString(form["dlbDefFilePath"].text));
        if (chosen.isEmpty()) {
            return;
        }
        ChooseDefaultFolder(m_program.options, chosen.toStdString());
        Refresh();
    });
    grid->addWidget(folder, 0, 0, 1, 2);

    auto* analysis = new QGroupBox("Analysis", tab);
    auto* analysisLines = new QVBoxLayout(analysis);
    for (const auto& [name, caption] :
         {std::pair<std::string, std::string>{"cbUseBeta",
                                              "Calculate bending stresses using prestress at Beta"},
          {"cbUseBeamOnly", "Calculate soil bearing on the beam bottom area only"}}) {
        QWidget* box = make(name, caption);
        box->setParent(analysis);
        analysisLines->addWidget(box);
    }
    analysisLines->addStretch();
    grid->addWidget(analysis, 1, 0);

    auto* printing = new QGroupBox("Report", tab);
    auto* printLines = new QVBoxLayout(printing);
    for (const auto& [name, caption] :
         {std::pair<std::string, std::string>{"chkPrintOptions(0)",
                                              "Print values out of limits in red"},
          {"chkPrintOptions(1)", "Print all compliance values"}}) {
        QWidget* box = make(name, caption);
        box->setParent(printing);
        printLines->addWidget(box);
    }
    printLines->addWidget(new QLabel("Default report pages :", printing));
    for (int i = 0; i < ReportPageCount; ++i) {
        QWidget* box =
            make(ArrayName("chkDR", i), ReportPages()[static_cast<std::size_t>(i)].caption);
        box->setParent(printing);
        printLines->addWidget(box);
    }
    grid->addWidget(printing, 1, 1, 2, 1);

    auto* actions = new QGroupBox("At Apply or OK", tab);
    auto* actionLines = new QVBoxLayout(actions);
    for (const auto& [name, caption] :
         {std::pair<std::string, std::string>{"cbClear", "Clear the recent files"},
          {"cbRestore", "Restore all factory defaults"},
          {"cbAssociate", "Open .kvt project files with Korvath 3.0"}}) {
        QWidget* box = make(name, caption);
        box->setParent(actions);
        actionLines->addWidget(box);
    }
    actionLines->addStretch();
    grid->addWidget(actions, 2, 0);
    grid->setRowStretch(3, 1);
    return tab;
}

void OptionsView::Open(int tab) {
    ShowOptionsDialog(m_program, m_services, tab);
    Refresh();
    exec();
}

void OptionsView::Refresh() {
    m_refreshing = true;
    const FormModel& form = m_program.options.form;
    m_tabs->setCurrentIndex(std::max(0, form["tabOptions"].selectedIndex));
    m_widgets->Refresh(form);
    m_apply->setEnabled(m_program.options.applyEnabled);
    m_refreshing = false;
}
