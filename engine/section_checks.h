#pragma once

#include "engine/checked_math.h"

#include <cstdint>
#include <string>

// Formulas that the ribbed and the uniform thickness analyses share on both soils: the
// prestress terms of a fibre stress, the excess over an allowable, the allowable and actual
// shear stress, the length over which stiffness is judged, and the tendon force left at Beta.

// The prestress terms of one direction's fibre stresses. With UseBeta the force left at Beta
// on the section area; otherwise the average prestress at the center (psi).
struct PrestressTerms {
    bool useBeta;
    double forceNet;
    double area;
    double ecc;
    double psCenter;

    // The axial stress P/A, ksi.
    Real axial() const;
    // The stress of the eccentric force over the section modulus `S`, ksi.
    Real eccentric(Real S) const;
};

// A force or prestress that comes out negative is taken as 0.
void ClampAtZero(double& value);

// The camber of the eccentric tendon force over the stiffness length Beta, in:
// e x F x Beta^2 x 144 x 1000 / (2 x Ec x I).
Real PrestressDeflection(Real ecc, Real force0, Real beta, Real Ec, Real inertia);

// How far `value` exceeds `allowable`, in percent: (value / allowable - 1) x 100.
double Excess(double value, Real allowable);

// The concrete's shear strength 1.7 sqrt(f'c), plus a fifth of the prestress left after the
// maximum subgrade friction when there is any: the prestress only ever adds.
double AllowableShear(Real force, Real friction, Real area, Real fpc);

// Shear force per foot over the section width, carried by the beams alone over the equivalent
// depth, in psi.
double BeamShearStress(Real forcePerFoot, Real sectionWidthFt, std::int16_t beams, Real beamWidth,
                       Real depth);

// The length over which stiffness is judged: six Beta, or the side of the rectangle when six
// Beta is not below it. `basis` names which: "6*Beta", or the side's name ("Width", "Length").
struct StiffnessLength {
    double length;
    std::string basis;
};
StiffnessLength StiffnessLengthFor(Real beta, Real side, const char* sideName);

// The maximum subgrade friction of each direction. The manual's method (half the weight) and
// the full length drag (the whole weight) rest on the weight of the concrete alone and are the
// same in both directions; any other mode takes the user's values.
struct SubgradeFriction {
    double shortDirection;
    double longDirection;
};
SubgradeFriction SubgradeFrictionFor(std::int16_t subgradetype, Real sgfc, Real concreteWeight,
                                     double userShort, double userLong);

// The tendon force left at Beta from the edge, by the friction mode: the manual's method takes
// the friction over half the side, the full length drag over the side less Beta, a user value
// is taken off whole. Not clamped.
Real ForceAtBeta(std::int16_t subgradetype, Real force0, Real beta, Real friction, Real side,
                 Real userForce);
