#pragma once

#include "common/styled_text.h"
#include "engine/design_record.h"
#include "input/input_form.h"
#include "shell/clock.h"
#include "shell/project_state.h"
#include "shell/user_dialogs.h"

#include <string>

// The input screen: its controls, the page in front, whether it is shown, and the text of the
// "More Information" panel. It holds no design values of its own; those are copied between the
// controls and the design record.
struct InputScreen {
    FormModel form = MakeInputForm();
    int CurrentInputTab = 1;
    bool visible = false;     // every click and change rule acts only while the screen is shown
    StyledText moreInfo;      // rtbMoreInfo
    std::string dialogFolder; // where the page file dialogs open
};

// What the screen's rules reach beyond the screen: the design record (whose `SoilType` the soil
// list sets at once), the default record of the settings store that switched-on fields are
// filled from, the project's changed mark, the message boxes and file dialogs, and the clock of
// the "Today" button.
struct InputContext {
    DesignRecord& record;
    const DesignRecord& defaults;
    ProjectState& project;
    UserDialogs& dialogs;
    const Clock& clock;
};

// The screen as it is loaded: hidden, page 1 in front, the panel inviting a right click.
InputScreen LoadInputScreen();

// The panel's text before the user has asked for a topic.
inline constexpr const char* MoreInfoFirstText =
    "Right click on textbox label for more information";
