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
