#include "storage/design_file.h"

#include "project_records.h"
#include "storage/file_error.h"

#include <vector>

namespace {
const DesignRecord NoDefaults{};

int Read(const std::filesystem::path& path, int selector, DesignRecord& record,
         std::vector<OldVersionNotice>* notices = nullptr) {
    return ReadDesignFile(path, selector, record, NoDefaults, [&](const OldVersionNotice& n) {
        ASSERT_NE(notices, nullptr) << "unexpected notice: " << n.title;
        notices->push_back(n);
    });
}

// The fields of one input page, by their first and last names in the record's page order.
// TendDiam is never stored; SGFC stands among the soil fields but is kept with the loads.
void CopyPage(int tab, const DesignRecord& from, DesignRecord& to) {
    static const char* const bounds[7][2] = {{"ProjName", "FlatSlab"},    {"MatLabel", "TendArea"},
                                             {"RectLabel", "RectLength"}, {"QS1", "SixFtRule"},
                                             {"SoilLabel", "Es"},         {"ULoad", "Prestress"},
                                             {"LineLoadType", "Ks"}};
    bool inside = false;
    for (const DesignField& field : DesignRecordFields()) {
        inside = inside || field.name == bounds[tab][0];
        const bool excluded = field.name == "TendDiam" || (field.name == "SGFC" && tab == 4);
        if (inside && !excluded) {
            if (field.kind == FieldKind::Text) {
                to.*field.text = from.*field.text;
            } else if (field.kind == FieldKind::Int16) {
                to.*field.int16 = from.*field.int16;
            } else {
                to.*field.real = from.*field.real;
            }
        }
        if (field.name == bounds[tab][1]) {
            inside = false;
        }
    }
    if (tab == 5) {
        to.SGFC = from.SGFC;
    }
}
} // namespace

using DesignFileTest = StorageTest;

TEST_F(DesignFileTest, MinimumOptionsProjectIsSixtySixLinesAndReadsBack) {
    const auto path = folder / "minimum.kvt";
    WriteDesignFile(path, AllSections, MinimumProject());
    const std::string expected = CrLfLines(
        {"Korvath 3.0", " 0 ",
         // project information
         "Smith Residence", "March 4, 2024", "24-117", "R. Alvarez, P.E.", "Terracon Consultants",
         "G-5521", "February 12, 2024", " 1 ",
         // material: a standard tendon has no area line
         "3000 psi concrete", " 3000 ", " 1500000 ", " 145 ", " 270 ", " 1 ",
         // slab: the force ratio pair only
         "Rect A", " 2 ", " .05 ", " .075 ", " 0 ", " 4 ", " 40.5 ", " 62.25 ",
         // beams: no spacing limits
         " 5 ", " 1 ", " 4 ", " 0 ", " 24 ", " 30 ", " 26 ", " 0 ", " 12 ", " 14 ", " 10 ", " 0 ",
         " 1 ", " 2 ", " 1.5 ", " 0 ", " 3 ", " 3.25 ", " 2.75 ", " 0 ", " 1 ", " 1 ",
         // soil: no CLSettleState for expansive soil
         "Clay, PI 35", " 0 ", " 1500 ", " 5.5 ", " 3.2 ", " 1.3 ", " .75 ", " 2000 ", " 1 ",
         " 1000 ",
         // loads
         " 40 ", " 1200 ", " 0 ", " 360 ", " 720 ", " 480 ", " 1 ", " 15 ", " .6 ",
         // line load
         " 0 "});
    const std::string written = ReadBytes(path);
    EXPECT_EQ(written, expected);
    EXPECT_EQ(CountCrLf(written), 66);

    DesignRecord record = PreviousProject();
    EXPECT_EQ(Read(path, AllSections, record), 3);
    ExpectSameRecord(record, MinimumProject());
}

