#include "common/run_time_error.h"
#include "engine/tendon_size.h"
#include "input/input_events.h"
#include "shell/record_controls.h"
#include "storage/design_file.h"

#include "input_test_support.h"

#include <gtest/gtest.h>

namespace {

int ReadFailure(InputFixture& f, const char* box, const char* text, int selector) {
    f[box].text = text;
    try {
        ReadInputRecord(f.screen.form, f.record, selector);
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

} // namespace

TEST(InputRecord, ChoicesNotMadeKeepTheirValuesInTheRecord) {
    InputFixture f;
    // The prestress row read once, then the tendon row chosen: the prestress stays.
    Click(f.screen, f.context, "optSlabRefType(1)");
    ChangeText(f.screen, f.context, "txtStrLvlShort", "65");
    ReadInputRecord(f.screen.form, f.record, 2);
    EXPECT_EQ(f.record.SlabRefType, 1);
    EXPECT_EQ(f.record.StrLvlShort, 65);
    Click(f.screen, f.context, "optSlabRefType(0)");
    ChangeText(f.screen, f.context, "txtNumSlabTenShort", "9");
    ReadInputRecord(f.screen.form, f.record, 2);
    EXPECT_EQ(f.record.SlabRefType, 0);
    EXPECT_EQ(f.record.NumSlabTenShort, 9);
    EXPECT_EQ(f.record.StrLvlShort, 65);

    // A custom strand of the half-inch strand's area is 0.441 in across, not the nominal 0.5:
    // sqrt(0.153 x 4 / 3.14159265359) = 0.44137...
    Click(f.screen, f.context, "optTendType(3)");
    ChangeText(f.screen, f.context, "txtTendArea", " .153 ");
    ReadInputRecord(f.screen.form, f.record, 1);
    EXPECT_EQ(f.record.TendType, 3);
    EXPECT_NEAR(f.record.TendDiam, 0.44137, 5e-6);
    Click(f.screen, f.context, "optTendType(1)");
    ReadInputRecord(f.screen.form, f.record, 1);
    EXPECT_EQ(f.record.TendArea, 0.115);
    EXPECT_EQ(f.record.TendDiam, 0.4375);

    // Fractional tendons per beam stay fractional; the beam page alone copies nothing.
    ChangeText(f.screen, f.context, "txtTS1", "0.5");
    const DesignRecord before = f.record;
    ReadInputRecord(f.screen.form, f.record, 3);
    EXPECT_EQ(f.record, before);
    ReadInputRecord(f.screen.form, f.record, 2);
    EXPECT_EQ(f.record.TS1, 0.5);

    // The soil type is the list's, set at once, not read with the soil page.
    f["cboSoilType"].text = "Compressible Soils";
    ReadInputRecord(f.screen.form, f.record, 4);
    EXPECT_EQ(f.record.SoilType, 0);

    // A record that carries no data is not touched.
    f.record.NoDataFlag = 1;
    ChangeText(f.screen, f.context, "txtFpc", "5000");
    const DesignRecord flagged = f.record;
    ReadInputRecord(f.screen.form, f.record, 10);
    EXPECT_EQ(f.record, flagged);
}

TEST(InputRecord, UnreadableNumbersAreRunTimeErrors) {
    InputFixture f;
    EXPECT_EQ(ReadFailure(f, "txtFpc", "3..5", 1), 13); // a second point passes the key filter
    EXPECT_EQ(ReadFailure(f, "txtFpc", "", 1), 13);
    EXPECT_EQ(ReadFailure(f, "txtFpc", "3000", 1), 0);
    EXPECT_EQ(ReadFailure(f, "txtQS1", "32767.4", 2), 0);
    EXPECT_EQ(f.record.QS1, 32767);
    EXPECT_EQ(ReadFailure(f, "txtQS1", "32767.5", 2), 6); // rounds to 32768
    EXPECT_EQ(ReadFailure(f, "txtQS1", "2.5", 2), 0);
    EXPECT_EQ(f.record.QS1, 2); // ties to even
    EXPECT_EQ(ReadFailure(f, "txtEs", "1e400", 4), 6);
    Click(f.screen, f.context, "optTendType(3)");
    EXPECT_EQ(ReadFailure(f, "txtTendArea", "-1", 1), 5);
}

TEST(InputRecord, EveryExampleComesBackThroughTheScreen) {
    for (const char* name :
         {"expansive_ribbed.kvt", "compressible_edge_down.kvt", "uniform_line_load.kvt"}) {
        InputFixture f;
        const std::filesystem::path path = std::filesystem::path(K3_SOURCE_DIR) / "examples" / name;
        ReadDesignFile(path, AllSections, f.record, f.defaults, {});
        DesignRecord original = f.record;
        ApplyTendonSize(original); // the diameter is derived, not stored
        WriteInputRecord(f.screen, f.context, 10);
        EXPECT_EQ(f.project.ProjectChanged, 1) << name; // a visible screen shows the change
        DesignRecord copy = FirstStartDefaultRecord("");
        copy.SoilType = original.SoilType;
        ReadInputRecord(f.screen.form, copy, 10);
        // Fields that the project's choices switch off are blank on the screen and keep the
        // value the record had; every other field must come back exactly. On compressible soil
        // the screen clears the smallest-load check, which belongs to expansive edge lift.
        const bool expansive = original.SoilType == 0;
        EXPECT_EQ(copy.UseDeadLoad, expansive ? original.UseDeadLoad : 0) << name;
        for (const DesignField& field : DesignRecordFields()) {
            const bool deadLoad = field.name == "UseDeadLoad" || field.name == "DeadLoad";
            if (!FieldConditionHolds(original, field.name) || (deadLoad && !expansive)) {
                continue;
            }
            EXPECT_EQ(FieldStoreText(copy, field), FieldStoreText(original, field))
                << name << " " << field.name;
        }
        EXPECT_EQ(f["tabInput"].items[5],
                  expansive ? "Load, Stiffness && Prestress" : "Load, Deflection && Prestress");
        EXPECT_EQ(f["cboSoilType"].text, expansive ? "Expansive Soils" : "Compressible Soils");
        EXPECT_EQ(f["fraDeflect(0)"].visible, expansive);
    }
}

TEST(InputRecord, ScreenShowsBlanksForSwitchedOffFields) {
    InputFixture f;
    f.record.TendType = 3;
    f.record.TendArea = 0.217;
    f.record.SlabRefType = 0;
    f.record.NumSlabTenShort = 14;
    f.record.StrLvlShort = 70;
    f.record.BeamSpacing = 1;
    f.record.SMin = 12;
    f.record.LineLoadType = 1;
    f.record.PreLineLoadType = 1;
    f.record.UDPreLineLoad = 90;
    f.record.RectWidth = 42.5;
    f.record.RectLength = 1250;
    WriteInputRecord(f.screen, f.context, 10);
    EXPECT_EQ(f["txtTendArea"].text, ".217");
    EXPECT_TRUE(f["txtTendArea"].enabled);
    EXPECT_EQ(f["txtNumSlabTenShort"].text, "14");
    EXPECT_EQ(f["txtStrLvlShort"].text, "");
    EXPECT_FALSE(f["txtStrLvlShort"].enabled);
    EXPECT_EQ(f["txtSMin"].text, "");
    EXPECT_FALSE(f["lblBS(0)"].enabled);
    EXPECT_TRUE(f["txtLineLoad"].enabled);
    EXPECT_TRUE(f["optPreLineLoad(1)"].checked);
    EXPECT_EQ(f["txtUDPreLineLoad"].text, "");
    EXPECT_EQ(f["lblRectGeo"].caption, "42.50 FT x 1,250.00 FT x 4.00 In");

    // The load page alone, on compressible soil: the smallest load stays off whatever the
    // record holds.
    f.record.SoilType = 1;
    f.record.UseDeadLoad = 1;
    f.record.DeadLoad = 700;
    WriteInputRecord(f.screen, f.context, 5);
    EXPECT_FALSE(f["cbUseDeadLoad"].checked);
    EXPECT_FALSE(f["cbUseDeadLoad"].enabled);
    EXPECT_EQ(f["txtDeadLoad"].text, "");
}
