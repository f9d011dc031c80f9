#pragma once

#include "reports/page_writer.h"

// The selected variables of the ribbed foundation, and the results of analysis of both
// foundations: two sheets on expansive soil (center lift, edge lift), one on compressible soil,
// or two with edge down.

void PrintRSV(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintRROA(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintRROA_Comp(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintUROA(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintUROA_Comp(PageContext& page, const LineHeights& heights, bool lastPage);
