#include "lifecycle/package_content.h"

#include "reports/package_format.h"
#include "reports/recording_surface.h"
#include "storage/design_file.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

DesignRecord Example(const char* name) {
    DesignRecord record;
    ReadDesignFile(std::filesystem::path(K3_SOURCE_DIR) / "examples" / name, AllSections, record,
                   record, {});
    return record;
}

// One package drawn on the recording surface, with what it was drawn from.
struct DrawnPackage {
    DesignRecord record;
    ResultsRecord results;
    std::vector<DesignCheck> checks;
    std::optional<RunFault> fault;
    RecordingSurface surface;
    int sheets = 0;
};

PackageInfo Info() {
    PackageInfo info;
    info.firm = "Brellin Works Structural";
    info.license = "PE 12345";
    info.trace = {"project.kvt", std::string(64, 'a'), "November 25, 2026", "11:05:09 AM"};
    return info;
}

void Draw(DrawnPackage& p, const PackageInfo& info = Info()) {
    ResultsScreen screen = LoadResultsScreen();
    p.fault = AnalyseAndFillResults({}, p.record, p.results, screen).fault;
    p.checks = PackageChecks(p.record, p.results, p.fault);
    const PackageContent content = MakePackageContent(p.record, p.results, p.checks, p.fault, info);
    p.sheets = DrawPackage(p.surface, content, PackagePages(content));
}

// The page title of each sheet, with "(continued)" sheets folded into their page.
std::vector<std::string> PageTitles(const RecordingSurface& surface) {
    std::vector<std::string> titles;
    for (const RecordedSheet& sheet : surface.sheets()) {
        for (const RecordedText& t : sheet.texts) {
            if (t.size == 13 && t.y == 1040) {
                std::string title = t.text;
                const std::size_t continued = title.find(" (continued)");
                if (continued != std::string::npos) {
                    title.erase(continued);
                    EXPECT_FALSE(titles.empty());
                    EXPECT_EQ(titles.back(), title);
                } else {
                    titles.push_back(title);
                }
            }
        }
    }
    return titles;
}

bool HasText(const RecordedSheet& sheet, const std::string& text) {
    for (const RecordedText& t : sheet.texts) {
        if (t.text == text) {
            return true;
        }
    }
    return false;
}

std::vector<std::string> SheetTitlesOf(const RecordingSurface& surface) {
    std::vector<std::string> titles;
    for (const RecordedSheet& sheet : surface.sheets()) {
        std::string title;
        for (const RecordedText& t : sheet.texts) {
            if (t.size == 13 && t.y == 1040) {
                title = t.text;
            }
        }
        titles.push_back(title);
    }
    return titles;
}

// The texts of the sheets of one page that follow a caption, as "caption value".
int CountOnPage(const RecordingSurface& surface, const std::string& page, const std::string& text) {
    int count = 0;
    const std::vector<std::string> titles = SheetTitlesOf(surface);
    for (std::size_t i = 0; i < titles.size(); ++i) {
        if (titles[i].rfind(page, 0) != 0) {
            continue;
        }
        for (const RecordedText& t : surface.sheets()[i].texts) {
            count += t.text == text ? 1 : 0;
        }
    }
    return count;
}

} // namespace

