#include "input/enabling_rules.h"
#include "input/input_checks.h"
#include "input/input_events.h"
#include "input/variable_information.h"

#include "input_test_support.h"

#include <gtest/gtest.h>

namespace {

// What one field shows after a click: enabled or not, and its text.
struct Shown {
    const char* control;
    bool enabled;
    const char* text;
};

struct EnablingRow {
    const char* click;
    std::vector<Shown> fields;
    std::vector<std::pair<const char*, bool>> others; // labels and spins: enabled or not
};

} // namespace

TEST(InputScreen, EveryEnablingRuleSwitchesItsFieldsAndFillsThemFromTheDefaults) {
    // The new project uses a standard strand, the force ratio, no cover, the minimum and
    // maximum spacings, no smallest load, the manual's friction and no line load.
    const std::vector<EnablingRow> rows = {
        {"optTendType(3)", {{"txtTendArea", true, ".2"}}, {}},
        {"optTendType(0)", {{"txtTendArea", false, ""}}, {}},
        {"optSlabRefType(0)",
         {{"txtNumSlabTenShort", true, "11"},
          {"txtNumSlabTenLong", true, "12"},
          {"txtStrLvlShort", false, ""},
          {"txtForceLong", false, ""}},
         {{"udNumSlabTenShort", true}, {"udStrLvlLong", false}, {"udForceShort", false}}},
        {"optSlabRefType(1)",
         {{"txtStrLvlShort", true, "75"},
          {"txtStrLvlLong", true, "80"},
          {"txtNumSlabTenLong", false, ""},
          {"txtForceShort", false, ""}},
         {{"udStrLvlShort", true}, {"udNumSlabTenLong", false}}},
        {"optSlabRefType(2)",
         {{"txtForceShort", true, ".06"},
          {"txtForceLong", true, ".07"},
          {"txtStrLvlShort", false, ""}},
         {{"udForceLong", true}, {"udStrLvlShort", false}}},
        {"cbSlabTenCovType", {{"txtSlabTenCov", true, "1.5"}}, {{"udSlabTenCov", true}}},
        {"cbSlabTenCovType", {{"txtSlabTenCov", false, ""}}, {{"udSlabTenCov", false}}},
        {"optBeamSpacing(1)",
         {{"txtSMin", false, ""},
          {"txtSMax", false, ""},
          {"txtLMin", false, ""},
          {"txtLMax", false, ""}},
         {{"lblBS(0)", false}, {"lblBS(3)", false}}},
        {"optBeamSpacing(0)",
         {{"txtSMin", true, "9"},
          {"txtSMax", true, "16"},
          {"txtLMin", true, "10"},
          {"txtLMax", true, "17"}},
         {{"lblBS(1)", true}}},
        {"optSubgradetype(2)",
         {{"txtUDSS", true, "21"},
          {"txtUDLS", true, "22"},
          {"txtUDSM", true, "23"},
          {"txtUDLM", true, "24"}},
         {{"lblSubgradeType(0)", true}, {"lblSubgradeType(3)", true}}},
        {"optSubgradetype(1)",
         {{"txtUDSS", false, ""}, {"txtUDLM", false, ""}},
         {{"lblSubgradeType(1)", false}}},
        {"cbUseDeadLoad",
         {{"txtDeadLoad", true, "600"}},
         {{"lblDeadLoad", true}, {"udDeadLoad", true}}},
        {"cbUseDeadLoad",
         {{"txtDeadLoad", false, ""}},
         {{"lblDeadLoad", false}, {"udDeadLoad", false}}},
        {"cbCLSettleState", {{"txtDefCLSettle", true, "480"}}, {{"lblLDP(5)", true}}},
        {"cbCLSettleState", {{"txtDefCLSettle", false, ""}}, {{"lblLDP(5)", false}}},
        {"cbLineLoadType",
         {{"txtLineLoad", true, "1500"},
          {"cboDirLineLoad", true, "Short Direction"},
          {"txtUDPreLineLoad", true, "125"},
          {"txtKs", true, "40"}},
         {{"optPreLineLoad(0)", true}, {"lblLine(0)", true}, {"lblLine(12)", true}}},
        {"optPreLineLoad(0)", {{"txtUDPreLineLoad", false, ""}}, {}},
        {"optPreLineLoad(2)", {{"txtUDPreLineLoad", true, "125"}}, {}},
        {"cbLineLoadType",
         {{"txtLineLoad", false, ""}, {"txtUDPreLineLoad", false, ""}, {"txtKs", false, ""}},
         {{"cboDirLineLoad", false}, {"optPreLineLoad(2)", false}, {"lblLine(7)", false}}},
    };
    InputFixture f;
    for (const EnablingRow& row : rows) {
        f.project.ProjectChanged = 0;
        Click(f.screen, f.context, row.click);
        EXPECT_EQ(f.project.ProjectChanged, 1) << row.click;
        for (const Shown& field : row.fields) {
            EXPECT_EQ(f[field.control].enabled, field.enabled) << row.click << " " << field.control;
            EXPECT_EQ(f[field.control].text, field.text) << row.click << " " << field.control;
        }
        for (const auto& [name, enabled] : row.others) {
            EXPECT_EQ(f[name].enabled, enabled) << row.click << " " << name;
        }
    }
    EXPECT_TRUE(f["optPreLineLoad(2)"].checked); // the default option came with the line load
    EXPECT_EQ(f.project.caption, "Korvath3 - Untitled*");
    EXPECT_FALSE(f.project.outputEnabled);
}

