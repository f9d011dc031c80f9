#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"
#include "output/page_builder.h"

// The line load page (`fraMain(3)`): moment, bending stresses and prestress under the line load
// on the ribbed foundation's slab and, with a uniform thickness foundation, on its slab; then the
// line load's compliance list.

void AddLineLoadPage(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters);

void FillLineLoadPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r);
