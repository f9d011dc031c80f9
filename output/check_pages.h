#pragma once

#include "compliance/design_checks.h"
#include "engine/design_record.h"
#include "output/results_screen.h"

// The classic results page that shows the value of a check: its tab of `tabMain` and, on the
// ribbed or uniform thickness foundation, its tab of `tabRibbed` or `tabUniform`. The pages are
// those of the results screen after the analysis of `record`; nothing here changes a caption or
// a page.
struct CheckPage {
    int mainTab = 1;
    int foundationTab = 0; // 0 on the line load tab, which has no strip of its own
};

// Bending stresses, stiffness or deflection, shear and cracked capacity are on their mode's
// analysis page; the soil bearing and the residual prestress on the soil bearing and prestress
// page; the beams, spacings and concrete of the rules on the design summary; the rules of the
// uniform thickness foundation on its design summary, compliance and exception pages; the line
// load on its own tab.
CheckPage PageOfCheck(const ResultsScreen& screen, const DesignRecord& record,
                      const DesignCheck& check);

// Brings that page to the front, as a click on a summary line does.
void ShowCheckPage(ResultsScreen& screen, const DesignRecord& record, const DesignCheck& check);
