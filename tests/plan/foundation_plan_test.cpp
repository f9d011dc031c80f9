#include "plan/foundation_plan.h"
#include "plan/plan_legend.h"

#include <gtest/gtest.h>

namespace {

constexpr double Tolerance = 1e-9;

// The faces of each beam, and its type, in order from the first edge.
struct Face {
    int type;
    double from;
    double to;
};

void ExpectFaces(const std::vector<PlanBeam>& beams, const std::vector<Face>& expected) {
    ASSERT_EQ(beams.size(), expected.size());
    for (std::size_t i = 0; i < beams.size(); ++i) {
        SCOPED_TRACE("beam " + std::to_string(i));
        EXPECT_EQ(beams[i].type, expected[i].type);
        EXPECT_NEAR(beams[i].from, expected[i].from, Tolerance);
        EXPECT_NEAR(beams[i].to, expected[i].to, Tolerance);
    }
}

std::vector<int> Types(const std::vector<PlanBeam>& beams) {
    std::vector<int> types;
    for (const PlanBeam& beam : beams) {
        types.push_back(beam.type);
    }
    return types;
}

// A rectangle of 40 ft by 60 ft with two 12 in beams each way and a 5 in slab.
DesignRecord TwoByTwo() {
    DesignRecord record;
    record.RectWidth = 40;
    record.RectLength = 60;
    record.SlabThick = 5;
    record.QS1 = 2;
    record.WS1 = 12;
    record.DS1 = 30;
    record.TS1 = 1;
    record.CS1 = 3;
    record.QL1 = 2;
    record.WL1 = 12;
    record.DL1 = 30;
    record.TL1 = 1;
    record.CL1 = 3;
    record.TendDiam = 0.5;
    return record;
}

} // namespace

TEST(BeamLayout, FacesAndGapsForOneTwoAndThreeBeams) {
    // Two 12 in beams on 40 ft: the gap is 40 - 2 = 38 ft.
    ExpectFaces(LayOutBeams(40, 2, 12, 0, 0), {{1, 0, 1}, {1, 39, 40}});
    // Two 12 in and one 8 in beam on 50 ft: 32 in of beams, gaps (50 - 32/12) / 2 = 23 2/3 ft.
    // The type 1 beams stand at the edges, the type 2 beam in the middle.
    ExpectFaces(LayOutBeams(50, 2, 12, 1, 8),
                {{1, 0, 1}, {2, 1 + 71.0 / 3, 1 + 71.0 / 3 + 8.0 / 12}, {1, 49, 50}});
    // One 12 in type 1 and two 10 in type 2 beams on 30 ft: the type 2 beams take the edges.
    // 32 in of beams, gaps (30 - 32/12) / 2 = 13 2/3 ft.
    ExpectFaces(LayOutBeams(30, 1, 12, 2, 10),
                {{2, 0, 10.0 / 12}, {1, 14.5, 15.5}, {2, 30 - 10.0 / 12, 30}});
    // One type 1 and one type 2: the type 1 beam at the first edge.
    ExpectFaces(LayOutBeams(20, 1, 12, 1, 6), {{1, 0, 1}, {2, 19.5, 20}});
    // Only type 2 beams, three 6 in on 21 ft: gaps of (21 - 1.5) / 2 = 9.75 ft.
    ExpectFaces(LayOutBeams(21, 0, 0, 3, 6), {{2, 0, 0.5}, {2, 10.25, 10.75}, {2, 20.5, 21}});
    // A single beam stands in the middle of its side.
    ExpectFaces(LayOutBeams(20, 1, 12, 0, 0), {{1, 9.5, 10.5}});
    EXPECT_TRUE(LayOutBeams(20, 0, 12, 0, 8).empty());
}

TEST(BeamLayout, TypeTwoBeamsSpreadEvenlyBetweenTheEdges) {
    EXPECT_EQ(Types(LayOutBeams(100, 2, 12, 2, 8)), (std::vector<int>{1, 2, 2, 1}));
    // Four places between the edges, two type 2 beams: each in the middle of its half, a tie
    // going outwards, so that the row reads the same from both ends.
    EXPECT_EQ(Types(LayOutBeams(100, 4, 12, 2, 8)), (std::vector<int>{1, 2, 1, 1, 2, 1}));
    EXPECT_EQ(Types(LayOutBeams(100, 5, 12, 2, 8)), (std::vector<int>{1, 1, 2, 1, 2, 1, 1}));
    // Three type 2 beams in four places: a row that cannot read the same both ways.
    EXPECT_EQ(Types(LayOutBeams(100, 3, 12, 3, 8)), (std::vector<int>{1, 2, 2, 1, 2, 1}));
    EXPECT_EQ(Types(LayOutBeams(100, 2, 12, 5, 8)), (std::vector<int>{1, 2, 2, 2, 2, 2, 1}));
    EXPECT_EQ(Types(LayOutBeams(100, 1, 12, 4, 8)), (std::vector<int>{2, 2, 1, 2, 2}));
}

