#include "input/blank_fields.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int AllTabs = 10;

// One required field: its control, whether the current choices require it, and what the user is
// told when it is empty.
struct RequiredField {
    std::string control;
    bool required = true;
    std::string message;
};

bool OptionOn(const FormModel& form, std::string_view group, int index) {
    return form[ArrayName(group, index)].checked;
}

// The first required field of one tab whose text is empty. Blanks count as an entry: the parse
// that follows decides what they mean.
std::optional<InputFault> FirstEmpty(const FormModel& form, int tab,
                                     const std::vector<RequiredField>& fields) {
    for (const RequiredField& field : fields) {
        if (field.required && form[field.control].text.empty()) {
            return InputFault{field.control, tab, field.message};
        }
    }
    return std::nullopt;
}

std::vector<RequiredField> MaterialFields(const FormModel& form) {
    return {
        {"txtFpc", true, "Concrete Strength can not be blank"},
        {"txtEc", true, "Concrete Creep Modulus can not be blank"},
        {"txtUW", true, "Concrete Unit Weight can not be blank"},
        {"txtFpu", true, "Tendon Strength can not be blank"},
        // Only the custom tendon asks for its area; the standard sizes carry their own.
        {"txtTendArea", OptionOn(form, "optTendType", 3), "Tendon Area can not be blank"},
    };
}

std::vector<RequiredField> SlabFields(const FormModel& form) {
    // The slab's reinforcement is given one of three ways; only the chosen pair is required.
    const bool byTendons = OptionOn(form, "optSlabRefType", 0);
    const bool byStress = OptionOn(form, "optSlabRefType", 1);
    const bool byForce = OptionOn(form, "optSlabRefType", 2);
    return {
        {"txtNumSlabTenShort", byTendons,
         "Number of Slab Tendons in the short direction can not be blank"},
        {"txtNumSlabTenLong", byTendons,
         "Number of Slab Tendons in the long direction can not be blank"},
        {"txtStrLvlShort", byStress,
         "Minimum Slab Prestress in the short direction can not be blank"},
        {"txtStrLvlLong", byStress,
         "Minimum Slab Prestress in the long direction can not be blank"},
        {"txtForceShort", byForce,
         "Minimum Slab Prestress Force Factor in the short direction can not be blank"},
        {"txtForceLong", byForce,
         "Minimum Slab Prestress Force Factor in the long direction can not be blank"},
        {"txtSlabTenCov", form["cbSlabTenCovType"].checked, "Slab Tendon Cover can not be blank"},
        {"txtSlabThick", true, "Slab Thickness can not be blank"},
        {"txtRectWidth", true, "Rectangle Width can not be blank"},
        {"txtRectLength", true, "Rectangle Length can not be blank"},
    };
}

std::vector<RequiredField> BeamFields(const FormModel& form) {
    struct Property {
        std::string_view letter;
        std::string_view words;
    };
    struct BeamGroup {
        std::string_view suffix;
        std::string_view words;
    };
    constexpr std::array<Property, 5> properties{{
        {"Q", "Quantity of"},
        {"D", "Depth of"},
        {"W", "Width of"},
        {"T", "Number of Tendons in"},
        {"C", "Tendon Cover for"},
    }};
    constexpr std::array<BeamGroup, 4> groups{{
        {"S1", "Type 1 beams in short direction"},
        {"S2", "Type 2 beams in short direction"},
        {"L1", "Type 1 beams in long direction"},
        {"L2", "Type 2 beams in long direction"},
    }};

    // Every beam field is required, also for a group of no beams.
    std::vector<RequiredField> fields;
    for (const Property& property : properties) {
        for (const BeamGroup& group : groups) {
            fields.push_back({"txt" + std::string(property.letter) + std::string(group.suffix),
                              true,
                              std::string(property.words) + " " + std::string(group.words) +
                                  " can not be blank"});
        }
    }

    // The spacing limits matter only when the analysis spacing is taken from them rather than
    // from the average.
    const bool bySpacingLimits = OptionOn(form, "optBeamSpacing", 0);
    fields.push_back({"txtSMin", bySpacingLimits,
                      "Minimum Beam Spacing in the short direction can not be blank"});
    fields.push_back({"txtSMax", bySpacingLimits,
                      "Maximum Beam Spacing in the short direction can not be blank"});
    fields.push_back({"txtLMin", bySpacingLimits,
                      "Minimum Beam Spacing in the long direction can not be blank"});
    fields.push_back({"txtLMax", bySpacingLimits,
                      "Maximum Beam Spacing in the long direction can not be blank"});
    return fields;
}

