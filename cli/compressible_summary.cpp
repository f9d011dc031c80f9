#include "cli/summary_sections.h"

namespace {

// One family of compressible soil: its moment, stresses against the allowables, deflection
// against its limit, and shear.
struct SettlementMode {
    const char* title;
    FibreStressRows stresses;
    double deflectionShort, deflectionLong, allowableShort, allowableLong;
    double deflectionExcessShort, deflectionExcessLong;
    double shearShort, shearLong, shearExcessShort, shearExcessLong;
};

void printSettlementMode(SummaryTable& table, const SettlementMode& mode, const ResultsRecord& r) {
    table.directionsHeading(mode.title);
    PrintFibreStresses(table, mode.stresses, r);
    table.pair("Differential deflection", "in", mode.deflectionShort, mode.deflectionLong, 3);
    table.pair("  allowable", "in", mode.allowableShort, mode.allowableLong, 3);
    table.pair("  excess", "%", mode.deflectionExcessShort, mode.deflectionExcessLong, 1);
    table.pair("Shear stress", "psi", mode.shearShort, mode.shearLong, 1);
    table.pair("  allowable", "psi", r.AllowShearShort, r.AllowShearLong, 1);
    table.pair("  excess", "%", mode.shearExcessShort, mode.shearExcessLong, 1);
}

} // namespace

void PrintCompressibleSoil(SummaryTable& table, const DesignRecord& record,
                           const ResultsRecord& r) {
    printSettlementMode(table, {"Center down",        "bottom",           "top",
                                r.MomentCDShort,      r.MomentCDLong,     r.StressBotCDShort,
                                r.StressBotCDLong,    r.ExcessBotCDShort, r.ExcessBotCDLong,
                                r.StressTopCDShort,   r.StressTopCDLong,  r.ExcessTopCDShort,
                                r.ExcessTopCDLong,    r.NetDeflCDShort,   r.NetDeflCDLong,
                                r.AllowDeflCDShort,   r.AllowDeflCDLong,  r.ExcessDeflCDShort,
                                r.ExcessDeflCDLong,   r.ShearCDShort,     r.ShearCDLong,
                                r.ExcessShearCDShort, r.ExcessShearCDLong},
                        r);
    table.pair("Beta", "ft", r.BetaCDShort, r.BetaCDLong, 3);
    table.pair("Reference settlement", "in", r.SettleRefShort, r.SettleRefLong, 4);
    if (record.CLSettleState != 1) {
        return;
    }
    printSettlementMode(
        table,
        {"Edge down (em 5 ft, ym the settlement)",
         {"top", "bottom", r.MomentEDShort, r.MomentEDLong, r.StressTopEDShort, r.StressTopEDLong,
          r.ExcessTopEDShort, r.ExcessTopEDLong, r.StressBotEDShort, r.StressBotEDLong,
          r.ExcessBotEDShort, r.ExcessBotEDLong},
         r.NetDeflEDShort,
         r.NetDeflEDLong,
         r.AllowDeflEDShort,
         r.AllowDeflEDLong,
         r.ExcessDeflEDShort,
         r.ExcessDeflEDLong,
         r.ShearEDShort,
         r.ShearEDLong,
         r.ExcessShearEDShort,
         r.ExcessShearEDLong},
        r);
}
