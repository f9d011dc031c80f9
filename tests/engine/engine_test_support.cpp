#include "tests/engine/engine_test_support.h"

#include "engine/analysis_run.h"

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

void ExpectTenDigits(const ResultsRecord& results, std::initializer_list<NamedValue> expected) {
    for (const NamedValue& row : expected) {
        bool found = false;
        for (const ResultField& field : ResultsRecordFields()) {
            if (field.name != row.name) {
                continue;
            }
            found = true;
            const double actual =
                field.kind == FieldKind::Int16 ? results.*field.int16 : results.*field.real;
            EXPECT_NEAR(actual, row.value, std::fabs(row.value) * 1e-10) << row.name;
        }
        EXPECT_TRUE(found) << row.name;
    }
}

ResultsRecord Analysed(DesignRecord record, EngineSettings settings) {
    ResultsRecord results;
    RunDesignEngine(settings, record, results);
    return results;
}
