#include "input/live_plan.h"

#include "engine/analysis_spacing.h"
#include "engine/tendon_size.h"
#include "engine/tendon_tallies.h"

#include <cmath>
#include <cstdlib>
#include <optional>
#include <tuple>

namespace {

// The number a text holds when it is nothing but a number, blanks around it aside.
std::optional<double> NumberOf(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return std::nullopt;
    }
    const std::size_t last = text.find_last_not_of(" \t");
    const std::string trimmed = text.substr(first, last - first + 1);
    char* end = nullptr;
    const double value = std::strtod(trimmed.c_str(), &end);
    if (end != trimmed.c_str() + trimmed.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

// Reads the number of a field into `value`; gives the reason when it cannot.
std::string ReadNumber(const FormModel& form, const std::string& control,
                       const std::string& caption, double& value) {
    const std::string& text = form[control].text;
    if (text.find_first_not_of(" \t") == std::string::npos) {
        return caption + " is blank.";
    }
    const std::optional<double> number = NumberOf(text);
    if (!number) {
        return caption + " is not a number: \"" + text + "\".";
    }
    value = *number;
    return {};
}

// A count of beams or tendons, rounded to the nearest whole number as the record keeps it.
std::string ReadCount(const FormModel& form, const std::string& control, const std::string& caption,
                      std::int16_t& count) {
    double value = 0;
    std::string reason = ReadNumber(form, control, caption, value);
    if (!reason.empty()) {
        return reason;
    }
    if (value < -32768 || value > 32767) {
        return caption + " is too large.";
    }
    count = static_cast<std::int16_t>(std::nearbyint(value));
    return {};
}

struct BeamGroupFields {
    const char* suffix; // S1, S2, L1, L2
    const char* caption;
    std::int16_t DesignRecord::*quantity;
    double DesignRecord::*depth;
    double DesignRecord::*width;
    double DesignRecord::*tendons;
    double DesignRecord::*cover;
};

const BeamGroupFields BeamGroups[] = {
    {"S1", "Short Direction Type 1", &DesignRecord::QS1, &DesignRecord::DS1, &DesignRecord::WS1,
     &DesignRecord::TS1, &DesignRecord::CS1},
    {"S2", "Short Direction Type 2", &DesignRecord::QS2, &DesignRecord::DS2, &DesignRecord::WS2,
     &DesignRecord::TS2, &DesignRecord::CS2},
    {"L1", "Long Direction Type 1", &DesignRecord::QL1, &DesignRecord::DL1, &DesignRecord::WL1,
     &DesignRecord::TL1, &DesignRecord::CL1},
    {"L2", "Long Direction Type 2", &DesignRecord::QL2, &DesignRecord::DL2, &DesignRecord::WL2,
     &DesignRecord::TL2, &DesignRecord::CL2},
};

// Copies the plan's fields of the slab and beam pages into `typed`; gives the reason of the
// first that cannot be read.
std::string ReadTypedValues(const FormModel& form, DesignRecord& typed) {
    const struct {
        const char* control;
        const char* caption;
        double DesignRecord::*field;
    } slabFields[] = {
        {"txtRectWidth", "Rectangle Width (Feet)", &DesignRecord::RectWidth},
        {"txtRectLength", "Rectangle Length (Feet)", &DesignRecord::RectLength},
        {"txtSlabThick", "Slab Thickness (Inches)", &DesignRecord::SlabThick},
    };
    for (const auto& field : slabFields) {
        std::string reason = ReadNumber(form, field.control, field.caption, typed.*field.field);
        if (!reason.empty()) {
            return reason;
        }
    }
    const int slabReinforcement = SelectedOption(form, "optSlabRefType", 3);
    if (slabReinforcement >= 0) {
        typed.SlabRefType = static_cast<std::int16_t>(slabReinforcement);
    }
    if (slabReinforcement == 0) {
        for (const auto& [control, caption, field] :
             {std::tuple{"txtNumSlabTenShort", "Slab Tendons, Short Direction",
                         &DesignRecord::NumSlabTenShort},
              std::tuple{"txtNumSlabTenLong", "Slab Tendons, Long Direction",
                         &DesignRecord::NumSlabTenLong}}) {
            std::string reason = ReadCount(form, control, caption, typed.*field);
            if (!reason.empty()) {
                return reason;
            }
        }
    }
    typed.SlabTenCovType = form["cbSlabTenCovType"].checked ? 1 : 0;
    if (typed.SlabTenCovType == 1) {
        std::string reason =
            ReadNumber(form, "txtSlabTenCov", "Average Slab Tendon Cover (Inch)", typed.SlabTenCov);
        if (!reason.empty()) {
            return reason;
        }
    }

    for (const BeamGroupFields& group : BeamGroups) {
        const std::string of = std::string(" of the ") + group.caption + " beams";
        const std::string suffix = group.suffix;
        std::string reason =
            ReadCount(form, "txtQ" + suffix, "Quantity" + of, typed.*group.quantity);
        const struct {
            const char* row;
            const char* caption;
            double DesignRecord::*field;
        } rows[] = {{"D", "Depth (IN)", group.depth},
                    {"W", "Width (IN)", group.width},
                    {"T", "Tendons", group.tendons},
                    {"C", "Cover (IN)", group.cover}};
        for (const auto& row : rows) {
            if (!reason.empty()) {
                break;
            }
            reason = ReadNumber(form, std::string("txt") + row.row + suffix, row.caption + of,
                                typed.*row.field);
        }
        if (!reason.empty()) {
            return reason;
        }
    }
    const int spacing = SelectedOption(form, "optBeamSpacing", 2);
    if (spacing >= 0) {
        typed.BeamSpacing = static_cast<std::int16_t>(spacing);
    }
    if (spacing == 0) {
        const struct {
            const char* control;
            const char* caption;
            double DesignRecord::*field;
        } spacings[] = {{"txtSMin", "Minimum Spacing, Short", &DesignRecord::SMin},
                        {"txtLMin", "Minimum Spacing, Long", &DesignRecord::LMin},
                        {"txtSMax", "Maximum Spacing, Short", &DesignRecord::SMax},
                        {"txtLMax", "Maximum Spacing, Long", &DesignRecord::LMax}};
        for (const auto& field : spacings) {
            std::string reason = ReadNumber(form, field.control, field.caption, typed.*field.field);
            if (!reason.empty()) {
                return reason;
            }
        }
    }
    typed.SixFtRule = form["cbSixFtRule"].checked ? 1 : 0;
    return {};
}

// The tendon's size as the material page shows it; a custom area that cannot be read leaves
// the record's.
void ReadTendonSize(const FormModel& form, DesignRecord& typed) {
    const int type = SelectedOption(form, "optTendType", 4);
    if (type >= 0) {
        typed.TendType = static_cast<std::int16_t>(type);
    }
    if (type == 3) {
        if (const std::optional<double> area = NumberOf(form["txtTendArea"].text)) {
            typed.TendArea = *area;
        }
    }
    try {
        ApplyTendonSize(typed);
    } catch (const std::exception&) {
        typed.TendDiam = 0;
    }
}

} // namespace

FoundationPlan PlanOfTypedValues(const FormModel& form, const DesignRecord& record) {
    DesignRecord typed = record;
    ReadTendonSize(form, typed);
    const std::string reason = ReadTypedValues(form, typed);
    if (!reason.empty()) {
        FoundationPlan plan;
        plan.reason = reason;
        return plan;
    }
    ResultsRecord results;
    const FoundationPlan geometry = PlanOf(typed, results);
    if (!geometry.reason.empty()) {
        return geometry;
    }
    // A spacing the analysis could not work out (a minimum of 0) is left undimensioned.
    try {
        ComputeAnalysisSpacing(typed, results);
    } catch (const std::exception&) {
        results.SpacingShort = 0;
        results.SpacingLong = 0;
    }
    const bool countGiven = typed.SlabRefType == 0;
    if (countGiven) {
        results.SlabTenShort = std::max<double>(typed.NumSlabTenShort, 0);
        results.SlabTenLong = std::max<double>(typed.NumSlabTenLong, 0);
        try {
            ComputeTendonTallies(typed, results);
        } catch (const std::exception&) {
            results.SlabTenSpacingShort = 0;
            results.SlabTenSpacingLong = 0;
        }
    }
    const double slabTendonDepth =
        typed.SlabTenCovType == 1 ? typed.TendDiam / 2 + typed.SlabTenCov : typed.SlabThick / 2;
    results.CgSlabTenShort = slabTendonDepth;
    results.CgSlabTenLong = slabTendonDepth;
    FoundationPlan plan = PlanOf(typed, results);
    if (!countGiven) {
        for (PlanSlabTendons* tendons : {&plan.slabTendonsShort, &plan.slabTendonsLong}) {
            *tendons = PlanSlabTendons{};
            tendons->known = false;
        }
    }
    return plan;
}

void UpdateLivePlan(LivePlan& live, const FormModel& form, const DesignRecord& record) {
    FoundationPlan typed = PlanOfTypedValues(form, record);
    if (typed.reason.empty()) {
        live.drawing = std::move(typed);
        live.drawn = true;
        live.reason.clear();
    } else {
        live.reason = typed.reason;
    }
}

FoundationPlan AnalysedPlan(const DesignRecord& record, const ResultsRecord& results,
                            bool analysed) {
    if (!analysed) {
        FoundationPlan plan;
        plan.reason = "The plan of the analysed design shows here after an analysis (F5).";
        return plan;
    }
    return PlanOf(record, results);
}
