#include "compliance/mode_values.h"

#include "compliance/checked_rows.h"

namespace {

DirectionValues ValuesOf(const DirectionRows& rows) {
    return {.tension = rows.tension.value.value,
            .tensionExcess = rows.tension.excess,
            .compression = rows.compression.value.value,
            .compressionExcess = rows.compression.excess,
            .demand = rows.demand.value.value,
            .allowed = rows.demand.limit.value,
            .demandExcess = rows.demand.excess,
            .shear = rows.shear.value.value,
            .allowShear = rows.shear.limit.value,
            .shearExcess = rows.shear.excess,
            .crackDemand = rows.cracked.value.value,
            .crackCapacity = rows.cracked.limit.value,
            .crackValid = rows.cracked.valid,
            .crackExcess = rows.cracked.excess};
}

ModeValues ValuesOf(const ModeRows& rows) {
    return {ValuesOf(rows.shortDirection), ValuesOf(rows.longDirection)};
}

} // namespace

ModeValues CenterLiftValues(const ResultsRecord& r) {
    return ValuesOf(CenterLiftRows(r));
}
ModeValues EdgeLiftValues(const ResultsRecord& r) {
    return ValuesOf(EdgeLiftRows(r));
}
ModeValues CenterDownValues(const ResultsRecord& r) {
    return ValuesOf(CenterDownRows(r));
}
ModeValues EdgeDownValues(const ResultsRecord& r) {
    return ValuesOf(EdgeDownRows(r));
}
ModeValues UniformCenterLiftValues(const ResultsRecord& r) {
    return ValuesOf(UniformCenterLiftRows(r));
}
ModeValues UniformEdgeLiftValues(const ResultsRecord& r) {
    return ValuesOf(UniformEdgeLiftRows(r));
}
ModeValues UniformCenterDownValues(const ResultsRecord& r) {
    return ValuesOf(UniformCenterDownRows(r));
}
ModeValues UniformEdgeDownValues(const ResultsRecord& r) {
    return ValuesOf(UniformEdgeDownRows(r));
}
