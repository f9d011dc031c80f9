#pragma once

#include "input/input_screen.h"

#include <string>
#include <string_view>

// What the user does on the input screen, as named events. The view forwards each event here
// and redraws from the model. Every rule that fills or switches fields, and the project's
// changed mark, acts only while the screen is visible, so that filling a hidden screen from the
// record fires nothing.

// A click on a check box (which toggles it), an option button (which selects it within its
// group) or the "Today" button.
void Click(InputScreen& screen, InputContext& context, std::string_view control);

// The user chooses item `index` of a list (`cboSoilType`, `cboDirLineLoad`).
void ChooseListItem(InputScreen& screen, InputContext& context, std::string_view list, int index);

// The user changed the text of a box.
void ChangeText(InputScreen& screen, InputContext& context, std::string_view box, std::string text);

// The user selects page 1 to 7 of the tab strip.
void SelectPage(InputScreen& screen, InputContext& context, int page);

// Ctrl+PageDown (`step` 1) and Ctrl+PageUp (-1): the next or the previous page, as if its tab
// were chosen, going round from the last page to the first and back.
void StepPage(InputScreen& screen, InputContext& context, int step);

// A click on the up or down arrow of a spin `ud...`: the field beside it gets the focus, and its
// text steps from the number it begins with (0 for none). Down never goes below 0, and a step
// that would leave less than one step above 0 lands on 0 at once.
void SpinUp(InputScreen& screen, InputContext& context, std::string_view spin);
void SpinDown(InputScreen& screen, InputContext& context, std::string_view spin);

// The spin step of a field's text box ("txtFpc"), or 0 for a box without a spin.
double SpinStep(std::string_view box);

// Key codes as the keyboard filters know them.
inline constexpr int BackspaceKey = 8;
inline constexpr int EnterKey = 13;
inline constexpr int PointKey = 46;

// A key typed into a control. Gives the key that stays, 0 when it is swallowed. Numeric boxes
// keep digits, the point, backspace and Enter; the four beam quantities keep no point. Enter is
// always swallowed and moves the focus to the next field of the tab sequence.
int KeyPress(InputScreen& screen, std::string_view control, int key);

// Whether a text box takes text (a name, a date, a label) rather than a number.
bool IsTextField(std::string_view box);

// The keyboard filters of the numeric boxes.
int FilterRealKey(int key);
int FilterIntegerKey(int key);

// How a control got the focus: by the Tab key (or Enter, which sends one) or otherwise.
enum class FocusReason { TabKey, Other };

// A control gets the focus. A text box reached by the Tab key, or by a validation message, has
// its whole text selected; after a mouse click the caret stays where it was put.
void FocusIn(InputScreen& screen, std::string_view control, FocusReason reason);

// The next control of the tab sequence after `control`: enabled, shown and a tab stop, in the
// order of the tab indexes, starting over after the last. Empty when there is none.
std::string NextTabStop(const FormModel& form, std::string_view control);

// A right click on a label, check box or option button shows its topic in the panel, whatever
// the state of the field.
void RightClick(InputScreen& screen, const InputContext& context, std::string_view control);

// The page (1 to 7) and topic of the panel that a right click on the control asks for, or page
// 0 when the control has none.
struct MoreInfoTopic {
    int page = 0;
    int topic = 0;
};
MoreInfoTopic MoreInfoTopicOf(std::string_view control);
