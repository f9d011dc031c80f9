#include "lifecycle/project_lifecycle.h"

#include "common/run_time_error.h"
#include "input/input_checks.h"
#include "input/input_events.h"
#include "input/input_record.h"
#include "shell/load_settings.h"
#include "shell/recent_files.h"
#include "storage/design_file.h"

#include <filesystem>
#include <optional>

namespace {

constexpr const char* ProjectFilter = "Projects (*.kvt)|*.kvt";

void ShowFailure(UserDialogs& dialogs, const std::string& title, const RunTimeError& error) {
    dialogs.ShowMessage(
        {MessageIcon::Critical, title + std::to_string(error.number()), error.description()});
}

std::string FolderOf(const std::string& path) {
    return std::filesystem::path(path).parent_path().string();
}

std::string TitleOf(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

// The commands a project opened from or saved to a file offers: everything but the results,
// which wait for an analysis.
void EnableProjectCommands(ProjectState& project, bool hasPath) {
    project.screenEnabled = true;
    project.inputEnabled = true;
    project.analysisEnabled = true;
    project.saveAsEnabled = true;
    project.saveButtonEnabled = true;
    project.saveEnabled = hasPath;
    project.outputEnabled = false;
    project.printEnabled = false;
}

// Page 1 of the input in front, with its tab sequence and tooltips.
void ShowFirstPage(Program& program, ShellServices& services) {
    InputContext context = InputContextOf(program, services);
    SelectPage(program.input, context, 1);
}

// The common end of a project read from a file.
void OpenProjectReset(Program& program, ShellServices& services, const std::string& title,
                      const std::string& path) {
    ModifyRecentFiles(program.settings, path);
    ProjectState& project = program.project;
    project.ProjectChanged = 0;
    project.caption = std::string(ProductCaption) + " - " + title;
    EnableProjectCommands(project, true);
    program.output.visible = false;
    program.input.visible = false;
    InputContext context = InputContextOf(program, services);
    WriteInputRecord(program.input, context, AllSections);
    ShowFirstPage(program, services);
}

// When the project takes the path it opens: the file dialog gives it before the file is read, so
// that a failed open keeps the path chosen; a recent file or the command line gives it only once
// the file has been read, so that a failed open keeps the project's former path.
enum class PathTaken { BeforeReading, AfterReading };

void TakePath(ProjectState& project, const std::string& path) {
    project.ProjFilePath = path;
    project.ProjFileTitle = TitleOf(path);
    project.pathUnread = false;
}

// Whether a save needs a name from the save dialog: the project has never been saved, or its
// path names a file that could not be read. The classic program wrote the open project over
// such a file at the next Save; that file may be a damaged project the engineer still wants to
// recover, so it is written over only when the user picks its name in the Save As dialog.
bool NeedsSavePath(const ProjectState& project) {
    return project.ProjFilePath.empty() || project.pathUnread;
}

// Reads the project at `path` into the record and shows it. The record changes only when the
// whole file has been read.
void OpenPath(Program& program, ShellServices& services, const std::string& path, PathTaken taken) {
    ProjectState& project = program.project;
    if (taken == PathTaken::BeforeReading) {
        TakePath(project, path);
    }
    try {
        const auto tell = [&services](const OldVersionNotice& notice) {
            services.dialogs.ShowMessage({MessageIcon::Information, notice.title, notice.text});
        };
        DesignRecord read = program.record;
        const int version =
            ReadDesignFile(path, AllSections, read, program.settings.defaults, tell);
        program.record = read;
        if (taken == PathTaken::AfterReading) {
            TakePath(project, path);
        }
        project.dialogFolder = FolderOf(path);
        program.input.dialogFolder = FolderOf(path);
        OpenProjectReset(program, services, project.ProjFileTitle, path);
        if (version == 1 || version == 2) {
            MarkProjectChanged(project);
        }
        program.input.visible = true;
    } catch (const RunTimeError& error) {
        ShowFailure(services.dialogs, "Error opening file - ", error);
        project.pathUnread = project.pathUnread || taken == PathTaken::BeforeReading;
        program.input.visible = false;
        project.caption = std::string(ProductCaption) + " - ";
    }
}

// The blank check and the copy of the screen into the record that every save begins with.
// False when a blank field stopped it (the input shows that field) or the screen could not be
// read (a message has said why).
bool ReadScreenForSaving(Program& program, ShellServices& services, const char* errorTitle) {
    InputContext context = InputContextOf(program, services);
    if (CheckBlankFields(program.input, context, AllSections) != 0) {
        program.output.visible = false;
        program.input.visible = true;
        return false;
    }
    try {
        ReadInputRecord(program.input.form, program.record, AllSections);
    } catch (const UnreadableField& error) {
        ShowUnreadableField(program.input, context, error);
        program.output.visible = false;
        program.input.visible = true;
        return false;
    } catch (const RunTimeError& error) {
        ShowFailure(services.dialogs, errorTitle, error);
        return false;
    }
    return true;
}

// The save dialog of Save As; nothing when cancelled.
std::optional<std::string> AskSavePath(Program& program, ShellServices& services) {
    const ProjectState& project = program.project;
    return services.dialogs.ShowSaveDialog(
        {.title = "Save Project As ...",
         .filter = ProjectFilter,
         .fileName = project.ProjFileTitle.empty() ? "*.kvt" : project.ProjFileTitle,
         .defaultExtension = "kvt",
         .folder = project.dialogFolder});
}

// Writes the record to a new path and makes it the project's. False on a failure, which has
// been shown; the project keeps its old path and stays changed.
bool SaveToNewPath(Program& program, ShellServices& services, const std::string& path,
                   const char* errorTitle) {
    try {
        WriteDesignFile(path, AllSections, program.record);
    } catch (const RunTimeError& error) {
        ShowFailure(services.dialogs, errorTitle, error);
        return false;
    }
    ProjectState& project = program.project;
    TakePath(project, path);
    project.dialogFolder = FolderOf(path);
    program.input.dialogFolder = FolderOf(path);
    project.saveEnabled = true;
    project.saveButtonEnabled = true;
    ModifyRecentFiles(program.settings, path);
    project.ProjectChanged = 0;
    project.caption = MainCaption(project);
    return true;
}

ProjectKind KindOfToolTip(const std::string& toolTip) {
    for (const ProjectKind kind :
         {ProjectKind::Expansive, ProjectKind::Compressible, ProjectKind::LineLoad}) {
        if (toolTip == NewKindCaption(kind)) {
            return kind;
        }
    }
    return ProjectKind::Expansive;
}

} // namespace

std::string NewKindCaption(ProjectKind kind) {
    switch (kind) {
    case ProjectKind::Compressible:
        return "New Compressible Soil Project";
    case ProjectKind::LineLoad:
        return "New Line Load Project";
    case ProjectKind::Expansive:
        break;
    }
    return "New Expansive Soil Project";
}

std::string MainCaption(const ProjectState& project) {
    std::string caption = ProductCaption;
    caption += project.ProjFileTitle.empty() ? " - Untitled" : " - " + project.ProjFileTitle;
    if (project.ProjectChanged == 1) {
        caption += '*';
    }
    return caption;
}

WindowPlace LoadMainWindow(Program& program, ShellServices& services, double screenWidth,
                           double screenHeight, double windowWidth, double windowHeight) {
    (void)services;
    ProjectState& project = program.project;
    project = ProjectState{};
    project.dialogFolder = program.settings.FilePath;
    program.input.dialogFolder = program.settings.FilePath;
    project.caption = ProductCaption;
    program.input.visible = false;
    program.output.visible = false;
    return PlaceMainWindow(program.settings, screenWidth, screenHeight, windowWidth, windowHeight);
}

Answer SaveCurrentFile(Program& program, ShellServices& services, const std::string& prompt) {
    if (program.project.ProjectChanged != 1) {
        return Answer::No;
    }
    const Answer answer = services.dialogs.AskYesNoCancel(
        {MessageIcon::Question, "Save?", "File has changed?  " + prompt});
    if (answer != Answer::Yes) {
        return answer;
    }
    const char* errorTitle = "Error saving file - ";
    if (!ReadScreenForSaving(program, services, errorTitle)) {
        return Answer::Cancel;
    }
    ProjectState& project = program.project;
    if (NeedsSavePath(project)) {
        const std::optional<std::string> path = AskSavePath(program, services);
        if (!path || !SaveToNewPath(program, services, *path, errorTitle)) {
            return Answer::Cancel;
        }
        return Answer::Yes;
    }
    try {
        WriteDesignFile(project.ProjFilePath, AllSections, program.record);
    } catch (const RunTimeError& error) {
        ShowFailure(services.dialogs, errorTitle, error);
        return Answer::Cancel;
    }
    project.ProjectChanged = 0;
    project.caption = MainCaption(project);
    return Answer::Yes;
}

void NewProjectReset(Program& program, ShellServices& services, ProjectKind kind) {
    ProjectState& project = program.project;
    project.ProjectChanged = 0;
    program.record.NoDataFlag = 0;
    program.input.visible = false;
    program.output.visible = false;
    project.ProjFilePath.clear();
    project.ProjFileTitle.clear();
    project.pathUnread = false;
    project.caption = MainCaption(project);
    EnableProjectCommands(project, false);

    // The default record becomes the screen; the design record takes it at the next copy from
    // the screen, but for the soil, which the soil list sets at once.
    DesignRecord shown = NewProjectRecord(program.settings.defaults, kind);
    InputContext context{shown, program.settings.defaults, project, services.dialogs,
                         services.clock};
    WriteInputRecord(program.input, context, AllSections);
    program.record.SoilType = shown.SoilType;

    ShowFirstPage(program, services);
    program.input.visible = true;
}

void NewProjectCommand(Program& program, ShellServices& services, ProjectKind kind) {
    if (SaveCurrentFile(program, services, NewPrompt) == Answer::Cancel) {
        return;
    }
    NewProjectReset(program, services, kind);
}

void ChooseNewKind(Program& program, ShellServices& services, ProjectKind kind) {
    program.project.newToolTip = NewKindCaption(kind);
    NewProjectCommand(program, services, kind);
}

void ClickNewButton(Program& program, ShellServices& services) {
    NewProjectCommand(program, services, KindOfToolTip(program.project.newToolTip));
}

void LineLoadMenuItem(Program&) {}

void OpenProject(Program& program, ShellServices& services) {
    const std::optional<std::string> path =
        services.dialogs.ShowOpenDialog({.title = "Open Project ...",
                                         .filter = ProjectFilter,
                                         .fileName = "*.kvt",
                                         .defaultExtension = "kvt",
                                         .folder = program.project.dialogFolder});
    if (!path) {
        return; // cancelled
    }
    OpenPath(program, services, *path, PathTaken::BeforeReading);
}

void OpenRecentProject(Program& program, ShellServices& services, const std::string& path) {
    program.project.ProjectChanged = 0;
    OpenPath(program, services, path, PathTaken::AfterReading);
}

void OpenAssociatedProject(Program& program, ShellServices& services,
                           const std::string& commandLine) {
    if (commandLine.empty()) {
        return;
    }
    std::string path = commandLine;
    if (path.size() >= 2 && path.front() == '"' && path.back() == '"') {
        path = path.substr(1, path.size() - 2);
    }
    OpenRecentProject(program, services, path);
}

void OpenCommand(Program& program, ShellServices& services) {
    if (SaveCurrentFile(program, services, OpenPrompt) == Answer::Cancel) {
        return;
    }
    OpenProject(program, services);
}

void OpenRecentCommand(Program& program, ShellServices& services, int index) {
    const std::string path = program.settings.RecentFiles.at(static_cast<std::size_t>(index - 1));
    if (path.empty() || SaveCurrentFile(program, services, OpenPrompt) == Answer::Cancel) {
        return;
    }
    OpenRecentProject(program, services, path);
}

void SaveCommand(Program& program, ShellServices& services) {
    ProjectState& project = program.project;
    if (NeedsSavePath(project)) {
        SaveAsCommand(program, services);
        return;
    }
    const char* errorTitle = "Error Saving File - ";
    if (!ReadScreenForSaving(program, services, errorTitle)) {
        return;
    }
    try {
        WriteDesignFile(project.ProjFilePath, AllSections, program.record);
    } catch (const RunTimeError& error) {
        ShowFailure(services.dialogs, errorTitle, error);
        return;
    }
    project.ProjectChanged = 0;
    project.caption = MainCaption(project);
}

void SaveAsCommand(Program& program, ShellServices& services) {
    const char* errorTitle = "Error Saving File - ";
    if (!ReadScreenForSaving(program, services, errorTitle)) {
        return;
    }
    if (const std::optional<std::string> path = AskSavePath(program, services)) {
        SaveToNewPath(program, services, *path, errorTitle);
    }
}

void ShowInputScreen(Program& program) {
    if (!program.project.inputEnabled) {
        return;
    }
    program.output.visible = false;
    program.input.visible = true;
}

void ShowOutputScreen(Program& program) {
    if (!program.project.outputEnabled) {
        return;
    }
    program.input.visible = false;
    program.output.visible = true;
}

bool QueryUnload(Program& program, ShellServices& services) {
    return SaveCurrentFile(program, services, ExitPrompt) != Answer::Cancel;
}

void EndProgram(Program& program, ShellServices& services, const std::string& left,
                const std::string& top) {
    SaveRecentFilesAndWindowPosition(services, program.settings, left, top);
}
