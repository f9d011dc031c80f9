#include "reports/compliance_pages.h"

#include "common/number_pattern.h"

#include <vector>

namespace {

// One check of a block: its label, the excess printed after it, whether it fails, and for a
// cracked capacity the flag that tells whether the capacity could be calculated.
struct Check {
    std::string label;
    double excess = 0;
    bool fails = false;
    bool cracked = false;
    std::int16_t valid = 1;
    std::string notCalculated{};
    // A passing line that prints another excess than a failing one (kept as designed).
    double passingExcess = 0;
    bool ownPassingExcess = false;
};

std::string ExcessText(const std::string& label, double excess) {
    return label + FormatNumber(excess, "#,##0.0") + "%";
}

void Opening(PageWriter& w) {
    DrawingSurface& s = w.surface();
    const bool colour = w.page().colour;
    double x = w.TextAt(w.page().column1, 0, "The ");
    if (colour) {
        BoldRed(s);
    } else {
        BoldBlack(s);
    }
    x = w.TextAt(x, 0, colour ? "RED" : "BOLD");
    UnboldBlack(s);
    w.TextAt(x, 0,
             " values exceed allowable or are less than minimum limits by the percentage "
             "indicated:");
    w.Step(2);
}

void Block(PageWriter& w, const std::string& heading, const std::vector<Check>& checks) {
    DrawingSurface& s = w.surface();
    w.Heading(heading, 12);
    w.StepPastHeading(12);
    bool printed = false;
    for (const Check& check : checks) {
        if (check.fails) {
            if (w.page().colour) {
                BoldRed(s);
            } else {
                BoldBlack(s);
            }
            w.Label(check.cracked && check.valid == 0 ? check.notCalculated
                                                      : ExcessText(check.label, check.excess));
        } else if (w.page().showAll) {
            UnboldBlack(s);
            w.Label(ExcessText(check.label,
                               check.ownPassingExcess ? check.passingExcess : check.excess));
        } else {
            continue;
        }
        printed = true;
        w.Step();
    }
    if (!printed) {
        BoldBlack(s);
        w.Label("ALL VALUES WITHIN ALLOWABLE LIMITS.");
        w.Step();
    }
    UnboldBlack(s);
    w.Step();
}

bool TensionFails(double stress, const ResultsRecord& r) {
    return stress < r.AllowTension;
}

bool CompressionFails(double stress, const ResultsRecord& r) {
    return stress > r.AllowCompression / 1000;
}

Check Cracked(const char* direction, double excess, double demand, double capacity,
              std::int16_t valid) {
    const std::string label =
        std::string("CRACKED MOMENT CAPACITY IN ") + direction + " DIRECTION : ";
    return {label, excess, demand > capacity, true, valid, label + "COULD NOT BE CALCULATED"};
}

// The values of one lift mode, ribbed or uniform.
struct LiftValues {
    double topShort, botShort, topLong, botLong;
    double excessTopShort, excessBotShort, excessTopLong, excessBotLong;
    double reqShort, reqLong, inertiaShort, inertiaLong, excessStiffShort, excessStiffLong;
    double shearShort, shearLong, allowShort, allowLong, excessShearShort, excessShearLong;
    double demandShort, demandLong, capacityShort, capacityLong, excessCrackShort, excessCrackLong;
    std::int16_t validShort, validLong;
};

// The stiffness label of the long direction has two blanks after "LONG" in center lift and one
// in edge lift.
std::vector<Check> StiffnessShearCracked(const LiftValues& v, const char* stiffnessLong) {
    return {
        {"STIFFNESS IN SHORT DIRECTION : ", v.excessStiffShort, v.reqShort > v.inertiaShort},
        {stiffnessLong, v.excessStiffLong, v.reqLong > v.inertiaLong},
        {"SHEAR STRESS IN SHORT DIRECTION : ", v.excessShearShort, v.shearShort > v.allowShort},
        {"SHEAR STRESS IN LONG DIRECTION : ", v.excessShearLong, v.shearLong > v.allowLong},
        Cracked("SHORT", v.excessCrackShort, v.demandShort, v.capacityShort, v.validShort),
        Cracked("LONG", v.excessCrackLong, v.demandLong, v.capacityLong, v.validLong),
    };
}

std::vector<Check> CenterLiftChecks(const LiftValues& v, const ResultsRecord& r) {
    std::vector<Check> checks = {
        {"BENDING STRESS IN SHORT DIRECTION (TENSION): ", v.excessTopShort,
         TensionFails(v.topShort, r)},
        {"BENDING STRESS IN SHORT DIRECTION (COMPRESSION): ", v.excessBotShort,
         CompressionFails(v.botShort, r)},
        {"BENDING STRESS IN LONG  DIRECTION (TENSION): ", v.excessTopLong,
         TensionFails(v.topLong, r)},
        {"BENDING STRESS IN LONG  DIRECTION (COMPRESSION): ", v.excessBotLong,
         CompressionFails(v.botLong, r)},
    };
    const std::vector<Check> rest = StiffnessShearCracked(v, "STIFFNESS IN LONG  DIRECTION : ");
    checks.insert(checks.end(), rest.begin(), rest.end());
    return checks;
}

std::vector<Check> EdgeLiftChecks(const LiftValues& v, const ResultsRecord& r) {
    std::vector<Check> checks = {
        {"BENDING STRESS IN SHORT DIRECTION (COMPRESSION): ", v.excessTopShort,
         CompressionFails(v.topShort, r)},
        {"BENDING STRESS IN SHORT DIRECTION (TENSION): ", v.excessBotShort,
         TensionFails(v.botShort, r)},
        {"BENDING STRESS IN LONG DIRECTION (COMPRESSION): ", v.excessTopLong,
         CompressionFails(v.topLong, r)},
        {"BENDING STRESS IN LONG DIRECTION (TENSION): ", v.excessBotLong,
         TensionFails(v.botLong, r)},
    };
    const std::vector<Check> rest = StiffnessShearCracked(v, "STIFFNESS IN LONG DIRECTION : ");
    checks.insert(checks.end(), rest.begin(), rest.end());
    return checks;
}

// The values of one down mode. In center down the bottom fiber is in tension, in edge down the
// top fiber.
struct DownValues {
    double tensionShort, compressionShort, tensionLong, compressionLong;
    double excessTensionShort, excessCompressionShort, excessTensionLong, excessCompressionLong;
    double deflShort, deflLong, allowDeflShort, allowDeflLong, excessDeflShort, excessDeflLong;
    double shearShort, shearLong, allowShort, allowLong, excessShearShort, excessShearLong;
};

std::vector<Check> DownChecks(const DownValues& v, const ResultsRecord& r) {
    return {
        {"BENDING STRESS IN SHORT DIRECTION (TENSION) : ", v.excessTensionShort,
         TensionFails(v.tensionShort, r)},
        {"BENDING STRESS IN SHORT DIRECTION (COMPRESSION) : ", v.excessCompressionShort,
         CompressionFails(v.compressionShort, r)},
        {"BENDING STRESS IN LONG  DIRECTION (TENSION) : ", v.excessTensionLong,
         TensionFails(v.tensionLong, r)},
        {"BENDING STRESS IN LONG  DIRECTION (COMPRESSION) : ", v.excessCompressionLong,
         CompressionFails(v.compressionLong, r)},
        {"DEFLECTION IN SHORT DIRECTION : ", v.excessDeflShort, v.deflShort > v.allowDeflShort},
        {"DEFLECTION IN LONG  DIRECTION : ", v.excessDeflLong, v.deflLong > v.allowDeflLong},
        {"SHEAR STRESS IN SHORT DIRECTION : ", v.excessShearShort, v.shearShort > v.allowShort},
        {"SHEAR STRESS IN LONG DIRECTION : ", v.excessShearLong, v.shearLong > v.allowLong},
    };
}

LiftValues RibbedCenterLift(const ResultsRecord& r) {
    return {
        r.StressTopCLShort,   r.StressBotCLShort,  r.StressTopCLLong,      r.StressBotCLLong,
        r.ExcessTopCLShort,   r.ExcessBotCLShort,  r.ExcessTopCLLong,      r.ExcessBotCLLong,
        r.ReqInertiaCLShort,  r.ReqInertiaCLLong,  r.InertiaShort,         r.InertiaLong,
        r.ExcessStiffCLShort, r.ExcessStiffCLLong, r.ShearCLShort,         r.ShearCLLong,
        r.AllowShearShort,    r.AllowShearLong,    r.ExcessShearCLShort,   r.ExcessShearCLLong,
        r.CrackDemandCLShort, r.CrackDemandCLLong, r.CrackCapacityCLShort, r.CrackCapacityCLLong,
        r.ExcessCrackCLShort, r.ExcessCrackCLLong, r.CrackValidCLShort,    r.CrackValidCLLong};
}

LiftValues RibbedEdgeLift(const ResultsRecord& r) {
    return {
        r.StressTopELShort,   r.StressBotELShort,  r.StressTopELLong,      r.StressBotELLong,
        r.ExcessTopELShort,   r.ExcessBotELShort,  r.ExcessTopELLong,      r.ExcessBotELLong,
        r.ReqInertiaELShort,  r.ReqInertiaELLong,  r.InertiaShort,         r.InertiaLong,
        r.ExcessStiffELShort, r.ExcessStiffELLong, r.ShearELShort,         r.ShearELLong,
        r.AllowShearShort,    r.AllowShearLong,    r.ExcessShearELShort,   r.ExcessShearELLong,
        r.CrackDemandELShort, r.CrackDemandELLong, r.CrackCapacityELShort, r.CrackCapacityELLong,
        r.ExcessCrackELShort, r.ExcessCrackELLong, r.CrackValidELShort,    r.CrackValidELLong};
}

LiftValues UniformCenterLift(const ResultsRecord& r) {
    return {r.UTStressTopCLShort,   r.UTStressBotCLShort,     r.UTStressTopCLLong,
            r.UTStressBotCLLong,    r.UTExcessTopCLShort,     r.UTExcessBotCLShort,
            r.UTExcessTopCLLong,    r.UTExcessBotCLLong,      r.UTReqInertiaCLShort,
            r.UTReqInertiaCLLong,   r.UTInertiaShort,         r.UTInertiaLong,
            r.UTExcessStiffCLShort, r.UTExcessStiffCLLong,    r.UTShearCLShort,
            r.UTShearCLLong,        r.UTAllowShearShort,      r.UTAllowShearLong,
            r.UTExcessShearCLShort, r.UTExcessShearCLLong,    r.UTCrackDemandCLShort,
            r.UTCrackDemandCLLong,  r.UTCrackCapacityCLShort, r.UTCrackCapacityCLLong,
            r.UTExcessCrackCLShort, r.UTExcessCrackCLLong,    r.UTCrackValidCLShort,
            r.UTCrackValidCLLong};
}

LiftValues UniformEdgeLift(const ResultsRecord& r) {
    return {r.UTStressTopELShort,   r.UTStressBotELShort,     r.UTStressTopELLong,
            r.UTStressBotELLong,    r.UTExcessTopELShort,     r.UTExcessBotELShort,
            r.UTExcessTopELLong,    r.UTExcessBotELLong,      r.UTReqInertiaELShort,
            r.UTReqInertiaELLong,   r.UTInertiaShort,         r.UTInertiaLong,
            r.UTExcessStiffELShort, r.UTExcessStiffELLong,    r.UTShearELShort,
            r.UTShearELLong,        r.UTAllowShearShort,      r.UTAllowShearLong,
            r.UTExcessShearELShort, r.UTExcessShearELLong,    r.UTCrackDemandELShort,
            r.UTCrackDemandELLong,  r.UTCrackCapacityELShort, r.UTCrackCapacityELLong,
            r.UTExcessCrackELShort, r.UTExcessCrackELLong,    r.UTCrackValidELShort,
            r.UTCrackValidELLong};
}

DownValues RibbedCenterDown(const ResultsRecord& r) {
    return {r.StressBotCDShort,  r.StressTopCDShort, r.StressBotCDLong,    r.StressTopCDLong,
            r.ExcessBotCDShort,  r.ExcessTopCDShort, r.ExcessBotCDLong,    r.ExcessTopCDLong,
            r.NetDeflCDShort,    r.NetDeflCDLong,    r.AllowDeflCDShort,   r.AllowDeflCDLong,
            r.ExcessDeflCDShort, r.ExcessDeflCDLong, r.ShearCDShort,       r.ShearCDLong,
            r.AllowShearShort,   r.AllowShearLong,   r.ExcessShearCDShort, r.ExcessShearCDLong};
}

DownValues RibbedEdgeDown(const ResultsRecord& r) {
    return {r.StressTopEDShort,  r.StressBotEDShort, r.StressTopEDLong,    r.StressBotEDLong,
            r.ExcessTopEDShort,  r.ExcessBotEDShort, r.ExcessTopEDLong,    r.ExcessBotEDLong,
            r.NetDeflEDShort,    r.NetDeflEDLong,    r.AllowDeflEDShort,   r.AllowDeflEDLong,
            r.ExcessDeflEDShort, r.ExcessDeflEDLong, r.ShearEDShort,       r.ShearEDLong,
            r.AllowShearShort,   r.AllowShearLong,   r.ExcessShearEDShort, r.ExcessShearEDLong};
}

DownValues UniformCenterDown(const ResultsRecord& r) {
    return {
        r.UTStressBotCDShort,  r.UTStressTopCDShort, r.UTStressBotCDLong,    r.UTStressTopCDLong,
        r.UTExcessBotCDShort,  r.UTExcessTopCDShort, r.UTExcessBotCDLong,    r.UTExcessTopCDLong,
        r.UTNetDeflCDShort,    r.UTNetDeflCDLong,    r.UTAllowDeflCDShort,   r.UTAllowDeflCDLong,
        r.UTExcessDeflCDShort, r.UTExcessDeflCDLong, r.UTShearCDShort,       r.UTShearCDLong,
        r.UTAllowShearShort,   r.UTAllowShearLong,   r.UTExcessShearCDShort, r.UTExcessShearCDLong};
}

DownValues UniformEdgeDown(const ResultsRecord& r) {
    return {
        r.UTStressTopEDShort,  r.UTStressBotEDShort, r.UTStressTopEDLong,    r.UTStressBotEDLong,
        r.UTExcessTopEDShort,  r.UTExcessBotEDShort, r.UTExcessTopEDLong,    r.UTExcessBotEDLong,
        r.UTNetDeflEDShort,    r.UTNetDeflEDLong,    r.UTAllowDeflEDShort,   r.UTAllowDeflEDLong,
        r.UTExcessDeflEDShort, r.UTExcessDeflEDLong, r.UTShearEDShort,       r.UTShearEDLong,
        r.UTAllowShearShort,   r.UTAllowShearLong,   r.UTExcessShearEDShort, r.UTExcessShearEDLong};
}

void Bearing(PageWriter& w, const ResultsRecord& r) {
    Block(w, "SOIL BEARING : ", {{"SOIL BEARING: ", r.BearingExcess, r.BearingSafety < 1}});
}

// The opening of the uniform pages: the ribbed foundation's compliance, on which the uniform
// thickness analysis rests.
void RibbedFoundationCompliance(PageWriter& w, bool expansive) {
    PageContext& page = w.page();
    DrawingSurface& s = w.surface();
    w.Heading("RIBBED FOUNDATION COMPLIANCE : ", 12);
    w.StepPastHeading(12);
    if (page.RibbedOutCount > 0) {
        if (page.colour) {
            BoldRed(s);
        } else {
            BoldBlack(s);
        }
        const std::string ending =
            expansive && !page.colour ? " ITEMS OUT OF COMPLIANCE. " : " ITEMS OUT OF COMPLIANCE.";
        w.Label("RIBBED FOUNDATION HAS " + std::to_string(page.RibbedOutCount) + ending);
        w.Step();
        if (expansive) {
            w.Label("                            - UNIFORM THICKNESS FOUNDATION ANALYSIS INVALID");
            w.Step();
        }
    } else {
        BoldBlack(s);
        w.Label("RIBBED FOUNDATION IN COMPLIANCE.");
        w.Step();
    }
    UnboldBlack(s);
    w.Step();
}

} // namespace

