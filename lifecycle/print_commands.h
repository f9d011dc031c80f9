#pragma once

#include "lifecycle/program.h"
#include "reports/print_dialog.h"

#include <optional>
#include <string>
#include <vector>

// The Print command of the main window and the buttons of its dialog that reach beyond it. The
// printer itself (its fonts, its name, drawing the pages) belongs to the caller.

// `mnuPrint` and the toolbar's Print: the dialog, its boxes set for the range that stands, with
// the printer's fonts and name, and the command's path for the title of a printing failure.
// Nothing without results to print.
void PrintCommand(Program& program, const std::vector<std::string>& fonts,
                  const std::string& printerName, PrintPath path);

// "Change Default Report": the options dialog on its program tab, where the default report's
// pages are chosen; the next Print reads them.
void ChangeDefaultReport(Program& program, ShellServices& services);

// The Print button: the job of the range, with the default report's pages from the options, or
// nothing when the dialog stays open.
std::optional<PrintJob> PrintButton(Program& program, ShellServices& services);
