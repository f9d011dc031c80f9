// The live plan beside the input pages: the plan of the values as typed, and its drawing in a
// panel of 900 by 630 dots, as each key typed redraws it. Both must take well under a frame.

#include "common/date_text.h"
#include "input/input_record.h"
#include "input/live_plan.h"
#include "reports/plan_drawing.h"
#include "reports/qt/painter_surface.h"
#include "shell/load_settings.h"
#include "storage/design_file.h"

#include <QImage>
#include <benchmark/benchmark.h>
#include <string>

namespace {

class QuietDialogs : public UserDialogs {
  public:
    void ShowMessage(const MessageRequest&) override {}
    Answer AskYesNoCancel(const MessageRequest&) override { return Answer::Cancel; }
    std::optional<std::string> ShowOpenDialog(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> ShowSaveDialog(const FileDialogRequest&) override { return {}; }
};

// The input screen showing the example, as the live plan reads it.
struct ExampleScreen {
    DesignRecord defaults = FirstStartDefaultRecord(LongDateText(2026, 11, 23));
    DesignRecord record = defaults;
    ProjectState project;
    QuietDialogs dialogs;
    SystemClock clock;
    InputScreen screen = LoadInputScreen();

    ExampleScreen() {
        ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/expansive_ribbed.kvt", AllSections,
                       record, defaults, nullptr);
        InputContext context{record, defaults, project, dialogs, clock};
        WriteInputRecord(screen, context, 10);
    }
};

void BM_LivePlan_TypedValues(benchmark::State& state) {
    ExampleScreen example;
    LivePlan live;
    for (auto _ : state) {
        UpdateLivePlan(live, example.screen.form, example.record);
        benchmark::DoNotOptimize(live);
    }
}

void BM_LivePlan_PaintPanel(benchmark::State& state) {
    ExampleScreen example;
    const FoundationPlan plan = PlanOfTypedValues(example.screen.form, example.record);
    QImage panel(900, 630, QImage::Format_RGB32);
    panel.setDotsPerMeterX(3780); // 96 dots to the inch
    panel.setDotsPerMeterY(3780);
    for (auto _ : state) {
        panel.fill(Qt::white);
        PainterSurface surface(panel);
        surface.BeginDocument();
        DrawFoundationPlan(surface, plan, {150, 150, 13200, 5700});
        DrawTypicalSections(surface, plan, {150, 6000, 13200, 3300});
        surface.EndDocument();
        benchmark::DoNotOptimize(panel);
    }
}

} // namespace

BENCHMARK(BM_LivePlan_TypedValues);
BENCHMARK(BM_LivePlan_PaintPanel)->Unit(benchmark::kMicrosecond);
