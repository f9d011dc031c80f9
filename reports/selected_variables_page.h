#pragma once

#include "reports/page_writer.h"

// The selected variables of the ribbed foundation: its sections, prestress geometry, Beta
// distances, equivalent depths and the jacking force, on one sheet.
void PrintRSV(PageContext& page, const LineHeights& heights, bool lastPage);
