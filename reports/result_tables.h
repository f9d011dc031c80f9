#pragma once

#include "compliance/mode_values.h"
#include "reports/page_writer.h"

#include <string>

// The tables of the results pages: two columns, short and long, headed "Short" over "Direction"
// and "Long" over "Direction"; and the four columns of the stress tables, tension then
// compression, each with its "Allowable Stress" and "Actual Stress" rows.

std::string Formatted(double value, const char* pattern);

// The right edge of a line's single value, level with the values of the short column.
inline constexpr double SingleValueEdge = 8990;

// A block heading at column 1, and a line after it.
void BlockHeading(PageWriter& w, const std::string& heading);
// The same with the note that stresses come from the prestress at Beta after it on its line.
void MomentHeading(PageWriter& w, const std::string& heading, bool useBeta,
                   const std::string& note);

void DirectionHeads(PageWriter& w);
void PairRow(PageWriter& w, const std::string& label, const std::string& shortText,
             const std::string& longText);
// The same with the label at `labelX` rather than at column 2.
void PairRowAt(PageWriter& w, double labelX, const std::string& label, const std::string& shortText,
               const std::string& longText);
// A label with a raised power, "(Inch" "4" ")", and its pair of values.
void PowerPairRow(PageWriter& w, const std::string& before, const std::string& power,
                  const std::string& after, const std::string& shortText,
                  const std::string& longText);
// A label and one value right-aligned on the value column with its unit.
void SingleRow(PageWriter& w, const std::string& label, const std::string& value,
               const std::string& unit);

struct StressTable {
    std::string tensionCaption;
    std::string compressionCaption;
    double tensionShort, tensionLong, compressionShort, compressionLong;
    const char* compressionPattern; // "###,##0.000", or "###,##0.00#" where the page says so
};
void StressRows(PageWriter& w, const ResultsRecord& r, const StressTable& table);

// The stress table of an analysis mode from its compliance values: the fibre in tension, then
// the fibre in compression, short and long.
StressTable ModeStressTable(std::string tensionCaption, std::string compressionCaption,
                            const ModeValues& values, const char* compressionPattern);
