#include "compliance/checked_rows.h"

bool RowWithinLimit(const CheckedRow& row) {
    switch (row.item) {
    case RowItem::Tension:
    case RowItem::LineLoadTension:
        return row.value.value >= row.limit.value;
    case RowItem::SoilBearing:
        return row.safety >= 1;
    case RowItem::Compression:
        // As the analysis compares it: the allowable at least the stress.
        return row.limit.value >= row.value.value;
    case RowItem::Stiffness:
    case RowItem::Deflection:
    case RowItem::Shear:
    case RowItem::CrackedCapacity:
    case RowItem::LineLoadCompression:
        return row.value.value <= row.limit.value;
    }
    return false;
}

namespace {

// A result by its name, so that the name a row gives is the field it reads.
#define RESULT(field)                                                                              \
    NamedValue {                                                                                   \
#field, r.field                                                                            \
    }

CheckedRow Tension(NamedValue stress, const ResultsRecord& r, double excess) {
    return {RowItem::Tension, stress, RESULT(AllowTension), excess};
}

// The allowable compression is kept in psi and compared with the stress in ksi.
CheckedRow Compression(NamedValue stress, const ResultsRecord& r, double excess) {
    return {RowItem::Compression,
            stress,
            {"AllowCompression / 1000", r.AllowCompression / 1000},
            excess};
}

CheckedRow Row(RowItem item, NamedValue value, NamedValue limit, double excess) {
    return {item, value, limit, excess};
}

CheckedRow Cracked(NamedValue demand, NamedValue capacity, std::int16_t valid, double excess) {
    return {RowItem::CrackedCapacity, demand, capacity, excess, valid};
}

} // namespace

ModeRows CenterLiftRows(const ResultsRecord& r) {
    return {
        {Tension(RESULT(StressTopCLShort), r, r.ExcessTopCLShort),
         Compression(RESULT(StressBotCLShort), r, r.ExcessBotCLShort),
         Row(RowItem::Stiffness, RESULT(ReqInertiaCLShort), RESULT(InertiaShort),
             r.ExcessStiffCLShort),
         Row(RowItem::Shear, RESULT(ShearCLShort), RESULT(AllowShearShort), r.ExcessShearCLShort),
         Cracked(RESULT(CrackDemandCLShort), RESULT(CrackCapacityCLShort), r.CrackValidCLShort,
                 r.ExcessCrackCLShort)},
        {Tension(RESULT(StressTopCLLong), r, r.ExcessTopCLLong),
         Compression(RESULT(StressBotCLLong), r, r.ExcessBotCLLong),
         Row(RowItem::Stiffness, RESULT(ReqInertiaCLLong), RESULT(InertiaLong),
             r.ExcessStiffCLLong),
         Row(RowItem::Shear, RESULT(ShearCLLong), RESULT(AllowShearLong), r.ExcessShearCLLong),
         Cracked(RESULT(CrackDemandCLLong), RESULT(CrackCapacityCLLong), r.CrackValidCLLong,
                 r.ExcessCrackCLLong)}};
}

ModeRows EdgeLiftRows(const ResultsRecord& r) {
    return {
        {Tension(RESULT(StressBotELShort), r, r.ExcessBotELShort),
         Compression(RESULT(StressTopELShort), r, r.ExcessTopELShort),
         Row(RowItem::Stiffness, RESULT(ReqInertiaELShort), RESULT(InertiaShort),
             r.ExcessStiffELShort),
         Row(RowItem::Shear, RESULT(ShearELShort), RESULT(AllowShearShort), r.ExcessShearELShort),
         Cracked(RESULT(CrackDemandELShort), RESULT(CrackCapacityELShort), r.CrackValidELShort,
                 r.ExcessCrackELShort)},
        {Tension(RESULT(StressBotELLong), r, r.ExcessBotELLong),
         Compression(RESULT(StressTopELLong), r, r.ExcessTopELLong),
         Row(RowItem::Stiffness, RESULT(ReqInertiaELLong), RESULT(InertiaLong),
             r.ExcessStiffELLong),
         Row(RowItem::Shear, RESULT(ShearELLong), RESULT(AllowShearLong), r.ExcessShearELLong),
         Cracked(RESULT(CrackDemandELLong), RESULT(CrackCapacityELLong), r.CrackValidELLong,
                 r.ExcessCrackELLong)}};
}

