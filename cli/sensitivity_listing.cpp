#include "cli/sensitivity_listing.h"

#include "cli/results_summary.h"
#include "cli/summary_table.h"
#include "compliance/check_names.h"
#include "search/sensitivity_chart.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace {

std::string ratioText(const std::optional<double>& ratio) {
    return ratio ? FixedNumber(*ratio, 2) : "-";
}

// A cell of the table: the max ratio with "*" when the point does not pass; "R" refused by a
// value check, "F" ended in a fault.
std::string cellText(const SensitivityPoint& point) {
    if (point.refused) {
        return "R ";
    }
    if (point.fault) {
        return "F ";
    }
    return ratioText(point.largestRatio()) + (point.passes() ? " " : "*");
}

std::string faultText(const SensitivityFault& fault) {
    std::string text = FaultKindName(fault.kind);
    return fault.stage ? text + " in stage " + std::to_string(*fault.stage)
                       : text + " in the beam depth ratio of the design exceptions";
}

std::string standingText(const char* foundation, const FoundationStanding& standing) {
    std::string text = std::string(foundation) + (standing.pass ? " passes" : " fails");
    text += ", max ratio " + ratioText(standing.maxRatio);
    if (standing.governing) {
        text += " (" + CheckTitle(*standing.governing) + ")";
    }
    return text;
}

void printColumns(const std::vector<std::vector<std::string>>& rows, std::ostream& out) {
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
            line += (column == 0 ? "  " + row[column] + padding : "  " + padding + row[column]);
        }
        while (!line.empty() && line.back() == ' ') {
            line.pop_back();
        }
        out << line << '\n';
    }
}

void printDesign(const SensitivityRequest& request, const SensitivityOutcome& outcome,
                 std::ostream& out) {
    std::string values;
    for (const VariedField& varied : request.grid.fields) {
        values += (values.empty() ? "" : ", ") + std::string(varied.field->name) + " " +
                  FieldValueText(request.project.*varied.field->real);
    }
    out << "\nDesign (" << values << "): ";
    const SensitivityPoint& design = outcome.design;
    if (design.refused) {
        out << "refused: " << design.refused->message << '\n';
    } else if (design.fault) {
        out << "the analysis ended in a fault: " << faultText(*design.fault) << '\n';
    } else {
        out << standingText("ribbed", *design.ribbed) << '\n';
        if (design.uniform) {
            out << std::string(values.size() + 11, ' ') << standingText("uniform", *design.uniform)
                << '\n';
        }
    }
}

void printOneField(const SensitivityRequest& request, const SensitivityOutcome& outcome,
                   std::ostream& out) {
    const VariedField& varied = request.grid.fields[0];
    const bool uniform = outcome.design.uniform.has_value();
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> heading = {std::string(varied.field->name), "Ribbed", "Governing"};
    if (uniform) {
        heading.insert(heading.end(), {"Uniform", "Governing"});
    }
    rows.push_back(heading);
    for (std::size_t i = 0; i < outcome.points.size(); ++i) {
        const SensitivityPoint& point = outcome.points[i];
        std::vector<std::string> row = {
            FieldValueText(varied.valueAt(static_cast<std::int64_t>(i)))};
        if (!point.judged()) {
            row.push_back(point.refused ? "R" : "F");
            row.push_back(point.refused ? point.refused->message : faultText(*point.fault));
            rows.push_back(row);
            continue;
        }
        const auto add = [&row](const FoundationStanding& standing) {
            row.push_back(ratioText(standing.maxRatio) + (standing.pass ? " " : "*"));
            row.push_back(standing.governing ? CheckTitle(*standing.governing) : "");
        };
        add(*point.ribbed);
        if (point.uniform) {
            add(*point.uniform);
        }
        rows.push_back(row);
    }
    // The governing check reads better to the left.
    std::vector<std::size_t> widths(rows.front().size(), 0);
    for (const auto& row : rows) {
        for (std::size_t c = 0; c < row.size(); ++c) {
            widths[c] = std::max(widths[c], row[c].size());
        }
    }
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t c = 0; c < row.size(); ++c) {
            const std::string padding(widths[c] - row[c].size(), ' ');
            const bool words = c % 2 == 0 && c > 0;
            line += "  " + (words ? row[c] + padding : padding + row[c]);
        }
        while (!line.empty() && line.back() == ' ') {
            line.pop_back();
        }
        out << line << '\n';
    }
}

