#include "reports/input_data_pages.h"
#include "reports/recording_surface.h"
#include "reports/report_run.h"
#include "reports/ribbed_results_pages.h"
#include "reports/selected_variables_page.h"
#include "reports/uniform_results_pages.h"

#include "tests/compliance/compliance_test_support.h"
#include "tests/reports/report_test_support.h"

#include <gtest/gtest.h>

namespace {

constexpr LineHeights Heights{230, 276, 322};

struct Report {
    RecordingSurface surface;
    DesignRecord record = PlainRibbedRecord();
    ResultsRecord results = CompliantResults();
    PageContext page{surface, record, results, "/lot.kvt", 1};

    Report() { surface.BeginDocument(); }

    std::vector<std::string> Texts(std::size_t sheet = 0) const {
        std::vector<std::string> texts;
        for (const RecordedText& text : surface.sheets().at(sheet).texts) {
            texts.push_back(text.text);
        }
        return texts;
    }

    bool Has(const std::string& text, std::size_t sheet = 0) const {
        const std::vector<std::string> texts = Texts(sheet);
        return std::find(texts.begin(), texts.end(), text) != texts.end();
    }

    // The texts placed on the same line as `label`, after it, in drawing order.
    std::vector<std::string> LineOf(const std::string& label, std::size_t sheet = 0) const {
        const std::vector<RecordedText>& texts = surface.sheets().at(sheet).texts;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (texts[i].text == label) {
                std::vector<std::string> line;
                for (std::size_t j = i + 1; j < texts.size() && texts[j].y == texts[i].y; ++j) {
                    line.push_back(texts[j].text);
                }
                return line;
            }
        }
        throw std::out_of_range("nothing placed reads " + label);
    }
};

} // namespace

TEST(PrintReport, EveryPageDrawsTheSheetsItsRangeCountsAndNumbersThem) {
    for (const std::int16_t soil : {0, 1}) {
        for (const std::int16_t edgeDown : {0, 1}) {
            for (const std::int16_t flatSlab : {0, 1}) {
                for (const std::int16_t lineLoad : {0, 1}) {
                    DesignRecord record = PlainRibbedRecord();
                    record.SoilType = soil, record.CLSettleState = edgeDown;
                    record.FlatSlab = flatSlab, record.LineLoadType = lineLoad;
                    PrintJob job;
                    job.pages = RangePages(PrintRange::Entire, record, {}, {});
                    job.totalSheets = RangeSheetCount(PrintRange::Entire, record, {}, {});
                    RecordingSurface surface;
                    PrintReport(surface, job, record, CompliantResults(),
                                {.projectPath = "/lot.kvt", .engine = {.ShowDD = 1}});
                    const std::string label = std::to_string(soil) + std::to_string(edgeDown) +
                                              std::to_string(flatSlab) + std::to_string(lineLoad);
                    ASSERT_EQ(static_cast<int>(surface.sheets().size()), job.totalSheets) << label;
                    EXPECT_TRUE(surface.ended());
                    // The last sheet's footer reads "Page N of N".
                    const std::string last = "Page " + std::to_string(job.totalSheets) + " of " +
                                             std::to_string(job.totalSheets);
                    const auto& texts = surface.sheets().back().texts;
                    EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [&](const RecordedText& t) {
                        return t.text == last;
                    })) << label;
                }
            }
        }
    }
}

TEST(PrintSOID, LinesFollowTheRecordsChoicesAndKeepTheirCrossings) {
    Report r;
    r.record.MatLabel = "3000 psi concrete";
    r.record.SoilLabel = ""; // the material label's line reads the soil label
    r.record.BeamSpacing = 1;
    r.record.Subgradetype = 2, r.record.UDSM = 12.5, r.record.UDLM = 10, r.record.UDSS = 4.25,
    r.record.UDLS = 3;
    r.record.DefCenter = 480, r.record.DefEdge = 960;
    PrintSOID(r.page, Heights, true);
    ASSERT_EQ(r.surface.sheets().size(), 2u);
    EXPECT_FALSE(r.Has("Material Label :"));
    EXPECT_TRUE(r.Has("Average beam spacing used in analysis"));
    EXPECT_FALSE(r.Has("Spacing :"));
    EXPECT_TRUE(r.Has("SUMMARY OF INPUT DATA - Continued", 1));
    // "Maximum :" prints UDSM, "At Beta :" prints UDSS.
    EXPECT_EQ(r.LineOf("Maximum :", 1), (std::vector<std::string>{"12.50 Kips", "10.00 Kips"}));
    EXPECT_EQ(r.LineOf("At Beta :", 1), (std::vector<std::string>{"4.25 Kips", "3.00 Kips"}));
    // A coefficient in its general form with the blanks of plain printing.
    EXPECT_EQ(r.LineOf("Center Lift :", 1), (std::vector<std::string>{" 480 "}));

    Report labelled;
    labelled.record.SoilLabel = "Clay";
    labelled.record.MatLabel = "3000 psi concrete";
    labelled.record.BeamSpacing = 0, labelled.record.SMax = 15, labelled.record.SMin = 6;
    PrintSOID(labelled.page, Heights, true);
    EXPECT_TRUE(labelled.Has("Material Label :"));
    EXPECT_EQ(labelled.LineOf("Spacing :"),
              (std::vector<std::string>{"15.00", "6.00", "0.00", "0.00", "Feet"}));
}

