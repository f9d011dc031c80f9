#pragma once

#include "output/results_run.h"

#include <nlohmann/json.hpp>

// A run's fault as every JSON object of the command line gives it: {"kind", "stage"}, the stage
// null for a fault after the analysis (the design exceptions, a value of the results screen).
nlohmann::ordered_json RunFaultJson(const RunFault& fault);
