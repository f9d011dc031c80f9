#include "storage/design_file.h"

#include "storage/file_error.h"
#include "storage_test_support.h"

#include <vector>

namespace {
// Default values of a new project. Every field holds a value of its own, so a field taken
// from here by mistake shows; only the five fields older files lack are real defaults.
DesignRecord Defaults() {
    DesignRecord d;
    for (const DesignField& field : DesignRecordFields()) {
        if (field.kind == FieldKind::Text) {
            d.*field.text = "default";
        } else if (field.kind == FieldKind::Int16) {
            d.*field.int16 = 3;
        } else {
            d.*field.real = 55.5;
        }
    }
    SetFields(d, {{"NoDataFlag", 0},
                  {"CompBearing", 2000},
                  {"Settle", 1.5},
                  {"CLSettleState", 1},
                  {"DefSettle", 480},
                  {"DefCLSettle", 240}});
    return d;
}

// Reads `path` into `record` and gives the version and the titles of the notices shown.
std::pair<int, std::vector<std::string>> Open(const std::filesystem::path& path, int selector,
                                              DesignRecord& record) {
    std::vector<std::string> titles;
    const int version = ReadDesignFile(path, selector, record, Defaults(),
                                       [&](const auto& notice) { titles.push_back(notice.title); });
    return {version, titles};
}

const std::pair<int, std::vector<std::string>> Version1{1, {"Opening Korvath Win 1.x file"}};
const std::pair<int, std::vector<std::string>> Version2{2, {"Opening Korvath Win 2.x file"}};

// The slab and beams file of version 1: label, twenty beam values grouped by beam (S1, S2,
// L1, L2), nine slab values (type 0: two unused values before the tendon counts).
const std::string FoundationFile = CrLfLines(
    {"Rect F", " 6 ", " 28 ",   " 12 ",   " 1 ",   " 3 ",   " 2 ",   " 30 ", " 14 ", " 2 ",
     " 3.5 ",  " 5 ", " 32 ",   " 10 ",   " 1.5 ", " 2.5 ", " 1 ",   " 34 ", " 16 ", " 3 ",
     " 4 ",    " 0 ", " 9.25 ", " 9.75 ", " 14 ",  " 16 ",  " 8.5 ", " 5 ",  " 30 ", " 48 "});
} // namespace

using OlderVersionTest = StorageTest;

TEST_F(OlderVersionTest, NoticeTextsAreTwoLinesJoinedByCarriageReturn) {
    const auto path = folder / "old.kvt";
    std::vector<OldVersionNotice> notices;
    for (const char* firstLine : {"Korvath 2.0", "Korvath 1.0"}) {
        WriteBytes(path, CrLfLines({firstLine, " 1 "}));
        DesignRecord record;
        ReadDesignFile(path, 6, record, DesignRecord{},
                       [&](const OldVersionNotice& n) { notices.push_back(n); });
    }
    ASSERT_EQ(notices.size(), 2u);
    EXPECT_EQ(notices[0].title, "Opening Korvath Win 2.x file");
    EXPECT_EQ(notices[0].text, "The file being opened was created in Korvath 2.x.\r"
                               "When saved it will be updated to version 3.x format.");
    EXPECT_EQ(notices[1].title, "Opening Korvath Win 1.x file");
    EXPECT_EQ(notices[1].text, "The file being opened was created in Korvath Win 1.x.\r"
                               "When saved it will be updated to version 2.0 format.");
}

