#include "app/print_view.h"

#include "lifecycle/print_commands.h"
#include "reports/qt/painter_surface.h"
#include "reports/qt/pdf_report.h"
#include "reports/report_pages.h"
#include "storage/file_error.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QString PrinterName(const QPrinter& printer) {
    return printer.printerName().isEmpty() ? QString("PDF file") : printer.printerName();
}

} // namespace

PrintView::PrintView(Program& program, ShellServices& services,
                     std::function<void()> changeDefaults, QWidget* parent)
    : QDialog(parent), m_program(program), m_services(services),
      m_changeDefaults(std::move(changeDefaults)), m_printer(QPrinter::HighResolution) {
    setObjectName("frmPrint");
    setWindowTitle("Print");
    ControlEvents events;
    events.click = [this](const std::string& name) {
        ClickPrintControl(m_program.print, m_program.record, name);
        Refresh();
    };
    events.choose = [this](const std::string&, int index) {
        ChooseReportFont(m_program.print, index);
    };
    m_widgets = new FormWidgets(std::move(events));
    m_widgets->setParent(this);
    const FormModel& form = m_program.print.form;

    auto* head = new QGridLayout;
    head->addWidget(m_widgets->Make(form["lblCurrentPrinterCaption"], this), 0, 0);
    head->addWidget(m_widgets->Make(form["lblCurrentPrinter"], this), 0, 1);
    head->addWidget(m_widgets->Make(form["lblReportFont"], this), 1, 0);
    head->addWidget(m_widgets->Make(form["cbbReportFont"], this), 1, 1);
    head->setColumnStretch(1, 1);

    auto* range = static_cast<QGroupBox*>(m_widgets->Make(form["fraPrintRange"], this));
    auto* rangeLines = new QVBoxLayout(range);
    for (int i = 0; i < 3; ++i) {
        rangeLines->addWidget(m_widgets->Make(form[ArrayName("Option1", i)], range));
        if (i == 2) {
            for (int page = 0; page < ReportPageCount; ++page) {
                QWidget* box = m_widgets->Make(form[ArrayName("Check1", page)], range);
                box->setContentsMargins(24, 0, 0, 0);
                rangeLines->addWidget(box);
            }
        }
    }

    const auto button = [this](const char* name, const char* caption) {
        auto* push = new QPushButton(caption, this);
        push->setObjectName(name);
        return push;
    };
    QPushButton* print = button("cmbPrint", "Print");
    print->setDefault(true);
    QPushButton* cancel = button("cmbCancel", "Cancel");
    QPushButton* setup = button("cmbSetup", "Setup ...");
    QPushButton* defaults = button("Command1", "Change Default Report");
    QPushButton* preview = button("cmbPreview", "Print Preview");
    QPushButton* pdf = button("cmbPdf", "Save as PDF ...");
    connect(print, &QPushButton::clicked, this, [this] {
        if (PrintToPrinter()) {
            accept();
        }
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(setup, &QPushButton::clicked, this, [this] {
        QPrintDialog dialog(&m_printer, this);
        dialog.setWindowTitle("Print Setup");
        dialog.exec();
        ShowPrinterName(m_program.print, PrinterName(m_printer).toStdString());
        Refresh();
    });
    connect(defaults, &QPushButton::clicked, this, [this] {
        if (m_changeDefaults) {
            m_changeDefaults();
        }
        Refresh();
    });
    connect(preview, &QPushButton::clicked, this, [this] { Preview(); });
    connect(pdf, &QPushButton::clicked, this, [this] {
        QString suggested = QString::fromStdString(m_program.project.ProjFileTitle);
        suggested.replace(".kvt", ".pdf");
        const QString path = QFileDialog::getSaveFileName(
            this, "Save Report as PDF", suggested.isEmpty() ? "report.pdf" : suggested,
            "PDF files (*.pdf)");
        if (!path.isEmpty() && SaveAsPdf(path)) {
            accept();
        }
    });

    auto* buttons = new QVBoxLayout;
    for (QPushButton* push : {print, preview, pdf, cancel}) {
        buttons->addWidget(push);
    }
    buttons->addSpacing(16);
    buttons->addWidget(setup);
    buttons->addWidget(defaults);
    buttons->addStretch();
    auto* body = new QHBoxLayout;
    body->addWidget(range, 1);
    body->addLayout(buttons);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addLayout(body);
}

void PrintView::Open(PrintPath path) {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (!info.isNull()) {
        m_printer.setPrinterName(info.printerName());
    }
    std::vector<std::string> fonts;
    for (const QString& family : QFontDatabase::families()) {
        fonts.push_back(family.toStdString());
    }
    PrintCommand(m_program, fonts, PrinterName(m_printer).toStdString(), path);
    if (!m_program.print.visible) {
        return; // no results to print
    }
    Refresh();
    exec();
    EndPrinting(m_program.print);
}

void PrintView::Refresh() {
    m_widgets->Refresh(m_program.print.form);
    if (m_program.print.busyPointer) {
        if (QApplication::overrideCursor() == nullptr) {
            QApplication::setOverrideCursor(Qt::WaitCursor);
        }
    } else {
        while (QApplication::overrideCursor() != nullptr) {
            QApplication::restoreOverrideCursor();
        }
    }
}

ReportSettings PrintView::Settings() const {
    ReportSettings settings;
    settings.projectPath = m_program.project.ProjFilePath;
    settings.colour = m_program.settings.options.PrintColor == 1;
    settings.showAll = m_program.settings.options.PrintAll == 1;
    settings.RibbedOutCount = m_program.output.RibbedOutCount;
    settings.engine = m_program.settings.options.engineSettings();
    return settings;
}

bool PrintView::PrintToPrinter() {
    const std::optional<PrintJob> job = PrintButton(m_program, m_services);
    Refresh();
    if (!job) {
        return false;
    }
    PainterSurface surface(m_printer, PrinterName(m_printer).toStdString());
    PrintReport(surface, *job, m_program.record, m_program.results, Settings());
    EndPrinting(m_program.print);
    Refresh();
    return true;
}

bool PrintView::Preview() {
    const std::optional<PrintJob> job = PrintButton(m_program, m_services);
    EndPrinting(m_program.print); // the preview is no print run: the dialog stays
    m_program.print.visible = true;
    Refresh();
    if (!job) {
        return false;
    }
    QPrintPreviewDialog preview(&m_printer, this);
    preview.setObjectName("printPreview");
    connect(&preview, &QPrintPreviewDialog::paintRequested, this, [this, &job](QPrinter* printer) {
        PainterSurface surface(*printer, PrinterName(*printer).toStdString());
        PrintReport(surface, *job, m_program.record, m_program.results, Settings());
    });
    preview.exec();
    return true;
}

bool PrintView::SaveAsPdf(const QString& path) {
    const std::optional<PrintJob> job = PrintButton(m_program, m_services);
    Refresh();
    if (!job) {
        return false;
    }
    try {
        WritePdfReport(path.toStdString(), *job, m_program.record, m_program.results, Settings());
    } catch (const FileError& error) {
        EndPrinting(m_program.print);
        Refresh();
        m_services.dialogs.ShowMessage(
            PrinterErrorMessage(error.number(), error.description(), m_program.print.openedFrom));
        return false;
    }
    EndPrinting(m_program.print);
    Refresh();
    return true;
}
