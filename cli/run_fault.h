#pragma once

#include "output/results_run.h"

#include <nlohmann/json.hpp>
#include <string>

// A run's fault as every JSON object of the command line gives it: {"kind", "stage"}, the stage
// null for a fault after the analysis (the design exceptions, a value of the results screen).
nlohmann::ordered_json RunFaultJson(const RunFault& fault);

// The fault as the check commands name it: with the cause of a fault in the beam depth ratio, a
// direction that has no beam group with both a depth and a quantity.
std::string RunFaultWithCause(const RunFault& fault);
