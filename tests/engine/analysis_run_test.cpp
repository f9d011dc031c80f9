#include "engine/analysis_run.h"
#include "tests/engine/engine_test_support.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

struct FaultRow {
    const char* name;
    void (*change)(DesignRecord&);
    FaultKind kind;
    int stage;
};

const FaultRow faultRows[] = {
    {"negative concrete strength has no root", [](DesignRecord& r) { r.Fpc = -1; },
     FaultKind::InvalidArgument, 1},
    {"a section of no area", [](DesignRecord& r) { r.RectLength = 0, r.QS1 = 0; },
     FaultKind::Overflow, 1},
    {"beam counts beyond 16 bits", [](DesignRecord& r) { r.QS1 = 32000, r.QS2 = 800; },
     FaultKind::Overflow, 2},
    {"one beam leaves no gap to divide", [](DesignRecord& r) { r.QL1 = 1; },
     FaultKind::DivisionByZero, 3},
    {"no allowable bearing", [](DesignRecord& r) { r.ExpBearing = 0; }, FaultKind::DivisionByZero,
     3},
    {"soil modulus of zero", [](DesignRecord& r) { r.Es = 0; }, FaultKind::DivisionByZero, 4},
    {"creep and soil moduli of opposite signs", [](DesignRecord& r) { r.Es = -1000; },
     FaultKind::InvalidArgument, 4},
    {"a tendon that carries nothing", [](DesignRecord& r) { r.Prestress = 189; },
     FaultKind::DivisionByZero, 4},
    {"more tendons than 16 bits hold", [](DesignRecord& r) { r.TS1 = 5000; }, FaultKind::Overflow,
     4},
    {"a smallest spacing of zero", [](DesignRecord& r) { r.BeamSpacing = 0, r.SMax = 10; },
     FaultKind::DivisionByZero, 5},
    {"no spacings at all", [](DesignRecord& r) { r.BeamSpacing = 0; }, FaultKind::Overflow, 5},
};

} // namespace

TEST(AnalysisRun, EachFaultEndsTheRunWithItsKindAndStage) {
    for (const FaultRow& row : faultRows) {
        DesignRecord record = SmallRibbedRecord();
        row.change(record);
        ResultsRecord results;
        try {
            RunDesignEngine(EngineSettings{}, record, results);
            ADD_FAILURE() << row.name << ": no fault";
        } catch (const EngineFault& fault) {
            EXPECT_EQ(fault.kind(), row.kind) << row.name;
            EXPECT_EQ(fault.stage(), row.stage) << row.name;
        }
    }
}

TEST(AnalysisRun, ResultsAreKeptFromRunToRunAndARepeatedRunGivesTheSame) {
    DesignRecord record = SmallRibbedRecord();
    ResultsRecord first;
    RunDesignEngine(EngineSettings{}, record, first);
    ResultsRecord second = first;
    RunDesignEngine(EngineSettings{}, record, second);
    EXPECT_EQ(second, first);

    // A spacing kind that computes nothing leaves the spacings of the first run, although the
    // rectangle has changed.
    record.BeamSpacing = 7;
    record.RectLength = 90;
    RunDesignEngine(EngineSettings{}, record, second);
    EXPECT_EQ(second.SpacingShort, first.SpacingShort);
    EXPECT_NE(second.AreaShort, first.AreaShort);

    // The bearing area on the beams alone is the setting's, not the record's.
    record = SmallRibbedRecord();
    RunDesignEngine(EngineSettings{0, 1, 0}, record, second);
    EXPECT_CLOSE(second.BearingArea, 545.0);
}

