#include "input/blank_fields.h"

#include "shell/options_form.h"
#include "shell/record_controls.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

static void PrintTo(const InputFault& fault, std::ostream* out) {
    *out << "{" << fault.control << ", tab " << fault.tab << ", \"" << fault.message << "\"}";
}

namespace {

// An input screen with a control for every field of the record, every text filled and the
// first button of each group on; the soil list shows `soil`.
FormModel InputForm(const std::string& soil = "Expansive Soils") {
    FormModel form;
    for (const DesignField& field : DesignRecordFields()) {
        const FieldControl binding = ControlForField(field.name);
        if (binding.kind == ControlKind::OptionGroup) {
            for (int i = 0; i < binding.options; ++i) {
                form.add(Control{.name = ArrayName(binding.control, i), .checked = i == 0});
            }
        } else if (!form.has(binding.control)) {
            form.add(Control{.name = binding.control, .text = "1"});
        }
    }
    form.add(Control{.name = "cboSoilType", .text = soil});
    return form;
}

std::optional<InputFault> Blank(FormModel form, const std::string& control,
                                const DesignRecord& record = {}) {
    form[control].text = "";
    return FindBlankField(form, record, 10, false);
}

} // namespace

TEST(BlankFields, TabsAreLookedAtInOrderAndOnlyWhenSelected) {
    FormModel form = InputForm();
    EXPECT_EQ(FindBlankField(form, {}, 10, false), std::nullopt);
    form["txtSlabThick"].text = "";
    form["txtFpc"].text = "";
    const InputFault fpc{"txtFpc", 2, "Concrete Strength can not be blank"};
    const InputFault thick{"txtSlabThick", 3, "Slab Thickness can not be blank"};
    EXPECT_EQ(FindBlankField(form, {}, 10, false), fpc);
    EXPECT_EQ(FindBlankField(form, {}, 2, false), fpc);
    EXPECT_EQ(FindBlankField(form, {}, 3, false), thick);
    EXPECT_EQ(FindBlankField(form, {}, 1, false), std::nullopt);
    EXPECT_EQ(FindBlankField(form, {}, 4, false), std::nullopt);

    // Blanks are an entry, not an empty field.
    form["txtFpc"].text = " ";
    EXPECT_EQ(FindBlankField(form, {}, 10, false), thick);
}

TEST(BlankFields, SwitchedOffFieldsAreNotRequired) {
    FormModel form = InputForm();
    for (const char* name : {"txtTendArea", "txtStrLvlLong", "txtForceShort", "txtSlabTenCov",
                             "txtDeadLoad", "txtUDLM", "txtDefCLSettle"}) {
        EXPECT_EQ(Blank(form, name), std::nullopt) << name;
    }
    SelectOption(form, "optBeamSpacing", 2, 1);
    EXPECT_EQ(Blank(form, "txtLMax"), std::nullopt);

    SelectOption(form, "optTendType", 4, 3);
    EXPECT_EQ(Blank(form, "txtTendArea"),
              (InputFault{"txtTendArea", 2, "Tendon Area can not be blank"}));
    SelectOption(form, "optSlabRefType", 3, 1);
    EXPECT_EQ(Blank(form, "txtNumSlabTenShort"), std::nullopt);
    EXPECT_EQ(Blank(form, "txtStrLvlLong"),
              (InputFault{"txtStrLvlLong", 3,
                          "Minimum Slab Prestress in the long direction can not be blank"}));
    form["cbSlabTenCovType"].checked = true;
    EXPECT_EQ(Blank(form, "txtSlabTenCov"),
              (InputFault{"txtSlabTenCov", 3, "Slab Tendon Cover can not be blank"}));
    SelectOption(form, "optBeamSpacing", 2, 0);
    EXPECT_EQ(
        Blank(form, "txtLMax"),
        (InputFault{"txtLMax", 4, "Maximum Beam Spacing in the long direction can not be blank"}));
    form["cbUseDeadLoad"].checked = true;
    EXPECT_EQ(Blank(form, "txtDeadLoad"),
              (InputFault{"txtDeadLoad", 6, "DeadLoad Load can not be blank"}));
    SelectOption(form, "optSubgradetype", 3, 2);
    EXPECT_EQ(Blank(form, "txtUDSM"),
              (InputFault{"txtUDSM", 6,
                          "User-Defined Subgrade Friction at Beta in the short direction can "
                          "not be blank"}));
}

