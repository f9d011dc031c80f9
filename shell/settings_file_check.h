#pragma once

#include <filesystem>
#include <optional>
#include <string>

// What keeps the settings file from being used, in the user's words ("cannot be read", "is not
// a settings file", "cannot be written"), or nothing when it can be read and written. A file
// that does not exist yet is fine while its folder can be made and written.
std::optional<std::string> SettingsFileProblem(const std::filesystem::path& file);
