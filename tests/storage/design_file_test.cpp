#include "storage/design_file.h"

#include "storage_test_support.h"

#include <algorithm>
#include <tuple>

using DesignFileTest = StorageTest;

TEST_F(DesignFileTest, MinimumOptionsProjectIsSixtySixLinesAndReadsBack) {
    // clang-format off
    const std::string expected = Header + InfoLines + MaterialLines +
        Lines({"Rect A", " 2 ", " .05 ", " .075 ", " 0 ", " 4 ", " 40.5 ", " 62.25 "}) + BeamLines +
        Lines({" 1 ", " 1 ", "Clay, PI 35", " 0 ", " 1500 ", " 5.5 ", " 3.2 ", " 1.3 ", " .75 ",
               " 2000 ", " 1 ", " 1000 ", " 40 ", " 1200 ", " 0 ", " 360 ", " 720 ", " 480 ",
               " 1 ", " 15 ", " .6 ", " 0 "});
    // clang-format on
    ASSERT_EQ(std::count(expected.begin(), expected.end(), '\n'), 66);
    WriteDesignFile(folder / "minimum.kvt", AllSections, MinimumProject());
    EXPECT_EQ(ReadBytes(folder / "minimum.kvt"), expected);
    DesignRecord read = PreviousProject();
    EXPECT_EQ(Open(folder / "minimum.kvt", AllSections, read), "3");
    EXPECT_EQ(Differences(read, MinimumProject()), "");
}

// Each row changes the minimum project and writes one tab file: the version line, NoDataFlag and
// the lines of the section, which read back over another project and write the same lines.
TEST_F(DesignFileTest, EachOptionWritesItsLinesAndReadsBack) {
    // clang-format off
    const std::tuple<const char*, int, void (*)(DesignRecord&), std::string> cases[] = {
        {"custom tendon area", 1, [](auto& r) { r.TendType = 3; r.TendArea = 0.217; },
         Lines({"3000 psi concrete", " 3000 ", " 1500000 ", " 145 ", " 270 ", " 3 ", " .217 "})},
        {"tendon counts, cover", 2, [](auto& r) { r.SlabRefType = 0; r.NumSlabTenShort = 12;
             r.NumSlabTenLong = -1; r.SlabTenCovType = 1; r.SlabTenCov = 1.5; },
         Lines({"Rect A", " 0 ", " 12 ", "-1 ", " 1 ", " 1.5 ", " 4 ", " 40.5 ", " 62.25 "})},
        {"prestress pair", 2, [](auto& r) { r.SlabRefType = 1; r.StrLvlShort = 150; },
         Lines({"Rect A", " 1 ", " 150 ", " 99.5 ", " 0 ", " 4 ", " 40.5 ", " 62.25 "})},
        {"no pair outside 0 to 2", 2, [](auto& r) { r.SlabRefType = 3; },
         Lines({"Rect A", " 3 ", " 0 ", " 4 ", " 40.5 ", " 62.25 "})},
        {"spacing", 3, [](auto& r) { r.BeamSpacing = 0; r.SMin = 6; r.LMin = 8; r.SMax = 9; },
         BeamLines + Lines({" 0 ", " 6 ", " 8 ", " 9 ", " 99.5 ", " 1 "})},
        {"CLSettleState", 4, [](auto& r) { r.SoilType = 1; r.CLSettleState = 0; },
         Lines({"Clay, PI 35", " 1 ", " 1500 ", " 5.5 ", " 3.2 ", " 1.3 ", " .75 ", " 2000 ",
                " 1 ", " 0 ", " 1000 "})},
        {"dead load, DefCLSettle, user friction", 5, [](auto& r) { r.UseDeadLoad = 1;
             r.DeadLoad = 600; r.SoilType = r.CLSettleState = 1; r.DefCLSettle = 240;
             r.Subgradetype = 2; r.UDSS = 10.5; r.UDLS = 12; r.UDSM = 8; r.UDLM = -0.75; },
         Lines({" 40 ", " 1200 ", " 1 ", " 600 ", " 360 ", " 720 ", " 480 ", " 240 ", " 2 ",
                " 10.5 ", " 12 ", " 8 ", "-.75 ", " 15 ", " .6 "})},
        {"no DefCLSettle, center lift off", 5, [](auto& r) { r.SoilType = 1; r.CLSettleState = 0; },
         Lines({" 40 ", " 1200 ", " 0 ", " 360 ", " 720 ", " 480 ", " 1 ", " 15 ", " .6 "})},
        {"line load, user prestress", 6, [](auto& r) { r.LineLoadType = 1; r.LineLoad = 1500;
             r.DirLineLoad = "Long"; r.PreLineLoadType = 2; r.Ks = 250; },
         Lines({" 1 ", " 1500 ", "Long", " 2 ", " 99.5 ", " 250 "})},
        {"line load, no user prestress", 6, [](auto& r) { r.LineLoadType = r.PreLineLoadType = 1; },
         Lines({" 1 ", " 99.5 ", "old DirLineLoad", " 1 ", " 99.5 "})},
    };
    // clang-format on
    for (const auto& [row, selector, change, section] : cases) {
        DesignRecord source = MinimumProject(), read = PreviousProject();
        change(source);
        read.SoilType = source.SoilType;
        read.CLSettleState = source.CLSettleState;
        WriteDesignFile(folder / "tab.kv", selector, source);
        EXPECT_EQ(ReadBytes(folder / "tab.kv"), Header + section) << row;
        EXPECT_EQ(Open(folder / "tab.kv", selector, read), "3") << row;
        WriteDesignFile(folder / "tab.kv", selector, read);
        EXPECT_EQ(ReadBytes(folder / "tab.kv"), Header + section) << row;
    }
}

