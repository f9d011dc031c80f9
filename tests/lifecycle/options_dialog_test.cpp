#include "lifecycle/options_dialog.h"
#include "shell/recent_files.h"

#include "tests/lifecycle/lifecycle_test_support.h"

#include <gtest/gtest.h>

namespace {

// The program folder of the fixture's services exists nowhere; the association goes to the
// scratch folder.
AssociationTarget Association(const LifecycleFixture& f) {
    return {f.scratch.path() / "share", "/opt/korvath3/korvath3"};
}

} // namespace

TEST(OptionsDialog, OkWithRestoreIgnoresEveryOtherEdit) {
    LifecycleFixture f;
    Program& p = f.program;
    ModifyRecentFiles(p.settings, "/lot.kvt");
    ShowOptionsDialog(p, f.services);
    FormModel& form = p.options.form;
    EXPECT_TRUE(p.options.visible);
    EXPECT_EQ(form["txtUW"].text, "145");

    form["txtUW"].text = "160";
    ChangeOptionsControl(p.options, 2);
    form["txtPrestress"].text = ""; // a blank is not even looked at
    ChangeOptionsControl(p.options, 6);
    form["cbRestore"].checked = true;
    EXPECT_TRUE(OptionsOK(p, f.services, Association(f)));
    EXPECT_FALSE(p.options.visible);
    EXPECT_EQ(p.options.TabChanged, (std::array<bool, OptionsTabCount>{}));
    EXPECT_FALSE(p.options.applyEnabled);   // no tab is left flagged to enable it
    EXPECT_EQ(p.settings.defaults.UW, 150); // the factory's, not the edit's
    EXPECT_EQ(p.settings.defaults.TendArea, 0.153);
    EXPECT_EQ(f.section("DefMatProp").at("UW"), "150");
    EXPECT_EQ(f.section("DefLDPProp").at("Prestress"), "15");
    EXPECT_EQ(p.settings.RecentFiles[0], "/lot.kvt"); // not asked to clear
    EXPECT_EQ(p.project.dialogFolder, "/opt/korvath3");
    EXPECT_TRUE(f.dialogs.messages.empty());
}

TEST(OptionsDialog, ABlankBlocksOkOnItsTabAndCancelKeepsTheRecentFiles) {
    LifecycleFixture f;
    Program& p = f.program;
    ModifyRecentFiles(p.settings, "/lot.kvt");
    ShowOptionsDialog(p, f.services, 0);
    FormModel& form = p.options.form;
    form["txtPrestress"].text = "";
    form["cbClear"].checked = true;
    EXPECT_FALSE(OptionsOK(p, f.services, Association(f)));
    EXPECT_TRUE(p.options.visible);
    ASSERT_EQ(f.dialogs.messages.size(), 1u);
    EXPECT_EQ(f.dialogs.messages[0].title, "Input Error!");
    EXPECT_EQ(form["tabOptions"].selectedIndex, 6);
    EXPECT_EQ(form.focus, "txtPrestress");

    // OK cleared the recent files before it met the blank, as the dialog always has; Cancel on
    // a fresh showing with the box ticked keeps them.
    ModifyRecentFiles(p.settings, "/lot.kvt");
    ShowOptionsDialog(p, f.services);
    form["cbClear"].checked = true;
    OptionsCancel(p.options);
    EXPECT_FALSE(p.options.visible);
    EXPECT_EQ(p.settings.RecentFiles[0], "/lot.kvt");
    ShowOptionsDialog(p, f.services);
    EXPECT_FALSE(form["cbClear"].checked);
}