std::vector<RequiredField> SoilFields(const FormModel& form, bool isOptions) {
    // The options form keeps the defaults of both soils and so requires both sets; the input
    // screen requires the set of the soil chosen in its list.
    bool expansive = true;
    bool compressible = true;
    if (!isOptions) {
        expansive = form["cboSoilType"].text == "Expansive Soils";
        compressible = !expansive;
    }
    return {
        // The expansive bearing is asked for whatever the soil.
        {"txtExpBearing", true, "Expansive Soil Bearing can not be blank"},
        {"txtEmCenter", expansive, "Em Center Lift can not be blank"},
        {"txtEmEdge", expansive, "Em Edge Lift can not be blank"},
        {"txtYmCenter", expansive, "Ym Center Lift can not be blank"},
        {"txtYmEdge", expansive, "Ym Edge Lift can not be blank"},
        {"txtCompBearing", compressible, "Compressive Soil Bearing can not be blank"},
        {"txtSettle", compressible, "Expected Settlment can not be blank"},
        {"txtSGFC", true, "Subgrade friction coefficient can not be blank"},
        {"txtEs", true, "Soil Modulus of Elasticity can not be blank"},
    };
}

std::vector<RequiredField> LoadFields(const FormModel& form, const DesignRecord& record) {
    // The deflection criteria follow the soil of the record, not the list on the screen.
    const bool expansive = record.SoilType == 0;
    const bool userFriction = OptionOn(form, "optSubgradetype", 2);
    return {
        {"txtULoad", true, "Uniform Superimposed Load can not be blank"},
        {"txtTotalLoad", true, "Perimeter Total Load can not be blank"},
        {"txtDeadLoad", form["cbUseDeadLoad"].checked, "DeadLoad Load can not be blank"},
        {"txtDefCenter", expansive, "Center Lift Deflection Criteria can not be blank"},
        {"txtDefEdge", expansive, "Edge Lift Deflection Criteria can not be blank"},
        {"txtDefSettle", !expansive, "Compressible Soil Deflection Criteria can not be blank"},
        {"txtUDSS", userFriction,
         "User-Defined Maximum Subgrade Friction in the short direction can not be blank"},
        {"txtUDLS", userFriction,
         "User-Defined Maximum Subgrade Friction in the long direction can not be blank"},
        {"txtUDSM", userFriction,
         "User-Defined Subgrade Friction at Beta in the short direction can not be blank"},
        {"txtUDLM", userFriction,
         "User-Defined Subgrade Friction at Beta in the long direction can not be blank"},
        {"txtPrestress", true, "Prestress Loss can not be blank"},
    };
}

std::vector<RequiredField> LineLoadFields(const FormModel& form) {
    if (!form["cbLineLoadType"].checked) {
        return {};
    }
    return {
        {"txtLineLoad", true, "Line Load can not be blank"},
        {"txtKs", true, "Soil Subgrade Modulus can not be blank"},
        {"txtUDPreLineLoad", OptionOn(form, "optPreLineLoad", 2),
         "User-Defined Prestress can not be blank"},
    };
}

} // namespace

std::optional<InputFault> FindBlankField(const FormModel& form, const DesignRecord& record,
                                         int selector, bool isOptions) {
    // Tab 1, the project information, has nothing required. A tab's fields are listed only when
    // the tab takes part, so the form is asked only for the controls of the tabs looked at.
    const auto takesPart = [selector](int tab) { return selector == tab || selector == AllTabs; };
    std::optional<InputFault> fault;
    if (takesPart(2) && (fault = FirstEmpty(form, 2, MaterialFields(form)))) {
        return fault;
    }
    if (takesPart(3) && (fault = FirstEmpty(form, 3, SlabFields(form)))) {
        return fault;
    }
    if (takesPart(4) && (fault = FirstEmpty(form, 4, BeamFields(form)))) {
        return fault;
    }
    if (takesPart(5) && (fault = FirstEmpty(form, 5, SoilFields(form, isOptions)))) {
        return fault;
    }
    if (takesPart(6) && (fault = FirstEmpty(form, 6, LoadFields(form, record)))) {
        return fault;
    }
    if (takesPart(7) && (fault = FirstEmpty(form, 7, LineLoadFields(form)))) {
        return fault;
    }
    return std::nullopt;
}
