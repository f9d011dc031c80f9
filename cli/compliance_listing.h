#pragma once

#include "compliance/compliance_pass.h"
#include "engine/design_record.h"

#include <iosfwd>

// The exception lists, the compliance lists and the summary lines as the results screen shows
// them. With `colour` the bold runs are bold and the red runs red, by terminal escapes.
void PrintCompliancePass(const DesignRecord& record, const CompliancePass& pass, bool colour,
                         std::ostream& out);
