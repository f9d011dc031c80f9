#include "plan/foundation_plan.h"
#include "reports/plan_drawing.h"
#include "reports/recording_surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

struct Box {
    double left;
    double top;
    double right;
    double bottom;
};

// The box a text takes on the recording surface: half its size in twips a character wide, 23
// twips a point high.
Box TextBox(const RecordedText& text) {
    return {text.x, text.y, text.x + static_cast<double>(text.text.size()) * text.size * 10,
            text.y + text.size * 23};
}

bool BoxesOverlap(const Box& a, const Box& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool Inside(double x, double y, const Box& box) {
    return x > box.left && x < box.right && y > box.top && y < box.bottom;
}

// Whether two segments cross or touch, by the signs of the turns.
bool SegmentsMeet(double ax, double ay, double bx, double by, double cx, double cy, double dx,
                  double dy) {
    const auto turn = [](double px, double py, double qx, double qy, double rx, double ry) {
        const double value = (qx - px) * (ry - py) - (qy - py) * (rx - px);
        return (value > 0) - (value < 0);
    };
    const int t1 = turn(ax, ay, bx, by, cx, cy);
    const int t2 = turn(ax, ay, bx, by, dx, dy);
    const int t3 = turn(cx, cy, dx, dy, ax, ay);
    const int t4 = turn(cx, cy, dx, dy, bx, by);
    if (t1 != t2 && t3 != t4) {
        return true;
    }
    const auto within = [](double p, double q, double r) {
        return std::min(p, q) <= r && r <= std::max(p, q);
    };
    return (t1 == 0 && within(ax, bx, cx) && within(ay, by, cy)) ||
           (t2 == 0 && within(ax, bx, dx) && within(ay, by, dy)) ||
           (t3 == 0 && within(cx, dx, ax) && within(cy, dy, ay)) ||
           (t4 == 0 && within(cx, dx, bx) && within(cy, dy, by));
}

// Whether a line passes through the inside of a text's box (a line along its edge does not).
bool LineMeetsBox(const RecordedLine& line, const Box& box) {
    const Box inner{box.left + 1, box.top + 1, box.right - 1, box.bottom - 1};
    if (Inside(line.x1, line.y1, inner) || Inside(line.x2, line.y2, inner)) {
        return true;
    }
    const double edges[4][4] = {{inner.left, inner.top, inner.right, inner.top},
                                {inner.right, inner.top, inner.right, inner.bottom},
                                {inner.right, inner.bottom, inner.left, inner.bottom},
                                {inner.left, inner.bottom, inner.left, inner.top}};
    for (const auto& edge : edges) {
        if (SegmentsMeet(line.x1, line.y1, line.x2, line.y2, edge[0], edge[1], edge[2], edge[3])) {
            return true;
        }
    }
    return false;
}

// Every text clear of every other, of every line and every filled area, and inside its box.
void ExpectClearTexts(const RecordedSheet& sheet, const Box& frame, const std::string& what) {
    for (std::size_t i = 0; i < sheet.texts.size(); ++i) {
        const Box box = TextBox(sheet.texts[i]);
        const std::string text = sheet.texts[i].text;
        EXPECT_TRUE(box.left >= frame.left - 1e-6 && box.right <= frame.right + 1e-6 &&
                    box.top >= frame.top - 1e-6 && box.bottom <= frame.bottom + 1e-6)
            << what << ": \"" << text << "\" leaves the box";
        for (std::size_t j = i + 1; j < sheet.texts.size(); ++j) {
            EXPECT_FALSE(BoxesOverlap(box, TextBox(sheet.texts[j])))
                << what << ": \"" << text << "\" overlaps \"" << sheet.texts[j].text << "\"";
        }
        for (const RecordedLine& line : sheet.lines) {
            EXPECT_FALSE(LineMeetsBox(line, box))
                << what << ": a line from (" << line.x1 << ", " << line.y1 << ") to (" << line.x2
                << ", " << line.y2 << ") crosses \"" << text << "\"";
        }
        for (const RecordedRectangle& area : sheet.rectangles) {
            EXPECT_FALSE(
                BoxesOverlap(box, {area.x, area.y, area.x + area.width, area.y + area.height}))
                << what << ": a filled area covers \"" << text << "\"";
        }
    }
}

// A record with `shortBeams` beams across a width and `longBeams` along a length, of both types,
// narrow enough to leave half of each side clear, and results for its slab tendons.
struct Case {
    DesignRecord record;
    ResultsRecord results;
};

Case MakeCase(double width, double length, int shortBeams, int longBeams, double slabTendons) {
    Case c;
    DesignRecord& r = c.record;
    r.RectWidth = width;
    r.RectLength = length;
    r.SlabThick = 4.5;
    r.TendDiam = 0.5;
    r.QS1 = static_cast<std::int16_t>(std::max(2, shortBeams - shortBeams / 3));
    r.QS2 = static_cast<std::int16_t>(shortBeams - r.QS1);
    r.QL1 = static_cast<std::int16_t>(std::max(2, longBeams - longBeams / 3));
    r.QL2 = static_cast<std::int16_t>(longBeams - r.QL1);
    r.WS1 = std::min(12.0, length * 12 / (2 * shortBeams));
    r.WS2 = r.WS1 * 0.75;
    r.WL1 = std::min(12.0, width * 12 / (2 * longBeams));
    r.WL2 = r.WL1 * 0.75;
    r.DS1 = r.DL1 = 30;
    r.DS2 = r.DL2 = 22;
    r.TS1 = r.TL1 = 1;
    r.TS2 = r.TL2 = 2;
    r.CS1 = r.CL1 = r.CS2 = r.CL2 = 3;
    ResultsRecord& results = c.results;
    results.SlabTenShort = slabTendons;
    results.SlabTenLong = slabTendons;
    results.SlabTenSpacingShort = slabTendons > 1 ? (length - 4) / (slabTendons - 1) : length / 2;
    results.SlabTenSpacingLong = slabTendons > 1 ? (width - 4) / (slabTendons - 1) : width / 2;
    results.SpacingShort = length / (shortBeams - 1);
    results.SpacingLong = std::max(6.0, width / (longBeams - 1));
    results.CgSlabTenShort = results.CgSlabTenLong = 2.25;
    return c;
}

} // namespace

