#pragma once

#include "compliance/design_checks.h"
#include "output/results_run.h"
#include "reports/package_document.h"

#include <optional>
#include <string>
#include <vector>

// What a calculation package is drawn from after an analysis: the check table, the verdict, the
// plan and the inputs of the run, or the fault that ended it. The command line and the desktop
// both make it here, so that their packages are the same.

// The check table of a finished run. A fault of the rules' beam depth ratio (which a run that
// filled its results screen has already met) becomes `fault` and gives no checks.
std::vector<DesignCheck> PackageChecks(const DesignRecord& record, const ResultsRecord& results,
                                       std::optional<RunFault>& fault);

// The content of a package over the record, the results and the checks, which must outlive it.
// With a fault only the fault sheet is drawn: it says where and why the run stopped.
PackageContent MakePackageContent(const DesignRecord& record, const ResultsRecord& results,
                                  const std::vector<DesignCheck>& checks,
                                  const std::optional<RunFault>& fault, const PackageInfo& info);
