#include "lifecycle/package_study.h"

#include "search/sensitivity_chart.h"

#include <algorithm>

namespace {

constexpr Colour RibbedLineColour{20, 60, 160};
constexpr Colour UniformLineColour{220, 110, 0};
constexpr int TickCount = 5;

Colour ColourOf(const ChartColour& colour) {
    return {colour.red, colour.green, colour.blue};
}

// Half the distance between two neighbouring values of a field: the half width of a cell.
double HalfStep(const VariedField& field) {
    return field.count > 1 ? (field.valueAt(1) - field.valueAt(0)) / 2 : 0.5;
}

// A grid place (counted from 0 at the first value, fractions between values) as a value.
double ValueAtPlace(const VariedField& field, double place) {
    const double step = field.count > 1 ? field.valueAt(1) - field.valueAt(0) : 0;
    return field.valueAt(0) + place * step;
}

std::vector<StudyTick> Ticks(double from, double to) {
    std::vector<StudyTick> ticks;
    for (int i = 0; i < TickCount; ++i) {
        const double value = from + (to - from) * i / (TickCount - 1);
        ticks.push_back({value, FieldValueText(value)});
    }
    return ticks;
}

double DesignValue(const SensitivityRequest& request, const VariedField& field) {
    return request.project.*(field.field->real);
}

void TwoFields(const SensitivityRequest& request, const SensitivityOutcome& outcome,
               SoilStudyChart& chart) {
    const VariedField& rows = request.grid.fields[0];
    const VariedField& columns = request.grid.fields[1];
    const double dx = HalfStep(columns);
    const double dy = HalfStep(rows);
    chart.xTitle = FieldAxisTitle(std::string(columns.field->name));
    chart.yTitle = FieldAxisTitle(std::string(rows.field->name));
    chart.xMin = columns.valueAt(0) - dx;
    chart.xMax = columns.valueAt(columns.count - 1) + dx;
    chart.yMin = rows.valueAt(0) - dy;
    chart.yMax = rows.valueAt(rows.count - 1) + dy;
    chart.xTicks = Ticks(columns.valueAt(0), columns.valueAt(columns.count - 1));
    chart.yTicks = Ticks(rows.valueAt(0), rows.valueAt(rows.count - 1));
    const double top = ChartTop(outcome);
    for (std::int64_t r = 0; r < rows.count; ++r) {
        for (std::int64_t c = 0; c < columns.count; ++c) {
            const SensitivityPoint& point =
                outcome.points[static_cast<std::size_t>(r * columns.count + c)];
            const std::optional<double> ratio = ChartRatio(point);
            const ChartColour colour = ratio ? RatioColour(*ratio, top) : UnjudgedColour(point);
            const double x = columns.valueAt(c);
            const double y = rows.valueAt(r);
            chart.cells.push_back({x - dx, x + dx, y - dy, y + dy, ColourOf(colour)});
        }
    }
    for (const ContourSegment& s : RatioContour(outcome.points, rows.count, columns.count, 1.0)) {
        chart.contour.push_back({ValueAtPlace(columns, s.x1), ValueAtPlace(rows, s.y1),
                                 ValueAtPlace(columns, s.x2), ValueAtPlace(rows, s.y2)});
    }
    chart.design = std::make_pair(DesignValue(request, columns), DesignValue(request, rows));
    chart.key = {
        "Colour of each point: the governing ratio, the larger of the foundations' largest "
        "ratios of demand to limit; green well within the limits, yellow and orange nearing them, "
        "red at 1.0 and darker beyond, up to " +
            FieldValueText(top) +
            ". Light grey: refused by a value check; dark grey: the analysis ended in a fault.",
        "The black line is where the governing ratio reaches 1.0; the square with a cross marks "
        "the design's own values.",
    };
}

void OneField(const SensitivityRequest& request, const SensitivityOutcome& outcome,
              SoilStudyChart& chart) {
    const VariedField& field = request.grid.fields[0];
    chart.xTitle = FieldAxisTitle(std::string(field.field->name));
    chart.yTitle = "Largest ratio of demand to limit";
    chart.xMin = field.valueAt(0);
    chart.xMax = field.valueAt(field.count - 1);
    chart.yMin = 0;
    chart.yMax = ChartTop(outcome);
    chart.xTicks = Ticks(chart.xMin, chart.xMax);
    chart.yTicks = Ticks(chart.yMin, chart.yMax);
    chart.limitLine = 1.0;
    for (const ChartSeries& series : OneFieldSeries(request, outcome)) {
        const Colour colour = chart.lines.empty() ? RibbedLineColour : UniformLineColour;
        chart.lines.push_back({series.name, colour, series.values});
    }
    if (const std::optional<double> ratio = outcome.design.largestRatio()) {
        chart.design = std::make_pair(DesignValue(request, field), std::min(*ratio, chart.yMax));
    }
    std::string lines = "Lines: the largest ratio of demand to limit among each foundation's "
                        "checks against the field (";
    for (std::size_t i = 0; i < chart.lines.size(); ++i) {
        lines += (i > 0 ? "; " : "") + chart.lines[i].name + (i == 0 ? " in blue" : " in orange");
    }
    chart.key = {lines + "). The dashed line is the limit, a ratio of 1.0; the square with a "
                         "cross marks the design's own value."};
}

} // namespace

SoilStudyChart SoilStudyChartOf(const SensitivityRequest& request,
                                const SensitivityOutcome& outcome) {
    SoilStudyChart chart;
    if (request.grid.fields.size() == 2) {
        TwoFields(request, outcome, chart);
    } else if (request.grid.fields.size() == 1) {
        OneField(request, outcome, chart);
    }
    chart.summary = SensitivitySummaryLines(request, outcome);
    return chart;
}
