#pragma once

#include "search/sensitivity_grid.h"

#include <filesystem>
#include <iosfwd>

// The outcome of a sensitivity run as text: the design's standing, a table of the max ratio at
// each point with the points that do not pass marked, the value checks that refused points,
// and the range of each field over which the design passes while the other stays at its design
// value.
void PrintSensitivityListing(const std::filesystem::path& project, int version,
                             const SensitivityRequest& request, const SensitivityOutcome& outcome,
                             std::ostream& out);