// The pages come in their order for each soil case, with and without the uniform thickness
// foundation and the line load, every sheet with the header and "Page x of y".
TEST(CalculationPackage, PagesInOrderForEachSoilCaseWithHeaderAndFooter) {
    struct Case {
        const char* example;
        std::function<void(DesignRecord&)> change;
    };
    const std::vector<Case> cases{
        {"expansive_ribbed.kvt", [](DesignRecord&) {}},
        {"expansive_ribbed.kvt", [](DesignRecord& r) { r.FlatSlab = 1; }},
        {"uniform_line_load.kvt", [](DesignRecord& r) { r.FlatSlab = 0; }},
        {"compressible_edge_down.kvt", [](DesignRecord&) {}},
        {"compressible_edge_down.kvt", [](DesignRecord& r) { r.CLSettleState = 0; }},
        {"compressible_edge_down.kvt", [](DesignRecord& r) { r.FlatSlab = 1; }},
        {"uniform_line_load.kvt", [](DesignRecord&) {}},
        {"uniform_line_load.kvt", [](DesignRecord& r) { r.LineLoadType = 0; }},
    };
    for (const Case& c : cases) {
        DrawnPackage p;
        p.record = Example(c.example);
        c.change(p.record);
        Draw(p);
        SCOPED_TRACE(std::string(c.example) + " FlatSlab " + std::to_string(p.record.FlatSlab) +
                     " LineLoadType " + std::to_string(p.record.LineLoadType) + " CLSettleState " +
                     std::to_string(p.record.CLSettleState));
        ASSERT_FALSE(p.fault.has_value());
        std::vector<std::string> expected{"Calculation package", "Design basis and input",
                                          "Foundation plan and typical sections", "Design checks",
                                          "Key results"};
        if (p.record.LineLoadType == 1) {
            expected.push_back("Line load");
        }
        EXPECT_EQ(PageTitles(p.surface), expected);
        ASSERT_EQ(static_cast<int>(p.surface.sheets().size()), p.sheets);
        for (int i = 0; i < p.sheets; ++i) {
            const RecordedSheet& sheet = p.surface.sheets()[static_cast<std::size_t>(i)];
            EXPECT_TRUE(HasText(sheet, "Calculation package")) << "sheet " << i + 1;
            EXPECT_TRUE(HasText(sheet, p.record.ProjName)) << "sheet " << i + 1;
            EXPECT_TRUE(HasText(sheet, "Project No. " + p.record.ProjNum)) << "sheet " << i + 1;
            EXPECT_TRUE(
                HasText(sheet, "Page " + std::to_string(i + 1) + " of " + std::to_string(p.sheets)))
                << "sheet " << i + 1;
            EXPECT_TRUE(HasText(sheet, "project.kvt"));
            EXPECT_TRUE(HasText(sheet, "November 25, 2026"));
        }
        // The uniform thickness foundation has its own verdict and checks only when analysed.
        const int uniformBlocks = CountOnPage(p.surface, "Design checks",
                                              "Uniform thickness foundation - Rules of the manual");
        EXPECT_EQ(uniformBlocks, p.record.FlatSlab == 1 ? 1 : 0);
        // Compressible soil has the modes of compressible soil, edge down only when asked for.
        const int edgeDown =
            CountOnPage(p.surface, "Design checks", "Ribbed foundation - Edge down");
        EXPECT_EQ(edgeDown, p.record.SoilType == 1 && p.record.CLSettleState == 1 ? 1 : 0);
    }
}

// The cover and the checks page count as the check table does: PASS or FAIL as its verdict, the
// failing checks and broken rules as its rows, and one "NG" on the checks page for each.
TEST(CalculationPackage, CoverAndChecksPageCountAsTheCheckTable) {
    for (const bool failing : {false, true}) {
        SCOPED_TRACE(failing ? "failing" : "passing");
        DrawnPackage p;
        // The compressible example passes every check.
        p.record = Example("compressible_edge_down.kvt");
        if (failing) {
            // Too weak a concrete breaks the manual's rule of 2500 psi, and a large settlement
            // overstresses the slab; the uniform thickness foundation is judged too.
            p.record.Fpc = 2000;
            p.record.Settle = 6;
            p.record.FlatSlab = 1;
        }
        Draw(p);
        ASSERT_FALSE(p.fault.has_value());
        const DesignVerdict verdict = JudgeDesign(p.record, p.checks);
        int ng = 0;
        int foundations = 0;
        for (const Foundation foundation : {Foundation::Ribbed, Foundation::Uniform}) {
            if (foundation == Foundation::Uniform && !verdict.uniform) {
                continue;
            }
            ++foundations;
            int overLimit = 0;
            int broken = 0;
            for (const DesignCheck& check : p.checks) {
                if (check.foundation == foundation && check.status != CheckStatus::Ok) {
                    (check.mode == CheckMode::Rules ? broken : overLimit) += 1;
                    ng += check.status == CheckStatus::Ng ? 1 : 0;
                }
            }
            const FoundationVerdict& v =
                foundation == Foundation::Ribbed ? verdict.ribbed : *verdict.uniform;
            EXPECT_EQ(overLimit + broken, v.notOk);
            EXPECT_EQ(v.pass, overLimit + broken == 0);
            const std::string counts =
                std::to_string(overLimit) +
                (overLimit == 1 ? " check over its limit, " : " checks over their limits, ") +
                std::to_string(broken) +
                (broken == 1 ? " rule of the manual broken" : " rules of the manual broken");
            EXPECT_EQ(CountOnPage(p.surface, "Calculation package", counts), 1) << counts;
            const std::string title = foundation == Foundation::Ribbed
                                          ? "Ribbed foundation"
                                          : "Uniform thickness foundation";
            EXPECT_EQ(CountOnPage(p.surface, "Design checks",
                                  title + ": " + (v.pass ? "PASS" : "FAIL") + ", " +
                                      std::to_string(overLimit) +
                                      (overLimit == 1 ? " check over its limit, "
                                                      : " checks over their limits, ") +
                                      std::to_string(broken) +
                                      (broken == 1 ? " rule broken" : " rules broken")),
                      1);
        }
        EXPECT_EQ(verdict.ribbed.pass, !failing);
        EXPECT_EQ(CountOnPage(p.surface, "Calculation package", failing ? "FAIL" : "PASS"),
                  failing ? foundations : 1);
        EXPECT_EQ(CountOnPage(p.surface, "Design checks", "NG"), ng);
        EXPECT_EQ(ng > 0, failing);
        if (failing) {
            // The concrete rule with both of its numbers, psi whole: 2,000 against 2,500, NG.
            bool found = false;
            for (const RecordedSheet& sheet : p.surface.sheets()) {
                for (const RecordedText& t : sheet.texts) {
                    if (t.text != "Concrete strength at least 2500 psi") {
                        continue;
                    }
                    found = true;
                    std::vector<std::string> row;
                    for (const RecordedText& u : sheet.texts) {
                        if (u.y == t.y) {
                            row.push_back(u.text);
                        }
                    }
                    EXPECT_EQ(row, (std::vector<std::string>{t.text, "2,000", "2,500", "psi", "NG",
                                                             "7.1"}));
                    EXPECT_TRUE(t.bold);
                }
            }
            EXPECT_TRUE(found);
            // The cover names the broken rule, which has no ratio and so never governs.
            EXPECT_EQ(CountOnPage(p.surface, "Calculation package",
                                  "Rule broken: Concrete strength at least 2500 psi"),
                      1);
        }
    }
}