ModeRows CenterDownRows(const ResultsRecord& r) {
    return {
        {Tension(RESULT(StressBotCDShort), r, r.ExcessBotCDShort),
         Compression(RESULT(StressTopCDShort), r, r.ExcessTopCDShort),
         Row(RowItem::Deflection, RESULT(NetDeflCDShort), RESULT(AllowDeflCDShort),
             r.ExcessDeflCDShort),
         Row(RowItem::Shear, RESULT(ShearCDShort), RESULT(AllowShearShort), r.ExcessShearCDShort),
         {}},
        {Tension(RESULT(StressBotCDLong), r, r.ExcessBotCDLong),
         Compression(RESULT(StressTopCDLong), r, r.ExcessTopCDLong),
         Row(RowItem::Deflection, RESULT(NetDeflCDLong), RESULT(AllowDeflCDLong),
             r.ExcessDeflCDLong),
         Row(RowItem::Shear, RESULT(ShearCDLong), RESULT(AllowShearLong), r.ExcessShearCDLong),
         {}}};
}

ModeRows EdgeDownRows(const ResultsRecord& r) {
    return {
        {Tension(RESULT(StressTopEDShort), r, r.ExcessTopEDShort),
         Compression(RESULT(StressBotEDShort), r, r.ExcessBotEDShort),
         Row(RowItem::Deflection, RESULT(NetDeflEDShort), RESULT(AllowDeflEDShort),
             r.ExcessDeflEDShort),
         Row(RowItem::Shear, RESULT(ShearEDShort), RESULT(AllowShearShort), r.ExcessShearEDShort),
         {}},
        {Tension(RESULT(StressTopEDLong), r, r.ExcessTopEDLong),
         Compression(RESULT(StressBotEDLong), r, r.ExcessBotEDLong),
         Row(RowItem::Deflection, RESULT(NetDeflEDLong), RESULT(AllowDeflEDLong),
             r.ExcessDeflEDLong),
         Row(RowItem::Shear, RESULT(ShearEDLong), RESULT(AllowShearLong), r.ExcessShearEDLong),
         {}}};
}

ModeRows UniformCenterLiftRows(const ResultsRecord& r) {
    return {{Tension(RESULT(UTStressTopCLShort), r, r.UTExcessTopCLShort),
             Compression(RESULT(UTStressBotCLShort), r, r.UTExcessBotCLShort),
             Row(RowItem::Stiffness, RESULT(UTReqInertiaCLShort), RESULT(UTInertiaShort),
                 r.UTExcessStiffCLShort),
             Row(RowItem::Shear, RESULT(UTShearCLShort), RESULT(UTAllowShearShort),
                 r.UTExcessShearCLShort),
             Cracked(RESULT(UTCrackDemandCLShort), RESULT(UTCrackCapacityCLShort),
                     r.UTCrackValidCLShort, r.UTExcessCrackCLShort)},
            {Tension(RESULT(UTStressTopCLLong), r, r.UTExcessTopCLLong),
             Compression(RESULT(UTStressBotCLLong), r, r.UTExcessBotCLLong),
             Row(RowItem::Stiffness, RESULT(UTReqInertiaCLLong), RESULT(UTInertiaLong),
                 r.UTExcessStiffCLLong),
             Row(RowItem::Shear, RESULT(UTShearCLLong), RESULT(UTAllowShearLong),
                 r.UTExcessShearCLLong),
             Cracked(RESULT(UTCrackDemandCLLong), RESULT(UTCrackCapacityCLLong),
                     r.UTCrackValidCLLong, r.UTExcessCrackCLLong)}};
}

ModeRows UniformEdgeLiftRows(const ResultsRecord& r) {
    return {{Tension(RESULT(UTStressBotELShort), r, r.UTExcessBotELShort),
             Compression(RESULT(UTStressTopELShort), r, r.UTExcessTopELShort),
             Row(RowItem::Stiffness, RESULT(UTReqInertiaELShort), RESULT(UTInertiaShort),
                 r.UTExcessStiffELShort),
             Row(RowItem::Shear, RESULT(UTShearELShort), RESULT(UTAllowShearShort),
                 r.UTExcessShearELShort),
             Cracked(RESULT(UTCrackDemandELShort), RESULT(UTCrackCapacityELShort),
                     r.UTCrackValidELShort, r.UTExcessCrackELShort)},
            {Tension(RESULT(UTStressBotELLong), r, r.UTExcessBotELLong),
             Compression(RESULT(UTStressTopELLong), r, r.UTExcessTopELLong),
             Row(RowItem::Stiffness, RESULT(UTReqInertiaELLong), RESULT(UTInertiaLong),
                 r.UTExcessStiffELLong),
             Row(RowItem::Shear, RESULT(UTShearELLong), RESULT(UTAllowShearLong),
                 r.UTExcessShearELLong),
             Cracked(RESULT(UTCrackDemandELLong), RESULT(UTCrackCapacityELLong),
                     r.UTCrackValidELLong, r.UTExcessCrackELLong)}};
}

