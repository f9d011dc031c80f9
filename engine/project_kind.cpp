#include "engine/project_kind.h"

DesignRecord NewProjectRecord(const DesignRecord& defaults, ProjectKind kind) {
    DesignRecord record = defaults;
    record.NoDataFlag = 0;
    record.SoilType = kind == ProjectKind::Compressible ? 1 : 0;
    if (kind == ProjectKind::LineLoad) {
        record.LineLoadType = 1;
    }
    return record;
}
