#include "input/live_verdict.h"

#include "engine/tendon_size.h"
#include "storage/design_file.h"
#include "tests/input/input_test_support.h"

#include <gtest/gtest.h>

namespace {

// The input screen showing a bundled example, as after opening it.
struct ExampleOnScreen : InputFixture {
    explicit ExampleOnScreen(const char* name) {
        const DesignRecord start = record;
        ReadDesignFile(std::string(K3_SOURCE_DIR) + "/examples/" + name, AllSections, record, start,
                       nullptr);
        screen.visible = false;
        WriteInputRecord(screen, context, AllSections);
        screen.visible = true;
    }
};

} // namespace

// The expansive example's classic list has its center lift cracked capacity 121.3 % and 67.0 %
// over and the edge lift short one 3.3 %: three checks, the largest ratio 2.213.
TEST(LiveVerdict, JudgesTheValuesAsTypedOnACopy) {
    ExampleOnScreen f("expansive_ribbed.kvt");
    ResultsRecord results;
    results.SoilPressure = 12345; // a result of an earlier analysis
    const DesignRecord before = f.record;

    LiveVerdict live = JudgeValuesAsTyped(f.screen.form, f.record, results, EngineSettings{});
    EXPECT_TRUE(live.checked);
    EXPECT_FALSE(live.pass);
    EXPECT_EQ(live.text, "As typed: Ribbed foundation: FAIL: 3 checks over their limits, governing "
                         "CRACKED MOMENT CAPACITY, CENTER LIFT, SHORT (2.21)");
    // The program's record and results are as they were.
    EXPECT_EQ(results.SoilPressure, 12345);
    EXPECT_EQ(f.record.SlabThick, before.SlabThick);
    EXPECT_EQ(f.record.Fpc, before.Fpc);

    // A value the analysis would refuse, and a field left empty.
    f["txtSlabThick"].text = "0";
    live = JudgeValuesAsTyped(f.screen.form, f.record, results, EngineSettings{});
    EXPECT_EQ(live.text, "not checked: Slab Thickness can not be zero");
    EXPECT_FALSE(live.checked);
    EXPECT_EQ(f.record.SlabThick, before.SlabThick);
    f["txtSlabThick"].text = "";
    live = JudgeValuesAsTyped(f.screen.form, f.record, results, EngineSettings{});
    EXPECT_TRUE(live.text.starts_with("not checked: ")) << live.text;
    EXPECT_NE(live.text.find("Slab Thickness"), std::string::npos) << live.text;
}

// The uniform thickness example: both foundations, each with its own sentence. Its classic
// lists have the ribbed edge lift stiffness 0.5 % and 2.2 % over, the uniform one 2.9 % in the
// long direction, which with the invalid ribbed foundation makes two uniform checks.
TEST(LiveVerdict, GivesEachFoundationOfTheValuesAsTyped) {
    ExampleOnScreen f("uniform_line_load.kvt");
    const LiveVerdict live =
        JudgeValuesAsTyped(f.screen.form, f.record, ResultsRecord{}, EngineSettings{});
    EXPECT_EQ(live.text, "As typed: Ribbed foundation: FAIL: 2 checks over their limits, governing "
                         "STIFFNESS, EDGE LIFT, LONG (1.02); Uniform thickness foundation: FAIL: "
                         "2 checks over their limits, governing STIFFNESS, EDGE LIFT, LONG (1.03)");

    // A passing design says only that.
    ExampleOnScreen down("compressible_edge_down.kvt");
    EXPECT_EQ(
        JudgeValuesAsTyped(down.screen.form, down.record, ResultsRecord{}, EngineSettings{}).text,
        "As typed: Ribbed foundation: PASS");
}

TEST(LiveVerdict, IsDue150MillisecondsAfterTheLastEditAndOnce) {
    LiveVerdictSchedule schedule;
    EXPECT_FALSE(schedule.TakeDue(0));
    EXPECT_EQ(schedule.Edited(1000), 150);
    EXPECT_FALSE(schedule.TakeDue(1100));
    schedule.Edited(1100); // typing on puts it off
    EXPECT_FALSE(schedule.TakeDue(1249));
    // A timer that fires a millisecond early waits the one left.
    EXPECT_EQ(schedule.TimeLeft(1249), 1);
    EXPECT_TRUE(schedule.TakeDue(1250));
    EXPECT_EQ(schedule.TimeLeft(1250), 0);
    EXPECT_FALSE(schedule.TakeDue(1400));
}
