#pragma once

#include "common/styled_text.h"
#include "compliance/compliance_pass.h"
#include "engine/design_record.h"
#include "engine/results_record.h"
#include "output/label_text.h"
#include "output/results_layout.h"
#include "shell/form_model.h"

#include <cstdint>
#include <string>
#include <vector>

// A tab strip of the results screen: its captions, tab 1 first, and the selected tab (1-based).
// The captions' leading and trailing blanks are kept: they set the width of a tab.
struct TabStrip {
    std::vector<std::string> captions;
    int selected = 1;

    int count() const { return static_cast<int>(captions.size()); }
};

// The results screen `frmOutput` as a model: every label, frame, check box and summary line as a
// named control, the rows of each page, the three tab strips, the styled compliance and
// exception lists, and the "Display all" flags. It stays loaded between analyses: what one
// analysis does not write keeps the text the one before left. It draws nothing itself.
struct ResultsScreen {
    FormModel form;
    std::vector<ResultPage> pages;
    TabStrip tabMain;
    TabStrip tabRibbed;
    TabStrip tabUniform;
    StyledText rtbRibbedDC;
    StyledText rtbRibbedPE;
    StyledText rtbUniformDC;
    StyledText rtbUTFPE;
    StyledText rtbLLDC;
    ShowAllFlags flags;
    // Kept from the last analysis for the rerun of the uniform list from its check box.
    std::int16_t RibbedOutCount = 0;
    bool visible = false;
    // Where the screen stands in the main window, set when an analysis shows it.
    int left = 0;
    int top = 0;
};

// The width the results screen is designed for, in the main window's units (pixels).
inline constexpr int ResultsScreenWidth = 1000;

// The fixed text that heads both exception pages.
inline constexpr const char* ExceptionsHeading =
    "The following elements of the design are not in strict compliance with the Design of "
    "Post-Tensioned Slabs-On-Ground 3rd Edition manual published by the Post-Tensioning "
    "Institute.";

// The screen as it is loaded, before any analysis: hidden, the tabs as designed, every value
// label blank, the exception pages' heading set.
ResultsScreen LoadResultsScreen();

// Builds the compliance and exception lists and writes every label of the screen from a
// finished analysis, in the order of the screen: lists, project labels, summary lines, pages.
// Only the pages of the analysed soil, edge down, uniform thickness foundation and line load are
// written; the others keep their texts. Gives the lists it built with their counters. Throws
// ArithmeticFault where the design exceptions do (a direction without any beam group), and
// ResultsValueFault where a value it works out from the results is not a finite number.
CompliancePass FillResults(ResultsScreen& screen, const DesignRecord& record,
                           const ResultsRecord& results, const EngineSettings& settings);
