#include "lifecycle/sensitivity_dialog.h"

#include "common/number_text.h"
#include "search/search_request_error.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace {

constexpr std::int16_t ExpansiveSoil = 0;

std::vector<std::string> pairFields(SensitivityPair pair, const std::string& oneField) {
    switch (pair) {
    case SensitivityPair::CenterLift:
        return {"EmCenter", "YmCenter"};
    case SensitivityPair::EdgeLift:
        return {"EmEdge", "YmEdge"};
    case SensitivityPair::OneField:
        return {oneField};
    }
    return {};
}

// A number as the range grammar takes it: plain decimal, at most 12 significant digits.
std::string plainNumber(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.12f", value);
    std::string result = text;
    result.erase(result.find_last_not_of('0') + 1);
    if (!result.empty() && result.back() == '.') {
        result.pop_back();
    }
    if (result == "-0") {
        result = "0";
    }
    // Keep 12 significant digits at most.
    char general[64];
    std::snprintf(general, sizeof general, "%.12g", value);
    if (std::string(general).find('e') == std::string::npos) {
        return general;
    }
    return result;
}

void prefill(SensitivityDialog& dialog, const DesignRecord& record) {
    dialog.spans.clear();
    for (const std::string& name : pairFields(dialog.pair, dialog.oneField)) {
        const DesignField* field = FindDesignField(name);
        const double design =
            field != nullptr && field->kind == FieldKind::Real ? record.*field->real : 0.0;
        dialog.spans.push_back({name, plainNumber(design * 0.5), plainNumber(design * 1.5)});
    }
    dialog.error.clear();
}

bool parseNumber(const std::string& text, double& value) {
    if (text.empty()) {
        return false;
    }
    return ParseGeneralNumber(text, value) == NumberParse::Ok && std::isfinite(value);
}

} // namespace

SensitivityDialog OpenSensitivityDialog(const DesignRecord& record) {
    SensitivityDialog dialog;
    if (record.SoilType == ExpansiveSoil) {
        dialog.fieldChoices = {"EmCenter", "YmCenter", "EmEdge", "YmEdge", "ExpBearing", "Es"};
        dialog.pair = SensitivityPair::CenterLift;
        dialog.pairsEnabled = true;
    } else {
        dialog.fieldChoices = {"Settle", "CompBearing", "Es"};
        dialog.pair = SensitivityPair::OneField;
        dialog.pairsEnabled = false;
    }
    dialog.oneField = dialog.fieldChoices.front();
    prefill(dialog, record);
    return dialog;
}

void ChooseSensitivityPair(SensitivityDialog& dialog, const DesignRecord& record,
                           SensitivityPair pair) {
    if (pair != SensitivityPair::OneField && !dialog.pairsEnabled) {
        return;
    }
    dialog.pair = pair;
    prefill(dialog, record);
}

void ChooseSensitivityField(SensitivityDialog& dialog, const DesignRecord& record,
                            const std::string& field) {
    if (std::find(dialog.fieldChoices.begin(), dialog.fieldChoices.end(), field) ==
        dialog.fieldChoices.end()) {
        return;
    }
    dialog.oneField = field;
    if (dialog.pair == SensitivityPair::OneField) {
        prefill(dialog, record);
    }
}

void SetSensitivityPoints(SensitivityDialog& dialog, int points) {
    dialog.points = std::clamp(points, MinSensitivityPoints, MaxSensitivityPointsPerField);
}

std::vector<std::string> SensitivityRanges(const SensitivityDialog& dialog) {
    std::vector<std::string> ranges;
    for (const SensitivitySpan& span : dialog.spans) {
        double from = 0;
        double to = 0;
        if (!parseNumber(span.from, from) || !parseNumber(span.to, to)) {
            throw SearchRequestError("the span of " + span.field + " needs two numbers");
        }
        if (from == to) {
            throw SearchRequestError("the span of " + span.field +
                                     " is empty: give two values "
                                     "that differ");
        }
        const double step = (to - from) / (dialog.points - 1);
        ranges.push_back(span.field + "=" + plainNumber(from) + ":" + plainNumber(to) + ":" +
                         plainNumber(step));
    }
    return ranges;
}

std::optional<SensitivityRequest> SensitivityRequestOf(SensitivityDialog& dialog,
                                                       const DesignRecord& record,
                                                       const EngineSettings& settings) {
    try {
        SensitivityRequest request;
        request.grid = ParseSensitivityGrid(SensitivityRanges(dialog));
        request.project = record;
        request.settings = settings;
        dialog.error.clear();
        return request;
    } catch (const SearchRequestError& error) {
        dialog.error = error.what();
        return std::nullopt;
    }
}
