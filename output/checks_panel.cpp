#include "output/checks_panel.h"

#include "compliance/check_names.h"
#include "compliance/verdict_text.h"
#include "output/check_pages.h"
#include "output/check_text.h"

#include <algorithm>
#include <optional>

void LoadChecksPanel(ChecksPanel& panel, const DesignRecord& record, const ResultsRecord& results) {
    std::vector<DesignCheck> checks = DesignChecks(record, results);
    panel.verdict = JudgeDesign(record, checks);
    panel.checks = std::move(checks);
    panel.record = record;
    panel.loaded = true;
}

void SortChecks(ChecksPanel& panel, CheckColumn column) {
    if (panel.sortColumn == column) {
        panel.ascending = !panel.ascending;
    } else {
        panel.sortColumn = column;
        panel.ascending = true;
    }
}

namespace {

std::optional<double> NumberOf(const DesignCheck& check, CheckColumn column) {
    const auto value = [](const std::optional<CheckQuantity>& q) {
        return q ? std::optional<double>(q->value) : std::nullopt;
    };
    switch (column) {
    case CheckColumn::Demand:
        return value(check.demand);
    case CheckColumn::Limit:
        return value(check.limit);
    case CheckColumn::Ratio:
        return check.ratio;
    case CheckColumn::Status:
        // Not calculated and NG before OK.
        return check.status == CheckStatus::Ok ? 1.0 : 0.0;
    default:
        return std::nullopt;
    }
}

bool Numeric(CheckColumn column) {
    return column == CheckColumn::Demand || column == CheckColumn::Limit ||
           column == CheckColumn::Ratio || column == CheckColumn::Status;
}

std::array<std::string, CheckColumns> Cells(const DesignCheck& check) {
    return {check.foundation == Foundation::Ribbed ? "Ribbed" : "Uniform",
            ModeTitle(check.mode),
            CheckTitle(check),
            CheckQuantityText(check.demand, check),
            CheckQuantityText(check.limit, check),
            CheckUnitText(check),
            CheckRatioText(check),
            CheckStatusText(check.status),
            check.reference == nullptr ? "" : check.reference};
}

} // namespace

std::vector<ChecksPanelRow> ChecksPanelRows(const ChecksPanel& panel) {
    std::vector<ChecksPanelRow> rows;
    for (std::size_t i = 0; i < panel.checks.size(); ++i) {
        const DesignCheck& check = panel.checks[i];
        const bool failing = check.status != CheckStatus::Ok;
        if (!panel.failingOnly || failing) {
            rows.push_back({i, Cells(check), failing});
        }
    }
    if (!panel.sortColumn) {
        return rows;
    }
    const CheckColumn column = *panel.sortColumn;
    const bool ascending = panel.ascending;
    const auto before = [&](const ChecksPanelRow& a, const ChecksPanelRow& b) {
        if (Numeric(column)) {
            const std::optional<double> x = NumberOf(panel.checks[a.check], column);
            const std::optional<double> y = NumberOf(panel.checks[b.check], column);
            if (!x || !y) {
                return x.has_value() && !y.has_value(); // rows without a number last
            }
            return ascending ? *x < *y : *y < *x;
        }
        const std::string& x = a.cells[static_cast<std::size_t>(column)];
        const std::string& y = b.cells[static_cast<std::size_t>(column)];
        return ascending ? x < y : y < x;
    };
    std::stable_sort(rows.begin(), rows.end(), before);
    return rows;
}

void OpenCheckPage(const ChecksPanel& panel, std::size_t check, ResultsScreen& screen) {
    ShowCheckPage(screen, panel.record, panel.checks.at(check));
}

std::vector<VerdictStripLine> VerdictStripLines(const ChecksPanel& panel) {
    std::vector<VerdictStripLine> lines;
    if (!panel.loaded) {
        return lines;
    }
    const auto line = [&](Foundation foundation, const FoundationVerdict& verdict) {
        lines.push_back(
            {foundation,
             VerdictSentence(foundation, verdict, panel.checks, GoverningShown::OnFailure),
             verdict.pass});
    };
    line(Foundation::Ribbed, panel.verdict.ribbed);
    if (panel.verdict.uniform) {
        line(Foundation::Uniform, *panel.verdict.uniform);
    }
    return lines;
}
