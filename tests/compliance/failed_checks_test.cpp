#include "compliance/design_checks.h"

#include "compliance_test_support.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace {

// The failed checks alone are the checks of the whole table that are not ok, in its order, each
// with every part the whole table gives it.
void ExpectFailedAreTheTablesNotOk(const DesignRecord& record, const ResultsRecord& results,
                                   std::size_t expectedFailures) {
    const std::vector<DesignCheck> table = DesignChecks(record, results);
    std::vector<DesignCheck> failed = {DesignCheck{}, DesignCheck{}}; // cleared first
    FillFailedChecks(record, results, failed);
    std::vector<const DesignCheck*> notOk;
    for (const DesignCheck& check : table) {
        if (check.status != CheckStatus::Ok) {
            notOk.push_back(&check);
        }
    }
    EXPECT_EQ(failed.size(), expectedFailures);
    ASSERT_EQ(failed.size(), notOk.size());
    for (std::size_t i = 0; i < failed.size(); ++i) {
        const DesignCheck& a = failed[i];
        const DesignCheck& b = *notOk[i];
        EXPECT_EQ(a.foundation, b.foundation);
        EXPECT_EQ(a.mode, b.mode);
        EXPECT_EQ(a.direction, b.direction);
        EXPECT_EQ(a.rule, b.rule);
        EXPECT_STREQ(a.item, b.item);
        EXPECT_EQ(a.status, b.status);
        EXPECT_EQ(a.ratio, b.ratio);
        EXPECT_EQ(a.reference, b.reference);
        ASSERT_EQ(a.demand.has_value(), b.demand.has_value());
        if (a.demand) {
            EXPECT_EQ(a.demand->value, b.demand->value);
        }
    }

    std::vector<DesignCheck> whole;
    FillDesignChecks(record, results, whole);
    EXPECT_EQ(whole.size(), table.size());
}

} // namespace

TEST(FailedChecks, AreTheChecksOfTheTableThatAreNotOk) {
    DesignRecord record = PlainRibbedRecord();
    record.FlatSlab = 1, record.LineLoadType = 1;
    const ResultsRecord compliant = CompliantResults();
    ExpectFailedAreTheTablesNotOk(record, compliant, 0);

    // Shear of 150 psi on 100 allowed both ways in center lift, and a cracked capacity that could
    // not be calculated: two checks over their limits, one not calculated, and the uniform
    // thickness foundation's rule that the ribbed one be in compliance broken by the shear.
    ResultsRecord failing = compliant;
    failing.AllowShearShort = 100, failing.AllowShearLong = 100;
    failing.ShearCLShort = 150, failing.ShearCLLong = 150;
    failing.CrackValidELShort = 0;
    ExpectFailedAreTheTablesNotOk(record, failing, 4);

    // Beams 6 in wide break the least width of 8 in, and with it the uniform thickness
    // foundation's rule that the ribbed one have no PTI exception.
    record.WS1 = 6, record.WL1 = 6;
    ExpectFailedAreTheTablesNotOk(record, failing, 6);
}
