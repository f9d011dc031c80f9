#include "reports/print_dialog.h"
#include "reports/report_pages.h"

#include "tests/shell/shell_test_support.h"

#include <gtest/gtest.h>

namespace {

using Flags = std::array<std::int16_t, 10>;
using Ticks = std::array<bool, 10>;

DesignRecord Project(std::int16_t soilType, std::int16_t clSettleState, std::int16_t flatSlab,
                     std::int16_t lineLoad) {
    DesignRecord record;
    record.SoilType = soilType, record.CLSettleState = clSettleState;
    record.FlatSlab = flatSlab, record.LineLoadType = lineLoad;
    return record;
}

std::vector<std::string> Procedures(const std::vector<PlannedPage>& pages) {
    std::vector<std::string> names;
    for (const PlannedPage& page : pages) {
        names.push_back(page.procedure);
    }
    return names;
}

const Flags AllFlags = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1};

} // namespace

TEST(PrintDialog, EntireReportSheetsFollowSoilUniformFoundationAndLineLoad) {
    // Design summary 1, compliance 1, results 2 (1 on center down alone), variables 1, input data
    // 2, exceptions 1; the uniform foundation adds 1 + 1 + its results; the line load 1.
    const struct {
        DesignRecord record;
        std::int16_t sheets;
    } cases[] = {
        {Project(1, 0, 0, 0), 7},  {Project(1, 1, 0, 0), 8},  {Project(0, 0, 0, 0), 8},
        {Project(0, 0, 1, 0), 12}, {Project(1, 0, 1, 0), 10}, {Project(0, 0, 1, 1), 13},
        {Project(1, 0, 0, 1), 8},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(RangeSheetCount(PrintRange::Entire, c.record, {}, {}), c.sheets)
            << c.record.SoilType << c.record.CLSettleState << c.record.FlatSlab
            << c.record.LineLoadType;
    }

    // The pages of a compressible project come in table order, in their compressible variants.
    EXPECT_EQ(Procedures(RangePages(PrintRange::Entire, Project(1, 1, 1, 1), {}, {})),
              (std::vector<std::string>{"PrintRDS", "PrintRDCS_Comp", "PrintRROA_Comp", "PrintRSV",
                                        "PrintUDS", "PrintUDCS_Comp", "PrintUROA_Comp", "PrintSOID",
                                        "PrintPE", "PrintLLA"}));
    EXPECT_EQ(Procedures(RangePages(PrintRange::Entire, Project(0, 0, 0, 0), {}, {})),
              (std::vector<std::string>{"PrintRDS", "PrintRDCS", "PrintRROA", "PrintRSV",
                                        "PrintSOID", "PrintPE"}));
}

TEST(PrintDialog, DefaultAndSelectedRangesCountOnlyPagesTheProjectHas) {
    const DesignRecord centerDown = Project(1, 0, 0, 0);
    // Results of analysis (1 sheet here), input data (2) and the line load, which is not analysed.
    const Flags flags = {0, 0, 1, 0, 0, 0, 0, 1, 0, 1};
    EXPECT_EQ(RangeSheetCount(PrintRange::Default, centerDown, flags, {}), 3);
    EXPECT_EQ(RangeSheetCount(PrintRange::Default, Project(0, 0, 1, 1), AllFlags, {}), 13);

    Ticks ticks{};
    ticks[2] = ticks[6] = true;
    EXPECT_EQ(RangeSheetCount(PrintRange::Selected, Project(0, 0, 1, 0), {}, ticks), 4);
    EXPECT_EQ(RangeSheetCount(PrintRange::Selected, centerDown, {}, {}), 0);
}