ModeRows UniformCenterDownRows(const ResultsRecord& r) {
    return {{Tension(RESULT(UTStressBotCDShort), r, r.UTExcessBotCDShort),
             Compression(RESULT(UTStressTopCDShort), r, r.UTExcessTopCDShort),
             Row(RowItem::Deflection, RESULT(UTNetDeflCDShort), RESULT(UTAllowDeflCDShort),
                 r.UTExcessDeflCDShort),
             Row(RowItem::Shear, RESULT(UTShearCDShort), RESULT(UTAllowShearShort),
                 r.UTExcessShearCDShort),
             {}},
            {Tension(RESULT(UTStressBotCDLong), r, r.UTExcessBotCDLong),
             Compression(RESULT(UTStressTopCDLong), r, r.UTExcessTopCDLong),
             Row(RowItem::Deflection, RESULT(UTNetDeflCDLong), RESULT(UTAllowDeflCDLong),
                 r.UTExcessDeflCDLong),
             Row(RowItem::Shear, RESULT(UTShearCDLong), RESULT(UTAllowShearLong),
                 r.UTExcessShearCDLong),
             {}}};
}

ModeRows UniformEdgeDownRows(const ResultsRecord& r) {
    return {{Tension(RESULT(UTStressTopEDShort), r, r.UTExcessTopEDShort),
             Compression(RESULT(UTStressBotEDShort), r, r.UTExcessBotEDShort),
             Row(RowItem::Deflection, RESULT(UTNetDeflEDShort), RESULT(UTAllowDeflEDShort),
                 r.UTExcessDeflEDShort),
             Row(RowItem::Shear, RESULT(UTShearEDShort), RESULT(UTAllowShearShort),
                 r.UTExcessShearEDShort),
             {}},
            {Tension(RESULT(UTStressTopEDLong), r, r.UTExcessTopEDLong),
             Compression(RESULT(UTStressBotEDLong), r, r.UTExcessBotEDLong),
             Row(RowItem::Deflection, RESULT(UTNetDeflEDLong), RESULT(UTAllowDeflEDLong),
                 r.UTExcessDeflEDLong),
             Row(RowItem::Shear, RESULT(UTShearEDLong), RESULT(UTAllowShearLong),
                 r.UTExcessShearEDLong),
             {}}};
}

CheckedRow SoilBearingRow(const DesignRecord& record, const ResultsRecord& r) {
    const NamedValue allowable = record.SoilType == 0
                                     ? NamedValue{"ExpBearing", record.ExpBearing}
                                     : NamedValue{"CompBearing", record.CompBearing};
    CheckedRow row = Row(RowItem::SoilBearing, RESULT(SoilPressure), allowable, r.BearingExcess);
    row.safety = r.BearingSafety;
    return row;
}

// The tension stress is kept in psi and compared with the allowable tension in ksi.
LineLoadRows RibbedLineLoadRows(const ResultsRecord& r) {
    return {Row(RowItem::LineLoadCompression, RESULT(LLStressCompression), RESULT(AllowCompression),
                r.ExcessLLCompression),
            Row(RowItem::LineLoadTension, {"LLStressTension / 1000", r.LLStressTension / 1000},
                RESULT(AllowTension), r.ExcessLLTension)};
}

LineLoadRows UniformLineLoadRows(const ResultsRecord& r) {
    return {Row(RowItem::LineLoadCompression, RESULT(UTLLStressCompression),
                RESULT(AllowCompression), r.UTExcessLLCompression),
            Row(RowItem::LineLoadTension, {"UTLLStressTension / 1000", r.UTLLStressTension / 1000},
                RESULT(AllowTension), r.UTExcessLLTension)};
}

#undef RESULT