TEST_F(OlderVersionTest, Version2ProjectFile) {
    const auto path = folder / "v2.kvt";
    WriteBytes(
        path, CrLfLines({"Korvath 2.0", " 0 ",
                         // project, material, slab, beams as in the current version
                         "Jones Addition", "May 1, 2005", "05-22", "K. Park", "Geo Labs", "GL-17",
                         "April 2, 2005", " 0 ", "Mat B", " 3500 ", " 1600000 ", " 150 ", " 270 ",
                         " 3 ", " .2 ", "Rect B", " 1 ", " 160 ", " 140 ", " 1 ", " 1.75 ", " 5 ",
                         " 30 ", " 48 ", " 6 ", " 2 ", " 5 ", " 1 ", " 28 ", " 29 ", " 30 ", " 31 ",
                         " 12 ", " 13 ", " 14 ", " 15 ", " 1 ", " 1.5 ", " 2 ", " 2.5 ", " 3 ",
                         " 3.25 ", " 3.5 ", " 3.75 ", " 0 ", " 10 ", " 11 ", " 14 ", " 15 ", " 0 ",
                         // soil: no CLSettleState for compressible soil, SGFC before Es
                         "Sandy clay", " 1 ", " 2500 ", " 4.5 ", " 2.5 ", " 2.1 ", " 1.2 ",
                         " 3000 ", " 2 ", " .8 ", " 1100 ",
                         // loads: no DefCLSettle, no SGFC
                         " 50 ", " 1300 ", " 1 ", " 500 ", " 370 ", " 740 ", " 490 ", " 2 ", " 20 ",
                         " 21 ", " 22 ", " 23 ", " 17 ",
                         // line load as in the current version
                         " 1 ", " 900 ", "Short Direction", " 2 ", " 130 ", " 260 "}));
    DesignRecord read = PreviousProject();
    EXPECT_EQ(Open(path, AllSections, read), Version2);

    DesignRecord e = PreviousProject();
    // clang-format off
    SetFields(e, {{"ProjName", "Jones Addition"}, {"ProjDate", "May 1, 2005"}, {"ProjNum", "05-22"},
                  {"ProjEng", "K. Park"}, {"ProjGeoRep", "Geo Labs"}, {"ProjGeoNum", "GL-17"},
                  {"ProjGeoDate", "April 2, 2005"}, {"FlatSlab", 0}, {"MatLabel", "Mat B"},
                  {"Fpc", 3500}, {"Ec", 1600000}, {"UW", 150}, {"Fpu", 270}, {"TendType", 3},
                  {"TendArea", 0.2}, {"RectLabel", "Rect B"}, {"SlabRefType", 1},
                  {"StrLvlShort", 160}, {"StrLvlLong", 140}, {"SlabTenCovType", 1},
                  {"SlabTenCov", 1.75}, {"SlabThick", 5}, {"RectWidth", 30}, {"RectLength", 48},
                  {"QS1", 6}, {"QS2", 2}, {"QL1", 5}, {"QL2", 1}, {"DS1", 28}, {"DS2", 29},
                  {"DL1", 30}, {"DL2", 31}, {"WS1", 12}, {"WS2", 13}, {"WL1", 14}, {"WL2", 15},
                  {"TS1", 1}, {"TS2", 1.5}, {"TL1", 2}, {"TL2", 2.5}, {"CS1", 3}, {"CS2", 3.25},
                  {"CL1", 3.5}, {"CL2", 3.75}, {"BeamSpacing", 0}, {"SMin", 10}, {"LMin", 11},
                  {"SMax", 14}, {"LMax", 15}, {"SixFtRule", 0}, {"SoilLabel", "Sandy clay"},
                  {"SoilType", 1}, {"ExpBearing", 2500}, {"EmCenter", 4.5}, {"EmEdge", 2.5},
                  {"YmCenter", 2.1}, {"YmEdge", 1.2}, {"CompBearing", 3000}, {"Settle", 2},
                  {"SGFC", 0.8}, {"Es", 1100}, {"ULoad", 50}, {"TotalLoad", 1300},
                  {"UseDeadLoad", 1}, {"DeadLoad", 500}, {"DefCenter", 370}, {"DefEdge", 740},
                  {"DefSettle", 490}, {"DefCLSettle", 240}, {"Subgradetype", 2}, {"UDSS", 20},
                  {"UDLS", 21}, {"UDSM", 22}, {"UDLM", 23}, {"Prestress", 17}, {"LineLoadType", 1},
                  {"LineLoad", 900}, {"DirLineLoad", "Short Direction"}, {"PreLineLoadType", 2},
                  {"UDPreLineLoad", 130}, {"Ks", 260}});
    // clang-format on
    ExpectSameRecord(read, e);
}

TEST_F(OlderVersionTest, Version2TabFiles) {
    const auto path = folder / "v2.kv";
    // Version 2 had no force ratio: a type 2 slab is read as if no pair stood there, so the
    // pair's lines fill the cover type, the thickness and the rectangle.
    WriteBytes(path, CrLfLines({"Korvath 2.0", " 0 ", "Rect C", " 2 ", " .05 ", " .075 ", " 0 ",
                                " 4 ", " 40 ", " 60 "}));
    DesignRecord read = PreviousProject();
    EXPECT_EQ(Open(path, 2, read), Version2);
    DesignRecord e = PreviousProject();
    SetFields(e, {{"RectLabel", "Rect C"},
                  {"SlabRefType", 2},
                  {"SlabTenCovType", 0},
                  {"SlabThick", 0.075},
                  {"RectWidth", 0},
                  {"RectLength", 4}});
    ExpectSameRecord(read, e);

    // The soil page holds SGFC between Settle and Es.
    WriteBytes(path, CrLfLines({"Korvath 2.0", " 0 ", "Silt", " 1 ", " 1 ", " 2 ", " 3 ", " 4 ",
                                " 5 ", " 6 ", " 7 ", " .9 ", " 800 "}));
    read = PreviousProject();
    Open(path, 4, read);
    e = PreviousProject();
    // clang-format off
    SetFields(e, {{"SoilLabel", "Silt"}, {"SoilType", 1}, {"ExpBearing", 1}, {"EmCenter", 2},
                  {"EmEdge", 3}, {"YmCenter", 4}, {"YmEdge", 5}, {"CompBearing", 6}, {"Settle", 7},
                  {"SGFC", 0.9}, {"Es", 800}});
    // clang-format on
    ExpectSameRecord(read, e);

    // The load page ends with Prestress; DefCLSettle comes from the defaults even for a
    // compressible soil with the center lift analysis on.
    WriteBytes(path, CrLfLines({"Korvath 2.0", " 0 ", " 45 ", " 1250 ", " 0 ", " 365 ", " 730 ",
                                " 485 ", " 1 ", " 16 "}));
    read = PreviousProject();
    SetFields(read, {{"SoilType", 1}, {"CLSettleState", 1}});
    e = read;
    Open(path, 5, read);
    // clang-format off
    SetFields(e, {{"ULoad", 45}, {"TotalLoad", 1250}, {"UseDeadLoad", 0}, {"DefCenter", 365},
                  {"DefEdge", 730}, {"DefSettle", 485}, {"DefCLSettle", 240}, {"Subgradetype", 1},
                  {"Prestress", 16}});
    // clang-format on
    ExpectSameRecord(read, e);
}

