#pragma once

#include "engine/design_record.h"

// Pi as the tendon tables have always used it: twelve significant digits, not the library's.
inline constexpr double TendonPi = 3.14159265359;

// Sets `TendArea` and `TendDiam` from `TendType` as the material page does when it is read:
// the three standard strands take their area and nominal diameter from the table; a custom
// tendon (type 3) keeps its typed area and gets the diameter of a round bar of that area. Any
// other type leaves both as they are. A negative custom area throws ArithmeticFault
// (invalid argument), since it has no diameter.
void ApplyTendonSize(DesignRecord& record);
