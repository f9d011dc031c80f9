#include "cli/record_json.h"

namespace {

template <typename Record>
nlohmann::ordered_json fieldsJson(const Record& record,
                                  std::span<const RecordField<Record>> fields) {
    nlohmann::ordered_json object = nlohmann::ordered_json::object();
    for (const auto& field : fields) {
        const std::string name(field.name);
        switch (field.kind) {
        case FieldKind::Text:
            object[name] = record.*field.text;
            break;
        case FieldKind::Int16:
            object[name] = record.*field.int16;
            break;
        case FieldKind::Real:
            object[name] = record.*field.real;
            break;
        }
    }
    return object;
}

} // namespace

nlohmann::ordered_json DesignRecordJson(const DesignRecord& record) {
    return fieldsJson(record, DesignRecordFields());
}

nlohmann::ordered_json ResultsRecordJson(const ResultsRecord& results) {
    return fieldsJson(results, ResultsRecordFields());
}
