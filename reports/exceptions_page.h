#pragma once

#include "reports/page_writer.h"

// The PTI exception summary: each rule of the manual the design breaks, with its citation, or
// "NO PTI EXCEPTIONS EXIST". The paper keeps its own wording, which differs from the screen's.
void PrintPE(PageContext& page, const LineHeights& heights, bool lastPage);
