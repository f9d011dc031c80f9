#pragma once

#include <filesystem>
#include <optional>
#include <string>

// The SHA-256 of a file's bytes in 64 lower-case hexadecimal digits, or nothing when the file
// cannot be read.
std::optional<std::string> FileSha256(const std::filesystem::path& path);
