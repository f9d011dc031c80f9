#pragma once

#include "plan/foundation_plan.h"
#include "reports/drawing_marks.h"

#include <string>
#include <vector>

// The drawings of the foundation on any drawing surface, each fitted to the box it is given.
// They draw what the plan model holds and work nothing out of the design themselves.

// The plan to scale: the slab, the beams filled by type, the slab tendons as thin dashed lines,
// the overall sizes, the clear gap and the analysis beam spacing of each direction dimensioned,
// the two directions named, the legend and the notes. A plan that cannot be drawn shows its
// reason instead.
void DrawFoundationPlan(DrawingSurface& surface, const FoundationPlan& plan, const DrawingBox& box);

// A section through the slab and one beam of each group that has beams, side by side and all to
// one scale, dimensioned in inches: slab thickness, beam depth and width, the beam tendon's cover
// and the slab tendon's depth.
void DrawTypicalSections(DrawingSurface& surface, const FoundationPlan& plan,
                         const DrawingBox& box);

// A whole sheet: its title lines at the top, the plan, and the typical sections below it.
void DrawPlanSheet(DrawingSurface& surface, const FoundationPlan& plan,
                   const std::vector<std::string>& titleLines, const DrawingBox& sheet);

// The title lines of a plan sheet for a project: "FOUNDATION PLAN AND TYPICAL SECTIONS" and the
// project name with the rectangle's label, when there are any.
std::vector<std::string> PlanSheetTitle(const DesignRecord& record);

// The fills and colour of the drawings, shared with the legend of the screen.
inline constexpr Colour Type1BeamFill{110, 110, 110};
inline constexpr Colour Type2BeamFill{190, 190, 190};
inline constexpr Colour TendonColour{0, 70, 190};
inline constexpr Colour ConcreteFill{228, 228, 228};

// Line widths in the surface's units (a printer's dots): dimensions, slab tendons, the outline
// of the slab on plan and of a section.
inline constexpr int DimensionLineWidth = 2;
inline constexpr int TendonLineWidth = 3;
inline constexpr int OutlineWidth = 6;
inline constexpr int SectionOutlineWidth = 4;
