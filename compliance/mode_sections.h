#pragma once

#include "compliance/checked_rows.h"
#include "compliance/list_lines.h"

#include <cstdint>

// The rows of one analysis mode in a compliance list, below the section heading that the caller
// writes.

enum class LiftMode { CenterLift, EdgeLift };

// Bending stresses, stiffness and shear, counted in `counter`, then the two cracked capacity
// rows, counted in `crackedCounter` (which may be the same counter). Gives the number of cracked
// rows counted.
std::int16_t ListLiftRows(ListTarget& target, LiftMode mode, const ModeRows& rows,
                          std::int16_t& counter, std::int16_t& crackedCounter, bool showAll);

// Bending stresses, deflection and shear of center down or edge down, counted in `counter`.
void ListDownRows(ListTarget& target, const ModeRows& rows, std::int16_t& counter, bool showAll);
