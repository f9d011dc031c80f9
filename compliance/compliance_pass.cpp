#include "compliance/compliance_pass.h"

#include "compliance/compliance_summaries.h"
#include "compliance/design_exceptions.h"
#include "engine/checked_math.h"

std::int16_t RibbedOutCountFor(std::int16_t soilType, const RibbedCounters& c) {
    if (soilType == 0) {
        return Sum16(c.centerLift, c.edgeLift);
    }
    return Sum16(c.centerDown, c.edgeDown);
}

CompliancePass RunCompliancePass(const DesignRecord& record, const ResultsRecord& results,
                                 const ShowAllFlags& flags) {
    CompliancePass pass;

    RibbedCounters& rc = pass.ribbed.counters;
    RibbedCompliance(record, results, rc, flags.ShowAllRibbed, pass.ribbed.box);
    pass.RibbedOutCount = RibbedOutCountFor(record.SoilType, rc);

    if (record.FlatSlab == 1) {
        pass.uniform.emplace();
        UniformCounters& uc = pass.uniform->counters;
        UniformCompliance(record, results, pass.RibbedOutCount, uc, flags.ShowAllUniform,
                          pass.uniform->box);
    }
    if (record.LineLoadType == 1) {
        pass.lineLoad.emplace();
        LineLoadCounters& lc = pass.lineLoad->counters;
        LineLoadCompliance(record, results, lc, flags.ShowAllLineLoad, pass.lineLoad->box);
    }

    RibbedExceptions(record, results, pass.ribbedExceptions.count, pass.ribbedExceptions.box);
    if (record.FlatSlab == 1) {
        pass.uniformExceptions.emplace();
        UniformExceptions(record, results, pass.uniformExceptions->count,
                          pass.ribbedExceptions.count, pass.uniformExceptions->box);
    }
    return pass;
}
