#include "shell/file_association.h"
#include "shell/load_settings.h"
#include "shell/qt/ini_settings_store.h"

#include "shell_test_support.h"
#include "tests/test_files.h"

#include <gtest/gtest.h>

TEST(IniSettingsStore, KeepsEverySectionInItsFileAcrossStarts) {
    ScratchFolder scratch;
    const auto& folder = scratch.path();
    const auto file = folder / "Brellin Works" / "Korvath3.conf";
    RecordingDialogs dialogs;
    FixedClock clock("November 23, 2026");
    {
        IniSettingsStore store(file);
        ShellServices services{store, dialogs, clock, "/opt/korvath3"};
        ProgramSettings settings;
        EXPECT_EQ(LoadSettings(services, settings), 1);
        SettingsKey key;
        ASSERT_TRUE(
            OpenSection(store, dialogs, "Software", SettingsSectionPath("DefGenInfo"), key));
        SetValue(store, key, "ProjName", "Lot 14, Phase 2 = \"A\"");
        CloseKey(store, key);
    }
    const std::string text = FileBytes(file);
    EXPECT_NE(text.find("[DefMatProp]"), std::string::npos) << text;
    EXPECT_EQ(text.find("ShowDD"), std::string::npos);

    IniSettingsStore again(file);
    ShellServices services{again, dialogs, clock, "/opt/korvath3"};
    ProgramSettings settings;
    LoadSettings(services, settings);
    EXPECT_EQ(settings.defaults.ProjName, "Lot 14, Phase 2 = \"A\"");
    EXPECT_EQ(settings.defaults.Fpc, 3000);
    EXPECT_EQ(settings.FilePath, "/opt/korvath3");

    // A file that cannot be written (its folder is a plain file) refuses the defaults.
    IniSettingsStore blocked(folder / "Brellin Works" / "Korvath3.conf" / "inner.conf");
    ShellServices blockedServices{blocked, dialogs, clock, "/opt/korvath3"};
    ProgramSettings empty;
    LoadSettings(blockedServices, empty);
    EXPECT_EQ(empty.defaults.Fpc, 0);
}

TEST(SettingsFilePath, TheVariableNamesTheFileElseTheUserConfigurationFolder) {
    const char* saved = std::getenv("KORVATH3_SETTINGS");
    const std::string restore = saved ? saved : "";
    setenv("KORVATH3_SETTINGS", "/tmp/elsewhere.conf", 1);
    EXPECT_EQ(SettingsFilePath(), "/tmp/elsewhere.conf");
    unsetenv("KORVATH3_SETTINGS");
    setenv("XDG_CONFIG_HOME", "/home/eng/.cfg", 1);
    EXPECT_EQ(SettingsFilePath(), "/home/eng/.cfg/Brellin Works/Korvath3.conf");
    unsetenv("XDG_CONFIG_HOME");
    if (saved) {
        setenv("KORVATH3_SETTINGS", restore.c_str(), 1);
    }
}

TEST(AssociateFileType, WritesTheMimeTypeAndTheDesktopEntry) {
    ScratchFolder scratch;
    const auto& folder = scratch.path();
    const FileAssociation files = AssociateFileType(folder, "/opt/Korvath 3/bin/korvath3");
    const std::string mime = FileBytes(files.mimePackage);
    EXPECT_NE(mime.find("<mime-type type=\"application/x-korvath3-project\">"), std::string::npos);
    EXPECT_NE(mime.find("<comment>Korvath3 Document</comment>"), std::string::npos);
    EXPECT_NE(mime.find("<glob pattern=\"*.kvt\"/>"), std::string::npos);
    const std::string entry = FileBytes(files.desktopEntry);
    EXPECT_NE(entry.find("Exec=\"/opt/Korvath 3/bin/korvath3\" %f\n"), std::string::npos) << entry;
    EXPECT_NE(entry.find("MimeType=application/x-korvath3-project;\n"), std::string::npos);
    EXPECT_EQ(files.desktopEntry, folder / "applications" / "korvath3.desktop");

    // The installed package declares the same file type, so that both agree on the desktop.
    EXPECT_EQ(FileBytes(std::filesystem::path(K3_SOURCE_DIR) / "dist" / "korvath3.xml"), mime);
}
