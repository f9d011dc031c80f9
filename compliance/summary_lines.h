#pragma once

#include "compliance/compliance_pass.h"
#include "engine/design_record.h"

#include <string>
#include <vector>

// The summary lines of the project page: a good line is regular in the window's text colour, a
// bad line bold in red. Each group gives only its visible lines; an empty group is hidden.
struct SummaryLine {
    std::string text;
    bool bad = false;
};

// Compliance, then exceptions of the ribbed foundation. A failed bearing check alone leaves the
// foundation "in compliance", although the number of items out of compliance counts it.
std::vector<SummaryLine> RibbedSummary(const DesignRecord& record, const CompliancePass& pass);

// Compliance, then exceptions of the uniform thickness foundation; none without one.
std::vector<SummaryLine> UTFSummary(const CompliancePass& pass);

// One line when the line load complies on every slab; otherwise one line for the ribbed
// foundation's slab and, with a uniform thickness foundation, one for its slab. None without a
// line load.
std::vector<SummaryLine> LLSummary(const DesignRecord& record, const CompliancePass& pass);
