#include "output/results_run.h"

#include "storage/design_file.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>

namespace {

DesignRecord Example(const char* name) {
    DesignRecord record;
    ReadDesignFile(std::filesystem::path(K3_SOURCE_DIR) / "examples" / name, AllSections, record,
                   record, {});
    return record;
}

// One run of the example as changed by `change`, on a freshly loaded screen.
ResultsRun RunExample(const std::function<void(DesignRecord&)>& change, ResultsScreen& screen) {
    DesignRecord record = Example("expansive_ribbed.kvt");
    change(record);
    ResultsRecord results;
    return AnalyseAndFillResults({}, record, results, screen);
}

} // namespace

// The one entry of every front end sorts a run's end into one of its places: finished with its
// lists, a fault in a stage of the analysis, or a fault of the design exceptions after it.
TEST(AnalyseAndFillResults, EndsFinishedOrWithTheFaultOfOnePlace) {
    ResultsScreen screen = LoadResultsScreen();
    const ResultsRun finished = RunExample([](DesignRecord&) {}, screen);
    EXPECT_FALSE(finished.fault.has_value());
    EXPECT_FALSE(screen.form["lblProjName"].caption.empty());

    // A single long beam leaves no clear span between beams: the bearing area divides by nought.
    ResultsScreen faulted = LoadResultsScreen();
    const ResultsRun oneBeam = RunExample(
        [](DesignRecord& r) {
            r.QL1 = 1;
            r.QL2 = 0;
        },
        faulted);
    ASSERT_TRUE(oneBeam.fault.has_value());
    EXPECT_EQ(oneBeam.fault->place, RunFaultPlace::Stage);
    EXPECT_EQ(oneBeam.fault->stage, 3);
    EXPECT_EQ(RunFaultText(*oneBeam.fault), "division by zero in stage 3 (soil bearing)");
    // A fault in the analysis fills nothing.
    EXPECT_TRUE(faulted.form["lblProjName"].caption.empty());

    // No short beam group with both a depth and a quantity: the analysis finishes, and the depth
    // ratio of the design exceptions divides by nought.
    const ResultsRun noShortBeams = RunExample(
        [](DesignRecord& r) {
            r.QS1 = 0;
            r.DS2 = 0;
        },
        faulted);
    ASSERT_TRUE(noShortBeams.fault.has_value());
    EXPECT_EQ(noShortBeams.fault->place, RunFaultPlace::DesignExceptions);
    EXPECT_EQ(RunFaultText(*noShortBeams.fault),
              "division by zero in the beam depth ratio of the design exceptions");

    EXPECT_EQ(RunFaultText({FaultKind::Overflow, RunFaultPlace::ScreenValue}),
              "overflow in a value worked out for the results screen");
    EXPECT_EQ(RunFaultText({FaultKind::InvalidArgument, RunFaultPlace::Stage, 0}),
              "invalid argument in stage 0 (tendon size)");
}
