#pragma once

#include "engine/design_record.h"

#include <string>
#include <string_view>

// How each field of the design record appears on the input screen and on the options form,
// which share their control names.
enum class ControlKind { TextBox, CheckBox, OptionGroup, List };

struct FieldControl {
    ControlKind kind;
    std::string control; // the control, or for an option group the array's name
    int options = 0;     // the buttons of an option group
};

// "txt" and the field's name for a text box; the check boxes, option groups and the direction
// list by their own names.
FieldControl ControlForField(std::string_view field);

// Whether a field has a value to show under the record's own choices: the area of a custom
// tendon, the reinforcement row of the chosen slab reference, the cover when it is specified,
// the spacings of the minimum and maximum method, the smallest load when it is used, the edge
// down ratio when edge down is analysed, the user's friction, and the line load fields when
// there is a line load. A field whose condition does not hold shows blank.
bool FieldConditionHolds(const DesignRecord& record, std::string_view field);
