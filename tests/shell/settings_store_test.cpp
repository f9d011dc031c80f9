#include "shell/load_settings.h"
#include "shell/settings_store.h"

#include "shell_test_support.h"

#include "common/run_time_error.h"

#include <gtest/gtest.h>

TEST(QueryValue, LongValuesCountAsMissingAndDefaultsSpringIntoExistence) {
    ShellFixture f;
    SettingsKey key;
    ASSERT_TRUE(OpenSection(f.store, f.dialogs, "Software", "Brellin Works\\Korvath3\\X", key));
    EXPECT_EQ(key.path, "Software\\Brellin Works\\Korvath3\\X");
    auto& values = f.section("X");
    values["fits"] = std::string(254, 'a');
    values["long"] = std::string(300, 'b');

    std::string value = "before";
    EXPECT_EQ(QueryValue(f.store, key, "fits", value, "d"), ValueFound);
    EXPECT_EQ(value.size(), 254u);
    EXPECT_EQ(QueryValue(f.store, key, "long", value, "d"), DefaultWritten);
    EXPECT_EQ(value, "d");
    EXPECT_EQ(values["long"], "d");
    EXPECT_EQ(QueryValue(f.store, key, "new", value, "7"), DefaultWritten);
    EXPECT_EQ(values["new"], "7");

    f.store.refuseWrites = true;
    value = "as it was";
    EXPECT_EQ(QueryValue(f.store, key, "refused", value, "9"), DefaultNotWritten);
    EXPECT_EQ(value, "as it was");

    // A flag is on only for the text "1", and reading it creates nothing.
    values["on"] = "1";
    values["blank"] = "1 ";
    EXPECT_TRUE(ReadFlag(f.store, key, "on"));
    EXPECT_FALSE(ReadFlag(f.store, key, "blank"));
    EXPECT_FALSE(ReadFlag(f.store, key, "absent"));
    EXPECT_EQ(values.count("absent"), 0u);
}

TEST(LoadSettings, FreshStoreEndsWithEveryValuePresentAndShowDDAbsent) {
    ShellFixture f;
    ProgramSettings settings;
    EXPECT_EQ(LoadSettings(f.services, settings), 1); // ShowSplash
    const auto& program = f.section("Program Data");
    EXPECT_EQ(program.size(), 23u); // folder, 5 recent files, 4 options, 10 pages, splash, x, y
    EXPECT_EQ(program.count("ShowDD"), 0u);
    EXPECT_EQ(program.at("FilePath"), "/opt/korvath3");
    EXPECT_EQ(program.at("drLLA"), "1");
    const struct {
        const char* section;
        std::size_t values;
    } sections[] = {{"DefGenInfo", 8},   {"DefMatProp", 7},   {"DefFoundProp", 13},
                    {"DefBeamProp", 26}, {"DefSoilProp", 10}, {"DefLDPProp", 15},
                    {"DefLineLoad", 6}};
    for (const auto& s : sections) {
        EXPECT_EQ(f.section(s.section).size(), s.values) << s.section;
    }
    EXPECT_EQ(f.section("DefGenInfo").at("ProjDate"), "November 23, 2026");
    EXPECT_EQ(f.section("DefLDPProp").at("SubGradeType"), "0");
    EXPECT_EQ(f.section("DefLineLoad").at("DirLineLoad"), "Long Direction");

    EXPECT_EQ(settings.FilePath, "/opt/korvath3");
    EXPECT_EQ(settings.options.ShowDD, 0);
    EXPECT_EQ(settings.options.DefaultPages[9], 1);
    const DesignRecord& d = settings.defaults;
    EXPECT_EQ(d.ProjDate, "November 23, 2026");
    EXPECT_EQ(d.Fpc, 3000);
    EXPECT_EQ(d.UW, 145);
    EXPECT_EQ(d.TendType, 2);
    EXPECT_EQ(d.ForceShort, 0.05);
    EXPECT_EQ(d.StrLvlLong, 50);
    EXPECT_EQ(d.SixFtRule, 1);
    EXPECT_EQ(d.ExpBearing, 4000);
    EXPECT_EQ(d.DefEdge, 960);
    EXPECT_EQ(d.SGFC, 0.75);
    EXPECT_EQ(d.Ks, 4);
    EXPECT_EQ(d, FirstStartDefaultRecord("November 23, 2026"));

    // A later start keeps the first day's date, and the flag counts once it is there.
    f.clock.date = "December 1, 2026";
    f.section("Program Data")["ShowDD"] = "1";
    ProgramSettings later;
    LoadSettings(f.services, later);
    EXPECT_EQ(later.defaults.ProjDate, "November 23, 2026");
    EXPECT_EQ(later.options.ShowDD, 1);
}

