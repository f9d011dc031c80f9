#pragma once

#include "lifecycle/program.h"

// The Analysis command: the input checked and copied into the record, the analysis run, the
// results screen filled, arranged and shown in place of the input.

enum class AnalysisResult {
    Stopped,      // a blank field or a value stopped it; the input shows the field
    ResultsShown, // the results screen replaced the input; output and printing are offered
    EndProgram,   // the analysis met an arithmetic fault, which has been shown: the caller ends
                  // the program at once, saving nothing
};

// The analysis does not mark the project changed and saves nothing. After a fault the input
// stays hidden and no partial result is shown.
AnalysisResult AnalysisReset(Program& program, ShellServices& services);

// The text of the message that ends the program after a fault of the analysis.
inline constexpr const char* AnalysisFaultTitle = "Korvath Critical Error";
