#pragma once

#include "engine/design_record.h"

#include <filesystem>
#include <iosfwd>

// The three kinds of new project, as the main window's New command offers them.
enum class ProjectKind { Expansive, Compressible, LineLoad };

// Writes a new project from `defaults`, the default record of the settings store, with its
// project texts as the default record has them: on expansive soil, on compressible soil, or on
// expansive soil with the line load analysis switched on. Gives the exit status.
int RunNewCommand(ProjectKind kind, const std::filesystem::path& output,
                  const DesignRecord& defaults, std::ostream& err);
