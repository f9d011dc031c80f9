#include "input/enabling_rules.h"

#include "common/number_pattern.h"
#include "common/number_text.h"
#include "common/run_time_error.h"
#include "input/input_form.h"
#include "shell/load_settings.h"

#include <cmath>

namespace {

// Switches the text box of a record field on or off, with its spin; a field switched on takes
// the value of `fill` when one is given.
void SwitchField(FormModel& form, std::string_view field, bool on, const DesignRecord* fill) {
    Control& box = form["txt" + std::string(field)];
    box.enabled = on;
    box.tabStop = on;
    if (!on) {
        box.text.clear();
    } else if (fill != nullptr) {
        box.text = FieldStoreText(*fill, FieldNamed(field));
    }
    const std::string spin = "ud" + std::string(field);
    if (form.has(spin)) {
        form[spin].enabled = on;
    }
}

void SwitchFields(FormModel& form, std::initializer_list<std::string_view> fields, bool on,
                  const DesignRecord* fill) {
    for (const std::string_view field : fields) {
        SwitchField(form, field, on, fill);
    }
}

// Enables or disables every label of an array `name(0)`, `name(1)`, ...
void EnableLabels(FormModel& form, std::string_view array, bool on) {
    for (int i = 0; form.has(ArrayName(array, i)); ++i) {
        form[ArrayName(array, i)].enabled = on;
    }
}

bool IsOn(const FormModel& form, std::string_view group, int index) {
    return form[ArrayName(group, index)].checked;
}

// The number a box's text begins with, as the geometry line reads it while the user types.
double TypedLeadingNumber(const std::string& text) {
    try {
        const double value = LeadingNumberValue(text);
        return std::isfinite(value) ? value : 0.0;
    } catch (const RunTimeError&) {
        return 0.0;
    }
}

} // namespace

void ApplyTendType(FormModel& form, int index, const DesignRecord* fill) {
    SwitchField(form, "TendArea", index == 3, fill);
}

void ApplySlabRefType(FormModel& form, int index, const DesignRecord* fill) {
    SwitchFields(form, {"NumSlabTenShort", "NumSlabTenLong"}, index == 0, fill);
    SwitchFields(form, {"StrLvlShort", "StrLvlLong"}, index == 1, fill);
    SwitchFields(form, {"ForceShort", "ForceLong"}, index == 2, fill);
}

void ApplySlabTenCovType(FormModel& form, bool checked, const DesignRecord* fill) {
    SwitchField(form, "SlabTenCov", checked, fill);
}

void ApplyBeamSpacing(FormModel& form, int index, const DesignRecord* fill) {
    const bool byMinimumAndMaximum = index == 0;
    SwitchFields(form, {"SMin", "SMax", "LMin", "LMax"}, byMinimumAndMaximum, fill);
    EnableLabels(form, "lblBS", byMinimumAndMaximum);
}

void ApplySubgradetype(FormModel& form, int index, const DesignRecord* fill) {
    const bool userDefined = index == 2;
    SwitchFields(form, {"UDSS", "UDLS", "UDSM", "UDLM"}, userDefined, fill);
    EnableLabels(form, "lblSubgradeType", userDefined);
}

void ApplyUseDeadLoad(FormModel& form, bool checked, const DesignRecord* fill) {
    SwitchField(form, "DeadLoad", checked, fill);
    form["lblDeadLoad"].enabled = checked;
}

void ApplyCLSettleState(FormModel& form, bool checked, const DesignRecord* fill) {
    SwitchField(form, "DefCLSettle", checked, fill);
    form[ArrayName("lblLDP", 5)].enabled = checked;
}

void ApplyPreLineLoad(FormModel& form, int index, const DesignRecord* fill) {
    SwitchField(form, "UDPreLineLoad", index == 2, fill);
}

void ApplyLineLoadType(FormModel& form, bool checked, const DesignRecord* fill) {
    SwitchFields(form, {"LineLoad", "Ks"}, checked, fill);
    Control& direction = form["cboDirLineLoad"];
    direction.enabled = checked;
    for (int i = 0; i < 3; ++i) {
        form[ArrayName("optPreLineLoad", i)].enabled = checked;
    }
    EnableLabels(form, "lblLine", checked);
    if (!checked) {
        SwitchField(form, "UDPreLineLoad", false, nullptr);
        return;
    }
    if (fill != nullptr) {
        direction.text = fill->DirLineLoad;
        direction.selectedIndex = -1;
        for (std::size_t i = 0; i < direction.items.size(); ++i) {
            if (direction.items[i] == direction.text) {
                direction.selectedIndex = static_cast<int>(i);
            }
        }
        SelectOption(form, "optPreLineLoad", 3, fill->PreLineLoadType);
    }
    ApplyPreLineLoad(form, SelectedOption(form, "optPreLineLoad", 3), fill);
}

