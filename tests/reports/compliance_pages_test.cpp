#include "reports/compliance_pages.h"
#include "reports/exceptions_page.h"
#include "reports/recording_surface.h"

#include "tests/compliance/compliance_test_support.h"

#include <gtest/gtest.h>

namespace {

constexpr LineHeights Heights{230, 276, 322};

struct Report {
    RecordingSurface surface;
    DesignRecord record = PlainRibbedRecord();
    ResultsRecord results = CompliantResults();
    PageContext page{surface, record, results, "/lot.kvt", 1};

    Report() { surface.BeginDocument(); }

    std::vector<RecordedText> Body() const {
        std::vector<RecordedText> texts;
        for (const RecordedText& text : surface.sheets().front().texts) {
            if (text.y >= 3322 && text.y < 13000) {
                texts.push_back(text);
            }
        }
        return texts;
    }

    std::vector<std::string> BodyTexts() const {
        std::vector<std::string> texts;
        for (const RecordedText& text : Body()) {
            texts.push_back(text.text);
        }
        return texts;
    }

    const RecordedText& Placed(const std::string& text) const {
        for (const RecordedText& placed : surface.sheets().front().texts) {
            if (placed.text == text) {
                return placed;
            }
        }
        throw std::out_of_range("nothing placed reads " + text);
    }

    bool Has(const std::string& text) const {
        const std::vector<std::string> texts = BodyTexts();
        return std::find(texts.begin(), texts.end(), text) != texts.end();
    }
};

const std::string AllWithin = "ALL VALUES WITHIN ALLOWABLE LIMITS.";

} // namespace

TEST(PrintRDCS, FailingChecksAreBoldOrRedAndEmptyBlocksSayAllWithin) {
    Report r;
    r.results.StressTopCLShort = -0.5, r.results.ExcessTopCLShort = 66.6666;
    PrintRDCS(r.page, Heights, true);
    EXPECT_EQ(r.BodyTexts(),
              (std::vector<std::string>{
                  "RIBBED FOUNDATION - DESIGN COMPLIANCE SUMMARY", "The ", "BOLD",
                  " values exceed allowable or are less than minimum limits by the percentage "
                  "indicated:",
                  "SOIL BEARING : ", AllWithin,
                  "CENTER LIFT MODE : ", "BENDING STRESS IN SHORT DIRECTION (TENSION): 66.7%",
                  "EDGE LIFT MODE : ", AllWithin}));
    const RecordedText& failing = r.Placed("BENDING STRESS IN SHORT DIRECTION (TENSION): 66.7%");
    EXPECT_TRUE(failing.bold);
    EXPECT_EQ(failing.colour, Black);
    EXPECT_EQ(failing.x, 2160);
    const RecordedText& heading = r.Placed("CENTER LIFT MODE : ");
    EXPECT_TRUE(heading.bold && heading.underline);
    EXPECT_EQ(heading.size, 12);
    EXPECT_EQ(heading.x, 1440);
    EXPECT_TRUE(r.Placed(AllWithin).bold);

    // With the colour flag the failing line and the key word are red; with show-all every check
    // is listed, the passing ones plain, and no block says all values are within.
    Report colour;
    colour.page.colour = true, colour.page.showAll = true;
    colour.results.StressTopCLShort = -0.5, colour.results.ExcessTopCLShort = 66.6666;
    PrintRDCS(colour.page, Heights, true);
    EXPECT_EQ(colour.Placed("RED").colour, Red);
    EXPECT_EQ(colour.Placed("BENDING STRESS IN SHORT DIRECTION (TENSION): 66.7%").colour, Red);
    const RecordedText& passing = colour.Placed("SOIL BEARING: 0.0%");
    EXPECT_FALSE(passing.bold);
    EXPECT_EQ(passing.colour, Black);
    EXPECT_FALSE(colour.Has(AllWithin));
    // Center lift's long stiffness has two blanks after "LONG", edge lift's one.
    EXPECT_TRUE(colour.Has("STIFFNESS IN LONG  DIRECTION : 0.0%"));
    EXPECT_TRUE(colour.Has("STIFFNESS IN LONG DIRECTION : 0.0%"));
}

TEST(PrintRDCS, CrackedCapacityNotCalculatedOnPaperOnlyWhenItFails) {
    Report r;
    r.page.showAll = true;
    r.results.CrackValidCLShort = 0, r.results.CrackDemandCLShort = 10;
    r.results.CrackValidELLong = 0; // demand 0 within capacity 0: an ordinary passing line
    PrintRDCS(r.page, Heights, true);
    EXPECT_TRUE(r.Has("CRACKED MOMENT CAPACITY IN SHORT DIRECTION : COULD NOT BE CALCULATED"));
    EXPECT_TRUE(r.Has("CRACKED MOMENT CAPACITY IN LONG DIRECTION : 0.0%"));
    EXPECT_FALSE(r.Placed("CRACKED MOMENT CAPACITY IN LONG DIRECTION : 0.0%").bold);
}