TEST(SlabTendonPlaces, TwoFeetOffTheEdgeAtTheSpacing) {
    // 10 tendons over 40 ft: (40 - 4) / 9 = 4 ft apart from 2 ft.
    const std::vector<double> places = SlabTendonPlaces(40, 10, 4);
    ASSERT_EQ(places.size(), 10U);
    EXPECT_DOUBLE_EQ(places.front(), 2);
    EXPECT_DOUBLE_EQ(places[1], 6);
    EXPECT_DOUBLE_EQ(places.back(), 38);
    EXPECT_EQ(SlabTendonPlaces(60, 1, 30), (std::vector<double>{30}));
    EXPECT_TRUE(SlabTendonPlaces(60, 0, 0).empty());
}

TEST(PlanOf, WidthTypedGreaterThanLengthIsDrawnAsTypedWithANote) {
    DesignRecord record = TwoByTwo();
    record.RectWidth = 60;
    record.RectLength = 40;
    record.QS2 = 1;
    record.WS2 = 8;
    record.DS2 = 24;
    record.TS2 = 1.5;
    record.CS2 = 2.5;
    record.QL1 = 3;
    record.TL1 = 2;
    ResultsRecord results;
    results.SlabTenShort = 10;
    results.SlabTenSpacingShort = 4;
    results.SlabTenLong = 1;
    results.SlabTenSpacingLong = 30;
    results.SpacingShort = 20;
    results.SpacingLong = 30;
    results.CgSlabTenShort = 2.5;
    results.CgSlabTenLong = 2.5;

    const FoundationPlan plan = PlanOf(record, results);
    EXPECT_EQ(plan.reason, "");
    ASSERT_EQ(plan.notes.size(), 1U);
    EXPECT_EQ(plan.notes[0], "The width, 60.00 ft, is greater than the length, 40.00 ft: the "
                             "width is the short side.");
    // The short beams stand along the 40 ft length: 32 in of beams, gaps (40 - 32/12) / 2.
    // The long beams across the 60 ft width: 36 in of beams, gaps (60 - 3) / 2 = 28.5 ft.
    ASSERT_EQ(plan.beams.size(), 6U);
    const std::vector<PlanBeam> shortBeams(plan.beams.begin(), plan.beams.begin() + 3);
    const std::vector<PlanBeam> longBeams(plan.beams.begin() + 3, plan.beams.end());
    ExpectFaces(shortBeams, {{1, 0, 1}, {2, 1 + 56.0 / 3, 1 + 56.0 / 3 + 8.0 / 12}, {1, 39, 40}});
    ExpectFaces(longBeams, {{1, 0, 1}, {1, 29.5, 30.5}, {1, 59, 60}});
    EXPECT_NEAR(plan.gapShort, 56.0 / 3, Tolerance);
    EXPECT_NEAR(plan.gapLong, 28.5, Tolerance);
    EXPECT_EQ(shortBeams[1].direction, PlanDirection::Short);
    EXPECT_EQ(longBeams[0].direction, PlanDirection::Long);
    EXPECT_DOUBLE_EQ(shortBeams[1].depth, 24);
    EXPECT_DOUBLE_EQ(shortBeams[1].tendons, 1.5);
    EXPECT_DOUBLE_EQ(shortBeams[1].cover, 2.5);
    EXPECT_DOUBLE_EQ(longBeams[2].tendons, 2);

    // The short slab tendons along the 40 ft length, the one long tendon in the middle of 60 ft.
    EXPECT_EQ(plan.slabTendonsShort.places.size(), 10U);
    EXPECT_DOUBLE_EQ(plan.slabTendonsShort.places.back(), 38);
    EXPECT_EQ(plan.slabTendonsLong.places, (std::vector<double>{30}));

    // One section for each group with beams, in the order S1, S2, L1.
    ASSERT_EQ(plan.sections.size(), 3U);
    EXPECT_EQ(plan.sections[1].direction, PlanDirection::Short);
    EXPECT_EQ(plan.sections[1].type, 2);
    EXPECT_DOUBLE_EQ(plan.sections[1].width, 8);
    EXPECT_DOUBLE_EQ(plan.sections[1].slabThick, 5);
    EXPECT_DOUBLE_EQ(plan.sections[2].slabTendonDepth, 2.5);
    EXPECT_DOUBLE_EQ(plan.sections[2].tendonDiameter, 0.5);

    std::vector<std::string> legend;
    for (const LegendEntry& entry : PlanLegend(plan)) {
        legend.push_back(entry.text);
    }
    EXPECT_EQ(legend, (std::vector<std::string>{
                          "Short Type 1: 2 beams, 12 x 30 in, 1 tendon each",
                          "Short Type 2: 1 beam, 8 x 24 in, 1.5 tendons each",
                          "Long Type 1: 3 beams, 12 x 30 in, 2 tendons each",
                          "Short slab tendons: 10 at 4.00 ft o.c.",
                          "Long slab tendons: 1 at 30.00 ft o.c.",
                      }));
    const std::vector<LegendEntry> entries = PlanLegend(plan);
    EXPECT_EQ(entries[1].swatch, LegendSwatch::Type2Beam);
    EXPECT_EQ(entries[3].swatch, LegendSwatch::SlabTendon);
}

