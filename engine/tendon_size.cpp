#include "engine/tendon_size.h"

#include "engine/checked_math.h"

void ApplyTendonSize(DesignRecord& record) {
    switch (record.TendType) {
    case 0:
        record.TendArea = 0.085;
        record.TendDiam = 0.375;
        break;
    case 1:
        record.TendArea = 0.115;
        record.TendDiam = 0.4375;
        break;
    case 2:
        record.TendArea = 0.153;
        record.TendDiam = 0.5;
        break;
    case 3:
        record.TendDiam = Sqrt(Real(record.TendArea) * 4 / TendonPi);
        break;
    default:
        break;
    }
}
