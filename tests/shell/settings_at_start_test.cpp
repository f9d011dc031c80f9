#include "shell/settings_at_start.h"

#include "shell/settings_file_check.h"
#include "tests/shell/shell_test_support.h"
#include "tests/test_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

const std::string ProgramData = "Software\\Brellin Works\\Korvath3\\Program Data";
const std::string DefMatProp = "Software\\Brellin Works\\Korvath3\\DefMatProp";

} // namespace

TEST(StartSettings, AFileThatCannotServeIsLeftAsItIsAndTheRunStartsFromFactoryDefaults) {
    RecordingDialogs dialogs;
    FixedClock clock{"November 23, 2026"};

    // A file that reads well serves the run, without a word.
    MemorySettingsStore file;
    MemorySettingsStore memory;
    file.keys[ProgramData]["UseBeta"] = "1";
    file.keys[DefMatProp]["Fpc"] = "4500";
    ProgramSettings settings;
    SettingsAtStart start = StartSettings(file, memory, std::nullopt, "/home/k/Korvath3.conf",
                                          dialogs, clock, "/opt/korvath3", settings);
    EXPECT_EQ(start.store, &file);
    EXPECT_FALSE(start.notice);
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(settings.options.UseBeta, 1);
    EXPECT_EQ(settings.defaults.Fpc, 4500);
    EXPECT_TRUE(memory.keys.empty());

    // A file found broken before reading is not touched at all; the run keeps its settings in
    // memory, every one of them the factory default, and says so once.
    MemorySettingsStore broken;
    broken.keys[ProgramData]["UseBeta"] = "1";
    const auto brokenBefore = broken.keys;
    MemorySettingsStore fresh;
    settings = ProgramSettings{};
    start = StartSettings(broken, fresh, "is not a settings file", "/home/k/Korvath3.conf", dialogs,
                          clock, "/opt/korvath3", settings);
    EXPECT_EQ(start.store, &fresh);
    EXPECT_EQ(broken.keys, brokenBefore);
    EXPECT_EQ(start.showSplash, 1);
    EXPECT_EQ(settings.options.UseBeta, 0);
    EXPECT_EQ(settings.defaults.Fpc, 3000);
    EXPECT_EQ(fresh.keys.at(DefMatProp).at("Fpc"), "3000");
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(dialogs.messages[0].title, "Korvath Settings");
    EXPECT_EQ(dialogs.messages[0].text,
              "The settings file /home/k/Korvath3.conf is not a settings file. Korvath 3.0 starts "
              "with the factory defaults and does not write the file in this run.");
    EXPECT_EQ(*start.notice, dialogs.messages[0].text);

    // A stored number too large for its field is found while reading: the options read before
    // it do not stay, and the run goes on in memory.
    MemorySettingsStore overflowing;
    overflowing.keys[ProgramData]["UseBeta"] = "1";
    overflowing.keys[ProgramData]["ShowSplash"] = "70000";
    MemorySettingsStore instead;
    dialogs.messages.clear();
    settings = ProgramSettings{};
    start = StartSettings(overflowing, instead, std::nullopt, "k.conf", dialogs, clock,
                          "/opt/korvath3", settings);
    EXPECT_EQ(start.store, &instead);
    EXPECT_EQ(settings.options.UseBeta, 0);
    EXPECT_EQ(overflowing.keys.at(ProgramData).at("ShowSplash"), "70000");
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text,
              "The settings file k.conf cannot be read (Overflow). Korvath 3.0 starts with the "
              "factory defaults and does not write the file in this run.");
}

TEST(SettingsFileProblem, NamesWhatKeepsTheFileFromServing) {
    ScratchFolder scratch;
    const auto file = scratch.path() / "Korvath3.conf";

    // Not there yet, in a folder still to be made: the first start creates it.
    EXPECT_FALSE(SettingsFileProblem(scratch.path() / "Brellin Works" / "Korvath3.conf"));
    WriteBytes(file, "[Program%20Data]\r\nUseBeta=1\n; a note\n\n[DefMatProp]\nFpc=3000\n");
    EXPECT_FALSE(SettingsFileProblem(file));

    std::string binary = "[Program%20Data]\nUseBeta=1\n";
    binary += '\0';
    binary += "\x01\x02 garbage=";
    WriteBytes(file, binary);
    EXPECT_EQ(SettingsFileProblem(file), "is not a settings file");
    WriteBytes(file, "[Program%20Data]\nthis line is neither a group nor a value\n");
    EXPECT_EQ(SettingsFileProblem(file), "is not a settings file");
    WriteBytes(file, "[Program%20Data]\nRecentFile1=" + std::string(2 << 20, 'x') + "\n");
    EXPECT_EQ(SettingsFileProblem(file), "is not a settings file");

    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    EXPECT_EQ(SettingsFileProblem(file), "cannot be read: it is not a file");

    // A folder that cannot be made because a file stands in its place.
    WriteBytes(scratch.path() / "plain", "x");
    EXPECT_EQ(SettingsFileProblem(scratch.path() / "plain" / "Korvath3.conf"),
              "cannot be written: its folder cannot be made or written");

    // Permissions do not hold back the superuser, who can write anywhere.
    if (geteuid() != 0) {
        const auto locked = scratch.path() / "locked";
        std::filesystem::create_directory(locked);
        WriteBytes(locked / "Korvath3.conf", "[Program%20Data]\nUseBeta=1\n");
        ::chmod(locked.c_str(), 0555);
        EXPECT_EQ(SettingsFileProblem(locked / "Korvath3.conf"), "cannot be written");
        ::chmod((locked / "Korvath3.conf").c_str(), 0);
        EXPECT_EQ(SettingsFileProblem(locked / "Korvath3.conf"), "cannot be read");
        ::chmod(locked.c_str(), 0755);
    }
}