TEST(PlanDrawing, NoTextOverlapsAnotherOrALineAtAnySize) {
    const double sizes[][2] = {{10, 10},   {10, 400}, {200, 400}, {40, 60},
                               {100, 100}, {25, 200}, {200, 200}, {60, 40}};
    const int counts[] = {2, 3, 7, 40};
    const DrawingBox sheet{720, 720, 14400, 10800};
    const DrawingBox panel{0, 0, 7500, 6000};
    int drawn = 0;
    for (const auto& size : sizes) {
        for (const int shortBeams : counts) {
            for (const int longBeams : counts) {
                for (const double tendons : {0.0, 1.0, 25.0}) {
                    const Case c = MakeCase(size[0], size[1], shortBeams, longBeams, tendons);
                    const FoundationPlan plan = PlanOf(c.record, c.results);
                    ASSERT_EQ(plan.reason, "");
                    const std::string what =
                        std::to_string(size[0]) + " x " + std::to_string(size[1]) + " ft, " +
                        std::to_string(shortBeams) + " by " + std::to_string(longBeams) + " beams";
                    {
                        RecordingSurface surface;
                        surface.BeginDocument();
                        DrawPlanSheet(surface, plan, PlanSheetTitle(c.record), sheet);
                        ExpectClearTexts(
                            surface.sheets().back(),
                            {sheet.x, sheet.y, sheet.x + sheet.width, sheet.y + sheet.height},
                            what + " on a sheet");
                    }
                    {
                        RecordingSurface surface;
                        surface.BeginDocument();
                        DrawFoundationPlan(surface, plan, {0, 0, 7500, 3900});
                        DrawTypicalSections(surface, plan, {0, 4000, 7500, 2000});
                        ExpectClearTexts(
                            surface.sheets().back(),
                            {panel.x, panel.y, panel.x + panel.width, panel.y + panel.height},
                            what + " on a panel");
                    }
                    ++drawn;
                    if (::testing::Test::HasFailure()) {
                        return;
                    }
                }
            }
        }
    }
    EXPECT_EQ(drawn, 8 * 4 * 4 * 3);
}

