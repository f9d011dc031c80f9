#include "compliance/mode_sections.h"

#include "compliance/limit_items.h"
#include "compliance/list_lines.h"

namespace {

LimitItem Tension(const char* label, const DirectionValues& d, double allowTension) {
    return {label, d.tension, allowTension, LimitKind::Tension, d.tensionExcess};
}

LimitItem Compression(const char* label, const DirectionValues& d, double allowCompression) {
    return {label, d.compression, allowCompression, LimitKind::Compression, d.compressionExcess};
}

LimitItem Demand(const char* label, const DirectionValues& d) {
    return {label, d.demand, d.allowed, LimitKind::AtMost, d.demandExcess};
}

LimitItem Shear(const char* label, const DirectionValues& d) {
    return {label, d.shear, d.allowShear, LimitKind::AtMost, d.shearExcess};
}

CrackedItem Cracked(const char* label, const char* notCalculated, const DirectionValues& d) {
    return {label, notCalculated, d.crackDemand, d.crackCapacity, d.crackValid, d.crackExcess};
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

std::int16_t ListLiftRows(ListTarget& target, LiftMode mode, const ModeValues& values,
                          double allowTension, double allowCompression, std::int16_t& counter,
                          std::int16_t& crackedCounter, bool showAll) {
    const DirectionValues& s = values.shortDirection;
    const DirectionValues& l = values.longDirection;
    // Center lift lists tension first; edge lift compression first.
    const LimitItem centerLiftStresses[] = {
        Tension(TensionShort, s, allowTension),
        Compression(CompressionShort, s, allowCompression),
        Tension(TensionLongTwoBlanks, l, allowTension),
        Compression(CompressionLongTwoBlanks, l, allowCompression),
    };
    const LimitItem edgeLiftStresses[] = {
        Compression(CompressionShort, s, allowCompression),
        Tension(TensionShort, s, allowTension),
        Compression(CompressionLong, l, allowCompression),
        Tension(TensionLong, l, allowTension),
    };
    if (mode == LiftMode::CenterLift) {
        ListItems(target, centerLiftStresses, counter, showAll);
    } else {
        ListItems(target, edgeLiftStresses, counter, showAll);
    }

    const LimitItem stiffnessAndShear[] = {
        Demand("STIFFNESS IN SHORT DIRECTION : ", s),
        Demand("STIFFNESS IN LONG DIRECTION : ", l),
        Shear(ShearShort, s),
        Shear(ShearLong, l),
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

void ListDownRows(ListTarget& target, const ModeValues& values, double allowTension,
                  double allowCompression, std::int16_t& counter, bool showAll) {
    const DirectionValues& s = values.shortDirection;
    const DirectionValues& l = values.longDirection;
    const LimitItem rows[] = {
        Tension(TensionShort, s, allowTension),
        Compression(CompressionShort, s, allowCompression),
        Tension(TensionLongTwoBlanks, l, allowTension),
        Compression(CompressionLongTwoBlanks, l, allowCompression),
        Demand("DEFLECTION IN SHORT DIRECTION : ", s),
        Demand("DEFLECTION IN LONG  DIRECTION : ", l),
        Shear(ShearShort, s),
        Shear(ShearLong, l),
    };
    ListItems(target, rows, counter, showAll);
}
