#include "cli/checks_listing.h"

#include "cli/compliance_listing.h"
#include "compliance/check_names.h"
#include "compliance/verdict_text.h"
#include "output/check_text.h"

#include <algorithm>
#include <cstring>
#include <ostream>
#include <string>

namespace {

constexpr int NumberWidth = 12;

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
    std::size_t statusWidth = std::strlen("Status");
    for (const DesignCheck& check : checks) {
        itemWidth = std::max(itemWidth, CheckItemText(check).size());
        statusWidth = std::max(statusWidth, CheckStatusText(check.status).size());
    }
    const auto columnsLine = [&](const std::string& item, const std::string& demand,
                                 const std::string& limit, const std::string& unit,
                                 const std::string& ratio, const std::string& status,
                                 const std::string& section) {
        std::string line = "  " + Padded(item, itemWidth) + RightAligned(demand, NumberWidth) +
                           RightAligned(limit, NumberWidth) + "  " + Padded(unit, 5) +
                           RightAligned(ratio, 7) + "  " + Padded(status, statusWidth) + "  " +
                           section;
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
            const std::string line = columnsLine(
                CheckItemText(check), CheckQuantityText(check.demand, check),
                CheckQuantityText(check.limit, check), CheckUnitText(check), CheckRatioText(check),
                CheckStatusText(check.status), check.reference == nullptr ? "" : check.reference);
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
