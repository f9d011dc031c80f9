#include "cli/new_command.h"

#include "cli/exit_status.h"
#include "storage/design_file.h"
#include "storage/file_error.h"

#include <ostream>

int RunNewCommand(ProjectKind kind, const std::filesystem::path& output,
                  const DesignRecord& defaults, std::ostream& err) {
    const DesignRecord record = NewProjectRecord(defaults, kind);
    try {
        WriteDesignFile(output, AllSections, record);
    } catch (const FileError& error) {
        err << "korvath3-cli: Error Saving File - " << error.number() << ": " << error.description()
            << " (" << output.string() << ")\n";
        return ExitFileError;
    }
    return ExitAnalysed;
}