TEST_F(DesignFileTest, EveryOptionOnWritesEachConditionalLineInItsPlace) {
    const auto path = folder / "every.kvt";
    WriteDesignFile(path, AllSections, EveryOptionProject());
    const std::string expected =
        CrLfLines({"Korvath 3.0", " 0 ", "Smith Residence", "March 4, 2024", "24-117",
                   "R. Alvarez, P.E.", "Terracon Consultants", "G-5521", "February 12, 2024", " 1 ",
                   // custom tendon area
                   "3000 psi concrete", " 3000 ", " 1500000 ", " 145 ", " 270 ", " 3 ", " .217 ",
                   // tendon counts, then the slab tendon cover
                   "Rect A", " 0 ", " 12 ", "-1 ", " 1 ", " 1.5 ", " 4 ", " 40.5 ", " 62.25 ",
                   // spacing limits SMin, LMin, SMax, LMax before SixFtRule
                   " 5 ", " 1 ", " 4 ", " 0 ", " 24 ", " 30 ", " 26 ", " 0 ", " 12 ", " 14 ",
                   " 10 ", " 0 ", " 1 ", " 2 ", " 1.5 ", " 0 ", " 3 ", " 3.25 ", " 2.75 ", " 0 ",
                   " 0 ", " 6 ", " 8 ", " 12 ", " 15 ", " 1 ",
                   // CLSettleState between Settle and Es
                   "Clay, PI 35", " 1 ", " 1500 ", " 5.5 ", " 3.2 ", " 1.3 ", " .75 ", " 2000 ",
                   " 1 ", " 1 ", " 1000 ",
                   // DeadLoad, DefCLSettle, the four user friction values
                   " 40 ", " 1200 ", " 1 ", " 600 ", " 360 ", " 720 ", " 480 ", " 240 ", " 2 ",
                   " 10.5 ", " 12 ", " 8 ", "-.75 ", " 15 ", " .6 ",
                   // the line load block with the user prestress
                   " 1 ", " 1500 ", "Long Direction", " 2 ", " 125 ", " 250 "});
    EXPECT_EQ(ReadBytes(path), expected);
    EXPECT_EQ(CountCrLf(expected), 84);

    DesignRecord record = PreviousProject();
    EXPECT_EQ(Read(path, AllSections, record), 3);
    ExpectSameRecord(record, EveryOptionProject());
}

// One tab file per case: what follows the version line and NoDataFlag, and that the file
// reads back into the same lines.
TEST_F(DesignFileTest, ConditionalLinesFollowTheirOptions) {
    struct Case {
        const char* name;
        int selector;
        std::vector<FieldValue> change;
        std::string section;
    };
    // clang-format off
    const Case cases[] = {
        {"prestress pair", 2, {{"SlabRefType", 1}, {"StrLvlShort", 150}, {"StrLvlLong", 125.5}},
         CrLfLines({"Rect A", " 1 ", " 150 ", " 125.5 ", " 0 ", " 4 ", " 40.5 ", " 62.25 "})},
        {"no pair outside 0..2", 2, {{"SlabRefType", 3}},
         CrLfLines({"Rect A", " 3 ", " 0 ", " 4 ", " 40.5 ", " 62.25 "})},
        {"CLSettleState only for compressible soil", 4, {{"CLSettleState", 1}},
         CrLfLines({"Clay, PI 35", " 0 ", " 1500 ", " 5.5 ", " 3.2 ", " 1.3 ", " .75 ", " 2000 ",
                    " 1 ", " 1000 "})},
        {"compressible soil, center lift off", 4, {{"SoilType", 1}, {"CLSettleState", 0}},
         CrLfLines({"Clay, PI 35", " 1 ", " 1500 ", " 5.5 ", " 3.2 ", " 1.3 ", " .75 ", " 2000 ",
                    " 1 ", " 0 ", " 1000 "})},
        {"DefCLSettle needs CLSettleState", 5,
         {{"SoilType", 1}, {"CLSettleState", 0}, {"DefCLSettle", 240}},
         CrLfLines({" 40 ", " 1200 ", " 0 ", " 360 ", " 720 ", " 480 ", " 1 ", " 15 ", " .6 "})},
        {"DefCLSettle needs compressible soil", 5,
         {{"SoilType", 0}, {"CLSettleState", 1}, {"DefCLSettle", 240}},
         CrLfLines({" 40 ", " 1200 ", " 0 ", " 360 ", " 720 ", " 480 ", " 1 ", " 15 ", " .6 "})},
        {"line load without user prestress", 6,
         {{"LineLoadType", 1}, {"LineLoad", 800}, {"DirLineLoad", "Short Direction"},
          {"PreLineLoadType", 1}},
         CrLfLines({" 1 ", " 800 ", "Short Direction", " 1 ", " 99.5 "})},
        {"line load type other than 1 is one line", 6,
         {{"LineLoadType", 2}, {"PreLineLoadType", 2}}, CrLfLines({" 2 "})},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        DesignRecord source = MinimumProject();
        SetFields(source, c.change);
        const auto path = folder / "case.kv";
        WriteDesignFile(path, c.selector, source);
        const std::string written = ReadBytes(path);
        EXPECT_EQ(written, CrLfLines({"Korvath 3.0", " 0 "}) + c.section);

        DesignRecord read = PreviousProject();
        read.SoilType = source.SoilType;
        read.CLSettleState = source.CLSettleState;
        EXPECT_EQ(Read(path, c.selector, read), 3);
        WriteDesignFile(path, c.selector, read);
        EXPECT_EQ(ReadBytes(path), written);
    }
}

