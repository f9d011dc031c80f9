#include "plan/foundation_plan.h"

#include "common/number_pattern.h"

#include <cmath>

namespace {

// Slab tendons beyond this number are not placed one by one: no drawing could show them.
constexpr double MostSlabTendonsDrawn = 2000;

struct BeamGroup {
    PlanDirection direction;
    int type;
    std::int16_t quantity;
    double depth;
    double width;
    double tendons;
    double cover;
};

const char* DirectionWord(PlanDirection direction) {
    return direction == PlanDirection::Short ? "short" : "long";
}

std::string Feet(double value) {
    return FormatNumber(value, "#,##0.00") + " ft";
}

std::string Inches(double value) {
    return FormatNumber(value, "#,##0.00") + " in";
}

// Why the beams of one direction cannot be drawn on their side, or nothing.
std::string DirectionReason(PlanDirection direction, const BeamGroup& first,
                            const BeamGroup& second, double sideFt) {
    const std::string name = DirectionWord(direction);
    for (const BeamGroup* group : {&first, &second}) {
        const std::string groupName =
            name + " direction Type " + std::to_string(group->type) + " beams";
        if (group->quantity < 0) {
            return "The quantity of " + groupName + " is " + std::to_string(group->quantity) +
                   ": a quantity cannot be negative.";
        }
        if (group->quantity == 0) {
            continue;
        }
        if (!std::isfinite(group->width) || group->width <= 0) {
            return "The " + groupName + " have no width: a beam needs a width greater than 0.";
        }
        if (!std::isfinite(group->depth) || group->depth <= 0) {
            return "The " + groupName + " have no depth: a beam needs a depth greater than 0.";
        }
        if (!std::isfinite(group->tendons) || !std::isfinite(group->cover)) {
            return "The tendons of the " + groupName + " are not a number.";
        }
    }
    const int count = first.quantity + second.quantity;
    const std::string atEdges = ": a plan needs at least two beams in each direction, one at "
                                "each edge, with the gaps between them.";
    if (count == 0) {
        return "There are no " + name + " direction beams" + atEdges;
    }
    if (count == 1) {
        return "There is only one " + name + " direction beam" + atEdges;
    }
    const double summedWidth = (second.quantity * second.width + first.quantity * first.width) / 12;
    if (summedWidth > sideFt) {
        const char* side = direction == PlanDirection::Short ? "length" : "width";
        return "The " + std::to_string(count) + " " + name + " direction beams, " +
               Feet(summedWidth) + " wide together, do not fit in the " + side + " of " +
               Feet(sideFt) + ".";
    }
    return {};
}

std::string RecordReason(const DesignRecord& record, const BeamGroup groups[4]) {
    if (!std::isfinite(record.RectWidth) || record.RectWidth <= 0) {
        return "The rectangle width is " + Feet(record.RectWidth) +
               ": a plan needs a width and a length greater than 0.";
    }
    if (!std::isfinite(record.RectLength) || record.RectLength <= 0) {
        return "The rectangle length is " + Feet(record.RectLength) +
               ": a plan needs a width and a length greater than 0.";
    }
    if (!std::isfinite(record.SlabThick) || record.SlabThick <= 0) {
        return "The slab thickness is " + Inches(record.SlabThick) +
               ": a section needs a slab thicker than 0.";
    }
    std::string reason =
        DirectionReason(PlanDirection::Short, groups[0], groups[1], record.RectLength);
    if (reason.empty()) {
        reason = DirectionReason(PlanDirection::Long, groups[2], groups[3], record.RectWidth);
    }
    return reason;
}

PlanSlabTendons SlabTendonsOf(double count, double spacing, double sideFt) {
    PlanSlabTendons tendons;
    tendons.count = std::isfinite(count) ? count : 0;
    tendons.spacing = std::isfinite(spacing) ? spacing : 0;
    if (tendons.count <= MostSlabTendonsDrawn) {
        tendons.places = SlabTendonPlaces(sideFt, tendons.count, tendons.spacing);
    }
    return tendons;
}

} // namespace

FoundationPlan PlanOf(const DesignRecord& record, const ResultsRecord& results) {
    FoundationPlan plan;
    plan.width = record.RectWidth;
    plan.length = record.RectLength;
    plan.slabThick = record.SlabThick;
    const BeamGroup groups[4] = {
        {PlanDirection::Short, 1, record.QS1, record.DS1, record.WS1, record.TS1, record.CS1},
        {PlanDirection::Short, 2, record.QS2, record.DS2, record.WS2, record.TS2, record.CS2},
        {PlanDirection::Long, 1, record.QL1, record.DL1, record.WL1, record.TL1, record.CL1},
        {PlanDirection::Long, 2, record.QL2, record.DL2, record.WL2, record.TL2, record.CL2},
    };
    plan.reason = RecordReason(record, groups);
    if (!plan.reason.empty()) {
        return plan;
    }
    if (record.RectWidth > record.RectLength) {
        plan.notes.push_back("The width, " + Feet(record.RectWidth) +
                             ", is greater than the length, " + Feet(record.RectLength) +
                             ": the width is the short side.");
    }

    for (const PlanDirection direction : {PlanDirection::Short, PlanDirection::Long}) {
        const BeamGroup& first = groups[direction == PlanDirection::Short ? 0 : 2];
        const BeamGroup& second = groups[direction == PlanDirection::Short ? 1 : 3];
        const double side = direction == PlanDirection::Short ? plan.length : plan.width;
        std::vector<PlanBeam> beams =
            LayOutBeams(side, first.quantity, first.width, second.quantity, second.width);
        for (PlanBeam& beam : beams) {
            const BeamGroup& group = beam.type == 1 ? first : second;
            beam.direction = direction;
            beam.depth = group.depth;
            beam.tendons = group.tendons;
            beam.cover = group.cover;
        }
        // The clear gap of the bearing area: the side less the beams, over the gaps between.
        const double summedWidth =
            (second.quantity * second.width + first.quantity * first.width) / 12;
        const double gap = (side - summedWidth) / (first.quantity + second.quantity - 1);
        (direction == PlanDirection::Short ? plan.gapShort : plan.gapLong) = gap;
        plan.beams.insert(plan.beams.end(), beams.begin(), beams.end());
    }

    plan.spacingShort = results.SpacingShort;
    plan.spacingLong = results.SpacingLong;
    plan.slabTendonsShort =
        SlabTendonsOf(results.SlabTenShort, results.SlabTenSpacingShort, plan.length);
    plan.slabTendonsLong =
        SlabTendonsOf(results.SlabTenLong, results.SlabTenSpacingLong, plan.width);

    for (const BeamGroup& group : groups) {
        if (group.quantity == 0) {
            continue;
        }
        TypicalSection section;
        section.direction = group.direction;
        section.type = group.type;
        section.slabThick = record.SlabThick;
        section.width = group.width;
        section.depth = group.depth;
        section.tendons = group.tendons;
        section.cover = group.cover;
        section.slabTendonDepth = group.direction == PlanDirection::Short ? results.CgSlabTenShort
                                                                          : results.CgSlabTenLong;
        section.tendonDiameter = record.TendDiam;
        plan.sections.push_back(section);
    }
    return plan;
}
