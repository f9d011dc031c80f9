#include "compliance/compliance_summaries.h"

#include "common/number_pattern.h"
#include "compliance/limit_items.h"
#include "compliance/list_lines.h"
#include "compliance/mode_sections.h"
#include "compliance/mode_values.h"

#include <string>

namespace {

constexpr std::int16_t ExpansiveSoil = 0;
constexpr std::int16_t CompressibleSoil = 1;

// The soil bearing section. A failed bearing check sets its counter to 1; the text of the row
// has a blank before the percentage only when it fails.
void ListSoilBearing(ListTarget& target, const ResultsRecord& r, std::int16_t& bearing,
                     bool showAll) {
    AppendSectionHeading(target, "SOIL BEARING :  ");
    NoteMargin(target, r.BearingExcess);
    if (!(r.BearingSafety >= 1)) {
        if (target.box != nullptr) {
            AppendItemLine(target, ItemText("SOIL BEARING : ", r.BearingExcess), true);
        }
        bearing = 1;
    } else if (showAll && target.box != nullptr) {
        AppendItemLine(target, ItemText("SOIL BEARING :", r.BearingExcess), false);
    }
    CloseSection(target, bearing != 0, showAll);
}

struct LineLoadValues {
    double slabThickness;
    double stressCompression; // psi
    double stressTension;     // psi
    double excessCompression;
    double excessTension;
};

void ListLineLoad(ListTarget& target, const LineLoadValues& v, double allowTension,
                  double allowCompression, std::int16_t& counter, std::int16_t showAll) {
    if (target.box != nullptr) {
        AppendSectionHeading(target, "LINE LOAD ANALYSIS ( " +
                                         FormatNumber(v.slabThickness, "#,##0.00") +
                                         " INCH THICK SLAB " + ") :");
    }
    const LimitItem items[] = {
        {"COMPRESSION IN EXTREME FIBER : ", v.stressCompression, allowCompression,
         LimitKind::AtMost, v.excessCompression},
        {"TENSION IN EXTREME FIBER : ", v.stressTension / 1000, allowTension, LimitKind::Tension,
         v.excessTension},
    };
    ListItems(target, items, counter, showAll != 0);
    if (counter == 0 && showAll != 1) {
        AppendItemLine(target, "ALL VALUES WITHIN ALLOWABLE LIMITS.", false);
    }
}

} // namespace

void RibbedCompliance(const DesignRecord& record, const ResultsRecord& results,
                      std::int16_t& centerLift, std::int16_t& edgeLift, std::int16_t& centerDown,
                      std::int16_t& edgeDown, std::int16_t& bearing, std::int16_t& cracked,
                      std::int16_t showAll, StyledText& box) {
    Clear(box);
    ListTarget target;
    target.box = &box;
    RibbedCompliance(record, results, centerLift, edgeLift, centerDown, edgeDown, bearing, cracked,
                     showAll, target);
}

void RibbedCompliance(const DesignRecord& record, const ResultsRecord& results,
                      std::int16_t& centerLift, std::int16_t& edgeLift, std::int16_t& centerDown,
                      std::int16_t& edgeDown, std::int16_t& bearing, std::int16_t& cracked,
                      std::int16_t showAll, ListTarget& target) {
    const bool all = showAll != 0;
    const double allowTension = results.AllowTension;
    const double allowCompression = results.AllowCompression;

    if (record.SoilType == ExpansiveSoil) {
        ListSoilBearing(target, results, bearing, all);

        AppendSectionHeading(target, "CENTER LIFT MODE :");
        ListLiftRows(target, LiftMode::CenterLift, CenterLiftValues(results), allowTension,
                     allowCompression, centerLift, cracked, all);
        CloseSection(target, centerLift != 0 || cracked != 0, all);

        AppendSectionHeading(target, "EDGE LIFT MODE :");
        const std::int16_t edgeLiftCracked =
            ListLiftRows(target, LiftMode::EdgeLift, EdgeLiftValues(results), allowTension,
                         allowCompression, edgeLift, cracked, all);
        CloseSection(target, edgeLift != 0 || edgeLiftCracked != 0, all);
    } else if (record.SoilType == CompressibleSoil) {
        ListSoilBearing(target, results, bearing, all);

        AppendSectionHeading(target, "COMPRESSIBLE SOIL MODE (CENTER DOWN) :");
        ListDownRows(target, CenterDownValues(results), allowTension, allowCompression, centerDown,
                     all);
        CloseSection(target, centerDown != 0, all);

        if (record.CLSettleState == 1) {
            AppendSectionHeading(target, "COMPRESSIBLE SOIL MODE (EDGE DOWN) :");
            ListDownRows(target, EdgeDownValues(results), allowTension, allowCompression, edgeDown,
                         all);
            CloseSection(target, edgeDown != 0, all);
        }
    }
}

