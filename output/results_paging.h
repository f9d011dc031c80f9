#pragma once

#include "engine/design_record.h"
#include "output/results_screen.h"

// Ctrl+PageDown and Ctrl+PageUp on the results screen: the pages are read as one run, each tab
// of the main strip in turn and, on the ribbed and uniform thickness tabs, each tab of their own
// strip, so that the keyboard reaches every page the mouse can. The run wraps at both ends.

// One page on (`step` 1) or back (-1).
void StepResultsPage(ResultsScreen& screen, const DesignRecord& record, int step);
