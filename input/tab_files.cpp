#include "input/tab_files.h"

#include "common/run_time_error.h"
#include "input/input_checks.h"
#include "input/input_record.h"
#include "storage/design_file.h"

#include <array>
#include <filesystem>

namespace {

struct TabFileTexts {
    const char* extension;
    const char* description;  // of the filter
    const char* oldExtension; // of the first program version, or nullptr
    const char* saveTitle;
    const char* openTitle;
};

// The load page's dialogs carry the soil file's titles; they are kept as they have always been.
const std::array<TabFileTexts, 7> TabFiles = {{
    {".kv0", "Project Info.", ".pro", "Save Project Information File ...",
     "Open Project Information File ..."},
    {".kv1", "Material Prop.", ".mat", "Save Material Properties File ...",
     "Open Material Properties File ..."},
    {".kv2", "Slab Prop.", ".fnd", "Save Slab Properties File ...",
     "Open Slab Properties File ..."},
    {".kv3", "Beam Prop.", ".fnd", "Save Beam Properties File ...",
     "Open Beam Properties File ..."},
    {".kv4", "Soil Prop.", ".sol", "Save Soil Properties File ...",
     "Open Soil Properties File ..."},
    {".kv5", "Load, Def ...", ".ldf", "Save Soil Properties File ...",
     "Open Soil Properties File ..."},
    {".kv6", "Line Load", nullptr, "Save Line Load File ...", "Open Line Load File ..."},
}};

std::string FilterEntry(const std::string& description, const std::string& extension) {
    return description + " (*" + extension + ") | *" + extension;
}

void ShowFailure(UserDialogs& dialogs, const char* title, const RunTimeError& error) {
    dialogs.ShowMessage(
        {MessageIcon::Critical, title + std::to_string(error.number()), error.description()});
}

// The proposed name: the project's file name without its four-character extension, or "*" for
// a project never saved, with the page's extension.
std::string ProposedFileName(const ProjectState& project, const std::string& extension) {
    const std::string& title = project.ProjFileTitle;
    if (title.empty()) {
        return "*" + extension;
    }
    return title.substr(0, title.size() >= 4 ? title.size() - 4 : 0) + extension;
}

} // namespace

TabFileKind TabFileKindFor(int tab) {
    if (tab < 0 || tab >= static_cast<int>(TabFiles.size())) {
        return {};
    }
    const TabFileTexts& texts = TabFiles[tab];
    TabFileKind kind;
    kind.extension = texts.extension;
    kind.saveFilter = FilterEntry(texts.description, texts.extension);
    kind.openFilter = kind.saveFilter;
    if (texts.oldExtension != nullptr) {
        kind.openFilter += "|" + FilterEntry(std::string(texts.description) + " - Korvath Win 1.x",
                                             texts.oldExtension);
    }
    kind.saveTitle = texts.saveTitle;
    kind.openTitle = texts.openTitle;
    return kind;
}

void SaveTabFile(InputScreen& screen, InputContext& context, int tab) {
    const TabFileKind kind = TabFileKindFor(tab);
    if (kind.extension.empty()) {
        return;
    }
    try {
        if (CheckBlankFields(screen, context, tab + 1) == 1) {
            return;
        }
        ReadInputRecord(screen.form, context.record, tab);
        const std::optional<std::string> chosen = context.dialogs.ShowSaveDialog(
            {.title = kind.saveTitle,
             .filter = kind.saveFilter,
             .fileName = ProposedFileName(context.project, kind.extension),
             .defaultExtension = kind.extension.substr(1),
             .folder = screen.dialogFolder});
        if (!chosen) {
            return; // cancelled
        }
        WriteDesignFile(*chosen, tab, context.record);
        const std::string folder = std::filesystem::path(*chosen).parent_path().string();
        screen.dialogFolder = folder;
        context.project.dialogFolder = folder;
    } catch (const UnreadableField& error) {
        ShowUnreadableField(screen, context, error);
    } catch (const RunTimeError& error) {
        ShowFailure(context.dialogs, "Error saving file - ", error);
    }
}

void OpenTabFile(InputScreen& screen, InputContext& context, int tab) {
    const TabFileKind kind = TabFileKindFor(tab);
    if (kind.extension.empty()) {
        return;
    }
    try {
        const std::optional<std::string> chosen =
            context.dialogs.ShowOpenDialog({.title = kind.openTitle,
                                            .filter = kind.openFilter,
                                            .fileName = {},
                                            .defaultExtension = kind.extension.substr(1),
                                            .folder = screen.dialogFolder});
        if (!chosen) {
            return; // cancelled
        }
        const auto tell = [&context](const OldVersionNotice& notice) {
            context.dialogs.ShowMessage({MessageIcon::Information, notice.title, notice.text});
        };
        // Read into a copy, so that a file that fails half way leaves the project as it was.
        DesignRecord read = context.record;
        ReadDesignFile(*chosen, tab, read, context.defaults, tell);
        context.record = read;
        WriteInputRecord(screen, context, tab);
    } catch (const RunTimeError& error) {
        ShowFailure(context.dialogs, "Error opening file - ", error);
    }
}
