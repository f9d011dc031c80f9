#pragma once

#include "shell/program_settings.h"
#include "shell/shell_services.h"

#include <cstdint>

// Reads every section of the store in order into the options, the recent files, the window
// position and the default record, giving each missing value its default in the store. A
// section that cannot be opened is skipped; a store that cannot be written leaves texts empty
// and numbers 0. `ShowDD` is only read, never created. An empty `FilePath` makes the store hold
// the program's folder, while `FilePath` stays empty for this run.
//
// Gives `ShowSplash`. A stored number too large for its field throws RunTimeError 6.
std::int16_t LoadSettings(ShellServices& services, ProgramSettings& settings);

// The end of the program: writes the recent files and the window's left and top (as text) to
// the program's section. These are the only values the main window writes.
void SaveRecentFilesAndWindowPosition(ShellServices& services, const ProgramSettings& settings,
                                      const std::string& left, const std::string& top);

// The default record as a fresh store gives it at the first start, with `projectDate` as
// `ProjDate`.
DesignRecord FirstStartDefaultRecord(const std::string& projectDate);

// A number of the store as its field takes it: the leading numeric part of the text, rounded
// to a 16-bit integer for an integer field.
void SetFieldFromStoreText(DesignRecord& record, const DesignField& field, const std::string& text);

// A field's value as the store holds it: texts as they stand, numbers in their general form.
std::string FieldStoreText(const DesignRecord& record, const DesignField& field);

// The field of a name the tables use; unknown names are a programming error (std::logic_error).
const DesignField& FieldNamed(std::string_view name);