TEST_F(DesignFileTest, TextIsStoredAsItStands) {
    std::string name;
    while (name.size() < 200) {
        name += R"( "Lot 12, Block 4", 'Phase 2',)";
    }
    name.resize(200);
    DesignRecord source = MinimumProject();
    source.ProjName = name;
    source.ProjNum = "";
    source.ProjEng = "  Ann \t Lee  ";
    const auto path = folder / "text.kv0";
    WriteDesignFile(path, 0, source);
    EXPECT_EQ(ReadBytes(path),
              CrLfLines({"Korvath 3.0", " 0 ", name, "March 4, 2024", "", "  Ann \t Lee  ",
                         "Terracon Consultants", "G-5521", "February 12, 2024", " 1 "}));
    DesignRecord read = PreviousProject();
    Read(path, 0, read);
    EXPECT_EQ(read.ProjName, name);
    EXPECT_EQ(read.ProjNum, "");
    EXPECT_EQ(read.ProjEng, "  Ann \t Lee  ");

    // An empty name is an empty line, and reads back empty.
    source.ProjName = "";
    WriteDesignFile(path, 0, source);
    EXPECT_EQ(ReadBytes(path).substr(0, 20), "Korvath 3.0\r\n 0 \r\n\r\n");
    Read(path, 0, read);
    EXPECT_EQ(read.ProjName, "");
}

TEST_F(DesignFileTest, EachTabSelectorWritesAndReadsOnlyItsSection) {
    const DesignRecord source = EveryOptionProject();
    const int lineCounts[7] = {10, 9, 11, 28, 13, 17, 8};
    for (int tab = 0; tab < 7; ++tab) {
        SCOPED_TRACE(tab);
        const auto path = folder / ("tab.kv" + std::to_string(tab));
        WriteDesignFile(path, tab, source);
        EXPECT_EQ(CountCrLf(ReadBytes(path)), lineCounts[tab]);

        DesignRecord read = PreviousProject();
        read.SoilType = 1;
        read.CLSettleState = 1;
        DesignRecord expected = read;
        CopyPage(tab, source, expected);
        EXPECT_EQ(Read(path, tab, read), 3);
        ExpectSameRecord(read, expected);
    }
    // The beam page writes its beams, whatever the screen's copying does with selector 3.
    WriteDesignFile(folder / "beams.kv3", 3, MinimumProject());
    EXPECT_EQ(ReadBytes(folder / "beams.kv3"),
              CrLfLines({"Korvath 3.0", " 0 ", " 5 ",  " 1 ",    " 4 ",    " 0 ", " 24 ", " 30 ",
                         " 26 ",        " 0 ", " 12 ", " 14 ",   " 10 ",   " 0 ", " 1 ",  " 2 ",
                         " 1.5 ",       " 0 ", " 3 ",  " 3.25 ", " 2.75 ", " 0 ", " 1 ",  " 1 "}));
    // No section has another number.
    for (int selector : {-1, 7, 9, 11}) {
        WriteDesignFile(folder / "none.kvt", selector, source);
        EXPECT_EQ(ReadBytes(folder / "none.kvt"), CrLfLines({"Korvath 3.0", " 0 "})) << selector;
    }
}

TEST_F(DesignFileTest, NoDataFlagEndsTheFile) {
    const auto path = folder / "nodata.kvt";
    WriteBytes(path, CrLfLines({"Korvath 3.0", " 1 ", "Smith Residence", "March 4, 2024"}));
    DesignRecord record = PreviousProject();
    EXPECT_EQ(Read(path, AllSections, record), 3);
    DesignRecord expected = PreviousProject();
    expected.NoDataFlag = 1;
    ExpectSameRecord(record, expected);

    WriteDesignFile(path, AllSections, record);
    EXPECT_EQ(ReadBytes(path), CrLfLines({"Korvath 3.0", " 1 "}));
    record.NoDataFlag = -1;
    WriteDesignFile(path, 2, record);
    EXPECT_EQ(ReadBytes(path), CrLfLines({"Korvath 3.0", "-1 "}));
}

