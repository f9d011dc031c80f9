#pragma once

#include "plan/foundation_plan.h"

#include <string>
#include <vector>

// The legend of the plan drawing: one entry for each beam group that has beams, drawn with the
// fill of its type, and one for the slab tendons of each direction.

enum class LegendSwatch { Type1Beam, Type2Beam, SlabTendon };

struct LegendEntry {
    LegendSwatch swatch = LegendSwatch::Type1Beam;
    std::string text;
};

std::vector<LegendEntry> PlanLegend(const FoundationPlan& plan);

// The text of a count or size in the legend and the dimensions: whole numbers without decimals,
// others with up to two ("12", "8.5", "1.25").
std::string PlanNumber(double value);

// A length on plan in feet with two decimals: "12.50 ft".
std::string PlanFeet(double value);
