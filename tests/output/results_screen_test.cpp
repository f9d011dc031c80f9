#include "output/compliance_pages.h"
#include "output/results_screen.h"

#include "tests/compliance/compliance_test_support.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

std::string Text(const ResultsScreen& screen, const std::string& name) {
    return screen.form[name].caption;
}

bool Visible(const ResultsScreen& screen, const std::string& name) {
    return screen.form[name].visible;
}

ResultsScreen Filled(const DesignRecord& record, const ResultsRecord& results,
                     EngineSettings settings = {}) {
    ResultsScreen screen = LoadResultsScreen();
    FillResults(screen, record, results, settings);
    return screen;
}

// The row of a page whose fixed caption reads `text`; a failure when the page has none.
const ResultRow* RowCaptioned(const ResultsScreen& screen, const std::string& frame,
                              const std::string& text) {
    for (const ResultRow& row : PageOfFrame(screen.pages, frame).rows) {
        if (screen.form[row.caption].caption == text) {
            return &row;
        }
    }
    ADD_FAILURE() << "no row \"" << text << "\" on " << frame;
    return nullptr;
}

// The texts of the rows a page shows, top to bottom: the caption, then each value.
std::vector<std::string> ShownRows(const ResultsScreen& screen, const std::string& frame) {
    std::vector<std::string> shown;
    for (const ResultRow& row : PageOfFrame(screen.pages, frame).rows) {
        if (!IsRowShown(screen.form, row)) {
            continue;
        }
        std::string text = screen.form[row.caption].caption;
        for (const std::string& value : row.values) {
            text += " | " + screen.form[value].caption;
        }
        shown.push_back(text);
    }
    return shown;
}

// A rectangle of 40 x 60 ft with a 4 in slab and half-inch tendons, and results chosen so that
// each pattern's rounding can be seen.
DesignRecord SummaryRecord() {
    DesignRecord record = PlainRibbedRecord();
    record.RectWidth = 40, record.RectLength = 60, record.Fpu = 270, record.TendDiam = 0.5;
    return record;
}

} // namespace

TEST(FillResults, DesignSummaryAndBearingPagesWriteTheirPatternsAndSuffixes) {
    DesignRecord record = SummaryRecord();
    ResultsRecord r = CompliantResults();
    r.ConcreteVolume = 70.25; // a half: rounds away from zero
    r.TendonLength = 1234.5;
    r.SlabTenShort = 20, r.SlabTenSpacingShort = 2;
    r.SlabTenLong = 13, r.SlabTenSpacingLong = 4.625;
    r.CgSlab = 2; // the middle of the 4 in slab
    r.TotalAppliedLoad = 1234567.5;
    r.BearingSafety = 2;
    r.BeamTenShort = 2.5, r.BeamTenLong = 2;
    r.AreaShort = 2000, r.PsCenterShort = 100;

    ResultsScreen screen = Filled(record, r, {.UseBeamOnly = 1});
    EXPECT_EQ(Text(screen, "lblWLT"), "40.00 FT x 60.00 FT x 4.00 Inches thick");
    EXPECT_EQ(Text(screen, "lblFpc"), "3,000 PSI");
    EXPECT_EQ(Text(screen, "lblFpu"), "270 KSI");
    EXPECT_EQ(Text(screen, "lblConcVOL"), "70.3 Cubic Yards");
    EXPECT_EQ(Text(screen, "lblTNDNLGTH"), "1,234.5 Linear Feet");
    EXPECT_EQ(Text(screen, "lblSST"), "20 Tendons at 2.00 Feet O.C.");
    EXPECT_EQ(Text(screen, "lblLST"), "13 Tendons at 4.63 Feet O.C.");
    EXPECT_EQ(Text(screen, "lblQS1"), "3");
    EXPECT_EQ(Text(screen, "lblDS1"), "24.0");
    // No cover given: from the slab's centroid, 2 in, less half the tendon, 0.25 in.
    EXPECT_EQ(Text(screen, "lblSlabTenCov"), "1.75 Inches");
    EXPECT_EQ(Text(screen, "lblTotalWT"), "1,234,568");
    EXPECT_EQ(Text(screen, "lblSF"), "2.00");
    EXPECT_EQ(Text(screen, "lblBeamOnly"), "(Based on beam bottom area only)");
    EXPECT_EQ(Text(screen, "lblTNBTS"), "2.5");
    EXPECT_EQ(Text(screen, "lblTNBTL"), "2");
    EXPECT_EQ(Text(screen, "lblMEPFS"), "200.0"); // 2000 in2 x 100 psi = 200 kips
    EXPECT_EQ(Text(screen, "lblSubgradeType"),
              "Subgrade Friction calculated by method prescribed in PTI Manual");

    record.SlabTenCovType = 1, record.SlabTenCov = 1.5;
    record.Subgradetype = 1;
    FillResults(screen, record, r, {});
    EXPECT_EQ(Text(screen, "lblSlabTenCov"), "1.50 Inches");
    EXPECT_EQ(Text(screen, "lblBeamOnly"), "");
    EXPECT_EQ(Text(screen, "lblSubgradeType"),
              "Subgrade Friction calculated by \"Full Length Drag\" Method");

    record.Subgradetype = 2, record.FlatSlab = 1;
    FillResults(screen, record, r, {});
    EXPECT_EQ(Text(screen, "lblSubgradeType"), "Subgrade Friction calculated by user.  Effective "
                                               "prestress at mid-slab not calculated.");
    EXPECT_EQ(Text(screen, "lbleqSubgradeType"), "Subgrade Friction calculated by user.");
}

