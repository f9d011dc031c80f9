#include "cli/sketch_command.h"

#include "cli/exit_status.h"
#include "cli/input_check.h"
#include "cli/project_loading.h"
#include "engine/analysis_run.h"
#include "engine/project_analysis.h"
#include "reports/plan_drawing.h"
#include "reports/qt/plan_pictures.h"
#include "storage/file_error.h"

#include <optional>
#include <ostream>

namespace {

const char* DirectionName(PlanDirection direction) {
    return direction == PlanDirection::Short ? "short" : "long";
}

nlohmann::ordered_json SlabTendonsJson(const PlanSlabTendons& tendons) {
    return {{"count", tendons.count}, {"spacing", tendons.spacing}};
}

// The format a drawing's name asks for, or nothing.
std::optional<PictureFormat> FormatOf(const std::filesystem::path& path) {
    std::string extension = path.extension().string();
    for (char& c : extension) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    if (extension == ".svg") {
        return PictureFormat::Svg;
    }
    if (extension == ".png") {
        return PictureFormat::Png;
    }
    if (extension == ".pdf") {
        return PictureFormat::Pdf;
    }
    return std::nullopt;
}

} // namespace

nlohmann::ordered_json PlanJson(int version, const FoundationPlan& plan) {
    nlohmann::ordered_json document;
    document["version"] = version;
    document["width"] = plan.width;
    document["length"] = plan.length;
    document["slabThick"] = plan.slabThick;
    nlohmann::ordered_json beams = nlohmann::ordered_json::array();
    for (const PlanBeam& beam : plan.beams) {
        beams.push_back({{"direction", DirectionName(beam.direction)},
                         {"type", beam.type},
                         {"from", beam.from},
                         {"to", beam.to},
                         {"width", beam.width},
                         {"depth", beam.depth},
                         {"tendons", beam.tendons},
                         {"cover", beam.cover}});
    }
    document["beams"] = std::move(beams);
    document["slabTendons"] = {{"short", SlabTendonsJson(plan.slabTendonsShort)},
                               {"long", SlabTendonsJson(plan.slabTendonsLong)}};
    nlohmann::ordered_json sections = nlohmann::ordered_json::array();
    for (const TypicalSection& section : plan.sections) {
        sections.push_back({{"direction", DirectionName(section.direction)},
                            {"type", section.type},
                            {"slabThick", section.slabThick},
                            {"width", section.width},
                            {"depth", section.depth},
                            {"tendons", section.tendons},
                            {"cover", section.cover},
                            {"slabTendonDepth", section.slabTendonDepth},
                            {"tendonDiameter", section.tendonDiameter}});
    }
    document["sections"] = std::move(sections);
    document["reason"] =
        plan.reason.empty() ? nlohmann::ordered_json(nullptr) : nlohmann::ordered_json(plan.reason);
    return document;
}

int RunSketchCommand(const SketchOptions& options, std::ostream& out, std::ostream& err) {
    std::optional<PictureFormat> format;
    if (!options.json) {
        format = FormatOf(options.output);
        if (!format) {
            err << "korvath3-cli sketch: the drawing's name must end in .svg, .png or .pdf ("
                << options.output.string() << ")\n";
            return ExitBadUsage;
        }
    }
    int failureStatus = ExitAnalysed;
    std::optional<LoadedProject> loaded = LoadCheckedProject(
        options.project, options.defaults, options.check, options.json, out, err, failureStatus);
    if (!loaded) {
        return failureStatus;
    }
    DesignRecord& record = loaded->record;
    ResultsRecord results;
    const AnalysisOutcome outcome = AnalyseProject(options.settings, record, results);
    FoundationPlan plan = PlanOf(record, results);
    int status = ExitAnalysed;
    if (!plan.reason.empty()) {
        err << "korvath3-cli: no plan of " << options.project.string() << " can be drawn. "
            << plan.reason << '\n';
        status = ExitInputError;
    } else if (outcome.faultKind) {
        // The slab tendons and the analysis beam spacing come from the analysis.
        FoundationPlan sizesOnly;
        sizesOnly.width = plan.width;
        sizesOnly.length = plan.length;
        sizesOnly.slabThick = plan.slabThick;
        plan = sizesOnly;
        plan.reason = std::string("The analysis ended in a fault: ") +
                      FaultKindName(*outcome.faultKind) + " in stage " +
                      std::to_string(outcome.faultStage) + " (" +
                      AnalysisStageName(outcome.faultStage) + ").";
        err << "korvath3-cli: " << plan.reason << " No plan is drawn.\n";
        status = ExitEngineFault;
    }
    if (options.json) {
        out << PlanJson(loaded->version, plan).dump(2) << '\n';
        return status;
    }
    if (status != ExitAnalysed) {
        return status;
    }
    try {
        WritePlanPicture(options.output, *format, plan, PlanSheetTitle(record));
    } catch (const FileError& error) {
        err << "korvath3-cli: Error writing the plan - " << error.number() << ": "
            << error.description() << " (" << options.output.string() << ")\n";
        return ExitFileError;
    }
    out << "Wrote the plan of " << options.project.string() << " to " << options.output.string()
        << '\n';
    return ExitAnalysed;
}
