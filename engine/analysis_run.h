#pragma once

#include "engine/checked_math.h"
#include "engine/design_record.h"
#include "engine/equivalent_depth_memo.h"
#include "engine/results_record.h"

#include <string>

// The stages of the analysis in the order they run, which is also the order in which a fault
// is met. A fault names the stage by its number.
enum class AnalysisStage {
    AllowablesAndSections = 1,
    EquivalentDepths = 2,
    SoilBearing = 3,
    Prestress = 4,
    AnalysisSpacing = 5,
    ExpansiveSoil = 6,
    CrackedSection = 7,
    CompressibleSoil = 8,
    TendonTotals = 9,
    UniformThickness = 10,
    LineLoad = 11,
};

// What a stage computes, in a few words for a fault message: "soil bearing" for stage 3.
// Stage 0 stands for making the record ready before the first stage.
std::string AnalysisStageName(int stage);

// Runs the whole analysis of one foundation rectangle on `record` with the program's settings,
// writing every result into `results`. Results are not cleared first: what a branch does not
// compute keeps its earlier value. The record is read only, but for `EmCenter`, which an
// expansive soil run makes absolute.
//
// Throws EngineFault at the first arithmetic fault, naming its kind and stage; the results are
// then incomplete and must not be shown.
//
// A memo of equivalent depths (engine/equivalent_depth_memo.h) lets a run of many designs skip
// the bisections it has already made; the results are the same with or without it.
void RunDesignEngine(const EngineSettings& settings, DesignRecord& record, ResultsRecord& results,
                     EquivalentDepthMemo* memo = nullptr);
