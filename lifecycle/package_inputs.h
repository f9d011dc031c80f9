#pragma once

#include "engine/design_record.h"
#include "reports/package_document.h"

#include <vector>

// The inputs of a project as the calculation package lists them: grouped by the input pages, in
// their order, each with the page's caption, its value from the record and its unit. Fields that
// the project's options switch off on the input pages are left out, as is the line load page
// when no line load analysis is asked for.
std::vector<PackageInputGroup> PackageInputs(const DesignRecord& record);