TEST(InputScreen, SwitchingBackShowsDefaultsNotWhatWasTyped) {
    InputFixture f;
    Click(f.screen, f.context, "optSubgradetype(2)");
    ChangeText(f.screen, f.context, "txtUDSS", "35");
    Click(f.screen, f.context, "optSubgradetype(0)");
    EXPECT_EQ(f["txtUDSS"].text, "");
    Click(f.screen, f.context, "optSubgradetype(2)");
    EXPECT_EQ(f["txtUDSS"].text, "21");

    // The smallest load: a check made on the screen and not yet read into the record is lost
    // over a trip to compressible soil; the record's state comes back.
    Click(f.screen, f.context, "cbUseDeadLoad");
    ASSERT_TRUE(f["cbUseDeadLoad"].checked);
    ChooseListItem(f.screen, f.context, "cboSoilType", 0); // "Compressible Soils"
    EXPECT_EQ(f.record.SoilType, 1);
    EXPECT_FALSE(f["cbUseDeadLoad"].checked);
    EXPECT_FALSE(f["cbUseDeadLoad"].enabled);
    EXPECT_EQ(f["txtDeadLoad"].text, "");
    EXPECT_TRUE(f["fraSoilType(1)"].visible);
    EXPECT_FALSE(f["fraDeflect(0)"].visible);
    ChooseListItem(f.screen, f.context, "cboSoilType", 1);
    EXPECT_EQ(f.record.SoilType, 0);
    EXPECT_FALSE(f["cbUseDeadLoad"].checked);
    EXPECT_TRUE(f["cbUseDeadLoad"].enabled);

    f.record.UseDeadLoad = 1;
    f.record.DeadLoad = 450;
    ChooseListItem(f.screen, f.context, "cboSoilType", 0);
    ChooseListItem(f.screen, f.context, "cboSoilType", 1);
    EXPECT_TRUE(f["cbUseDeadLoad"].checked);
    EXPECT_EQ(f["txtDeadLoad"].text, "450");
    // Changing the soil by hand leaves page 6 named as it was.
    EXPECT_EQ(f["tabInput"].items[5], "Load, Stiffness && Prestress");
}

TEST(InputScreen, HiddenScreenFiresNothing) {
    InputFixture f;
    f.screen.visible = false;
    Click(f.screen, f.context, "optTendType(3)");
    ChangeText(f.screen, f.context, "txtRectWidth", "40");
    EXPECT_TRUE(f["optTendType(3)"].checked);
    EXPECT_EQ(f["txtTendArea"].text, "");
    EXPECT_FALSE(f["txtTendArea"].enabled);
    EXPECT_EQ(f["lblRectGeo"].caption, "0.00 FT x 0.00 FT x 4.00 In");
    EXPECT_EQ(f.project.ProjectChanged, 0);
}

