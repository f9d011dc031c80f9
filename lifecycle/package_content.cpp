#include "lifecycle/package_content.h"

#include "engine/checked_math.h"
#include "lifecycle/package_inputs.h"
#include "plan/foundation_plan.h"

std::vector<DesignCheck> PackageChecks(const DesignRecord& record, const ResultsRecord& results,
                                       std::optional<RunFault>& fault) {
    if (fault) {
        return {};
    }
    try {
        return DesignChecks(record, results);
    } catch (const ArithmeticFault& ratioFault) {
        fault = RunFault{ratioFault.kind, RunFaultPlace::DesignExceptions};
        return {};
    }
}

PackageContent MakePackageContent(const DesignRecord& record, const ResultsRecord& results,
                                  const std::vector<DesignCheck>& checks,
                                  const std::optional<RunFault>& fault, const PackageInfo& info) {
    PackageContent content{record, results, checks, {}, {}, {}, info, std::nullopt};
    if (fault) {
        content.fault = "The analysis stopped: " + RunFaultText(*fault) + ".";
        return content;
    }
    content.verdict = JudgeDesign(record, checks);
    content.plan = PlanOf(record, results);
    content.inputs = PackageInputs(record);
    return content;
}
