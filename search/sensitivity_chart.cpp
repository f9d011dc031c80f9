#include "search/sensitivity_chart.h"

#include "common/number_pattern.h"
#include "compliance/check_names.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace {

std::string ratioText(const std::optional<double>& ratio) {
    return ratio ? FormatNumber(*ratio, "0.00") : "no ratio";
}

std::string standingText(const char* name, const FoundationStanding& standing) {
    std::string text = std::string(name) + ": max ratio " + ratioText(standing.maxRatio) +
                       (standing.pass ? ", passes" : ", does not pass");
    if (standing.governing) {
        text += "\n  governing: " + CheckTitle(*standing.governing);
    }
    return text;
}

std::string valueWithUnit(const std::string& field, double value) {
    const std::string unit = FieldUnit(field);
    return FieldValueText(value) + (unit.empty() ? "" : " " + unit);
}

ChartColour mix(ChartColour a, ChartColour b, double t) {
    const auto part = [t](int x, int y) {
        return static_cast<int>(std::lround(x + (y - x) * std::clamp(t, 0.0, 1.0)));
    };
    return {part(a.red, b.red), part(a.green, b.green), part(a.blue, b.blue)};
}

} // namespace

std::optional<double> ChartRatio(const SensitivityPoint& point) {
    return point.judged() ? point.largestRatio() : std::nullopt;
}

std::vector<ContourSegment> RatioContour(const std::vector<SensitivityPoint>& points,
                                         std::int64_t rows, std::int64_t columns, double level) {
    std::vector<ContourSegment> segments;
    const auto ratioAt = [&](std::int64_t r, std::int64_t c) {
        return ChartRatio(points[static_cast<std::size_t>(r * columns + c)]);
    };
    for (std::int64_t r = 0; r + 1 < rows; ++r) {
        for (std::int64_t c = 0; c + 1 < columns; ++c) {
            // Corners in turn: top left, top right, bottom right, bottom left.
            const std::array<std::optional<double>, 4> value = {
                ratioAt(r, c), ratioAt(r, c + 1), ratioAt(r + 1, c + 1), ratioAt(r + 1, c)};
            if (!value[0] || !value[1] || !value[2] || !value[3]) {
                continue;
            }
            const std::array<double, 4> x = {double(c), double(c + 1), double(c + 1), double(c)};
            const std::array<double, 4> y = {double(r), double(r), double(r + 1), double(r + 1)};
            std::array<bool, 4> above{};
            for (int k = 0; k < 4; ++k) {
                above[k] = *value[k] >= level;
            }
            // The crossing on edge k, from corner k to corner k + 1, when its ends differ.
            std::array<std::optional<std::pair<double, double>>, 4> crossing;
            int crossings = 0;
            for (int k = 0; k < 4; ++k) {
                const int n = (k + 1) % 4;
                if (above[k] == above[n]) {
                    continue;
                }
                const double t = (level - *value[k]) / (*value[n] - *value[k]);
                crossing[k] = {x[k] + (x[n] - x[k]) * t, y[k] + (y[n] - y[k]) * t};
                ++crossings;
            }
            const auto join = [&](int a, int b) {
                segments.push_back({crossing[a]->first, crossing[a]->second, crossing[b]->first,
                                    crossing[b]->second});
            };
            if (crossings == 2) {
                int first = -1;
                for (int k = 0; k < 4; ++k) {
                    if (crossing[k]) {
                        if (first < 0) {
                            first = k;
                        } else {
                            join(first, k);
                        }
                    }
                }
            } else if (crossings == 4) {
                // A saddle: the corners on the other side from the cell's middle are cut off,
                // each by the two edges that meet at it (corner k between edges k - 1 and k).
                const double middle = (*value[0] + *value[1] + *value[2] + *value[3]) / 4;
                const bool middleAbove = middle >= level;
                for (int k = 0; k < 4; ++k) {
                    if (above[k] != middleAbove) {
                        join((k + 3) % 4, k);
                    }
                }
            }
        }
    }
    return segments;
}

ChartColour RatioColour(double ratio, double top) {
    const ChartColour green{26, 150, 65};
    const ChartColour lightGreen{166, 217, 106};
    const ChartColour yellow{255, 235, 130};
    const ChartColour orange{253, 174, 97};
    const ChartColour red{215, 48, 39};
    const ChartColour darkRed{150, 0, 60};
    const ChartColour deepPurple{55, 0, 70};
    if (ratio < 0.5) {
        return mix(green, lightGreen, ratio / 0.5);
    }
    if (ratio < 0.8) {
        return mix(lightGreen, yellow, (ratio - 0.5) / 0.3);
    }
    if (ratio < 1.0) {
        return mix(yellow, orange, (ratio - 0.8) / 0.2);
    }
    const double beyond = std::clamp((ratio - 1.0) / std::max(top - 1.0, 0.1), 0.0, 1.0);
    return beyond < 0.5 ? mix(red, darkRed, beyond / 0.5)
                        : mix(darkRed, deepPurple, beyond / 0.5 - 1);
}

double ChartTop(const SensitivityOutcome& outcome) {
    double top = 1.5;
    for (const SensitivityPoint& point : outcome.points) {
        if (const std::optional<double> ratio = ChartRatio(point)) {
            top = std::max(top, std::ceil(*ratio * 10 - 1e-9) / 10);
        }
    }
    return top;
}

ChartColour UnjudgedColour(const SensitivityPoint& point) {
    return point.refused ? ChartColour{200, 200, 200} : ChartColour{90, 90, 90};
}

