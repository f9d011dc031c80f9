#pragma once

#include "shell/form_model.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/checked_math.h"

// Writing the results into the screen's labels: a label's text is its caption.

// A value the screen works out from the results (a prestress from a force and its section) that
// is too large for a number, or no number at all: FillResults stops there, as the analysis does
// at a fault, rather than show "Infinity".
struct ResultsValueFault {
    FaultKind kind;
};

// Where such a fault happened, as the messages name it after the fault's kind.
inline constexpr const char* ResultsValueFaultPlace =
    " in a value worked out for the results screen";

// The value in the number pattern; throws ResultsValueFault for a value that is not finite.
std::string ShownNumber(double value, std::string_view pattern);

inline void SetLabel(FormModel& form, std::string_view name, std::string text) {
    form[name].caption = std::move(text);
}

inline void ShowLabel(FormModel& form, std::string_view name, bool visible) {
    form[name].visible = visible;
}

// The value in the number pattern, as the label's whole text.
void SetNumber(FormModel& form, std::string_view name, double value, std::string_view pattern);

// A short and a long value into the array `name(0)`, `name(1)`.
void SetPairArray(FormModel& form, std::string_view array, double shortValue, double longValue,
                  std::string_view pattern);

// The control names of the array pair `name(0)`, `name(1)`.
std::vector<std::string> PairArray(std::string_view array);

// The Beta distances of a selected variables page: on expansive soil one row, on compressible
// soil the center down row and, with edge down, the edge down row (`values` items 2 and 3).
struct BetaDistances {
    double shortDirection = 0;
    double longDirection = 0;
    double centerDownShort = 0;
    double centerDownLong = 0;
    double edgeDownShort = 0;
    double edgeDownLong = 0;
};
void SetBetaRows(FormModel& form, std::string_view captions, std::string_view values,
                 std::int16_t soilType, std::int16_t clSettleState, const BetaDistances& beta);