TEST(BlankFields, BeamRowsGoByPropertyThenGroup) {
    const FormModel form = InputForm();
    EXPECT_EQ(
        Blank(form, "txtDL2"),
        (InputFault{"txtDL2", 4, "Depth of Type 2 beams in long direction can not be blank"}));
    EXPECT_EQ(Blank(form, "txtCS2"),
              (InputFault{"txtCS2", 4,
                          "Tendon Cover for Type 2 beams in short direction can not be blank"}));

    // The quantities all come before the widths, the tendons before the covers.
    FormModel two = form;
    two["txtWS1"].text = "";
    EXPECT_EQ(
        Blank(two, "txtQL1"),
        (InputFault{"txtQL1", 4, "Quantity of Type 1 beams in long direction can not be blank"}));
    two = form;
    two["txtCS1"].text = "";
    EXPECT_EQ(Blank(two, "txtTL2"),
              (InputFault{"txtTL2", 4,
                          "Number of Tendons in Type 2 beams in long direction can not be blank"}));
}

TEST(BlankFields, SoilFieldsFollowTheListAndDeflectionsTheRecord) {
    const FormModel compressible = InputForm("Compressible Soils");
    EXPECT_EQ(Blank(compressible, "txtEmCenter"), std::nullopt);
    EXPECT_EQ(Blank(compressible, "txtExpBearing"),
              (InputFault{"txtExpBearing", 5, "Expansive Soil Bearing can not be blank"}));
    EXPECT_EQ(Blank(compressible, "txtSettle"),
              (InputFault{"txtSettle", 5, "Expected Settlment can not be blank"}));

    const FormModel expansive = InputForm("Expansive Soils");
    EXPECT_EQ(Blank(expansive, "txtCompBearing"), std::nullopt);
    EXPECT_EQ(Blank(expansive, "txtYmEdge"),
              (InputFault{"txtYmEdge", 5, "Ym Edge Lift can not be blank"}));

    // The screen says compressible, the record expansive: the record decides tab 6.
    DesignRecord record;
    record.SoilType = 0;
    EXPECT_EQ(Blank(compressible, "txtDefSettle", record), std::nullopt);
    EXPECT_EQ(Blank(compressible, "txtDefEdge", record),
              (InputFault{"txtDefEdge", 6, "Edge Lift Deflection Criteria can not be blank"}));
    record.SoilType = 1;
    EXPECT_EQ(Blank(expansive, "txtDefCenter", record), std::nullopt);
    EXPECT_EQ(
        Blank(expansive, "txtDefSettle", record),
        (InputFault{"txtDefSettle", 6, "Compressible Soil Deflection Criteria can not be blank"}));
}

TEST(BlankFields, LineLoadFieldsOnlyWithLineLoadAnalysis) {
    FormModel form = InputForm();
    form["txtLineLoad"].text = "";
    form["txtKs"].text = "";
    SelectOption(form, "optPreLineLoad", 3, 2);
    EXPECT_EQ(Blank(form, "txtUDPreLineLoad"), std::nullopt);

    form["cbLineLoadType"].checked = true;
    EXPECT_EQ(FindBlankField(form, {}, 7, false),
              (InputFault{"txtLineLoad", 7, "Line Load can not be blank"}));
    form["txtLineLoad"].text = "5";
    EXPECT_EQ(FindBlankField(form, {}, 7, false),
              (InputFault{"txtKs", 7, "Soil Subgrade Modulus can not be blank"}));
    form["txtKs"].text = "5";
    EXPECT_EQ(Blank(form, "txtUDPreLineLoad"),
              (InputFault{"txtUDPreLineLoad", 7, "User-Defined Prestress can not be blank"}));
    SelectOption(form, "optPreLineLoad", 3, 1);
    EXPECT_EQ(Blank(form, "txtUDPreLineLoad"), std::nullopt);
}

TEST(BlankFields, OptionsFormRequiresTheFieldsOfBothSoils) {
    FormModel form = MakeOptionsForm();
    std::vector<std::string> textBoxes;
    for (const Control& control : form.controls()) {
        if (control.name.starts_with("txt")) {
            textBoxes.push_back(control.name);
        }
    }
    for (const std::string& name : textBoxes) {
        form[name].text = "1";
    }
    SelectOption(form, "optTendType", 4, 0);
    SelectOption(form, "optSlabRefType", 3, 0);
    SelectOption(form, "optBeamSpacing", 2, 0);
    SelectOption(form, "optSubgradetype", 3, 0);
    EXPECT_EQ(FindBlankField(form, {}, 10, true), std::nullopt);

    for (const auto& [name, message] :
         {std::pair{"txtEmCenter", "Em Center Lift can not be blank"},
          std::pair{"txtCompBearing", "Compressive Soil Bearing can not be blank"}}) {
        FormModel one = form;
        one[name].text = "";
        EXPECT_EQ(FindBlankField(one, {}, 5, true), (InputFault{name, 5, message}));
    }
}
