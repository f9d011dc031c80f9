#include "storage/design_file.h"

#include "storage/design_sections.h"
#include "storage/file_error.h"
#include "storage/file_replace.h"
#include "storage/line_reader.h"
#include "storage/line_writer.h"
#include "storage/older_versions.h"

namespace {
const std::string CurrentVersionLine = "Korvath 3.0";
const std::string Version2Line = "Korvath 2.0";

void Notify(const OldVersionNoticeHandler& notify, OldVersionNotice notice) {
    if (notify) {
        notify(notice);
    }
}
} // namespace

int ReadDesignFile(const std::filesystem::path& path, int selector, DesignRecord& record,
                   const DesignRecord& defaults, const OldVersionNoticeHandler& notify) {
    LineReader reader(path);
    std::string firstLine;
    reader.text(firstLine);

    // The first line is compared exactly: any other text, even the version line in other case
    // or with a blank after it, is the first value of a file of version 1.
    if (firstLine == CurrentVersionLine) {
        CurrentSections(reader, selector, record);
        return CurrentFileVersion;
    }
    if (firstLine == Version2Line) {
        Notify(notify, {"Opening Korvath Win 2.x file",
                        "The file being opened was created in Korvath 2.x.\r"
                        "When saved it will be updated to version 3.x format."});
        ReadVersion2File(reader, selector, record, defaults);
        return 2;
    }
    // The version 1 notice names 2.0 as the format of the save, although the save writes the
    // current one; the wording is kept as users of version 1 files know it.
    Notify(notify, {"Opening Korvath Win 1.x file",
                    "The file being opened was created in Korvath Win 1.x.\r"
                    "When saved it will be updated to version 2.0 format."});
    ReadVersion1File(reader, firstLine, selector, record, defaults);
    return 1;
}

void WriteDesignFile(const std::filesystem::path& path, int selector, const DesignRecord& record) {
    // The layouts take the record by reference for the reader's sake; the writer only looks.
    DesignRecord values = record;
    LineWriter writer;
    std::string versionLine = CurrentVersionLine;
    writer.text(versionLine);
    CurrentSections(writer, selector, values);
    ReplaceFileContents(path, writer.contents());
}