TEST(LoadSettings, CrossedSlotsAndTheStoredTextsAsNumbers) {
    ShellFixture f;
    f.section("DefBeamProp") = {{"LMin", "30"}, {"LMax", "50"}, {"QS1", "2.5"}, {"QS2", "3.5"}};
    f.section("DefLDPProp") = {{"UDSS", "1"}, {"UDLS", "2"}, {"ULoad", " 12.5 psf"}};
    f.section("DefMatProp") = {{"Fpc", "abc"}, {"Ec", "1 500 000"}};
    f.section("Program Data") = {{"FilePath", ""}, {"ShowSplash", "9999"}};
    ProgramSettings settings;
    EXPECT_EQ(LoadSettings(f.services, settings), 9999);
    const DesignRecord& d = settings.defaults;
    EXPECT_EQ(d.LMin, 0);
    EXPECT_EQ(d.LMax, 50);
    EXPECT_EQ(d.UDSS, 2);
    EXPECT_EQ(d.UDLS, 0);
    EXPECT_EQ(d.QS1, 2); // ties to even
    EXPECT_EQ(d.QS2, 4);
    EXPECT_EQ(d.ULoad, 12.5);
    EXPECT_EQ(d.Fpc, 0);
    EXPECT_EQ(d.Ec, 1500000);
    // An empty start folder stays empty for this run; the store learns the program's folder.
    EXPECT_EQ(settings.FilePath, "");
    EXPECT_EQ(f.section("Program Data").at("FilePath"), "/opt/korvath3");

    f.section("DefBeamProp")["QL1"] = "40000";
    try {
        LoadSettings(f.services, settings);
        FAIL() << "a count of 40000 does not fit 16 bits";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 6);
    }
}

TEST(LoadSettings, AStoreThatRefusesWritesLeavesTextsEmptyAndNumbersZero) {
    ShellFixture f;
    f.store.refuseWrites = true;
    ProgramSettings settings;
    EXPECT_EQ(LoadSettings(f.services, settings), 0);
    EXPECT_EQ(settings.defaults, DesignRecord{});
    EXPECT_EQ(settings.FilePath, "");
    EXPECT_EQ(settings.options.DefaultPages[0], 0);
    EXPECT_TRUE(f.dialogs.messages.empty());

    // A store whose keys cannot be created: one critical box per section, nothing read.
    ShellFixture broken;
    broken.store.createKeyError = 70;
    LoadSettings(broken.services, settings);
    ASSERT_EQ(broken.dialogs.messages.size(), 8u);
    EXPECT_EQ(broken.dialogs.messages[0].title, "Error Creating Registry Key - 70");
    EXPECT_EQ(broken.dialogs.messages[0].text, "Permission denied");
    EXPECT_EQ(broken.dialogs.messages[0].icon, MessageIcon::Critical);
}

TEST(SaveRecentFilesAndWindowPosition, WritesOnlyTheRecentFilesAndTheWindowCorner) {
    ShellFixture f;
    ProgramSettings settings;
    settings.RecentFiles = {"/p/a.kvt", "/p/b.kvt", "", "", ""};
    settings.options.UseBeta = 1; // not written at the end of the program
    SaveRecentFilesAndWindowPosition(f.services, settings, "1440", "");
    const auto& program = f.section("Program Data");
    EXPECT_EQ(program.size(), 7u);
    EXPECT_EQ(program.at("RecentFile2"), "/p/b.kvt");
    EXPECT_EQ(program.at("StartX"), "1440");
    EXPECT_EQ(program.at("StartY"), "");
}
