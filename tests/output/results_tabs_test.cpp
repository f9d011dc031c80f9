#include "output/results_paging.h"
#include "output/results_screen.h"
#include "output/results_tabs.h"

#include "tests/compliance/compliance_test_support.h"

#include <gtest/gtest.h>

namespace {

using Captions = std::vector<std::string>;

DesignRecord Soil(std::int16_t soilType, std::int16_t clSettleState) {
    DesignRecord record = PlainRibbedRecord();
    record.SoilType = soilType;
    record.CLSettleState = clSettleState;
    return record;
}

// The frame of the array that is in front, or -1 when none is.
int FrontFrame(const ResultsScreen& screen, const std::string& array, int frames) {
    int front = -1;
    for (int i = 0; i < frames; ++i) {
        if (screen.form[ArrayName(array, i)].visible) {
            EXPECT_EQ(front, -1) << "two frames of " << array << " in front";
            front = i;
        }
    }
    return front;
}

const std::string Blanks13 = std::string(13, ' ');
const Captions CompressibleFirstThree = {Blanks13 + "Design Summary" + Blanks13,
                                         Blanks13 + "Design Compliance" + Blanks13,
                                         Blanks13 + "PTI Exceptions" + Blanks13 + " "};

} // namespace

TEST(ResultsTabs, EachSoilCaseSetsItsCaptionsAndWhichFrameEachTabShows) {
    ResultsScreen screen = LoadResultsScreen();

    // Compressible soil without edge down: six ribbed and five uniform tabs, widened by blanks.
    const DesignRecord centerDown = Soil(1, 0);
    ArrangeResultsScreen(screen, centerDown, ResultsScreenWidth);
    Captions ribbed = CompressibleFirstThree;
    ribbed.insert(ribbed.end(),
                  {"   Center Down Analysis   ", "   Soil Bearing / Prestress Summary   ",
                   "   Selected Variables   "});
    EXPECT_EQ(screen.tabRibbed.captions, ribbed);
    Captions uniform = CompressibleFirstThree;
    const std::string blanks22(22, ' ');
    uniform.insert(uniform.end(), {blanks22 + "Center Down Analysis" + blanks22,
                                   blanks22 + "Prestress Summary / Selected Variables" + blanks22});
    EXPECT_EQ(screen.tabUniform.captions, uniform);
    // Tab 4 shows the center down frame, 5 the bearing page and 6 the selected variables.
    const int ribbedFrames[] = {0, 1, 2, 7, 5, 6};
    const int uniformFrames[] = {0, 1, 2, 6, 5};
    for (int tab = 1; tab <= 6; ++tab) {
        SelectRibbedTab(screen, centerDown, tab);
        EXPECT_EQ(FrontFrame(screen, "fraExpOutput", RibbedFrames), ribbedFrames[tab - 1]) << tab;
    }
    for (int tab = 1; tab <= 5; ++tab) {
        SelectUniformTab(screen, centerDown, tab);
        EXPECT_EQ(FrontFrame(screen, "fraUTFOutput", UniformFrames), uniformFrames[tab - 1]) << tab;
    }

    // With edge down the seventh ribbed and sixth uniform tabs come back, without blanks; the
    // first three keep theirs.
    const DesignRecord edgeDown = Soil(1, 1);
    ArrangeResultsScreen(screen, edgeDown, ResultsScreenWidth);
    ribbed = CompressibleFirstThree;
    ribbed.insert(ribbed.end(), {"Center Down Analysis", "Edge Down Analysis",
                                 "Soil Bearing / Prestress Summary", "Selected Variables"});
    EXPECT_EQ(screen.tabRibbed.captions, ribbed);
    uniform = CompressibleFirstThree;
    uniform.insert(uniform.end(), {"Center Down Analysis", "Edge Down Analysis",
                                   "Prestress Summary / Selected Variables"});
    EXPECT_EQ(screen.tabUniform.captions, uniform);
    const int edgeDownRibbed[] = {0, 1, 2, 7, 8, 5, 6};
    const int edgeDownUniform[] = {0, 1, 2, 6, 7, 5};
    for (int tab = 1; tab <= 7; ++tab) {
        EXPECT_EQ(RibbedFrameOfTab(1, 1, tab), edgeDownRibbed[tab - 1]) << tab;
    }
    for (int tab = 1; tab <= 6; ++tab) {
        EXPECT_EQ(UniformFrameOfTab(1, 1, tab), edgeDownUniform[tab - 1]) << tab;
    }

    // Expansive soil after compressible: the analysis tabs are renamed, but the first three are
    // left as the compressible run made them, blanks and all. Each tab shows its own frame.
    const DesignRecord expansive = Soil(0, 0);
    ArrangeResultsScreen(screen, expansive, ResultsScreenWidth);
    ribbed = CompressibleFirstThree;
    ribbed.insert(ribbed.end(), {"Center Lift Analysis", "Edge Lift Analysis",
                                 "Soil Bearing / Prestress Summary", "Selected Variables"});
    EXPECT_EQ(screen.tabRibbed.captions, ribbed);
    for (int tab = 1; tab <= 7; ++tab) {
        SelectRibbedTab(screen, expansive, tab);
        EXPECT_EQ(FrontFrame(screen, "fraExpOutput", RibbedFrames), tab - 1);
    }
}

