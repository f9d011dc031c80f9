#include "engine/results_record.h"

#include <array>

#define K3_TEXT_ENTRY(name) ResultField{#name, FieldKind::Text, &ResultsRecord::name},
#define K3_INT16_ENTRY(name) ResultField{#name, FieldKind::Int16, nullptr, &ResultsRecord::name},
#define K3_REAL_ENTRY(name)                                                                        \
    ResultField{#name, FieldKind::Real, nullptr, nullptr, &ResultsRecord::name},

namespace {
const auto resultFields = std::to_array<ResultField>(
    {K3_RESULTS_RECORD_FIELDS(K3_TEXT_ENTRY, K3_INT16_ENTRY, K3_REAL_ENTRY)});
}

std::span<const ResultField> ResultsRecordFields() {
    return resultFields;
}
