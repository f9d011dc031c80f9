#pragma once

#include "shell/load_settings.h"
#include "tests/test_files.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <unistd.h>

// The record a fresh settings store gives a new project.
inline DesignRecord Defaults() {
    return FirstStartDefaultRecord("November 23, 2026");
}

inline std::filesystem::path ExamplePath(const std::string& name) {
    return std::filesystem::path(K3_SOURCE_DIR) / "examples" / name;
}

// The example with one line changed: line `index` (counted from 0) replaced by `text`.
inline std::string withLine(const std::string& bytes, std::size_t index, const std::string& text) {
    std::string result;
    std::size_t start = 0;
    for (std::size_t line = 0; start < bytes.size(); ++line) {
        const std::size_t end = bytes.find("\r\n", start) + 2;
        result += line == index ? text + "\r\n" : bytes.substr(start, end - start);
        start = end;
    }
    return result;
}
