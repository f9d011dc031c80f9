#include "cli/new_command.h"

#include "cli/exit_status.h"
#include "storage/design_file.h"
#include "storage/file_error.h"

#include <ostream>

int RunNewCommand(ProjectKind kind, const std::filesystem::path& output,
                  const DesignRecord& defaults, std::ostream& err) {
    DesignRecord record = defaults;
    record.NoDataFlag = 0;
    record.SoilType = kind == ProjectKind::Compressible ? 1 : 0;
    if (kind == ProjectKind::LineLoad) {
        record.LineLoadType = 1;
    }
    try {
        WriteDesignFile(output, AllSections, record);
    } catch (const FileError& error) {
        err << "korvath3-cli: Error Saving File - " << error.number() << ": " << error.description()
            << " (" << output.string() << ")\n";
        return ExitFileError;
    }
    return ExitAnalysed;
}
