#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// A screen as a set of named controls with their state, free of any toolkit. A view binds its
// widgets to controls by the same name ("txtFpc", "optTendType(3)"); the model's rules change
// the state and the view draws it.
struct Control {
    std::string name{};
    std::string parent{}; // the frame or page it stands in; empty for the form itself
    std::string caption{};
    std::string text{};
    bool enabled = true;
    bool visible = true;
    bool checked = false;             // check boxes and option buttons
    int selectedIndex = -1;           // lists
    std::vector<std::string> items{}; // lists
    int tabIndex = 0;
    bool tabStop = true;
    std::string toolTip{};
    int maxLength = 0; // text boxes: 0 is no limit
    int selStart = 0;  // text boxes: the selection
    int selLength = 0;
    bool bold = false; // labels whose weight and colour the model sets
    bool red = false;  // colour value 255; the window's text colour otherwise
};

class FormModel {
  public:
    // Adds a control; names are unique within a form.
    Control& add(Control control);
    // The control of that name; an unknown name is a programming error and throws
    // std::out_of_range.
    Control& operator[](std::string_view name);
    const Control& operator[](std::string_view name) const;
    bool has(std::string_view name) const;
    const std::vector<Control>& controls() const { return m_controls; }

    // The control that has the focus, by name; empty when none has.
    std::string focus{};
    // Set when a validation message sends the focus to a field, so that the field's whole text
    // is selected when it gets the focus; cleared by that focus.
    bool focusFromError = false;
    // Counts the times the model has selected the whole text of the focus field (a Tab step, the
    // focus move of a validation message). A view selects the text once for each request, so
    // that the keys typed next edit the text instead of replacing it again and again.
    int selectionRequests = 0;

  private:
    std::vector<Control> m_controls;
    std::map<std::string, std::size_t, std::less<>> m_index; // name to position
};

// The name of element `index` of a control array: "optTendType(3)".
std::string ArrayName(std::string_view array, int index);

// The first checked button of the option group `group(0)` to `group(count - 1)`, probed in
// index order, or -1 when none is.
int SelectedOption(const FormModel& form, std::string_view group, int count);

// Checks button `index` of the group and clears the others.
void SelectOption(FormModel& form, std::string_view group, int count, int index);

// Whether the control is drawn: it and every container it stands in are visible.
bool IsShown(const FormModel& form, std::string_view name);

// Selects the whole text of a text box, as one request to the view (see `selectionRequests`).
void SelectWholeText(FormModel& form, std::string_view box);

// The button of the option group of `button` ("optTendType(2)") that the arrow keys choose from
// it: the next (`step` 1) or previous (-1) one that is enabled and shown, past those that are
// not. Empty at either end of the group, which does not wrap, and for a name without an index.
std::string NeighbourOption(const FormModel& form, std::string_view button, int step);
