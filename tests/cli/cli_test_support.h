#pragma once

#include "shell/load_settings.h"

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

inline std::string FileBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
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

// A folder of its own for one test, removed afterwards.
class ScratchFolder {
  public:
    ScratchFolder() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        m_path = std::filesystem::temp_directory_path() /
                 ("korvath3-cli-" + std::string(test->name()) + "-" + std::to_string(getpid()));
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~ScratchFolder() { std::filesystem::remove_all(m_path); }
    const std::filesystem::path& path() const { return m_path; }

  private:
    std::filesystem::path m_path;
};
