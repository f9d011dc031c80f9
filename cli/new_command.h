#pragma once

#include "engine/design_record.h"
#include "engine/project_kind.h"

#include <filesystem>
#include <iosfwd>

// Writes a new project from `defaults`, the default record of the settings store, with its
// project texts as the default record has them: on expansive soil, on compressible soil, or on
// expansive soil with the line load analysis switched on. Gives the exit status.
int RunNewCommand(ProjectKind kind, const std::filesystem::path& output,
                  const DesignRecord& defaults, std::ostream& err);