// The seven tab files hold one after the other the lines of the project file, and each reads
// over another project into its own page alone. No other selector has a section.
TEST_F(DesignFileTest, EachTabSelectorWritesAndReadsOnlyItsSection) {
    DesignRecord source = MinimumProject(), old = PreviousProject();
    source.SoilType = source.CLSettleState = old.SoilType = old.CLSettleState = 1;
    const auto tabFile = [&](int selector, const DesignRecord& record) {
        WriteDesignFile(folder / "tab.kv", selector, record);
        return ReadBytes(folder / "tab.kv");
    };
    std::string joined = Header;
    for (int tab = 0; tab < 7; ++tab) {
        joined += tabFile(tab, source).substr(Header.size());
        DesignRecord read = old;
        EXPECT_EQ(Open(folder / "tab.kv", tab, read), "3");
        for (int page = 0; page < 7; ++page) {
            EXPECT_EQ(tabFile(page, read), tabFile(page, page == tab ? source : old))
                << "tab " << tab << ", page " << page;
        }
    }
    EXPECT_EQ(joined, tabFile(AllSections, source));
    EXPECT_EQ(tabFile(9, source), Header);
}

TEST_F(DesignFileTest, NoDataFlagEndsTheFile) {
    WriteBytes(folder / "nodata.kvt", Lines({"Korvath 3.0", " 1 ", "Smith", "March 4, 2024"}));
    DesignRecord read = PreviousProject();
    EXPECT_EQ(Open(folder / "nodata.kvt", AllSections, read), "3");
    EXPECT_EQ(Differences(read, PreviousProject()), "NoDataFlag ");
    WriteDesignFile(folder / "nodata.kvt", AllSections, read);
    EXPECT_EQ(ReadBytes(folder / "nodata.kvt"), Lines({"Korvath 3.0", " 1 "}));
}

// A load file written under a compressible soil with center lift and read under an expansive
// soil: DefCLSettle's line lands in Subgradetype and everything after it moves up one, with no
// error as each value is still a number.
TEST_F(DesignFileTest, LoadFileReadUnderAnotherSoilLosesStep) {
    DesignRecord source = MinimumProject(), read = PreviousProject();
    source.SoilType = source.CLSettleState = read.CLSettleState = 1;
    source.DefCLSettle = 240;
    read.SoilType = 0;
    WriteDesignFile(folder / "loads.kv5", 5, source);
    EXPECT_EQ(Open(folder / "loads.kv5", 5, read), "3");
    EXPECT_EQ(std::tie(read.DefCLSettle, read.Subgradetype, read.Prestress, read.SGFC),
              std::make_tuple(99.5, std::int16_t{240}, 1.0, 15.0));
}

TEST_F(DesignFileTest, TruncatedFileStopsWithTheRecordHalfFilled) {
    WriteBytes(folder / "cut.kvt",
               Header + InfoLines + MaterialLines + Lines({"Rect A", " 2 ", " .05 "}));
    DesignRecord read = PreviousProject();
    EXPECT_EQ(ErrorNumberOf([&] { Open(folder / "cut.kvt", AllSections, read); }), 62);
    EXPECT_EQ(std::tie(read.ProjName, read.TendType, read.ForceShort, read.ForceLong, read.QS1),
              std::make_tuple(ProjectName, std::int16_t{1}, 0.05, 99.5, std::int16_t{7}));
}

// Any other first line, even the version line in other case or with a blank after it, is the
// first value of a version 1 file. The line load page reads nothing from one but LineLoadType 0.
TEST_F(DesignFileTest, OnlyTheExactVersionLineIsCurrent) {
    for (const char* firstLine : {"korvath 3.0", "Korvath 3.0 ", "KORVATH 2.0", "Korvath 2.0 "}) {
        WriteBytes(folder / "version.kvt", Lines({firstLine, " 0 "}));
        DesignRecord read = PreviousProject();
        EXPECT_EQ(Open(folder / "version.kvt", 6, read), Version1Read) << firstLine;
        EXPECT_EQ(read.LineLoadType, 0) << firstLine;
    }
}