TEST(InputScreen, SpinsStepFromTheLeadingNumberAndStopAtZero) {
    InputFixture f;
    struct Step {
        const char* spin;
        const char* before;
        bool up;
        const char* after;
    };
    const Step steps[] = {
        {"udFpc", "150", false, "0"},      // 50 is less than a step above 0: straight to 0
        {"udFpc", "250", false, "150"},    // 150 keeps a whole step above 0
        {"udFpc", "0", false, "0"},        //
        {"udFpc", "", true, "100"},        // a blank box starts from 0
        {"udEc", "3000abc", true, "4000"}, // the number the text begins with
        {"udRectWidth", ".2", true, ".3"}, // shown in general form, not .30000000000000004
        {"udForceShort", ".02", false, ".015"},
        {"udForceShort", ".009", false, "0"},
        {"udQS1", "3", true, "4"},
        {"udDS1", "1", false, ".5"}, // exactly one step above 0 stays
    };
    for (const Step& step : steps) {
        const std::string box = "txt" + std::string(step.spin + 2);
        f[box].text = step.before;
        if (step.up) {
            SpinUp(f.screen, f.context, step.spin);
        } else {
            SpinDown(f.screen, f.context, step.spin);
        }
        EXPECT_EQ(f[box].text, step.after) << step.spin << " from " << step.before;
        EXPECT_EQ(f.screen.form.focus, box);
    }
    EXPECT_EQ(SpinStep("txtCS2"), 0.5);
    EXPECT_EQ(SpinStep("txtSGFC"), 0.05);
    EXPECT_EQ(SpinStep("txtProjName"), 0.0);
}

TEST(InputScreen, KeyFiltersAndEnterWalkTheTabSequence) {
    InputFixture f;
    EXPECT_EQ(KeyPress(f.screen, "txtFpc", '-'), 0);
    EXPECT_EQ(KeyPress(f.screen, "txtFpc", '.'), '.');
    EXPECT_EQ(KeyPress(f.screen, "txtFpc", '7'), '7');
    EXPECT_EQ(KeyPress(f.screen, "txtQS1", '.'), 0);
    EXPECT_EQ(KeyPress(f.screen, "txtQS1", BackspaceKey), BackspaceKey);
    EXPECT_EQ(KeyPress(f.screen, "txtNumSlabTenShort", '.'), '.');
    EXPECT_EQ(KeyPress(f.screen, "txtProjName", '-'), '-');
    EXPECT_EQ(KeyPress(f.screen, "txtProjName", 'a'), 'a');

    // Page 2 with the half-inch strand: Enter goes down the fields, reaches only the selected
    // strand button, skips the switched-off area and starts over at the label.
    SelectPage(f.screen, f.context, 2);
    const char* walk[] = {"txtMatLabel", "txtFpc",         "txtEc",      "txtUW",
                          "txtFpu",      "optTendType(2)", "txtMatLabel"};
    std::string at = walk[0];
    for (std::size_t i = 1; i < std::size(walk); ++i) {
        EXPECT_EQ(KeyPress(f.screen, at, EnterKey), 0);
        at = f.screen.form.focus;
        EXPECT_EQ(at, walk[i]);
    }
    EXPECT_EQ(f["txtMatLabel"].selLength, 0); // empty label
    EXPECT_EQ(f["txtFpc"].selStart, 0);
    EXPECT_EQ(f["txtFpc"].selLength, 4); // "3000", selected by the Tab step

    // A mouse click leaves the caret; after a validation message the whole text is selected.
    f["txtUW"].selStart = 2;
    f["txtUW"].selLength = 0;
    FocusIn(f.screen, "txtUW", FocusReason::Other);
    EXPECT_EQ(f["txtUW"].selLength, 0);
    EXPECT_EQ(f["txtUW"].selStart, 2);
    f.screen.form.focusFromError = true;
    FocusIn(f.screen, "txtUW", FocusReason::Other);
    EXPECT_EQ(f["txtUW"].selLength, 3);
    EXPECT_FALSE(f.screen.form.focusFromError);
}

TEST(InputScreen, PageChangeSetsTabStopsPanelAndToolTips) {
    InputFixture f;
    f.record.SoilType = 1;
    WriteInputRecord(f.screen, f.context, 4);
    EXPECT_EQ(f["tabInput"].items[5], "Load, Deflection && Prestress");
    SelectPage(f.screen, f.context, 5);
    EXPECT_TRUE(f["fraInput(4)"].visible);
    EXPECT_FALSE(f["fraInput(0)"].visible);
    EXPECT_TRUE(f["txtCompBearing"].tabStop);
    EXPECT_TRUE(f["cbCLSettleState"].tabStop);
    EXPECT_FALSE(f["txtEmCenter"].tabStop);
    EXPECT_FALSE(f["txtFpc"].tabStop); // another page
    EXPECT_EQ(f.screen.moreInfo.runs.at(0).text.substr(0, 19), "Soil Properties Tab");
    EXPECT_EQ(f["tlbInput(1)"].toolTip, "Open Soil Properties File");

    SelectPage(f.screen, f.context, 6);
    EXPECT_TRUE(f["txtDefSettle"].tabStop);
    EXPECT_FALSE(f["txtDefCenter"].tabStop);
    EXPECT_FALSE(f["txtUDSS"].tabStop); // the manual's friction
    EXPECT_FALSE(f["txtCompBearing"].tabStop);
    SelectPage(f.screen, f.context, 7);
    EXPECT_EQ(f["tlbInput(2)"].toolTip, "Save Load, Deflect. && Prestress File");
    EXPECT_EQ(f.screen.CurrentInputTab, 7);

    // A right click shows the topic whatever the state of the field.
    ASSERT_FALSE(f["txtLineLoad"].enabled);
    RightClick(f.screen, f.context, "lblLine(0)");
    EXPECT_EQ(f.screen.moreInfo.runs.at(0).text.substr(0, 18), "Line Load Analysis");
    EXPECT_EQ(MoreInfoTopicOf("lblBeamProp(4)").topic, 5);
    EXPECT_EQ(MoreInfoTopicOf("lblBeamProp(6)").topic, 0);
    EXPECT_EQ(MoreInfoTopicOf("optBeamSpacing(1)").topic, 7);
    EXPECT_EQ(MoreInfoTopicOf("txtFpc").page, 0);
}

