#pragma once

#include "engine/design_record.h"

#include <filesystem>
#include <iosfwd>

// Reads a project of any version over `defaults` and writes it in the current format. Gives the
// exit status.
int RunUpgradeCommand(const std::filesystem::path& input, const std::filesystem::path& output,
                      const DesignRecord& defaults, std::ostream& err);
