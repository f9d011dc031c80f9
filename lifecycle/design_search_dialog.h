#pragma once

#include "engine/design_record.h"
#include "lifecycle/program.h"
#include "search/design_search.h"
#include "shell/shell_services.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// The "Design Search" dialog as a model: which fields of the input screen the engineer varies
// and over what ranges, the objective, the search's outcome, and putting a design it found back
// into the input screen. The window only draws it and runs the search it plans.

// One field the dialog offers to vary, with its caption built from the input screen's labels.
struct SearchFieldRow {
    std::string field;   // the design record's name: "DS1"
    std::string control; // its box on the input screen: "txtDS1"
    std::string page;    // the caption of its input page: "Beam Properties"
    std::string caption; // "Short Direction Type 1 Depth (IN)"
    double current = 0.0;
    bool chosen = false;
    // As typed; filled around the current value when the dialog opens.
    std::string from;
    std::string to;
    std::string step;
};

// What the current design (the input as the dialog found it) weighs, for the chart's mark.
struct CurrentDesign {
    double concreteVolume = 0.0;
    double tendonLength = 0.0;
    bool compliant = false;
};

// A search that has run: what was asked and what it found.
struct FinishedSearch {
    SearchRequest request;
    SearchOutcome outcome;
    bool priced = false;
};

struct DesignSearchDialog {
    DesignRecord project; // the input, read from the screen when the dialog opened
    EngineSettings settings;
    std::vector<SearchFieldRow> rows;
    SearchObjective objective = SearchObjective::Concrete;
    std::string concreteCost;             // per cubic yard, as typed; empty when not priced
    std::string tendonCost;               // per foot
    std::optional<CurrentDesign> current; // nothing when the analysis of the input faults
    std::optional<FinishedSearch> last;
    // Set once the engineer has agreed to put a design into the input screen; not asked again
    // while the dialog is open.
    bool useAgreed = false;
    // For each use, the texts the changed boxes held before it, the last use last.
    std::vector<std::vector<std::pair<std::string, std::string>>> undo;
};

// How many of the best designs the dialog lists.
inline constexpr std::size_t DialogBestDesigns = 20;

inline constexpr const char* DesignSearchTitle = "Design Search";

// The input screen's values as a design record, when the screen is shown and every field passes
// the blank and value checks that the Analysis command runs; nothing otherwise. Nothing is shown
// and the program's record is not touched.
std::optional<DesignRecord> SearchableInput(const Program& program);

// Whether "Design Search..." can be chosen: the input screen passes its checks.
bool DesignSearchEnabled(const Program& program);

// The dialog as it opens on the input, which must be searchable: the fields that can be varied
// in the present options (beam counts, depths, widths and tendons of the four groups, the slab
// thickness, the slab reinforcement of the chosen kind, the concrete strength), each with a
// range of a few steps either side of its value, none chosen.
DesignSearchDialog OpenDesignSearchDialog(const Program& program, const DesignRecord& input);

// The search the dialog's entries ask for, or why there can be none.
struct SearchPlan {
    std::optional<SearchRequest> request;
    std::int64_t candidates = 0;
    std::string problem; // empty when there is a request
};
SearchPlan PlanSearch(const DesignSearchDialog& dialog);

// The line under the ranges: the number of candidates, or the problem.
std::string CandidateCountText(const SearchPlan& plan);

// The line of a running search: how many of how many are tried, and how fast.
std::string SearchProgressText(std::int64_t tried, std::int64_t total, double seconds);

// The values of the varied fields in candidate `index` of the last search, in the order of its
// ranges, as numbers.
std::vector<double> CandidateValues(const FinishedSearch& search, std::int64_t index);

// Puts design `rank` (0 the best) of the last search into the input screen as if its values were
// typed into their boxes: the project is marked changed and the results wait for the next
// analysis. The first time the dialog asks; a No or a Cancel leaves everything as it was. Gives
// whether the design was put in.
bool UseDesign(DesignSearchDialog& dialog, Program& program, ShellServices& services,
               std::size_t rank);

// Puts back the texts the boxes held before the last use, as if typed.
void UndoUse(DesignSearchDialog& dialog, Program& program, ShellServices& services);