TEST(PrintLLA, UniformSlabLinesAndTheCompressionTestOnTheRibbedStress) {
    Report ribbed;
    ribbed.record.LineLoadType = 1, ribbed.record.DirLineLoad = "Long Direction";
    ribbed.results.LLMoment = 12345 * 12; // 12.345 ft-kips per foot
    PrintLLA(ribbed.page, Heights, true);
    EXPECT_EQ(ribbed.LineOf("Applied Moment :"), (std::vector<std::string>{"12.35  Ft-K/Ft"}));
    EXPECT_EQ(ribbed.LineOf("Direction Of Line Load :"),
              (std::vector<std::string>{"Parallel to Long Direction"}));
    for (const std::string& text : ribbed.Texts()) {
        EXPECT_EQ(text.find("Uniform"), std::string::npos) << text;
    }
    EXPECT_TRUE(ribbed.Has("ALL VALUES WITHIN ALLOWABLE LIMITS."));
    // Each stress head ends where the stresses under it end: "-0.300" and 1350 psi as "1.350".
    EXPECT_EQ(ribbed.LineOf("Allowable Stress :"), (std::vector<std::string>{"-0.300", "1.350"}));
    const auto rightEnd = [&ribbed](const std::string& text) {
        for (const RecordedText& t : ribbed.surface.sheets().front().texts) {
            if (t.text == text) {
                return t.x + 100.0 * text.size();
            }
        }
        throw std::out_of_range("nothing placed reads " + text);
    };
    EXPECT_EQ(rightEnd("Tension in Extreme Fiber"), rightEnd("-0.300"));
    EXPECT_EQ(rightEnd("Compression in Extreme Fiber"), rightEnd("1.350"));

    Report uniform;
    uniform.record.LineLoadType = 1, uniform.record.FlatSlab = 1;
    uniform.results.LLStressCompression = 1400; // over 1350 psi
    uniform.results.ExcessLLCompression = 3.7;
    uniform.results.UTExcessLLCompression = -40;
    PrintLLA(uniform.page, Heights, true);
    EXPECT_TRUE(uniform.Has("4.00 INCH THICK SLAB - COMPRESSION IN EXTREME FIBER : 3.7%"));
    EXPECT_TRUE(uniform.Has("UNIFORM THICKNESS SLAB - COMPRESSION IN EXTREME FIBER : -40.0%"));
    EXPECT_FALSE(uniform.Has("4.00 INCH THICK SLAB - TENSION IN EXTREME FIBER : 0.0%"));
    EXPECT_TRUE(uniform.Has("Applied Moment (4.00 Inch Thick Slab) :"));
}