TEST(PlanDrawing, DrawsThePlanToScaleWithItsBeamsTendonsAndTexts) {
    // 40 ft by 60 ft: three short beams (two 12 in type 1 at the ends, one 8 in type 2), two
    // long 12 in beams, 10 short slab tendons at 6.22 ft and 5 long ones at 9 ft.
    Case c = MakeCase(40, 60, 3, 2, 10);
    c.record.WS1 = 12;
    c.record.WS2 = 8;
    c.record.WL1 = 12;
    c.results.SlabTenShort = 10;
    c.results.SlabTenSpacingShort = 56.0 / 9;
    c.results.SlabTenLong = 5;
    c.results.SlabTenSpacingLong = 9;
    c.results.SpacingShort = 29;
    c.results.SpacingLong = 38;
    const FoundationPlan plan = PlanOf(c.record, c.results);
    RecordingSurface surface;
    surface.BeginDocument();
    DrawFoundationPlan(surface, plan, {0, 0, 12000, 9000});
    const RecordedSheet& sheet = surface.sheets().back();

    // The slab's heavy outline gives the scale: its sides are as 60 to 40.
    std::vector<RecordedLine> outline;
    std::copy_if(sheet.lines.begin(), sheet.lines.end(), std::back_inserter(outline),
                 [](const RecordedLine& line) { return line.width == OutlineWidth; });
    ASSERT_EQ(outline.size(), 4U);
    const double planWidth = std::abs(outline[0].x2 - outline[0].x1);
    const double planHeight = std::abs(outline[1].y2 - outline[1].y1);
    EXPECT_NEAR(planWidth / planHeight, 1.5, 1e-9);
    const double scale = planWidth / 60;
    const double left = std::min(outline[0].x1, outline[0].x2);

    // Beams: three short ones the plan's height tall, two long ones its width wide; the type 2
    // beam in the middle, (60 - 32/12) / 2 = 28.667 ft clear of the first.
    ASSERT_EQ(sheet.rectangles.size(), 5U + 3U); // and three legend swatches
    EXPECT_NEAR(sheet.rectangles[0].x, left, 1e-6);
    EXPECT_NEAR(sheet.rectangles[0].width, 1 * scale, 1e-6);
    EXPECT_NEAR(sheet.rectangles[0].height, planHeight, 1e-6);
    EXPECT_EQ(sheet.rectangles[1].fill, Type2BeamFill);
    EXPECT_NEAR(sheet.rectangles[1].x - left, (1 + 86.0 / 3) * scale, 1e-6);
    EXPECT_NEAR(sheet.rectangles[1].width, 8.0 / 12 * scale, 1e-6);
    EXPECT_EQ(sheet.rectangles[2].fill, Type1BeamFill);
    EXPECT_NEAR(sheet.rectangles[3].width, planWidth, 1e-6);
    EXPECT_NEAR(sheet.rectangles[3].height, 1 * scale, 1e-6);

    // Slab tendons: 10 plumb and 5 level dashed lines across the plan, and the legend's sample.
    int plumb = 0;
    int level = 0;
    for (const RecordedLine& line : sheet.lines) {
        if (line.style == LineStyle::Dashed) {
            EXPECT_EQ(line.colour, TendonColour);
            plumb += line.x1 == line.x2 && std::abs(line.y2 - line.y1 - planHeight) < 1e-6;
            level += line.y1 == line.y2 && std::abs(line.x2 - line.x1 - planWidth) < 1e-6;
        }
    }
    EXPECT_EQ(plumb, 10);
    EXPECT_EQ(level, 5 + 0);

    std::vector<std::string> texts;
    for (const RecordedText& text : sheet.texts) {
        texts.push_back(text.text);
    }
    for (const std::string expected :
         {"28.67 ft clear", "29.00 ft analysis spacing", "60.00 ft", "38.00 ft", "clear",
          "40.00 ft", "analysis spacing", "LONG DIRECTION", "SHORT DIRECTION",
          "Short Type 2: 1 beam, 8 x 22 in, 2 tendons each",
          "Short slab tendons: 10 at 6.22 ft o.c.", "Long slab tendons: 5 at 9.00 ft o.c."}) {
        EXPECT_NE(std::find(texts.begin(), texts.end(), expected), texts.end()) << expected;
    }
}

TEST(PlanDrawing, APlanThatCannotBeDrawnShowsWhy) {
    Case c = MakeCase(40, 60, 2, 2, 0);
    c.record.QL1 = 1;
    const FoundationPlan plan = PlanOf(c.record, c.results);
    RecordingSurface surface;
    surface.BeginDocument();
    DrawFoundationPlan(surface, plan, {0, 0, 4000, 3000});
    DrawTypicalSections(surface, plan, {0, 3000, 4000, 1000});
    const RecordedSheet& sheet = surface.sheets().back();
    EXPECT_TRUE(sheet.lines.empty());
    EXPECT_TRUE(sheet.rectangles.empty());
    std::string shown;
    for (const RecordedText& text : sheet.texts) {
        shown += (shown.empty() ? "" : " ") + text.text;
    }
    EXPECT_EQ(shown, plan.reason);
    EXPECT_GT(sheet.texts.size(), 1U); // wrapped to the box
}
