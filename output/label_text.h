#pragma once

#include "shell/form_model.h"

#include <string>
#include <string_view>
#include <vector>

// Writing the results into the screen's labels: a label's text is its caption.

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
