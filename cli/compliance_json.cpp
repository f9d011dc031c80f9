#include "cli/compliance_json.h"

#include <string>

namespace {

nlohmann::ordered_json ListJson(nlohmann::ordered_json counters, const StyledText& box) {
    nlohmann::ordered_json list;
    list["counters"] = std::move(counters);
    list["runs"] = StyledTextJson(box);
    return list;
}

nlohmann::ordered_json ExceptionsJson(const ExceptionList& list) {
    nlohmann::ordered_json json;
    json["count"] = list.count;
    json["runs"] = StyledTextJson(list.box);
    return json;
}

// The summary lines of one group as the project page shows them, one below the other; null for
// a hidden group.
nlohmann::ordered_json SummaryJson(const std::vector<SummaryLine>& lines) {
    if (lines.empty()) {
        return nullptr;
    }
    std::string text;
    for (const SummaryLine& line : lines) {
        text += (text.empty() ? "" : "\n") + line.text;
    }
    return text;
}

} // namespace

nlohmann::ordered_json StyledTextJson(const StyledText& box) {
    nlohmann::ordered_json runs = nlohmann::ordered_json::array();
    for (const StyledRun& run : box.runs) {
        runs.push_back({{"text", run.text},
                        {"bold", run.bold},
                        {"red", run.red},
                        {"size", run.size},
                        {"centred", run.centred}});
    }
    return runs;
}

void AddCompliancePassJson(const CompliancePass& pass, const ShownSummary& summary,
                           nlohmann::ordered_json& document) {
    nlohmann::ordered_json& exceptions = document["exceptions"];
    exceptions["ribbed"] = ExceptionsJson(pass.ribbedExceptions);
    exceptions["uniform"] = pass.uniformExceptions ? ExceptionsJson(*pass.uniformExceptions)
                                                   : nlohmann::ordered_json(nullptr);

    nlohmann::ordered_json& compliance = document["compliance"];
    const RibbedCounters& rc = pass.ribbed.counters;
    compliance["ribbed"] = ListJson({{"centerLift", rc.centerLift},
                                     {"edgeLift", rc.edgeLift},
                                     {"centerDown", rc.centerDown},
                                     {"edgeDown", rc.edgeDown},
                                     {"bearing", rc.bearing},
                                     {"cracked", rc.cracked}},
                                    pass.ribbed.box);
    compliance["uniform"] = nullptr;
    if (pass.uniform) {
        const UniformCounters& uc = pass.uniform->counters;
        compliance["uniform"] = ListJson({{"centerLift", uc.centerLift},
                                          {"edgeLift", uc.edgeLift},
                                          {"centerDown", uc.centerDown},
                                          {"edgeDown", uc.edgeDown}},
                                         pass.uniform->box);
    }
    compliance["lineLoad"] = nullptr;
    if (pass.lineLoad) {
        const LineLoadCounters& lc = pass.lineLoad->counters;
        compliance["lineLoad"] =
            ListJson({{"ribbed", lc.ribbed}, {"uniform", lc.uniform}}, pass.lineLoad->box);
    }

    document["RibbedOutCount"] = pass.RibbedOutCount;
    document["summary"] = {{"RibbedSummary", SummaryJson(summary.ribbed)},
                           {"UTFSummary", SummaryJson(summary.uniform)},
                           {"LLSummary", SummaryJson(summary.lineLoad)}};
}