TEST(PrintDialog, RangesEnableTheBoxesOfThePagesTheProjectHas) {
    PrintDialog dialog = LoadPrintDialog();
    const DesignRecord lineLoadOnly = Project(0, 0, 0, 1);
    OpenPrintDialog(dialog, lineLoadOnly, {"Arial", "Courier New"}, "PDF", PrintPath::Menu);
    EXPECT_TRUE(dialog.visible);
    EXPECT_EQ(dialog.form["lblCurrentPrinter"].caption, "PDF");
    EXPECT_EQ(dialog.form["cbbReportFont"].text, "Arial");
    for (int page = 0; page < ReportPageCount; ++page) {
        EXPECT_FALSE(dialog.form[ArrayName("Check1", page)].enabled) << page;
    }

    ClickPrintControl(dialog, lineLoadOnly, "Option1(2)");
    EXPECT_EQ(ChosenRange(dialog), PrintRange::Selected);
    for (int page = 0; page < ReportPageCount; ++page) {
        const bool uniform = page >= 4 && page <= 6;
        EXPECT_EQ(dialog.form[ArrayName("Check1", page)].enabled, !uniform) << page;
    }
    // A click ticks an enabled box and clears it again; a disabled box cannot be set.
    ClickPrintControl(dialog, lineLoadOnly, "Check1(9)");
    ClickPrintControl(dialog, lineLoadOnly, "Check1(0)");
    ClickPrintControl(dialog, lineLoadOnly, "Check1(3)");
    ClickPrintControl(dialog, lineLoadOnly, "Check1(3)");
    ClickPrintControl(dialog, lineLoadOnly, "Check1(5)");
    EXPECT_EQ(TickedPages(dialog),
              (Ticks{true, false, false, false, false, false, false, false, false, true}));
    // Design summary 1 and line load 1.
    EXPECT_EQ(RangeSheetCount(PrintRange::Selected, lineLoadOnly, {}, TickedPages(dialog)), 2);

    // The font chosen in the list is the report's; an item beyond the list changes nothing.
    ChooseReportFont(dialog, 1);
    ChooseReportFont(dialog, 2);
    EXPECT_EQ(dialog.form["cbbReportFont"].text, "Courier New");
    ShowPrinterName(dialog, "Office Laser");
    EXPECT_EQ(dialog.form["lblCurrentPrinter"].caption, "Office Laser");

    // Without the line load its box is cleared; the default report clears and disables all.
    ChoosePrintRange(dialog, Project(0, 0, 1, 0), PrintRange::Selected);
    EXPECT_FALSE(dialog.form["Check1(9)"].checked || dialog.form["Check1(9)"].enabled);
    EXPECT_TRUE(dialog.form["Check1(0)"].checked && dialog.form["Check1(5)"].enabled);
    ChoosePrintRange(dialog, Project(0, 0, 1, 0), PrintRange::Default);
    EXPECT_FALSE(dialog.form["Check1(0)"].checked || dialog.form["Check1(0)"].enabled);
    EXPECT_EQ(ChosenRange(dialog), PrintRange::Default);
}

