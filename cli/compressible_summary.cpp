#include "cli/summary_sections.h"

namespace {

// One family of compressible soil: its moment, stresses against the allowables, deflection
// against its limit, and shear.
void printSettlementMode(SummaryTable& table, const char* title, const char* tensionFibre,
                         const char* compressionFibre, const ModeMoments& moments,
                         const ModeValues& values, const ResultsRecord& r) {
    table.directionsHeading(title);
    PrintFibreStresses(table, tensionFibre, compressionFibre, moments, values, r);
    PrintModePair(table, "Differential deflection", "in", values, &DirectionValues::demand, 3);
    PrintModePair(table, "  allowable", "in", values, &DirectionValues::allowed, 3);
    PrintModePair(table, "  excess", "%", values, &DirectionValues::demandExcess, 1);
    PrintModePair(table, "Shear stress", "psi", values, &DirectionValues::shear, 1);
    PrintModePair(table, "  allowable", "psi", values, &DirectionValues::allowShear, 1);
    PrintModePair(table, "  excess", "%", values, &DirectionValues::shearExcess, 1);
}

} // namespace

void PrintCompressibleSoil(SummaryTable& table, const DesignRecord& record,
                           const ResultsRecord& r) {
    printSettlementMode(table, "Center down", "bottom", "top", {r.MomentCDShort, r.MomentCDLong},
                        CenterDownValues(r), r);
    table.pair("Beta", "ft", r.BetaCDShort, r.BetaCDLong, 3);
    table.pair("Reference settlement", "in", r.SettleRefShort, r.SettleRefLong, 4);
    if (record.CLSettleState != 1) {
        return;
    }
    printSettlementMode(table, "Edge down (em 5 ft, ym the settlement)", "top", "bottom",
                        {r.MomentEDShort, r.MomentEDLong}, EdgeDownValues(r), r);
}
