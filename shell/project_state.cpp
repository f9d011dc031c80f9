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
