#include "compliance/design_checks.h"

#include "compliance/checked_rows.h"
#include "compliance/compliance_pass.h"
#include "compliance/compliance_summaries.h"
#include "compliance/design_exceptions.h"
#include "compliance/list_lines.h"

#include <array>
#include <cmath>

namespace {

constexpr std::int16_t ExpansiveSoil = 0;
constexpr std::int16_t CompressibleSoil = 1;

const char* UnitOf(RowItem item) {
    switch (item) {
    case RowItem::Tension:
    case RowItem::Compression:
    case RowItem::LineLoadTension:
        return "ksi";
    case RowItem::Stiffness:
        return "in^4";
    case RowItem::Deflection:
        return "in";
    case RowItem::Shear:
    case RowItem::LineLoadCompression:
        return "psi";
    case RowItem::CrackedCapacity:
        return "ft-k";
    case RowItem::SoilBearing:
        return "psf";
    }
    return nullptr;
}

// Demand over limit. A fibre is checked in tension only when it is in tension (negative) and
// in compression only when it is in compression (positive); otherwise it uses none of its
// allowable.
std::optional<double> RowRatio(const CheckedRow& row) {
    const double demand = row.value.value;
    const double limit = row.limit.value;
    if (limit == 0) {
        return std::nullopt;
    }
    const bool tension = row.item == RowItem::Tension || row.item == RowItem::LineLoadTension;
    const bool compression =
        row.item == RowItem::Compression || row.item == RowItem::LineLoadCompression;
    if ((tension && !(demand < 0)) || (compression && !(demand > 0))) {
        return 0.0;
    }
    const double ratio = demand / limit;
    if (!std::isfinite(ratio)) {
        return std::nullopt;
    }
    return ratio;
}

CheckStatus RowStatus(const CheckedRow& row) {
    if (row.item == RowItem::CrackedCapacity && row.valid == 0) {
        return CheckStatus::NotCalculated;
    }
    return RowWithinLimit(row) ? CheckStatus::Ok : CheckStatus::Ng;
}

// Where the table is written, and what the checks that follow share.
struct TableWriter {
    std::vector<DesignCheck>& checks;
    Foundation foundation;
    CheckMode mode = CheckMode::Rules;
    const char* reference = nullptr;
    bool failedOnly = false; // only the checks that are not ok are written

    void row(const char* item, CheckDirection direction, const CheckedRow& r) {
        const CheckStatus status = RowStatus(r);
        if (failedOnly && status == CheckStatus::Ok) {
            return;
        }
        const char* unit = UnitOf(r.item);
        // Written in place: the table of a search is built for many candidates.
        DesignCheck& check = checks.emplace_back();
        check.foundation = foundation;
        check.mode = mode;
        check.direction = direction;
        check.item = item;
        check.demand = CheckQuantity{r.value.name, r.value.value, unit};
        check.limit = CheckQuantity{r.limit.name, r.limit.value, unit};
        check.ratio = RowRatio(r);
        check.status = status;
        check.reference = reference;
    }

