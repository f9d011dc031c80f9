#include "lifecycle/print_commands.h"

void PrintCommand(Program& program, const std::vector<std::string>& fonts,
                  const std::string& printerName, PrintPath path) {
    if (!program.project.printEnabled) {
        return;
    }
    OpenPrintDialog(program.print, program.record, fonts, printerName, path);
}

void ChangeDefaultReport(Program& program, ShellServices& services) {
    ShowOptionsDialog(program, services, 0);
}

std::optional<PrintJob> PrintButton(Program& program, ShellServices& services) {
    return PressPrint(program.print, program.record, program.settings.options.DefaultPages,
                      services.dialogs, services.clock);
}
