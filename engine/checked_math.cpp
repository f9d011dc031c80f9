#include "engine/checked_math.h"

#include <cmath>
#include <limits>

namespace {

Real finiteOrOverflow(double result) {
    if (!std::isfinite(result)) {
        throw ArithmeticFault{FaultKind::Overflow};
    }
    return result;
}

} // namespace

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

Real operator+(Real a, Real b) {
    return finiteOrOverflow(a.value() + b.value());
}
Real operator-(Real a, Real b) {
    return finiteOrOverflow(a.value() - b.value());
}
Real operator*(Real a, Real b) {
    return finiteOrOverflow(a.value() * b.value());
}
Real operator-(Real a) {
    return -a.value();
}

Real operator/(Real a, Real b) {
    if (b.value() == 0.0) {
        // Zero over zero is the invalid operation that the floating point unit reports as an
        // overflow; anything else over zero is a division by zero.
        throw ArithmeticFault{a.value() == 0.0 ? FaultKind::Overflow : FaultKind::DivisionByZero};
    }
    return finiteOrOverflow(a.value() / b.value());
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
    return finiteOrOverflow(std::pow(x.value(), y.value()));
}

Real Abs(Real x) {
    return std::fabs(x.value());
}
Real Floor(Real x) {
    return std::floor(x.value());
}
Real Lesser(Real a, Real b) {
    return b.value() < a.value() ? b : a;
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