// No text runs into another or past the margins, with the longest texts the free fields allow,
// on every sheet of a package with every page.
TEST(CalculationPackage, NoTextOverlapsOrLeavesTheMarginsWithLongTexts) {
    DrawnPackage p;
    p.record = Example("uniform_line_load.kvt");
    const std::string longText(200, 'W');
    for (std::string* field :
         {&p.record.ProjName, &p.record.ProjNum, &p.record.ProjEng, &p.record.ProjDate,
          &p.record.ProjGeoRep, &p.record.ProjGeoNum, &p.record.ProjGeoDate, &p.record.MatLabel,
          &p.record.RectLabel, &p.record.SoilLabel}) {
        *field = longText;
    }
    PackageInfo info = Info();
    info.firm = longText;
    info.license = longText;
    info.trace.fileName = longText + ".kvt";
    info.trace.runDate = longText;
    Draw(p, info);
    ASSERT_FALSE(p.fault.has_value());
    const auto width = [](const RecordedText& t) {
        return static_cast<double>(t.text.size()) * t.size * 10;
    };
    for (std::size_t s = 0; s < p.surface.sheets().size(); ++s) {
        const RecordedSheet& sheet = p.surface.sheets()[s];
        for (std::size_t i = 0; i < sheet.texts.size(); ++i) {
            const RecordedText& a = sheet.texts[i];
            EXPECT_GE(a.x, PackageLeft - 1) << "sheet " << s + 1 << ": " << a.text;
            EXPECT_LE(a.x + width(a), PackageRight + 1) << "sheet " << s + 1 << ": " << a.text;
            EXPECT_LT(a.y, PackageSheetHeight - 720) << a.text;
            for (std::size_t j = i + 1; j < sheet.texts.size(); ++j) {
                const RecordedText& b = sheet.texts[j];
                const bool acrossX = a.x < b.x + width(b) && b.x < a.x + width(a);
                const bool acrossY = a.y < b.y + b.size * 20 && b.y < a.y + a.size * 20;
                EXPECT_FALSE(acrossX && acrossY)
                    << "sheet " << s + 1 << ": \"" << a.text << "\" overlaps \"" << b.text << "\"";
            }
        }
    }
}

