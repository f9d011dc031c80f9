#pragma once

#include "shell/form_model.h"
#include "shell/program_settings.h"
#include "shell/shell_services.h"

// The options form as a model: the program tab, then the seven tabs of the default record, whose
// controls have the names of the input screen's, so that one blank check serves both.
//
// The tab strip `tabOptions` (0 the program tab, 1 to 7 the record's tabs). Program tab:
// `dlbDefFilePath` (its text the chosen folder), `lblDefFilePath`, `cbUseBeta`,
// `cbUseBeamOnly`, `chkPrintOptions(0..1)`, `chkDR(0..9)`, `cbClear`, `cbRestore`,
// `cbAssociate`.
FormModel MakeOptionsForm();

// Fills the form from the options and the default record. A start folder that no longer exists
// becomes the program's folder, in the form and in `settings`. The three action boxes are
// cleared. A field whose condition does not hold under the default record's own choices is left
// blank; numbers show in their general text form.
void LoadOptionValues(const ShellServices& services, ProgramSettings& settings, FormModel& form);

// Copies the controls of tab `tabSelector` (0 the program tab, 1 to 7 the record's tabs, any
// other nothing) into the options or the default record, normalising what the tab's choices
// switch off, then writes all the values of section `sectionSelector` (0 "Program Data", 1 to 7
// the default record's) except the recent files, `ShowSplash`, the window position and
// `ShowDD`. A section that cannot be opened is given up silently.
//
// A text that is not a number throws RunTimeError 13, an integer out of range RunTimeError 6.
// A blank text, as a switched-off field has, is 0.
void SaveOptionValues(ShellServices& services, ProgramSettings& settings, const FormModel& form,
                      int tabSelector, int sectionSelector);

// Sets the options and the default record to the values the program ships with. They differ
// from a fresh store's in three places: a unit weight of 150 pcf, a tendon area of 0.153 sq in
// and stress levels of 0 psi. The recent files, the window position and `ShowDD` stay.
void RestoreFactoryDefaults(const ShellServices& services, ProgramSettings& settings);