TEST(PrintResults, CompressiblePagesKeepTheirCrossingsAndMisspellings) {
    Report r;
    r.record.SoilType = 1, r.record.CLSettleState = 0, r.record.DefSettle = 960;
    r.results.ShearForceCDShort = 1.11, r.results.ShearForceEDShort = 2.22;
    r.results.ForceNetCDShort = 120, r.results.ForceNetEDShort = 100, r.results.AreaShort = 1000;
    PrintRROA_Comp(r.page, Heights, true);
    ASSERT_EQ(r.surface.sheets().size(), 1u);
    // The center down shear block prints the edge down force.
    EXPECT_EQ(r.LineOf("Maximum Shear, Short Direction."),
              (std::vector<std::string>{"2.22  K/FT"}));
    // Without edge down both the center down and the center / edge lines print.
    EXPECT_EQ(r.LineOf("Beta Distance Effective Prestress Force - Center Down (K)").at(0), "120.0");
    EXPECT_EQ(r.LineOf("Beta Distance Effective Prestress Force - Center/Edge (K)").at(0),
              "120.0 / 100.0");
    EXPECT_EQ(r.LineOf("Beta Distance Effective Prestress - Center/Edge (PSI)").at(0), "120 / 100");
    EXPECT_TRUE(r.Has("Based on a Differential Deflection Coefficient of 960"));

    Report uniform;
    uniform.record.SoilType = 1, uniform.record.CLSettleState = 1, uniform.record.FlatSlab = 1;
    uniform.results.UTAreaShort = 1000, uniform.results.UTAreaLong = 1000;
    PrintUROA_Comp(uniform.page, Heights, true);
    ASSERT_EQ(uniform.surface.sheets().size(), 2u);
    EXPECT_TRUE(uniform.Has("Maximum Shear, Short Dirextion"));
    EXPECT_TRUE(uniform.Has("UNIFORM THICKNESS FOUNDATION - RESULTS OF ANALYSIS continued", 1));

    // The center lift moment labels both follow the long direction's Em = 5.0 flag.
    Report lift;
    lift.results.Em5ControlLong = 1, lift.results.MomentCLShort = 9.125;
    PrintRROA(lift.page, Heights, true);
    EXPECT_EQ(lift.LineOf("Maximum Moment, Short Dir. (controlled by Em=5.0 per PTI 4.3.2)"),
              (std::vector<std::string>{"9.13  FT-K/FT"}));
    EXPECT_TRUE(lift.Has("Maximum Moment, Long Dir. (controlled by Em=5.0 per PTI 4.3.2)"));
}

TEST(PrintRSV, EquivalentDepthOnlyForADirectionOfDifferingDepths) {
    Report r;
    r.record.QL2 = 2, r.record.DL2 = 30, r.record.WL2 = 10;
    r.results.EquivDepthLong = 26.666, r.results.AreaShort = 7320, r.results.TendonJackForce = 28.9;
    PrintRSV(r.page, Heights, true);
    EXPECT_EQ(r.LineOf("Equivalent Beam Depth (Inches) :"),
              (std::vector<std::string>{"", "26.67"}));
    EXPECT_TRUE(r.Has("depend on depths use the equivalent depths as shown above."));
    EXPECT_EQ(r.LineOf("Jacking Force :"), (std::vector<std::string>{"28.90  KIPS "}));

    Report even;
    PrintRSV(even.page, Heights, true);
    EXPECT_FALSE(even.Has("Equivalent Beam Depth (Inches) :"));
}

TEST(PrintResults, LinesStepAWholeLineUnlessTheSheetWouldRunIntoTheFooter) {
    // The edge lift sheet of an expansive project has room: its lines are one line height apart.
    Report lift;
    PrintRROA(lift.page, Heights, true);
    ASSERT_EQ(lift.surface.sheets().size(), 2u);
    const auto y = [](const Report& report, const std::string& text, std::size_t sheet) {
        for (const RecordedText& placed : report.surface.sheets().at(sheet).texts) {
            if (placed.text == text) {
                return placed.y;
            }
        }
        throw std::out_of_range("nothing placed reads " + text);
    };
    EXPECT_EQ(y(lift, "0.9 Moment  (FT-K)", 1) - y(lift, "Cracked Section Capacity  (FT-K)", 1),
              230);
    // The title at 3322, the block's heading two lines below, then "Short", "Direction" and the
    // capacity: 3322 + 5 x 230.
    EXPECT_EQ(y(lift, "Cracked Section Capacity  (FT-K)", 1), 4472);

    // Center down alone, bearing on the beam bottoms: 49 lines, the title's and the shear
    // stresses' 48 steps apart, too many for a sheet at 230 twips. The lowest line ends half a
    // line above the footer's page number at 14260 - 1.5 x 230 = 13915, on 13800: every step is
    // shortened to (13800 - 230 - 3322) / (48 x 230) of a line, and the shear stresses stand at
    // 13570.
    Report down;
    down.record.SoilType = 1, down.record.CLSettleState = 0;
    down.page.settings.UseBeamOnly = 1;
    PrintRROA_Comp(down.page, Heights, true);
    ASSERT_EQ(down.surface.sheets().size(), 1u);
    const double share = (13800.0 - 230 - 3322) / (48 * 230);
    EXPECT_NEAR(y(down, "Actual Shear Stress  (PSI)", 0), 13570, 1e-6);
    EXPECT_NEAR(y(down, "Soil Bearing Analysis", 0), 3322 + 2 * 230 * share, 1e-6);
    for (const RecordedText& placed : down.surface.sheets().front().texts) {
        if (placed.y > 3322 && placed.size == 10 && placed.text.rfind("Page ", 0) != 0 &&
            placed.y < 14000) {
            EXPECT_LE(placed.y + 230, 13800 + 1e-6) << placed.text;
        }
    }
}

