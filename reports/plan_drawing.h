#pragma once

#include "plan/foundation_plan.h"
#include "reports/drawing_marks.h"
#include "reports/section_drawing.h"

#include <string>
#include <vector>

// The plan drawing of the foundation on any drawing surface, fitted to the box it is given. It
// draws what the plan model holds and works nothing out of the design itself.

// The plan to scale: the slab, the beams filled by type, the slab tendons as thin dashed lines,
// the overall sizes, the clear gap and the analysis beam spacing of each direction dimensioned,
// the two directions named, the legend and the notes. A plan that cannot be drawn shows its
// reason instead. Gives the plan's scale in twips to the foot, 0 when it is not drawn. A plan
// for paper is drawn at the engineer's scale (1 in = 10, 15, 20, 30, 40 ... ft) next below the
// largest that fits.
enum class PlanFit { Exact, EngineersScale };
double DrawFoundationPlan(DrawingSurface& surface, const FoundationPlan& plan,
                          const DrawingBox& box, PlanFit fit = PlanFit::Exact);

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
