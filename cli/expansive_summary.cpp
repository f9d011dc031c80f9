#include "cli/summary_sections.h"

namespace {

// One lift mode of expansive soil: its moments, the fibre stresses against their allowables,
// the required stiffness and the shear.
void printLiftMode(SummaryTable& table, const char* title, const char* tensionFibre,
                   const char* compressionFibre, const ModeMoments& moments, double shearForceShort,
                   double shearForceLong, const ModeValues& values, const ResultsRecord& r) {
    table.directionsHeading(title);
    PrintFibreStresses(table, tensionFibre, compressionFibre, moments, values, r);
    PrintModePair(table, "Required moment of inertia", "in4", values, &DirectionValues::demand, 1);
    PrintModePair(table, "  excess over actual", "%", values, &DirectionValues::demandExcess, 1);
    table.pair("Shear force", "k/ft", shearForceShort, shearForceLong, 3);
    PrintModePair(table, "Shear stress", "psi", values, &DirectionValues::shear, 1);
    PrintModePair(table, "  allowable", "psi", values, &DirectionValues::allowShear, 1);
    PrintModePair(table, "  excess", "%", values, &DirectionValues::shearExcess, 1);
}

std::string capacityText(const DirectionValues& values) {
    return values.crackValid ? FixedNumber(values.crackCapacity, 2) : "n/a";
}

std::string excessText(const DirectionValues& values) {
    return values.crackValid ? FixedNumber(values.crackExcess, 1) : "n/a";
}

void printCracked(SummaryTable& table, const char* mode, const ModeValues& values) {
    PrintModePair(table, std::string(mode) + " 0.9 moment", "ft-k", values,
                  &DirectionValues::crackDemand, 2);
    table.text("  capacity", "ft-k", capacityText(values.shortDirection),
               capacityText(values.longDirection));
    table.text("  excess", "%", excessText(values.shortDirection),
               excessText(values.longDirection));
}

} // namespace

void PrintModePair(SummaryTable& table, const std::string& label, const std::string& unit,
                   const ModeValues& values, double DirectionValues::*value, int decimals) {
    table.pair(label, unit, values.shortDirection.*value, values.longDirection.*value, decimals);
}

void PrintFibreStresses(SummaryTable& table, const char* tensionFibre, const char* compressionFibre,
                        const ModeMoments& moments, const ModeValues& values,
                        const ResultsRecord& r) {
    table.pair("Moment", "ft-k/ft", moments.momentShort, moments.momentLong, 3);
    PrintModePair(table, std::string("Stress, ") + tensionFibre + " (tension)", "ksi", values,
                  &DirectionValues::tension, 3);
    table.value("  allowable tension", "ksi", r.AllowTension, 3);
    PrintModePair(table, "  excess", "%", values, &DirectionValues::tensionExcess, 1);
    PrintModePair(table, std::string("Stress, ") + compressionFibre + " (compression)", "ksi",
                  values, &DirectionValues::compression, 3);
    table.value("  allowable compression", "ksi", r.AllowCompression / 1000, 3);
    PrintModePair(table, "  excess", "%", values, &DirectionValues::compressionExcess, 1);
}

void PrintExpansiveSoil(SummaryTable& table, const EngineSettings& settings,
                        const ResultsRecord& r) {
    printLiftMode(table, "Center lift", "top", "bottom", {r.MomentCLShort, r.MomentCLLong},
                  r.ShearForceCLShort, r.ShearForceCLLong, CenterLiftValues(r), r);
    table.text("Moment at em = 5 ft governs", "", r.Em5ControlShort ? "yes" : "no",
               r.Em5ControlLong ? "yes" : "no");
    printLiftMode(table, "Edge lift", "bottom", "top", {r.MomentELShort, r.MomentELLong},
                  r.ShearForceELShort, r.ShearForceELLong, EdgeLiftValues(r), r);
    table.text("Stiffness judged over", "", r.StiffBasisShort, r.StiffBasisLong);
    table.pair("  length", "ft", r.StiffLengthShort, r.StiffLengthLong, 2);

    if (settings.ShowDD == 1) {
        table.directionsHeading("Differential deflection (2nd edition)");
        table.pair("Center lift deflection", "in", r.DeflCLShort, r.DeflCLLong, 3);
        table.pair("  with prestress", "in", r.NetDeflCLShort, r.NetDeflCLLong, 3);
        table.pair("  allowable", "in", r.AllowDeflCLShort, r.AllowDeflCLLong, 3);
        table.pair("Edge lift deflection", "in", r.DeflELShort, r.DeflELLong, 3);
        table.pair("  with prestress", "in", r.NetDeflELShort, r.NetDeflELLong, 3);
        table.pair("  allowable", "in", r.AllowDeflELShort, r.AllowDeflELLong, 3);
    }
}

void PrintCrackedSection(SummaryTable& table, const ResultsRecord& r) {
    table.directionsHeading("Cracked section capacity");
    printCracked(table, "Center lift", CenterLiftValues(r));
    printCracked(table, "Edge lift", EdgeLiftValues(r));
    table.note("n/a: no tendons on the tension side, the capacity could not be calculated.");
}
