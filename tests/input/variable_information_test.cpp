#include "input/variable_information.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

constexpr const char* BlockHeading = "Variable Information:\n";

// The run holding exactly this text, or nothing.
const StyledRun* FindRun(const StyledText& box, const std::string& text) {
    for (const StyledRun& run : box.runs) {
        if (run.text == text) {
            return &run;
        }
    }
    return nullptr;
}

bool Contains(const StyledText& box, const std::string& text) {
    return PlainText(box).find(text) != std::string::npos;
}

} // namespace

TEST(VariableInformation, NumericTopicShowsStyledBlockWithFormattedDefaults) {
    DesignRecord d;
    d.Fpc = 3250.5;
    d.TendArea = 0.1531;
    d.QS1 = 4, d.QS2 = 1234, d.QL1 = 3, d.QL2 = 0;

    const StyledText fpc = MoreInfoMaterialProp(1, d);
    ASSERT_GE(fpc.runs.size(), 4u);
    EXPECT_EQ(fpc.runs[0].text, "Concrete Strength\n\n");
    EXPECT_TRUE(fpc.runs[0].bold);
    EXPECT_FALSE(fpc.runs[1].bold);
    EXPECT_TRUE(fpc.runs[1].text.starts_with("    The "));
    EXPECT_TRUE(fpc.runs[1].text.ends_with("\n\n"));
    const StyledRun* heading = FindRun(fpc, BlockHeading);
    ASSERT_NE(heading, nullptr);
    EXPECT_TRUE(heading->bold);
    EXPECT_EQ(fpc.runs.back().text, "   Program Default : 3,250.5\n");
    EXPECT_FALSE(fpc.runs.back().bold);
    for (const StyledRun& run : fpc.runs) {
        EXPECT_EQ(run.size, 8);
        EXPECT_FALSE(run.red || run.centred);
    }

    // The nominal size comes first, the default area of "Other" last, to three decimals.
    const std::string tendon = PlainText(MoreInfoMaterialProp(5, d));
    const auto nominal = tendon.find("   Program Default : 1/2\" diameter\n");
    ASSERT_NE(nominal, std::string::npos);
    EXPECT_LT(nominal, tendon.find("   Input Unit: square inch (in^2)\n"));
    EXPECT_TRUE(tendon.ends_with("   Program Default : 0.153\n"));

    // Beam counts are whole numbers, grouped by thousands.
    const StyledText quantity = MoreInfoBeamProp(1, d);
    EXPECT_TRUE(Contains(quantity, "   Program Default (Type I Short) : 4\n"
                                   "   Program Default (Type II Short) : 1,234\n"
                                   "   Program Default (Type I Long) : 3\n"
                                   "   Program Default (Type II Long) : 0\n"));
}

TEST(VariableInformation, PairedDefaultsShowEachValue) {
    DesignRecord d;
    d.EmCenter = 5.5, d.EmEdge = 2.75;
    d.Es = 1000;
    d.DefCenter = 360, d.DefEdge = 720.5;
    d.DefSettle = 240, d.DefCLSettle = 480.25;
    d.SMin = 8, d.SMax = 14.125, d.LMin = 9.5, d.LMax = 12.0005;
    d.ExpBearing = 1500, d.CompBearing = 2000.5;

    EXPECT_TRUE(Contains(MoreInfoSoilProp(3, d), "   Program Default (Center) : 5.5\n"
                                                 "   Program Default (Edge) : 2.75\n"));
    EXPECT_TRUE(Contains(MoreInfoSoilProp(7, d), "   Program Default (Short) : 1,000.0\n"
                                                 "   Program Default (Long)  : 1,000.0\n"));
    // The allowable bearing topics of both soil frames and of the soil type list are one text.
    const std::string bearing = "   Program Default (Expansive) : 1,500.0\n"
                                "   Program Default (Compressive) : 2,000.5\n";
    for (const int topic : {1, 2, 5}) {
        EXPECT_TRUE(Contains(MoreInfoSoilProp(topic, d), bearing)) << topic;
    }
    for (const int topic : {2, 3}) {
        EXPECT_TRUE(Contains(MoreInfoLDPProp(topic, d), "   Program Default (Center) : 360.0\n"
                                                        "   Program Default (Edge) : 720.5\n"));
    }
    for (const int topic : {4, 5}) {
        EXPECT_TRUE(Contains(MoreInfoLDPProp(topic, d),
                             "   Program Default (Center Down) : 240.0\n"
                             "   Program Default (Edge Down) : 480.25\n"));
    }
    EXPECT_TRUE(Contains(MoreInfoBeamProp(6, d), "   Program Default (Min. Short) : 8.0\n"
                                                 "   Program Default (Max. Short) : 14.125\n"
                                                 "   Program Default (Min. Long) : 9.5\n"
                                                 "   Program Default (Max. Long) : 12.001\n"));
}

