#include "shell/program_folder.h"

std::filesystem::path ProgramFolder() {
    std::error_code error;
    const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) {
        return std::filesystem::current_path(error);
    }
    return executable.parent_path();
}
