#pragma once

#include "reports/page_writer.h"

// The uniform thickness foundation's results of analysis: two sheets on expansive soil, one on
// compressible soil, or two with edge down.
void PrintUROA(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintUROA_Comp(PageContext& page, const LineHeights& heights, bool lastPage);
