#pragma once

#include "common/styled_text.h"
#include "compliance/compliance_counters.h"
#include "engine/design_record.h"
#include "engine/results_record.h"

#include <cstdint>
#include <optional>

// The "Display all" flags of the three compliance pages: 1 lists the values within their limits
// too. They are kept beside the results and survive from one display to the next.
struct ShowAllFlags {
    std::int16_t ShowAllRibbed = 0;
    std::int16_t ShowAllUniform = 0;
    std::int16_t ShowAllLineLoad = 0;
};

template <typename Counters> struct ComplianceList {
    Counters counters;
    StyledText box;
};

struct ExceptionList {
    std::int16_t count = 0;
    StyledText box;
};

// Everything the compliance and exception pages show after one analysis. A list that is not
// made for this project (no uniform thickness foundation, no line load) is empty.
struct CompliancePass {
    ComplianceList<RibbedCounters> ribbed;
    std::optional<ComplianceList<UniformCounters>> uniform;   // when FlatSlab is 1
    std::optional<ComplianceList<LineLoadCounters>> lineLoad; // when LineLoadType is 1
    // Ribbed items out of compliance that make the uniform thickness analysis invalid: center lift
    // and edge lift on expansive soil, center down and edge down otherwise; bearing and cracked
    // capacity are not in it.
    std::int16_t RibbedOutCount = 0;
    ExceptionList ribbedExceptions;
    std::optional<ExceptionList> uniformExceptions; // when FlatSlab is 1
};

// Builds the compliance lists and then the exception lists from a finished analysis, in the
// order the results screen does: ribbed compliance, `RibbedOutCount`, uniform compliance, line
// load compliance, ribbed exceptions, uniform exceptions. Throws ArithmeticFault where
// RibbedExceptions does.
CompliancePass RunCompliancePass(const DesignRecord& record, const ResultsRecord& results,
                                 const ShowAllFlags& flags);

// The ribbed items out of compliance that invalidate the uniform thickness foundation.
std::int16_t RibbedOutCountFor(std::int16_t soilType, const RibbedCounters& counters);