void printTwoFields(const SensitivityRequest& request, const SensitivityOutcome& outcome,
                    std::ostream& out) {
    const VariedField& rowsField = request.grid.fields[0];
    const VariedField& columnsField = request.grid.fields[1];
    std::vector<std::vector<std::string>> rows;
    std::vector<std::string> heading = {std::string(rowsField.field->name) + " \\ " +
                                        std::string(columnsField.field->name)};
    for (std::int64_t c = 0; c < columnsField.count; ++c) {
        heading.push_back(FieldValueText(columnsField.valueAt(c)) + " ");
    }
    rows.push_back(heading);
    for (std::int64_t r = 0; r < rowsField.count; ++r) {
        std::vector<std::string> row = {FieldValueText(rowsField.valueAt(r))};
        for (std::int64_t c = 0; c < columnsField.count; ++c) {
            row.push_back(
                cellText(outcome.points[static_cast<std::size_t>(r * columnsField.count + c)]));
        }
        rows.push_back(row);
    }
    printColumns(rows, out);
}

void printRange(const PassingRange& range, std::ostream& out) {
    out << "  " << range.field->name << " (design " << FieldValueText(range.design) << "): ";
    if (!range.designPasses) {
        out << "the design does not pass at its own values\n";
        return;
    }
    out << "passes from " << FieldValueText(range.from);
    if (range.openBelow) {
        out << " (end of the grid)";
    }
    out << " to " << FieldValueText(range.to);
    if (range.openAbove) {
        out << " (end of the grid)";
    }
    std::vector<std::string> fails;
    if (range.failsBelow) {
        fails.push_back(FieldValueText(*range.failsBelow));
    }
    if (range.failsAbove) {
        fails.push_back(FieldValueText(*range.failsAbove));
    }
    if (!fails.empty()) {
        out << "; does not pass at " << fails[0];
        if (fails.size() == 2) {
            out << " and " << fails[1];
        }
    }
    out << '\n';
}

} // namespace

void PrintSensitivityListing(const std::filesystem::path& project, int version,
                             const SensitivityRequest& request, const SensitivityOutcome& outcome,
                             std::ostream& out) {
    PrintProjectHeading("soil sensitivity", project, version, request.settings, request.project,
                        out);
    printDesign(request, outcome, out);

    const bool uniform = outcome.design.uniform.has_value();
    out << "\nMax ratio of the checks at each point";
    if (request.grid.fields.size() == 2) {
        out << (uniform ? " (the larger of the ribbed and uniform thickness foundations)" : "");
    }
    out << "; * does not pass, R refused by a value check, F ended in a fault\n\n";
    if (request.grid.fields.size() == 1) {
        printOneField(request, outcome, out);
    } else {
        printTwoFields(request, outcome, out);
    }

    std::map<std::string, std::int64_t> refusals;
    std::int64_t passing = 0;
    std::int64_t failing = 0;
    std::int64_t faulted = 0;
    for (const SensitivityPoint& point : outcome.points) {
        if (point.refused) {
            ++refusals[point.refused->message];
        } else if (point.fault) {
            ++faulted;
        } else if (point.passes()) {
            ++passing;
        } else {
            ++failing;
        }
    }
    out << "\n"
        << outcome.points.size() << " points: " << passing << " pass, " << failing
        << " do not pass, " << faulted << " ended in a fault";
    for (const auto& [message, count] : refusals) {
        out << ", " << count << " refused (" << message << ")";
    }
    out << "\n\nPassing range of each field with the other at its design value:\n";
    for (const PassingRange& range : outcome.passing) {
        printRange(range, out);
    }
}