    void rule(const char* name, const char* item, CheckDirection direction, bool broken,
              std::optional<CheckQuantity> demand, std::optional<CheckQuantity> limit,
              const char* ruleReference) {
        if (failedOnly && !broken) {
            return;
        }
        // Written in place: the table of a search is built for many candidates.
        DesignCheck& check = checks.emplace_back();
        check.foundation = foundation;
        check.mode = CheckMode::Rules;
        check.direction = direction;
        check.rule = name;
        check.item = item;
        check.demand = demand;
        check.limit = limit;
        check.status = broken ? CheckStatus::Ng : CheckStatus::Ok;
        check.reference = ruleReference;
    }
};

// The fibre in tension and the one in compression of each mode.
struct FibreItems {
    const char* tension;
    const char* compression;
};
constexpr FibreItems TopInTension{"Tension in top fiber", "Compression in bottom fiber"};
constexpr FibreItems BottomInTension{"Tension in bottom fiber", "Compression in top fiber"};

void AddMode(TableWriter& w, CheckMode mode, const ModeRows& rows, FibreItems fibres, bool lift) {
    w.mode = mode;
    // The compressible edge down mode is the center lift analysis of the manual's 6.13.2.
    w.reference = mode == CheckMode::EdgeDown ? "6.13.2" : nullptr;
    const DirectionRows& s = rows.shortDirection;
    const DirectionRows& l = rows.longDirection;
    w.row(fibres.tension, CheckDirection::Short, s.tension);
    w.row(fibres.tension, CheckDirection::Long, l.tension);
    w.row(fibres.compression, CheckDirection::Short, s.compression);
    w.row(fibres.compression, CheckDirection::Long, l.compression);
    const char* demand = lift ? "Stiffness" : "Deflection";
    w.row(demand, CheckDirection::Short, s.demand);
    w.row(demand, CheckDirection::Long, l.demand);
    w.row("Shear stress", CheckDirection::Short, s.shear);
    w.row("Shear stress", CheckDirection::Long, l.shear);
    if (lift) {
        w.row("Cracked moment capacity", CheckDirection::Short, s.cracked);
        w.row("Cracked moment capacity", CheckDirection::Long, l.cracked);
    }
    w.reference = nullptr;
}

struct ModeSet {
    ModeRows (*centerLift)(const ResultsRecord&);
    ModeRows (*edgeLift)(const ResultsRecord&);
    ModeRows (*centerDown)(const ResultsRecord&);
    ModeRows (*edgeDown)(const ResultsRecord&);
};
constexpr ModeSet RibbedModes{CenterLiftRows, EdgeLiftRows, CenterDownRows, EdgeDownRows};
constexpr ModeSet UniformModes{UniformCenterLiftRows, UniformEdgeLiftRows, UniformCenterDownRows,
                               UniformEdgeDownRows};

// The modes of the soil that was analysed, as the compliance lists have them.
void AddSoilModes(TableWriter& w, const DesignRecord& record, const ResultsRecord& r,
                  const ModeSet& modes) {
    if (record.SoilType == ExpansiveSoil) {
        AddMode(w, CheckMode::CenterLift, modes.centerLift(r), TopInTension, true);
        AddMode(w, CheckMode::EdgeLift, modes.edgeLift(r), BottomInTension, true);
    } else if (record.SoilType == CompressibleSoil) {
        AddMode(w, CheckMode::CenterDown, modes.centerDown(r), BottomInTension, false);
        if (record.CLSettleState == 1) {
            AddMode(w, CheckMode::EdgeDown, modes.edgeDown(r), TopInTension, false);
        }
    }
}

void AddLineLoad(TableWriter& w, const LineLoadRows& rows) {
    w.mode = CheckMode::LineLoad;
    w.row("Compression in extreme fiber", CheckDirection::None, rows.compression);
    w.row("Tension in extreme fiber", CheckDirection::None, rows.tension);
}

CheckQuantity Constant(double value, const char* unit) {
    return {nullptr, value, unit};
}

struct BeamGroup {
    std::int16_t quantity;
    const char* widthName;
    double width;
    const char* depthName;
    double depth;
};

// The present beam group (quantity not 0) that a beam rule looks at most closely: the narrowest,
// widest or shallowest, the first of equals; nothing without a present group.
enum class Extreme { Narrowest, Widest, Shallowest };
std::optional<CheckQuantity> BeamExtreme(const DesignRecord& r, Extreme extreme) {
    const std::array<BeamGroup, 4> groups{{{r.QS1, "WS1", r.WS1, "DS1", r.DS1},
                                           {r.QS2, "WS2", r.WS2, "DS2", r.DS2},
                                           {r.QL1, "WL1", r.WL1, "DL1", r.DL1},
                                           {r.QL2, "WL2", r.WL2, "DL2", r.DL2}}};
    std::optional<CheckQuantity> found;
    for (const BeamGroup& g : groups) {
        if (g.quantity == 0) {
            continue;
        }
        const CheckQuantity q = extreme == Extreme::Shallowest
                                    ? CheckQuantity{g.depthName, g.depth, "in"}
                                    : CheckQuantity{g.widthName, g.width, "in"};
        const bool closer = !found || (extreme == Extreme::Widest ? q.value > found->value
                                                                  : q.value < found->value);
        if (closer) {
            found = q;
        }
    }
    return found;
}

CheckQuantity DepthRatioQuantity(const BeamDepthRatio& ratio) {
    return {ratio.name, ratio.ratio, nullptr};
}

void AddRibbedRules(TableWriter& w, const DesignRecord& record, const ResultsRecord& r) {
    const RibbedRuleTests broken = TestRibbedRules(record, r);
    const BeamDepthRatio ratioShort = ShortDepthRatio(record);
    const BeamDepthRatio ratioLong = LongDepthRatio(record);
    const auto shallowest = BeamExtreme(record, Extreme::Shallowest);
    const auto none = CheckDirection::None;
    const auto shortWay = CheckDirection::Short;
    const auto longWay = CheckDirection::Long;

    w.rule("beamWidthMin", "Beam width at least 8 in", none, broken.beamWidthMin,
           BeamExtreme(record, Extreme::Narrowest), Constant(8, "in"), "4.5.2.3");
    w.rule("beamWidthMax", "Beam width at most 14 in", none, broken.beamWidthMax,
           BeamExtreme(record, Extreme::Widest), Constant(14, "in"), "4.5.2.3");
    w.rule("beamDepthMin", "Beam depth at least 11 in", none, broken.beamDepthMin, shallowest,
           Constant(11, "in"), "4.5.2.2");
    w.rule("beamBelowSlab", "Beams at least 7 in below the slab", none, broken.beamBelowSlab,
           shallowest, CheckQuantity{"SlabThick + 7", record.SlabThick + 7, "in"}, "4.5.2.2");
    w.rule("concreteStrength", "Concrete strength at least 2500 psi", none, broken.concreteStrength,
           CheckQuantity{"Fpc", record.Fpc, "psi"}, Constant(2500, "psi"), "7.1");
    w.rule("beamDepthRatio", "Beam depth ratio at most 1.2", shortWay,
           broken.beamDepthRatio.shortDirection, DepthRatioQuantity(ratioShort),
           Constant(1.2, nullptr), "4.5.2.2");
    w.rule("beamDepthRatio", "Beam depth ratio at most 1.2", longWay,
           broken.beamDepthRatio.longDirection, DepthRatioQuantity(ratioLong),
           Constant(1.2, nullptr), "4.5.2.2");
    w.rule("beamSpacingMax", "Beam spacing at most 15 ft", shortWay,
           broken.beamSpacingMax.shortDirection,
           CheckQuantity{"SpacingShort", r.SpacingShort, "ft"}, Constant(15, "ft"), "4.5.2.1");
    w.rule("beamSpacingMax", "Beam spacing at most 15 ft", longWay,
           broken.beamSpacingMax.longDirection, CheckQuantity{"SpacingLong", r.SpacingLong, "ft"},
           Constant(15, "ft"), "4.5.2.1");
    w.rule("beamSpacingMin", "Beam spacing at least 6 ft", shortWay,
           broken.beamSpacingMin.shortDirection,
           CheckQuantity{"SpacingShort", r.SpacingShort, "ft"}, Constant(6, "ft"), "4.5.2.1");
    w.rule("beamSpacingMin", "Beam spacing at least 6 ft", longWay,
           broken.beamSpacingMin.longDirection, CheckQuantity{"SpacingLong", r.SpacingLong, "ft"},
           Constant(6, "ft"), "4.5.2.1");
    w.rule("residualPrestress", "Residual prestress at least 50 psi", shortWay,
           broken.residualPrestress.shortDirection,
           CheckQuantity{"PsCenterShort", r.PsCenterShort, "psi"}, Constant(50, "psi"), "6.7");
    w.rule("residualPrestress", "Residual prestress at least 50 psi", longWay,
           broken.residualPrestress.longDirection,
           CheckQuantity{"PsCenterLong", r.PsCenterLong, "psi"}, Constant(50, "psi"), "6.7");
}

std::int16_t CountBroken(const RibbedRules& rules) {
    std::int16_t count = 0;
    for (const bool broken : rules) {
        if (broken) {
            CountItem(count);
        }
    }
    return count;
}

// The rules that keep the uniform thickness foundation, which is derived from the ribbed one,
// valid: the ribbed foundation breaks no rule of the manual and has no item out of compliance
// (counted as the compliance list counts `RibbedOutCount`), and the slab is thick enough.
void AddUniformRules(TableWriter& w, const DesignRecord& record, const ResultsRecord& r) {
    const std::int16_t ribbedExceptions = CountBroken(RibbedRulesBroken(record, r));
    RibbedCounters c;
    ListTarget countOnly;
    RibbedCompliance(record, r, c, 0, countOnly);
    const std::int16_t ribbedOut = RibbedOutCountFor(record.SoilType, c);
    const UniformRules broken = UniformRulesBroken(record, r, ribbedExceptions);
    const auto none = CheckDirection::None;
    w.rule("ribbedExceptions", "Ribbed foundation without PTI exceptions", none, broken[0],
           CheckQuantity{nullptr, static_cast<double>(ribbedExceptions), nullptr},
           Constant(0, nullptr), "4.5.3");
    w.rule("ribbedCompliance", "Ribbed foundation in compliance", none, !(ribbedOut < 1),
           CheckQuantity{"RibbedOutCount", static_cast<double>(ribbedOut), nullptr},
           Constant(0, nullptr), nullptr);
    w.rule("uniformThickness", "Uniform thickness at least 7.5 in", none, broken[1],
           CheckQuantity{"UTThickness", r.UTThickness, "in"}, Constant(7.5, "in"), "4.5.3");
}

} // namespace

