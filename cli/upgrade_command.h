#pragma once

#include <filesystem>
#include <iosfwd>

// Reads a project of any version and writes it in the current format. Gives the exit status.
int RunUpgradeCommand(const std::filesystem::path& input, const std::filesystem::path& output,
                      std::ostream& err);
