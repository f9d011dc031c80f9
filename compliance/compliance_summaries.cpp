#include "compliance/compliance_summaries.h"

#include "common/number_pattern.h"
#include "compliance/checked_rows.h"
#include "compliance/limit_items.h"
#include "compliance/list_lines.h"
#include "compliance/mode_sections.h"

#include <string>

namespace {

constexpr std::int16_t ExpansiveSoil = 0;
constexpr std::int16_t CompressibleSoil = 1;

// The soil bearing section. A failed bearing check sets its counter to 1; the text of the row
// has a blank before the percentage only when it fails.
void ListSoilBearing(ListTarget& target, const CheckedRow& row, std::int16_t& bearing,
                     bool showAll) {
    AppendSectionHeading(target, "SOIL BEARING :  ");
    NoteMargin(target, row.excess);
    if (!RowWithinLimit(row)) {
        if (target.box != nullptr) {
            AppendItemLine(target, ItemText("SOIL BEARING : ", row.excess), true);
        }
        bearing = 1;
    } else if (showAll && target.box != nullptr) {
        AppendItemLine(target, ItemText("SOIL BEARING :", row.excess), false);
    }
    CloseSection(target, bearing != 0, showAll);
}

void ListLineLoad(ListTarget& target, double slabThickness, const LineLoadRows& rows,
                  std::int16_t& counter, std::int16_t showAll) {
    if (target.box != nullptr) {
        AppendSectionHeading(target, "LINE LOAD ANALYSIS ( " +
                                         FormatNumber(slabThickness, "#,##0.00") +
                                         " INCH THICK SLAB " + ") :");
    }
    const LimitItem items[] = {
        {"COMPRESSION IN EXTREME FIBER : ", rows.compression},
        {"TENSION IN EXTREME FIBER : ", rows.tension},
    };
    ListItems(target, items, counter, showAll != 0);
    if (counter == 0 && showAll != 1) {
        AppendItemLine(target, "ALL VALUES WITHIN ALLOWABLE LIMITS.", false);
    }
}

} // namespace

void RibbedCompliance(const DesignRecord& record, const ResultsRecord& results,
                      RibbedCounters& counters, std::int16_t showAll, StyledText& box) {
    Clear(box);
    ListTarget target;
    target.box = &box;
    RibbedCompliance(record, results, counters, showAll, target);
}

void RibbedCompliance(const DesignRecord& record, const ResultsRecord& results,
                      RibbedCounters& counters, std::int16_t showAll, ListTarget& target) {
    const bool all = showAll != 0;
    std::int16_t& centerLift = counters.centerLift;
    std::int16_t& edgeLift = counters.edgeLift;
    std::int16_t& centerDown = counters.centerDown;
    std::int16_t& edgeDown = counters.edgeDown;
    std::int16_t& bearing = counters.bearing;
    std::int16_t& cracked = counters.cracked;

    if (record.SoilType == ExpansiveSoil) {
        ListSoilBearing(target, SoilBearingRow(record, results), bearing, all);

        AppendSectionHeading(target, "CENTER LIFT MODE :");
        ListLiftRows(target, LiftMode::CenterLift, CenterLiftRows(results), centerLift, cracked,
                     all);
        CloseSection(target, centerLift != 0 || cracked != 0, all);

        AppendSectionHeading(target, "EDGE LIFT MODE :");
        const std::int16_t edgeLiftCracked =
            ListLiftRows(target, LiftMode::EdgeLift, EdgeLiftRows(results), edgeLift, cracked, all);
        CloseSection(target, edgeLift != 0 || edgeLiftCracked != 0, all);
    } else if (record.SoilType == CompressibleSoil) {
        ListSoilBearing(target, SoilBearingRow(record, results), bearing, all);

        AppendSectionHeading(target, "COMPRESSIBLE SOIL MODE (CENTER DOWN) :");
        ListDownRows(target, CenterDownRows(results), centerDown, all);
        CloseSection(target, centerDown != 0, all);

        if (record.CLSettleState == 1) {
            AppendSectionHeading(target, "COMPRESSIBLE SOIL MODE (EDGE DOWN) :");
            ListDownRows(target, EdgeDownRows(results), edgeDown, all);
            CloseSection(target, edgeDown != 0, all);
        }
    }
}

void UniformCompliance(const DesignRecord& record, const ResultsRecord& results,
                       std::int16_t ribbedOutCount, UniformCounters& counters, std::int16_t showAll,
                       StyledText& box) {
    Clear(box);
    ListTarget target;
    target.box = &box;
    UniformCompliance(record, results, ribbedOutCount, counters, showAll, target);
}

void UniformCompliance(const DesignRecord& record, const ResultsRecord& results,
                       std::int16_t ribbedOutCount, UniformCounters& counters, std::int16_t showAll,
                       ListTarget& target) {
    const bool all = showAll != 0;
    std::int16_t& centerLift = counters.centerLift;
    std::int16_t& edgeLift = counters.edgeLift;
    std::int16_t& centerDown = counters.centerDown;
    std::int16_t& edgeDown = counters.edgeDown;

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
        ListLiftRows(target, LiftMode::CenterLift, UniformCenterLiftRows(results), centerLift,
                     centerLift, all);
        CloseSection(target, centerLift != 0, all);

        AppendSectionHeading(target, "UNIFORM THICKNESS FOUNDATION - EDGE LIFT MODE :");
        ListLiftRows(target, LiftMode::EdgeLift, UniformEdgeLiftRows(results), edgeLift, edgeLift,
                     all);
        CloseSection(target, edgeLift != 0, all);
    } else if (record.SoilType == CompressibleSoil) {
        AppendSectionHeading(
            target, "UNIFORM THICKNESS FOUNDATION - COMPRESSIBLE SOIL MODE - CENTER DOWN :");
        ListDownRows(target, UniformCenterDownRows(results), centerDown, all);
        CloseSection(target, centerDown != 0, all);

        if (record.CLSettleState == 1) {
            AppendSectionHeading(target, "UNIFORM THICKNESS FOUNDATION - EDGE DOWN :");
            ListDownRows(target, UniformEdgeDownRows(results), edgeDown, all);
            CloseSection(target, edgeDown != 0, all);
        }
    }
}

void LineLoadCompliance(const DesignRecord& record, const ResultsRecord& results,
                        LineLoadCounters& counters, std::int16_t showAll, StyledText& box) {
    Clear(box);
    ListTarget target;
    target.box = &box;
    LineLoadCompliance(record, results, counters, showAll, target);
}

void LineLoadCompliance(const DesignRecord& record, const ResultsRecord& results,
                        LineLoadCounters& counters, std::int16_t showAll, ListTarget& target) {
    ListLineLoad(target, record.SlabThick, RibbedLineLoadRows(results), counters.ribbed, showAll);
    if (record.FlatSlab == 1) {
        ListLineLoad(target, results.UTThickness, UniformLineLoadRows(results), counters.uniform,
                     showAll);
    }
}
