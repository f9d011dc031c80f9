#pragma once

#include "storage_test_support.h"

// A project with every option at its smallest: standard tendon, prestress force ratio, no slab
// cover, average beam spacing, expansive soil, no dead load, no user subgrade friction, no line
// load. Fields its file does not hold keep the values of PreviousProject().
inline DesignRecord MinimumProject() {
    DesignRecord r = PreviousProject();
    // clang-format off
    SetFields(r, {{"ProjName", "Smith Residence"}, {"ProjDate", "March 4, 2024"},
                  {"ProjNum", "24-117"}, {"ProjEng", "R. Alvarez, P.E."},
                  {"ProjGeoRep", "Terracon Consultants"}, {"ProjGeoNum", "G-5521"},
                  {"ProjGeoDate", "February 12, 2024"}, {"FlatSlab", 1},
                  // material
                  {"MatLabel", "3000 psi concrete"}, {"Fpc", 3000}, {"Ec", 1500000}, {"UW", 145},
                  {"Fpu", 270}, {"TendType", 1},
                  // slab
                  {"RectLabel", "Rect A"}, {"SlabRefType", 2}, {"ForceShort", 0.05},
                  {"ForceLong", 0.075}, {"SlabTenCovType", 0}, {"SlabThick", 4},
                  {"RectWidth", 40.5}, {"RectLength", 62.25},
                  // beams
                  {"QS1", 5}, {"QS2", 1}, {"QL1", 4}, {"QL2", 0}, {"DS1", 24}, {"DS2", 30},
                  {"DL1", 26}, {"DL2", 0}, {"WS1", 12}, {"WS2", 14}, {"WL1", 10}, {"WL2", 0},
                  {"TS1", 1}, {"TS2", 2}, {"TL1", 1.5}, {"TL2", 0}, {"CS1", 3}, {"CS2", 3.25},
                  {"CL1", 2.75}, {"CL2", 0}, {"BeamSpacing", 1}, {"SixFtRule", 1},
                  // soil
                  {"SoilLabel", "Clay, PI 35"}, {"SoilType", 0}, {"ExpBearing", 1500},
                  {"EmCenter", 5.5}, {"EmEdge", 3.2}, {"YmCenter", 1.3}, {"YmEdge", 0.75},
                  {"CompBearing", 2000}, {"Settle", 1}, {"Es", 1000},
                  // loads
                  {"ULoad", 40}, {"TotalLoad", 1200}, {"UseDeadLoad", 0}, {"DefCenter", 360},
                  {"DefEdge", 720}, {"DefSettle", 480}, {"Subgradetype", 1}, {"Prestress", 15},
                  {"SGFC", 0.6},
                  // line load
                  {"LineLoadType", 0}});
    // clang-format on
    return r;
}

// Every option that adds lines turned on. The slab is given by tendon counts, so its file
// holds no force ratio pair: that pair keeps the values of PreviousProject().
inline DesignRecord EveryOptionProject() {
    DesignRecord r = MinimumProject();
    // clang-format off
    SetFields(r, {{"ForceShort", 99.5}, {"ForceLong", 99.5}, {"TendType", 3}, {"TendArea", 0.217},
                  {"SlabRefType", 0}, {"NumSlabTenShort", 12}, {"NumSlabTenLong", -1},
                  {"SlabTenCovType", 1}, {"SlabTenCov", 1.5}, {"BeamSpacing", 0}, {"SMin", 6},
                  {"LMin", 8}, {"SMax", 12}, {"LMax", 15}, {"SoilType", 1}, {"CLSettleState", 1},
                  {"UseDeadLoad", 1}, {"DeadLoad", 600}, {"DefCLSettle", 240}, {"Subgradetype", 2},
                  {"UDSS", 10.5}, {"UDLS", 12}, {"UDSM", 8}, {"UDLM", -0.75}, {"LineLoadType", 1},
                  {"LineLoad", 1500}, {"DirLineLoad", "Long Direction"}, {"PreLineLoadType", 2},
                  {"UDPreLineLoad", 125}, {"Ks", 250}});
    // clang-format on
    return r;
}
