#pragma once

#include "input/input_screen.h"
#include "input/number_entry.h"

// The input checks as the screens run them: the first fault found is shown in a box titled
// "Input Error!" with an exclamation icon, and the user is taken to its field.

inline constexpr const char* InputErrorTitle = "Input Error!";

// Takes the user to a control of the input screen: its page comes to the front with its tab
// sequence and tool tips, the control gets the focus, and its text will be selected whole.
void ShowInputError(InputScreen& screen, InputContext& context, const std::string& control,
                    int tab);

// The same on the options form, whose tab strip `tabOptions` has the program tab in front, so
// that record tab `tab` is its tab number `tab`, counted from 0.
void ShowOptionsInputError(FormModel& options, const std::string& control, int tab);

// The blank check of the input screen for tab 1 to 7, or 10 for all. Gives 1 when it has shown
// a fault, 0 when nothing required is blank.
int CheckBlankFields(InputScreen& screen, InputContext& context, int selector);

// The blank check of the options form, which requires the fields of both soils.
int CheckOptionsBlankFields(FormModel& options, const DesignRecord& defaults, UserDialogs& dialogs,
                            int selector);

// The value check of the design record before an analysis. True when the record may be
// analysed; otherwise the first fault has been shown.
bool CheckRecordValues(InputScreen& screen, InputContext& context);

// A box whose text could not be read into the record: a box titled "Input Error!" names the
// field's caption and quotes its text, and the user is taken to the field.
void ShowUnreadableField(InputScreen& screen, InputContext& context, const UnreadableField& error);
