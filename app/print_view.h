#pragma once

#include "app/form_widgets.h"
#include "lifecycle/program.h"
#include "reports/report_run.h"

#include <QDialog>
#include <QPrinter>
#include <functional>

// The print dialog `frmPrint`: the current printer, the report font, the three ranges and ten
// page boxes as the print dialog's model sets them, and Print, Cancel, "Setup ...", "Change
// Default Report", "Print Preview" and "Save as PDF". The report is drawn by the same page
// procedures on the printer, in the preview and into a PDF file.
class PrintView : public QDialog {
  public:
    PrintView(Program& program, ShellServices& services, std::function<void()> changeDefaults,
              QWidget* parent = nullptr);

    // `mnuPrint` or the toolbar's Print: the dialog filled for the project and shown modally,
    // when the print command opens it.
    void Open(PrintPath path);
    void Refresh();

    // Draws the job of the range on the printer, in the preview or into a PDF at `path`.
    // Gives false when the range has nothing to print (the warning has been shown).
    bool PrintToPrinter();
    bool Preview();
    bool SaveAsPdf(const QString& path);

    QPrinter& printer() { return m_printer; }

  private:
    ReportSettings Settings() const;

    Program& m_program;
    ShellServices& m_services;
    std::function<void()> m_changeDefaults;
    FormWidgets* m_widgets;
    QPrinter m_printer;
};
