#include "compliance/mode_sections.h"

#include "compliance/limit_items.h"
#include "compliance/list_lines.h"

namespace {

CrackedItem Cracked(const char* label, const char* notCalculated, const DirectionRows& d) {
    return {label, notCalculated, d.cracked};
}

// The stress labels of center lift and of both compressible modes have two blanks after
// "LONG"; those of edge lift have one.
constexpr const char* TensionShort = "BENDING STRESS IN SHORT DIRECTION (TENSION) : ";
constexpr const char* CompressionShort = "BENDING STRESS IN SHORT DIRECTION (COMPRESSION) : ";
constexpr const char* TensionLongTwoBlanks = "BENDING STRESS IN LONG  DIRECTION (TENSION) : ";
constexpr const char* CompressionLongTwoBlanks =
    "BENDING STRESS IN LONG  DIRECTION (COMPRESSION) : ";
constexpr const char* TensionLong = "BENDING STRESS IN LONG DIRECTION (TENSION) : ";
constexpr const char* CompressionLong = "BENDING STRESS IN LONG DIRECTION (COMPRESSION) : ";

constexpr const char* ShearShort = "SHEAR STRESS IN SHORT DIRECTION : ";
constexpr const char* ShearLong = "SHEAR STRESS IN LONG DIRECTION : ";

} // namespace

std::int16_t ListLiftRows(ListTarget& target, LiftMode mode, const ModeRows& rows,
                          std::int16_t& counter, std::int16_t& crackedCounter, bool showAll) {
    const DirectionRows& s = rows.shortDirection;
    const DirectionRows& l = rows.longDirection;
    // Center lift lists tension first; edge lift compression first.
    const LimitItem centerLiftStresses[] = {
        LimitItem{TensionShort, s.tension},
        LimitItem{CompressionShort, s.compression},
        LimitItem{TensionLongTwoBlanks, l.tension},
        LimitItem{CompressionLongTwoBlanks, l.compression},
    };
    const LimitItem edgeLiftStresses[] = {
        LimitItem{CompressionShort, s.compression},
        LimitItem{TensionShort, s.tension},
        LimitItem{CompressionLong, l.compression},
        LimitItem{TensionLong, l.tension},
    };
    if (mode == LiftMode::CenterLift) {
        ListItems(target, centerLiftStresses, counter, showAll);
    } else {
        ListItems(target, edgeLiftStresses, counter, showAll);
    }

    const LimitItem stiffnessAndShear[] = {
        LimitItem{"STIFFNESS IN SHORT DIRECTION : ", s.demand},
        LimitItem{"STIFFNESS IN LONG DIRECTION : ", l.demand},
        LimitItem{ShearShort, s.shear},
        LimitItem{ShearLong, l.shear},
    };
    ListItems(target, stiffnessAndShear, counter, showAll);

    const CrackedItem cracked[] = {
        Cracked("CRACKED MOMENT CAPACITY IN SHORT DIRECTION : ",
                "CRACKED MOMENT CAPACITY IN SHORT DIRECTION : COULD NOT BE CALCULATED", s),
        Cracked("CRACKED MOMENT CAPACITY IN LONG DIRECTION : ",
                "CRACKED MOMENT CAPACITY IN LONG DIRECTION : COULD NOT BE CALCULATED", l),
    };
    std::int16_t crackedCounted = 0;
    for (const CrackedItem& item : cracked) {
        const bool counts = mode == LiftMode::CenterLift
                                ? ListCenterLiftCracked(target, item, showAll)
                                : ListEdgeLiftCracked(target, item, showAll);
        if (counts) {
            CountItem(crackedCounter);
            CountItem(crackedCounted);
        }
    }
    return crackedCounted;
}

void ListDownRows(ListTarget& target, const ModeRows& rows, std::int16_t& counter, bool showAll) {
    const DirectionRows& s = rows.shortDirection;
    const DirectionRows& l = rows.longDirection;
    const LimitItem items[] = {
        LimitItem{TensionShort, s.tension},
        LimitItem{CompressionShort, s.compression},
        LimitItem{TensionLongTwoBlanks, l.tension},
        LimitItem{CompressionLongTwoBlanks, l.compression},
        LimitItem{"DEFLECTION IN SHORT DIRECTION : ", s.demand},
        LimitItem{"DEFLECTION IN LONG  DIRECTION : ", l.demand},
        LimitItem{ShearShort, s.shear},
        LimitItem{ShearLong, l.shear},
    };
    ListItems(target, items, counter, showAll);
}
