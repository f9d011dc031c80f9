#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"
#include "plan/foundation_plan.h"
#include "shell/form_model.h"

#include <string>

// The plan beside the slab and beam pages, drawn from the values as they are typed. It does not
// draw: the view paints what it holds.

// The plan of the values on the input screen as they stand, over `record` for what the screen
// does not hold. The analysis beam spacings and, when the slab tendons are given as a count, the
// slab tendons are worked out as the analysis would; slab tendons given as a stress or a force
// are not known before the analysis. A value that is blank or no number gives no plan: its
// reason names the field by its caption.
FoundationPlan PlanOfTypedValues(const FormModel& form, const DesignRecord& record);

// What the panel shows: the last good drawing, and while the values as typed make none, the
// reason why, over that drawing greyed.
struct LivePlan {
    FoundationPlan drawing;
    bool drawn = false; // a good drawing has been made
    std::string reason; // empty while the drawing shows the values as typed
};

// Brings the panel up to date with the screen after an edit.
void UpdateLivePlan(LivePlan& live, const FormModel& form, const DesignRecord& record);

// Whether the panel's drawing is an earlier one, to be shown greyed under the reason.
inline bool LivePlanGreyed(const LivePlan& live) {
    return !live.reason.empty();
}

// The plan of the analysed design for the view beside the results: the record and results of
// the last analysis, or, while there are none to show, the reason.
FoundationPlan AnalysedPlan(const DesignRecord& record, const ResultsRecord& results,
                            bool analysed);
