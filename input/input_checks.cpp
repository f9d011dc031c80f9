#include "input/input_checks.h"

#include "input/blank_fields.h"
#include "input/enabling_rules.h"
#include "input/record_values.h"
#include "input/variable_information.h"

namespace {

void ShowFault(UserDialogs& dialogs, const InputFault& fault) {
    dialogs.ShowMessage({MessageIcon::Exclamation, InputErrorTitle, fault.message});
}

} // namespace

void ShowInputError(InputScreen& screen, InputContext& context, const std::string& control,
                    int tab) {
    FormModel& form = screen.form;
    // The friction coefficient is checked with the soil but stands on the load page: the user
    // is taken to the page where the field is.
    if (const int page = PageOfControl(form, control); page != 0) {
        tab = page;
    }
    // A jump to another page shows that page's topic in the information panel, as choosing the
    // page does; the panel must not go on explaining the page left behind.
    if (tab != screen.CurrentInputTab) {
        screen.moreInfo = MoreInfoForPage(tab, PageTopic, context.defaults);
    }
    for (int page = 1; page <= InputPageCount; ++page) {
        form[PageFrame(page)].visible = page == tab;
    }
    form["tabInput"].selectedIndex = tab - 1;
    ClearExpTabStops(form);
    SetExpTabStops(form, tab, context.record.SoilType);
    screen.CurrentInputTab = tab;
    const PageToolTips tips = ToolTipsForPage(tab);
    form[ArrayName("tlbInput", 1)].toolTip = tips.open;
    form[ArrayName("tlbInput", 2)].toolTip = tips.save;
    // The focus arrives at the field after this, with its whole text selected once.
    form.focus = control;
    form.focusFromError = true;
    if (control.starts_with("txt")) {
        SelectWholeText(form, control);
    }
}

void ShowOptionsInputError(FormModel& options, const std::string& control, int tab) {
    options["tabOptions"].selectedIndex = tab;
    options.focus = control;
    options.focusFromError = true;
    if (control.starts_with("txt")) {
        SelectWholeText(options, control);
    }
}

int CheckBlankFields(InputScreen& screen, InputContext& context, int selector) {
    const std::optional<InputFault> fault =
        FindBlankField(screen.form, context.record, selector, false);
    if (!fault) {
        return 0;
    }
    ShowFault(context.dialogs, *fault);
    ShowInputError(screen, context, fault->control, fault->tab);
    return 1;
}

int CheckOptionsBlankFields(FormModel& options, const DesignRecord& defaults, UserDialogs& dialogs,
                            int selector) {
    const std::optional<InputFault> fault = FindBlankField(options, defaults, selector, true);
    if (!fault) {
        return 0;
    }
    ShowFault(dialogs, *fault);
    ShowOptionsInputError(options, fault->control, fault->tab);
    return 1;
}

bool CheckRecordValues(InputScreen& screen, InputContext& context) {
    const std::optional<InputFault> fault = FindRecordValueFault(context.record);
    if (!fault) {
        return true;
    }
    ShowFault(context.dialogs, *fault);
    ShowInputError(screen, context, fault->control, fault->tab);
    return false;
}

void ShowUnreadableField(InputScreen& screen, InputContext& context, const UnreadableField& error) {
    const std::string& box = error.box();
    const std::string text = screen.form.has(box) ? screen.form[box].text : std::string();
    context.dialogs.ShowMessage(
        {MessageIcon::Exclamation, InputErrorTitle, UnreadableFieldMessage(error, text)});
    const int page = screen.form.has(box) ? PageOfControl(screen.form, box) : 0;
    if (page != 0) {
        ShowInputError(screen, context, box, page);
    }
}