TEST(VariableInformation, TextFieldsShowTheirMaximumLength) {
    const DesignRecord d;
    const StyledText engineer = MoreInfoProjectInfo(3, d);
    EXPECT_EQ(engineer.runs[0].text, "Project Engineer\n\n");
    EXPECT_TRUE(Contains(engineer, "Variable Information:\n"
                                   "   Input Type: Alphanumeric\n"
                                   "   Maximum Length : 30\n"));
    EXPECT_FALSE(Contains(engineer, "Program Default"));
    EXPECT_FALSE(Contains(engineer, "Input Unit"));

    EXPECT_TRUE(Contains(MoreInfoProjectInfo(6, d), "   Maximum Length : 18\n"));
    EXPECT_EQ(MoreInfoMaterialProp(0, d).runs[0].text, "Material Label (Optional)\n\n");
    EXPECT_EQ(MoreInfoMaterialProp(0, d).runs[1].text,
              "    The Material Label can be used to identify a unique set of material properties, "
              "which can be used as part of the file name when saving the screen.\n\n");

    // Each project field is said to head the printed reports.
    for (int topic = 0; topic <= 6; ++topic) {
        EXPECT_TRUE(Contains(MoreInfoProjectInfo(topic, d), "header of all printed reports"))
            << topic;
    }
}

TEST(VariableInformation, PageTopicNamesTheTabAndEndsWithTheRightClickHint) {
    const DesignRecord d;
    const struct {
        int page;
        const char* title;
    } pages[] = {
        {1, "Project Information Tab\n\n"},
        {2, "Material Properties Tab\n\n"},
        {3, "Slab Properties Tab\n\n"},
        {4, "Beam Properties Tab\n\n"},
        {5, "Soil Properties Tab\n\n"},
        {6, "Load, Stiffness or Deflection, & Prestress Tab\n\n"},
        {7, "Line Load Analysis Tab\n\n"},
    };
    for (const auto& page : pages) {
        const StyledText box = MoreInfoForPage(page.page, PageTopic, d);
        ASSERT_GE(box.runs.size(), 4u) << page.page;
        EXPECT_EQ(box.runs.front().text, page.title);
        EXPECT_TRUE(box.runs.front().bold);
        EXPECT_TRUE(Contains(box, "\"Save ....\"") && Contains(box, "\"Open ....\"")) << page.page;
        EXPECT_EQ(box.runs.back().text, "    Right click on textbox, checkbox or option button "
                                        "labels for more information about the variables.");
        EXPECT_TRUE(box.runs.back().bold);
    }
    EXPECT_EQ(MoreInfoForPage(2, PageTopic, d).runs[1].text,
              "    The Material Properties Tab contains variables used to define the properties of "
              "the concrete and tendons.\n\n");
}

TEST(VariableInformation, EveryTopicIsTitleDescriptionAndOptionalBlock) {
    const DesignRecord d;
    // The topics of each page that have no block of type and limits.
    const struct {
        int page;
        int topics;
        std::vector<int> withoutBlock;
    } pages[] = {
        {1, 8, {7}}, {2, 6, {}},   {3, 8, {}},  {4, 9, {0, 7, 8}},
        {5, 9, {8}}, {6, 10, {6}}, {7, 1, {0}},
    };
    for (const auto& page : pages) {
        for (int topic = 0; topic < page.topics; ++topic) {
            const StyledText box = MoreInfoForPage(page.page, topic, d);
            const std::string where =
                "page " + std::to_string(page.page) + " topic " + std::to_string(topic);
            ASSERT_GE(box.runs.size(), 2u) << where;
            EXPECT_TRUE(box.runs[0].bold) << where;
            EXPECT_EQ(box.runs[0].text.find('\n'), box.runs[0].text.size() - 2) << where;
            EXPECT_FALSE(box.runs[1].bold) << where;
            EXPECT_TRUE(box.runs[1].text.starts_with("    ")) << where;
            const StyledRun* heading = FindRun(box, BlockHeading);
            const bool noBlock = std::find(page.withoutBlock.begin(), page.withoutBlock.end(),
                                           topic) != page.withoutBlock.end();
            EXPECT_EQ(heading == nullptr, noBlock) << where;
            if (heading != nullptr) {
                // Every line of the block is regular and three spaces in.
                for (const StyledRun* run = heading + 1; run != box.runs.data() + box.runs.size();
                     ++run) {
                    EXPECT_FALSE(run->bold) << where;
                    EXPECT_TRUE(run->text.starts_with("   ")) << where;
                    EXPECT_EQ(run->text.back(), '\n') << where;
                }
            } else {
                EXPECT_TRUE(box.runs.back().text.ends_with("\n\n")) << where;
            }
        }
        EXPECT_TRUE(MoreInfoForPage(page.page, page.topics, d).runs.empty()) << page.page;
        EXPECT_TRUE(MoreInfoForPage(page.page, -1, d).runs.empty()) << page.page;
    }
    EXPECT_TRUE(MoreInfoForPage(0, PageTopic, d).runs.empty());
    EXPECT_TRUE(MoreInfoForPage(8, 0, d).runs.empty());
}
