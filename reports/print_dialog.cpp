#include "reports/print_dialog.h"

#include "reports/report_pages.h"

#include <algorithm>

namespace {

constexpr const char* WarningTitle = "Print Warning";

std::string Box(int page) {
    return ArrayName("Check1", page);
}

void AddControl(FormModel& form, std::string name, std::string caption, int tabIndex) {
    Control control;
    control.name = std::move(name);
    control.caption = std::move(caption);
    control.tabIndex = tabIndex;
    form.add(std::move(control));
}

// Whether each page flagged in the default report lies in [first, last], and one at least is.
bool OnlyFlaggedBetween(const std::array<std::int16_t, 10>& defaultPages, int first, int last) {
    bool any = false;
    for (int page = 0; page < ReportPageCount; ++page) {
        if (defaultPages[static_cast<std::size_t>(page)] == 0) {
            continue;
        }
        if (page < first || page > last) {
            return false;
        }
        any = true;
    }
    return any;
}

bool InRange(PrintRange range, int page, const std::array<std::int16_t, 10>& defaultPages,
             const std::array<bool, 10>& ticked) {
    switch (range) {
    case PrintRange::Default:
        return defaultPages[static_cast<std::size_t>(page)] != 0;
    case PrintRange::Entire:
        return true;
    case PrintRange::Selected:
        return ticked[static_cast<std::size_t>(page)];
    }
    return false;
}

} // namespace

PrintDialog LoadPrintDialog() {
    PrintDialog dialog;
    FormModel& form = dialog.form;
    AddControl(form, "lblCurrentPrinterCaption", "Current Printer :", 0);
    AddControl(form, "lblCurrentPrinter", "", 0);
    AddControl(form, "lblReportFont", "Report Font :", 0);
    AddControl(form, "cbbReportFont", "", 1);
    form["cbbReportFont"].text = "Arial";
    AddControl(form, "fraPrintRange", "Print Range", 0);
    const char* ranges[] = {"Default Report", "Entire Report", "Selected Pages"};
    for (int i = 0; i < 3; ++i) {
        AddControl(form, ArrayName("Option1", i), ranges[i], 2 + i);
        form[ArrayName("Option1", i)].parent = "fraPrintRange";
    }
    form["Option1(0)"].checked = true;
    for (int page = 0; page < ReportPageCount; ++page) {
        AddControl(form, Box(page), ReportPages()[static_cast<std::size_t>(page)].caption,
                   5 + page);
        form[Box(page)].parent = "fraPrintRange";
        form[Box(page)].enabled = false;
    }
    AddControl(form, "cmbPrint", "Print", 15);
    AddControl(form, "cmbCancel", "Cancel", 16);
    AddControl(form, "cmbSetup", "Setup ...", 17);
    AddControl(form, "Command1", "Change Default Report", 18);
    for (const char* label :
         {"lblCurrentPrinterCaption", "lblCurrentPrinter", "lblReportFont", "fraPrintRange"}) {
        form[label].tabStop = false;
    }
    return dialog;
}

PrintRange ChosenRange(const PrintDialog& dialog) {
    const int chosen = SelectedOption(dialog.form, "Option1", 3);
    return chosen < 0 ? PrintRange::Default : static_cast<PrintRange>(chosen);
}

void ChoosePrintRange(PrintDialog& dialog, const DesignRecord& record, PrintRange range) {
    SelectOption(dialog.form, "Option1", 3, static_cast<int>(range));
    for (int page = 0; page < ReportPageCount; ++page) {
        Control& box = dialog.form[Box(page)];
        box.enabled = range == PrintRange::Selected && ReportPageExists(page, record);
        if (!box.enabled) {
            box.checked = false;
        }
    }
}

void ClickPrintControl(PrintDialog& dialog, const DesignRecord& record,
                       const std::string& control) {
    for (int range = 0; range < 3; ++range) {
        if (control == ArrayName("Option1", range)) {
            ChoosePrintRange(dialog, record, static_cast<PrintRange>(range));
            return;
        }
    }
    Control& box = dialog.form[control];
    if (box.enabled) {
        box.checked = !box.checked;
    }
}

void ChooseReportFont(PrintDialog& dialog, int index) {
    Control& fonts = dialog.form["cbbReportFont"];
    if (index < 0 || index >= static_cast<int>(fonts.items.size())) {
        return;
    }
    fonts.selectedIndex = index;
    fonts.text = fonts.items[static_cast<std::size_t>(index)];
}

void ShowReportFonts(PrintDialog& dialog, const std::vector<std::string>& fonts) {
    Control& list = dialog.form["cbbReportFont"];
    list.items = fonts;
    // The report's font is found by its name, and "Arial" is printed by its metric twin when the
    // system lists only the twin: the list always offers the font in use, and shows it chosen.
    auto found = std::find(list.items.begin(), list.items.end(), list.text);
    if (found == list.items.end() && !list.text.empty()) {
        list.items.insert(list.items.begin(), list.text);
        found = list.items.begin();
    }
    list.selectedIndex =
        found == list.items.end() ? -1 : static_cast<int>(found - list.items.begin());
}

