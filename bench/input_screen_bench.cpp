// Showing a whole project on the input screen and reading it back, as opening a project and
// starting its analysis do.

#include "common/date_text.h"
#include "input/input_record.h"
#include "shell/load_settings.h"
#include "storage/design_file.h"

#include <benchmark/benchmark.h>
#include <string>

namespace {

// The screen's services are not reached by the two copies; these stand in for them.
class SilentDialogs : public UserDialogs {
  public:
    void ShowMessage(const MessageRequest&) override {}
    Answer AskYesNoCancel(const MessageRequest&) override { return Answer::Cancel; }
    std::optional<std::string> ShowOpenDialog(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> ShowSaveDialog(const FileDialogRequest&) override { return {}; }
};

void BM_WriteAndReadInputScreen(benchmark::State& state) {
    const DesignRecord defaults = FirstStartDefaultRecord(LongDateText(2026, 11, 23));
    DesignRecord record = defaults;
    ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/expansive_ribbed.kvt", AllSections,
                   record, defaults, nullptr);
    ProjectState project;
    SilentDialogs dialogs;
    SystemClock clock;
    InputScreen screen = LoadInputScreen();
    screen.visible = true;
    InputContext context{record, defaults, project, dialogs, clock};
    for (auto _ : state) {
        WriteInputRecord(screen, context, 10);
        ReadInputRecord(screen.form, record, 10);
    }
}

} // namespace

BENCHMARK(BM_WriteAndReadInputScreen);
