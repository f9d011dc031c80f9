#pragma once

#include "output/results_screen.h"

#include <iosfwd>

// The results screen as text: for each tab of `tabMain`, its caption, then for the ribbed and
// uniform pages each tab of their strip; each page's visible rows as caption, values and unit in
// aligned columns, its styled lists as they read. With `colour` the bad summary lines and the
// list runs are bold and red by terminal escapes.
void PrintResultsScreen(const ResultsScreen& screen, std::int16_t soilType,
                        std::int16_t clSettleState, bool colour, std::ostream& out);
