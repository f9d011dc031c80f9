#include "shell/record_controls.h"

#include "common/number_text.h"
#include "common/run_time_error.h"
#include "shell/load_settings.h"

#include <array>

namespace {

struct SpecialControl {
    std::string_view field;
    FieldControl control;
};

const std::array<SpecialControl, 12> SpecialControls = {{
    {"FlatSlab", {ControlKind::CheckBox, "cbFlatSlab"}},
    {"TendType", {ControlKind::OptionGroup, "optTendType", 4}},
    {"SlabRefType", {ControlKind::OptionGroup, "optSlabRefType", 3}},
    {"SlabTenCovType", {ControlKind::CheckBox, "cbSlabTenCovType"}},
    {"BeamSpacing", {ControlKind::OptionGroup, "optBeamSpacing", 2}},
    {"SixFtRule", {ControlKind::CheckBox, "cbSixFtRule"}},
    {"CLSettleState", {ControlKind::CheckBox, "cbCLSettleState"}},
    {"UseDeadLoad", {ControlKind::CheckBox, "cbUseDeadLoad"}},
    {"Subgradetype", {ControlKind::OptionGroup, "optSubgradetype", 3}},
    {"LineLoadType", {ControlKind::CheckBox, "cbLineLoadType"}},
    {"DirLineLoad", {ControlKind::List, "cboDirLineLoad"}},
    {"PreLineLoadType", {ControlKind::OptionGroup, "optPreLineLoad", 3}},
}};

bool Among(std::string_view field, std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) {
        if (field == name) {
            return true;
        }
    }
    return false;
}

} // namespace

FieldControl ControlForField(std::string_view field) {
    for (const SpecialControl& special : SpecialControls) {
        if (special.field == field) {
            return special.control;
        }
    }
    return {ControlKind::TextBox, "txt" + std::string(field)};
}

bool FieldConditionHolds(const DesignRecord& r, std::string_view field) {
    if (field == "TendArea") {
        return r.TendType == 3;
    }
    if (Among(field, {"NumSlabTenShort", "NumSlabTenLong"})) {
        return r.SlabRefType == 0;
    }
    if (Among(field, {"StrLvlShort", "StrLvlLong"})) {
        return r.SlabRefType == 1;
    }
    if (Among(field, {"ForceShort", "ForceLong"})) {
        return r.SlabRefType == 2;
    }
    if (field == "SlabTenCov") {
        return r.SlabTenCovType == 1;
    }
    if (Among(field, {"SMin", "SMax", "LMin", "LMax"})) {
        return r.BeamSpacing == 0;
    }
    if (field == "DeadLoad") {
        return r.UseDeadLoad == 1;
    }
    if (field == "DefCLSettle") {
        return r.CLSettleState == 1;
    }
    if (Among(field, {"UDSS", "UDLS", "UDSM", "UDLM"})) {
        return r.Subgradetype == 2;
    }
    if (Among(field, {"LineLoad", "DirLineLoad", "PreLineLoadType", "Ks"})) {
        return r.LineLoadType == 1;
    }
    if (field == "UDPreLineLoad") {
        return r.LineLoadType == 1 && r.PreLineLoadType == 2;
    }
    return true;
}

double TypedNumber(const std::string& text, BlankText blank) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos && blank == BlankText::Zero) {
        return 0.0;
    }
    const std::string trimmed = first == std::string::npos
                                    ? std::string()
                                    : text.substr(first, text.find_last_not_of(' ') - first + 1);
    double value = 0.0;
    switch (ParseGeneralNumber(trimmed, value)) {
    case NumberParse::Ok:
        return value;
    case NumberParse::OutOfRange:
        throw RunTimeError(6);
    case NumberParse::NotANumber:
        break;
    }
    throw RunTimeError(13);
}

void CopyControlToField(const FormModel& form, DesignRecord& record, std::string_view name,
                        BlankText blank) {
    const DesignField& field = FieldNamed(name);
    const FieldControl binding = ControlForField(name);
    switch (binding.kind) {
    case ControlKind::CheckBox:
        record.*field.int16 = form[binding.control].checked ? 1 : 0;
        return;
    case ControlKind::OptionGroup: {
        const int selected = SelectedOption(form, binding.control, binding.options);
        if (selected >= 0) {
            record.*field.int16 = static_cast<std::int16_t>(selected);
        }
        return;
    }
    case ControlKind::List:
    case ControlKind::TextBox:
        break;
    }
    const std::string& text = form[binding.control].text;
    switch (field.kind) {
    case FieldKind::Text:
        record.*field.text = text;
        break;
    case FieldKind::Int16:
        record.*field.int16 = RoundedInt16(TypedNumber(text, blank));
        break;
    case FieldKind::Real:
        record.*field.real = TypedNumber(text, blank);
        break;
    }
}
