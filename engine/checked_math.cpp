#include "engine/checked_math.h"

#include <cmath>
#include <limits>

std::string FaultKindName(FaultKind kind) {
    switch (kind) {
    case FaultKind::Overflow:
        return "overflow";
    case FaultKind::DivisionByZero:
        return "division by zero";
    case FaultKind::InvalidArgument:
        return "invalid argument";
    }
    return "unknown fault";
}

void ThrowArithmeticFault(FaultKind kind) {
    throw ArithmeticFault{kind};
}

Real Sqrt(Real x) {
    if (x.value() < 0.0) {
        throw ArithmeticFault{FaultKind::InvalidArgument};
    }
    return std::sqrt(x.value());
}

Real Power(Real x, Real y) {
    if (x.value() < 0.0 && std::trunc(y.value()) != y.value()) {
        throw ArithmeticFault{FaultKind::InvalidArgument};
    }
    if (x.value() == 0.0 && y.value() < 0.0) {
        throw ArithmeticFault{FaultKind::DivisionByZero};
    }
    return FiniteOrOverflow(std::pow(x.value(), y.value()));
}

namespace {
std::int16_t fitOrOverflow(long value) {
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        throw ArithmeticFault{FaultKind::Overflow};
    }
    return static_cast<std::int16_t>(value);
}
} // namespace

std::int16_t Sum16(std::int16_t a, std::int16_t b) {
    return fitOrOverflow(static_cast<long>(a) + static_cast<long>(b));
}

std::int16_t Difference16(std::int16_t a, std::int16_t b) {
    return fitOrOverflow(static_cast<long>(a) - static_cast<long>(b));
}

std::int16_t Round16(Real x) {
    // nearbyint rounds half to even in the default rounding mode.
    const double rounded = std::nearbyint(x.value());
    if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
          rounded <= std::numeric_limits<std::int16_t>::max())) {
        throw ArithmeticFault{FaultKind::Overflow};
    }
    return static_cast<std::int16_t>(rounded);
}

EngineFault::EngineFault(FaultKind kind, int stage)
    : std::runtime_error(FaultKindName(kind) + " in stage " + std::to_string(stage) +
                         " of the analysis"),
      m_kind(kind), m_stage(stage) {}
