#pragma once

#include "compliance/compliance_pass.h"
#include "engine/design_record.h"
#include "engine/results_record.h"
#include "output/page_builder.h"
#include "output/results_screen.h"

#include <string_view>

// The design compliance and PTI exceptions pages of both foundations: the styled lists and their
// "Display all" check boxes. The line load's list stands on the line load page.

void AddCompliancePages(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters);

// The styled list of a list control by its name (`rtbRibbedDC`, ...); an unknown name is a
// programming error and throws std::out_of_range.
StyledText& StyledList(ResultsScreen& screen, std::string_view name);
const StyledText& StyledList(const ResultsScreen& screen, std::string_view name);

// Takes the lists of an analysis into the screen: the lists made for this analysis replace the
// old ones, the others keep theirs. The check boxes show the flags.
void FillCompliancePages(ResultsScreen& screen, const CompliancePass& pass);

// A click on one of the check boxes `chkRibbedDC`, `chkUniformDC`, `chkRibbedLLDC`: stores the
// flag and rebuilds its list from the results, with counters that are thrown away.
void ClickDisplayAll(ResultsScreen& screen, std::string_view box, bool checked,
                     const DesignRecord& record, const ResultsRecord& results);
