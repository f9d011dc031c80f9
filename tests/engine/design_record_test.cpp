#include "engine/checked_math.h"
#include "engine/design_record.h"
#include "engine/results_record.h"
#include "engine/tendon_size.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {
template <typename Record>
std::set<std::string> namesOfKind(std::span<const RecordField<Record>> fields, FieldKind kind) {
    std::set<std::string> names;
    for (const auto& field : fields) {
        if (field.kind == kind) {
            names.insert(std::string(field.name));
        }
    }
    return names;
}
} // namespace

TEST(RecordFields, EveryNameOnceWithItsKindAndMember) {
    std::set<std::string> all;
    DesignRecord record;
    for (const DesignField& field : DesignRecordFields()) {
        EXPECT_TRUE(all.insert(std::string(field.name)).second) << field.name;
        if (field.kind == FieldKind::Real) {
            record.*field.real = static_cast<double>(all.size());
        }
    }
    // 8 project, 8 material, 13 slab, 26 beam, 12 soil, 14 load, 6 line load, the no-data flag.
    EXPECT_EQ(all.size(), 88u);
    // The table's members are the struct's: Fpc is the 10th field, LMin the 52nd, Ks the 87th.
    EXPECT_EQ(record.Fpc, 10.0);
    EXPECT_EQ(record.LMin, 52.0);
    EXPECT_EQ(record.Ks, 87.0);
    EXPECT_EQ(namesOfKind(ResultsRecordFields(), FieldKind::Int16),
              (std::set<std::string>{
                  "BeamsShort", "BeamsLong", "TotalTenShort", "TotalTenLong", "Em5ControlLong",
                  "Em5ControlShort", "CrackValidCLLong", "CrackValidCLShort", "CrackValidELLong",
                  "CrackValidELShort", "TendonEndAllowance", "UTTotalTenShort", "UTTotalTenLong",
                  "UTTendonEndAllowance", "UTCrackValidCLLong", "UTCrackValidCLShort",
                  "UTCrackValidELLong", "UTCrackValidELShort"}));
}

TEST(TendonSize, StandardStrandsTakeTheTableAndACustomTendonItsRoundDiameter) {
    DesignRecord record;
    const struct {
        std::int16_t type;
        double area, diameter;
    } table[] = {{0, 0.085, 0.375}, {1, 0.115, 0.4375}, {2, 0.153, 0.5}};
    for (const auto& row : table) {
        record.TendType = row.type;
        record.TendArea = 9;
        ApplyTendonSize(record);
        EXPECT_EQ(record.TendArea, row.area);
        EXPECT_EQ(record.TendDiam, row.diameter);
    }
    // A 1/2 in strand's area typed as custom: sqrt(0.153 x 4 / 3.14159265359) = 0.4413679308.
    record.TendType = 3;
    record.TendArea = 0.153;
    ApplyTendonSize(record);
    EXPECT_NEAR(record.TendDiam, 0.4413679308, 1e-10);
    // Another type leaves both alone; a negative custom area has no diameter.
    record.TendType = 7;
    ApplyTendonSize(record);
    EXPECT_EQ(record.TendArea, 0.153);
    record.TendType = 3;
    record.TendArea = -0.1;
    EXPECT_THROW(ApplyTendonSize(record), ArithmeticFault);
}