TEST(PlanOf, SaysWhyNoDrawingCanBeMade) {
    const ResultsRecord results;
    DesignRecord record = TwoByTwo();
    EXPECT_EQ(PlanOf(record, results).reason, "");
    EXPECT_TRUE(PlanOf(record, results).notes.empty());

    record.QS1 = 0;
    FoundationPlan plan = PlanOf(record, results);
    EXPECT_EQ(plan.reason, "There are no short direction beams: a plan needs at least two beams "
                           "in each direction, one at each edge, with the gaps between them.");
    EXPECT_TRUE(plan.beams.empty());
    EXPECT_TRUE(plan.sections.empty());

    record = TwoByTwo();
    record.QL1 = 0;
    record.QL2 = 1;
    record.WL2 = 10;
    record.DL2 = 20;
    EXPECT_EQ(PlanOf(record, results).reason,
              "There is only one long direction beam: a plan needs at least two beams in each "
              "direction, one at each edge, with the gaps between them.");

    record = TwoByTwo();
    record.RectWidth = 0;
    EXPECT_EQ(PlanOf(record, results).reason,
              "The rectangle width is 0.00 ft: a plan needs a width and a length greater than 0.");
    record = TwoByTwo();
    record.RectLength = -5;
    EXPECT_EQ(PlanOf(record, results).reason,
              "The rectangle length is -5.00 ft: a plan needs a width and a length greater "
              "than 0.");

    // Forty-one 12 in beams are 41 ft of beam on a 40 ft width.
    record = TwoByTwo();
    record.QL1 = 41;
    EXPECT_EQ(PlanOf(record, results).reason,
              "The 41 long direction beams, 41.00 ft wide together, do not fit in the width of "
              "40.00 ft.");
    record = TwoByTwo();
    record.QS2 = -1;
    EXPECT_EQ(PlanOf(record, results).reason,
              "The quantity of short direction Type 2 beams is -1: a quantity cannot be "
              "negative.");
    record = TwoByTwo();
    record.WS1 = 0;
    EXPECT_EQ(PlanOf(record, results).reason,
              "The short direction Type 1 beams have no width: a beam needs a width greater "
              "than 0.");
}

TEST(PlanLegend, SlabTendonsNoneOrNotYetCounted) {
    FoundationPlan plan = PlanOf(TwoByTwo(), ResultsRecord{});
    plan.slabTendonsLong.known = false;
    const std::vector<LegendEntry> entries = PlanLegend(plan);
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_EQ(entries[2].text, "Short slab tendons: none");
    EXPECT_EQ(entries[3].text, "Long slab tendons: counted by the analysis");
    EXPECT_EQ(PlanNumber(12), "12");
    EXPECT_EQ(PlanNumber(8.5), "8.5");
    EXPECT_EQ(PlanNumber(1.255), "1.26");
    EXPECT_EQ(PlanFeet(1234.5), "1,234.50 ft");
}
