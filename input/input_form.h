#pragma once

#include "shell/form_model.h"

#include <string>
#include <string_view>

// The seven pages of the input screen as named controls: fields with their captions, tab
// indexes and spins, the labels that the enabling rules switch, the stacked frames, the tab
// strip `tabInput` and the toolbar's two file buttons `tlbInput(1)` (Open) and `tlbInput(2)`
// (Save). Each control names its container in `parent`: a page is `fraInput(0)` to
// `fraInput(6)`, the two soil frames `fraSoilType(0..1)` and the two coefficient frames
// `fraDeflect(0..1)` stand inside pages 5 and 6.
//
// Pages are numbered 1 (project information) to 7 (line load), as the tabs are.

inline constexpr int InputPageCount = 7;

// The page's tab caption as designed; a doubled ampersand shows one "&".
std::string PageCaption(int page);

// Page 6's caption once the soil page has been shown from the record: 0 expansive, any other
// value compressible.
std::string LoadPageCaption(int soilType);

// The tool tips of the toolbar's Open and Save buttons while the page is selected. The line
// load page keeps those of the load page.
struct PageToolTips {
    std::string open;
    std::string save;
};
PageToolTips ToolTipsForPage(int page);

// The whole screen at load: page 1 in front, the expansive frames in front, every field enabled
// and blank, the panel's first text not included (it is styled text, held by the screen).
FormModel MakeInputForm();

// The frame of a page: "fraInput(page - 1)".
std::string PageFrame(int page);

// The page (1 to 7) a control stands on, through its containers; 0 for the tab strip, the
// toolbar and the panel.
int PageOfControl(const FormModel& form, std::string_view name);

// Whether the control is one the user types into or clicks (text box, check box, list, option
// button or button), which the tab sequence can reach; labels, spins and frames are not.
bool IsFieldControl(std::string_view name);
