#pragma once

#include "output/results_screen.h"

#include <nlohmann/json.hpp>

// The tab strips {"tabMain": {"count", "captions": {"1": ...}, "selected"}, "tabRibbed",
// "tabUniform"}, captions with their blanks.
nlohmann::ordered_json ResultTabsJson(const ResultsScreen& screen);

// Every control of the screen in the order it was built: {"text", "visible", "bold", "red"}, and
// "checked" for a check box. A label's text is its caption, a styled list's its plain text.
nlohmann::ordered_json ResultControlsJson(const ResultsScreen& screen);
