#pragma once

#include "compliance/design_checks.h"
#include "engine/design_record.h"
#include "engine/results_record.h"
#include "output/results_screen.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

// The Checks panel beside the results screen and the verdict strip above it, as a model: the
// check table of the last analysis, the panel's order and filter, and what each line and row
// reads. It is loaded after each analysis that shows the results, from the record as analysed,
// and changes with nothing else; it never writes the results screen but to bring up a page.

enum class CheckColumn { Foundation, Mode, Item, Demand, Limit, Unit, Ratio, Status, Reference };
inline constexpr int CheckColumns = 9;

// The captions of the panel's columns, in the order of CheckColumn.
inline constexpr std::array<const char*, CheckColumns> CheckColumnCaptions{
    "Foundation", "Mode", "Item", "Demand", "Limit", "Unit", "Ratio", "Status", "PTI"};

struct ChecksPanel {
    bool loaded = false;
    DesignRecord record; // as analysed: its soil and foundations place the pages
    std::vector<DesignCheck> checks;
    DesignVerdict verdict;
    bool failingOnly = false; // the "Failing only" box
    // The order of the rows: the table's own until a column is chosen.
    std::optional<CheckColumn> sortColumn;
    bool ascending = true;
};

// Fills the panel from a finished analysis. Throws ArithmeticFault as DesignChecks does.
void LoadChecksPanel(ChecksPanel& panel, const DesignRecord& record, const ResultsRecord& results);

// A click on a column's caption: sorts by it, or turns the order round when it is the column
// already sorted by. Numbers sort by value, with the rows that have none last either way; the
// status sorts the checks not ok first when ascending.
void SortChecks(ChecksPanel& panel, CheckColumn column);

// The cells: "Ribbed" or "Uniform", the mode's title, the item with its mode and direction
// ("Stiffness, edge lift, long"), then as output/check_text.h gives them.
struct ChecksPanelRow {
    std::size_t check; // its index in the table
    std::array<std::string, CheckColumns> cells;
    bool failing; // not ok: drawn red
};

// The rows the panel shows, in its order, those not ok only when the filter is on.
std::vector<ChecksPanelRow> ChecksPanelRows(const ChecksPanel& panel);

// A double click on a row: brings up the classic results page that shows its value.
void OpenCheckPage(const ChecksPanel& panel, std::size_t check, ResultsScreen& screen);

// One line of the verdict strip a foundation: "Ribbed foundation: PASS" in green, or the
// failure with its count and governing check in red. A click on any line opens the panel.
struct VerdictStripLine {
    Foundation foundation;
    std::string text;
    bool pass;
};
std::vector<VerdictStripLine> VerdictStripLines(const ChecksPanel& panel);
