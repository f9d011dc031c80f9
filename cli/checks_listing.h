#pragma once

#include "compliance/design_checks.h"

#include <iosfwd>
#include <span>

// The check table as text: under each foundation its modes, and in each mode one aligned line a
// check with the item, demand, limit, unit, ratio, OK or NG, and the manual's section; then the
// verdict of each foundation with its governing check. With `failingOnly` only the checks not
// ok are listed (a mode without any is left out). With `colour` those are bold red.
void PrintDesignChecks(std::span<const DesignCheck> checks, const DesignVerdict& verdict,
                       bool failingOnly, bool colour, std::ostream& out);
