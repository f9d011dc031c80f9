#pragma once

#include "reports/page_writer.h"

// The whole input record on two sheets, and the line load analysis on one.
void PrintSOID(PageContext& page, const LineHeights& heights, bool lastPage);
void PrintLLA(PageContext& page, const LineHeights& heights, bool lastPage);
