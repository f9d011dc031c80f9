#include "engine/checked_math.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

FaultKind faultOf(auto&& work) {
    try {
        work();
    } catch (const ArithmeticFault& fault) {
        return fault.kind;
    }
    ADD_FAILURE() << "no fault";
    return FaultKind::InvalidArgument;
}

} // namespace

TEST(CheckedMath, DivisionTellsDivisionByZeroFromZeroOverZero) {
    EXPECT_EQ(faultOf([] { return Real(1.5) / 0; }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([] { return Real(-2) / 0.0; }), FaultKind::DivisionByZero);
    // Zero over zero is the invalid operation reported as an overflow.
    EXPECT_EQ(faultOf([] { return Real(0) / 0; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return 0.0 / Real(-0.0); }), FaultKind::Overflow);
    EXPECT_EQ(double(Real(7) / 2), 3.5);
}

TEST(CheckedMath, ResultsBeyondTheRangeOfADoubleAreOverflows) {
    const double huge = std::numeric_limits<double>::max();
    EXPECT_EQ(faultOf([&] { return Real(huge) * 2; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return Real(huge) + huge; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return -huge - Real(huge); }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return Real(1e300) / 1e-300; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Power(10, 400); }), FaultKind::Overflow);
}

TEST(CheckedMath, RootsAndPowersOfNegativeNumbers) {
    EXPECT_EQ(faultOf([] { return Sqrt(-1e-9); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return Power(-16, 0.25); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { return Power(0, -1); }), FaultKind::DivisionByZero);
    // A whole exponent of a negative base is a plain product.
    EXPECT_EQ(double(Power(-2, 3)), -8.0);
    EXPECT_EQ(double(Power(16, 0.25)), 2.0);
}

TEST(CheckedMath, SixteenBitCountsOverflowAsSuch) {
    EXPECT_EQ(Sum16(32766, 1), 32767);
    EXPECT_EQ(faultOf([] { return Sum16(32767, 1); }), FaultKind::Overflow);
    EXPECT_EQ(Difference16(-32767, 1), -32768);
    EXPECT_EQ(faultOf([] { return Difference16(-32768, 1); }), FaultKind::Overflow);
}

TEST(CheckedMath, RoundingToACountIsToNearestWithTiesToEven) {
    EXPECT_EQ(Round16(4.5), 4);
    EXPECT_EQ(Round16(5.5), 6);
    EXPECT_EQ(Round16(-2.5), -2);
    EXPECT_EQ(Round16(2.5000001), 3);
    EXPECT_EQ(Round16(32767.4), 32767);
    EXPECT_EQ(faultOf([] { return Round16(32767.5); }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { return Round16(-32769); }), FaultKind::Overflow);
}

TEST(CheckedMath, OperationsKeepTheOrderWritten) {
    // (0.1 + 0.2) + 0.3 and 0.1 + (0.2 + 0.3) differ in the last bit; the first is written.
    const Real sum = Real(0.1) + 0.2 + 0.3;
    EXPECT_EQ(double(sum), (0.1 + 0.2) + 0.3);
    EXPECT_NE(double(sum), 0.1 + (0.2 + 0.3));
}
