#include "input/input_record.h"

#include "common/number_text.h"
#include "common/run_time_error.h"
#include "engine/checked_math.h"
#include "engine/tendon_size.h"
#include "input/enabling_rules.h"
#include "input/number_entry.h"
#include "shell/load_settings.h"
#include "shell/record_controls.h"

#include <vector>

namespace {

// Copies one field from its text box or check box. The blank check has run before, so an
// empty box is a type mismatch like any other text that is not a number.
void ReadField(const FormModel& form, DesignRecord& record, std::string_view name) {
    try {
        CopyControlToField(form, record, name, BlankText::TypeMismatch);
    } catch (const RunTimeError& error) {
        // Which box failed, so that the message can name it and the user be taken there.
        throw UnreadableField(error.number(), ControlForField(name).control);
    }
}

void ReadFields(const FormModel& form, DesignRecord& record,
                std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) {
        ReadField(form, record, name);
    }
}

// The first button of the group that is on, probed in index order; it sets the enumeration.
// With none on the enumeration keeps its value and -1 is given.
int ReadOption(const FormModel& form, std::int16_t& value, std::string_view group, int count) {
    const int selected = SelectedOption(form, group, count);
    if (selected >= 0) {
        value = static_cast<std::int16_t>(selected);
    }
    return selected;
}

void ReadProjectBlock(const FormModel& form, DesignRecord& r) {
    ReadFields(form, r,
               {"ProjName", "ProjDate", "ProjNum", "ProjEng", "ProjGeoRep", "ProjGeoNum",
                "ProjGeoDate", "FlatSlab"});
}

void ReadMaterialBlock(const FormModel& form, DesignRecord& r) {
    ReadFields(form, r, {"MatLabel", "Fpc", "Ec", "UW", "Fpu"});
    if (ReadOption(form, r.TendType, "optTendType", 4) == 3) {
        ReadField(form, r, "TendArea");
    }
    try {
        ApplyTendonSize(r);
    } catch (const ArithmeticFault&) {
        throw UnreadableField(5, "txtTendArea"); // a negative area has no diameter
    }
}

void ReadSlabBlock(const FormModel& form, DesignRecord& r) {
    ReadField(form, r, "RectLabel");
    switch (ReadOption(form, r.SlabRefType, "optSlabRefType", 3)) {
    case 0:
        ReadFields(form, r, {"NumSlabTenShort", "NumSlabTenLong"});
        break;
    case 1:
        ReadFields(form, r, {"StrLvlShort", "StrLvlLong"});
        break;
    case 2:
        ReadFields(form, r, {"ForceShort", "ForceLong"});
        break;
    default:
        break;
    }
    ReadField(form, r, "SlabTenCovType");
    if (r.SlabTenCovType == 1) {
        ReadField(form, r, "SlabTenCov");
    }
    ReadFields(form, r, {"SlabThick", "RectWidth", "RectLength"});
}

void ReadBeamBlock(const FormModel& form, DesignRecord& r) {
    ReadFields(form, r, {"QS1", "QS2", "QL1", "QL2", "DS1", "DS2", "DL1", "DL2", "WS1", "WS2",
                         "WL1", "WL2", "TS1", "TS2", "TL1", "TL2", "CS1", "CS2", "CL1", "CL2"});
    if (ReadOption(form, r.BeamSpacing, "optBeamSpacing", 2) == 0) {
        ReadFields(form, r, {"SMin", "LMin", "SMax", "LMax"});
    }
    ReadField(form, r, "SixFtRule");
}

void ReadSoilBlock(const FormModel& form, DesignRecord& r) {
    ReadFields(form, r,
               {"SoilLabel", "ExpBearing", "EmCenter", "EmEdge", "YmCenter", "YmEdge",
                "CompBearing", "Settle", "CLSettleState", "Es"});
}

