#include "shell/project_state.h"

void MarkProjectChanged(ProjectState& project) {
    project.ProjectChanged = 1;
    if (!project.caption.ends_with('*')) {
        project.caption += '*';
    }
    project.saveAsEnabled = true;
    project.printEnabled = false;
    project.outputEnabled = false;
}

bool MenuEnabled(const ProjectState& project, std::string_view item) {
    if (item == "mnuSave") {
        return project.saveEnabled;
    }
    if (item == "mnuSaveAs") {
        return project.saveAsEnabled;
    }
    if (item == "mnuPrint") {
        return project.printEnabled;
    }
    if (item == "mnuOutput") {
        return project.outputEnabled;
    }
    if (item == "mnuScreen") {
        return project.screenEnabled;
    }
    if (item == "mnuInput") {
        return project.inputEnabled;
    }
    if (item == "mnuAnalysis") {
        return project.analysisEnabled;
    }
    return true;
}

bool ToolbarButtonEnabled(const ProjectState& project, int position) {
    switch (position) {
    case 4:
        return project.saveButtonEnabled;
    case 6:
        return project.printEnabled;
    case 8:
        return project.inputEnabled;
    case 9:
        return project.analysisEnabled;
    case 10:
        return project.outputEnabled;
    default:
        return true;
    }
}
