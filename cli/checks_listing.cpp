#include "cli/checks_listing.h"

#include "cli/compliance_listing.h"
#include "cli/summary_table.h"
#include "compliance/check_names.h"
#include "compliance/verdict_text.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <ostream>
#include <string>

namespace {

constexpr int NumberWidth = 12;

bool Whole(const std::optional<CheckQuantity>& q) {
    return !q || q->value == std::floor(q->value);
}

// Decimals that show a value as the results screen does for its unit. A count has none; a ratio
// of depths, and its limit, three.
int DecimalsFor(const CheckQuantity& q, const DesignCheck& check) {
    const char* unit = q.unit == nullptr ? "" : q.unit;
    if (std::strcmp(unit, "ksi") == 0) {
        return 3;
    }
    if (std::strcmp(unit, "in") == 0 || std::strcmp(unit, "ft") == 0) {
        return 2;
    }
    if (std::strcmp(unit, "ft-k") == 0) {
        return 1;
    }
    if (*unit == '\0') {
        return Whole(check.demand) && Whole(check.limit) ? 0 : 3;
    }
    return 0; // psi, psf, in^4
}

std::string QuantityText(const std::optional<CheckQuantity>& q, const DesignCheck& check) {
    return q ? FixedNumber(q->value, DecimalsFor(*q, check)) : "-";
}

std::string StatusText(CheckStatus status) {
    switch (status) {
    case CheckStatus::Ok:
        return "OK";
    case CheckStatus::Ng:
        return "NG";
    case CheckStatus::NotCalculated:
        return "NOT CALCULATED";
    }
    return "";
}

std::string ItemText(const DesignCheck& check) {
    std::string text = check.item;
    if (check.direction != CheckDirection::None) {
        text += ", " + std::string(DirectionTitle(check.direction));
    }
    return text;
}

std::string Padded(const std::string& text, std::size_t width) {
    return text + std::string(width > text.size() ? width - text.size() : 0, ' ');
}

std::string RightAligned(const std::string& text, std::size_t width) {
    return std::string(width > text.size() ? width - text.size() : 0, ' ') + text;
}

bool Listed(const DesignCheck& check, bool failingOnly) {
    return !failingOnly || check.status != CheckStatus::Ok;
}

} // namespace

void PrintDesignChecks(std::span<const DesignCheck> checks, const DesignVerdict& verdict,
                       bool failingOnly, bool colour, std::ostream& out) {
    std::size_t itemWidth = std::strlen("Item");
    for (const DesignCheck& check : checks) {
        itemWidth = std::max(itemWidth, ItemText(check).size());
    }
    const auto columnsLine = [&](const std::string& item, const std::string& demand,
                                 const std::string& limit, const std::string& unit,
                                 const std::string& ratio, const std::string& status,
                                 const std::string& section) {
        std::string line = "  " + Padded(item, itemWidth) + RightAligned(demand, NumberWidth) +
                           RightAligned(limit, NumberWidth) + "  " + Padded(unit, 5) +
                           RightAligned(ratio, 7) + "  " + Padded(status, 6) + "  " + section;
        line.erase(line.find_last_not_of(' ') + 1);
        return line;
    };

    for (const Foundation foundation : {Foundation::Ribbed, Foundation::Uniform}) {
        if (foundation == Foundation::Uniform && !verdict.uniform) {
            continue;
        }
        const std::string title = FoundationTitle(foundation);
        out << '\n' << title << '\n' << std::string(title.size(), '-') << '\n';
        out << columnsLine("Item", "Demand", "Limit", "Unit", "Ratio", "Status", "PTI") << '\n';
        bool any = false;
        std::optional<CheckMode> mode;
        for (const DesignCheck& check : checks) {
            if (check.foundation != foundation || !Listed(check, failingOnly)) {
                continue;
            }
            if (mode != check.mode) {
                mode = check.mode;
                out << ModeTitle(check.mode) << '\n';
            }
            any = true;
            const std::optional<CheckQuantity>& unitSide =
                check.demand ? check.demand : check.limit;
            const char* unit = unitSide && unitSide->unit != nullptr ? unitSide->unit : "";
            const std::string line = columnsLine(ItemText(check), QuantityText(check.demand, check),
                                                 QuantityText(check.limit, check), unit,
                                                 check.ratio ? FixedNumber(*check.ratio, 2) : "-",
                                                 StatusText(check.status),
                                                 check.reference == nullptr ? "" : check.reference);
            const bool bad = check.status != CheckStatus::Ok;
            PrintStyled(line, bad, bad, colour, out);
            out << '\n';
        }
        if (!any) {
            out << "  Every check is within its limit.\n";
        }
    }

    out << "\nVerdict\n-------\n";
    const auto verdictLine = [&](Foundation foundation, const FoundationVerdict& v) {
        out << "  ";
        PrintStyled(VerdictSentence(foundation, v, checks, GoverningShown::Always), !v.pass,
                    !v.pass, colour, out);
        out << '\n';
    };
    verdictLine(Foundation::Ribbed, verdict.ribbed);
    if (verdict.uniform) {
        verdictLine(Foundation::Uniform, *verdict.uniform);
    }
}
