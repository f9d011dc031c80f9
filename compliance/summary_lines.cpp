#include "compliance/summary_lines.h"

namespace {

SummaryLine Good(std::string text) {
    return {std::move(text), false};
}
SummaryLine Bad(std::string text) {
    return {std::move(text), true};
}

SummaryLine ExceptionsLine(const std::string& foundation, int count) {
    if (count == 0) {
        return Good(foundation + " has no PTI Exceptions");
    }
    return Bad(foundation + " has " + std::to_string(count) + " PTI Exceptions");
}

} // namespace

std::vector<SummaryLine> RibbedSummary(const DesignRecord& record, const CompliancePass& pass) {
    const RibbedCounters& c = pass.ribbed.counters;
    const int outOfCompliance =
        c.centerLift + c.edgeLift + c.centerDown + c.edgeDown + c.cracked; // without bearing
    const int itemsShown = record.SoilType == 0 ? c.centerLift + c.edgeLift + c.bearing + c.cracked
                                                : c.edgeDown + c.centerDown + c.bearing;
    std::vector<SummaryLine> lines;
    if (outOfCompliance == 0) {
        lines.push_back(Good("Ribbed Foundation in compliance"));
    } else {
        lines.push_back(Bad("Ribbed Foundation has " + std::to_string(itemsShown) +
                            " items out of compliance"));
    }
    lines.push_back(ExceptionsLine("Ribbed Foundation", pass.ribbedExceptions.count));
    return lines;
}

std::vector<SummaryLine> UTFSummary(const CompliancePass& pass) {
    if (!pass.uniform || !pass.uniformExceptions) {
        return {};
    }
    const UniformCounters& c = pass.uniform->counters;
    const int counted = c.centerLift + c.edgeLift + c.centerDown + c.edgeDown;
    // The ribbed items out of compliance invalidate the uniform thickness analysis, and count as
    // one item however many there are.
    const int itemsShown = counted + (pass.RibbedOutCount > 0 ? 1 : 0);
    std::vector<SummaryLine> lines;
    if (counted + pass.RibbedOutCount == 0) {
        lines.push_back(Good("Uniform Thickness Foundation in compliance"));
    } else {
        lines.push_back(Bad("Uniform Thickness Foundation has " + std::to_string(itemsShown) +
                            " items out of compliance"));
    }
    lines.push_back(ExceptionsLine("Uniform Thickness Foundation", pass.uniformExceptions->count));
    return lines;
}

std::vector<SummaryLine> LLSummary(const DesignRecord& record, const CompliancePass& pass) {
    if (!pass.lineLoad) {
        return {};
    }
    const int ribbed = pass.lineLoad->counters.ribbed;
    const int uniform = pass.lineLoad->counters.uniform;
    if (ribbed == 0 && uniform == 0) {
        return {Good("Line Load Analysis in compliance")};
    }
    // "Line load" with a small "l" in the texts of the items out of compliance.
    std::vector<SummaryLine> lines;
    if (ribbed < 1) {
        lines.push_back(Good("Ribbed Foundation - Line Load Analysis in compliance"));
    } else {
        lines.push_back(Bad("Ribbed Foundation - Line load Analysis has " + std::to_string(ribbed) +
                            " items out of compliance"));
    }
    if (record.FlatSlab == 1) {
        if (uniform < 1) {
            lines.push_back(
                Good("Uniform Thickness Foundation - Line Load Analysis in compliance"));
        } else {
            lines.push_back(Bad("Uniform Thickness Foundation - Line load Analysis has " +
                                std::to_string(uniform) + " items out of compliance"));
        }
    }
    return lines;
}