TEST(ResultsTabs, ArrangingSelectsTheFirstTabsAndCentresTheScreen) {
    ResultsScreen screen = LoadResultsScreen();
    const DesignRecord record = Soil(0, 0);
    SelectMainTab(screen, 2);
    SelectRibbedTab(screen, record, 5);
    SelectUniformTab(screen, record, 4);
    screen.top = 300;
    ArrangeResultsScreen(screen, record, ResultsScreenWidth + 280);
    EXPECT_EQ(screen.left, 140);
    EXPECT_EQ(screen.top, 0);
    EXPECT_EQ(screen.tabMain.selected, 1);
    EXPECT_EQ(screen.tabRibbed.selected, 1);
    EXPECT_EQ(screen.tabUniform.selected, 1);
    EXPECT_EQ(FrontFrame(screen, "fraMain", MainFrames), 0);
    EXPECT_EQ(FrontFrame(screen, "fraExpOutput", RibbedFrames), 0);
    EXPECT_EQ(FrontFrame(screen, "fraUTFOutput", UniformFrames), 0);
}

TEST(ResultsTabs, MainTabsFollowTheUniformFoundationAndTheLineLoad) {
    ResultsScreen screen = LoadResultsScreen();
    DesignRecord record = Soil(0, 0);

    record.FlatSlab = 1, record.LineLoadType = 1;
    ArrangeResultsScreen(screen, record, ResultsScreenWidth);
    EXPECT_EQ(screen.tabMain.count(), 4);
    EXPECT_EQ(screen.tabMain.captions[2], "Uniform Thickness Foundation");
    EXPECT_EQ(screen.tabMain.captions[3], "Line Load Analysis");

    record.FlatSlab = 0, record.LineLoadType = 0;
    ArrangeResultsScreen(screen, record, ResultsScreenWidth);
    EXPECT_EQ(screen.tabMain.count(), 2);

    // Without the uniform thickness foundation the line load is tab 3, and it shows the line
    // load page, which a line load summary line brings up.
    record.LineLoadType = 1;
    ArrangeResultsScreen(screen, record, ResultsScreenWidth);
    EXPECT_EQ(screen.tabMain.captions,
              (Captions{"Project Summary", "Ribbed Foundation", "Line Load Analysis"}));
    ClickSummaryLine(screen, record, "LLSummary(0)");
    EXPECT_EQ(screen.tabMain.selected, 3);
    EXPECT_EQ(FrontFrame(screen, "fraMain", MainFrames), 3);

    record.FlatSlab = 1;
    ArrangeResultsScreen(screen, record, ResultsScreenWidth);
    ClickSummaryLine(screen, record, "LLSummary(1)");
    EXPECT_EQ(screen.tabMain.selected, 4);
    EXPECT_EQ(FrontFrame(screen, "fraMain", MainFrames), 3);
}

