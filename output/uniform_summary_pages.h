#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"
#include "output/page_builder.h"

// The uniform thickness foundation's design summary (`fraUTFOutput(0)`) and its prestress
// summary with selected variables (`fraUTFOutput(5)`).

void AddUniformSummaryPage(FormModel& form, std::vector<ResultPage>& pages,
                           LabelCounters& counters);
void AddUniformPrestressPage(FormModel& form, std::vector<ResultPage>& pages,
                             LabelCounters& counters);

void FillUniformSummaryPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r);
void FillUniformPrestressPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r);
