#include "engine/checked_math.h"
#include "engine/design_record.h"
#include "engine/results_record.h"
#include "engine/tendon_size.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

TEST(DesignRecord, FieldTableAddressesEveryFieldOnceByItsName) {
    DesignRecord record;
    std::set<std::string> names;
    int counter = 0;
    // Give every field a distinct value through the table, then read a few back by member.
    for (const DesignField& field : DesignRecordFields()) {
        EXPECT_TRUE(names.insert(std::string(field.name)).second) << field.name;
        ++counter;
        switch (field.kind) {
        case FieldKind::Text:
            ASSERT_NE(field.text, nullptr);
            record.*field.text = std::string(field.name);
            break;
        case FieldKind::Int16:
            ASSERT_NE(field.int16, nullptr);
            record.*field.int16 = static_cast<std::int16_t>(counter);
            break;
        case FieldKind::Real:
            ASSERT_NE(field.real, nullptr);
            record.*field.real = counter + 0.5;
            break;
        }
    }
    // 7 project texts and FlatSlab; 8 material; 13 slab; 26 beams; 12 soil; 14 loads; 6 line
    // load; and the no-data flag of the files.
    EXPECT_EQ(names.size(), 8u + 8u + 13u + 26u + 12u + 14u + 6u + 1u);
    EXPECT_EQ(record.ProjGeoDate, "ProjGeoDate");
    EXPECT_EQ(record.DirLineLoad, "DirLineLoad");
    EXPECT_EQ(record.Fpc, 10.5);
    EXPECT_EQ(record.TendType, 14);
    EXPECT_EQ(record.QS1, 30);
    EXPECT_EQ(record.LMin, 52.5);
    EXPECT_EQ(record.LMax, 54.5);
    EXPECT_EQ(record.Subgradetype, 76);
    EXPECT_EQ(record.Ks, 87.5);
    EXPECT_EQ(record.NoDataFlag, 88);
}

TEST(ResultsRecord, FieldTableNamesEveryResultOnceWithCountsAndFlagsAsSixteenBit) {
    std::set<std::string> names;
    std::set<std::string> sixteenBit;
    std::set<std::string> texts;
    for (const ResultField& field : ResultsRecordFields()) {
        EXPECT_TRUE(names.insert(std::string(field.name)).second) << field.name;
        if (field.kind == FieldKind::Int16) {
            sixteenBit.insert(std::string(field.name));
        } else if (field.kind == FieldKind::Text) {
            texts.insert(std::string(field.name));
        }
    }
    EXPECT_TRUE(names.contains("CgTopShortCopy"));
    EXPECT_TRUE(names.contains("PerimeterLoad"));
    EXPECT_TRUE(names.contains("EccLong"));
    EXPECT_EQ(sixteenBit, (std::set<std::string>{
                              "BeamsShort", "BeamsLong", "TotalTenShort", "TotalTenLong",
                              "Em5ControlLong", "Em5ControlShort", "CrackValidCLLong",
                              "CrackValidCLShort", "CrackValidELLong", "CrackValidELShort"}));
    EXPECT_EQ(texts, (std::set<std::string>{"StiffBasisShort", "StiffBasisLong"}));
}

TEST(TendonSize, StandardStrandsTakeTheTableAndACustomTendonItsRoundDiameter) {
    DesignRecord record;
    const struct {
        std::int16_t type;
        double area;
        double diameter;
    } table[] = {{0, 0.085, 0.375}, {1, 0.115, 0.4375}, {2, 0.153, 0.5}};
    for (const auto& row : table) {
        record.TendType = row.type;
        record.TendArea = 9;
        ApplyTendonSize(record);
        EXPECT_EQ(record.TendArea, row.area);
        EXPECT_EQ(record.TendDiam, row.diameter);
    }

    // The area of a 1/2 in strand typed as a custom tendon gives a diameter of
    // sqrt(0.153 x 4 / 3.14159265359) = sqrt(0.19480565...) = 0.4413679308..., not 0.5.
    record.TendType = 3;
    record.TendArea = 0.153;
    ApplyTendonSize(record);
    EXPECT_EQ(record.TendArea, 0.153);
    EXPECT_NEAR(record.TendDiam, 0.4413679308, 1e-10);

    record.TendType = 7;
    record.TendArea = 0.2;
    record.TendDiam = 0.6;
    ApplyTendonSize(record);
    EXPECT_EQ(record.TendArea, 0.2);
    EXPECT_EQ(record.TendDiam, 0.6);

    record.TendType = 3;
    record.TendArea = -0.1;
    EXPECT_THROW(ApplyTendonSize(record), ArithmeticFault);
}
