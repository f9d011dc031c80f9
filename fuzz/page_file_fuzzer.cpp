// Feeds arbitrary bytes to the page data files as the input screen opens them: each page's
// block read into a record, shown on the input screen and copied back. A file error or a
// run-time error of the copy (a text where a number belongs) is the expected answer; anything
// else is a fault.

#include "common/run_time_error.h"
#include "input/input_record.h"
#include "input/input_screen.h"
#include "shell/clock.h"
#include "shell/project_state.h"
#include "storage/design_file.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

class NoDialogs : public UserDialogs {
  public:
    void ShowMessage(const MessageRequest&) override {}
    Answer AskYesNoCancel(const MessageRequest&) override { return Answer::Cancel; }
    std::optional<std::string> ShowOpenDialog(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> ShowSaveDialog(const FileDialogRequest&) override { return {}; }
};

class FixedClock : public Clock {
  public:
    std::string TodayLongDate() const override { return "November 23, 2026"; }
    std::string TodayShortDate() const override { return "11/23/2026"; }
    std::string TimeOfDay() const override { return "3:05:09 PM"; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("k3-fuzz-page-" + std::to_string(::getpid()));
    {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    static InputScreen screen = LoadInputScreen();
    const DesignRecord defaults;
    NoDialogs dialogs;
    FixedClock clock;
    ProjectState project;
    for (int tab = 0; tab <= 6; ++tab) {
        DesignRecord record;
        try {
            ReadDesignFile(path, tab, record, defaults, [](const OldVersionNotice&) {});
            InputContext context{record, defaults, project, dialogs, clock};
            WriteInputRecord(screen, context, tab);
            DesignRecord back = record;
            ReadInputRecord(screen.form, back, tab);
        } catch (const RunTimeError&) {
        }
    }
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    return 0;
}
