#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// One entry of a record's field table: the field's name as the engineer and the files know it,
// its kind, and where it lives in the record. Exactly one of the three member pointers is set.
// The table does not own or copy values; it only addresses them.

enum class FieldKind { Text, Int16, Real };

template <typename Record> struct RecordField {
    std::string_view name;
    FieldKind kind;
    std::string Record::*text = nullptr;
    std::int16_t Record::*int16 = nullptr;
    double Record::*real = nullptr;
};
