#pragma once

#include "engine/design_record.h"
#include "input/input_fault.h"

#include <optional>

// Finds the first value of the design record that makes no design sense, in the fixed order of
// the checks, or nothing when the record may be analysed.
std::optional<InputFault> FindRecordValueFault(const DesignRecord& record);
