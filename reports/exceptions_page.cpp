#include "reports/exceptions_page.h"

#include "compliance/design_exceptions.h"

#include <vector>

namespace {

struct PaperRule {
    std::vector<std::string> lines; // the rule, then its continuation lines
    const char* citation;
};

const std::array<PaperRule, 9>& RibbedPaperRules() {
    static const std::array<PaperRule, 9> rules = {{
        {{"Beam widths used in analysis shall not be less than 8 inches "},
         "(PTI 3rd Edition 4.5.2.3)"},
        {{"Beam widths used in analysis shall not be greater than 14 inches"},
         "(PTI 3rd Edition 4.5.2.3)"},
        {{"Beam depths shall not be less than 11 inches"}, "(PTI 3rd Edition 4.5.2.2)"},
        {{"Beams must extend at least 7 inches below the bottom of the slab"},
         "(PTI 3rd Edition 4.5.2.2)"},
        {{"Different beam depths used in analyis shall not have a ratio between the",
          "deepest and shallowest beam depth exceed 1.2"},
         "(PTI 3rd Edition 4.5.2.2)"},
        {{"Beam spacing shall be a maximum of 15 feet"}, "(PTI 3rd Edition 4.5.2.1)"},
        {{"Beam spacing used in analysis shall be a minimum of 6 feet"},
         "(PTI 3rd Edition 4.5.2.1)"},
        {{"Minimum residual prestress force shall be greater than 0.05A "},
         "(PTI 3rd Edition 6.7)"},
        {{"28-day compressive strength of concrete shall be greater than 2500 PSI"},
         "(PTI 3rd Edition 7.1)"},
    }};
    return rules;
}

void PrintRule(PageWriter& w, const PaperRule& rule) {
    DrawingSurface& s = w.surface();
    const double column1 = w.page().column1;
    s.SetFontSize(11);
    BoldBlack(s);
    for (std::size_t i = 0; i < rule.lines.size(); ++i) {
        w.Text(i == 0 ? column1 : column1 + 300, rule.lines[i]);
        w.StepPastHeading(11);
    }
    s.SetFontSize(10);
    UnboldBlack(s);
    w.Label(rule.citation);
    w.Step(2);
}

void CentredBold(PageWriter& w, const std::string& first, const std::string& second = {}) {
    DrawingSurface& s = w.surface();
    BoldBlack(s);
    const double x = CentredX(s, first + second);
    const double after = w.TextAt(x, 0, first);
    if (!second.empty()) {
        w.TextAt(after, 0, second);
    }
    UnboldBlack(s);
    w.Step();
}

} // namespace

void PrintPE(PageContext& page, const LineHeights& heights, bool lastPage) {
    const DesignRecord& r = page.record;
    PageWriter w(page, heights);
    w.Begin("PTI EXCEPTION SUMMARY");
    CentredBold(w, "The following elements of the design are not in strict compliance with the");
    CentredBold(w, "Design of Post-Tensioned Slabs-On-Ground ", "3rd Edition manual");
    CentredBold(w, "published by the Post-Tensioning Institute.");
    w.Step();

    const RibbedRules broken = RibbedRulesBroken(r, page.results);
    int count = 0;
    for (std::size_t i = 0; i < broken.size(); ++i) {
        if (broken[i]) {
            PrintRule(w, RibbedPaperRules()[i]);
            ++count;
        }
    }
    bool printed = count > 0;
    if (r.FlatSlab == 1) {
        if (count != 0) {
            PrintRule(w, {{"Uniform Thickness Foundation analysis invalid since Ribbed Foundation",
                           "has " + std::to_string(count) + " PTI Exceptions"},
                          "(PTI 3rd Edition 4.5.3)"});
        }
        if (page.results.UTThickness < 7.5) {
            PrintRule(w, {{"Uniform thickness should be limited to a minimum of 7.5 inches, unless",
                           "a continuous stiffening beam per PTI 3rd Edition 4.5.2.2 and 4.5.2.3",
                           "is provided at the entire perimeter of the foundation"},
                          "(PTI 3rd Edition 4.5.3)"});
            printed = true;
        }
    }
    if (!printed) {
        DrawingSurface& s = w.surface();
        s.SetFontSize(12);
        BoldBlack(s);
        const std::string none = "NO PTI EXCEPTIONS EXIST";
        w.Text(CentredX(s, none), none);
        UnboldBlack(s);
        s.SetFontSize(10);
    }
    w.End(lastPage);
}
