#pragma once

#include "engine/design_record.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// A fresh empty folder for each test, removed afterwards.
class StorageTest : public ::testing::Test {
  protected:
    void SetUp() override {
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        folder = std::filesystem::temp_directory_path() /
                 (std::string("k3-storage-") + info->test_suite_name() + "-" + info->name() + "-" +
                  std::to_string(::testing::UnitTest::GetInstance()->random_seed()));
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    void TearDown() override {
        // A test may have locked a folder against writing; open it again so it can go.
        std::error_code ignored;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder, ignored)) {
            if (entry.is_directory(ignored)) {
                std::filesystem::permissions(entry.path(), std::filesystem::perms::owner_all,
                                             std::filesystem::perm_options::add, ignored);
            }
        }
        std::filesystem::remove_all(folder, ignored);
    }

    std::filesystem::path folder;
};

// The lines of a file, each ended by CR LF as the program writes them.
inline std::string CrLfLines(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (std::string_view line : lines) {
        text += line;
        text += "\r\n";
    }
    return text;
}

inline void WriteBytes(const std::filesystem::path& path, std::string_view bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline int CountCrLf(std::string_view text) {
    int count = 0;
    for (std::size_t at = text.find("\r\n"); at != std::string_view::npos;
         at = text.find("\r\n", at + 2)) {
        ++count;
    }
    return count;
}

// A project that was in memory before a file is read: every field holds a value no file in
// these tests holds, so that a field a reader must leave alone shows when it was touched.
inline DesignRecord PreviousProject() {
    DesignRecord record;
    for (const DesignField& field : DesignRecordFields()) {
        switch (field.kind) {
        case FieldKind::Text:
            record.*field.text = "old " + std::string(field.name);
            break;
        case FieldKind::Int16:
            record.*field.int16 = 7;
            break;
        case FieldKind::Real:
            record.*field.real = 99.5;
            break;
        }
    }
    record.NoDataFlag = 0;
    return record;
}

// Compares two records field by field and names each field that differs.
inline void ExpectSameRecord(const DesignRecord& actual, const DesignRecord& expected) {
    for (const DesignField& field : DesignRecordFields()) {
        switch (field.kind) {
        case FieldKind::Text:
            EXPECT_EQ(actual.*field.text, expected.*field.text) << "field " << field.name;
            break;
        case FieldKind::Int16:
            EXPECT_EQ(actual.*field.int16, expected.*field.int16) << "field " << field.name;
            break;
        case FieldKind::Real:
            EXPECT_EQ(actual.*field.real, expected.*field.real) << "field " << field.name;
            break;
        }
    }
}

// One field given by name: a number for an integer or real field, a text for a text field.
struct FieldValue {
    FieldValue(std::string_view n, int v) : name(n), value(double(v)) {}
    FieldValue(std::string_view n, double v) : name(n), value(v) {}
    FieldValue(std::string_view n, const char* v) : name(n), value(std::string(v)) {}
    std::string_view name;
    std::variant<double, std::string> value;
};

inline void SetFields(DesignRecord& record, const std::vector<FieldValue>& values) {
    for (const FieldValue& v : values) {
        bool found = false;
        for (const DesignField& field : DesignRecordFields()) {
            if (field.name != v.name) {
                continue;
            }
            found = true;
            if (field.kind == FieldKind::Text) {
                record.*field.text = std::get<std::string>(v.value);
            } else if (field.kind == FieldKind::Int16) {
                record.*field.int16 = static_cast<std::int16_t>(std::get<double>(v.value));
            } else {
                record.*field.real = std::get<double>(v.value);
            }
        }
        EXPECT_TRUE(found) << "no field " << v.name;
    }
}
