#include "input/input_events.h"
#include "input/tab_files.h"
#include "storage/design_file.h"

#include "input_test_support.h"
#include "tests/test_files.h"

#include <gtest/gtest.h>

namespace {

std::size_t LineCount(const std::string& bytes) {
    return static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
}

} // namespace

TEST(TabFiles, SaveWritesOnlyThePageAndLeavesTheProjectAlone) {
    ScratchFolder folder;
    InputFixture f;
    f.project.ProjFileTitle = "Lot 12.kvt";
    f.project.ProjFilePath = "/projects/Lot 12.kvt";
    f.project.caption = "Korvath3 - Lot 12.kvt";
    const std::string standard = (folder.path() / "standard.kv1").string();
    const std::string custom = (folder.path() / "custom.kv1").string();
    f.dialogs.answers = {standard, custom};

    SaveTabFile(f.screen, f.context, 1);
    ASSERT_EQ(f.dialogs.fileDialogs.size(), 1u);
    const FileDialogRequest& request = f.dialogs.fileDialogs[0];
    EXPECT_EQ(request.title, "Save Material Properties File ...");
    EXPECT_EQ(request.filter, "Material Prop. (*.kv1) | *.kv1");
    EXPECT_EQ(request.fileName, "Lot 12.kv1");
    EXPECT_EQ(request.defaultExtension, "kv1");

    Click(f.screen, f.context, "optTendType(3)");
    f.project.ProjectChanged = 0;
    f.project.caption = "Korvath3 - Lot 12.kvt";
    SaveTabFile(f.screen, f.context, 1);
    // A custom strand stores its area: one line more than a standard one.
    EXPECT_EQ(LineCount(FileBytes(custom)), LineCount(FileBytes(standard)) + 1);
    EXPECT_EQ(f.project.ProjectChanged, 0);
    EXPECT_EQ(f.project.caption, "Korvath3 - Lot 12.kvt");
    EXPECT_EQ(f.project.ProjFilePath, "/projects/Lot 12.kvt");
    EXPECT_EQ(f.screen.dialogFolder, folder.path().string());
    EXPECT_EQ(f.project.dialogFolder, folder.path().string());
    EXPECT_TRUE(f.dialogs.messages.empty());

    // An untitled project proposes "*"; a cancel writes nothing and says nothing.
    f.project.ProjFileTitle.clear();
    SaveTabFile(f.screen, f.context, 4);
    EXPECT_EQ(f.dialogs.fileDialogs.back().fileName, "*.kv4");
    EXPECT_TRUE(f.dialogs.messages.empty());

    // A blank required field stops the save before the dialog.
    f["txtFpc"].text = "";
    SaveTabFile(f.screen, f.context, 1);
    EXPECT_EQ(f.dialogs.fileDialogs.size(), 3u);
    EXPECT_EQ(f.dialogs.messages.back().text, "Concrete Strength can not be blank");

    // A folder that does not exist is error 76.
    f["txtFpc"].text = "3000";
    f.dialogs.answers = {(folder.path() / "missing" / "x.kv1").string()};
    SaveTabFile(f.screen, f.context, 1);
    EXPECT_EQ(f.dialogs.messages.back().title, "Error saving file - 76");
    EXPECT_EQ(f.dialogs.messages.back().icon, MessageIcon::Critical);
}

TEST(TabFiles, OpenReplacesOnlyThePage) {
    ScratchFolder folder;
    InputFixture f;
    // A soil saved from a compressible project with edge down, opened in an expansive one.
    f.record.SoilType = 1;
    f.record.CLSettleState = 1;
    f.record.Settle = 2.75;
    f.record.SoilLabel = "Fill over clay";
    const std::string soil = (folder.path() / "soil.kv4").string();
    WriteDesignFile(soil, 4, f.record);

    InputFixture g;
    g["txtFpc"].text = "4500"; // typed, not yet in the record: another page stays as it is
    g.dialogs.answers = {soil};
    OpenTabFile(g.screen, g.context, 4);
    const FileDialogRequest& request = g.dialogs.fileDialogs.at(0);
    EXPECT_EQ(request.title, "Open Soil Properties File ...");
    EXPECT_EQ(request.filter,
              "Soil Prop. (*.kv4) | *.kv4|Soil Prop. - Korvath Win 1.x (*.sol) | *.sol");
    EXPECT_EQ(g.record.SoilType, 1);
    EXPECT_EQ(g.record.Settle, 2.75);
    EXPECT_EQ(g["txtSettle"].text, "2.75");
    EXPECT_EQ(g["txtSoilLabel"].text, "Fill over clay");
    EXPECT_EQ(g["cboSoilType"].text, "Compressible Soils");
    EXPECT_TRUE(g["cbCLSettleState"].checked);
    EXPECT_EQ(g["tabInput"].items[5], "Load, Deflection && Prestress");
    EXPECT_EQ(g["txtFpc"].text, "4500");
    EXPECT_EQ(g.project.ProjectChanged, 1);

    // A file that fails half way shows its error and leaves the record as it was.
    WriteBytes(folder.path() / "bad.kv4", "Korvath 3.0\r\n0\r\nClay\r\n0\r\n2000\r\nwet\r\n");
    g.dialogs.answers = {(folder.path() / "bad.kv4").string()};
    const DesignRecord before = g.record;
    OpenTabFile(g.screen, g.context, 4);
    EXPECT_EQ(g.dialogs.messages.back().title, "Error opening file - 13");
    EXPECT_EQ(g.record, before);
    EXPECT_EQ(TabFileKindFor(6).openFilter, "Line Load (*.kv6) | *.kv6");

    // A project information file of the first program version is announced, then shown.
    WriteBytes(folder.path() / "old.pro", "Lot 9\r\nMarch 4, 2024\r\n24-117\r\nR. Alvarez\r\n"
                                          "Terracon\r\nFebruary 12, 2024\r\n 1 \r\n");
    g.dialogs.answers = {(folder.path() / "old.pro").string()};
    OpenTabFile(g.screen, g.context, 0);
    EXPECT_EQ(g.dialogs.messages.back().title, "Opening Korvath Win 1.x file");
    EXPECT_EQ(g.dialogs.messages.back().icon, MessageIcon::Information);
    EXPECT_EQ(g["txtProjName"].text, "Lot 9");
    EXPECT_EQ(g["txtProjEng"].text, "R. Alvarez");
    EXPECT_EQ(TabFileKindFor(5).saveTitle, "Save Soil Properties File ...");
}
