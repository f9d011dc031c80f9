#pragma once

#include "engine/design_record.h"
#include "shell/form_model.h"

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

// How an empty text box is read: as 0, for the options form whose switched-off fields are
// blank, or as a type mismatch, for the input screen, whose blank check has run before.
enum class BlankText { Zero, TypeMismatch };

// A number typed into a box; blanks around it are allowed. Text that is not a number throws
// RunTimeError 13 (type mismatch), a number beyond the range of a double RunTimeError 6.
double TypedNumber(const std::string& text, BlankText blank);

// Copies one field from its control into the record: a check box gives 0 or 1; an option group
// gives its first button that is on, probed in index order, and keeps the value when none is; a
// text box or list gives its text, read as a number for a number field. A 16-bit field is
// rounded to the nearest whole number, ties to even, and outside 16 bits throws RunTimeError 6.
void CopyControlToField(const FormModel& form, DesignRecord& record, std::string_view field,
                        BlankText blank);
