#pragma once

#include "input/input_screen.h"

#include <string>

// The data file of one input page, so that a material, a soil or a beam layout can be reused
// in other projects. `tab` is the page's block of the record: 0 project information to 6 line
// load, one lower than the page number. Each file holds the version line, the no-data flag and
// that block alone.

// What the file dialogs of a page's data file show.
struct TabFileKind {
    std::string extension; // with its point: ".kv1"
    std::string saveFilter;
    std::string openFilter; // adds the files of the first program version where there are any
    std::string saveTitle;
    std::string openTitle;
};

// The kind of file of block 0 to 6; another block has none (empty texts).
TabFileKind TabFileKindFor(int tab);

// Saves the page: blank check of its page, the page copied into the record, the save dialog
// with the project's name and the page's extension, then the file. A cancel is silent; a
// failure shows a critical box "Error saving file - N". The project's path, caption and
// changed mark are not touched.
void SaveTabFile(InputScreen& screen, InputContext& context, int tab);

// Opens a data file into the page: the open dialog, the file's block read into the record (the
// notice of an older version shown first), then the page shown from the record. A cancel is
// silent; a failure shows a critical box "Error opening file - N" and leaves the record as
// it was.
void OpenTabFile(InputScreen& screen, InputContext& context, int tab);