TEST(FillResults, BearingOverItsLimitAloneLeavesTheRibbedFoundationInCompliance) {
    ResultsRecord r = CompliantResults();
    r.BearingSafety = 0.8, r.BearingExcess = 25;
    const ResultsScreen screen = Filled(PlainRibbedRecord(), r);
    const Control& line = screen.form["RibbedSummary(1)"];
    EXPECT_EQ(line.caption, "Ribbed Foundation in compliance");
    EXPECT_FALSE(line.bold || line.red);
    EXPECT_EQ(RedRuns(screen.rtbRibbedDC), (std::vector<std::string>{"\tSOIL BEARING : 25.0%\n"}));

    // A stress over its limit turns the line bold red, and the bearing item is counted with it.
    r.StressTopCLShort = -0.5;
    const ResultsScreen failing = Filled(PlainRibbedRecord(), r);
    const Control& bad = failing.form["RibbedSummary(1)"];
    EXPECT_EQ(bad.caption, "Ribbed Foundation has 2 items out of compliance");
    EXPECT_TRUE(bad.bold && bad.red);
    EXPECT_EQ(Text(failing, "RibbedSummary(2)"), "Ribbed Foundation has no PTI Exceptions");
}

TEST(FillResults, EdgeDownPrestressStandsInBracketsAfterCenterDown) {
    DesignRecord record = PlainRibbedRecord();
    record.SoilType = 1, record.CLSettleState = 1, record.FlatSlab = 1;
    ResultsRecord r = CompliantResults();
    r.AreaShort = 1000, r.AreaLong = 800;
    r.ForceNetCDShort = 123.45, r.ForceNetEDShort = 98.76;
    r.ForceNetCDLong = 200, r.ForceNetEDLong = 150;
    r.UTAreaShort = 2000, r.UTAreaLong = 2000;
    r.UTForceNetCDShort = 300, r.UTForceNetEDShort = 250.5;
    r.UTForceNetCDLong = 100, r.UTForceNetEDLong = 50;
    r.BetaCDShort = 8.125, r.BetaCDLong = 7.5, r.BetaEDShort = 3.333, r.BetaEDLong = 2;

    ResultsScreen screen = Filled(record, r);
    EXPECT_EQ(Text(screen, "lblSlab(0)"),
              "Effective Prestress Force at Beta - Center Down (Edge Down) :");
    EXPECT_EQ(Text(screen, "lblSlab(1)"),
              "Effective Prestress at Beta - Center Down (Edge Down) :");
    EXPECT_EQ(Text(screen, "lblEPFBS"), "123.5 (98.8)");
    EXPECT_EQ(Text(screen, "lblEPFBL"), "200.0 (150.0)");
    EXPECT_EQ(Text(screen, "lblEPBS"), "123 (99)");  // 123.45 and 98.76 psi on 1000 in2
    EXPECT_EQ(Text(screen, "lblEPBL"), "250 (188)"); // 250 and 187.5 psi on 800 in2
    EXPECT_EQ(Text(screen, "lbleqBEPF(0)"), "300.0 (250.5)");
    EXPECT_EQ(Text(screen, "lbleqBEP(0)"), "150 (125)"); // 125.25 psi
    EXPECT_EQ(Text(screen, "lbleqBEP(1)"), "50 (25)");
    EXPECT_EQ(Text(screen, "lblSV(0)"), "Beta Distance (Center Down) :");
    EXPECT_EQ(Text(screen, "lblBETA(0)"), "8.13");
    EXPECT_EQ(Text(screen, "lblBETA(2)"), "3.33");
    EXPECT_TRUE(Visible(screen, "lblSV(1)") && Visible(screen, "lblBETA(3)"));

    // Without edge down the brackets and the second Beta row go.
    record.CLSettleState = 0;
    FillResults(screen, record, r, {});
    EXPECT_EQ(Text(screen, "lblSlab(0)"), "Effective Prestress Force at Beta - Center Down :");
    EXPECT_EQ(Text(screen, "lblEPFBS"), "123.5");
    EXPECT_EQ(Text(screen, "lblUTS(1)"), "Effective Prestress at Beta - Center Down :");
    EXPECT_FALSE(Visible(screen, "lblSV(1)") || Visible(screen, "lblBETA(2)"));
    EXPECT_FALSE(Visible(screen, "lbleqSV(1)") || Visible(screen, "lbleqBETA(3)"));
}

