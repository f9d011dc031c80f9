#include "output/label_text.h"

#include "common/number_pattern.h"

#include <cmath>

std::string ShownNumber(double value, std::string_view pattern) {
    if (std::isnan(value)) {
        throw ResultsValueFault{FaultKind::InvalidArgument};
    }
    if (std::isinf(value)) {
        throw ResultsValueFault{FaultKind::Overflow};
    }
    return FormatNumber(value, pattern);
}

void SetNumber(FormModel& form, std::string_view name, double value, std::string_view pattern) {
    SetLabel(form, name, ShownNumber(value, pattern));
}

void SetPairArray(FormModel& form, std::string_view array, double shortValue, double longValue,
                  std::string_view pattern) {
    SetNumber(form, ArrayName(array, 0), shortValue, pattern);
    SetNumber(form, ArrayName(array, 1), longValue, pattern);
}

std::vector<std::string> PairArray(std::string_view array) {
    return {ArrayName(array, 0), ArrayName(array, 1)};
}

void SetBetaRows(FormModel& form, std::string_view captions, std::string_view values,
                 std::int16_t soilType, std::int16_t clSettleState, const BetaDistances& beta) {
    const bool edgeDownRow = soilType != 0 && clSettleState == 1;
    if (soilType != 0) {
        SetLabel(form, ArrayName(captions, 0), "Beta Distance (Center Down) :");
        SetPairArray(form, values, beta.centerDownShort, beta.centerDownLong, "#,##0.00");
        if (edgeDownRow) {
            SetLabel(form, ArrayName(captions, 1), "Beta Distance  (Edge Down) :");
            SetNumber(form, ArrayName(values, 2), beta.edgeDownShort, "#,##0.00");
            SetNumber(form, ArrayName(values, 3), beta.edgeDownLong, "#,##0.00");
        }
    } else {
        SetLabel(form, ArrayName(captions, 0), "Beta Distance :");
        SetPairArray(form, values, beta.shortDirection, beta.longDirection, "#,##0.00");
    }
    for (const std::string& name :
         {ArrayName(captions, 1), ArrayName(values, 2), ArrayName(values, 3)}) {
        ShowLabel(form, name, edgeDownRow);
    }
}
