#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <unistd.h>

// Files for tests that read and write them.

inline std::string FileBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

// A folder of its own for one test, removed afterwards.
class ScratchFolder {
  public:
    ScratchFolder() {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        m_path = std::filesystem::temp_directory_path() /
                 ("korvath3-" + std::string(test->name()) + "-" + std::to_string(getpid()));
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~ScratchFolder() { std::filesystem::remove_all(m_path); }
    const std::filesystem::path& path() const { return m_path; }

  private:
    std::filesystem::path m_path;
};
