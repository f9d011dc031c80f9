#pragma once

#include "engine/design_record.h"

#include <array>
#include <cstdint>
#include <string>

// The report pages printed unless the user chooses otherwise, in the order of the options tab:
// ribbed design summary, ribbed design compliance summary, ribbed review of analysis, ribbed
// selected variables, uniform design summary, uniform design compliance summary, uniform review
// of analysis, summary of input data, PTI exceptions, line load analysis.
inline constexpr std::array<const char*, 10> DefaultPageNames = {
    "drRDS", "drRDCS", "drRROA", "drRSV", "drUDS", "drUDCS", "drUROA", "drSOID", "drPES", "drLLA"};

// The program options; on = 1.
struct ProgramOptions {
    std::int16_t UseBeta = 0;
    std::int16_t UseBeamOnly = 0;
    std::int16_t ShowDD = 0;
    std::int16_t PrintColor = 0;
    std::int16_t PrintAll = 0;
    std::array<std::int16_t, 10> DefaultPages{};

    EngineSettings engineSettings() const { return {UseBeta, UseBeamOnly, ShowDD}; }
};

// Everything that outlasts a run, as the program holds it after start-up.
struct ProgramSettings {
    ProgramOptions options;
    // The folder the file dialogs start in.
    std::string FilePath;
    // Full paths, newest first.
    std::array<std::string, 5> RecentFiles;
    // The main window's left and top in twips, as text; empty means centred.
    std::string StartX;
    std::string StartY;
    // The record every new project starts from.
    DesignRecord defaults;
};
