#pragma once

#include "compliance/compliance_pass.h"
#include "engine/design_record.h"
#include "engine/results_record.h"

#include <cstdint>
#include <optional>

// The counters of every compliance list and the counts of both exception lists of a finished
// analysis, counted by the very routines that write the lists but without writing a line, and
// the smallest margin of the listed values to their limits. Made for a search that looks at
// many designs and shows the lists of none.
struct ComplianceTally {
    RibbedCounters ribbed;
    UniformCounters uniform;   // all 0 without a uniform thickness foundation
    LineLoadCounters lineLoad; // all 0 without a line load
    std::int16_t RibbedOutCount = 0;
    std::int16_t ribbedExceptions = 0;
    std::int16_t uniformExceptions = 0;
    // The smallest margin, 1 - value / limit, of every row of the lists the project has
    // (compliance/list_lines.h); nothing when no row has one.
    std::optional<double> smallestMargin;

    // Every counter at 0 and no exception: the design is within every limit and breaks no rule
    // of the manual.
    bool clean() const;
};

// Throws ArithmeticFault where RunCompliancePass does: the depth ratio of a direction without
// any beam group that has both a depth and a quantity.
ComplianceTally TallyCompliance(const DesignRecord& record, const ResultsRecord& results);