TEST(FillResults, EachDownPageShowsItsOwnDeflectionRatioAndDeflections) {
    DesignRecord record = PlainRibbedRecord();
    record.SoilType = 1, record.CLSettleState = 1, record.FlatSlab = 1;
    record.DefSettle = 1200, record.DefCLSettle = 480;
    ResultsRecord r = CompliantResults();
    r.NetDeflCDShort = 0.125, r.AllowDeflCDShort = 0.28;
    r.NetDeflEDShort = 0.375, r.AllowDeflEDShort = 0.9; // L / 480 of a 36 ft width
    r.NetDeflEDLong = 0.3649, r.AllowDeflEDLong = 1.35; // L / 480 of a 54 ft length
    r.UTNetDeflEDShort = 0.2, r.UTAllowDeflEDShort = 0.9;
    const ResultsScreen screen = Filled(record, r);

    // Center down is held to L / 1200, edge down to L / 480; each page names its own ratio.
    EXPECT_EQ(Text(screen, "lblDefSettle(0)"), "1,200");
    EXPECT_EQ(Text(screen, "lblDefSettle(1)"), "480");
    EXPECT_EQ(Text(screen, "lbleqDefSettle(0)"), "1,200");
    EXPECT_EQ(Text(screen, "lbleqDefSettle(1)"), "480");
    const std::string ratioCaption = "Based on an allowable deflection of L /";
    for (const auto& [frame, ratio] : std::vector<std::pair<std::string, std::string>>{
             {"fraExpOutput(7)", "lblDefSettle(0)"},
             {"fraExpOutput(8)", "lblDefSettle(1)"},
             {"fraUTFOutput(6)", "lbleqDefSettle(0)"},
             {"fraUTFOutput(7)", "lbleqDefSettle(1)"}}) {
        const ResultRow* row = RowCaptioned(screen, frame, ratioCaption);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->values, std::vector<std::string>{ratio}) << frame;
    }

    // The actual and allowable deflections of each mode, to the hundredth of an inch.
    EXPECT_EQ(Text(screen, "lblcDDS"), "0.13");
    EXPECT_EQ(Text(screen, "lblAcDDS"), "0.28");
    EXPECT_EQ(Text(screen, "lblcCLDDS"), "0.38");
    EXPECT_EQ(Text(screen, "lblcACLDDS"), "0.90");
    EXPECT_EQ(Text(screen, "lblcCLDDL"), "0.36");
    EXPECT_EQ(Text(screen, "lblcACLDDL"), "1.35");
    EXPECT_EQ(Text(screen, "lbleqcCLDD(0)"), "0.20");
    EXPECT_EQ(Text(screen, "lbleqcCLADD(0)"), "0.90");
}

