#pragma once

#include "compliance/compliance_pass.h"
#include "compliance/summary_lines.h"
#include "engine/design_record.h"
#include "output/page_builder.h"

// The project page (`fraMain(0)`): the project's labels and the summary lines that say whether
// each foundation complies and has PTI exceptions. A click on a summary line jumps to its page
// (output/results_tabs.h).

inline constexpr int RibbedSummaryItems = 3;
inline constexpr int UTFSummaryItems = 3;
inline constexpr int LLSummaryItems = 2;

void AddProjectPage(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters);

void FillProjectPage(FormModel& form, const DesignRecord& record);

// Items 1 and 2 of `RibbedSummary` and `UTFSummary` are the compliance and exceptions lines;
// item 0 leads to the design summary. Hidden items are those the analysis has no line for.
void FillSummaryLines(FormModel& form, const DesignRecord& record, const CompliancePass& pass);

// The compliance and exceptions lines the project page shows, as lines with their style: for each
// foundation without its design summary item, and those of the line load.
struct ShownSummary {
    std::vector<SummaryLine> ribbed;
    std::vector<SummaryLine> uniform;
    std::vector<SummaryLine> lineLoad;
};
ShownSummary SummaryLinesShown(const FormModel& form);
