#pragma once

#include <span>
#include <string>

// The sections of the store that hold the default record, and their values in the order they
// are read and written.
//
// Two values are read into another field's slot, as the program has always done, because what a
// new project shows depends on it: `LMin` is read into `LMax` (just before `LMax` itself), so
// the `LMin` of the default record is never filled from the store; `UDLS` is read into `UDSS`
// (just after `UDSS`), so `UDSS` ends with the stored `UDLS` and `UDLS` is never filled. Saving
// writes both `UDSS` and `UDLS` from `UDSS`.
struct DefaultValue {
    const char* name;        // the value's name in the store
    const char* defaultText; // its first-start default; nullptr for today's date
    const char* field;       // the design record field it stands for
    const char* readInto;    // the field the stored text is read into
    const char* writeFrom;   // the field whose value is written
};

struct DefaultSection {
    int selector; // 1 to 7, as the options form's tabs and `SaveOptionValues` number them
    const char* name;
    std::span<const DefaultValue> values;
};

// The seven sections "DefGenInfo" to "DefLineLoad".
std::span<const DefaultSection> DefaultRecordSections();

// The section of a selector 1 to 7, or nullptr.
const DefaultSection* DefaultSectionFor(int selector);

// The section of the program's options, recent files and window position.
inline constexpr const char* ProgramDataSection = "Program Data";
