#include "cli/analysis_flags.h"

EngineSettings AnalysisFlags::over(const ProgramOptions& stored) const {
    return {useBeta.value_or(stored.UseBeta), useBeamOnly.value_or(stored.UseBeamOnly),
            showDD.value_or(stored.ShowDD)};
}

void AddAnalysisOptions(CLI::App& command, AnalysisFlags& flags) {
    command
        .add_option("--use-beta", flags.useBeta,
                    "Stresses from the force at Beta (0 or 1); default from the settings")
        ->check(CLI::IsMember({0, 1}));
    command
        .add_option("--use-beam-only", flags.useBeamOnly,
                    "Bearing on the beam bottoms alone (0 or 1); default from the settings")
        ->check(CLI::IsMember({0, 1}));
    command
        .add_option("--show-dd", flags.showDD,
                    "Also the differential deflection analysis (0 or 1); default from the "
                    "settings")
        ->check(CLI::IsMember({0, 1}));
}

void AddNoCheckFlag(CLI::App& command, bool& noCheck) {
    command.add_flag("--no-check", noCheck,
                     "Run the analysis on the record as it stands, without input checks");
}

void AddProjectAndJson(CLI::App& command, std::filesystem::path& project, bool& json) {
    command.add_option("PROJECT", project, "Project file (.kvt)")->required();
    command.add_flag("--json", json, "Print one JSON object");
}
