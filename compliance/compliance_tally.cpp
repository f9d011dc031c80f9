#include "compliance/compliance_tally.h"

#include "compliance/compliance_summaries.h"
#include "compliance/design_exceptions.h"
#include "compliance/list_lines.h"

namespace {

std::int16_t brokenCount(std::span<const bool> rules) {
    std::int16_t count = 0;
    for (const bool broken : rules) {
        if (broken) {
            CountItem(count);
        }
    }
    return count;
}

} // namespace

bool ComplianceTally::clean() const {
    const RibbedCounters& r = ribbed;
    const UniformCounters& u = uniform;
    return r.centerLift == 0 && r.edgeLift == 0 && r.centerDown == 0 && r.edgeDown == 0 &&
           r.bearing == 0 && r.cracked == 0 && u.centerLift == 0 && u.edgeLift == 0 &&
           u.centerDown == 0 && u.edgeDown == 0 && lineLoad.ribbed == 0 && lineLoad.uniform == 0 &&
           ribbedExceptions == 0 && uniformExceptions == 0;
}

// In the order of RunCompliancePass, which the results screen follows.
ComplianceTally TallyCompliance(const DesignRecord& record, const ResultsRecord& results) {
    ComplianceTally tally;
    ListTarget target;

    RibbedCounters& rc = tally.ribbed;
    RibbedCompliance(record, results, rc, 0, target);
    tally.RibbedOutCount = RibbedOutCountFor(record.SoilType, rc);
    if (record.FlatSlab == 1) {
        UniformCounters& uc = tally.uniform;
        UniformCompliance(record, results, tally.RibbedOutCount, uc, 0, target);
    }
    if (record.LineLoadType == 1) {
        LineLoadCompliance(record, results, tally.lineLoad, 0, target);
    }

    tally.ribbedExceptions = brokenCount(RibbedRulesBroken(record, results));
    tally.uniformExceptions =
        brokenCount(UniformRulesBroken(record, results, tally.ribbedExceptions));
    tally.smallestMargin = target.smallestMargin;
    return tally;
}
