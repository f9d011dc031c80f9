#include "cli/results_listing.h"

#include "cli/compliance_listing.h"
#include "output/compliance_pages.h"
#include "output/results_tabs.h"

#include <algorithm>
#include <ostream>
#include <string>

namespace {

constexpr std::size_t MinimumValueWidth = 12;

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string PadRight(std::string text, std::size_t width) {
    if (text.size() < width) {
        text.append(width - text.size(), ' ');
    }
    return text;
}

std::string PadLeft(std::string text, std::size_t width) {
    if (text.size() < width) {
        text.insert(0, width - text.size(), ' ');
    }
    return text;
}

// The widths of a page's caption column and of each value column: every caption of a row that
// shows, and every value of a row with two, fit.
struct Widths {
    std::size_t caption = 0;
    std::size_t value = MinimumValueWidth;
};

Widths PageWidths(const FormModel& form, const ResultPage& page) {
    Widths widths;
    for (const ResultRow& row : page.rows) {
        if ((row.kind != RowKind::Value && row.kind != RowKind::Columns) ||
            !IsRowShown(form, row)) {
            continue;
        }
        widths.caption = std::max(widths.caption, form[row.caption].caption.size());
        if (row.values.size() > 1) {
            for (const std::string& value : row.values) {
                widths.value = std::max(widths.value, form[value].caption.size());
            }
        }
    }
    return widths;
}

void PrintValueRow(const FormModel& form, const ResultRow& row, const Widths& widths,
                   std::ostream& out) {
    std::string line = "  " + PadRight(form[row.caption].caption, widths.caption);
    for (const std::string& value : row.values) {
        const Control& label = form[value];
        const std::string text = label.visible ? label.caption : "";
        line += "  " + (row.text ? text : PadLeft(text, widths.value));
    }
    if (!row.unit.empty()) {
        line += "  " + form[row.unit].caption;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
}

void PrintPage(const ResultsScreen& screen, const std::string& frame, bool colour,
               std::ostream& out) {
    const FormModel& form = screen.form;
    const ResultPage& page = PageOfFrame(screen.pages, frame);
    const Widths widths = PageWidths(form, page);
    for (const ResultRow& row : page.rows) {
        if (!IsRowShown(form, row)) {
            continue;
        }
        const Control& caption = form[row.caption];
        switch (row.kind) {
        case RowKind::Heading:
            out << '\n' << "  " << Trimmed(caption.caption) << '\n';
            break;
        case RowKind::Columns:
        case RowKind::Value:
            PrintValueRow(form, row, widths, out);
            break;
        case RowKind::Note:
            if (!caption.caption.empty()) {
                out << "  ";
                PrintStyled(caption.caption, caption.bold, caption.red, colour, out);
                out << '\n';
            }
            break;
        case RowKind::Check:
            out << "  [" << (caption.checked ? 'x' : ' ') << "] " << caption.caption << '\n';
            break;
        case RowKind::List:
            PrintStyledText(StyledList(screen, row.caption), colour, out);
            out << '\n';
            break;
        }
    }
}

void PrintTabTitle(const std::string& rule, const std::string& caption, std::ostream& out) {
    out << '\n' << rule << ' ' << Trimmed(caption) << ' ' << rule << '\n';
}

} // namespace

void PrintResultsScreen(const ResultsScreen& screen, std::int16_t soilType,
                        std::int16_t clSettleState, bool colour, std::ostream& out) {
    for (int tab = 1; tab <= screen.tabMain.count(); ++tab) {
        PrintTabTitle("==", screen.tabMain.captions[static_cast<std::size_t>(tab - 1)], out);
        const int mainFrame = MainFrameOfTab(screen.tabMain, tab);
        if (mainFrame == 1 || mainFrame == 2) {
            const bool ribbed = mainFrame == 1;
            const TabStrip& strip = ribbed ? screen.tabRibbed : screen.tabUniform;
            for (int page = 1; page <= strip.count(); ++page) {
                PrintTabTitle("--", strip.captions[static_cast<std::size_t>(page - 1)], out);
                const std::string frame =
                    ribbed
                        ? ArrayName("fraExpOutput", RibbedFrameOfTab(soilType, clSettleState, page))
                        : ArrayName("fraUTFOutput",
                                    UniformFrameOfTab(soilType, clSettleState, page));
                PrintPage(screen, frame, colour, out);
            }
        } else {
            PrintPage(screen, ArrayName("fraMain", mainFrame), colour, out);
        }
    }
}