TEST(InputScreen, GeometryLineFollowsTypingWithoutFailing) {
    InputFixture f;
    ChangeText(f.screen, f.context, "txtRectWidth", "1234.5");
    ChangeText(f.screen, f.context, "txtRectLength", "60.125");
    EXPECT_EQ(f["lblRectGeo"].caption, "1,234.50 FT x 60.13 FT x 4.00 In");
    ChangeText(f.screen, f.context, "txtSlabThick", "abc");
    EXPECT_EQ(f["lblRectGeo"].caption, "1,234.50 FT x 60.13 FT x 0.00 In");
    ChangeText(f.screen, f.context, "txtSlabThick", "5.5.5");
    EXPECT_EQ(f["lblRectGeo"].caption, "1,234.50 FT x 60.13 FT x 5.50 In");
    ChangeText(f.screen, f.context, "txtRectWidth", "1e999");
    EXPECT_EQ(f["lblRectGeo"].caption, "0.00 FT x 60.13 FT x 5.50 In");

    Click(f.screen, f.context, "cmbDate");
    EXPECT_EQ(f["txtProjDate"].text, "11/23/2026");
}

TEST(InputScreen, BlankAndValueChecksTakeTheUserToTheField) {
    InputFixture f;
    f["txtSlabThick"].text = "";
    f["txtFpc"].text = "";
    EXPECT_EQ(CheckBlankFields(f.screen, f.context, 10), 1);
    ASSERT_EQ(f.dialogs.messages.size(), 1u);
    EXPECT_EQ(f.dialogs.messages[0].title, "Input Error!");
    EXPECT_EQ(f.dialogs.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(f.dialogs.messages[0].text, "Concrete Strength can not be blank");
    EXPECT_EQ(f.screen.CurrentInputTab, 2);
    EXPECT_TRUE(f["fraInput(1)"].visible);
    EXPECT_EQ(f["tabInput"].selectedIndex, 1);
    EXPECT_EQ(f.screen.form.focus, "txtFpc");
    EXPECT_EQ(f["tlbInput(1)"].toolTip, "Open Material Properties File");

    // A new project is stopped first by its width, then by its length.
    f["txtSlabThick"].text = "4";
    f["txtFpc"].text = "3000";
    EXPECT_EQ(CheckBlankFields(f.screen, f.context, 10), 0);
    ReadInputRecord(f.screen.form, f.record, 10);
    EXPECT_FALSE(CheckRecordValues(f.screen, f.context));
    EXPECT_EQ(f.dialogs.messages.back().text, "Slab Width can not be zero");
    EXPECT_EQ(f.screen.form.focus, "txtRectWidth");
    EXPECT_EQ(f.screen.CurrentInputTab, 3);
    f["txtRectWidth"].text = "40";
    ReadInputRecord(f.screen.form, f.record, 10);
    EXPECT_FALSE(CheckRecordValues(f.screen, f.context));
    EXPECT_EQ(f.dialogs.messages.back().text, "Slab Length must be greater than Slab Width");
    EXPECT_EQ(f.screen.form.focus, "txtRectLength");
}

// After a check has taken the user to a field with its text selected, the first key replaces
// the text and the next ones add to it: typing 3500 over "0" gives 3500, not "0" or "5".
TEST(InputScreen, TheSelectionOfACheckIsUsedUpByTheFirstKey) {
    InputFixture f;
    SelectPage(f.screen, f.context, 1);
    const StyledText projectTopic = f.screen.moreInfo;
    f["txtFpc"].text = "0";
    ReadInputRecord(f.screen.form, f.record, 10);
    const int requests = f.screen.form.selectionRequests;
    EXPECT_FALSE(CheckRecordValues(f.screen, f.context));
    EXPECT_EQ(f.dialogs.messages.back().text, "Concrete Compressive Strength can not be zero");
    EXPECT_EQ(f.screen.form.focus, "txtFpc");
    EXPECT_EQ(f["txtFpc"].selStart, 0);
    EXPECT_EQ(f["txtFpc"].selLength, 1);
    EXPECT_EQ(f.screen.form.selectionRequests, requests + 1); // one selection, asked once

    // The panel has followed the jump to the material page.
    EXPECT_EQ(PlainText(f.screen.moreInfo), PlainText(MoreInfoForPage(2, PageTopic, f.defaults)));
    EXPECT_NE(PlainText(f.screen.moreInfo), PlainText(projectTopic));

    for (const char* typed : {"3", "35", "350", "3500"}) {
        ChangeText(f.screen, f.context, "txtFpc", typed);
        EXPECT_EQ(f["txtFpc"].selLength, 0) << typed;
        EXPECT_EQ(f["txtFpc"].selStart, static_cast<int>(std::string(typed).size()));
    }
    EXPECT_EQ(f.screen.form.selectionRequests, requests + 1);

    // A Tab step into a field asks for its selection once more; a click does not.
    FocusIn(f.screen, "txtEc", FocusReason::TabKey);
    EXPECT_EQ(f.screen.form.selectionRequests, requests + 2);
    FocusIn(f.screen, "txtUW", FocusReason::Other);
    EXPECT_EQ(f.screen.form.selectionRequests, requests + 2);

    // A check on the page in front leaves a topic the user asked for in the panel.
    RightClick(f.screen, f.context, "lblMaterialProp(2)");
    const StyledText asked = f.screen.moreInfo;
    f["txtFpc"].text = "0";
    ReadInputRecord(f.screen.form, f.record, 10);
    EXPECT_FALSE(CheckRecordValues(f.screen, f.context));
    EXPECT_EQ(PlainText(f.screen.moreInfo), PlainText(asked));
}

TEST(InputScreen, PageKeysStepThroughThePagesAndGoRound) {
    InputFixture f;
    SelectPage(f.screen, f.context, 1);
    StepPage(f.screen, f.context, 1);
    EXPECT_EQ(f.screen.CurrentInputTab, 2);
    EXPECT_EQ(f["tabInput"].selectedIndex, 1);
    EXPECT_EQ(f["tlbInput(1)"].toolTip, "Open Material Properties File");
    StepPage(f.screen, f.context, -1);
    StepPage(f.screen, f.context, -1);
    EXPECT_EQ(f.screen.CurrentInputTab, 7);
    EXPECT_TRUE(f["fraInput(6)"].visible);
    EXPECT_FALSE(f["fraInput(0)"].visible);
    StepPage(f.screen, f.context, 1);
    EXPECT_EQ(f.screen.CurrentInputTab, 1);
}

TEST(InputScreen, ArrowKeysChooseTheNextButtonOfAGroupThatCanBeChosen) {
    InputFixture f;
    const FormModel& form = f.screen.form;
    EXPECT_EQ(NeighbourOption(form, "optTendType(2)", 1), ""); // on a page not in front
    SelectPage(f.screen, f.context, 2);
    EXPECT_EQ(NeighbourOption(form, "optTendType(2)", 1), "optTendType(3)");
    EXPECT_EQ(NeighbourOption(form, "optTendType(2)", -1), "optTendType(1)");
    EXPECT_EQ(NeighbourOption(form, "optTendType(3)", 1), ""); // no wrap at the ends
    EXPECT_EQ(NeighbourOption(form, "optTendType(0)", -1), "");
    // A disabled button is passed over.
    SelectPage(f.screen, f.context, 3);
    f["optSlabRefType(1)"].enabled = false;
    EXPECT_EQ(NeighbourOption(form, "optSlabRefType(0)", 1), "optSlabRefType(2)");
    EXPECT_EQ(NeighbourOption(form, "optSlabRefType(2)", -1), "optSlabRefType(0)");
    f["optSlabRefType(0)"].enabled = false;
    EXPECT_EQ(NeighbourOption(form, "optSlabRefType(2)", -1), "");
    EXPECT_EQ(NeighbourOption(form, "cbFlatSlab", 1), "");
}