std::vector<DesignCheck> DesignChecks(const DesignRecord& record, const ResultsRecord& results) {
    std::vector<DesignCheck> checks;
    FillDesignChecks(record, results, checks);
    return checks;
}

namespace {

void WriteTable(const DesignRecord& record, const ResultsRecord& results,
                std::vector<DesignCheck>& checks, bool failedOnly) {
    checks.clear();
    checks.reserve(96);

    TableWriter ribbed{checks, Foundation::Ribbed};
    ribbed.failedOnly = failedOnly;
    if (record.SoilType == ExpansiveSoil || record.SoilType == CompressibleSoil) {
        ribbed.mode = CheckMode::Bearing;
        ribbed.row("Soil bearing pressure", CheckDirection::None, SoilBearingRow(record, results));
    }
    AddSoilModes(ribbed, record, results, RibbedModes);
    if (record.LineLoadType == 1) {
        AddLineLoad(ribbed, RibbedLineLoadRows(results));
    }
    AddRibbedRules(ribbed, record, results);

    if (record.FlatSlab == 1) {
        TableWriter uniform{checks, Foundation::Uniform};
        uniform.failedOnly = failedOnly;
        AddSoilModes(uniform, record, results, UniformModes);
        if (record.LineLoadType == 1) {
            AddLineLoad(uniform, UniformLineLoadRows(results));
        }
        AddUniformRules(uniform, record, results);
    }
}

} // namespace

