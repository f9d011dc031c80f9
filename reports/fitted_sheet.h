#pragma once

#include "reports/page_writer.h"

#include <functional>
#include <string>

// One sheet of a page whose lines nearly fill it, as the results of analysis do. The body is
// first written without drawing, to find where its lowest line stands. It is then drawn at full
// line steps when that line ends half a line above the footer or higher, and otherwise with every
// step of the sheet shortened by the same share, just enough to end there. It never breaks a sheet
// in two: the report counts its sheets before it draws them.
using SheetBody = std::function<void(PageWriter&)>;

void DrawFittedSheet(PageContext& page, const LineHeights& heights, const std::string& title,
                     bool lastSheet, const SheetBody& body);
