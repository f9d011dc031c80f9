#include "cli/compliance_listing.h"

#include <ostream>
#include <string>

namespace {

constexpr const char* Bold = "\033[1m";
constexpr const char* Red = "\033[31m";
constexpr const char* Reset = "\033[0m";

// The width in which a centred run is centred.
constexpr std::size_t ScreenColumns = 80;

// A run as it appears in its box. Escapes never span a line end, so that a line of a list
// piped through a pager keeps its own colour.
void PrintRun(const StyledRun& run, bool colour, std::ostream& out) {
    std::size_t start = 0;
    while (start < run.text.size()) {
        const std::size_t end = run.text.find('\n', start);
        std::string line = run.text.substr(start, end == std::string::npos ? end : end - start);
        if (run.centred) {
            line.erase(0, line.find_first_not_of('\t'));
            if (!line.empty() && line.size() < ScreenColumns) {
                line.insert(0, (ScreenColumns - line.size()) / 2, ' ');
            }
        }
        PrintStyled(line, run.bold, run.red, colour, out);
        if (end == std::string::npos) {
            break;
        }
        out << '\n';
        start = end + 1;
    }
}

void PrintBox(const std::string& title, const StyledText& box, bool colour, std::ostream& out) {
    out << '\n' << title << '\n' << std::string(title.size(), '-') << '\n';
    PrintStyledText(box, colour, out);
}

void PrintSummaryLines(const std::vector<SummaryLine>& lines, bool colour, std::ostream& out) {
    for (const SummaryLine& line : lines) {
        out << "  ";
        PrintStyled(line.text, line.bad, line.bad, colour, out);
        out << '\n';
    }
}

} // namespace

void PrintStyled(const std::string& text, bool bold, bool red, bool colour, std::ostream& out) {
    if (text.empty()) {
        return;
    }
    const bool styled = colour && (bold || red);
    if (styled) {
        out << (bold ? Bold : "") << (red ? Red : "");
    }
    out << text;
    if (styled) {
        out << Reset;
    }
}

void PrintStyledText(const StyledText& box, bool colour, std::ostream& out) {
    for (const StyledRun& run : box.runs) {
        PrintRun(run, colour, out);
    }
}

void PrintCompliancePass(const CompliancePass& pass, const ShownSummary& summary, bool colour,
                         std::ostream& out) {
    out << "\nThe following elements of the design are not in strict compliance with the Design "
           "of Post-Tensioned Slabs-On-Ground 3rd Edition manual published by the "
           "Post-Tensioning Institute.\n";
    PrintBox("Ribbed Foundation - PTI Exceptions", pass.ribbedExceptions.box, colour, out);
    if (pass.uniformExceptions) {
        PrintBox("Uniform Thickness Foundation - PTI Exceptions", pass.uniformExceptions->box,
                 colour, out);
    }

    PrintBox("Ribbed Foundation - Design Compliance", pass.ribbed.box, colour, out);
    if (pass.uniform) {
        PrintBox("Uniform Thickness Foundation - Design Compliance", pass.uniform->box, colour,
                 out);
    }
    if (pass.lineLoad) {
        PrintBox("Line Load - Design Compliance", pass.lineLoad->box, colour, out);
    }

    const std::string title = "Summary";
    out << '\n' << title << '\n' << std::string(title.size(), '-') << '\n';
    PrintSummaryLines(summary.ribbed, colour, out);
    PrintSummaryLines(summary.uniform, colour, out);
    PrintSummaryLines(summary.lineLoad, colour, out);
}
