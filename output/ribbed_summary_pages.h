#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"
#include "output/page_builder.h"

// The ribbed foundation's pages that do not depend on the soil mode's analysis: the design
// summary (`fraExpOutput(0)`), soil bearing and prestress (`fraExpOutput(5)`) and selected
// variables (`fraExpOutput(6)`).

void AddRibbedSummaryPage(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters);
void AddBearingPrestressPage(FormModel& form, std::vector<ResultPage>& pages,
                             LabelCounters& counters);
void AddSelectedVariablesPage(FormModel& form, std::vector<ResultPage>& pages,
                              LabelCounters& counters);

void FillRibbedSummaryPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r);
void FillBearingPrestressPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r,
                              const EngineSettings& settings);
void FillSelectedVariablesPage(FormModel& form, const DesignRecord& record, const ResultsRecord& r);

// The "Subgrade Friction calculated ..." line of a prestress page; the uniform thickness page
// says less for a friction given by the user.
std::string SubgradeFrictionText(std::int16_t subgradeType, bool uniformPage);

// The slab's dimensions line: width and length in feet, thickness in inches.
std::string SlabDimensionsText(double width, double length, double thickness);
