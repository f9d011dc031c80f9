#pragma once

#include "engine/design_record.h"
#include "search/sensitivity_chart.h"
#include "search/sensitivity_grid.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The "Soil Sensitivity" dialog as a model: which values are varied (the center lift em and ym,
// the edge lift em and ym, or one field), their spans and the request they make. What its chart
// shows of the outcome is search/sensitivity_chart.h. It draws nothing and runs no thread; the
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
