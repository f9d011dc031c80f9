#pragma once

#include "reports/page_frame.h"
#include "reports/print_dialog.h"

#include <string>
#include <vector>

// A print run: the pages of a job drawn one after the other on one surface, each with the
// shared header and footer, each starting a new sheet but the first.

using PageProcedure = void (*)(PageContext& page, const LineHeights& heights, bool lastPage);

// The procedure of that name; an unknown name is a programming error and gives nothing.
PageProcedure FindPageProcedure(const std::string& name);

// What a run needs beyond the job: the project, its results and the report's flags.
struct ReportSettings {
    std::string projectPath;
    bool colour = false;
    bool showAll = false;
    std::int16_t RibbedOutCount = 0;
    EngineSettings engine{}; // the options the analysis ran with
};

// Begins the document, draws every page of the job in order and ends the document. A job
// without pages still ends its (empty) document.
void PrintReport(DrawingSurface& surface, const PrintJob& job, const DesignRecord& record,
                 const ResultsRecord& results, const ReportSettings& settings);
