#pragma once

#include "cli/summary_table.h"
#include "engine/design_record.h"
#include "engine/results_record.h"

// The moment and the fibre stresses of one soil case, with their excesses, short and long.
struct FibreStressRows {
    const char* tensionFibre;
    const char* compressionFibre;
    double momentShort, momentLong;
    double tensionShort, tensionLong, tensionExcessShort, tensionExcessLong;
    double compressionShort, compressionLong, compressionExcessShort, compressionExcessLong;
};
void PrintFibreStresses(SummaryTable& table, const FibreStressRows& rows, const ResultsRecord& r);

// The groups of the command line's summary that apply to some projects only.
void PrintExpansiveSoil(SummaryTable& table, const EngineSettings& settings,
                        const ResultsRecord& r);
void PrintCrackedSection(SummaryTable& table, const ResultsRecord& r);
void PrintCompressibleSoil(SummaryTable& table, const DesignRecord& record, const ResultsRecord& r);
void PrintUniformThickness(SummaryTable& table, const DesignRecord& record, const ResultsRecord& r);
void PrintLineLoad(SummaryTable& table, const DesignRecord& record, const ResultsRecord& r);
