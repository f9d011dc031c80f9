#pragma once

#include "cli/summary_table.h"
#include "compliance/mode_values.h"
#include "engine/design_record.h"
#include "engine/results_record.h"

// The moments of one soil case, short and long: they are not held against a limit, so they are
// not among the mode's compliance values.
struct ModeMoments {
    double momentShort;
    double momentLong;
};

// One of a mode's compliance values side by side, short and long.
void PrintModePair(SummaryTable& table, const std::string& label, const std::string& unit,
                   const ModeValues& values, double DirectionValues::*value, int decimals);

// The moment and the fibre stresses of one soil case against their allowables, with their
// excesses. The fibre in tension is named first.
void PrintFibreStresses(SummaryTable& table, const char* tensionFibre, const char* compressionFibre,
                        const ModeMoments& moments, const ModeValues& values,
                        const ResultsRecord& r);

// The groups of the command line's summary that apply to some projects only.
void PrintExpansiveSoil(SummaryTable& table, const EngineSettings& settings,
                        const ResultsRecord& r);
void PrintCrackedSection(SummaryTable& table, const ResultsRecord& r);
void PrintCompressibleSoil(SummaryTable& table, const DesignRecord& record, const ResultsRecord& r);
void PrintUniformThickness(SummaryTable& table, const DesignRecord& record, const ResultsRecord& r);
void PrintLineLoad(SummaryTable& table, const DesignRecord& record, const ResultsRecord& r);