TEST(FillResults, EquivalentDepthShowsOnlyForTwoGroupsOfDifferentDepths) {
    DesignRecord record = PlainRibbedRecord();
    record.QS2 = 2, record.DS2 = 24, record.WS2 = 10; // equal depths
    record.QL2 = 2, record.DL2 = 30, record.WL2 = 10; // different depths
    ResultsRecord r = CompliantResults();
    r.EquivDepthShort = 24, r.EquivDepthLong = 26.666;
    const ResultsScreen screen = Filled(record, r);
    EXPECT_FALSE(Visible(screen, "lblDS") || Visible(screen, "EqDepth(0)"));
    EXPECT_TRUE(Visible(screen, "lblDL") && Visible(screen, "EqDepth(1)"));
    EXPECT_EQ(Text(screen, "lblDL"), "26.67");

    // Different depths, but one group without beams.
    record.QL2 = 0;
    const ResultsScreen single = Filled(record, r);
    EXPECT_FALSE(Visible(single, "lblDL") || Visible(single, "EqDepth(1)"));
}

TEST(FillResults, ASecondRunOnOtherSoilKeepsThePagesItDoesNotWrite) {
    DesignRecord record = PlainRibbedRecord();
    ResultsRecord r = CompliantResults();
    r.MomentCLShort = 12.345, r.StressTopCLShort = -0.1234, r.ReqInertiaCLLong = 12345.5;
    r.BetaShort = 9.5;
    ResultsScreen screen = LoadResultsScreen();
    FillResults(screen, record, r, {});
    EXPECT_EQ(Text(screen, "lblCLMS"), "12.35");
    EXPECT_EQ(Text(screen, "lblNMTS"), "-0.123");
    EXPECT_EQ(Text(screen, "lblIRLc"), "12,346");
    EXPECT_EQ(Text(screen, "lblSV(0)"), "Beta Distance :");

    record.SoilType = 1;
    r.MomentCLShort = 99, r.MomentCDShort = 4.5, r.NetDeflCDShort = 0.125;
    r.AllowDeflCDShort = 0.5;
    FillResults(screen, record, r, {});
    EXPECT_EQ(Text(screen, "lblCLMS"), "12.35");
    EXPECT_EQ(Text(screen, "lblIRLc"), "12,346");
    EXPECT_EQ(Text(screen, "lblcMS"), "4.50");
    EXPECT_EQ(Text(screen, "lblcDDS"), "0.13");
    EXPECT_EQ(Text(screen, "lblAcDDS"), "0.50");
    EXPECT_EQ(Text(screen, "lblSV(0)"), "Beta Distance (Center Down) :");
    // Edge down is not analysed, so its page keeps the blank it was loaded with.
    EXPECT_EQ(Text(screen, "lblcCLMS"), "");
}

TEST(FillResults, VisibilityFollowsTheOptionsAndTheResults) {
    DesignRecord record = PlainRibbedRecord();
    ResultsRecord r = CompliantResults();
    r.Em5ControlShort = 1;
    ResultsScreen screen = Filled(record, r, {.UseBeta = 1, .ShowDD = 1});
    for (int copy = 0; copy < 9; ++copy) {
        EXPECT_TRUE(Visible(screen, ArrayName("lblUseBeta", copy))) << copy;
        EXPECT_EQ(Text(screen, ArrayName("lblFT", copy)), copy == 8 ? "-0.300 KSI" : "-0.300");
        EXPECT_EQ(Text(screen, ArrayName("lblFc", copy)), copy == 8 ? "1.350 KSI" : "1.350");
    }
    EXPECT_TRUE(Visible(screen, "lblEm5RuleS"));
    EXPECT_FALSE(Visible(screen, "lblEm5RuleL"));
    EXPECT_TRUE(Visible(screen, "fraDD(0)") && Visible(screen, "fraDD(1)"));
    // No uniform thickness foundation and no line load: their summary lines are hidden.
    for (const char* item :
         {"UTFSummary(0)", "UTFSummary(1)", "UTFSummary(2)", "LLSummary(0)", "LLSummary(1)"}) {
        EXPECT_FALSE(Visible(screen, item)) << item;
    }

    FillResults(screen, record, CompliantResults(), {});
    EXPECT_FALSE(Visible(screen, "lblUseBeta(4)"));
    EXPECT_FALSE(Visible(screen, "lblEm5RuleS"));
    EXPECT_FALSE(Visible(screen, "fraDD(1)"));
}

