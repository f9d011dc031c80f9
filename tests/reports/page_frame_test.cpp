#include "reports/page_frame.h"
#include "reports/recording_surface.h"

#include <gtest/gtest.h>

namespace {

struct FramedPage {
    RecordingSurface surface;
    DesignRecord record;
    ResultsRecord results;
    PageContext page{surface, record, results};

    FramedPage() {
        record.ProjName = "Lot 14";
        record.ProjNum = "2026-117";
        page.projectPath = "/projects/lot14.kvt";
        page.totalSheets = 3;
        page.timeOfDay = "3:05:09 PM";
        surface.BeginDocument();
    }

    const RecordedText* Find(const std::string& text) const {
        for (const RecordedText& placed : surface.sheets().back().texts) {
            if (placed.text == text) {
                return &placed;
            }
        }
        return nullptr;
    }
};

} // namespace

TEST(PageFrame, LineHeightsAndTheBodyTopAreWholeTwips) {
    FramedPage f;
    // The recording surface's text is 23 twips a point high.
    const LineHeights heights = MeasureLineHeights(f.page);
    EXPECT_EQ(heights.points10, 230);
    EXPECT_EQ(heights.points12, 276);
    EXPECT_EQ(heights.points14, 322);
    // 230 x 2.25 + 2805 = 3322.5, a half rounded to the even 3322; 231 gives 3324.75.
    EXPECT_EQ(BodyTop(230), 3322);
    EXPECT_EQ(BodyTop(231), 3325);
}

TEST(PageFrame, FooterCentresThePageNumberAndHangsTheTimeOnTheRightEdge) {
    FramedPage f;
    f.surface.NewPage(); // the second sheet
    PrintFooter(f.page, 230);
    // "Page 2 of 3": 11 characters of 100 twips at 10 point, centred 360 left of the middle.
    const RecordedText* number = f.Find("Page 2 of 3");
    ASSERT_TRUE(number);
    EXPECT_EQ(number->x, (12240 - 1100) / 2 - 360);
    EXPECT_EQ(number->y, 14260 - 345);
    // The time at 6 point: 10 characters of 60 twips, ending on x 10580.
    const RecordedText* time = f.Find("3:05:09 PM");
    ASSERT_TRUE(time);
    EXPECT_EQ(time->x, 10580 - 600);
    EXPECT_EQ(time->y, 14200);
    EXPECT_EQ(f.Find("/projects/lot14.kvt")->x, 940);
    ASSERT_EQ(f.surface.sheets().back().lines.size(), 1u);
    EXPECT_EQ(f.surface.sheets().back().lines[0].y1, 14160);
    EXPECT_EQ(f.surface.sheets().back().lines[0].width, 4);
}

TEST(PageFrame, HeaderAndRightAlignedValuesWithHangingUnits) {
    FramedPage f;
    PrintHeader(f.page, 230);
    const RecordedText* build = f.Find("Build 100712");
    ASSERT_TRUE(build);
    EXPECT_EQ(build->x, 10580 - 12 * 60);
    EXPECT_EQ(build->y, 765);
    const RecordedText* product = f.Find("Korvath 3.0");
    ASSERT_TRUE(product);
    EXPECT_TRUE(product->bold);
    EXPECT_EQ(product->size, 16);
    EXPECT_EQ(f.Find("Project Title :    Lot 14")->x, 1440);
    EXPECT_EQ(f.Find("2026-117")->x, 8750);
    EXPECT_EQ(f.surface.sheets().back().lines.size(), 2u);

    DrawRightAligned(f.surface, 8280, 4000, "1,234", "  PSI");
    const RecordedText* value = f.Find("1,234  PSI");
    ASSERT_TRUE(value);
    EXPECT_EQ(value->x, 8280 - 500);
}
