#pragma once

#include "compliance/compliance_pass.h"
#include "engine/checked_math.h"
#include "engine/design_record.h"
#include "engine/results_record.h"
#include "output/results_screen.h"

#include <optional>
#include <string>

// Where an analysis, or the filling of the results screen after it, stopped.
enum class RunFaultPlace {
    Stage,            // a stage of the analysis; stage 0 is the making ready of the record
    DesignExceptions, // the beam depth ratio of the design exceptions
    ScreenValue,      // a value the results screen works out that is not a finite number
};

// The one fault of a run: its kind and where it happened.
struct RunFault {
    FaultKind kind;
    RunFaultPlace place;
    int stage = 0; // the analysis stage, for a fault in a stage
};

// How one run ended: the compliance and exception lists it built, or its fault. The lists are
// only complete without a fault.
struct ResultsRun {
    std::optional<RunFault> fault;
    CompliancePass pass;
};

// The analysis as every front end runs it: makes the record ready (the tendon size from its
// type), runs the analysis into `results` and fills `screen` with the results and the lists
// (output/results_screen.h). The screen keeps what a run does not write, so a screen kept
// loaded between runs behaves as the program's. It does not arrange the tabs.
ResultsRun AnalyseAndFillResults(const EngineSettings& settings, DesignRecord& record,
                                 ResultsRecord& results, ResultsScreen& screen);

// The fault's kind and place as the messages give it: "overflow in stage 4 (Prestress)",
// "division by zero in the beam depth ratio of the design exceptions", "overflow in a value
// worked out for the results screen".
std::string RunFaultText(const RunFault& fault);
