#include "cli/summary_sections.h"

namespace {

void printUniformExpansive(SummaryTable& table, const ResultsRecord& r) {
    table.pair("Center lift stress, top", "ksi", r.UTStressTopCLShort, r.UTStressTopCLLong, 3);
    table.pair("  excess over tension", "%", r.UTExcessTopCLShort, r.UTExcessTopCLLong, 1);
    table.pair("Center lift stress, bottom", "ksi", r.UTStressBotCLShort, r.UTStressBotCLLong, 3);
    table.pair("  excess over compression", "%", r.UTExcessBotCLShort, r.UTExcessBotCLLong, 1);
    table.pair("Edge lift stress, bottom", "ksi", r.UTStressBotELShort, r.UTStressBotELLong, 3);
    table.pair("  excess over tension", "%", r.UTExcessBotELShort, r.UTExcessBotELLong, 1);
    table.pair("Edge lift stress, top", "ksi", r.UTStressTopELShort, r.UTStressTopELLong, 3);
    table.pair("  excess over compression", "%", r.UTExcessTopELShort, r.UTExcessTopELLong, 1);
    table.pair("Stiffness excess, center lift", "%", r.UTExcessStiffCLShort, r.UTExcessStiffCLLong,
               1);
    table.pair("Stiffness excess, edge lift", "%", r.UTExcessStiffELShort, r.UTExcessStiffELLong,
               1);
    table.pair("Shear excess, center lift", "%", r.UTExcessShearCLShort, r.UTExcessShearCLLong, 1);
    table.pair("Shear excess, edge lift", "%", r.UTExcessShearELShort, r.UTExcessShearELLong, 1);
    const auto crack = [](std::int16_t valid, double excess) {
        return valid ? FixedNumber(excess, 1) : std::string("n/a");
    };
    table.text("Cracked excess, center lift", "%",
               crack(r.UTCrackValidCLShort, r.UTExcessCrackCLShort),
               crack(r.UTCrackValidCLLong, r.UTExcessCrackCLLong));
    table.text("Cracked excess, edge lift", "%",
               crack(r.UTCrackValidELShort, r.UTExcessCrackELShort),
               crack(r.UTCrackValidELLong, r.UTExcessCrackELLong));
}

void printUniformCompressible(SummaryTable& table, const DesignRecord& record,
                              const ResultsRecord& r) {
    table.pair("Center down stress, bottom", "ksi", r.UTStressBotCDShort, r.UTStressBotCDLong, 3);
    table.pair("  excess over tension", "%", r.UTExcessBotCDShort, r.UTExcessBotCDLong, 1);
    table.pair("Center down stress, top", "ksi", r.UTStressTopCDShort, r.UTStressTopCDLong, 3);
    table.pair("  excess over compression", "%", r.UTExcessTopCDShort, r.UTExcessTopCDLong, 1);
    table.pair("Center down deflection excess", "%", r.UTExcessDeflCDShort, r.UTExcessDeflCDLong,
               1);
    table.pair("Center down shear excess", "%", r.UTExcessShearCDShort, r.UTExcessShearCDLong, 1);
    if (record.CLSettleState != 1) {
        return;
    }
    table.pair("Edge down stress, top", "ksi", r.UTStressTopEDShort, r.UTStressTopEDLong, 3);
    table.pair("  excess over tension", "%", r.UTExcessTopEDShort, r.UTExcessTopEDLong, 1);
    table.pair("Edge down stress, bottom", "ksi", r.UTStressBotEDShort, r.UTStressBotEDLong, 3);
    table.pair("  excess over compression", "%", r.UTExcessBotEDShort, r.UTExcessBotEDLong, 1);
    table.pair("Edge down deflection excess", "%", r.UTExcessDeflEDShort, r.UTExcessDeflEDLong, 1);
    table.pair("Edge down shear excess", "%", r.UTExcessShearEDShort, r.UTExcessShearEDLong, 1);
}

} // namespace

void PrintUniformThickness(SummaryTable& table, const DesignRecord& record,
                           const ResultsRecord& r) {
    table.directionsHeading("Uniform thickness foundation");
    table.value("Equivalent thickness", "in", r.EquivSlabThick, 3);
    table.value("Thickness used", "in", r.UTThickness, 2);
    table.pair("Tendons", "", r.UTTotalTenShort, r.UTTotalTenLong, 0);
    table.pair("Tendon spacing", "ft", r.UTTenSpacingShort, r.UTTenSpacingLong, 2);
    table.pair("Average prestress at center", "psi", r.UTPsCenterShort, r.UTPsCenterLong, 1);
    table.pair("Eccentricity", "in", r.UTEccShort, r.UTEccLong, 2);
    table.pair("Allowable shear", "psi", r.UTAllowShearShort, r.UTAllowShearLong, 1);
    if (record.SoilType == 0) {
        printUniformExpansive(table, r);
    } else if (record.SoilType == 1) {
        printUniformCompressible(table, record, r);
    }
}

void PrintLineLoad(SummaryTable& table, const DesignRecord& record, const ResultsRecord& r) {
    table.heading("Line load (" + FixedNumber(record.LineLoad, 0) + " lb/ft, " +
                  record.DirLineLoad + ")");
    table.value("Prestress across the load", "psi", r.LLPrestress, 1);
    table.value("Moment", "", r.LLMoment, 1);
    table.value("Compression with prestress", "psi", r.LLStressCompression, 1);
    table.value("  excess", "%", r.ExcessLLCompression, 1);
    table.value("Prestress less bending", "psi", r.LLStressTension, 1);
    table.value("  excess", "%", r.ExcessLLTension, 1);
    if (record.FlatSlab != 1) {
        return;
    }
    table.value("Uniform slab: prestress", "psi", r.UTLLPrestress, 1);
    table.value("  moment (load x 1.5)", "", r.UTLLMoment, 1);
    table.value("  compression, excess", "%", r.UTExcessLLCompression, 1);
    table.value("  tension, excess", "%", r.UTExcessLLTension, 1);
}
