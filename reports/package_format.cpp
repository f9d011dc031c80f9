#include "reports/package_format.h"

#include "common/number_pattern.h"
#include "common/number_text.h"

namespace {

// The part of a unit before its power and the power: "in^4" is "in" and "4".
struct UnitParts {
    std::string base;
    std::string power;
};

UnitParts SplitUnit(const std::string& unit) {
    const std::size_t caret = unit.find('^');
    if (caret == std::string::npos) {
        return {unit, {}};
    }
    return {unit.substr(0, caret), unit.substr(caret + 1)};
}

// The share of the font size a superscript is drawn at, and how far it is raised.
constexpr double PowerShare = 0.65;
constexpr double PowerRaise = 0.25;

} // namespace

std::string PackageNumber(double value, const std::string& unit) {
    const std::string base = SplitUnit(unit).base;
    if (unit == "ksi") {
        return FormatNumber(value, "#,##0.000");
    }
    if (unit == "psi" || unit == "psf" || unit == "lb/ft" || unit == "pcf" || unit == "pci" ||
        unit == "count" || (base == "in" && !SplitUnit(unit).power.empty())) {
        return FormatNumber(value, "#,##0");
    }
    if (unit == "ft-k/ft" || unit == "ft-k" || unit == "k/ft" || unit == "kips" || unit == "in" ||
        unit == "ft" || unit == "ratio") {
        return FormatNumber(value, "#,##0.00");
    }
    // A coefficient in its shortest full form, with the nought before the point that a reader
    // of a calculation expects: 0.75, not .75.
    std::string text = GeneralNumberText(value);
    if (text.rfind(".", 0) == 0) {
        text.insert(0, "0");
    } else if (text.rfind("-.", 0) == 0) {
        text.insert(1, "0");
    }
    return text;
}

std::string UnitShown(const std::string& unit) {
    if (unit == "count" || unit == "ratio") {
        return {};
    }
    return unit;
}

double UnitWidth(DrawingSurface& surface, const std::string& unit) {
    const UnitParts parts = SplitUnit(UnitShown(unit));
    double width = surface.TextWidth(parts.base);
    if (!parts.power.empty()) {
        // The width at the smaller size is a share of the width at the present one.
        width += surface.TextWidth(parts.power) * PowerShare;
    }
    return width;
}

double DrawUnit(DrawingSurface& surface, double x, double y, const std::string& unit,
                double points) {
    const UnitParts parts = SplitUnit(UnitShown(unit));
    if (parts.base.empty() && parts.power.empty()) {
        return 0;
    }
    surface.DrawText(x, y, parts.base);
    double width = surface.TextWidth(parts.base);
    if (!parts.power.empty()) {
        surface.SetFontSize(points * PowerShare);
        const double powerWidth = surface.TextWidth(parts.power);
        surface.DrawText(x + width, y - points * 20 * PowerRaise, parts.power);
        surface.SetFontSize(points);
        width += powerWidth;
    }
    return width;
}

std::string FitText(DrawingSurface& surface, const std::string& text, double width) {
    if (surface.TextWidth(text) <= width) {
        return text;
    }
    std::string shortened = text;
    while (!shortened.empty()) {
        shortened.pop_back();
        // Never cut a character of several bytes in two.
        while (!shortened.empty() &&
               (static_cast<unsigned char>(shortened.back()) & 0xC0) == 0x80) {
            shortened.pop_back();
        }
        if (!shortened.empty() && (static_cast<unsigned char>(shortened.back()) & 0x80) != 0) {
            shortened.pop_back();
        }
        if (surface.TextWidth(shortened + "...") <= width) {
            return shortened + "...";
        }
    }
    return {};
}