void FillDesignChecks(const DesignRecord& record, const ResultsRecord& results,
                      std::vector<DesignCheck>& checks) {
    WriteTable(record, results, checks, false);
}

void FillFailedChecks(const DesignRecord& record, const ResultsRecord& results,
                      std::vector<DesignCheck>& checks) {
    WriteTable(record, results, checks, true);
}

namespace {

FoundationVerdict Judge(Foundation foundation, std::span<const DesignCheck> checks) {
    FoundationVerdict verdict;
    for (std::size_t i = 0; i < checks.size(); ++i) {
        const DesignCheck& check = checks[i];
        if (check.foundation != foundation) {
            continue;
        }
        if (check.status != CheckStatus::Ok) {
            verdict.pass = false;
            ++verdict.notOk;
        }
        if (check.ratio &&
            (!verdict.governing || *check.ratio > *checks[*verdict.governing].ratio)) {
            verdict.governing = i;
        }
    }
    return verdict;
}

} // namespace

DesignVerdict JudgeDesign(const DesignRecord& record, std::span<const DesignCheck> checks) {
    DesignVerdict verdict;
    verdict.ribbed = Judge(Foundation::Ribbed, checks);
    if (record.FlatSlab == 1) {
        verdict.uniform = Judge(Foundation::Uniform, checks);
    }
    return verdict;
}
