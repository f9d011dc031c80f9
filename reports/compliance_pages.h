#pragma once

#include "reports/page_writer.h"

// The design compliance summaries: every check of the foundation, item by item, with how far it
// is out of its limit. A failing item is bold, or bold red with the colour flag; a passing item
// shows only with the show-all flag, in plain black.

void PrintRDCS(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintRDCS_Comp(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintUDCS(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintUDCS_Comp(PageContext& page, const LineHeights& heights, bool lastPage);
