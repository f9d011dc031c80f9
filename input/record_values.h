#pragma once

#include "engine/design_record.h"
#include "input/input_fault.h"

#include <optional>

// Finds the first value of the design record that makes no design sense, in the fixed order of
// the checks, or nothing when the record may be analysed.
std::optional<InputFault> FindRecordValueFault(const DesignRecord& record);

// The same checks on the record as the analysis will see it: the size of its tendon is first set
// from its type, in place (engine/tendon_size.h). A custom tendon whose area gives no diameter
// is no value fault here: it is left to the analysis to report, and nothing is found.
std::optional<InputFault> FindReadyRecordValueFault(DesignRecord& record);
