#pragma once

#include "engine/design_record.h"
#include "input/input_fault.h"
#include "shell/form_model.h"

#include <optional>

// Finds the first field left empty on the input screen or the options form, which name their
// controls alike. `selector` is a tab number, 1 to 7, or 10 for every tab; tabs are looked at in
// the order 2 to 7 (tab 1 has nothing required). `isOptions` is true for the options form, which
// has no soil type list and so requires the fields of both soils. The deflection rows of tab 6
// follow the record's `SoilType`, on either form. A text of blanks is not empty.
std::optional<InputFault> FindBlankField(const FormModel& form, const DesignRecord& record,
                                         int selector, bool isOptions);