TEST(ResultsTabs, SummaryLinesJumpToTheirFoundationsPages) {
    ResultsScreen screen = LoadResultsScreen();
    DesignRecord record = Soil(1, 0);
    record.FlatSlab = 1;
    ArrangeResultsScreen(screen, record, ResultsScreenWidth);

    ClickSummaryLine(screen, record, "RibbedSummary(2)");
    EXPECT_EQ(screen.tabMain.selected, 2);
    EXPECT_EQ(screen.tabRibbed.selected, 3);
    EXPECT_EQ(FrontFrame(screen, "fraMain", MainFrames), 1);
    EXPECT_EQ(FrontFrame(screen, "fraExpOutput", RibbedFrames), 2);

    ClickSummaryLine(screen, record, "UTFSummary(1)");
    EXPECT_EQ(screen.tabMain.selected, 3);
    EXPECT_EQ(screen.tabUniform.selected, 2);
    EXPECT_EQ(FrontFrame(screen, "fraMain", MainFrames), 2);
    EXPECT_EQ(FrontFrame(screen, "fraUTFOutput", UniformFrames), 1);

    ClickSummaryLine(screen, record, "RibbedSummary(0)");
    EXPECT_EQ(screen.tabRibbed.selected, 1);
    EXPECT_THROW(ClickSummaryLine(screen, record, "lblCLMS"), std::out_of_range);
}

// Ctrl+PageDown and Ctrl+PageUp read the pages as one run: the project summary, the seven
// ribbed pages, the six uniform thickness pages, the line load page, and
// round again.
TEST(ResultsTabs, PageKeysWalkEveryPageInTurnAndGoRound) {
    ResultsScreen screen = LoadResultsScreen();
    DesignRecord record = Soil(0, 0);
    record.FlatSlab = 1, record.LineLoadType = 1;
    ArrangeResultsScreen(screen, record, ResultsScreenWidth);
    const int ribbed = screen.tabRibbed.count();
    const int uniform = screen.tabUniform.count();
    ASSERT_EQ(ribbed, 7);
    ASSERT_EQ(uniform, 6);

    StepResultsPage(screen, record, 1);
    EXPECT_EQ(screen.tabMain.selected, 2);
    EXPECT_EQ(screen.tabRibbed.selected, 1);
    EXPECT_EQ(FrontFrame(screen, "fraMain", MainFrames), 1);
    for (int page = 2; page <= ribbed; ++page) {
        StepResultsPage(screen, record, 1);
        EXPECT_EQ(screen.tabRibbed.selected, page);
    }
    StepResultsPage(screen, record, 1);
    EXPECT_EQ(screen.tabMain.selected, 3);
    EXPECT_EQ(screen.tabUniform.selected, 1);
    EXPECT_EQ(FrontFrame(screen, "fraMain", MainFrames), 2);
    for (int page = 2; page <= uniform; ++page) {
        StepResultsPage(screen, record, 1);
    }
    StepResultsPage(screen, record, 1);
    EXPECT_EQ(screen.tabMain.selected, 4);
    EXPECT_EQ(FrontFrame(screen, "fraMain", MainFrames), 3);
    StepResultsPage(screen, record, 1);
    EXPECT_EQ(screen.tabMain.selected, 1); // round to the project summary

    // Back from the summary: the line load page, then the last uniform page.
    StepResultsPage(screen, record, -1);
    EXPECT_EQ(screen.tabMain.selected, 4);
    StepResultsPage(screen, record, -1);
    EXPECT_EQ(screen.tabMain.selected, 3);
    EXPECT_EQ(screen.tabUniform.selected, uniform);
    EXPECT_EQ(FrontFrame(screen, "fraUTFOutput", UniformFrames), UniformFrameOfTab(0, 0, uniform));
}
