#include "engine/analysis_run.h"

#include "engine/analysis_spacing.h"
#include "engine/compressible_soil.h"
#include "engine/cracked_section.h"
#include "engine/equivalent_depth.h"
#include "engine/expansive_moments.h"
#include "engine/expansive_stiffness_shear.h"
#include "engine/line_load.h"
#include "engine/prestress.h"
#include "engine/section_properties.h"
#include "engine/soil_bearing.h"
#include "engine/tendon_tallies.h"
#include "engine/uniform_thickness.h"
#include "engine/vector_state.h"

namespace {

// Runs one stage and gives any arithmetic fault the stage's number.
template <typename Work> void runStage(AnalysisStage stage, Work&& work) {
    try {
        work();
    } catch (const ArithmeticFault& fault) {
        throw EngineFault(fault.kind, static_cast<int>(stage));
    }
}

} // namespace

std::string AnalysisStageName(int stage) {
    switch (stage) {
    case 0:
        return "tendon size";
    case 1:
        return "allowable stresses and section properties";
    case 2:
        return "equivalent beam depths";
    case 3:
        return "soil bearing";
    case 4:
        return "prestress";
    case 5:
        return "analysis beam spacing";
    case 6:
        return "expansive soil moments, stiffness and shear";
    case 7:
        return "cracked section capacity";
    case 8:
        return "compressible soil";
    case 9:
        return "tendon totals and spacing";
    case 10:
        return "uniform thickness foundation";
    case 11:
        return "line load";
    default:
        return "unknown stage";
    }
}

void RunDesignEngine(const EngineSettings& settings, DesignRecord& record, ResultsRecord& results,
                     EquivalentDepthMemo* memo) {
    ClearUpperVectorState();
    runStage(AnalysisStage::AllowablesAndSections,
             [&] { ComputeAllowablesAndSections(record, results); });
    runStage(AnalysisStage::EquivalentDepths, [&] {
        ComputeEquivalentDepths(record, results, memo);
        ComputeEquivalentSections(record, results);
    });
    runStage(AnalysisStage::SoilBearing, [&] { ComputeSoilBearing(settings, record, results); });
    runStage(AnalysisStage::Prestress, [&] { ComputePrestress(record, results); });
    runStage(AnalysisStage::AnalysisSpacing, [&] { ComputeAnalysisSpacing(record, results); });
    if (record.SoilType == 0) {
        runStage(AnalysisStage::ExpansiveSoil, [&] {
            ComputeExpansiveMoments(settings, record, results);
            ComputeExpansiveStiffnessAndShear(settings, record, results);
        });
    }
    runStage(AnalysisStage::CrackedSection, [&] { ComputeCrackedSection(record, results); });
    if (record.SoilType == 1) {
        runStage(AnalysisStage::CompressibleSoil,
                 [&] { ComputeCompressibleSoil(settings, record, results); });
    }
    runStage(AnalysisStage::TendonTotals, [&] { ComputeTendonTallies(record, results); });
    if (record.FlatSlab == 1) {
        runStage(AnalysisStage::UniformThickness,
                 [&] { ComputeUniformThickness(settings, record, results); });
    }
    if (record.LineLoadType == 1) {
        runStage(AnalysisStage::LineLoad, [&] { ComputeLineLoad(record, results); });
    }
}
