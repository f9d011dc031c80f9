#pragma once

#include "cli/json_error.h"
#include "engine/design_record.h"

#include <filesystem>
#include <iosfwd>
#include <optional>

struct LoadedProject {
    DesignRecord record;
    int version = 0;
};

// Reads a whole project over `defaults`, the record a new project starts from, so that fields an
// older file lacks take their defaults. Notices of an older version and a file error, with its
// number and description, are written to `err`; an error gives nothing, and is kept in
// `failure` when one is given.
std::optional<LoadedProject> LoadProject(const std::filesystem::path& path,
                                         const DesignRecord& defaults, std::ostream& err,
                                         CliError* failure = nullptr);