void UniformCompliance(const DesignRecord& record, const ResultsRecord& results,
                       std::int16_t ribbedOutCount, std::int16_t& centerLift,
                       std::int16_t& edgeLift, std::int16_t& centerDown, std::int16_t& edgeDown,
                       std::int16_t showAll, StyledText& box) {
    Clear(box);
    ListTarget target;
    target.box = &box;
    UniformCompliance(record, results, ribbedOutCount, centerLift, edgeLift, centerDown, edgeDown,
                      showAll, target);
}

void UniformCompliance(const DesignRecord& record, const ResultsRecord& results,
                       std::int16_t ribbedOutCount, std::int16_t& centerLift,
                       std::int16_t& edgeLift, std::int16_t& centerDown, std::int16_t& edgeDown,
                       std::int16_t showAll, ListTarget& target) {
    const bool all = showAll != 0;
    const double allowTension = results.AllowTension;
    const double allowCompression = results.AllowCompression;

    // The uniform thickness foundation is derived from the ribbed one, so the ribbed
    // foundation's compliance heads its list; the sections below are listed either way.
    AppendSectionHeading(target, "RIBBED FOUNDATION COMPLIANCE :");
    if (ribbedOutCount < 1) {
        AppendItemLine(target, "RIBBED FOUNDATION IN COMPLIANCE", false);
    } else if (target.box != nullptr) {
        AppendItemLine(target,
                       "RIBBED FOUNDATION HAS " + std::to_string(ribbedOutCount) +
                           " ITEMS OUT OF COMPLIANCE - UNIFORM THICKNESS ANALYSIS INVALID",
                       true);
    }

    if (record.SoilType == ExpansiveSoil) {
        AppendSectionHeading(target, "UNIFORM THICKNESS FOUNDATION - CENTER LIFT MODE :");
        ListLiftRows(target, LiftMode::CenterLift, UniformCenterLiftValues(results), allowTension,
                     allowCompression, centerLift, centerLift, all);
        CloseSection(target, centerLift != 0, all);

        AppendSectionHeading(target, "UNIFORM THICKNESS FOUNDATION - EDGE LIFT MODE :");
        ListLiftRows(target, LiftMode::EdgeLift, UniformEdgeLiftValues(results), allowTension,
                     allowCompression, edgeLift, edgeLift, all);
        CloseSection(target, edgeLift != 0, all);
    } else if (record.SoilType == CompressibleSoil) {
        AppendSectionHeading(
            target, "UNIFORM THICKNESS FOUNDATION - COMPRESSIBLE SOIL MODE - CENTER DOWN :");
        ListDownRows(target, UniformCenterDownValues(results), allowTension, allowCompression,
                     centerDown, all);
        CloseSection(target, centerDown != 0, all);

        if (record.CLSettleState == 1) {
            AppendSectionHeading(target, "UNIFORM THICKNESS FOUNDATION - EDGE DOWN :");
            ListDownRows(target, UniformEdgeDownValues(results), allowTension, allowCompression,
                         edgeDown, all);
            CloseSection(target, edgeDown != 0, all);
        }
    }
}

void LineLoadCompliance(const DesignRecord& record, const ResultsRecord& results,
                        std::int16_t& ribbed, std::int16_t& uniform, std::int16_t showAll,
                        StyledText& box) {
    Clear(box);
    ListTarget target;
    target.box = &box;
    LineLoadCompliance(record, results, ribbed, uniform, showAll, target);
}

void LineLoadCompliance(const DesignRecord& record, const ResultsRecord& results,
                        std::int16_t& ribbed, std::int16_t& uniform, std::int16_t showAll,
                        ListTarget& target) {
    ListLineLoad(target,
                 {record.SlabThick, results.LLStressCompression, results.LLStressTension,
                  results.ExcessLLCompression, results.ExcessLLTension},
                 results.AllowTension, results.AllowCompression, ribbed, showAll);
    if (record.FlatSlab == 1) {
        ListLineLoad(target,
                     {results.UTThickness, results.UTLLStressCompression, results.UTLLStressTension,
                      results.UTExcessLLCompression, results.UTExcessLLTension},
                     results.AllowTension, results.AllowCompression, uniform, showAll);
    }
}
