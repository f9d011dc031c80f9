#pragma once

#include "compliance/compliance_pass.h"
#include "output/project_page.h"

#include <nlohmann/json.hpp>

// The runs of a box in the order they were appended, each {"text", "bold", "red", "size",
// "centred"}, the text with its tabs and line ends as they stand.
nlohmann::ordered_json StyledTextJson(const StyledText& box);

// Adds the exception lists, the compliance lists, `RibbedOutCount` and the summary lines to
// `document`; a list the results screen would not make for this project is null.
void AddCompliancePassJson(const CompliancePass& pass, const ShownSummary& summary,
                           nlohmann::ordered_json& document);
