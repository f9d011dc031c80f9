#pragma once

#include "engine/design_record.h"
#include "storage/field_stream.h"

// The seven sections of the current project file, one per input page, each the sequence of
// its lines with the conditions that leave lines out. The same functions serve the reader and
// the writer (see FieldStream).

void ProjectInfoSection(FieldStream& stream, DesignRecord& record); // section 0
void MaterialSection(FieldStream& stream, DesignRecord& record);    // section 1
void SlabSection(FieldStream& stream, DesignRecord& record);        // section 2
void BeamSection(FieldStream& stream, DesignRecord& record);        // section 3
void SoilSection(FieldStream& stream, DesignRecord& record);        // section 4
void LoadSection(FieldStream& stream, DesignRecord& record);        // section 5
void LineLoadSection(FieldStream& stream, DesignRecord& record);    // section 6

// Everything after the version line: NoDataFlag, then sections 0 to 6 in order, each when the
// selector names it or is AllSections. A NoDataFlag other than 0 ends the file. Any other
// selector gives NoDataFlag alone.
void CurrentSections(FieldStream& stream, int selector, DesignRecord& record);