TEST_F(OlderVersionTest, Version1ProjectFile) {
    const auto path = folder / "old.kvt";
    WriteBytes(
        path,
        CrLfLines(
            {// project information without ProjGeoNum
             "Smith Residence", "March 4, 1998", "98-117", "R. Alvarez", "Terracon",
             "February 12, 1998", " 1 ",
             // a standard tendon: the area line is read and dropped
             "3000 psi", " 3000 ", " 1500000 ", " 145 ", " 270 ", " 1 ", " .153 ",
             // label, then the beams grouped by beam
             "Rect A", " 5 ", " 24 ", " 12 ", " 1 ", " 3 ", " 1 ", " 30 ", " 14 ", " 2 ", " 3.25 ",
             " 4 ", " 26 ", " 10 ", " 1.5 ", " 2.75 ", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ",
             // prestress, two unused, one unused, thickness and rectangle
             " 1 ", " 150 ", " 125 ", " 9.25 ", " 9.75 ", " 8.5 ", " 4 ", " 40.5 ", " 62.25 ",
             // soil with SGFC, then the loads
             "Clay, PI 35", " 1500 ", " 5.5 ", " 3.2 ", " 1.3 ", " .75 ", " .8 ", " 1000 ", " 40 ",
             " 1200 ", " 360 ", " 720 ", " 2 ", " 10 ", " 11 ", " 12 ", " 13 ", " 15 "}));
    DesignRecord read = PreviousProject();
    EXPECT_EQ(Open(path, AllSections, read), Version1);

    DesignRecord e = PreviousProject();
    // clang-format off
    SetFields(e, {{"ProjName", "Smith Residence"}, {"ProjDate", "March 4, 1998"},
                  {"ProjNum", "98-117"}, {"ProjEng", "R. Alvarez"}, {"ProjGeoRep", "Terracon"},
                  {"ProjGeoNum", ""}, {"ProjGeoDate", "February 12, 1998"}, {"FlatSlab", 1},
                  {"MatLabel", "3000 psi"}, {"Fpc", 3000}, {"Ec", 1500000}, {"UW", 145},
                  {"Fpu", 270}, {"TendType", 1}, {"RectLabel", "Rect A"}, {"QS1", 5}, {"DS1", 24},
                  {"WS1", 12}, {"TS1", 1}, {"CS1", 3}, {"QS2", 1}, {"DS2", 30}, {"WS2", 14},
                  {"TS2", 2}, {"CS2", 3.25}, {"QL1", 4}, {"DL1", 26}, {"WL1", 10}, {"TL1", 1.5},
                  {"CL1", 2.75}, {"QL2", 0}, {"DL2", 0}, {"WL2", 0}, {"TL2", 0}, {"CL2", 0},
                  {"SlabRefType", 1}, {"StrLvlShort", 150}, {"StrLvlLong", 125}, {"SlabThick", 4},
                  {"RectWidth", 40.5}, {"RectLength", 62.25}, {"SoilLabel", "Clay, PI 35"},
                  {"ExpBearing", 1500}, {"EmCenter", 5.5}, {"EmEdge", 3.2}, {"YmCenter", 1.3},
                  {"YmEdge", 0.75}, {"SGFC", 0.8}, {"Es", 1000}, {"ULoad", 40}, {"TotalLoad", 1200},
                  {"DefCenter", 360}, {"DefEdge", 720}, {"Subgradetype", 2}, {"UDSS", 10},
                  {"UDLS", 11}, {"UDSM", 12}, {"UDLM", 13}, {"Prestress", 15},
                  // supplied: fixed values and the defaults
                  {"SlabTenCov", 0}, {"SixFtRule", 0}, {"BeamSpacing", 1}, {"SoilType", 0},
                  {"CompBearing", 2000}, {"Settle", 1.5}, {"CLSettleState", 1}, {"UseDeadLoad", 0},
                  {"DefSettle", 480}, {"DefCLSettle", 240}, {"LineLoadType", 0}});
    // clang-format on
    ExpectSameRecord(read, e);
}

