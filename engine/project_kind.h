#pragma once

#include "engine/design_record.h"

// The three kinds of new project, as the main window's New command and `korvath3-cli new`
// offer them.
enum class ProjectKind { Expansive = 0, Compressible = 1, LineLoad = 2 };

// A new project's record: the default record of the settings store, with data, on expansive
// soil, on compressible soil, or on expansive soil with the line load analysis switched on.
DesignRecord NewProjectRecord(const DesignRecord& defaults, ProjectKind kind);