TEST(FillResults, DifferentialDeflectionPanelShowsUnderItsTitleOnlyWhenAsked) {
    const DesignRecord record = PlainRibbedRecord();
    ResultsRecord r = CompliantResults();
    r.NetDeflCLShort = 0.755, r.NetDeflCLLong = 0.75, r.AllowDeflCLShort = 1;
    r.AllowDeflCLLong = 1.5; // L / 480 of 40 and 60 ft
    r.NetDeflELShort = 0.0449, r.AllowDeflELShort = 0.5;
    ResultsScreen screen = Filled(record, r, {.ShowDD = 1});

    const std::vector<std::string> centerLift = ShownRows(screen, "fraExpOutput(3)");
    const std::vector<std::string> panel = {
        "DIFFERENTIAL DEFLECTION",
        "Note:  This calculation is not included in or required by the 3rd Edition PTI Manual",
        "Actual Deflection : | 0.76 | 0.75", "Allowable Deflection : | 1.00 | 1.50"};
    const auto title = std::find(centerLift.begin(), centerLift.end(), panel[0]);
    ASSERT_NE(title, centerLift.end());
    EXPECT_EQ(std::vector<std::string>(title, title + 4), panel);
    const std::vector<std::string> edgeLift = ShownRows(screen, "fraExpOutput(4)");
    EXPECT_EQ(std::count(edgeLift.begin(), edgeLift.end(), "DIFFERENTIAL DEFLECTION"), 1);
    EXPECT_EQ(std::count(edgeLift.begin(), edgeLift.end(), "Actual Deflection : | 0.04 | 0.00"), 1);

    // Without the option neither the panel's title nor its rows show.
    FillResults(screen, record, r, {});
    for (const char* frame : {"fraExpOutput(3)", "fraExpOutput(4)"}) {
        for (const std::string& row : ShownRows(screen, frame)) {
            EXPECT_TRUE(row.find("DEFLECTION") == std::string::npos &&
                        row.find("Deflection") == std::string::npos)
                << frame << ": " << row;
        }
    }
}

TEST(FillResults, LineLoadPageNamesBothSlabsWithAUniformFoundation) {
    DesignRecord record = PlainRibbedRecord();
    record.LineLoadType = 1, record.DirLineLoad = "Short Direction";
    ResultsRecord r = CompliantResults();
    r.LLMoment = 12345, r.LLStressCompression = 381.2, r.LLStressTension = -181.5;
    r.LLPrestress = 100;
    r.UTLLMoment = 50000, r.UTLLStressCompression = 190, r.UTLLStressTension = 10;

    ResultsScreen screen = Filled(record, r);
    EXPECT_EQ(Text(screen, "lblllDesc"), "for Line Load running parallel to the Short Direction");
    EXPECT_EQ(Text(screen, "lblllPM"), "12.35 K FT/FT");
    EXPECT_EQ(Text(screen, "lblllST"), "0.381 KSI");
    EXPECT_EQ(Text(screen, "lblllSB"), "-0.182 KSI");
    EXPECT_EQ(Text(screen, "lblllPrestress"), "100.0 PSI");
    EXPECT_EQ(Text(screen, "lblLine(0)"), "Calculated Moment :");
    EXPECT_FALSE(Visible(screen, "lblllPMeq") || Visible(screen, "lblLine(3)"));
    EXPECT_EQ(Text(screen, "LLSummary(0)"), "Line Load Analysis in compliance");
    EXPECT_FALSE(Visible(screen, "LLSummary(1)"));

    // A uniform foundation adds its slab's rows; the ribbed tension over its limit is counted.
    record.FlatSlab = 1;
    r.LLStressTension = -400, r.ExcessLLTension = 33.3;
    FillResults(screen, record, r, {});
    EXPECT_EQ(Text(screen, "lblLine(0)"), "Calculated Moment (4.00 In.Thick Slab) :");
    EXPECT_EQ(Text(screen, "lblLine(1)"), "Applied Bending Stress (4.00 In. Thick Slab) :");
    EXPECT_EQ(Text(screen, "lblLine(5)"), "Prestress at Line Load (8.00 In. Thick Slab) :");
    EXPECT_TRUE(Visible(screen, "lblllPMeq") && Visible(screen, "lblLine(4)"));
    EXPECT_EQ(Text(screen, "lblllPMeq"), "50.00 K FT/FT");
    const Control& ribbedLine = screen.form["LLSummary(0)"];
    EXPECT_EQ(ribbedLine.caption,
              "Ribbed Foundation - Line load Analysis has 1 items out of compliance");
    EXPECT_TRUE(ribbedLine.bold && ribbedLine.red);
    EXPECT_EQ(Text(screen, "LLSummary(1)"),
              "Uniform Thickness Foundation - Line Load Analysis in compliance");
    EXPECT_TRUE(Visible(screen, "UTFSummary(1)"));
}

