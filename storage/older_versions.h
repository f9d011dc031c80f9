#pragma once

#include "engine/design_record.h"
#include "storage/line_reader.h"

#include <string>

// Readers of the two earlier project formats. They are only read: saving always writes the
// current one. Both take the reader just after the first line of the file.

// Version 2 ("Korvath 2.0"): the current layout except that the slab has no force ratio pair,
// the soil has no CLSettleState and holds SGFC between Settle and Es, and the loads hold neither
// DefCLSettle, which comes from `defaults`, nor SGFC.
void ReadVersion2File(LineReader& reader, int selector, DesignRecord& record,
                      const DesignRecord& defaults);

// Version 1: no version line and no NoDataFlag, so `firstLine` is already the first value of
// the file. A tab selector reads the old tab file of that page (.pro, .mat, .fnd, .sol, .ldf);
// slab and beams share one .fnd layout. Fields version 1 did not know are supplied, for the
// pages read, from fixed values or from `defaults`.
void ReadVersion1File(LineReader& reader, const std::string& firstLine, int selector,
                      DesignRecord& record, const DesignRecord& defaults);
