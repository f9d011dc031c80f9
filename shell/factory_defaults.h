#pragma once

#include "engine/design_record.h"

#include <string>

// The record a new project starts from when the settings store holds nothing yet: the values
// the program ships with. `projectDate` becomes `ProjDate` (the program passes today's date in
// the pattern "mmmm d, yyyy"). `TendDiam` is left at 0: it is always derived from the tendon
// type when the record is read.
DesignRecord FactoryDefaultRecord(const std::string& projectDate);
