#pragma once

#include "plan/foundation_plan.h"
#include "reports/drawing_marks.h"

// The typical sections of the foundation on any drawing surface, fitted to the box they are
// given. They draw what the plan model holds and work nothing out of the design themselves.

// A section through the slab and one beam of each group that has beams, side by side and all to
// one scale, dimensioned in inches: slab thickness, beam depth and width, the beam tendon's cover
// and the slab tendon's depth.
void DrawTypicalSections(DrawingSurface& surface, const FoundationPlan& plan,
                         const DrawingBox& box);

// Whether the typical sections can be drawn in the box at all: a narrow box holds the plan but
// not the sections with their dimensions.
bool TypicalSectionsFit(DrawingSurface& surface, const FoundationPlan& plan, const DrawingBox& box);
