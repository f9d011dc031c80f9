#include "engine/section_checks.h"

Real PrestressTerms::axial() const {
    if (useBeta) {
        return Real(forceNet) / area;
    }
    return Real(psCenter) / 1000;
}

Real PrestressTerms::eccentric(Real S) const {
    if (useBeta) {
        return (Real(ecc) * forceNet) / S;
    }
    return (((Real(psCenter) * area) * ecc) / S) / 1000;
}

void ClampAtZero(double& value) {
    if (value < 0) {
        value = 0;
    }
}

Real PrestressDeflection(Real ecc, Real force0, Real beta, Real Ec, Real inertia) {
    return ecc * force0 * Power(beta, 2) * 144 * 1000 / (2 * Ec * inertia);
}

double Excess(double value, Real allowable) {
    return (Real(value) / allowable - 1) * 100;
}

double AllowableShear(Real force, Real friction, Real area, Real fpc) {
    const Real netForce = force - friction;
    if (netForce > 0) {
        return (netForce * 0.2 * 1000) / area + Sqrt(fpc) * 1.7;
    }
    return Sqrt(fpc) * 1.7;
}

double BeamShearStress(Real forcePerFoot, Real sectionWidthFt, std::int16_t beams, Real beamWidth,
                       Real depth) {
    return ((forcePerFoot * sectionWidthFt) / (beams * beamWidth * depth)) * 1000;
}

StiffnessLength StiffnessLengthFor(Real beta, Real side, const char* sideName) {
    if (beta * 6 < side) {
        return {beta * 6, "6*Beta"};
    }
    return {side, sideName};
}

SubgradeFriction SubgradeFrictionFor(std::int16_t subgradetype, Real sgfc, Real concreteWeight,
                                     double userShort, double userLong) {
    switch (subgradetype) {
    case 0: {
        const double friction = sgfc * concreteWeight / 2;
        return {friction, friction};
    }
    case 1: {
        const double friction = sgfc * concreteWeight;
        return {friction, friction};
    }
    default:
        return {userShort, userLong};
    }
}

Real ForceAtBeta(std::int16_t subgradetype, Real force0, Real beta, Real friction, Real side,
                 Real userForce) {
    switch (subgradetype) {
    case 0:
        return force0 - (beta * friction) / (side / 2);
    case 1:
        return force0 - ((side - beta) * friction) / side;
    default:
        return force0 - userForce;
    }
}