TEST_F(DesignFileTest, SoilTabFileReadUnderAnotherSoilLosesStep) {
    DesignRecord source = MinimumProject();
    source.SoilType = 1;
    source.CLSettleState = 1;
    source.DefCLSettle = 240;
    const auto path = folder / "loads.kv5";
    WriteDesignFile(path, 5, source);
    EXPECT_EQ(ReadBytes(path), CrLfLines({"Korvath 3.0", " 0 ", " 40 ", " 1200 ", " 0 ", " 360 ",
                                          " 720 ", " 480 ", " 240 ", " 1 ", " 15 ", " .6 "}));

    // Expansive soil in memory: DefCLSettle's line lands in Subgradetype and everything after
    // moves up one; no error, as each value is still a number.
    DesignRecord read = PreviousProject();
    read.SoilType = 0;
    EXPECT_EQ(Read(path, 5, read), 3);
    EXPECT_EQ(read.DefSettle, 480);
    EXPECT_EQ(read.DefCLSettle, 99.5);
    EXPECT_EQ(read.Subgradetype, 240);
    EXPECT_EQ(read.Prestress, 1);
    EXPECT_EQ(read.SGFC, 15);
}

TEST_F(DesignFileTest, NumbersAreReadByTheLineRules) {
    const auto path = folder / "rules.kv1";
    // Bare LF and bare CR line ends, blank lines before a number, text after a number, a comma,
    // a tab, the D exponent, and a half that rounds to the even 2, so no area line is read.
    WriteBytes(path, "Korvath 3.0\n"
                     " 0 \r"
                     "Steel, \"grade\" 60 \r\n"
                     "\r\n   \r\n  3000 , 4000\r\n"
                     "1.5E+6 psi\n"
                     "\t145\t\r"
                     "2.7D2,\r\n"
                     " 2.5 \r\n"
                     " .3 \r\n");
    DesignRecord read = PreviousProject();
    EXPECT_EQ(Read(path, 1, read), 3);
    EXPECT_EQ(read.MatLabel, "Steel, \"grade\" 60 ");
    EXPECT_EQ(read.Fpc, 3000);
    EXPECT_EQ(read.Ec, 1500000);
    EXPECT_EQ(read.UW, 145);
    EXPECT_EQ(read.Fpu, 270);
    EXPECT_EQ(read.TendType, 2);
    EXPECT_EQ(read.TendArea, 99.5);

    // A number followed by a text: the text starts on the next line, not after the number.
    WriteBytes(path, "Korvath 3.0\r\n 0 junk\r\nLabel\r\n 1 \r\n 2 \r\n 3 \r\n 4 \r\n 3.5 \r\n");
    Read(path, 1, read);
    EXPECT_EQ(read.MatLabel, "Label");
    EXPECT_EQ(read.TendType, 4);
}

TEST_F(DesignFileTest, TruncatedFileStopsWithTheRecordHalfFilled) {
    const auto path = folder / "cut.kvt";
    WriteDesignFile(path, AllSections, MinimumProject());
    std::string bytes = ReadBytes(path);
    // Cut after the slab's ForceShort line.
    bytes.resize(bytes.find(" .05 \r\n") + 7);
    WriteBytes(path, bytes);

    DesignRecord read = PreviousProject();
    try {
        Read(path, AllSections, read);
        FAIL() << "no error";
    } catch (const FileError& error) {
        EXPECT_EQ(error.number(), 62);
        EXPECT_STREQ(error.what(), "Error 62: Input past end of file");
    }
    EXPECT_EQ(read.ProjName, "Smith Residence");
    EXPECT_EQ(read.TendType, 1);
    EXPECT_EQ(read.SlabRefType, 2);
    EXPECT_EQ(read.ForceShort, 0.05);
    EXPECT_EQ(read.ForceLong, 99.5);
    EXPECT_EQ(read.QS1, 7);
}

TEST_F(DesignFileTest, OnlyTheExactVersionLineIsCurrent) {
    const auto path = folder / "version.kvt";
    for (const char* firstLine : {"korvath 3.0", "Korvath 3.0 ", " Korvath 3.0", "Korvath 3.00",
                                  "KORVATH 2.0", "Korvath 2.0 "}) {
        SCOPED_TRACE(firstLine);
        WriteBytes(path, CrLfLines({firstLine, " 0 "}));
        std::vector<OldVersionNotice> notices;
        DesignRecord read = PreviousProject();
        // The line load page reads nothing from a version 1 file and sets LineLoadType to 0.
        EXPECT_EQ(Read(path, 6, read, &notices), 1);
        ASSERT_EQ(notices.size(), 1u);
        EXPECT_EQ(notices[0].title, "Opening Korvath Win 1.x file");
        EXPECT_EQ(read.LineLoadType, 0);
    }
}