TEST(FillResults, DisplayAllStoresItsFlagAndRebuildsOnlyItsList) {
    const DesignRecord record = PlainRibbedRecord();
    const ResultsRecord r = CompliantResults();
    ResultsScreen screen = Filled(record, r);
    const std::string within = "\tALL VALUES WITHIN ALLOWABLE LIMITS.\n";
    ASSERT_EQ(Lines(screen.rtbRibbedDC).at(2), within);
    const StyledText exceptions = screen.rtbRibbedPE;

    ClickDisplayAll(screen, "chkRibbedDC", true, record, r);
    EXPECT_EQ(screen.flags.ShowAllRibbed, 1);
    EXPECT_TRUE(screen.form["chkRibbedDC"].checked);
    const std::vector<std::string> lines = Lines(screen.rtbRibbedDC);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), within), 0);
    EXPECT_NE(std::find(lines.begin(), lines.end(),
                        "\tBENDING STRESS IN SHORT DIRECTION (TENSION) : 0.0%\n"),
              lines.end());
    EXPECT_EQ(screen.rtbRibbedPE.runs.size(), exceptions.runs.size());

    // The flag outlives the analysis: the next one lists every value too.
    FillResults(screen, record, r, {});
    EXPECT_EQ(Lines(screen.rtbRibbedDC), lines);
    ClickDisplayAll(screen, "chkRibbedDC", false, record, r);
    EXPECT_EQ(Lines(screen.rtbRibbedDC).at(2), within);
}

TEST(ResultsScreenLayout, EveryRowPlacesControlsOfTheScreenAndEveryValueIsPlaced) {
    const ResultsScreen screen = LoadResultsScreen();
    std::set<std::string> placed;
    for (const ResultPage& page : screen.pages) {
        ASSERT_TRUE(screen.form.has(page.frame)) << page.frame;
        for (const ResultRow& row : page.rows) {
            ASSERT_TRUE(screen.form.has(row.caption)) << row.caption;
            placed.insert(row.caption);
            for (const std::string& value : row.values) {
                ASSERT_TRUE(screen.form.has(value)) << value;
                placed.insert(value);
            }
            if (!row.unit.empty()) {
                placed.insert(row.unit);
            }
        }
    }
    for (const Control& control : screen.form.controls()) {
        const bool container = control.name.starts_with("fra");
        EXPECT_TRUE(container || placed.count(control.name) == 1) << control.name;
    }
    // The project and line load pages, and one page in each of the 9 ribbed and 8 uniform frames.
    EXPECT_EQ(screen.pages.size(), 19u);
    EXPECT_EQ(Text(screen, "lblRPELabel"), ExceptionsHeading);
    EXPECT_EQ(Text(screen, "lblUTFPELabel"), ExceptionsHeading);
}

// A force at the largest number a double holds gives a prestress past it: the screen stops as
// the analysis does at an overflow, rather than show "Infinity"; a section without area (no
// number at all) is an invalid argument.
TEST(FillResults, APrestressTooLargeToShowEndsLikeAFault) {
    ResultsRecord r = CompliantResults();
    r.ForceNetShort = 1.7976931348623157e308;
    ResultsScreen screen = LoadResultsScreen();
    try {
        FillResults(screen, SummaryRecord(), r, {});
        ADD_FAILURE() << "no fault";
    } catch (const ResultsValueFault& fault) {
        EXPECT_EQ(fault.kind, FaultKind::Overflow);
    }

    r = CompliantResults();
    r.AreaLong = 0; // and no force: nought over nought
    try {
        FillResults(screen, SummaryRecord(), r, {});
        ADD_FAILURE() << "no fault";
    } catch (const ResultsValueFault& fault) {
        EXPECT_EQ(fault.kind, FaultKind::InvalidArgument);
    }

    // Just short of it, the prestress is a number and is shown.
    r = CompliantResults();
    r.ForceNetShort = 1.7976931348623157e305;
    r.AreaShort = 1000;
    FillResults(screen, SummaryRecord(), r, {});
    EXPECT_EQ(Text(screen, "lblEPBS").find("Infinity"), std::string::npos);
    EXPECT_EQ(Text(screen, "lblEPBS").size(), 407u); // 306 digits and 101 commas
}