// A run that faults gives one sheet that says where and why, and nothing of the design.
TEST(CalculationPackage, FaultedAnalysisGivesOneSheetThatSaysWhy) {
    DrawnPackage p;
    p.record = Example("expansive_ribbed.kvt");
    // A single long beam leaves no clear span between beams: the bearing area divides by nought.
    p.record.QL1 = 1;
    p.record.QL2 = 0;
    Draw(p);
    ASSERT_TRUE(p.fault.has_value());
    ASSERT_EQ(p.sheets, 1);
    const RecordedSheet& sheet = p.surface.sheets()[0];
    EXPECT_TRUE(
        HasText(sheet, "The analysis stopped: division by zero in stage 3 (soil bearing)."));
    EXPECT_TRUE(HasText(sheet, "NO VERDICT: the analysis did not complete"));
    EXPECT_TRUE(HasText(sheet, "Page 1 of 1"));
    EXPECT_FALSE(HasText(sheet, "PASS"));
    EXPECT_FALSE(HasText(sheet, "FAIL"));
    EXPECT_TRUE(p.checks.empty());
}

// One number format per kind of quantity, by hand: ksi in thousandths, psi whole, moments in
// hundredths, powers of inches whole, a coefficient in its shortest form.
TEST(CalculationPackage, NumbersTakeTheFormatOfTheirKind) {
    EXPECT_EQ(PackageNumber(-0.1234, "ksi"), "-0.123");
    EXPECT_EQ(PackageNumber(1234.5, "psi"), "1,235");
    EXPECT_EQ(PackageNumber(12.345, "ft-k/ft"), "12.35");
    EXPECT_EQ(PackageNumber(12345.6, "in^4"), "12,346");
    EXPECT_EQ(PackageNumber(8.0, "in"), "8.00");
    EXPECT_EQ(PackageNumber(19.5, "count"), "20");
    EXPECT_EQ(PackageNumber(1.5, ""), "1.5");
    EXPECT_EQ(PackageNumber(0.75, ""), "0.75");
    EXPECT_EQ(PackageNumber(-0.05, ""), "-0.05");
    EXPECT_EQ(UnitShown("count"), "");
    RecordingSurface surface;
    surface.BeginDocument();
    surface.SetFontSize(10);
    // The power is drawn smaller and raised beside its base.
    EXPECT_DOUBLE_EQ(DrawUnit(surface, 100, 500, "in^4", 10), 200 + 65);
    ASSERT_EQ(surface.sheets()[0].texts.size(), 2u);
    EXPECT_EQ(surface.sheets()[0].texts[1].text, "4");
    EXPECT_DOUBLE_EQ(surface.sheets()[0].texts[1].x, 300);
    EXPECT_LT(surface.sheets()[0].texts[1].y, 500);
    EXPECT_DOUBLE_EQ(surface.sheets()[0].texts[1].size, 6.5);
    EXPECT_EQ(FitText(surface, "ABCDEFGHIJ", 500), "AB...");
    EXPECT_EQ(FitText(surface, "ABCDE", 500), "ABCDE");
}

// A page of studies (the soil values, a chart and ranges) takes its place after the key results
// and is counted and numbered with the others.
TEST(CalculationPackage, PageListTakesOneMorePage) {
    DrawnPackage p;
    p.record = Example("uniform_line_load.kvt");
    ResultsScreen screen = LoadResultsScreen();
    p.fault = AnalyseAndFillResults({}, p.record, p.results, screen).fault;
    p.checks = PackageChecks(p.record, p.results, p.fault);
    const PackageContent content =
        MakePackageContent(p.record, p.results, p.checks, p.fault, Info());
    std::vector<PackagePage> pages = PackagePages(content);
    const std::size_t place = StudyPagePlace(pages);
    pages.insert(pages.begin() + static_cast<std::ptrdiff_t>(place),
                 PackagePage{"Soil sensitivity", [](PackageWriter& w, const PackageContent&) {
                                 w.surface().DrawLine(PackageLeft, w.y(), PackageRight, w.y());
                             }});
    p.sheets = DrawPackage(p.surface, content, pages);
    const std::vector<std::string> titles = PageTitles(p.surface);
    ASSERT_EQ(titles.size(), 7u);
    EXPECT_EQ(titles[4], "Key results");
    EXPECT_EQ(titles[5], "Soil sensitivity");
    EXPECT_EQ(titles[6], "Line load");
    EXPECT_TRUE(HasText(p.surface.sheets().back(),
                        "Page " + std::to_string(p.sheets) + " of " + std::to_string(p.sheets)));
}
