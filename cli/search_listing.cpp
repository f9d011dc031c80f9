#include "cli/search_listing.h"

#include "cli/summary_table.h"
#include "common/number_text.h"
#include "compliance/check_names.h"

#include <algorithm>
#include <ostream>

namespace {

// How many reasons of each kind the listing names.
constexpr std::size_t ListedReasons = 5;

std::string objectiveWords(SearchObjective objective) {
    switch (objective) {
    case SearchObjective::Concrete:
        return "least concrete volume";
    case SearchObjective::Tendons:
        return "least tendon length";
    case SearchObjective::Cost:
        return "least cost";
    }
    return "";
}

std::string count(std::int64_t value) {
    return FixedNumber(static_cast<double>(value), 0);
}

enum class FirstColumn { Right, Left };

// Rows of cells, each column aligned to its widest cell, two blanks apart: numbers to the right,
// and the first column to the left when it holds labels.
void printColumns(const std::vector<std::vector<std::string>>& rows, std::ostream& out,
                  FirstColumn first = FirstColumn::Right) {
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], row[column].size());
        }
    }
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            const std::string padding(widths[column] - row[column].size(), ' ');
            if (column == 0 && first == FirstColumn::Left) {
                line += "  " + row[column] + padding;
            } else {
                line += "  " + padding + row[column];
            }
        }
        out << line << '\n';
    }
}

std::vector<std::string> headings(const SearchReportInput& report, bool ranked) {
    std::vector<std::string> cells;
    if (ranked) {
        cells.push_back("Rank");
    }
    for (const VariedField& field : report.request.grid.fields) {
        cells.emplace_back(field.field->name);
    }
    cells.push_back("Concrete yd3");
    cells.push_back("Tendon ft");
    if (report.priced) {
        cells.push_back("Cost");
    }
    cells.push_back("Margin");
    return cells;
}

std::vector<std::string> designRow(const SearchReportInput& report, const CandidateScore& score,
                                   std::optional<std::size_t> rank) {
    std::vector<std::string> cells;
    if (rank) {
        cells.push_back(std::to_string(*rank));
    }
    const CandidateGrid& grid = report.request.grid;
    const std::vector<std::int64_t> places = grid.places(score.index);
    for (std::size_t i = 0; i < grid.fields.size(); ++i) {
        cells.push_back(VariedValueText(grid.fields[i], places[i]));
    }
    cells.push_back(FixedNumber(score.concreteVolume, 2));
    cells.push_back(FixedNumber(score.tendonLength, 1));
    if (report.priced) {
        cells.push_back(FixedNumber(score.cost, 2));
    }
    cells.push_back(score.margin ? FixedNumber(*score.margin, 3) : "-");
    return cells;
}

// The reasons met most often, under the counts, each with how many candidates it stopped: what
// to change first when a search finds little. `what` names the reasons in the heading.
void printReasons(const std::string& heading, const std::string& what,
                  const std::vector<std::pair<std::int64_t, std::string>>& reasons,
                  std::ostream& out) {
    if (reasons.empty()) {
        return;
    }
    const std::size_t shown = std::min(reasons.size(), ListedReasons);
    out << "\n" << heading;
    if (shown < reasons.size()) {
        out << " (" << shown << " of " << reasons.size() << " " << what << ")";
    }
    out << ":\n";
    // The counts to the right, the reasons after them to the left.
    std::size_t width = 0;
    for (std::size_t i = 0; i < shown; ++i) {
        width = std::max(width, count(reasons[i].first).size());
    }
    for (std::size_t i = 0; i < shown; ++i) {
        const std::string number = count(reasons[i].first);
        out << "  " << std::string(width - number.size(), ' ') << number << "  "
            << reasons[i].second << '\n';
    }
}

void printRefusals(const std::vector<RefusalCount>& refusals, std::ostream& out) {
    std::vector<std::pair<std::int64_t, std::string>> reasons;
    for (const RefusalCount& refusal : refusals) {
        reasons.emplace_back(refusal.count, refusal.message);
    }
    printReasons("Refused most often by", "messages", reasons, out);
}

void printFailures(const std::vector<FailureCount>& failures, std::ostream& out) {
    std::vector<std::pair<std::int64_t, std::string>> reasons;
    for (const FailureCount& failure : failures) {
        reasons.emplace_back(failure.count, FailedCheckText(failure));
    }
    printReasons("Checks failed most often", "checks", reasons, out);
}

} // namespace

std::string VariedValueText(const VariedField& field, std::int64_t place) {
    // The file's text of the value, with the zero before a decimal point that a table reads
    // better with: 0.25, not .25.
    std::string text = GeneralNumberText(field.valueAt(place));
    if (text.starts_with('.')) {
        text.insert(0, "0");
    } else if (text.starts_with("-.")) {
        text.insert(1, "0");
    }
    return text;
}

void PrintSearchListing(const std::filesystem::path& project, const SearchReportInput& report,
                        std::ostream& out) {
    const SearchOutcome& outcome = report.outcome;
    std::string ranges;
    for (const std::string& range : report.ranges) {
        ranges += (ranges.empty() ? "" : ", ") + range;
    }
    out << "Design search of " << project.string() << "\n"
        << count(report.request.grid.count()) << " candidates (" << ranges << "), "
        << objectiveWords(report.request.objective) << " first\n";
    if (outcome.interrupted) {
        out << "Interrupted: the best of the candidates tried so far\n";
    }
    out << '\n';
    printColumns({{"Candidates tried", count(outcome.tried)},
                  {"  refused by the value checks", count(outcome.refused)},
                  {"  ended in a fault", count(outcome.faulted)},
                  {"  out of compliance", count(outcome.outOfCompliance)},
                  {"  compliant", count(outcome.compliant)}},
                 out, FirstColumn::Left);
    printRefusals(outcome.refusals, out);
    printFailures(outcome.failures, out);
    if (outcome.best.empty()) {
        out << "\nNo candidate is within every limit without a PTI exception.\n";
        return;
    }

    out << "\nThe best " << outcome.best.size() << ", by "
        << objectiveWords(report.request.objective) << ":\n";
    std::vector<std::vector<std::string>> rows = {headings(report, true)};
    for (std::size_t rank = 0; rank < outcome.best.size(); ++rank) {
        rows.push_back(designRow(report, outcome.best[rank], rank + 1));
    }
    printColumns(rows, out);

    out << "\nPareto front of concrete volume against tendon length, " << outcome.pareto.size()
        << (outcome.pareto.size() == 1 ? " design" : " designs") << ":\n";
    rows = {headings(report, false)};
    for (const CandidateScore& score : outcome.pareto) {
        rows.push_back(designRow(report, score, std::nullopt));
    }
    printColumns(rows, out);
}
