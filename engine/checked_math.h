#pragma once

#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <type_traits>

// Arithmetic that stops at the first step a design calculation must not take: a division by
// zero, a result too large for a double, the square root of a negative number or a fractional
// power of a negative base, and a 16-bit count that leaves its range. The analysis never carries
// an infinity or a NaN into a result; it ends at the statement that would have made one.
//
// It does not decide in which stage a fault happened: the analysis run adds that.

enum class FaultKind { Overflow, DivisionByZero, InvalidArgument };

// The name of a fault kind as the engineer reads it: "overflow", "division by zero",
// "invalid argument".
std::string FaultKindName(FaultKind kind);

// Thrown by the operations below at the statement that meets the fault.
struct ArithmeticFault {
    FaultKind kind;
};

// A double whose every operation is checked. Formulas written with it read as the engineering
// they are and are evaluated in exactly the order written. At least one operand of every
// operation must be a Real; a plain double expression inside a formula is not checked.
class Real {
  public:
    constexpr Real(double value) : m_value(value) {}
    constexpr operator double() const { return m_value; }
    constexpr double value() const { return m_value; }

  private:
    double m_value;
};

// Throws the fault; kept out of line so that the checked operations below stay small enough to
// be inlined into the formulas.
[[noreturn]] void ThrowArithmeticFault(FaultKind kind);

// The four operations are inline: each is one machine operation and its check, and a formula
// evaluates many of them. Inlining changes no result, since every step is still rounded on its
// own as written (the build allows no fused multiply-add).
inline Real FiniteOrOverflow(double result) {
    if (!std::isfinite(result)) {
        ThrowArithmeticFault(FaultKind::Overflow);
    }
    return result;
}

inline Real operator+(Real a, Real b) {
    return FiniteOrOverflow(a.value() + b.value());
}
inline Real operator-(Real a, Real b) {
    return FiniteOrOverflow(a.value() - b.value());
}
inline Real operator*(Real a, Real b) {
    return FiniteOrOverflow(a.value() * b.value());
}
inline Real operator/(Real a, Real b) {
    if (b.value() == 0.0) {
        // Zero over zero is the invalid operation that the floating point unit reports as an
        // overflow; anything else over zero is a division by zero.
        ThrowArithmeticFault(a.value() == 0.0 ? FaultKind::Overflow : FaultKind::DivisionByZero);
    }
    return FiniteOrOverflow(a.value() / b.value());
}

// A plain number beside a Real (a count, a literal) is taken as a Real, so that the operation
// is checked and the order of evaluation stays as written.
template <typename T>
concept PlainNumber = std::is_arithmetic_v<T>;

template <PlainNumber T> Real operator+(Real a, T b) {
    return a + Real(static_cast<double>(b));
}
template <PlainNumber T> Real operator+(T a, Real b) {
    return Real(static_cast<double>(a)) + b;
}
template <PlainNumber T> Real operator-(Real a, T b) {
    return a - Real(static_cast<double>(b));
}
template <PlainNumber T> Real operator-(T a, Real b) {
    return Real(static_cast<double>(a)) - b;
}
template <PlainNumber T> Real operator*(Real a, T b) {
    return a * Real(static_cast<double>(b));
}
template <PlainNumber T> Real operator*(T a, Real b) {
    return Real(static_cast<double>(a)) * b;
}
template <PlainNumber T> Real operator/(Real a, T b) {
    return a / Real(static_cast<double>(b));
}
template <PlainNumber T> Real operator/(T a, Real b) {
    return Real(static_cast<double>(a)) / b;
}
inline Real operator-(Real a) {
    return -a.value();
}

Real Sqrt(Real x);
// x raised to y, as the engineer's "to the power": a negative base takes only whole exponents.
// Out of line on purpose: the value must always come from the C library's pow at run time, never
// from the compiler working out a power of two constants in its own, differently rounded way.
Real Power(Real x, Real y);
inline Real Abs(Real x) {
    return std::fabs(x.value());
}
inline Real Floor(Real x) {
    return std::floor(x.value());
}
inline Real Lesser(Real a, Real b) {
    return b.value() < a.value() ? b : a;
}

// 16-bit counts: beam quantities and their sums.
std::int16_t Sum16(std::int16_t a, std::int16_t b);
std::int16_t Difference16(std::int16_t a, std::int16_t b);
// Rounds to the nearest whole number, ties to even, into a 16-bit count.
std::int16_t Round16(Real x);

// A fault of the analysis: its kind and the stage (1 to 11, in the order of the run) where it
// ended the run.
class EngineFault : public std::runtime_error {
  public:
    EngineFault(FaultKind kind, int stage);
    FaultKind kind() const { return m_kind; }
    int stage() const { return m_stage; }

  private:
    FaultKind m_kind;
    int m_stage;
};
