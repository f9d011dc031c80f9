#pragma once

#include <string>
#include <vector>

#include "engine/design_record.h"
#include "engine/results_record.h"
#include "input/input_screen.h"
#include "lifecycle/options_dialog.h"
#include "output/results_screen.h"
#include "reports/print_dialog.h"
#include "shell/program_settings.h"
#include "shell/project_state.h"
#include "shell/shell_services.h"

// Everything the running program holds: the settings read at start, the one design record and
// results record, the open project's state and the four forms, loaded once and only hidden
// afterwards. The main window and the tests drive it through the lifecycle's routines.
struct Program {
    ProgramSettings settings;
    DesignRecord record;
    ResultsRecord results;
    ProjectState project;
    InputScreen input = LoadInputScreen();
    ResultsScreen output = LoadResultsScreen();
    OptionsDialog options = LoadOptionsDialog();
    PrintDialog print = LoadPrintDialog();
    // The inner width of the main window, in which the screens are centred.
    int mainInnerWidth = ResultsScreenWidth;
    // The ranges ("EmCenter=2.75:8.25:0.1375", ...) of the last soil sensitivity run over the
    // analysis on screen, which the calculation package offers as a page of its own; none before
    // a run, and none again after the next analysis.
    std::vector<std::string> sensitivityRanges;
};

// What the input screen's rules reach of the program.
InputContext InputContextOf(Program& program, ShellServices& services);