TEST(PrintDialog, DefaultReportWithNothingToPrintWarnsAndStaysOpen) {
    Flags uniformOnly{};
    uniformOnly[4] = uniformOnly[6] = 1;
    Flags lineLoadOnly{};
    lineLoadOnly[9] = 1;
    // The first two carry the exclamation mark; the third is a plain box under the same title.
    const struct {
        Flags flags;
        MessageIcon icon;
        std::string text;
    } cases[] = {
        {uniformOnly, MessageIcon::Exclamation,
         "The Default Report contains only pages relating to Uniform Thickness "
         "Foundations yet the \nUniform Thickness Foundation was not analyzed "
         "therefore there is nothing to print."},
        {lineLoadOnly, MessageIcon::Exclamation,
         "The Default Report contains only pages relating to the Line Load Analysis "
         "yet the \nLine Load Analysis was not performed therefore there is nothing "
         "to print."},
        {Flags{}, MessageIcon::None,
         "The Default Report has no pages selected therefore therefore there is nothing "
         "to print."},
    };
    const DesignRecord record = Project(0, 0, 0, 0);
    FixedClock clock("November 23, 2026");
    for (const auto& c : cases) {
        PrintDialog dialog = LoadPrintDialog();
        OpenPrintDialog(dialog, record, {}, "PDF", PrintPath::Menu);
        RecordingDialogs dialogs;
        EXPECT_FALSE(PressPrint(dialog, record, c.flags, dialogs, clock));
        ASSERT_EQ(dialogs.messages.size(), 1u);
        EXPECT_EQ(dialogs.messages[0].title, "Print Warning");
        EXPECT_EQ(dialogs.messages[0].icon, c.icon);
        EXPECT_EQ(dialogs.messages[0].text, c.text);
        EXPECT_TRUE(dialog.visible);
        EXPECT_FALSE(dialog.busyPointer);
    }

    // The same uniform pages print once the project has the uniform foundation; the job carries
    // the count, the font and the time of day of the press.
    PrintDialog dialog = LoadPrintDialog();
    RecordingDialogs dialogs;
    const std::optional<PrintJob> job =
        PressPrint(dialog, Project(0, 0, 1, 0), uniformOnly, dialogs, clock);
    ASSERT_TRUE(job);
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(job->totalSheets, 3);
    EXPECT_EQ(Procedures(job->pages), (std::vector<std::string>{"PrintUDS", "PrintUROA"}));
    EXPECT_EQ(job->timeOfDay, "3:05:09 PM");
    EXPECT_EQ(job->fontName, "Arial");
    EXPECT_EQ(job->column1, 1440);
    EXPECT_TRUE(dialog.busyPointer);
    EndPrinting(dialog);
    EXPECT_FALSE(dialog.busyPointer || dialog.visible);

    // A selected range with nothing ticked is no warning: an empty document.
    ChoosePrintRange(dialog, record, PrintRange::Selected);
    const std::optional<PrintJob> empty = PressPrint(dialog, record, {}, dialogs, clock);
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->pages.empty());
    EXPECT_EQ(empty->totalSheets, 0);
}

TEST(PrintDialog, PrinterErrorsNameTheirPath) {
    const MessageRequest none = PrinterErrorMessage(484, "Printer error", PrintPath::Menu);
    EXPECT_EQ(none.title, "Critical Error");
    EXPECT_EQ(none.text,
              "Korvath detected that no printer is installed.\nPlease install a printer.");
    const MessageRequest other = PrinterErrorMessage(482, "Printer error", PrintPath::Toolbar);
    EXPECT_EQ(other.title, "Printing Critical Error");
    EXPECT_EQ(other.text, "Printer error");
}

// On a system that knows Arial only by its metric twin the list of families has no "Arial": the
// dialog still shows the font in use, first in the list and chosen, and another font chosen
// stays chosen when the dialog opens again.
TEST(PrintDialog, TheReportFontListShowsTheFontInUse) {
    PrintDialog dialog = LoadPrintDialog();
    const DesignRecord project = Project(0, 0, 0, 0);
    const std::vector<std::string> families = {"DejaVu Sans", "Liberation Sans",
                                               "Liberation Serif"};
    OpenPrintDialog(dialog, project, families, "PDF", PrintPath::Menu);
    const Control& list = dialog.form["cbbReportFont"];
    EXPECT_EQ(list.items, (std::vector<std::string>{"Arial", "DejaVu Sans", "Liberation Sans",
                                                    "Liberation Serif"}));
    EXPECT_EQ(list.selectedIndex, 0);
    EXPECT_EQ(list.text, "Arial");

    ChooseReportFont(dialog, 3);
    EXPECT_EQ(list.text, "Liberation Serif");
    OpenPrintDialog(dialog, project, families, "PDF", PrintPath::Toolbar);
    EXPECT_EQ(list.items, families); // the font in use is listed: nothing is added
    EXPECT_EQ(list.selectedIndex, 2);
    EXPECT_EQ(list.text, "Liberation Serif");
}
