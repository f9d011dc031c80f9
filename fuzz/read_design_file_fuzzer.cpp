// Feeds arbitrary bytes to the project file reader under every selector. A FileError is the
// expected answer to most inputs; anything else (a crash, a sanitizer report, a hang, memory
// beyond the line limit) is a fault.

#include "storage/design_file.h"
#include "storage/file_error.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("k3-fuzz-" + std::to_string(::getpid()) + ".kvt");
    {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    const DesignRecord defaults;
    for (int selector : {10, 0, 1, 2, 3, 4, 5, 6}) {
        DesignRecord record;
        try {
            ReadDesignFile(path, selector, record, defaults, [](const OldVersionNotice&) {});
        } catch (const FileError&) {
        }
    }
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    return 0;
}
