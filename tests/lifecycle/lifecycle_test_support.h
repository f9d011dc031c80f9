#pragma once

#include "lifecycle/program.h"
#include "shell/load_settings.h"
#include "tests/shell/shell_test_support.h"
#include "tests/test_files.h"

#include <filesystem>
#include <string>

// The program as it stands after start-up on a fresh store, with a scratch folder for its files
// and copies of the bundled examples in it.
struct LifecycleFixture : ShellFixture {
    ScratchFolder scratch;
    Program program;

    LifecycleFixture() { LoadSettings(services, program.settings); }

    std::string Example(const std::string& name) {
        const auto copy = scratch.path() / (name + ".kvt");
        std::filesystem::copy_file(std::filesystem::path(K3_SOURCE_DIR) / "examples" /
                                       (name + ".kvt"),
                                   copy, std::filesystem::copy_options::overwrite_existing);
        return copy.string();
    }

    std::string Path(const std::string& name) const { return (scratch.path() / name).string(); }
};
