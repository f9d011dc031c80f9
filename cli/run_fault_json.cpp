#include "cli/run_fault_json.h"

nlohmann::ordered_json RunFaultJson(const RunFault& fault) {
    nlohmann::ordered_json json;
    json["kind"] = FaultKindName(fault.kind);
    json["stage"] = fault.place == RunFaultPlace::Stage ? nlohmann::ordered_json(fault.stage)
                                                        : nlohmann::ordered_json(nullptr);
    return json;
}
