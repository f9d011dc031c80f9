#include "plan/plan_legend.h"

#include "common/number_pattern.h"

namespace {

std::string DirectionName(PlanDirection direction) {
    return direction == PlanDirection::Short ? "Short" : "Long";
}

std::string BeamGroupText(const TypicalSection& section, int quantity) {
    return DirectionName(section.direction) + " Type " + std::to_string(section.type) + ": " +
           PlanNumber(quantity) + (quantity == 1 ? " beam, " : " beams, ") +
           PlanNumber(section.width) + " x " + PlanNumber(section.depth) + " in, " +
           PlanNumber(section.tendons) + (section.tendons == 1 ? " tendon" : " tendons") + " each";
}

std::string SlabTendonText(PlanDirection direction, const PlanSlabTendons& tendons) {
    const std::string head = DirectionName(direction) + " slab tendons: ";
    if (!tendons.known) {
        return head + "counted by the analysis";
    }
    if (!(tendons.count >= 1)) {
        return head + "none";
    }
    return head + FormatNumber(tendons.count, "#,##0") + " at " +
           FormatNumber(tendons.spacing, "#0.00") + " ft o.c.";
}

} // namespace

std::string PlanNumber(double value) {
    // The pattern keeps its point when both decimals are dropped.
    std::string text = FormatNumber(value, "#,##0.##");
    if (!text.empty() && text.back() == '.') {
        text.pop_back();
    }
    return text;
}

std::string PlanFeet(double value) {
    return FormatNumber(value, "#,##0.00") + " ft";
}

std::vector<LegendEntry> PlanLegend(const FoundationPlan& plan) {
    std::vector<LegendEntry> entries;
    for (const TypicalSection& section : plan.sections) {
        int quantity = 0;
        for (const PlanBeam& beam : plan.beams) {
            quantity += beam.direction == section.direction && beam.type == section.type;
        }
        entries.push_back({section.type == 1 ? LegendSwatch::Type1Beam : LegendSwatch::Type2Beam,
                           BeamGroupText(section, quantity)});
    }
    entries.push_back(
        {LegendSwatch::SlabTendon, SlabTendonText(PlanDirection::Short, plan.slabTendonsShort)});
    entries.push_back(
        {LegendSwatch::SlabTendon, SlabTendonText(PlanDirection::Long, plan.slabTendonsLong)});
    return entries;
}
