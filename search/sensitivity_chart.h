#pragma once

#include "search/sensitivity_grid.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// What a chart of a sensitivity run shows, worked out without drawing anything: the ratio and
// colour of each point, the contour where the governing ratio reaches 1.0, the lines of a
// one-field chart, the words of a point and the lines under the chart. The desktop dialog and a
// printed page draw from these.

// The ratio the chart shows at a point: the governing ratio of the point, the larger of the
// two foundations; nothing for a point refused, faulted, or without a ratio.
std::optional<double> ChartRatio(const SensitivityPoint& point);

// A piece of the contour where the governing ratio reaches `level`, in grid places: x along the
// second field (columns), y along the first (rows), both counted from 0 at the first value.
struct ContourSegment {
    double x1, y1, x2, y2;
};

// The contour of the chart's ratio over a grid of `rows` x `columns` points (row-major, as the
// outcome holds them), by marching squares with straight interpolation inside each cell. A cell
// with a point that has no ratio gives no segment.
std::vector<ContourSegment> RatioContour(const std::vector<SensitivityPoint>& points,
                                         std::int64_t rows, std::int64_t columns, double level);

// The colour of a ratio on the heat map: green well within the limit, through yellow and orange
// below 1.0, then from red at 1.0 through dark red to deep purple at `top` (the largest ratio the
// chart shows, at least 1.5) and beyond, so that a grid that fails everywhere still shows where it
// fails most. Each part 0 to 255.
struct ChartColour {
    int red, green, blue;
    bool operator==(const ChartColour&) const = default;
};
ChartColour RatioColour(double ratio, double top = 1.5);
// The top of the colour key for a run: its largest ratio rounded up to a tenth, at least 1.5.
double ChartTop(const SensitivityOutcome& outcome);
// Grey for a point refused by a value check, dark grey for one that faulted.
ChartColour UnjudgedColour(const SensitivityPoint& point);

// The words under the pointer at a grid point: its values, and for each foundation its max
// ratio, verdict and governing check; or why the point was not judged.
std::string PointCaption(const SensitivityRequest& request, const SensitivityOutcome& outcome,
                         std::int64_t index);

// A value of a varied field as the chart and the listing write it: its shortest decimal form
// with a leading zero ("0.5", "2.75", "8.25").
std::string FieldValueText(double value);

// The unit of a soil field ("ft" for EmCenter), or empty.
std::string FieldUnit(const std::string& field);
// The axis title of a varied field: "EmCenter, em center lift (ft)".
std::string FieldAxisTitle(const std::string& field);

// One line of the one-field chart: the max ratio of one foundation at each value where it has
// one.
struct ChartSeries {
    std::string name; // "Ribbed", "Uniform thickness"
    std::vector<std::pair<double, double>> values;
};
std::vector<ChartSeries> OneFieldSeries(const SensitivityRequest& request,
                                        const SensitivityOutcome& outcome);

// The lines under the chart: the design's standing with its governing check, and each passing
// range with the values beyond it that do not pass, in words.
std::vector<std::string> SensitivitySummaryLines(const SensitivityRequest& request,
                                                 const SensitivityOutcome& outcome);
