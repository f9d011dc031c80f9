#pragma once

#include "engine/design_record.h"

#include <filesystem>
#include <functional>
#include <string>

// The project file (.kvt) and the tab data files (.kv0 to .kv6): the design record as
// line-oriented text, one value a line, CRLF line ends. A selector names what is read or
// written: 0 to 6 one section (one input page), AllSections the whole project.
//
// Failures throw FileError (storage/file_error.h) with the classic error number and text.

inline constexpr int AllSections = 10;

// Versions a reader can meet.
inline constexpr int CurrentFileVersion = 3;

// Told to the caller before a file of an earlier program version is read on. The text holds
// its two lines joined by a carriage return.
struct OldVersionNotice {
    std::string title;
    std::string text;
};
using OldVersionNoticeHandler = std::function<void(const OldVersionNotice&)>;

// Fills `record` in place from the file and gives its version: 3 for the current format, 2 or 1
// for the earlier ones (read by their own layouts; fields they lack come from `defaults`).
// Fields the file leaves out keep their values. On a failure the record holds what was read up
// to it.
int ReadDesignFile(const std::filesystem::path& path, int selector, DesignRecord& record,
                   const DesignRecord& defaults, const OldVersionNoticeHandler& notify);

// Writes the current format. The old file at `path`, if any, is replaced only when the new one
// has been written whole.
void WriteDesignFile(const std::filesystem::path& path, int selector, const DesignRecord& record);