void ShowPrinterName(PrintDialog& dialog, const std::string& printerName) {
    dialog.form["lblCurrentPrinter"].caption = printerName;
}

void OpenPrintDialog(PrintDialog& dialog, const DesignRecord& record,
                     const std::vector<std::string>& fonts, const std::string& printerName,
                     PrintPath path) {
    dialog.openedFrom = path;
    ChoosePrintRange(dialog, record, ChosenRange(dialog));
    ShowReportFonts(dialog, fonts);
    ShowPrinterName(dialog, printerName);
    dialog.visible = true;
}

std::array<bool, 10> TickedPages(const PrintDialog& dialog) {
    std::array<bool, 10> ticked{};
    for (int page = 0; page < ReportPageCount; ++page) {
        ticked[static_cast<std::size_t>(page)] = dialog.form[Box(page)].checked;
    }
    return ticked;
}

std::int16_t RangeSheetCount(PrintRange range, const DesignRecord& record,
                             const std::array<std::int16_t, 10>& defaultPages,
                             const std::array<bool, 10>& ticked) {
    std::int16_t sheets = 0;
    for (const PlannedPage& page : RangePages(range, record, defaultPages, ticked)) {
        sheets = static_cast<std::int16_t>(sheets + page.sheets);
    }
    return sheets;
}

std::optional<MessageRequest>
NothingToPrintWarning(const DesignRecord& record,
                      const std::array<std::int16_t, 10>& defaultPages) {
    if (OnlyFlaggedBetween(defaultPages, FirstUniformPage, LastUniformPage) &&
        record.FlatSlab == 0) {
        return MessageRequest{MessageIcon::Exclamation, WarningTitle,
                              "The Default Report contains only pages relating to Uniform "
                              "Thickness Foundations yet the \nUniform Thickness Foundation was "
                              "not analyzed therefore there is nothing to print."};
    }
    if (OnlyFlaggedBetween(defaultPages, LineLoadPage, LineLoadPage) && record.LineLoadType == 0) {
        return MessageRequest{MessageIcon::Exclamation, WarningTitle,
                              "The Default Report contains only pages relating to the Line Load "
                              "Analysis yet the \nLine Load Analysis was not performed therefore "
                              "there is nothing to print."};
    }
    // This one alone is a plain box, without the exclamation mark of the two above.
    if (!OnlyFlaggedBetween(defaultPages, 0, ReportPageCount - 1)) {
        return MessageRequest{MessageIcon::None, WarningTitle,
                              "The Default Report has no pages selected therefore therefore "
                              "there is nothing to print."};
    }
    return std::nullopt;
}

std::vector<PlannedPage> RangePages(PrintRange range, const DesignRecord& record,
                                    const std::array<std::int16_t, 10>& defaultPages,
                                    const std::array<bool, 10>& ticked) {
    std::vector<PlannedPage> pages;
    for (int page = 0; page < ReportPageCount; ++page) {
        if (InRange(range, page, defaultPages, ticked) && ReportPageExists(page, record)) {
            pages.push_back(
                {page, ReportPageProcedure(page, record), ReportPageSheets(page, record)});
        }
    }
    return pages;
}

std::optional<PrintJob> PressPrint(PrintDialog& dialog, const DesignRecord& record,
                                   const std::array<std::int16_t, 10>& defaultPages,
                                   UserDialogs& dialogs, const Clock& clock) {
    const PrintRange range = ChosenRange(dialog);
    const std::array<bool, 10> ticked = TickedPages(dialog);
    PrintJob job;
    job.totalSheets = RangeSheetCount(range, record, defaultPages, ticked);
    dialog.busyPointer = true;
    if (range == PrintRange::Default) {
        if (const std::optional<MessageRequest> warning =
                NothingToPrintWarning(record, defaultPages)) {
            dialogs.ShowMessage(*warning);
            dialog.busyPointer = false;
            return std::nullopt;
        }
    }
    job.pages = RangePages(range, record, defaultPages, ticked);
    job.timeOfDay = clock.TimeOfDay();
    job.fontName = dialog.form["cbbReportFont"].text;
    return job;
}

void EndPrinting(PrintDialog& dialog) {
    dialog.busyPointer = false;
    dialog.visible = false;
}

MessageRequest PrinterErrorMessage(int errorNumber, const std::string& description,
                                   PrintPath path) {
    const std::string title =
        path == PrintPath::Menu ? "Critical Error" : "Printing Critical Error";
    if (errorNumber == 484) {
        return {MessageIcon::Critical, title,
                "Korvath detected that no printer is installed.\nPlease install a printer."};
    }
    return {MessageIcon::Critical, title, description};
}
