#include "shell/load_settings.h"
#include "shell/options_form.h"

#include "shell_test_support.h"

#include "common/run_time_error.h"

#include <gtest/gtest.h>

namespace {

// Settings as a fresh store gives them, shown on the options form.
struct OptionsFixture : ShellFixture {
    ProgramSettings settings;
    FormModel form = MakeOptionsForm();

    OptionsFixture() {
        LoadSettings(services, settings);
        store.keys.clear();
        settings.FilePath = "/no/such/folder";
        LoadOptionValues(services, settings, form);
    }
};

} // namespace

TEST(OptionsForm, ShowsTheDefaultRecordWithBlanksForFieldsSwitchedOff) {
    OptionsFixture f;
    EXPECT_EQ(f.settings.FilePath, "/opt/korvath3"); // the folder was gone
    EXPECT_EQ(f.form["dlbDefFilePath"].text, "/opt/korvath3");
    EXPECT_EQ(f.form["txtFpc"].text, "3000");
    EXPECT_EQ(f.form["txtForceShort"].text, ".05");
    EXPECT_EQ(f.form["txtStrLvlShort"].text, ""); // force ratio chosen
    EXPECT_EQ(f.form["txtTendArea"].text, "");    // a standard strand
    EXPECT_TRUE(f.form["optTendType(2)"].checked);
    EXPECT_TRUE(f.form["cbSixFtRule"].checked);
    EXPECT_EQ(f.form["txtLineLoad"].text, ""); // no line load
    EXPECT_TRUE(f.form["chkDR(9)"].checked);
}

TEST(OptionsForm, ApplyOfOneTabWritesOnlyItsSection) {
    OptionsFixture f;
    f.form["txtEs"].text = "1250";
    f.form["txtSoilLabel"].text = "Stiff clay";
    SaveOptionValues(f.services, f.settings, f.form, 5, 5);
    ASSERT_EQ(f.store.keys.size(), 1u);
    const auto& soil = f.section("DefSoilProp");
    EXPECT_EQ(soil.size(), 10u);
    EXPECT_EQ(soil.at("Es"), "1250");
    EXPECT_EQ(soil.at("SoilLabel"), "Stiff clay");
    EXPECT_EQ(f.settings.defaults.Es, 1250);

    // The program tab leaves the recent files, the splash, the window and ShowDD alone.
    f.store.keys.clear();
    f.form["cbUseBeta"].checked = true;
    SaveOptionValues(f.services, f.settings, f.form, 0, 0);
    const auto& program = f.section("Program Data");
    EXPECT_EQ(program.size(), 15u);
    EXPECT_EQ(program.at("UseBeta"), "1");
    EXPECT_EQ(program.count("RecentFile1") + program.count("ShowSplash") + program.count("ShowDD"),
              0u);

    // A number that does not parse is a type mismatch.
    f.form["txtFpc"].text = "3000 psi";
    try {
        SaveOptionValues(f.services, f.settings, f.form, 2, 2);
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 13);
    }
}

TEST(OptionsForm, CopyingATabZeroesWhatItsChoicesSwitchOff) {
    OptionsFixture f;
    DesignRecord& d = f.settings.defaults;
    SelectOption(f.form, "optTendType", 4, 1);
    f.form["txtTendArea"].text = "0.2";
    SaveOptionValues(f.services, f.settings, f.form, 2, 2);
    EXPECT_EQ(d.TendType, 1);
    EXPECT_EQ(d.TendArea, 0.115);
    SelectOption(f.form, "optTendType", 4, 3);
    SaveOptionValues(f.services, f.settings, f.form, 2, 2);
    EXPECT_EQ(d.TendArea, 0.2);

    SelectOption(f.form, "optSlabRefType", 3, 0);
    f.form["txtNumSlabTenShort"].text = "12";
    f.form["txtNumSlabTenLong"].text = "18";
    f.form["txtSlabTenCov"].text = "1.5"; // cover not specified
    d.SlabTenCov = 2;
    SaveOptionValues(f.services, f.settings, f.form, 3, 3);
    EXPECT_EQ(d.SlabRefType, 0);
    EXPECT_EQ(d.NumSlabTenLong, 18);
    EXPECT_EQ(d.ForceShort, 0);
    EXPECT_EQ(d.StrLvlShort, 0);
    EXPECT_EQ(d.SlabTenCov, 0);
    EXPECT_EQ(f.section("DefFoundProp").at("ForceLong"), "0");

    SelectOption(f.form, "optBeamSpacing", 2, 1);
    f.form["txtSMin"].text = "8";
    SaveOptionValues(f.services, f.settings, f.form, 4, 4);
    EXPECT_EQ(d.BeamSpacing, 1);
    EXPECT_EQ(d.SMin, 0);

    f.form["txtDeadLoad"].text = "300"; // smallest load not used
    f.form["txtULoad"].text = "55";
    SaveOptionValues(f.services, f.settings, f.form, 6, 6);
    EXPECT_EQ(d.DeadLoad, 0);
    EXPECT_EQ(d.ULoad, 55);

    f.form["txtKs"].text = "40"; // no line load: its fields are not taken
    SaveOptionValues(f.services, f.settings, f.form, 7, 7);
    EXPECT_EQ(d.Ks, 4);
    f.form["cbLineLoadType"].checked = true;
    SaveOptionValues(f.services, f.settings, f.form, 7, 7);
    EXPECT_EQ(d.Ks, 40);
}

TEST(RestoreFactoryDefaults, DiffersFromTheFirstStartInThreePlaces) {
    OptionsFixture f;
    f.clock.date = "January 5, 2027";
    f.settings.options.UseBeta = 1;
    f.settings.options.ShowDD = 1;
    f.settings.RecentFiles[0] = "/p/a.kvt";
    f.settings.defaults.UDSS = 3;
    f.settings.defaults.MatLabel = "old label";
    RestoreFactoryDefaults(f.services, f.settings);

    DesignRecord expected = FirstStartDefaultRecord("January 5, 2027");
    expected.UW = 150;
    expected.TendArea = 0.153;
    expected.StrLvlShort = expected.StrLvlLong = 0;
    EXPECT_EQ(f.settings.defaults, expected);
    EXPECT_EQ(f.settings.options.UseBeta, 0);
    EXPECT_EQ(f.settings.options.ShowDD, 1);
    EXPECT_EQ(f.settings.RecentFiles[0], "/p/a.kvt");
    EXPECT_EQ(f.settings.FilePath, "/opt/korvath3");

    // Saving every section after a restore writes UDLS from the slot of UDSS.
    f.settings.defaults.UDSS = 1.5;
    f.settings.defaults.UDLS = 7;
    for (int section = 0; section <= 7; ++section) {
        SaveOptionValues(f.services, f.settings, f.form, 8, section);
    }
    EXPECT_EQ(f.section("DefLDPProp").at("UDLS"), "1.5");
    EXPECT_EQ(f.section("DefMatProp").at("UW"), "150");
    EXPECT_EQ(f.store.keys.size(), 8u);
}