void PrintRDCS(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    PageWriter w(page, heights);
    w.Begin("RIBBED FOUNDATION - DESIGN COMPLIANCE SUMMARY");
    Opening(w);
    Bearing(w, r);
    Block(w, "CENTER LIFT MODE : ", CenterLiftChecks(RibbedCenterLift(r), r));
    Block(w, "EDGE LIFT MODE : ", EdgeLiftChecks(RibbedEdgeLift(r), r));
    w.End(lastPage);
}

void PrintRDCS_Comp(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    PageWriter w(page, heights);
    w.Begin("RIBBED FOUNDATION - DESIGN COMPLIANCE SUMMARY");
    Opening(w);
    Bearing(w, r);
    Block(w, "COMPRESSIBLE SOIL MODE (CENTER DOWN) : ", DownChecks(RibbedCenterDown(r), r));
    if (page.record.CLSettleState == 1) {
        Block(w, "COMPRESSIBLE SOIL MODE (EDGE DOWN) : ", DownChecks(RibbedEdgeDown(r), r));
    }
    w.End(lastPage);
}

void PrintUDCS(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    PageWriter w(page, heights);
    w.Begin("UNIFORM THICKNESS FOUNDATION - DESIGN COMPLIANCE SUMMARY");
    Opening(w);
    RibbedFoundationCompliance(w, true);
    Block(w, "CENTER LIFT MODE : ", CenterLiftChecks(UniformCenterLift(r), r));
    Block(w, "EDGE LIFT MODE : ", EdgeLiftChecks(UniformEdgeLift(r), r));
    w.End(lastPage);
}

void PrintUDCS_Comp(PageContext& page, const LineHeights& heights, bool lastPage) {
    const ResultsRecord& r = page.results;
    PageWriter w(page, heights);
    w.Begin("UNIFORM THICKNESS FOUNDATION - DESIGN COMPLIANCE SUMMARY");
    Opening(w);
    RibbedFoundationCompliance(w, false);
    Block(w, "COMPRESSIBLE SOIL MODE (CENTER DOWN) : ", DownChecks(UniformCenterDown(r), r));
    if (page.record.CLSettleState == 1) {
        std::vector<Check> edgeDown = DownChecks(UniformEdgeDown(r), r);
        // Two lines of this section read other results, as the page always has: the long
        // deflection passes with the ribbed excess, and the short shear fails in colour with
        // the edge lift's top fiber excess.
        Check& deflection = edgeDown[5];
        deflection.ownPassingExcess = true;
        deflection.passingExcess = r.ExcessDeflEDLong;
        Check& shear = edgeDown[6];
        if (shear.fails && page.colour) {
            shear.excess = r.ExcessTopELShort;
        }
        Block(w, "COMPRESSIBLE SOIL MODE (EDGE DOWN) : ", edgeDown);
    }
    w.End(lastPage);
}
