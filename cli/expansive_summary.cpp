#include "cli/summary_sections.h"

namespace {

// One lift mode of expansive soil: its moments, the fibre stresses against their allowables,
// the required stiffness and the shear.
struct LiftMode {
    const char* title;
    FibreStressRows stresses;
    double reqInertiaShort, reqInertiaLong, stiffExcessShort, stiffExcessLong;
    double shearForceShort, shearForceLong, shearShort, shearLong, shearExcessShort,
        shearExcessLong;
};

void printLiftMode(SummaryTable& table, const LiftMode& mode, const ResultsRecord& r) {
    table.directionsHeading(mode.title);
    PrintFibreStresses(table, mode.stresses, r);
    table.pair("Required moment of inertia", "in4", mode.reqInertiaShort, mode.reqInertiaLong, 1);
    table.pair("  excess over actual", "%", mode.stiffExcessShort, mode.stiffExcessLong, 1);
    table.pair("Shear force", "k/ft", mode.shearForceShort, mode.shearForceLong, 3);
    table.pair("Shear stress", "psi", mode.shearShort, mode.shearLong, 1);
    table.pair("  allowable", "psi", r.AllowShearShort, r.AllowShearLong, 1);
    table.pair("  excess", "%", mode.shearExcessShort, mode.shearExcessLong, 1);
}

std::string capacityText(std::int16_t valid, double capacity) {
    return valid ? FixedNumber(capacity, 2) : "n/a";
}

std::string excessText(std::int16_t valid, double excess) {
    return valid ? FixedNumber(excess, 1) : "n/a";
}

} // namespace

void PrintFibreStresses(SummaryTable& table, const FibreStressRows& rows, const ResultsRecord& r) {
    table.pair("Moment", "ft-k/ft", rows.momentShort, rows.momentLong, 3);
    table.pair(std::string("Stress, ") + rows.tensionFibre + " (tension)", "ksi", rows.tensionShort,
               rows.tensionLong, 3);
    table.value("  allowable tension", "ksi", r.AllowTension, 3);
    table.pair("  excess", "%", rows.tensionExcessShort, rows.tensionExcessLong, 1);
    table.pair(std::string("Stress, ") + rows.compressionFibre + " (compression)", "ksi",
               rows.compressionShort, rows.compressionLong, 3);
    table.value("  allowable compression", "ksi", r.AllowCompression / 1000, 3);
    table.pair("  excess", "%", rows.compressionExcessShort, rows.compressionExcessLong, 1);
}

void PrintExpansiveSoil(SummaryTable& table, const EngineSettings& settings,
                        const ResultsRecord& r) {
    printLiftMode(table,
                  {"Center lift",
                   "top",
                   "bottom",
                   r.MomentCLShort,
                   r.MomentCLLong,
                   r.StressTopCLShort,
                   r.StressTopCLLong,
                   r.ExcessTopCLShort,
                   r.ExcessTopCLLong,
                   r.StressBotCLShort,
                   r.StressBotCLLong,
                   r.ExcessBotCLShort,
                   r.ExcessBotCLLong,
                   r.ReqInertiaCLShort,
                   r.ReqInertiaCLLong,
                   r.ExcessStiffCLShort,
                   r.ExcessStiffCLLong,
                   r.ShearForceCLShort,
                   r.ShearForceCLLong,
                   r.ShearCLShort,
                   r.ShearCLLong,
                   r.ExcessShearCLShort,
                   r.ExcessShearCLLong},
                  r);
    table.text("Moment at em = 5 ft governs", "", r.Em5ControlShort ? "yes" : "no",
               r.Em5ControlLong ? "yes" : "no");
    printLiftMode(table,
                  {"Edge lift",
                   "bottom",
                   "top",
                   r.MomentELShort,
                   r.MomentELLong,
                   r.StressBotELShort,
                   r.StressBotELLong,
                   r.ExcessBotELShort,
                   r.ExcessBotELLong,
                   r.StressTopELShort,
                   r.StressTopELLong,
                   r.ExcessTopELShort,
                   r.ExcessTopELLong,
                   r.ReqInertiaELShort,
                   r.ReqInertiaELLong,
                   r.ExcessStiffELShort,
                   r.ExcessStiffELLong,
                   r.ShearForceELShort,
                   r.ShearForceELLong,
                   r.ShearELShort,
                   r.ShearELLong,
                   r.ExcessShearELShort,
                   r.ExcessShearELLong},
                  r);
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
    table.pair("Center lift 0.9 moment", "ft-k", r.CrackDemandCLShort, r.CrackDemandCLLong, 2);
    table.text("  capacity", "ft-k", capacityText(r.CrackValidCLShort, r.CrackCapacityCLShort),
               capacityText(r.CrackValidCLLong, r.CrackCapacityCLLong));
    table.text("  excess", "%", excessText(r.CrackValidCLShort, r.ExcessCrackCLShort),
               excessText(r.CrackValidCLLong, r.ExcessCrackCLLong));
    table.pair("Edge lift 0.9 moment", "ft-k", r.CrackDemandELShort, r.CrackDemandELLong, 2);
    table.text("  capacity", "ft-k", capacityText(r.CrackValidELShort, r.CrackCapacityELShort),
               capacityText(r.CrackValidELLong, r.CrackCapacityELLong));
    table.text("  excess", "%", excessText(r.CrackValidELShort, r.ExcessCrackELShort),
               excessText(r.CrackValidELLong, r.ExcessCrackELLong));
    table.note("n/a: no tendons on the tension side, the capacity could not be calculated.");
}