TEST_F(OlderVersionTest, Version1TabFiles) {
    const auto path = folder / "old.tab";
    const auto expectRead = [&](int selector, const std::vector<FieldValue>& changed) {
        DesignRecord read = PreviousProject();
        EXPECT_EQ(Open(path, selector, read), Version1);
        DesignRecord e = PreviousProject();
        SetFields(e, changed);
        ExpectSameRecord(read, e);
    };

    // One .fnd file serves the slab page (label and slab values) and the beam page (the
    // twenty beam values).
    WriteBytes(path, FoundationFile);
    // clang-format off
    expectRead(2, {{"RectLabel", "Rect F"}, {"SlabRefType", 0}, {"NumSlabTenShort", 14},
                   {"NumSlabTenLong", 16}, {"SlabThick", 5}, {"RectWidth", 30}, {"RectLength", 48},
                   {"SlabTenCov", 0}});
    // clang-format on
    // clang-format off
    expectRead(3, {{"QS1", 6}, {"DS1", 28}, {"WS1", 12}, {"TS1", 1}, {"CS1", 3}, {"QS2", 2},
                   {"DS2", 30}, {"WS2", 14}, {"TS2", 2}, {"CS2", 3.5}, {"QL1", 5}, {"DL1", 32},
                   {"WL1", 10}, {"TL1", 1.5}, {"CL1", 2.5}, {"QL2", 1}, {"DL2", 34}, {"WL2", 16},
                   {"TL2", 3}, {"CL2", 4}, {"SixFtRule", 0}, {"BeamSpacing", 1}});
    // clang-format on
    // The beam page reads the slab values after the beams too, so a cut file fails there.
    WriteBytes(path, FoundationFile.substr(0, FoundationFile.rfind(" 48 ")));
    DesignRecord read = PreviousProject();
    EXPECT_THROW(Open(path, 3, read), FileError);

    // The load file's first line is ULoad, converted from the text already read.
    WriteBytes(path, CrLfLines({" 42.5 ", " 1250 ", " 365 ", " 730 ", " 0 ", " 16 "}));
    // clang-format off
    expectRead(5, {{"ULoad", 42.5}, {"TotalLoad", 1250}, {"DefCenter", 365}, {"DefEdge", 730},
                   {"Subgradetype", 0}, {"Prestress", 16}, {"UseDeadLoad", 0}, {"DefSettle", 480},
                   {"DefCLSettle", 240}});
    // clang-format on
    // A blank first line is no number; the next line is not taken in its place.
    WriteBytes(path, CrLfLines({"  ", " 42.5 ", " 1250 ", " 365 ", " 730 ", " 0 ", " 16 "}));
    try {
        Open(path, 5, read);
        ADD_FAILURE() << "no error";
    } catch (const FileError& error) {
        EXPECT_EQ(error.number(), 13);
    }

    WriteBytes(path, CrLfLines({"P", "D", "N", "E", "R", "GD", " 0 "}));
    // clang-format off
    expectRead(0, {{"ProjName", "P"}, {"ProjDate", "D"}, {"ProjNum", "N"}, {"ProjEng", "E"},
                   {"ProjGeoRep", "R"}, {"ProjGeoNum", ""}, {"ProjGeoDate", "GD"}, {"FlatSlab", 0}});
    // clang-format on

    WriteBytes(path, CrLfLines({"Mat", " 4000 ", " 1700000 ", " 140 ", " 250 ", " 3 ", " .25 "}));
    expectRead(1, {{"MatLabel", "Mat"},
                   {"Fpc", 4000},
                   {"Ec", 1700000},
                   {"UW", 140},
                   {"Fpu", 250},
                   {"TendType", 3},
                   {"TendArea", 0.25}});

    WriteBytes(path, CrLfLines({"Soil", " 1 ", " 2 ", " 3 ", " 4 ", " 5 ", " .6 ", " 700 "}));
    // clang-format off
    expectRead(4, {{"SoilLabel", "Soil"}, {"ExpBearing", 1}, {"EmCenter", 2}, {"EmEdge", 3},
                   {"YmCenter", 4}, {"YmEdge", 5}, {"SGFC", 0.6}, {"Es", 700}, {"SoilType", 0},
                   {"CompBearing", 2000}, {"Settle", 1.5}, {"CLSettleState", 1}});
    // clang-format on

    // The line load page reads nothing at all from an old file.
    expectRead(6, {{"LineLoadType", 0}});
}
