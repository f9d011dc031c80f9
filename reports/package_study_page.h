#pragma once

#include "reports/drawing_surface.h"
#include "reports/package_document.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

// The package's "Soil sensitivity" page: a chart of how the design holds when the soil values
// are not what the report says, and the ranges over which it passes. The chart comes as plain
// numbers in the units of its axes; the page only places them. It does not run any analysis.

// A cell of the heat map: the rectangle around one grid point and the colour of its ratio.
struct StudyCell {
    double x0, x1, y0, y1;
    Colour fill;
};

// A piece of the line where the governing ratio reaches 1.0.
struct StudySegment {
    double x1, y1, x2, y2;
};

// One line of a one-field chart: a foundation's max ratio against the field.
struct StudyLine {
    std::string name;
    Colour colour;
    std::vector<std::pair<double, double>> points;
};

struct StudyTick {
    double value;
    std::string text;
};

struct SoilStudyChart {
    std::string xTitle;
    std::string yTitle;
    double xMin = 0, xMax = 1, yMin = 0, yMax = 1;
    std::vector<StudyTick> xTicks;
    std::vector<StudyTick> yTicks;
    std::vector<StudyCell> cells;                    // two fields: the heat map
    std::vector<StudySegment> contour;               // two fields: where the ratio is 1.0
    std::vector<StudyLine> lines;                    // one field: a line per foundation
    std::optional<double> limitLine;                 // one field: the ratio 1.0 across the chart
    std::optional<std::pair<double, double>> design; // the design's own values
    std::vector<std::string> key;                    // what the colours or lines mean
    std::vector<std::string> summary;                // the design's standing and the passing ranges
};

// The chart's box on the page, in twips.
inline constexpr double StudyChartLeft = PackageLeft + 1300;
inline constexpr double StudyChartRight = PackageRight - 300;
inline constexpr double StudyChartHeight = 6400;

PackagePage SoilStudyPage(SoilStudyChart chart);
