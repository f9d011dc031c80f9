#include "cli/results_json.h"

#include "output/compliance_pages.h"

#include <string>

namespace {

nlohmann::ordered_json TabStripJson(const TabStrip& strip) {
    nlohmann::ordered_json json;
    json["count"] = strip.count();
    nlohmann::ordered_json captions = nlohmann::ordered_json::object();
    for (int tab = 1; tab <= strip.count(); ++tab) {
        captions[std::to_string(tab)] = strip.captions[static_cast<std::size_t>(tab - 1)];
    }
    json["captions"] = std::move(captions);
    json["selected"] = strip.selected;
    return json;
}

} // namespace

nlohmann::ordered_json ResultTabsJson(const ResultsScreen& screen) {
    return {{"tabMain", TabStripJson(screen.tabMain)},
            {"tabRibbed", TabStripJson(screen.tabRibbed)},
            {"tabUniform", TabStripJson(screen.tabUniform)}};
}

nlohmann::ordered_json ResultControlsJson(const ResultsScreen& screen) {
    nlohmann::ordered_json controls = nlohmann::ordered_json::object();
    for (const Control& control : screen.form.controls()) {
        const bool list = control.name.starts_with("rtb");
        nlohmann::ordered_json json;
        json["text"] = list ? PlainText(StyledList(screen, control.name)) : control.caption;
        json["visible"] = control.visible;
        json["bold"] = control.bold;
        json["red"] = control.red;
        if (control.name.starts_with("chk")) {
            json["checked"] = control.checked;
        }
        controls[control.name] = std::move(json);
    }
    return controls;
}
