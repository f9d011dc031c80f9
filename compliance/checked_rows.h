#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

#include <cstdint>

// The one table of values the analysis holds against their limits. The classic compliance
// lists, the analysis pages of the results screen and the check table all read these rows, so
// that a value, its limit and the comparison between them are written down once. A row does not
// decide how a list shows or counts it: the lists keep their own habits.

// What a row checks. Each item has its comparison; every comparison allows equality.
enum class RowItem {
    Tension,             // bending stress, ksi, within when at least the allowable (both negative)
    Compression,         // bending stress, ksi, within when at most the allowable
    Stiffness,           // required moment of inertia at most the available, in^4
    Deflection,          // actual deflection at most the allowable, in
    Shear,               // shear stress at most the allowable, psi
    CrackedCapacity,     // 0.9 moment at most the cracked section capacity, ft-k
    SoilBearing,         // decided by BearingSafety at least 1; pressure and allowable in psf
    LineLoadCompression, // stress with prestress at most the allowable compression, psi
    LineLoadTension,     // prestress less stress, ksi, at least the allowable tension
};

// A value and the name of the result or record field it is; an expression of a field where the
// value is converted to the unit it is compared in ("AllowCompression / 1000").
struct NamedValue {
    const char* name = "";
    double value = 0;
};

struct CheckedRow {
    RowItem item = RowItem::Tension;
    NamedValue value; // the demand
    NamedValue limit; // in the unit of the value
    // The analysis's percentage by which the value exceeds its limit, as the lists print it.
    double excess = 0;
    // Cracked capacity: 0 when the section has no tendons on its tension side and the capacity
    // could not be calculated.
    std::int16_t valid = 1;
    // Soil bearing: the allowable pressure over the pressure, which decides the check.
    double safety = 0;
};

// The comparison of the row's item, equality within; a cracked row compares its numbers whether
// or not the capacity could be calculated.
bool RowWithinLimit(const CheckedRow& row);

// The rows of one direction of an analysis mode. Lift modes check stiffness and cracked
// capacity, down modes deflection and no cracked capacity (left at its defaults there).
struct DirectionRows {
    CheckedRow tension;
    CheckedRow compression;
    CheckedRow demand; // stiffness in lift modes, deflection in down modes
    CheckedRow shear;
    CheckedRow cracked;
};

struct ModeRows {
    DirectionRows shortDirection;
    DirectionRows longDirection;
};

// The fibre in tension is the top in center lift and edge down, the bottom in edge lift and
// center down.
ModeRows CenterLiftRows(const ResultsRecord& r);
ModeRows EdgeLiftRows(const ResultsRecord& r);
ModeRows CenterDownRows(const ResultsRecord& r);
ModeRows EdgeDownRows(const ResultsRecord& r);

ModeRows UniformCenterLiftRows(const ResultsRecord& r);
ModeRows UniformEdgeLiftRows(const ResultsRecord& r);
ModeRows UniformCenterDownRows(const ResultsRecord& r);
ModeRows UniformEdgeDownRows(const ResultsRecord& r);

// The soil pressure against `ExpBearing` on expansive soil (`SoilType` 0) and `CompBearing`
// otherwise, as the analysis compared them.
CheckedRow SoilBearingRow(const DesignRecord& record, const ResultsRecord& r);

struct LineLoadRows {
    CheckedRow compression;
    CheckedRow tension;
};

// The line load on the ribbed foundation's slab, and on the uniform thickness slab, each judged
// on its own stresses.
LineLoadRows RibbedLineLoadRows(const ResultsRecord& r);
LineLoadRows UniformLineLoadRows(const ResultsRecord& r);
