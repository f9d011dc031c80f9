#pragma once

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

Real operator+(Real a, Real b);
Real operator-(Real a, Real b);
Real operator*(Real a, Real b);
Real operator/(Real a, Real b);

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
Real operator-(Real a);

Real Sqrt(Real x);
// x raised to y, as the engineer's "to the power": a negative base takes only whole exponents.
Real Power(Real x, Real y);
Real Abs(Real x);
Real Floor(Real x);
Real Lesser(Real a, Real b);

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
