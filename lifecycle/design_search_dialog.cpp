#include "lifecycle/design_search_dialog.h"

#include "common/number_pattern.h"
#include "common/number_text.h"
#include "common/run_time_error.h"
#include "compliance/compliance_tally.h"
#include "engine/project_analysis.h"
#include "input/blank_fields.h"
#include "input/input_events.h"
#include "input/input_form.h"
#include "input/input_record.h"
#include "input/record_values.h"
#include "search/search_request_error.h"
#include "shell/load_settings.h"
#include "storage/design_file.h"

#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>

namespace {

constexpr int MaterialPage = 2;
constexpr int SlabPage = 3;
constexpr int BeamPage = 4;

// A field the dialog offers: where its caption comes from on the input screen, and the range it
// opens with, `stepsEachWay` steps of `step` either side of the value, not below `lowest`.
struct VariableField {
    std::string field;
    int page = 0;
    std::vector<std::string> labels; // controls whose captions, joined, name the field
    double step = 1.0;
    double lowest = 0.0;
    int stepsEachWay = 1;
    int slabRefType = -1; // the slab reinforcement it belongs to; -1 for any
};

std::vector<VariableField> VariableFields() {
    std::vector<VariableField> fields = {
        {"Fpc",
         MaterialPage,
         {ArrayName("lblHeading", 2), ArrayName("lblMaterialProp", 1)},
         500,
         2500,
         1},
        {"SlabThick", SlabPage, {ArrayName("lblSlabProp", 3)}, 0.5, 0.5, 2},
    };
    // The three kinds of slab reinforcement, each with its row of the slab page.
    const std::array<std::string, 3> kinds = {"NumSlabTen", "StrLvl", "Force"};
    const std::array<double, 3> steps = {2, 25, 0.05};
    for (int kind = 0; kind < 3; ++kind) {
        for (int direction = 0; direction < 2; ++direction) {
            fields.push_back(
                {kinds[kind] + (direction == 0 ? "Short" : "Long"),
                 SlabPage,
                 {ArrayName("lblHeading", 6 + direction), ArrayName("optSlabRefType", kind)},
                 steps[kind],
                 steps[kind],
                 2,
                 kind});
        }
    }
    // Quantity, depth, width and tendons of each beam group, as the beam page's columns head
    // them; cover is left as it is.
    const std::array<std::string, 4> groups = {"S1", "S2", "L1", "L2"};
    const std::string letters = "QDWT";
    const std::array<double, 4> beamSteps = {1, 2, 2, 1};
    const std::array<double, 4> beamLowest = {0, 2, 2, 0};
    const std::array<int, 4> beamStepsEachWay = {1, 2, 1, 1};
    for (int group = 0; group < 4; ++group) {
        for (int row = 0; row < 4; ++row) {
            fields.push_back({std::string(1, letters[row]) + groups[group],
                              BeamPage,
                              {ArrayName("lblHeading", group < 2 ? 10 : 11),
                               ArrayName("lblBeamProp", 5 + group), ArrayName("lblBeamProp", row)},
                              beamSteps[row],
                              beamLowest[row],
                              beamStepsEachWay[row]});
        }
    }
    return fields;
}

// A caption without the colons and blanks that end it on the screen.
std::string Trimmed(std::string text) {
    while (!text.empty() && (text.back() == ' ' || text.back() == ':')) {
        text.pop_back();
    }
    while (!text.empty() && text.front() == ' ') {
        text.erase(text.begin());
    }
    return text;
}

// A number for a range box: at most six decimals, no trailing zeros, the zero before the point.
std::string RangeText(double value) {
    const double rounded = std::round(value * 1e6) / 1e6;
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.6f", rounded == 0.0 ? 0.0 : rounded);
    std::string text = buffer;
    while (text.back() == '0') {
        text.pop_back();
    }
    if (text.back() == '.') {
        text.pop_back();
    }
    return text;
}

double CurrentValue(const DesignRecord& record, const DesignField& field) {
    return field.kind == FieldKind::Int16 ? static_cast<double>(record.*field.int16)
                                          : record.*field.real;
}

std::optional<CurrentDesign> WeighCurrentDesign(const EngineSettings& settings,
                                                DesignRecord record) {
    ResultsRecord results;
    if (AnalyseProject(settings, record, results).faultKind) {
        return std::nullopt;
    }
    CurrentDesign current{results.ConcreteVolume, results.TendonLength, false};
    try {
        current.compliant = TallyCompliance(record, results).clean();
    } catch (const ArithmeticFault&) {
        current.compliant = false;
    }
    return current;
}

// A price as typed: empty is none; otherwise a number from 0 to the largest price.
std::optional<double> ReadPrice(const std::string& text, const std::string& name,
                                std::string& problem) {
    if (text.empty()) {
        return std::nullopt;
    }
    double value = 0.0;
    if (ParseGeneralNumber(text, value) != NumberParse::Ok || !(value >= 0 && value <= 1e9)) {
        problem = name + " must be a number from 0 to 1,000,000,000";
        return std::nullopt;
    }
    return value;
}

std::string Trim(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) {
        return "";
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void TypeIntoInput(Program& program, ShellServices& services,
                   const std::vector<std::pair<std::string, std::string>>& texts) {
    InputContext context = InputContextOf(program, services);
    for (const auto& [control, text] : texts) {
        ChangeText(program.input, context, control, text);
    }
}

} // namespace

std::optional<DesignRecord> SearchableInput(const Program& program) {
    if (!program.input.visible) {
        return std::nullopt;
    }
    if (FindBlankField(program.input.form, program.record, AllSections, false)) {
        return std::nullopt;
    }
    DesignRecord record = program.record;
    try {
        ReadInputRecord(program.input.form, record, AllSections);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
    DesignRecord ready = record;
    if (FindReadyRecordValueFault(ready)) {
        return std::nullopt;
    }
    return record;
}

bool DesignSearchEnabled(const Program& program) {
    return SearchableInput(program).has_value();
}

DesignSearchDialog OpenDesignSearchDialog(const Program& program, const DesignRecord& input) {
    DesignSearchDialog dialog;
    dialog.project = input;
    dialog.settings = program.settings.options.engineSettings();
    const FormModel& form = program.input.form;
    for (const VariableField& variable : VariableFields()) {
        if (variable.slabRefType >= 0 && variable.slabRefType != input.SlabRefType) {
            continue;
        }
        const DesignField* field = FindDesignField(variable.field);
        SearchFieldRow row;
        row.field = variable.field;
        row.control = "txt" + variable.field;
        row.page = PageCaption(variable.page);
        for (const std::string& label : variable.labels) {
            row.caption += (row.caption.empty() ? "" : " ") + Trimmed(form[label].caption);
        }
        row.current = CurrentValue(input, *field);
        // Whole steps down as far as the lowest sensible value allows, so that the current
        // value is one of the range's.
        int down = variable.stepsEachWay;
        while (down > 0 && row.current - down * variable.step < variable.lowest - 1e-9) {
            --down;
        }
        row.from = RangeText(row.current - down * variable.step);
        row.to = RangeText(row.current + variable.stepsEachWay * variable.step);
        row.step = RangeText(variable.step);
        dialog.rows.push_back(std::move(row));
    }
    dialog.current = WeighCurrentDesign(dialog.settings, input);
    return dialog;
}

SearchPlan PlanSearch(const DesignSearchDialog& dialog) {
    SearchPlan plan;
    std::vector<std::string> ranges;
    for (const SearchFieldRow& row : dialog.rows) {
        if (!row.chosen) {
            continue;
        }
        const std::string from = Trim(row.from), to = Trim(row.to), step = Trim(row.step);
        if (from.empty() || to.empty() || step.empty()) {
            plan.problem = "Give From, To and Step of " + row.caption;
            return plan;
        }
        ranges.push_back(row.field + "=" + from + ":" + to + ":" + step);
    }
    if (ranges.empty()) {
        plan.problem = "Choose at least one field to vary";
        return plan;
    }
    SearchRequest request;
    try {
        request.grid = ParseCandidateGrid(ranges);
    } catch (const SearchRequestError& error) {
        plan.problem = error.what();
        plan.problem.front() = static_cast<char>(std::toupper(plan.problem.front()));
        return plan;
    }
    const std::optional<double> concrete =
        ReadPrice(Trim(dialog.concreteCost), "The concrete cost", plan.problem);
    const std::optional<double> tendon =
        ReadPrice(Trim(dialog.tendonCost), "The tendon cost", plan.problem);
    if (!plan.problem.empty()) {
        return plan;
    }
    if (dialog.objective == SearchObjective::Cost && !concrete && !tendon) {
        plan.problem = "The least cost needs the concrete cost or the tendon cost";
        return plan;
    }
    request.project = dialog.project;
    request.settings = dialog.settings;
    request.objective = dialog.objective;
    request.prices = {concrete.value_or(0), tendon.value_or(0)};
    request.best = DialogBestDesigns;
    plan.candidates = request.grid.count();
    plan.request = std::move(request);
    return plan;
}

std::string CandidateCountText(const SearchPlan& plan) {
    if (!plan.request) {
        return plan.problem;
    }
    return FormatNumber(static_cast<double>(plan.candidates), "#,##0") +
           (plan.candidates == 1 ? " candidate" : " candidates");
}

std::string SearchProgressText(std::int64_t tried, std::int64_t total, double seconds) {
    std::string text = FormatNumber(static_cast<double>(tried), "#,##0") + " of " +
                       FormatNumber(static_cast<double>(total), "#,##0") + " candidates tried";
    if (seconds > 0 && tried > 0) {
        text += ", " + FormatNumber(static_cast<double>(tried) / seconds, "#,##0") + " a second";
    }
    return text;
}

std::vector<double> CandidateValues(const FinishedSearch& search, std::int64_t index) {
    const CandidateGrid& grid = search.request.grid;
    const std::vector<std::int64_t> places = grid.places(index);
    std::vector<double> values;
    for (std::size_t i = 0; i < grid.fields.size(); ++i) {
        values.push_back(grid.fields[i].valueAt(places[i]));
    }
    return values;
}

bool UseDesign(DesignSearchDialog& dialog, Program& program, ShellServices& services,
               std::size_t rank) {
    if (!dialog.last || rank >= dialog.last->outcome.best.size()) {
        return false;
    }
    const SearchRequest& request = dialog.last->request;
    const std::int64_t index = dialog.last->outcome.best[rank].index;
    const DesignRecord design = CandidateProject(request, index);
    std::vector<std::pair<std::string, std::string>> typed;
    std::vector<std::pair<std::string, std::string>> before;
    std::string listing;
    for (const VariedField& varied : request.grid.fields) {
        const std::string control = "txt" + std::string(varied.field->name);
        const std::string text = FieldStoreText(design, *varied.field);
        typed.emplace_back(control, text);
        before.emplace_back(control, program.input.form[control].text);
        listing += "\n" + std::string(varied.field->name) + ": " +
                   Trim(program.input.form[control].text) + " to " + Trim(text);
    }
    if (!dialog.useAgreed) {
        const Answer answer = services.dialogs.AskYesNoCancel(
            {MessageIcon::Question, DesignSearchTitle,
             "Put design " + std::to_string(rank + 1) +
                 " into the input screen? The results will wait for a new analysis.\n" + listing});
        if (answer != Answer::Yes) {
            return false;
        }
        dialog.useAgreed = true;
    }
    TypeIntoInput(program, services, typed);
    dialog.undo.push_back(std::move(before));
    return true;
}

void UndoUse(DesignSearchDialog& dialog, Program& program, ShellServices& services) {
    if (dialog.undo.empty()) {
        return;
    }
    TypeIntoInput(program, services, dialog.undo.back());
    dialog.undo.pop_back();
}
