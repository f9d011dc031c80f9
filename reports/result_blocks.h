#pragma once

#include "compliance/mode_values.h"
#include "reports/page_writer.h"

#include <cstdint>
#include <string>

// The blocks that the results of analysis of both foundations share: friction, moments,
// stiffness, shear, cracked capacity and deflection, each from the values of its analysis mode.

inline constexpr const char* BetaNote = "    (Bending stresses calculated using prestress at Beta)";
inline constexpr const char* CompressibleBetaNote =
    "  (Stresses calculated using prestress at Beta)";

std::string F(double value, const char* pattern);

void BetweenBlocks(PageWriter& w);

// How the subgrade friction was found.
std::string FrictionLine(std::int16_t subgradeType);

// The center lift moments, whose labels both follow the long direction's em = 5 ft flag.
void CenterLiftMoments(PageWriter& w, double momentShort, double momentLong, const char* em5);
void Moments(PageWriter& w, double momentShort, double momentLong);

// A lift mode's available and required moments of inertia.
struct Stiffness {
    const char* heading;
    double coefficient;
    const ModeValues& values;
    std::string basisShort, basisLong;
};
void StiffnessBlock(PageWriter& w, const Stiffness& s);

// A mode's shear forces (named apart: some pages print another mode's) and its shear stresses.
struct Shear {
    const char* heading;
    const char* shortLabel; // "Maximum Shear, Short Direction." on some pages
    double forceShort, forceLong;
    const ModeValues& values;
};
void ShearBlock(PageWriter& w, const Shear& s);

void CrackedBlock(PageWriter& w, const char* heading, const ModeValues& values);

// A down mode's allowable and actual differential deflections.
struct Deflection {
    const char* heading;
    double coefficient;
    const char* basisLabel;
    std::string basisShort, basisLong;
    const char* allowLabel;
    const char* actualLabel;
    const ModeValues& values;
};
void DeflectionBlock(PageWriter& w, const Deflection& d);

// A pair of center down and edge down values in one column: "12.3 / 10.1".
std::string DownPair(double centerDown, double edgeDown, const char* pattern);
