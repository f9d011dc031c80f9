#include "output/check_text.h"

#include "common/number_pattern.h"
#include "compliance/check_names.h"

#include <cmath>
#include <string_view>

namespace {

bool Whole(const std::optional<CheckQuantity>& q) {
    return !q || q->value == std::floor(q->value);
}

std::string_view PatternFor(const CheckQuantity& q, const DesignCheck& check) {
    const std::string_view unit = q.unit == nullptr ? "" : q.unit;
    if (unit == "ksi") {
        return "#,##0.000";
    }
    if (unit == "in" || unit == "ft") {
        return "#,##0.00";
    }
    if (unit == "ft-k") {
        return "#,##0.0";
    }
    if (unit.empty()) {
        // A count is whole; a ratio of depths and its limit show three decimals.
        return Whole(check.demand) && Whole(check.limit) ? "#,##0" : "#,##0.000";
    }
    return "#,##0"; // psi, psf, in^4
}

} // namespace

std::string CheckItemText(const DesignCheck& check) {
    std::string text = check.item;
    if (check.direction != CheckDirection::None) {
        text += ", " + std::string(DirectionTitle(check.direction));
    }
    return text;
}

std::string CheckQuantityText(const std::optional<CheckQuantity>& quantity,
                              const DesignCheck& check) {
    return quantity ? FormatNumber(quantity->value, PatternFor(*quantity, check)) : "-";
}

std::string CheckUnitText(const DesignCheck& check) {
    const std::optional<CheckQuantity>& side = check.demand ? check.demand : check.limit;
    return side && side->unit != nullptr ? side->unit : "";
}

std::string CheckRatioText(const DesignCheck& check) {
    return check.ratio ? FormatNumber(*check.ratio, "#,##0.00") : "-";
}

std::string CheckStatusText(CheckStatus status) {
    switch (status) {
    case CheckStatus::Ok:
        return "OK";
    case CheckStatus::Ng:
        return "NG";
    case CheckStatus::NotCalculated:
        return "NOT CALCULATED";
    }
    return "";
}
