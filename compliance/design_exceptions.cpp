#include "compliance/design_exceptions.h"

#include "compliance/list_lines.h"
#include "engine/checked_math.h"

#include <string>

namespace {

struct BeamGroup {
    std::int16_t quantity;
    double width;
    double depth;
};

// The beam rules that at least one present group (quantity not 0) breaks.
struct BeamRulesBroken {
    bool tooNarrow = false;
    bool tooWide = false;
    bool tooShallow = false;
    bool notBelowSlab = false; // less than 7 inches below the bottom of the slab
};

BeamRulesBroken BeamRulesBrokenBy(const DesignRecord& record) {
    const BeamGroup groups[] = {{record.QS1, record.WS1, record.DS1},
                                {record.QS2, record.WS2, record.DS2},
                                {record.QL1, record.WL1, record.DL1},
                                {record.QL2, record.WL2, record.DL2}};
    BeamRulesBroken broken;
    for (const BeamGroup& group : groups) {
        if (group.quantity == 0) {
            continue;
        }
        broken.tooNarrow = broken.tooNarrow || group.width < 8;
        broken.tooWide = broken.tooWide || group.width > 14;
        broken.tooShallow = broken.tooShallow || group.depth < 11;
        broken.notBelowSlab = broken.notBelowSlab || record.SlabThick + 7 > group.depth;
    }
    return broken;
}

// The deepest beam depth of one direction over its shallowest. The second group is the deepest
// only when it is present and deeper than the first; the first group's depth counts as the
// deepest whether it is present or not. The shallowest is taken from the present groups with a
// depth.
//
// `names` are the four quotients a direction can have: first over first, first over second,
// second over first, second over second.
using RatioNames = std::array<const char*, 4>;
BeamDepthRatio DepthRatio(const RatioNames& names, std::int16_t quantity1, double depth1,
                          std::int16_t quantity2, double depth2) {
    bool deepestIsSecond = false;
    double deepest = depth1;
    if (quantity2 != 0 && depth2 > depth1) {
        deepestIsSecond = true, deepest = depth2;
    }
    bool shallowestIsSecond = false;
    double shallowest = 0;
    if (depth1 != 0 && quantity1 != 0) {
        shallowest = depth1;
    }
    if (depth2 != 0 && quantity2 != 0) {
        if (!(shallowest != 0 && depth2 >= shallowest)) {
            shallowestIsSecond = true, shallowest = depth2;
        }
    }
    const double ratio = Real(deepest) / shallowest;
    return {names[(deepestIsSecond ? 2 : 0) + (shallowestIsSecond ? 1 : 0)], ratio};
}

void ReportException(StyledText& box, std::int16_t& count,
                     std::initializer_list<std::string> messages, const std::string& reference) {
    CountItem(count);
    for (const std::string& message : messages) {
        AppendMessageLine(box, message);
    }
    AppendReferenceLine(box, reference);
}

constexpr const char* NoExceptions = "NO PTI EXCEPTIONS EXIST";

} // namespace

BeamDepthRatio ShortDepthRatio(const DesignRecord& record) {
    static constexpr RatioNames names{"DS1 / DS1", "DS1 / DS2", "DS2 / DS1", "DS2 / DS2"};
    return DepthRatio(names, record.QS1, record.DS1, record.QS2, record.DS2);
}

BeamDepthRatio LongDepthRatio(const DesignRecord& record) {
    static constexpr RatioNames names{"DL1 / DL1", "DL1 / DL2", "DL2 / DL1", "DL2 / DL2"};
    return DepthRatio(names, record.QL1, record.DL1, record.QL2, record.DL2);
}

RibbedRuleTests TestRibbedRules(const DesignRecord& record, const ResultsRecord& results) {
    RibbedRuleTests broken;
    const BeamRulesBroken beams = BeamRulesBrokenBy(record);
    broken.beamWidthMin = beams.tooNarrow;
    broken.beamWidthMax = beams.tooWide;
    broken.beamDepthMin = beams.tooShallow;
    broken.beamBelowSlab = beams.notBelowSlab;
    // Both ratios are worked out before either is looked at, so that a direction without beams
    // faults whatever the other gives.
    const double ratioShort = ShortDepthRatio(record).ratio;
    const double ratioLong = LongDepthRatio(record).ratio;
    broken.beamDepthRatio = {ratioShort > 1.2, ratioLong > 1.2};
    // The spacings used in the analysis, after the six foot rule has lifted them.
    broken.beamSpacingMax = {results.SpacingShort > 15, results.SpacingLong > 15};
    broken.beamSpacingMin = {results.SpacingShort < 6 && record.SixFtRule == 0,
                             results.SpacingLong < 6 && record.SixFtRule == 0};
    // The texts say "greater than", but exactly 50 psi and exactly 2500 psi pass.
    broken.residualPrestress = {results.PsCenterShort < 50, results.PsCenterLong < 50};
    broken.concreteStrength = record.Fpc < 2500;
    return broken;
}