void ReadLoadBlock(const FormModel& form, DesignRecord& r) {
    ReadFields(form, r, {"ULoad", "TotalLoad", "UseDeadLoad"});
    if (r.UseDeadLoad == 1) {
        ReadField(form, r, "DeadLoad");
    }
    ReadFields(form, r, {"DefCenter", "DefEdge", "DefSettle"});
    if (r.CLSettleState == 1) {
        ReadField(form, r, "DefCLSettle");
    }
    if (ReadOption(form, r.Subgradetype, "optSubgradetype", 3) == 2) {
        ReadFields(form, r, {"UDSS", "UDLS", "UDSM", "UDLM"});
    }
    // The friction coefficient is stored with the soil but edited on the load page.
    ReadFields(form, r, {"Prestress", "SGFC"});
}

void ReadLineLoadBlock(const FormModel& form, DesignRecord& r) {
    ReadField(form, r, "LineLoadType");
    if (r.LineLoadType != 1) {
        return;
    }
    ReadField(form, r, "LineLoad");
    r.DirLineLoad = form["cboDirLineLoad"].text;
    if (ReadOption(form, r.PreLineLoadType, "optPreLineLoad", 3) == 2) {
        ReadField(form, r, "UDPreLineLoad");
    }
    ReadField(form, r, "Ks");
}

// Shows a text field or number, blank when the record's choices switch it off.
void ShowFields(FormModel& form, const DesignRecord& record,
                std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) {
        const FieldControl binding = ControlForField(name);
        Control& control = form[binding.control];
        if (binding.kind == ControlKind::CheckBox) {
            control.checked = record.*FieldNamed(name).int16 == 1;
        } else {
            control.text =
                FieldConditionHolds(record, name) ? FieldStoreText(record, FieldNamed(name)) : "";
        }
    }
}

void SelectListText(Control& list, const std::string& text) {
    list.text = text;
    list.selectedIndex = -1;
    for (std::size_t i = 0; i < list.items.size(); ++i) {
        if (list.items[i] == text) {
            list.selectedIndex = static_cast<int>(i);
        }
    }
}

void WriteProjectPage(FormModel& form, const DesignRecord& r) {
    ShowFields(form, r,
               {"ProjName", "ProjDate", "ProjNum", "ProjEng", "ProjGeoRep", "ProjGeoNum",
                "ProjGeoDate", "FlatSlab"});
}

void WriteMaterialPage(FormModel& form, const DesignRecord& r) {
    ShowFields(form, r, {"MatLabel", "Fpc", "Ec", "UW", "Fpu"});
    SelectOption(form, "optTendType", 4, r.TendType);
    ApplyTendType(form, r.TendType, nullptr);
    ShowFields(form, r, {"TendArea"});
}

void WriteSlabPage(FormModel& form, const DesignRecord& r) {
    ShowFields(form, r, {"RectLabel"});
    SelectOption(form, "optSlabRefType", 3, r.SlabRefType);
    ApplySlabRefType(form, r.SlabRefType, nullptr);
    ApplySlabTenCovType(form, r.SlabTenCovType == 1, nullptr);
    ShowFields(form, r,
               {"NumSlabTenShort", "NumSlabTenLong", "StrLvlShort", "StrLvlLong", "ForceShort",
                "ForceLong", "SlabTenCovType", "SlabTenCov", "SlabThick", "RectWidth",
                "RectLength"});
    ShowRectGeometry(form, r.RectWidth, r.RectLength, r.SlabThick);
}

void WriteBeamPage(FormModel& form, const DesignRecord& r) {
    ShowFields(form, r, {"QS1", "QS2", "QL1", "QL2", "DS1", "DS2", "DL1", "DL2", "WS1", "WS2",
                         "WL1", "WL2", "TS1", "TS2", "TL1", "TL2", "CS1", "CS2", "CL1", "CL2"});
    SelectOption(form, "optBeamSpacing", 2, r.BeamSpacing);
    ApplyBeamSpacing(form, r.BeamSpacing, nullptr);
    ShowFields(form, r, {"SMin", "LMin", "SMax", "LMax", "SixFtRule"});
}

