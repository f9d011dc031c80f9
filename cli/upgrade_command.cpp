#include "cli/upgrade_command.h"

#include "cli/exit_status.h"
#include "cli/project_loading.h"
#include "storage/design_file.h"
#include "storage/file_error.h"

#include <ostream>

int RunUpgradeCommand(const std::filesystem::path& input, const std::filesystem::path& output,
                      const DesignRecord& defaults, std::ostream& err) {
    const std::optional<LoadedProject> loaded = LoadProject(input, defaults, err);
    if (!loaded) {
        return ExitFileError;
    }
    try {
        WriteDesignFile(output, AllSections, loaded->record);
    } catch (const FileError& error) {
        err << "korvath3-cli: Error Saving File - " << error.number() << ": " << error.description()
            << " (" << output.string() << ")\n";
        return ExitFileError;
    }
    return ExitAnalysed;
}