void ApplySoilType(FormModel& form, const DesignRecord& record) {
    const bool expansive = record.SoilType == 0;
    for (const char* field :
         {"txtExpBearing", "txtEmCenter", "txtEmEdge", "txtYmCenter", "txtYmEdge"}) {
        form[field].tabStop = expansive;
    }
    for (const char* field : {"txtCompBearing", "txtSettle", "cbCLSettleState"}) {
        form[field].tabStop = !expansive;
    }
    for (int i = 0; i < 2; ++i) {
        form[ArrayName("fraSoilType", i)].visible = (i == 0) == expansive;
        form[ArrayName("fraDeflect", i)].visible = (i == 0) == expansive;
    }
    // The smallest load belongs to the edge lift of expansive soil; on return it comes back
    // from the record, not from what the screen showed before.
    Control& useDeadLoad = form["cbUseDeadLoad"];
    useDeadLoad.enabled = expansive;
    useDeadLoad.checked = expansive && record.UseDeadLoad == 1;
    SwitchField(form, "DeadLoad", useDeadLoad.checked, &record);
    form["lblDeadLoad"].enabled = useDeadLoad.checked;
    for (const char* field : {"txtDefCenter", "txtDefEdge", "txtDefSettle"}) {
        form[field].tabStop = false;
    }
}

void ClearExpTabStops(FormModel& form) {
    for (const Control& control : form.controls()) {
        if (IsFieldControl(control.name) && PageOfControl(form, control.name) != 0) {
            form[control.name].tabStop = false;
        }
    }
}

void SetExpTabStops(FormModel& form, int page, int soilType) {
    for (const Control& control : form.controls()) {
        if (IsFieldControl(control.name) && PageOfControl(form, control.name) == page) {
            // Option buttons: only the selected one.
            form[control.name].tabStop = !control.name.starts_with("opt") || control.checked;
        }
    }
    auto allow = [&form](std::initializer_list<const char*> fields, bool on) {
        for (const char* field : fields) {
            form[field].tabStop = on;
        }
    };
    switch (page) {
    case 2:
        allow({"txtTendArea"}, IsOn(form, "optTendType", 3));
        break;
    case 3:
        allow({"txtNumSlabTenShort", "txtNumSlabTenLong"}, IsOn(form, "optSlabRefType", 0));
        allow({"txtStrLvlShort", "txtStrLvlLong"}, IsOn(form, "optSlabRefType", 1));
        allow({"txtForceShort", "txtForceLong"}, IsOn(form, "optSlabRefType", 2));
        allow({"txtSlabTenCov"}, form["cbSlabTenCovType"].checked);
        break;
    case 4:
        allow({"txtSMin", "txtSMax", "txtLMin", "txtLMax"}, IsOn(form, "optBeamSpacing", 0));
        break;
    case 5:
        allow({"txtExpBearing", "txtEmCenter", "txtEmEdge", "txtYmCenter", "txtYmEdge"},
              soilType == 0);
        allow({"txtCompBearing", "txtSettle", "cbCLSettleState"}, soilType != 0);
        break;
    case 6:
        allow({"txtDefCenter", "txtDefEdge"}, soilType == 0);
        allow({"txtDefSettle", "txtDefCLSettle"}, soilType != 0);
        allow({"txtUDSS", "txtUDLS", "txtUDSM", "txtUDLM"}, IsOn(form, "optSubgradetype", 2));
        break;
    case 7:
        allow({"txtUDPreLineLoad"}, IsOn(form, "optPreLineLoad", 2));
        break;
    default:
        break;
    }
}

void ShowRectGeometry(FormModel& form, double width, double length, double thickness) {
    form["lblRectGeo"].caption = FormatNumber(width, "#,##0.00") + " FT x " +
                                 FormatNumber(length, "#,##0.00") + " FT x " +
                                 FormatNumber(thickness, "#0.00") + " In";
}

void ShowTypedRectGeometry(FormModel& form) {
    ShowRectGeometry(form, TypedLeadingNumber(form["txtRectWidth"].text),
                     TypedLeadingNumber(form["txtRectLength"].text),
                     TypedLeadingNumber(form["txtSlabThick"].text));
}