// Records of every shape an engineer or a damaged file could give, sound or absurd: a run
// either faults or leaves no infinity or NaN in any result.
TEST(AnalysisRun, NoRunLeavesAnInfinityOrNaNInAResult) {
    std::mt19937 random(20261123);
    const double reals[] = {0, 1e-300, -1, 0.5, 1, 4, 12, 24, 40, 1e6, 1e154, 1e308, -1e308};
    const std::int16_t counts[] = {0, 1, 2, 3, -1, 32767, -32768};
    auto anyReal = [&] { return reals[random() % std::size(reals)] * (random() % 2 ? 1 : 1.3); };
    auto anyCount = [&] { return counts[random() % std::size(counts)]; };
    int completed = 0;
    for (int trial = 0; trial < 4000; ++trial) {
        DesignRecord record = SmallRibbedRecord();
        for (const DesignField& field : DesignRecordFields()) {
            if (random() % 8 != 0) {
                continue;
            }
            if (field.kind == FieldKind::Real) {
                record.*field.real = anyReal();
            } else if (field.kind == FieldKind::Int16) {
                record.*field.int16 = anyCount();
            }
        }
        ResultsRecord results;
        try {
            RunDesignEngine(EngineSettings{0, std::int16_t(trial % 2), 0}, record, results);
        } catch (const EngineFault&) {
            continue;
        }
        ++completed;
        for (const ResultField& field : ResultsRecordFields()) {
            if (field.kind == FieldKind::Real) {
                ASSERT_TRUE(std::isfinite(results.*field.real))
                    << field.name << " in trial " << trial;
            }
        }
    }
    EXPECT_GT(completed, 100);
}

namespace {

// The outcome of one run: the results, or the fault's kind and stage.
struct RunOutcome {
    ResultsRecord results;
    int faultKind = -1;
    int faultStage = -1;
};

RunOutcome runOnce(DesignRecord record, EquivalentDepthMemo* memo) {
    RunOutcome outcome;
    try {
        RunDesignEngine(EngineSettings{}, record, outcome.results, memo);
    } catch (const EngineFault& fault) {
        outcome.faultKind = static_cast<int>(fault.kind());
        outcome.faultStage = fault.stage();
        outcome.results = ResultsRecord{};
    }
    return outcome;
}

} // namespace

// Designs that share a direction's section, as a search over beam depths and counts makes them:
// every run through one memo, on its first sight of a section and again when it is remembered,
// gives the results and faults of a run without it. The depths differ within each direction, so
// that the bisection runs; a few designs fault, some of them within the bisection.
TEST(AnalysisRun, AMemoOfEquivalentDepthsChangesNoResultAndNoFault) {
    std::mt19937 random(1123);
    const double depths[] = {12, 16, 18.5, 20, 24, 28, 30, 36};
    const std::int16_t counts[] = {0, 1, 2, 3, 5, 7, 32000};
    EquivalentDepthMemo memo;
    int remembered = 0;
    int faults = 0;
    int bisectionFaults = 0;
    for (int trial = 0; trial < 600; ++trial) {
        DesignRecord record = SmallRibbedRecord();
        record.QS2 = counts[random() % 5];
        record.QL2 = counts[random() % 5];
        record.DS1 = depths[random() % std::size(depths)];
        record.DS2 = depths[random() % std::size(depths)];
        record.DL1 = depths[random() % std::size(depths)];
        record.DL2 = depths[random() % std::size(depths)];
        if (trial % 50 == 0) {
            record.QS1 = counts[5 + random() % 2];
            record.WS1 = 0;
        }
        if (trial % 200 == 1) {
            // Beams so large that no trial depth matches their inertia to 1e-07 in4: the
            // bisection runs out of steps.
            record.QS1 = 100, record.QS2 = 2, record.WS1 = 100, record.WS2 = 100;
            record.DS1 = 2000, record.DS2 = 3000;
        }
        const RunOutcome plain = runOnce(record, nullptr);
        for (int pass = 0; pass < 2; ++pass) {
            const RunOutcome memoised = runOnce(record, &memo);
            EXPECT_EQ(memoised.faultKind, plain.faultKind) << "trial " << trial;
            EXPECT_EQ(memoised.faultStage, plain.faultStage) << "trial " << trial;
            EXPECT_EQ(memoised.results, plain.results) << "trial " << trial;
        }
        remembered += record.DS1 != record.DS2 ? 1 : 0;
        faults += plain.faultKind >= 0 ? 1 : 0;
        bisectionFaults += plain.faultStage == 2 ? 1 : 0;
    }
    EXPECT_GT(remembered, 300);
    EXPECT_GT(faults, bisectionFaults);
    EXPECT_EQ(bisectionFaults, 3);
}
