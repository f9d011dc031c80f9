#include "reports/design_summary_pages.h"
#include "reports/recording_surface.h"

#include <gtest/gtest.h>

namespace {

struct Report {
    RecordingSurface surface;
    DesignRecord record;
    ResultsRecord results;
    PageContext page{surface, record, results, "/lot.kvt", 2};

    Report() {
        record.RectWidth = 40, record.RectLength = 60, record.SlabThick = 4;
        record.Fpc = 3000, record.Fpu = 270, record.TendType = 2, record.TendDiam = 0.5;
        record.QL1 = 5, record.DL1 = 24, record.WL1 = 12, record.TL1 = 1, record.CL1 = 3;
        record.QS1 = 7, record.DS1 = 26, record.WS1 = 10, record.TS1 = 2, record.CS1 = 2.75;
        results.ConcreteVolume = 70.25, results.TendonLength = 1234.5;
        results.CgSlab = 2, results.SpacingLong = 9.5, results.SpacingShort = 8.125;
        surface.BeginDocument();
    }

    // The texts of the body (below the header), in drawing order.
    std::vector<std::string> Body(int sheet = 0) const {
        std::vector<std::string> texts;
        for (const RecordedText& text : surface.sheets().at(sheet).texts) {
            if (text.y >= 3322 && text.y < 13000) {
                texts.push_back(text.text);
            }
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
};

constexpr LineHeights Heights{230, 276, 322};

} // namespace

TEST(PrintRDS, LinesInOrderWithValuesRightAlignedAndUnitsHanging) {
    Report r;
    PrintRDS(r.page, Heights, true);
    ASSERT_EQ(r.surface.sheets().size(), 1u);
    const std::vector<std::string> body = r.Body();
    const std::vector<std::string> start(body.begin(), body.begin() + 12);
    EXPECT_EQ(start,
              (std::vector<std::string>{"RIBBED FOUNDATION - DESIGN SUMMARY",
                                        "Slab Dimensions :", "40.00 FT x 60.00 FT x 4.00  Inches",
                                        "Material Properties", "Concrete Strength,   f", "'", "c",
                                        " :", "3,000  PSI", "Tendon Strength,   F", "pu", " :"}));
    // 26 characters of 100 twips before the unit, ending on x 8280.
    EXPECT_EQ(r.Placed("40.00 FT x 60.00 FT x 4.00  Inches").x, 8280 - 2600);
    // The title two lines above the first line, which begins at 230 x 2.25 + 2805 = 3322.
    EXPECT_EQ(r.Placed("RIBBED FOUNDATION - DESIGN SUMMARY").y, 3322);
    EXPECT_EQ(r.Placed("Slab Dimensions :").y, 3322 + 460);
    // The prime on the line after the "f" (22 characters from x 2160), the subscript after it
    // at 7 point, lowered to the bottom of the 10 point line: 230 - 161 twips; " :" after the
    // subscript's 70 twips.
    const double line = r.Placed("Concrete Strength,   f").y;
    EXPECT_EQ(r.Placed("'").y, line);
    EXPECT_EQ(r.Placed("'").x, 4360);
    EXPECT_EQ(r.Placed("c").y, line + 69);
    EXPECT_EQ(r.Placed("c").x, 4460);
    EXPECT_EQ(r.Placed("c").size, 7);
    EXPECT_EQ(r.Placed(" :").x, 4530);
    EXPECT_EQ(r.Placed("1 / 2  Inch").x, 8280 - 500);
    EXPECT_EQ(r.Placed("70.3  Cubic Yards").x, 8280 - 400);
    EXPECT_EQ(r.Placed("1,235  Linear Feet").x, 8280 - 500); // 1234.5 rounds away from zero

    // The long direction comes first; tendon centroids are half the tendon plus the cover.
    const auto at = [&body](const std::string& text) {
        return std::find(body.begin(), body.end(), text) - body.begin();
    };
    EXPECT_LT(at("In the LONG direction ..."), at("In the SHORT direction ..."));
    const RecordedText& beamHead = r.Placed("Type II Beam");
    EXPECT_TRUE(beamHead.bold && beamHead.underline);
    EXPECT_EQ(beamHead.x, 8250 - 600);
    EXPECT_EQ(r.Placed("3.25 Inches").x, 6040 - 400);
    EXPECT_EQ(r.Placed("3.00 Inches").x, 6040 - 400); // 0.25 + 2.75 in the short direction
    EXPECT_EQ(r.Placed("0.25 Inches").x, 8280 - 400); // Type II beams without cover print too
    EXPECT_EQ(r.Placed("8.13 Feet O.C.").x, 8280 - 400);
    // Without a given cover the slab tendons lie at the slab's centroid.
    EXPECT_EQ(std::count(body.begin(), body.end(), "2.00 Inches from top of slab"), 2);
}

TEST(PrintRDS, CustomTendonAreaWithItsRaisedSquare) {
    Report r;
    r.record.TendType = 3, r.record.TendArea = 0.153;
    r.record.SlabTenCovType = 1, r.record.SlabTenCov = 1.25;
    PrintRDS(r.page, Heights, false);
    EXPECT_EQ(r.surface.sheets().size(), 2u); // not the last page: a new sheet follows
    const RecordedText& area = r.Placed("0.153  Inches");
    EXPECT_EQ(area.x, 8280 - 500);
    const RecordedText& square = r.Placed("2");
    EXPECT_EQ(square.y, area.y); // at 7 point, raised to the top of the line
    EXPECT_EQ(square.size, 7);
    EXPECT_EQ(square.x, 8280 + 800);
    // The cover given: 0.25 + 1.25.
    const std::vector<std::string> body = r.Body();
    EXPECT_EQ(std::count(body.begin(), body.end(), "1.50 Inches from top of slab"), 2);
    EXPECT_EQ(std::count(body.begin(), body.end(), "Tendon Diameter :"), 0);
}

TEST(PrintUDS, UniformSlabWithItsUnroundedThicknessAndBetaRowsBySoil) {
    Report r;
    r.results.UTThickness = 8.25, r.results.EquivSlabThick = 8.1234;
    r.results.UTEccLong = 0.5, r.results.UTTenSpacingLong = 1.5;
    r.results.UTBetaCDShort = 7.5, r.results.UTBetaEDShort = 3.25;
    r.results.TendonJackForce = 28.9;
    r.record.SoilType = 1, r.record.CLSettleState = 1;
    PrintUDS(r.page, Heights, true);
    const std::vector<std::string> body = r.Body();
    EXPECT_EQ(body.at(2), "40.00 FT x 60.00 FT x 8.25  Inches");
    EXPECT_EQ(body.at(4), "8.25 (8.12)  Inches");
    EXPECT_EQ(body.at(5), "(rounded to the nearest 0.25 inch)");
    // 8.25 / 2 - 0.5 = 3.625, shown 3.63.
    EXPECT_NE(std::find(body.begin(), body.end(), "3.63 Inches from top of slab"), body.end());
    EXPECT_NE(std::find(body.begin(), body.end(), "Beta Distance (Edge Down) (Feet) :"),
              body.end());
    EXPECT_EQ(std::find(body.begin(), body.end(), "Beta Distance (Feet) :"), body.end());
    EXPECT_EQ(r.Placed("28.90  KIPS ").x, 8280 - 500);
    // The heads of the selected variables are plain lines, unlike the beam tables' headings.
    for (const char* head : {"Short", "Long", "Direction"}) {
        const RecordedText& placed = r.Placed(head);
        EXPECT_FALSE(placed.bold || placed.underline) << head;
        EXPECT_EQ(placed.size, 10) << head;
    }
    // "Long" centred on x 8250: 4 characters of 100 twips.
    EXPECT_EQ(r.Placed("Long").x, 8250 - 200);

    Report expansive;
    PrintUDS(expansive.page, Heights, true);
    const std::vector<std::string> lines = expansive.Body();
    EXPECT_NE(std::find(lines.begin(), lines.end(), "Beta Distance (Feet) :"), lines.end());
    EXPECT_EQ(std::find(lines.begin(), lines.end(), "Beta Distance (Edge Down) (Feet) :"),
              lines.end());
}
