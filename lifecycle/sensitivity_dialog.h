#pragma once

#include "engine/design_record.h"
#include "search/sensitivity_grid.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The "Soil Sensitivity" dialog as a model: which values are varied (the center lift em and ym,
// the edge lift em and ym, or one field), their spans, the run, and what the chart shows from
// the outcome: the governing ratio at each point, the contour where it reaches 1.0, the design
// point and the words of a point under the pointer. It draws nothing and runs no thread; the
// desktop view does both and mirrors this model by the controls' names.

enum class SensitivityPair { CenterLift, EdgeLift, OneField };

// The span of one varied field as the engineer types it (txtFrom(i), txtTo(i)).
struct SensitivitySpan {
    std::string field;
    std::string from;
    std::string to;
};

struct SensitivityDialog {
    SensitivityPair pair = SensitivityPair::CenterLift; // optPair(0..2)
    // The fields offered for one field (cboField), and the one chosen.
    std::vector<std::string> fieldChoices;
    std::string oneField;
    // optPair(0) and optPair(1): only an expansive soil has center and edge lift.
    bool pairsEnabled = true;
    std::vector<SensitivitySpan> spans; // one or two
    int points = 41;                    // udPoints: values along each field
    std::string error;                  // lblError: why the run cannot start
};

inline constexpr int MinSensitivityPoints = 2;
inline constexpr int MaxSensitivityPointsPerField = 201;

// The dialog as it opens on a project: center lift em and ym for an expansive soil, the
// settlement alone for a compressible one, each span prefilled at the design value less and
// plus 50%.
SensitivityDialog OpenSensitivityDialog(const DesignRecord& record);

// The user chose another pair (or one field): its spans are prefilled again. A pair that is not
// enabled changes nothing.
void ChooseSensitivityPair(SensitivityDialog& dialog, const DesignRecord& record,
                           SensitivityPair pair);
// The user chose the field of the one-field choice: its span is prefilled again.
void ChooseSensitivityField(SensitivityDialog& dialog, const DesignRecord& record,
                            const std::string& field);
// The user set the number of values along each field; it is held from 2 to 201.
void SetSensitivityPoints(SensitivityDialog& dialog, int points);

// The request the dialog's fields describe, or nothing with `error` set to the reason: a span
// that is no number, a span of zero width, or what the grid itself refuses.
std::optional<SensitivityRequest> SensitivityRequestOf(SensitivityDialog& dialog,
                                                       const DesignRecord& record,
                                                       const EngineSettings& settings);

// The ranges "FIELD=FROM:TO:STEP" of the spans, with `points` values each. Throws
// SearchRequestError for a bound that is no number and a span of zero width.
std::vector<std::string> SensitivityRanges(const SensitivityDialog& dialog);

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

// The colour of a ratio on the heat map: green well within the limit, through yellow, to red
// at 1.0 and beyond (dark red from 1.5). Each part 0 to 255.
struct ChartColour {
    int red, green, blue;
    bool operator==(const ChartColour&) const = default;
};
ChartColour RatioColour(double ratio);
// Grey for a point refused by a value check, dark grey for one that faulted.
ChartColour UnjudgedColour(const SensitivityPoint& point);

// The words under the pointer at a grid point: its values, and for each foundation its max
// ratio, verdict and governing check; or why the point was not judged.
std::string PointCaption(const SensitivityRequest& request, const SensitivityOutcome& outcome,
                         std::int64_t index);

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

// The lines under the chart: the design's standing and each passing range, in words.
std::vector<std::string> SensitivitySummaryLines(const SensitivityRequest& request,
                                                 const SensitivityOutcome& outcome);
