#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"
#include "output/page_builder.h"

// The analysis pages of both foundations: center lift and edge lift on expansive soil, center
// down and edge down on compressible soil. Each shows the moments, the bending stresses against
// the allowables, the stiffness (lift) or the differential deflection (down), the shear and, on
// the lift pages, the cracked section.

// The number of copies of `lblFT`, `lblFc` and `lblUseBeta`: one per analysis page, ribbed center
// lift, edge lift, center down, edge down (0 to 3), the uniform ones in the same order (4 to 7),
// and the line load page (8).
inline constexpr int AllowableCopies = 9;
inline constexpr int LineLoadCopy = 8;

void AddAnalysisPages(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters);

// The rows that every analysis page shows whatever the soil: the allowable stresses, the note on
// stresses from the prestress at Beta, the Em = 5.0 notes and the differential deflection panels.
void FillAnalysisPageNotes(FormModel& form, const ResultsRecord& r, const EngineSettings& settings);

void FillRibbedLiftPages(FormModel& form, const DesignRecord& record, const ResultsRecord& r);
void FillRibbedDownPages(FormModel& form, const DesignRecord& record, const ResultsRecord& r);
void FillUniformLiftPages(FormModel& form, const DesignRecord& record, const ResultsRecord& r);
void FillUniformDownPages(FormModel& form, const DesignRecord& record, const ResultsRecord& r);
