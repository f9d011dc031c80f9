#include "storage/design_file.h"

#include "storage_test_support.h"

#include <tuple>

// A new project's defaults for the fields older files lack.
const DesignRecord Defaults = [] {
    DesignRecord d;
    // clang-format off
    d.CompBearing = 2500; d.Settle = 1.5; d.CLSettleState = 1; d.DefSettle = 490;
    d.DefCLSettle = 240;
    // clang-format on
    return d;
}();

using OlderVersionTest = StorageTest;

// The minimum project in the version 2 layout with a prestress slab and a compressible soil:
// the soil has no CLSettleState and holds SGFC between Settle and Es, the loads hold neither
// DefCLSettle, which comes from the defaults, nor SGFC.
TEST_F(OlderVersionTest, Version2Files) {
    const auto path = folder / "v2.kvt";
    // clang-format off
    WriteBytes(path, Lines({"Korvath 2.0", " 0 "}) + InfoLines + MaterialLines +
        Lines({"Rect A", " 1 ", " 150 ", " 125.5 ", " 0 ", " 4 ", " 40.5 ", " 62.25 "}) +
        BeamLines + Lines({" 1 ", " 1 ", "Clay, PI 35", " 1 ", " 1500 ", " 5.5 ", " 3.2 ", " 1.3 ",
        " .75 ", " 2000 ", " 1 ", " .8 ", " 1000 ", " 40 ", " 1200 ", " 0 ", " 360 ", " 720 ",
        " 480 ", " 1 ", " 15 ", " 0 "}));
    DesignRecord read = PreviousProject(), e = MinimumProject();
    read.CLSettleState = 1;
    EXPECT_EQ(Open(path, AllSections, read, Defaults), Version2Read);
    e.SlabRefType = 1; e.StrLvlShort = 150; e.StrLvlLong = 125.5; e.ForceShort = e.ForceLong = 99.5;
    e.SoilType = 1; e.CLSettleState = 1; e.SGFC = 0.8; e.DefCLSettle = 240;
    EXPECT_EQ(Differences(read, e), "");

    // Version 2 had no force ratio: a type 2 slab is read as if no pair stood there, so the
    // pair's lines fill the cover type, the thickness and the rectangle.
    WriteBytes(path,
               Lines({"Korvath 2.0", " 0 ", "Rect C", " 2 ", " .05 ", " .075 ", " 0 ", " 4 "}));
    read = e = PreviousProject();
    EXPECT_EQ(Open(path, 2, read, Defaults), Version2Read);
    e.RectLabel = "Rect C"; e.SlabRefType = 2; e.SlabTenCovType = 0; e.SlabThick = 0.075;
    e.RectWidth = 0; e.RectLength = 4;
    // clang-format on
    EXPECT_EQ(Differences(read, e), "");
}

// No version line, no NoDataFlag, no ProjGeoNum; an area line even for a standard tendon, read
// and dropped; the slab and beams file (.fnd) with the beam values grouped by beam and nine slab
// values (type 0: two unused before the tendon counts, one more before the thickness); a soil
// without type, CompBearing and Settle, but with SGFC; the load file (.ldf) with ULoad first.
// The slab and beam pages read the .fnd; the load page takes ULoad from its first line, which
// the version test has already read.
TEST_F(OlderVersionTest, Version1Files) {
    // clang-format off
    const std::string foundation = Lines({"Rect F", " 6 ", " 28 ", " 12 ", " 1 ", " 3 ", " 2 ",
        " 30 ", " 14 ", " 2 ", " 3.5 ", " 5 ", " 32 ", " 10 ", " 1.5 ", " 2.5 ", " 1 ", " 34 ",
        " 16 ", " 3 ", " 4 ", " 0 ", " 9.25 ", " 9.75 ", " 14 ", " 16 ", " 8.5 ", " 5 ", " 30 ",
        " 48 "});
    const std::string loads = Lines({" 42.5 ", " 1250 ", " 365 ", " 730 ", " 2 ", " 10 ", " 11 ",
        " 12 ", " 13 ", " 16 "});
    const std::tuple<int, std::string, void (*)(DesignRecord&)> tabs[] = {
        {2, foundation, [](auto& r) { r.RectLabel = "Rect F"; r.SlabRefType = 0; r.SlabThick = 5;
             r.NumSlabTenShort = 14; r.NumSlabTenLong = 16; r.RectWidth = 30; r.RectLength = 48;
             r.SlabTenCov = 0; }},
        {3, foundation, [](auto& r) { r.QS1 = 6; r.DS1 = 28; r.WS1 = 12; r.TS1 = 1; r.CS1 = 3;
             r.QS2 = 2; r.DS2 = 30; r.WS2 = 14; r.TS2 = 2; r.CS2 = 3.5; r.QL1 = 5; r.DL1 = 32;
             r.WL1 = 10; r.TL1 = 1.5; r.CL1 = 2.5; r.QL2 = 1; r.DL2 = 34; r.WL2 = 16; r.TL2 = 3;
             r.CL2 = 4; r.SixFtRule = 0; r.BeamSpacing = 1; }},
        {5, loads, [](auto& r) { r.ULoad = 42.5; r.TotalLoad = 1250; r.DefCenter = 365;
             r.DefEdge = 730; r.Subgradetype = 2; r.UDSS = 10; r.UDLS = 11; r.UDSM = 12;
             r.UDLM = 13; r.Prestress = 16; r.UseDeadLoad = 0; r.DefSettle = 490;
             r.DefCLSettle = 240; }},
    };
    DesignRecord read, e, whole = MinimumProject();
    whole.ProjGeoNum = ""; whole.ForceShort = whole.ForceLong = 99.5; whole.SlabTenCovType = 7;
    whole.CompBearing = 2500; whole.Settle = 1.5; whole.CLSettleState = 1; whole.SGFC = 0.8;
    // clang-format on
    for (const auto& [selector, file, take] : tabs) {
        WriteBytes(folder / "old.tab", file);
        read = e = PreviousProject();
        take(e);
        take(whole);
        EXPECT_EQ(Open(folder / "old.tab", selector, read, Defaults), Version1Read) << selector;
        EXPECT_EQ(Differences(read, e), "") << selector;
    }
    // clang-format off
    WriteBytes(folder / "v1.kvt", Lines({ProjectName, "March 4, 2024", "24-117", "R. Alvarez, P.E.",
        "Terracon", "February 12, 2024", " 1 "}) + MaterialLines + Lines({" .153 "}) + foundation +
        Lines({"Clay, PI 35", " 1500 ", " 5.5 ", " 3.2 ", " 1.3 ", " .75 ", " .8 ", " 1000 "}) +
        loads);
    // clang-format on
    read = PreviousProject();
    EXPECT_EQ(Open(folder / "v1.kvt", AllSections, read, Defaults), Version1Read);
    EXPECT_EQ(Differences(read, whole), "");
}