TEST(OptionsDialog, ApplyWritesOnlyTheTabInFront) {
    LifecycleFixture f;
    Program& p = f.program;
    ShowOptionsDialog(p, f.services, 5);
    FormModel& form = p.options.form;
    form["txtExpBearing"].text = "2500";
    ChangeOptionsControl(p.options, 5);
    form["txtFpc"].text = "4000";
    ChangeOptionsControl(p.options, 2);
    EXPECT_TRUE(p.options.applyEnabled);

    OptionsApply(p, f.services, Association(f));
    EXPECT_EQ(f.section("DefSoilProp").at("ExpBearing"), "2500");
    EXPECT_EQ(f.section("DefMatProp").at("Fpc"), "3000");
    EXPECT_EQ(p.settings.defaults.Fpc, 3000);
    EXPECT_FALSE(p.options.TabChanged[5]);
    EXPECT_TRUE(p.options.TabChanged[2]);
    EXPECT_FALSE(p.options.applyEnabled);
    EXPECT_TRUE(p.options.visible);

    // The program tab: its options, and the association written when asked.
    form["tabOptions"].selectedIndex = 0;
    form["cbUseBeta"].checked = true;
    form["cbAssociate"].checked = true;
    OptionsApply(p, f.services, Association(f));
    EXPECT_EQ(p.settings.options.UseBeta, 1);
    EXPECT_EQ(f.section("Program Data").at("UseBeta"), "1");
    EXPECT_TRUE(std::filesystem::exists(f.scratch.path() / "share/applications/korvath3.desktop"));
}

TEST(OptionsDialog, ChoicesSwitchTheirFieldsAsOnTheInputScreen) {
    LifecycleFixture f;
    Program& p = f.program;
    p.settings.defaults.TendType = 2, p.settings.defaults.TendArea = 0.217;
    ShowOptionsDialog(p, f.services, 2);
    FormModel& form = p.options.form;
    // Loaded with a standard tendon, the custom area is blank and off.
    EXPECT_FALSE(form["txtTendArea"].enabled);
    EXPECT_EQ(form["txtTendArea"].text, "");

    ClickOptionsControl(p.options, p.settings, "optTendType(3)");
    EXPECT_TRUE(form["optTendType(3)"].checked && !form["optTendType(2)"].checked);
    EXPECT_TRUE(form["txtTendArea"].enabled);
    EXPECT_EQ(form["txtTendArea"].text, ".217"); // the default record's area
    EXPECT_TRUE(p.options.TabChanged[2]);
    EXPECT_TRUE(p.options.applyEnabled);

    ClickOptionsControl(p.options, p.settings, "cbLineLoadType");
    EXPECT_TRUE(form["cbLineLoadType"].checked);
    EXPECT_TRUE(p.options.TabChanged[7]);
    // Both soils stand on the soil tab at once.
    EXPECT_TRUE(form["fraSoilType(0)"].visible && form["fraSoilType(1)"].visible);
    EXPECT_FALSE(form.has("cboSoilType"));
}

