#pragma once

#include "reports/page_writer.h"

// The ribbed foundation's results of analysis: two sheets on expansive soil (center lift, edge
// lift), one on compressible soil, or two with edge down.
void PrintRROA(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintRROA_Comp(PageContext& page, const LineHeights& heights, bool lastPage);
