#include "tests/engine/engine_test_support.h"

namespace {
template <typename Record>
void printFields(const Record& record, std::span<const RecordField<Record>> fields,
                 std::ostream* out) {
    *out << "{";
    for (const auto& field : fields) {
        *out << ' ' << field.name << '=';
        switch (field.kind) {
        case FieldKind::Text:
            *out << '"' << record.*field.text << '"';
            break;
        case FieldKind::Int16:
            *out << record.*field.int16;
            break;
        case FieldKind::Real:
            *out << record.*field.real;
            break;
        }
    }
    *out << " }";
}
} // namespace

void PrintTo(const DesignRecord& record, std::ostream* out) {
    printFields(record, DesignRecordFields(), out);
}

void PrintTo(const ResultsRecord& results, std::ostream* out) {
    printFields(results, ResultsRecordFields(), out);
}
