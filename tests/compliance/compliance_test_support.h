#pragma once

#include "common/styled_text.h"
#include "engine/design_record.h"
#include "engine/results_record.h"

#include <string>
#include <vector>

// Three short beams of 10 x 24 in each way under a 4 in slab of 3000 psi concrete on expansive
// soil; no uniform thickness foundation, no line load. It breaks no rule of the manual.
inline DesignRecord PlainRibbedRecord() {
    DesignRecord r;
    r.Fpc = 3000, r.SlabThick = 4;
    r.QS1 = 3, r.WS1 = 10, r.DS1 = 24;
    r.QL1 = 3, r.WL1 = 10, r.DL1 = 24;
    r.SoilType = 0;
    return r;
}

// Results with every value within its limit: zero stresses, demands and shears against
// allowables of -0.3 ksi tension and 1350 psi compression, bearing safety 2, capacities that could
// be calculated, 10 ft spacings, 100 psi prestress and an 8 in uniform slab.
inline ResultsRecord CompliantResults() {
    ResultsRecord r;
    r.AllowTension = -0.3, r.AllowCompression = 1350, r.BearingSafety = 2;
    r.CrackValidCLShort = 1, r.CrackValidCLLong = 1, r.CrackValidELShort = 1,
    r.CrackValidELLong = 1;
    r.UTCrackValidCLShort = 1, r.UTCrackValidCLLong = 1, r.UTCrackValidELShort = 1,
    r.UTCrackValidELLong = 1;
    r.SpacingShort = 10, r.SpacingLong = 10, r.PsCenterShort = 100, r.PsCenterLong = 100;
    r.UTThickness = 8;
    // Every section has an area, so that the prestress a force gives on it is a number.
    r.AreaShort = 3000, r.AreaLong = 2000, r.UTAreaShort = 3840, r.UTAreaLong = 5760;
    return r;
}

// The lines of a box as its text shows them, split after each line end.
inline std::vector<std::string> Lines(const StyledText& box) {
    std::vector<std::string> lines;
    std::string line;
    for (const char c : PlainText(box)) {
        line += c;
        if (c == '\n') {
            lines.push_back(line);
            line.clear();
        }
    }
    if (!line.empty()) {
        lines.push_back(line);
    }
    return lines;
}

// The runs of a box written in bold red.
inline std::vector<std::string> RedRuns(const StyledText& box) {
    std::vector<std::string> red;
    for (const StyledRun& run : box.runs) {
        if (run.red) {
            red.push_back(run.text);
        }
    }
    return red;
}
