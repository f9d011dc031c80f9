#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"

#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <ostream>

// A 40 x 60 ft rectangle with a 4 in slab, seven 12 x 24 in beams across the short direction and
// five across the long, one tendon in each beam, 3000 psi concrete, 1/2 in strands, prestress by
// force ratio 0.05 ksi, friction by the manual's method, beam spacing from the average. Every
// value the tests expect of it was worked out by hand in exact fractions.
inline DesignRecord SmallRibbedRecord() {
    DesignRecord r;
    r.Fpc = 3000, r.Ec = 1500000, r.UW = 145, r.Fpu = 270;
    r.TendType = 2, r.TendArea = 0.153, r.TendDiam = 0.5;
    r.SlabRefType = 2, r.ForceShort = 0.05, r.ForceLong = 0.05;
    r.SlabThick = 4, r.RectWidth = 40, r.RectLength = 60;
    r.QS1 = 7, r.DS1 = 24, r.WS1 = 12, r.TS1 = 1, r.CS1 = 3, r.DS2 = 24, r.WS2 = 12;
    r.QL1 = 5, r.DL1 = 24, r.WL1 = 12, r.TL1 = 1, r.CL1 = 3, r.DL2 = 24, r.WL2 = 12;
    r.BeamSpacing = 1;
    r.SoilType = 0, r.ExpBearing = 2000, r.CompBearing = 1500, r.Es = 1000;
    r.SGFC = 0.75, r.ULoad = 40, r.TotalLoad = 1500, r.Subgradetype = 0, r.Prestress = 15;
    return r;
}

// The whole analysis of `record` into a fresh results record.
ResultsRecord Analysed(DesignRecord record, EngineSettings settings = {});

// Equal to 12 significant digits: the hand values are exact fractions, the engine's are
// doubles evaluated operation by operation.
#define EXPECT_CLOSE(actual, expected)                                                             \
    EXPECT_NEAR((actual), (expected), std::fabs(expected) * 1e-12 + 1e-300) << #actual

// Expects each named result to agree with its value to 10 significant digits.
struct NamedValue {
    const char* name;
    double value;
};
void ExpectTenDigits(const ResultsRecord& results, std::initializer_list<NamedValue> expected);

// Failures show the record fields by name.
void PrintTo(const DesignRecord& record, std::ostream* out);
void PrintTo(const ResultsRecord& results, std::ostream* out);