TEST(PrintResults, BearingAreaAndSoilPressureShareOneLineWhereTheLabelLeavesRoom) {
    Report r;
    r.results.BearingArea = 2206.4, r.results.SoilPressure = 166;
    PrintRROA(r.page, Heights, true);
    const auto placed = [&r](const std::string& text) {
        for (const RecordedText& t : r.surface.sheets().front().texts) {
            if (t.text == text) {
                return t;
            }
        }
        throw std::out_of_range("nothing placed reads " + text);
    };
    // The bearing line follows the total load; the safety factor the bearing line.
    const double line = placed("Bearing Area").y;
    const double step = line - placed("Total Applied Load").y;
    EXPECT_GT(step, 200);
    EXPECT_EQ(placed("2,206  FT").y, line);
    EXPECT_EQ(placed("2,206  FT").x, 5040 - 500);
    EXPECT_EQ(placed("2").y, line); // the power at 7 point, at the top of the line
    EXPECT_EQ(placed("2").size, 7);
    EXPECT_EQ(placed("2").x, 5040 + 400);
    EXPECT_EQ(placed("Applied Pressure on Soil").y, line);
    EXPECT_EQ(placed("Applied Pressure on Soil").x, 5760);
    EXPECT_EQ(placed("166  PSF").y, line);
    EXPECT_EQ(placed("166  PSF").x, 8990 - 300);
    EXPECT_DOUBLE_EQ(placed("Soil Pressure Safety Factor").y, line + step);

    // The label of the beam bottoms, 45 characters from x 2160, runs past the area's column:
    // the area ends its line in the value column and the pressure has a line of its own.
    Report beams;
    beams.record.SoilType = 1, beams.record.CLSettleState = 1;
    beams.page.settings.UseBeamOnly = 1;
    beams.results.BearingArea = 598, beams.results.SoilPressure = 614;
    PrintRROA_Comp(beams.page, Heights, true);
    EXPECT_EQ(beams.LineOf("Bearing Area (based on beam bottom area only)"),
              (std::vector<std::string>{"598  FT", "2"}));
    EXPECT_EQ(beams.LineOf("Applied Pressure on Soil"), (std::vector<std::string>{"614  PSF"}));
}

TEST(PrintReport, NoTwoTextsOfALineRunIntoEachOtherOrPastTheRightEdge) {
    // Every page of the entire report, in the states that lengthen its lines: both soils, with
    // and without edge down and the uniform slab, bearing on the beam bottoms or not, each kind
    // of subgrade friction, a custom tendon, a line load, every check listed, the note of the
    // prestress at Beta and the second edition's deflections.
    for (const std::int16_t soil : {0, 1}) {
        for (const std::int16_t edgeDown : {0, 1}) {
            for (const std::int16_t flatSlab : {0, 1}) {
                for (const std::int16_t beamOnly : {0, 1}) {
                    for (const std::int16_t friction : {0, 1, 2}) {
                        DesignRecord record = PlainRibbedRecord();
                        record.SoilType = soil, record.CLSettleState = edgeDown;
                        record.FlatSlab = flatSlab, record.LineLoadType = 1;
                        record.Subgradetype = friction, record.TendType = 3;
                        ResultsRecord results = CompliantResults();
                        results.BearingArea = 12206, results.SoilPressure = 1660;
                        PrintJob job;
                        job.pages = RangePages(PrintRange::Entire, record, {}, {});
                        job.totalSheets = RangeSheetCount(PrintRange::Entire, record, {}, {});
                        RecordingSurface surface;
                        PrintReport(
                            surface, job, record, results,
                            {.projectPath = "/lot.kvt",
                             .showAll = true,
                             .engine = {.UseBeta = 1, .UseBeamOnly = beamOnly, .ShowDD = 1}});
                        const std::string state = std::to_string(soil) + std::to_string(edgeDown) +
                                                  std::to_string(flatSlab) +
                                                  std::to_string(beamOnly) +
                                                  std::to_string(friction);
                        for (std::size_t sheet = 0; sheet < surface.sheets().size(); ++sheet) {
                            EXPECT_EQ(OverlappingTexts(surface.sheets()[sheet]),
                                      std::vector<std::string>{})
                                << state << " sheet " << sheet;
                            // The stress tables' compression caption, 33 characters of 100
                            // twips, ends on the right text edge at the latest.
                            for (const RecordedText& t : surface.sheets()[sheet].texts) {
                                if (t.text.rfind("Compression in ", 0) == 0) {
                                    EXPECT_LE(t.x + 100.0 * t.text.size(), 10580)
                                        << state << " " << t.text;
                                }
                            }
                        }
                    }
                }
            }
        }
    }
}
