#pragma once

#include "engine/design_record.h"
#include "shell/program_settings.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <filesystem>
#include <optional>

// The program options of an analysis given on the command line; those not given come from the
// settings store.
struct AnalysisFlags {
    std::optional<std::int16_t> useBeta;
    std::optional<std::int16_t> useBeamOnly;
    std::optional<std::int16_t> showDD;

    EngineSettings over(const ProgramOptions& stored) const;
};

// Adds the program options of the analysis to a subcommand: --use-beta, --use-beam-only and
// --show-dd, each 0 or 1.
void AddAnalysisOptions(CLI::App& command, AnalysisFlags& flags);

// Adds --no-check, which runs the analysis on the record as it stands.
void AddNoCheckFlag(CLI::App& command, bool& noCheck);

// Adds the project file every analysing subcommand takes, and --json.
void AddProjectAndJson(CLI::App& command, std::filesystem::path& project, bool& json);
