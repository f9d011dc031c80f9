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
void ListSoilBearing(StyledText& box, const ResultsRecord& r, std::int16_t& bearing, bool showAll) {
    AppendSectionHeading(box, "SOIL BEARING :  ");
    if (!(r.BearingSafety >= 1)) {
        AppendItemLine(box, ItemText("SOIL BEARING : ", r.BearingExcess), true);
        bearing = 1;
    } else if (showAll) {
        AppendItemLine(box, ItemText("SOIL BEARING :", r.BearingExcess), false);
    }
    CloseSection(box, bearing != 0, showAll);
}

struct LineLoadValues {
    double slabThickness;
    double stressCompression; // psi
    double stressTension;     // psi
    double excessCompression;
    double excessTension;
};

void ListLineLoad(StyledText& box, const LineLoadValues& v, double allowTension,
                  double allowCompression, std::int16_t& counter, std::int16_t showAll) {
    AppendSectionHeading(box, "LINE LOAD ANALYSIS ( " + FormatNumber(v.slabThickness, "#,##0.00") +
                                  " INCH THICK SLAB " + ") :");
    const LimitItem items[] = {
        {"COMPRESSION IN EXTREME FIBER : ", v.stressCompression, allowCompression,
         LimitKind::AtMost, v.excessCompression},
        {"TENSION IN EXTREME FIBER : ", v.stressTension / 1000, allowTension, LimitKind::Tension,
         v.excessTension},
    };
    ListItems(box, items, counter, showAll != 0);
    if (counter == 0 && showAll != 1) {
        AppendItemLine(box, "ALL VALUES WITHIN ALLOWABLE LIMITS.", false);
    }
}

} // namespace

void RibbedCompliance(const DesignRecord& record, const ResultsRecord& results,
                      std::int16_t& centerLift, std::int16_t& edgeLift, std::int16_t& centerDown,
                      std::int16_t& edgeDown, std::int16_t& bearing, std::int16_t& cracked,
                      std::int16_t showAll, StyledText& box) {
    Clear(box);
    const bool all = showAll != 0;
    const double allowTension = results.AllowTension;
    const double allowCompression = results.AllowCompression;

    if (record.SoilType == ExpansiveSoil) {
        ListSoilBearing(box, results, bearing, all);

        AppendSectionHeading(box, "CENTER LIFT MODE :");
        ListLiftRows(box, LiftMode::CenterLift, CenterLiftValues(results), allowTension,
                     allowCompression, centerLift, cracked, all);
        CloseSection(box, centerLift != 0 || cracked != 0, all);

        AppendSectionHeading(box, "EDGE LIFT MODE :");
        const std::int16_t edgeLiftCracked =
            ListLiftRows(box, LiftMode::EdgeLift, EdgeLiftValues(results), allowTension,
                         allowCompression, edgeLift, cracked, all);
        CloseSection(box, edgeLift != 0 || edgeLiftCracked != 0, all);
    } else if (record.SoilType == CompressibleSoil) {
        ListSoilBearing(box, results, bearing, all);

        AppendSectionHeading(box, "COMPRESSIBLE SOIL MODE (CENTER DOWN) :");
        ListDownRows(box, CenterDownValues(results), allowTension, allowCompression, centerDown,
                     all);
        CloseSection(box, centerDown != 0, all);

        if (record.CLSettleState == 1) {
            AppendSectionHeading(box, "COMPRESSIBLE SOIL MODE (EDGE DOWN) :");
            ListDownRows(box, EdgeDownValues(results), allowTension, allowCompression, edgeDown,
                         all);
            CloseSection(box, edgeDown != 0, all);
        }
    }
}

void UniformCompliance(const DesignRecord& record, const ResultsRecord& results,
                       std::int16_t ribbedOutCount, std::int16_t& centerLift,
                       std::int16_t& edgeLift, std::int16_t& centerDown, std::int16_t& edgeDown,
                       std::int16_t showAll, StyledText& box) {
    Clear(box);
    const bool all = showAll != 0;
    const double allowTension = results.AllowTension;
    const double allowCompression = results.AllowCompression;

    // The uniform thickness foundation is derived from the ribbed one, so the ribbed
    // foundation's compliance heads its list; the sections below are listed either way.
    AppendSectionHeading(box, "RIBBED FOUNDATION COMPLIANCE :");
    if (ribbedOutCount < 1) {
        AppendItemLine(box, "RIBBED FOUNDATION IN COMPLIANCE", false);
    } else {
        AppendItemLine(box,
                       "RIBBED FOUNDATION HAS " + std::to_string(ribbedOutCount) +
                           " ITEMS OUT OF COMPLIANCE - UNIFORM THICKNESS ANALYSIS INVALID",
                       true);
    }

    if (record.SoilType == ExpansiveSoil) {
        AppendSectionHeading(box, "UNIFORM THICKNESS FOUNDATION - CENTER LIFT MODE :");
        ListLiftRows(box, LiftMode::CenterLift, UniformCenterLiftValues(results), allowTension,
                     allowCompression, centerLift, centerLift, all);
        CloseSection(box, centerLift != 0, all);

        AppendSectionHeading(box, "UNIFORM THICKNESS FOUNDATION - EDGE LIFT MODE :");
        ListLiftRows(box, LiftMode::EdgeLift, UniformEdgeLiftValues(results), allowTension,
                     allowCompression, edgeLift, edgeLift, all);
        CloseSection(box, edgeLift != 0, all);
    } else if (record.SoilType == CompressibleSoil) {
        AppendSectionHeading(
            box, "UNIFORM THICKNESS FOUNDATION - COMPRESSIBLE SOIL MODE - CENTER DOWN :");
        ListDownRows(box, UniformCenterDownValues(results), allowTension, allowCompression,
                     centerDown, all);
        CloseSection(box, centerDown != 0, all);

        if (record.CLSettleState == 1) {
            AppendSectionHeading(box, "UNIFORM THICKNESS FOUNDATION - EDGE DOWN :");
            ListDownRows(box, UniformEdgeDownValues(results), allowTension, allowCompression,
                         edgeDown, all);
            CloseSection(box, edgeDown != 0, all);
        }
    }
}

void LineLoadCompliance(const DesignRecord& record, const ResultsRecord& results,
                        std::int16_t& ribbed, std::int16_t& uniform, std::int16_t showAll,
                        StyledText& box) {
    Clear(box);
    ListLineLoad(box,
                 {record.SlabThick, results.LLStressCompression, results.LLStressTension,
                  results.ExcessLLCompression, results.ExcessLLTension},
                 results.AllowTension, results.AllowCompression, ribbed, showAll);
    if (record.FlatSlab == 1) {
        ListLineLoad(box,
                     {results.UTThickness, results.UTLLStressCompression, results.UTLLStressTension,
                      results.UTExcessLLCompression, results.UTExcessLLTension},
                     results.AllowTension, results.AllowCompression, uniform, showAll);
    }
}
