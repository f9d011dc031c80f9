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
// reason instead. Gives the plan's scale in twips to the foot, 0 when it is not drawn. A plan
// for paper is drawn at the engineer's scale (1 in = 10, 15, 20, 30, 40 ... ft) next below the
// largest that fits.
enum class PlanFit { Exact, EngineersScale };
double DrawFoundationPlan(DrawingSurface& surface, const FoundationPlan& plan,
                          const DrawingBox& box, PlanFit fit = PlanFit::Exact);

// A section through the slab and one beam of each group that has beams, side by side and all to
// one scale, dimensioned in inches: slab thickness, beam depth and width, the beam tendon's cover
// and the slab tendon's depth.
void DrawTypicalSections(DrawingSurface& surface, const FoundationPlan& plan,
                         const DrawingBox& box);

// Whether the typical sections can be drawn in the box at all: a narrow box holds the plan but
// not the sections with their dimensions.
bool TypicalSectionsFit(DrawingSurface& surface, const FoundationPlan& plan, const DrawingBox& box);

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
