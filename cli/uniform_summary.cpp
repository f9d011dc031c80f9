#include "cli/summary_sections.h"

namespace {

// A mode's stresses of the uniform slab, each with its excess: the fibre in tension first.
void printUniformStresses(SummaryTable& table, const std::string& mode, const char* tensionFibre,
                          const char* compressionFibre, const ModeValues& values) {
    PrintModePair(table, mode + " stress, " + tensionFibre, "ksi", values,
                  &DirectionValues::tension, 3);
    PrintModePair(table, "  excess over tension", "%", values, &DirectionValues::tensionExcess, 1);
    PrintModePair(table, mode + " stress, " + compressionFibre, "ksi", values,
                  &DirectionValues::compression, 3);
    PrintModePair(table, "  excess over compression", "%", values,
                  &DirectionValues::compressionExcess, 1);
}

std::string crackExcessText(const DirectionValues& values) {
    return values.crackValid ? FixedNumber(values.crackExcess, 1) : std::string("n/a");
}

void printUniformExpansive(SummaryTable& table, const ResultsRecord& r) {
    const ModeValues centerLift = UniformCenterLiftValues(r);
    const ModeValues edgeLift = UniformEdgeLiftValues(r);
    printUniformStresses(table, "Center lift", "top", "bottom", centerLift);
    printUniformStresses(table, "Edge lift", "bottom", "top", edgeLift);
    PrintModePair(table, "Stiffness excess, center lift", "%", centerLift,
                  &DirectionValues::demandExcess, 1);
    PrintModePair(table, "Stiffness excess, edge lift", "%", edgeLift,
                  &DirectionValues::demandExcess, 1);
    PrintModePair(table, "Shear excess, center lift", "%", centerLift,
                  &DirectionValues::shearExcess, 1);
    PrintModePair(table, "Shear excess, edge lift", "%", edgeLift, &DirectionValues::shearExcess,
                  1);
    table.text("Cracked excess, center lift", "%", crackExcessText(centerLift.shortDirection),
               crackExcessText(centerLift.longDirection));
    table.text("Cracked excess, edge lift", "%", crackExcessText(edgeLift.shortDirection),
               crackExcessText(edgeLift.longDirection));
}

void printUniformCompressible(SummaryTable& table, const DesignRecord& record,
                              const ResultsRecord& r) {
    const ModeValues centerDown = UniformCenterDownValues(r);
    printUniformStresses(table, "Center down", "bottom", "top", centerDown);
    PrintModePair(table, "Center down deflection excess", "%", centerDown,
                  &DirectionValues::demandExcess, 1);
    PrintModePair(table, "Center down shear excess", "%", centerDown, &DirectionValues::shearExcess,
                  1);
    if (record.CLSettleState != 1) {
        return;
    }
    const ModeValues edgeDown = UniformEdgeDownValues(r);
    printUniformStresses(table, "Edge down", "top", "bottom", edgeDown);
    PrintModePair(table, "Edge down deflection excess", "%", edgeDown,
                  &DirectionValues::demandExcess, 1);
    PrintModePair(table, "Edge down shear excess", "%", edgeDown, &DirectionValues::shearExcess, 1);
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
