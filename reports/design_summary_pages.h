#pragma once

#include "reports/page_writer.h"

// The two one-sheet summaries that open a report: dimensions, materials, quantities, then each
// direction's reinforcement, the long direction first.

void PrintRDS(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintUDS(PageContext& page, const LineHeights& heights, bool lastPage);
