#pragma once

#include "reports/package_study_page.h"
#include "search/sensitivity_grid.h"

// The chart of the package's "Soil sensitivity" page from a finished sensitivity run: the heat
// map of the governing ratio over two fields with the line where it reaches 1.0, or for one field
// the largest ratio of each foundation against it; the design's own values marked; the key and
// the passing ranges in words. The same colours and contour as the desktop's chart.
SoilStudyChart SoilStudyChartOf(const SensitivityRequest& request,
                                const SensitivityOutcome& outcome);