void WriteSoilPage(FormModel& form, const DesignRecord& r) {
    ShowFields(form, r,
               {"SoilLabel", "ExpBearing", "EmCenter", "EmEdge", "YmCenter", "YmEdge",
                "CompBearing", "Settle", "CLSettleState", "Es"});
    SelectListText(form["cboSoilType"], r.SoilType == 0 ? "Expansive Soils" : "Compressible Soils");
    ApplySoilType(form, r);
    ApplyCLSettleState(form, r.CLSettleState == 1, &r);
    // Page 6 is named after the soil whenever the soil page is shown from the record.
    form["tabInput"].items[5] = LoadPageCaption(r.SoilType);
    form[PageFrame(6)].caption = LoadPageCaption(r.SoilType);
}

void WriteLoadPage(FormModel& form, const DesignRecord& r) {
    ShowFields(form, r, {"ULoad", "TotalLoad", "DefCenter", "DefEdge", "DefSettle"});
    ApplySoilType(form, r); // the smallest-load check follows the soil
    ApplyCLSettleState(form, r.CLSettleState == 1, &r);
    SelectOption(form, "optSubgradetype", 3, r.Subgradetype);
    ApplySubgradetype(form, r.Subgradetype, nullptr);
    ShowFields(form, r, {"UDSS", "UDLS", "UDSM", "UDLM", "Prestress", "SGFC"});
}

void WriteLineLoadPage(FormModel& form, const DesignRecord& r) {
    ShowFields(form, r, {"LineLoadType"});
    SelectListText(form["cboDirLineLoad"],
                   FieldConditionHolds(r, "DirLineLoad") ? r.DirLineLoad : "");
    SelectOption(form, "optPreLineLoad", 3, r.PreLineLoadType);
    ApplyLineLoadType(form, r.LineLoadType == 1, nullptr);
    ShowFields(form, r, {"LineLoad", "UDPreLineLoad", "Ks"});
}

// What the user sees of each control: its text, check and list choice.
struct ShownValue {
    std::string text;
    bool checked;
    int selectedIndex;

    bool operator==(const ShownValue&) const = default;
};

std::vector<ShownValue> ShownValues(const FormModel& form) {
    std::vector<ShownValue> values;
    for (const Control& control : form.controls()) {
        values.push_back({control.text, control.checked, control.selectedIndex});
    }
    return values;
}

} // namespace

void ReadInputRecord(const FormModel& form, DesignRecord& record, int selector) {
    if (record.NoDataFlag != 0) {
        return;
    }
    const bool all = selector == 10;
    if (all || selector == 0) {
        ReadProjectBlock(form, record);
    }
    if (all || selector == 1) {
        ReadMaterialBlock(form, record);
    }
    if (all || selector == 2) {
        ReadSlabBlock(form, record);
        ReadBeamBlock(form, record);
    }
    if (all || selector == 4) {
        ReadSoilBlock(form, record);
    }
    if (all || selector == 5) {
        ReadLoadBlock(form, record);
    }
    if (all || selector == 6) {
        ReadLineLoadBlock(form, record);
    }
}

void WriteInputRecord(InputScreen& screen, InputContext& context, int selector) {
    FormModel& form = screen.form;
    const DesignRecord& record = context.record;
    const std::vector<ShownValue> before = ShownValues(form);
    const bool all = selector == 10;
    if (all || selector == 0) {
        WriteProjectPage(form, record);
    }
    if (all || selector == 1) {
        WriteMaterialPage(form, record);
    }
    if (all || selector == 2) {
        WriteSlabPage(form, record);
    }
    if (all || selector == 3) {
        WriteBeamPage(form, record);
    }
    if (all || selector == 4) {
        WriteSoilPage(form, record);
    }
    if (all || selector == 5) {
        WriteLoadPage(form, record);
    }
    if (all || selector == 6) {
        WriteLineLoadPage(form, record);
    }
    ClearExpTabStops(form);
    SetExpTabStops(form, screen.CurrentInputTab, record.SoilType);
    if (screen.visible && ShownValues(form) != before) {
        MarkProjectChanged(context.project);
    }
}
