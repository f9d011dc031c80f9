#pragma once

#include "common/styled_text.h"
#include "compliance/compliance_counters.h"
#include "compliance/list_lines.h"
#include "engine/design_record.h"
#include "engine/results_record.h"

#include <cstdint>

// The "Design Compliance" lists: every calculated value held against its limit. Each routine
// empties its box and lists, by section, the values over their limits in bold red with the
// percentage by which they exceed it, and counts them. With `showAll` not 0 the values within
// their limits are listed too, in regular black, and count nothing. Counters are 16-bit and are
// set to 0 by the caller.

// The ribbed foundation: soil bearing, then center lift and edge lift on expansive soil
// (`SoilType` 0) or center down and, with `CLSettleState` 1, edge down on compressible soil
// (`SoilType` 1). `bearing` is set to 1 when it fails. The cracked capacity rows of both lift modes
// count in `cracked`.
void RibbedCompliance(const DesignRecord& record, const ResultsRecord& results,
                      RibbedCounters& counters, std::int16_t showAll, StyledText& box);

// The uniform thickness foundation, headed by the ribbed foundation's compliance
// (`ribbedOutCount`); its cracked rows count in the center lift and edge lift counters.
void UniformCompliance(const DesignRecord& record, const ResultsRecord& results,
                       std::int16_t ribbedOutCount, UniformCounters& counters, std::int16_t showAll,
                       StyledText& box);

// The line load, on the ribbed foundation's slab and, with `FlatSlab` 1, on the uniform
// thickness slab.
void LineLoadCompliance(const DesignRecord& record, const ResultsRecord& results,
                        LineLoadCounters& counters, std::int16_t showAll, StyledText& box);

// The same three lists into a list target (compliance/list_lines.h): appended to its box when
// it has one, which is not emptied first, or only counted when it has none. Every row notes its
// margin in the target.
void RibbedCompliance(const DesignRecord& record, const ResultsRecord& results,
                      RibbedCounters& counters, std::int16_t showAll, ListTarget& target);
void UniformCompliance(const DesignRecord& record, const ResultsRecord& results,
                       std::int16_t ribbedOutCount, UniformCounters& counters, std::int16_t showAll,
                       ListTarget& target);
void LineLoadCompliance(const DesignRecord& record, const ResultsRecord& results,
                        LineLoadCounters& counters, std::int16_t showAll, ListTarget& target);