std::string FieldValueText(double value) {
    // Fifteen significant digits are every digit of a value of the range grammar, and the fewest
    // that never show the binary tail of a decimal fraction.
    char text[32];
    std::snprintf(text, sizeof text, "%.15g", value == 0 ? 0.0 : value);
    return text;
}

std::string FieldUnit(const std::string& field) {
    if (field == "EmCenter" || field == "EmEdge") {
        return "ft";
    }
    if (field == "YmCenter" || field == "YmEdge" || field == "Settle") {
        return "in";
    }
    if (field == "ExpBearing" || field == "CompBearing") {
        return "psf";
    }
    if (field == "Es") {
        return "psi";
    }
    return "";
}

std::string FieldAxisTitle(const std::string& field) {
    std::string words;
    if (field == "EmCenter") {
        words = "em, center lift";
    } else if (field == "EmEdge") {
        words = "em, edge lift";
    } else if (field == "YmCenter") {
        words = "ym, center lift";
    } else if (field == "YmEdge") {
        words = "ym, edge lift";
    } else if (field == "Settle") {
        words = "expected settlement";
    } else if (field == "ExpBearing" || field == "CompBearing") {
        words = "allowable bearing";
    } else if (field == "Es") {
        words = "soil modulus";
    }
    const std::string unit = FieldUnit(field);
    std::string title = field;
    if (!words.empty()) {
        title += ", " + words;
    }
    if (!unit.empty()) {
        title += " (" + unit + ")";
    }
    return title;
}

std::string PointCaption(const SensitivityRequest& request, const SensitivityOutcome& outcome,
                         std::int64_t index) {
    const std::vector<std::int64_t> places = request.grid.places(index);
    std::string text;
    for (std::size_t i = 0; i < request.grid.fields.size(); ++i) {
        const VariedField& varied = request.grid.fields[i];
        text += (i == 0 ? "" : ", ") + std::string(varied.field->name) + " " +
                valueWithUnit(std::string(varied.field->name), varied.valueAt(places[i]));
    }
    const SensitivityPoint& point = outcome.points.at(static_cast<std::size_t>(index));
    if (point.refused) {
        return text + "\nRefused: " + point.refused->message;
    }
    if (point.fault) {
        std::string fault = "\nThe analysis ended in a fault: " + FaultKindName(point.fault->kind);
        if (point.fault->stage) {
            fault += " in stage " + std::to_string(*point.fault->stage);
        } else {
            fault += " in the beam depth ratio of the design exceptions";
        }
        return text + fault;
    }
    text += "\n" + standingText("Ribbed", *point.ribbed);
    if (point.uniform) {
        text += "\n" + standingText("Uniform thickness", *point.uniform);
    }
    return text;
}

std::vector<ChartSeries> OneFieldSeries(const SensitivityRequest& request,
                                        const SensitivityOutcome& outcome) {
    std::vector<ChartSeries> series = {{"Ribbed", {}}};
    if (outcome.design.uniform ||
        std::any_of(outcome.points.begin(), outcome.points.end(),
                    [](const SensitivityPoint& point) { return point.uniform.has_value(); })) {
        series.push_back({"Uniform thickness", {}});
    }
    const VariedField& varied = request.grid.fields.front();
    for (std::size_t i = 0; i < outcome.points.size(); ++i) {
        const SensitivityPoint& point = outcome.points[i];
        const double value = varied.valueAt(static_cast<std::int64_t>(i));
        if (point.ribbed && point.ribbed->maxRatio) {
            series[0].values.emplace_back(value, *point.ribbed->maxRatio);
        }
        if (series.size() == 2 && point.uniform && point.uniform->maxRatio) {
            series[1].values.emplace_back(value, *point.uniform->maxRatio);
        }
    }
    return series;
}

std::vector<std::string> SensitivitySummaryLines(const SensitivityRequest& request,
                                                 const SensitivityOutcome& outcome) {
    std::vector<std::string> lines;
    const SensitivityPoint& design = outcome.design;
    if (design.refused) {
        lines.push_back("The design itself is refused: " + design.refused->message);
    } else if (design.fault) {
        lines.push_back("The analysis of the design itself ended in a fault.");
    } else {
        const auto standing = [](const char* name, const FoundationStanding& foundation) {
            std::string text = std::string(name) + " max ratio " + ratioText(foundation.maxRatio) +
                               (foundation.pass ? ", passes" : ", does not pass");
            if (foundation.governing) {
                text += " (" + CheckTitle(*foundation.governing) + ")";
            }
            return text + ".";
        };
        lines.push_back("Design: " + standing("ribbed", *design.ribbed));
        if (design.uniform) {
            lines.push_back("Design: " + standing("uniform thickness", *design.uniform));
        }
    }
    for (const PassingRange& range : outcome.passing) {
        const std::string name(range.field->name);
        if (!range.designPasses) {
            lines.push_back(name + ": the design does not pass at its own values.");
            continue;
        }
        std::string line = name + " passes from " + valueWithUnit(name, range.from) +
                           (range.openBelow ? " (end of the grid)" : "") + " to " +
                           valueWithUnit(name, range.to) +
                           (range.openAbove ? " (end of the grid)" : "");
        if (request.grid.fields.size() == 2) {
            line += ", the other at its design value";
        }
        std::vector<std::string> fails;
        for (const std::optional<double>& value : {range.failsBelow, range.failsAbove}) {
            if (value) {
                fails.push_back(valueWithUnit(name, *value));
            }
        }
        if (!fails.empty()) {
            line +=
                "; does not pass at " + fails[0] + (fails.size() == 2 ? " and " + fails[1] : "");
        }
        lines.push_back(line + ".");
    }
    if (outcome.interrupted) {
        lines.push_back("The run was stopped before every point was done.");
    }
    return lines;
}
