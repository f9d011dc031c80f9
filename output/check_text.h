#pragma once

#include "compliance/design_checks.h"

#include <optional>
#include <string>

// The texts of one check in a table, for the checks panel and the command line: numbers in the
// decimals the results screen gives their unit.

// The item with its direction: "Stiffness, long".
std::string CheckItemText(const DesignCheck& check);

// A demand or a limit: ksi in three decimals, inches and feet in two, ft-k in one, psi, psf and
// in^4 whole; a count whole, a ratio of depths in three. "-" when there is none.
std::string CheckQuantityText(const std::optional<CheckQuantity>& quantity,
                              const DesignCheck& check);

// The unit of the check's numbers, or empty.
std::string CheckUnitText(const DesignCheck& check);

// The ratio in two decimals, or "-".
std::string CheckRatioText(const DesignCheck& check);

// "OK", "NG" or "NOT CALCULATED".
std::string CheckStatusText(CheckStatus status);
