#include "engine/design_record.h"

#include <array>

#define K3_TEXT_ENTRY(name) DesignField{#name, FieldKind::Text, &DesignRecord::name},
#define K3_INT16_ENTRY(name) DesignField{#name, FieldKind::Int16, nullptr, &DesignRecord::name},
#define K3_REAL_ENTRY(name)                                                                        \
    DesignField{#name, FieldKind::Real, nullptr, nullptr, &DesignRecord::name},

namespace {
const auto designFields = std::to_array<DesignField>(
    {K3_DESIGN_RECORD_FIELDS(K3_TEXT_ENTRY, K3_INT16_ENTRY, K3_REAL_ENTRY)});
}

std::span<const DesignField> DesignRecordFields() {
    return designFields;
}

const DesignField* FindDesignField(std::string_view name) {
    for (const DesignField& field : designFields) {
        if (field.name == name) {
            return &field;
        }
    }
    return nullptr;
}
