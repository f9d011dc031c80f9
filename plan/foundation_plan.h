#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

#include <string>
#include <vector>

// The foundation rectangle as built, in feet on plan and inches in section, with its origin at
// the lower left corner: the length (the long side) runs to the right, the width (the short
// side) upwards. It does not draw anything: the report, the screen and the command line draw
// from it.

enum class PlanDirection { Short, Long };

// One beam at its place. Short direction beams run across the width and stand side by side along
// the length; long direction beams run along the length and stand side by side across the width.
// `from` and `to` are the places of the two faces of the beam, in feet, along the side across
// which the beams of its direction are spaced.
struct PlanBeam {
    PlanDirection direction = PlanDirection::Short;
    int type = 1; // 1 or 2
    double from = 0;
    double to = 0;
    double width = 0;   // in
    double depth = 0;   // in, from the top of the slab
    double tendons = 0; // per beam
    double cover = 0;   // in, from the bottom of the beam to the face of the tendon
};

// The slab tendons of one direction, as the analysis counts and spaces them. Short direction slab
// tendons run across the width like the short beams and stand along the length. `places` are
// their places in feet along that side. `known` is false when the count is not known yet (the
// slab's prestress is given as a stress or a force, and the design has not been analysed).
struct PlanSlabTendons {
    bool known = true;
    double count = 0;
    double spacing = 0; // ft, centre to centre
    std::vector<double> places;
};

// A section through the slab and one beam of a group, in inches. The slab tendon's depth is that
// of its centre from the top of the slab; the beam tendons stand at their cover above the bottom
// of the beam.
struct TypicalSection {
    PlanDirection direction = PlanDirection::Short;
    int type = 1;
    double slabThick = 0;
    double width = 0;
    double depth = 0;
    double tendons = 0;
    double cover = 0;
    double slabTendonDepth = 0;
    double tendonDiameter = 0;
};

struct FoundationPlan {
    double width = 0;     // RectWidth, ft
    double length = 0;    // RectLength, ft
    double slabThick = 0; // in
    // The short direction beams from left to right, then the long direction beams from bottom
    // to top.
    std::vector<PlanBeam> beams;
    // The clear gap between neighbouring beams of a direction, ft.
    double gapShort = 0;
    double gapLong = 0;
    // The beam spacing the analysis used, ft.
    double spacingShort = 0;
    double spacingLong = 0;
    PlanSlabTendons slabTendonsShort;
    PlanSlabTendons slabTendonsLong;
    // One for each beam group that has beams, in the order S1, S2, L1, L2.
    std::vector<TypicalSection> sections;
    // Why no drawing can be made of the record; empty when one can.
    std::string reason;
    // What the drawing should tell beside the geometry (a width typed greater than the length).
    std::vector<std::string> notes;
};

// The plan of the analysed design: the geometry from the record, the slab tendons, their depth
// and the analysis beam spacings from the results.
FoundationPlan PlanOf(const DesignRecord& record, const ResultsRecord& results);

// The beams of one direction on a side of `sideFt` feet, for `type1` beams of width1 inches and
// `type2` beams of width2 inches. In each direction the outer faces of the first and last beams
// lie on the edges and the clear gaps are equal. Type 1 beams take the two edge places when
// there are at least two, and type 2 beams are spread as evenly as possible over the places
// between; a single beam of one type is placed in the middle of the other type's beams. The
// other values of each beam are left as they are. Counts must be 0 or more.
std::vector<PlanBeam> LayOutBeams(double sideFt, int type1, double width1, int type2,
                                  double width2);

// The places along a side of `sideFt` feet of `count` slab tendons at `spacing`: a single one
// in the middle, more from 2 ft off the first edge at the spacing; none for a count below 1.
std::vector<double> SlabTendonPlaces(double sideFt, double count, double spacing);