TEST(PrintUDCS, OpensWithTheRibbedFoundationAndKeepsItsCrossedEdgeDownLines) {
    Report r;
    r.page.RibbedOutCount = 2;
    PrintUDCS(r.page, Heights, true);
    const std::vector<std::string> body = r.BodyTexts();
    EXPECT_EQ(body.at(4), "RIBBED FOUNDATION COMPLIANCE : ");
    EXPECT_EQ(body.at(5), "RIBBED FOUNDATION HAS 2 ITEMS OUT OF COMPLIANCE. ");
    EXPECT_EQ(body.at(6), "                            - UNIFORM THICKNESS FOUNDATION ANALYSIS "
                          "INVALID");
    EXPECT_EQ(body.at(7), "CENTER LIFT MODE : ");
    EXPECT_FALSE(r.Has("SOIL BEARING : "));

    Report comp;
    comp.record.SoilType = 1, comp.record.CLSettleState = 1;
    comp.page.colour = true, comp.page.showAll = true, comp.page.RibbedOutCount = 1;
    comp.results.ExcessDeflEDLong = 12.5, comp.results.UTExcessDeflEDLong = 99;
    comp.results.UTShearEDShort = 200, comp.results.UTAllowShearShort = 100;
    comp.results.UTExcessShearEDShort = 100, comp.results.ExcessTopELShort = 7.25;
    PrintUDCS_Comp(comp.page, Heights, true);
    const RecordedText& opening = comp.Placed("RIBBED FOUNDATION HAS 1 ITEMS OUT OF COMPLIANCE.");
    EXPECT_EQ(opening.colour, Red);
    // The passing long deflection shows the ribbed excess; the failing short shear in colour
    // shows the edge lift's top fiber excess.
    EXPECT_TRUE(comp.Has("DEFLECTION IN LONG  DIRECTION : 12.5%"));
    EXPECT_TRUE(comp.Has("SHEAR STRESS IN SHORT DIRECTION : 7.3%"));
    EXPECT_EQ(comp.Placed("SHEAR STRESS IN SHORT DIRECTION : 7.3%").colour, Red);
    EXPECT_TRUE(comp.Has("COMPRESSIBLE SOIL MODE (EDGE DOWN) : "));

    // Without edge down its section is not printed at all.
    Report centerDown;
    centerDown.record.SoilType = 1;
    PrintUDCS_Comp(centerDown.page, Heights, true);
    EXPECT_FALSE(centerDown.Has("COMPRESSIBLE SOIL MODE (EDGE DOWN) : "));
    EXPECT_TRUE(centerDown.Has("RIBBED FOUNDATION IN COMPLIANCE."));
}

TEST(PrintPE, RulesWithTheirCitationsOrNoExceptions) {
    Report r;
    r.record.WS1 = 6;                                       // narrower than 8 in
    r.record.QS2 = 2, r.record.DS2 = 36, r.record.WS2 = 10; // 36 / 24 = 1.5 deep
    r.record.FlatSlab = 1;
    r.results.UTThickness = 7;
    PrintPE(r.page, Heights, true);
    const std::vector<std::string> body = r.BodyTexts();
    const std::vector<std::string> expected = {
        "PTI EXCEPTION SUMMARY",
        "The following elements of the design are not in strict compliance with the",
        "Design of Post-Tensioned Slabs-On-Ground ",
        "3rd Edition manual",
        "published by the Post-Tensioning Institute.",
        "Beam widths used in analysis shall not be less than 8 inches ",
        "(PTI 3rd Edition 4.5.2.3)",
        "Different beam depths used in analyis shall not have a ratio between the",
        "deepest and shallowest beam depth exceed 1.2",
        "(PTI 3rd Edition 4.5.2.2)",
        "Uniform Thickness Foundation analysis invalid since Ribbed Foundation",
        "has 2 PTI Exceptions",
        "(PTI 3rd Edition 4.5.3)",
        "Uniform thickness should be limited to a minimum of 7.5 inches, unless",
        "a continuous stiffening beam per PTI 3rd Edition 4.5.2.2 and 4.5.2.3",
        "is provided at the entire perimeter of the foundation",
        "(PTI 3rd Edition 4.5.3)"};
    EXPECT_EQ(body, expected);
    const RecordedText& rule = r.Placed("Beam widths used in analysis shall not be less than 8 "
                                        "inches ");
    EXPECT_TRUE(rule.bold);
    EXPECT_EQ(rule.size, 11);
    EXPECT_EQ(rule.x, 1440);
    EXPECT_EQ(r.Placed("deepest and shallowest beam depth exceed 1.2").x, 1740);
    EXPECT_EQ(r.Placed("(PTI 3rd Edition 4.5.2.3)").x, 2160);

    Report clean;
    PrintPE(clean.page, Heights, true);
    const RecordedText& none = clean.Placed("NO PTI EXCEPTIONS EXIST");
    EXPECT_TRUE(none.bold);
    EXPECT_EQ(none.size, 12);
    EXPECT_EQ(none.x, (12240 - 23 * 120) / 2 - 360);
}
