#pragma once

// What the command line's exit status tells a batch script.
enum ExitStatus : int {
    ExitAnalysed = 0,
    ExitBadUsage = 1,
    ExitFileError = 2,
    ExitEngineFault = 3,
    ExitInputError = 4,
    ExitNothingToPrint = 5,
    // A design search tried every candidate and none was compliant.
    ExitNoCompliantDesign = 6,
    // A design search was interrupted from the terminal; it printed the best found so far.
    ExitInterrupted = 130,
};
