#include "output/label_text.h"

#include "common/number_pattern.h"

void SetNumber(FormModel& form, std::string_view name, double value, std::string_view pattern) {
    SetLabel(form, name, FormatNumber(value, pattern));
}

void SetPairArray(FormModel& form, std::string_view array, double shortValue, double longValue,
                  std::string_view pattern) {
    SetNumber(form, ArrayName(array, 0), shortValue, pattern);
    SetNumber(form, ArrayName(array, 1), longValue, pattern);
}

std::vector<std::string> PairArray(std::string_view array) {
    return {ArrayName(array, 0), ArrayName(array, 1)};
}
