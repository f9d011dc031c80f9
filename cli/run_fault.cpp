#include "cli/run_fault.h"

nlohmann::ordered_json RunFaultJson(const RunFault& fault) {
    nlohmann::ordered_json json;
    json["kind"] = FaultKindName(fault.kind);
    json["stage"] = fault.place == RunFaultPlace::Stage ? nlohmann::ordered_json(fault.stage)
                                                        : nlohmann::ordered_json(nullptr);
    return json;
}

std::string RunFaultWithCause(const RunFault& fault) {
    if (fault.place == RunFaultPlace::DesignExceptions) {
        return FaultKindName(fault.kind) +
               " in the beam depth ratio of the design exceptions: a direction has no beam "
               "group with both a depth and a quantity";
    }
    return RunFaultText(fault);
}
