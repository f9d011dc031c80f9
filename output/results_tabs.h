#pragma once

#include "engine/design_record.h"
#include "output/results_screen.h"

#include <string_view>

// The three tab strips of the results screen and the frames they bring to the front. Tabs are
// numbered from 1, frames from 0.

inline constexpr int MainFrames = 4;    // fraMain: project, ribbed, uniform, line load
inline constexpr int RibbedFrames = 9;  // fraExpOutput
inline constexpr int UniformFrames = 8; // fraUTFOutput

// The tab strips as designed, before the first analysis arranges them.
TabStrip DesignedMainTabs();
TabStrip DesignedRibbedTabs();
TabStrip DesignedUniformTabs();

// The frame of `fraExpOutput` that a tab of `tabRibbed` shows, and of `fraUTFOutput` for
// `tabUniform`: on compressible soil the analysis pages stand in their own frames.
int RibbedFrameOfTab(std::int16_t soilType, std::int16_t clSettleState, int tab);
int UniformFrameOfTab(std::int16_t soilType, std::int16_t clSettleState, int tab);

// The frame of `fraMain` that a tab of `tabMain` shows, by the tab's page.
int MainFrameOfTab(const TabStrip& tabMain, int tab);

// Selecting a tab brings its frame to the front and hides the other frames of its array.
void SelectMainTab(ResultsScreen& screen, int tab);
void SelectRibbedTab(ResultsScreen& screen, const DesignRecord& record, int tab);
void SelectUniformTab(ResultsScreen& screen, const DesignRecord& record, int tab);

// Places and arranges the screen after an analysis has filled it: the screen at the very top of
// the main window, centred sideways in its inner width; the first tab of each strip; the tabs of
// `tabRibbed` and `tabUniform` by soil; `tabMain` rebuilt with the uniform thickness and line
// load tabs the project has.
void ArrangeResultsScreen(ResultsScreen& screen, const DesignRecord& record, int mainInnerWidth);

// A click on a summary line (`RibbedSummary(1)`, `LLSummary(0)`, ...): brings up its page.
void ClickSummaryLine(ResultsScreen& screen, const DesignRecord& record, std::string_view item);
