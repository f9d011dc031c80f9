#include "reports/result_blocks.h"

#include "common/number_text.h"
#include "reports/result_tables.h"

std::string F(double value, const char* pattern) {
    return Formatted(value, pattern);
}

void BetweenBlocks(PageWriter& w) {
    w.Step();
}

std::string FrictionLine(std::int16_t subgradeType) {
    switch (subgradeType) {
    case 0:
        return "Subgrade Friction calculated by method prescribed in PTI Manual";
    case 1:
        return "Subgrade Friction calculated by \"Full Length Drag\" Method";
    case 2:
        return "Subgrade Friction calculated by user.  Effective prestress at mid-slab not "
               "calculated.";
    default:
        return {};
    }
}

void CenterLiftMoments(PageWriter& w, double momentShort, double momentLong, const char* em5) {
    const ResultsRecord& r = w.page().results;
    const bool em5Rule = r.Em5ControlLong == 1;
    const std::string shortLabel = em5Rule ? std::string("Maximum Moment, Short Dir.") + em5
                                           : "Maximum Moment, Short Direction";
    const std::string longLabel =
        em5Rule ? std::string("Maximum Moment, Long Dir.") + em5 : "Maximum Moment, Long Direction";
    SingleRow(w, shortLabel, F(momentShort, "###,##0.00"), "  FT-K/FT");
    SingleRow(w, longLabel, F(momentLong, "###,##0.00"), "  FT-K/FT");
}

void Moments(PageWriter& w, double momentShort, double momentLong) {
    SingleRow(w, "Maximum Moment, Short Direction", F(momentShort, "###,##0.00"), "  FT-K/FT");
    SingleRow(w, "Maximum Moment, Long Direction", F(momentLong, "###,##0.00"), "  FT-K/FT");
}

void StiffnessBlock(PageWriter& w, const Stiffness& s) {
    const DirectionValues& shortValues = s.values.shortDirection;
    const DirectionValues& longValues = s.values.longDirection;
    BetweenBlocks(w);
    BlockHeading(w, s.heading);
    w.Label("Based on a Stiffness Coefficient of " + GeneralNumberText(s.coefficient));
    w.Step();
    DirectionHeads(w);
    PowerPairRow(w, "Available Moment of Inertia  (Inch", "4", ")", F(shortValues.allowed, "#,##0"),
                 F(longValues.allowed, "#,##0"));
    PowerPairRow(w, "Required Moment of Inertia  (Inch", "4", ")", F(shortValues.demand, "#,##0"),
                 F(longValues.demand, "#,##0"));
    PairRow(w, "Required Moment of Inertia controlled by", s.basisShort, s.basisLong);
}

void ShearBlock(PageWriter& w, const Shear& s) {
    const DirectionValues& shortValues = s.values.shortDirection;
    const DirectionValues& longValues = s.values.longDirection;
    BetweenBlocks(w);
    BlockHeading(w, s.heading);
    SingleRow(w, s.shortLabel, F(s.forceShort, "###,##0.00"), "  K/FT");
    SingleRow(w, "Maximum Shear, Long Direction", F(s.forceLong, "###,##0.00"), "  K/FT");
    DirectionHeads(w);
    PairRow(w, "Allowable Shear Stress  (PSI)", F(shortValues.allowShear, "#,##0"),
            F(longValues.allowShear, "#,##0"));
    PairRow(w, "Actual Shear Stress  (PSI)", F(shortValues.shear, "#,##0"),
            F(longValues.shear, "#,##0"));
}

void CrackedBlock(PageWriter& w, const char* heading, const ModeValues& values) {
    BlockHeading(w, heading);
    DirectionHeads(w);
    PairRow(w, "Cracked Section Capacity  (FT-K)",
            F(values.shortDirection.crackCapacity, "#,##0.0"),
            F(values.longDirection.crackCapacity, "#,##0.0"));
    PairRow(w, "0.9 Moment  (FT-K)", F(values.shortDirection.crackDemand, "#,##0.0"),
            F(values.longDirection.crackDemand, "#,##0.0"));
    BetweenBlocks(w);
}

void DeflectionBlock(PageWriter& w, const Deflection& d) {
    const DirectionValues& shortValues = d.values.shortDirection;
    const DirectionValues& longValues = d.values.longDirection;
    BetweenBlocks(w);
    BlockHeading(w, d.heading);
    w.Label("Based on a Differential Deflection Coefficient of " +
            GeneralNumberText(d.coefficient));
    w.Step();
    DirectionHeads(w);
    PairRow(w, d.basisLabel, d.basisShort, d.basisLong);
    PairRow(w, d.allowLabel, F(shortValues.allowed, "##0.00"), F(longValues.allowed, "##0.00"));
    PairRow(w, d.actualLabel, F(shortValues.demand, "##0.00"), F(longValues.demand, "##0.00"));
}

std::string DownPair(double centerDown, double edgeDown, const char* pattern) {
    return F(centerDown, pattern) + " / " + F(edgeDown, pattern);
}
