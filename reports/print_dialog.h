#pragma once

#include "engine/design_record.h"
#include "shell/clock.h"
#include "shell/form_model.h"
#include "shell/user_dialogs.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The print dialog `frmPrint` as a model: the current printer, the report font, the three
// ranges `Option1(0..2)` (default report, entire report, selected pages) and the ten page boxes
// `Check1(0..9)`, and what a press of Print asks to draw. It draws nothing itself.

enum class PrintRange { Default = 0, Entire = 1, Selected = 2 };

// The command that opened the dialog: the menu's `mnuPrint` or the toolbar's Print button. A
// printing failure is shown under the title of the command's own handler.
enum class PrintPath { Menu, Toolbar };

struct PrintDialog {
    FormModel form;
    bool visible = false;
    bool busyPointer = false;
    PrintPath openedFrom = PrintPath::Menu;
};

// The dialog as it is loaded: the default report chosen, every box cleared and disabled, the
// font "Arial".
PrintDialog LoadPrintDialog();

// Opening the dialog from the menu or the toolbar: the boxes set for the range that stands, the
// font list and the printer's name shown.
void OpenPrintDialog(PrintDialog& dialog, const DesignRecord& record,
                     const std::vector<std::string>& fonts, const std::string& printerName,
                     PrintPath path);

// Choosing a range. With the selected pages the boxes of the pages the project has are enabled,
// the others disabled and cleared; with the default or the entire report all ten are cleared
// and disabled.
void ChoosePrintRange(PrintDialog& dialog, const DesignRecord& record, PrintRange range);

PrintRange ChosenRange(const PrintDialog& dialog);

// A click on a range `Option1(0..2)`, which chooses it, or on a page box `Check1(0..9)`, which
// ticks or clears it; a disabled box cannot be set.
void ClickPrintControl(PrintDialog& dialog, const DesignRecord& record, const std::string& control);

// The user chose item `index` of the report font list; an index outside the list changes nothing.
void ChooseReportFont(PrintDialog& dialog, int index);

// The fonts the printer offers in the "Report Font :" list, with the font in use among them and
// chosen: a font the system knows only by its twin ("Arial", printed as Liberation Sans) is
// put first.
void ShowReportFonts(PrintDialog& dialog, const std::vector<std::string>& fonts);

// The printer's name under "Current Printer :", at opening and after "Setup ...".
void ShowPrinterName(PrintDialog& dialog, const std::string& printerName);

// The sheets a range prints. The default report counts the pages of `defaultPages` the project
// has; the selected pages those whose box is ticked.
std::int16_t RangeSheetCount(PrintRange range, const DesignRecord& record,
                             const std::array<std::int16_t, 10>& defaultPages,
                             const std::array<bool, 10>& ticked);

// The warning of a default report with nothing to print, or nothing.
std::optional<MessageRequest>
NothingToPrintWarning(const DesignRecord& record, const std::array<std::int16_t, 10>& defaultPages);

// One page of a print run: its index in the report, the procedure for the project's soil and
// its sheets.
struct PlannedPage {
    int page = 0;
    std::string procedure;
    std::int16_t sheets = 0;
};

// The pages of a range in printing order, each only when the project has it.
std::vector<PlannedPage> RangePages(PrintRange range, const DesignRecord& record,
                                    const std::array<std::int16_t, 10>& defaultPages,
                                    const std::array<bool, 10>& ticked);

// What a press of Print gives to the page procedures: the pages, the total of sheets for
// "Page n of N", the three columns in twips and the time of day for the footer, taken once.
struct PrintJob {
    std::vector<PlannedPage> pages;
    std::int16_t totalSheets = 0;
    int column1 = 1440;
    int column2 = 2160;
    int column3 = 2880;
    std::string timeOfDay;
    std::string fontName;
};

// A press of Print: counts the sheets, shows the busy pointer, refuses a default report with
// nothing to print (the warning is shown, the pointer comes back and the dialog stays open:
// nothing is given), and otherwise gives the job to draw, in the chosen report font. The caller
// draws it, then calls EndPrinting.
std::optional<PrintJob> PressPrint(PrintDialog& dialog, const DesignRecord& record,
                                   const std::array<std::int16_t, 10>& defaultPages,
                                   UserDialogs& dialogs, const Clock& clock);

// After the document has been sent: the default pointer back and the dialog hidden.
void EndPrinting(PrintDialog& dialog);

// The ticks of the ten boxes.
std::array<bool, 10> TickedPages(const PrintDialog& dialog);

// The message of a printer that cannot be read (run-time error 484) or of any other printing
// failure, under the title of the menu's path ("Critical Error") or of the toolbar's ("Printing
// Critical Error").
MessageRequest PrinterErrorMessage(int errorNumber, const std::string& description, PrintPath path);
