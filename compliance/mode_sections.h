#pragma once

#include "common/styled_text.h"
#include "compliance/mode_values.h"

#include <cstdint>

// The rows of one analysis mode in a compliance list, below the section heading that the caller
// writes. Allowables: tension in ksi (negative), compression in psi.

enum class LiftMode { CenterLift, EdgeLift };

// Bending stresses, stiffness and shear, counted in `counter`, then the two cracked capacity
// rows, counted in `crackedCounter` (which may be the same counter). Gives the number of cracked
// rows counted.
std::int16_t ListLiftRows(StyledText& box, LiftMode mode, const ModeValues& values,
                          double allowTension, double allowCompression, std::int16_t& counter,
                          std::int16_t& crackedCounter, bool showAll);

// Bending stresses, deflection and shear of center down or edge down, counted in `counter`.
void ListDownRows(StyledText& box, const ModeValues& values, double allowTension,
                  double allowCompression, std::int16_t& counter, bool showAll);
