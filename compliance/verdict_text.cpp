#include "compliance/verdict_text.h"

#include "common/number_pattern.h"
#include "compliance/check_names.h"

#include <cctype>

namespace {

std::string Upper(std::string text) {
    for (char& c : text) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return text;
}

} // namespace

std::string GoverningText(const DesignCheck& check) {
    std::string text = CheckTitle(check);
    if (check.ratio) {
        text += " (" + FormatNumber(*check.ratio, "0.00") + ")";
    }
    return text;
}

std::string VerdictSentence(Foundation foundation, const FoundationVerdict& verdict,
                            std::span<const DesignCheck> checks, GoverningShown shown) {
    std::string text = std::string(FoundationTitle(foundation)) + ": ";
    const bool withGoverning =
        verdict.governing && (!verdict.pass || shown == GoverningShown::Always);
    if (verdict.pass) {
        text += "PASS";
        if (withGoverning) {
            text += ", governing " + GoverningText(checks[*verdict.governing]);
        }
        return text;
    }
    text += "FAIL: " + std::to_string(verdict.notOk) +
            (verdict.notOk == 1 ? " check over its limit" : " checks over their limits");
    if (withGoverning) {
        // The engineer's eye goes to the check that governs: in capitals, as on the classic
        // pages.
        text += ", governing " + Upper(GoverningText(checks[*verdict.governing]));
    }
    return text;
}
