#include "lifecycle/analysis_reset.h"

#include "common/run_time_error.h"
#include "input/input_checks.h"
#include "input/input_record.h"
#include "output/results_run.h"
#include "output/results_tabs.h"
#include "storage/design_file.h"

#include <optional>
#include <string>

namespace {

AnalysisResult EndWithFault(ShellServices& services, const std::string& where) {
    services.dialogs.ShowMessage({MessageIcon::Critical, AnalysisFaultTitle,
                                  "The analysis ended in an arithmetic fault: " + where +
                                      ".\nKorvath must close now; changes not saved are lost."});
    return AnalysisResult::EndProgram;
}

} // namespace

AnalysisResult AnalysisReset(Program& program, ShellServices& services) {
    InputContext context = InputContextOf(program, services);
    if (CheckBlankFields(program.input, context, AllSections) != 0) {
        return AnalysisResult::Stopped;
    }
    try {
        ReadInputRecord(program.input.form, program.record, AllSections);
    } catch (const UnreadableField& error) {
        ShowUnreadableField(program.input, context, error);
        return AnalysisResult::Stopped;
    } catch (const RunTimeError& error) {
        services.dialogs.ShowMessage(
            {MessageIcon::Exclamation, InputErrorTitle, error.description()});
        return AnalysisResult::Stopped;
    }
    if (!CheckRecordValues(program.input, context)) {
        return AnalysisResult::Stopped;
    }
    program.input.visible = false;
    program.sensitivityRanges.clear();

    const EngineSettings settings = program.settings.options.engineSettings();
    const ResultsRun run =
        AnalyseAndFillResults(settings, program.record, program.results, program.output);
    if (run.fault) {
        return EndWithFault(services, RunFaultText(*run.fault));
    }
    ArrangeResultsScreen(program.output, program.record, program.mainInnerWidth);

    ProjectState& project = program.project;
    project.outputEnabled = true;
    project.printEnabled = true;
    program.output.visible = true;
    return AnalysisResult::ResultsShown;
}