RibbedRules RibbedRulesBroken(const DesignRecord& record, const ResultsRecord& results) {
    const RibbedRuleTests t = TestRibbedRules(record, results);
    const auto either = [](const DirectionRule& rule) {
        return rule.shortDirection || rule.longDirection;
    };
    return {t.beamWidthMin,           t.beamWidthMax,
            t.beamDepthMin,           t.beamBelowSlab,
            either(t.beamDepthRatio), either(t.beamSpacingMax),
            either(t.beamSpacingMin), either(t.residualPrestress),
            t.concreteStrength};
}

void RibbedExceptions(const DesignRecord& record, const ResultsRecord& results, std::int16_t& count,
                      StyledText& box) {
    Clear(box);

    const RibbedRules broken = RibbedRulesBroken(record, results);
    if (broken[0]) {
        ReportException(box, count,
                        {"BEAM WIDTHS USED IN ANALYSIS SHALL NOT BE LESS THAN 8 INCHES"},
                        "(PTI 3rd Edition 4.5.2.3)");
    }
    if (broken[1]) {
        ReportException(box, count,
                        {"BEAM WIDTHS USED IN ANALYSIS SHALL NOT BE GREATER THAN 14 INCHES"},
                        "(PTI 3rd Edition 4.5.2.3)");
    }
    if (broken[2]) {
        ReportException(box, count, {"BEAM DEPTHS SHALL NOT BE LESS THAN 11 INCHES"},
                        "(PTI 3rd Edition 4.5.2.2)");
    }
    if (broken[3]) {
        ReportException(box, count,
                        {"BEAMS MUST EXTEND AT LEAST 7 INCHES BELOW THE BOTTOM OF THE SLAB"},
                        "(PTI 3rd Edition 4.5.2.2)");
    }
    if (broken[4]) {
        ReportException(box, count,
                        {"DIFFERENT BEAM DEPTHS USED IN ANALYSIS SHALL NOT HAVE A RATIO BETWEEN",
                         "THE DEEPEST AND SHALLOWEST BEAM DEPTH EXCEED 1.2"},
                        "(PTI 3rd Edition 4.5.2.2)");
    }
    if (broken[5]) {
        ReportException(box, count, {"BEAM SPACING SHALL BE A MAXIMUM OF 15 FEET"},
                        "(PTI 3rd Edition 4.5.2.1)");
    }
    if (broken[6]) {
        ReportException(box, count, {"BEAM SPACING USED IN ANALYSIS SHALL BE A MINIMUM OF 6 FEET"},
                        "(PTI 3rd Edition 4.5.2.1)");
    }
    if (broken[7]) {
        ReportException(box, count,
                        {"MINIMUM RESIDUAL PRESTRESS FORCE SHALL BE GREATER THAN 0.05A"},
                        "(PTI 3rd Edition 6.7)");
    }
    if (broken[8]) {
        ReportException(box, count,
                        {"28-DAY COMPRESSIVE STRENGTH OF CONCRETE SHALL BE GREATER THAN 2500 PSI"},
                        "(PTI 3rd Edition 7.1)");
    }

    if (count == 0) {
        AppendCleanText(box, NoExceptions);
    }
}

UniformRules UniformRulesBroken(const DesignRecord& record, const ResultsRecord& results,
                                std::int16_t ribbedCount) {
    UniformRules broken{};
    if (record.FlatSlab == 1) {
        broken[0] = ribbedCount != 0;
        broken[1] = results.UTThickness < 7.5;
    }
    return broken;
}

void UniformExceptions(const DesignRecord& record, const ResultsRecord& results,
                       std::int16_t& count, std::int16_t& ribbedCount, StyledText& box) {
    Clear(box);

    // The uniform thickness foundation is derived from the ribbed one: any ribbed exception
    // makes it invalid, and stands here as one exception that gives their number.
    const UniformRules broken = UniformRulesBroken(record, results, ribbedCount);
    if (broken[0]) {
        ReportException(box, count,
                        {"UNIFORM THICKNESS FOUNDATION ANALYSIS INVALID SINCE RIBBED FOUNDATION",
                         "HAS " + std::to_string(ribbedCount) + " PTI EXCEPTIONS"},
                        "(PTI 3rd Edition 4.5.3)");
    }
    if (broken[1]) {
        ReportException(
            box, count,
            {"UNIFORM THICKNESS FOUNDATION SHOULD BE A MINIMUM OF 7.5 INCHES THICK, UNLESS",
             "A CONTINUOUS STIFFENING BEAM COMPLYING WITH PTI 3rd EDITION 4.5.22 AND 4.5.2.3",
             "IS PROVIDED ALONG THE ENTIRE PERIMETER OF THE FOUNDATION"},
            "(PTI 3rd Edition 4.5.3)");
    }

    if (count == 0) {
        Clear(box);
        AppendCleanText(box, NoExceptions);
    }
}