TEST(OptionsDialog, ApplyWithRestoreShowsTheFactoryValuesWithTheirFieldsSwitched) {
    LifecycleFixture f;
    Program& p = f.program;
    // Defaults of a custom tendon, slab tendons by count and spacings by minimum and maximum.
    DesignRecord& d = p.settings.defaults;
    d.TendType = 3, d.TendArea = 0.217;
    d.SlabRefType = 0, d.NumSlabTenShort = 12, d.NumSlabTenLong = 20;
    d.BeamSpacing = 0, d.SMin = 6, d.SMax = 15;
    ModifyRecentFiles(p.settings, "/lot.kvt");
    ShowOptionsDialog(p, f.services, 2);
    FormModel& form = p.options.form;
    EXPECT_TRUE(form["txtTendArea"].enabled);
    EXPECT_EQ(form["txtTendArea"].text, ".217");
    EXPECT_TRUE(form["txtNumSlabTenShort"].enabled);
    EXPECT_FALSE(form["txtForceShort"].enabled);
    form["txtFpc"].text = "5000";
    ChangeOptionsControl(p.options, 2);

    form["tabOptions"].selectedIndex = 0;
    ClickOptionsControl(p.options, p.settings, "cbRestore");
    ClickOptionsControl(p.options, p.settings, "cbClear");
    OptionsApply(p, f.services, Association(f));

    // The factory's record: a 0.5 in strand (0.153 sq in), slab tendons by force 0.05, spacings
    // by the rule; every section written, the tabs' flags cleared, Apply withdrawn, the action
    // boxes unticked and the recent files gone.
    EXPECT_EQ(d.TendType, 2);
    EXPECT_EQ(d.TendArea, 0.153);
    EXPECT_EQ(d.Fpc, 3000);
    EXPECT_EQ(f.section("DefMatProp").at("TendArea"), ".153");
    EXPECT_EQ(f.section("DefMatProp").at("Fpc"), "3000");
    EXPECT_EQ(f.section("DefFoundProp").at("NumSlabTenShort"), "0");
    EXPECT_EQ(p.options.TabChanged, (std::array<bool, OptionsTabCount>{}));
    EXPECT_FALSE(p.options.applyEnabled);
    EXPECT_FALSE(form["cbRestore"].checked || form["cbClear"].checked);
    EXPECT_EQ(p.settings.RecentFiles[0], "");
    EXPECT_TRUE(p.options.visible);

    // The form shows them as a fresh showing would: the fields the factory's choices switch off
    // are blank and disabled, the ones they switch on enabled.
    EXPECT_TRUE(form["optTendType(2)"].checked);
    EXPECT_EQ(form["txtTendArea"].text, "");
    EXPECT_FALSE(form["txtTendArea"].enabled);
    EXPECT_EQ(form["txtNumSlabTenShort"].text, "");
    EXPECT_FALSE(form["txtNumSlabTenShort"].enabled);
    EXPECT_EQ(form["txtForceShort"].text, ".05");
    EXPECT_TRUE(form["txtForceShort"].enabled);
    EXPECT_EQ(form["txtFpc"].text, "3000");
    EXPECT_TRUE(form["txtSMin"].enabled); // BeamSpacing 0: by minimum and maximum
    EXPECT_EQ(form["txtSMin"].text, "0");
}

TEST(OptionsDialog, TextsListsAndTheFolderFlagTheirTabsAndReachTheStoreAtOk) {
    LifecycleFixture f;
    Program& p = f.program;
    ShowOptionsDialog(p, f.services, 7);
    FormModel& form = p.options.form;
    EXPECT_FALSE(p.options.applyEnabled);

    ClickOptionsControl(p.options, p.settings, "cbLineLoadType");
    ChooseOptionsListItem(p.options, "cboDirLineLoad", 1);
    EXPECT_EQ(form["cboDirLineLoad"].text, "Short Direction");
    EXPECT_EQ(form["cboDirLineLoad"].selectedIndex, 1);
    ChooseOptionsListItem(p.options, "cboDirLineLoad", 2); // no such item
    EXPECT_EQ(form["cboDirLineLoad"].text, "Short Direction");

    ChangeOptionsText(p.options, "txtSGFC", "1");
    EXPECT_EQ(form["txtSGFC"].text, "1");
    const std::string folder = f.scratch.path().string();
    ChooseDefaultFolder(p.options, folder);
    EXPECT_EQ(form["lblDefFilePath"].caption, folder);
    EXPECT_EQ(p.options.TabChanged, (std::array<bool, OptionsTabCount>{true, false, false, false,
                                                                       false, false, true, true}));
    EXPECT_TRUE(p.options.applyEnabled);

    ASSERT_TRUE(OptionsOK(p, f.services, Association(f)));
    EXPECT_EQ(p.settings.FilePath, folder);
    EXPECT_EQ(f.section("Program Data").at("FilePath"), folder);
    EXPECT_EQ(p.project.dialogFolder, folder);
    EXPECT_EQ(p.input.dialogFolder, folder);
    EXPECT_EQ(p.settings.defaults.SGFC, 1);
    EXPECT_EQ(f.section("DefLDPProp").at("SGFC"), "1");
    EXPECT_EQ(f.section("DefLineLoad").at("LineLoadType"), "1");
    EXPECT_EQ(f.section("DefLineLoad").at("DirLineLoad"), "Short Direction");
    EXPECT_EQ(p.settings.defaults.DirLineLoad, "Short Direction");
}
