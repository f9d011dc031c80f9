#pragma once

#include "engine/design_record.h"
#include "plan/foundation_plan.h"
#include "reports/drawing_marks.h"

#include <string>
#include <vector>

// A plan sheet: the title, the plan and the typical sections on one page, as the command line
// writes it and the Plan view beside the results shows it.

// Whether a sheet tells the scale of its plan: a sheet that is printed at its size does, a
// drawing fitted to a window does not.
enum class SheetScale { NotShown, Printed };

// A whole sheet: its title lines at the top, the plan, and the typical sections below it; with
// SheetScale::Printed, the plan at an engineer's scale and "Plan scale: 1 in = N ft" at the top
// right.
void DrawPlanSheet(DrawingSurface& surface, const FoundationPlan& plan,
                   const std::vector<std::string>& titleLines, const DrawingBox& sheet,
                   SheetScale sheetScale = SheetScale::NotShown);

// The title lines of a plan sheet for a project: "FOUNDATION PLAN AND TYPICAL SECTIONS" and the
// project name with the rectangle's label, when there are any.
std::vector<std::string> PlanSheetTitle(const DesignRecord& record);
