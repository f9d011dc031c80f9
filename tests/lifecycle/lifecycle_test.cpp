#include "input/input_events.h"
#include "lifecycle/analysis_reset.h"
#include "lifecycle/print_commands.h"
#include "lifecycle/project_lifecycle.h"
#include "shell/recent_files.h"

#include "tests/lifecycle/lifecycle_test_support.h"

#include <gtest/gtest.h>

namespace {

// The commands of the main window that follow the project, as a line to compare.
std::string Commands(const ProjectState& p) {
    std::string line;
    const std::pair<const char*, bool> items[] = {
        {"save", p.saveEnabled},   {"button4", p.saveButtonEnabled}, {"saveAs", p.saveAsEnabled},
        {"input", p.inputEnabled}, {"analysis", p.analysisEnabled},  {"output", p.outputEnabled},
        {"print", p.printEnabled},
    };
    for (const auto& [name, on] : items) {
        line += std::string(on ? "+" : "-") + name + " ";
    }
    return line;
}

// Lines of a project file, each ended by CR LF.
std::string Lines(std::initializer_list<std::string> lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

void Type(LifecycleFixture& f, const std::string& box, const std::string& text) {
    InputContext context = InputContextOf(f.program, f.services);
    ChangeText(f.program.input, context, box, text);
}

} // namespace

TEST(ProjectLifecycle, TheStateTableFromStartToAnalysisAndBack) {
    LifecycleFixture f;
    Program& p = f.program;
    ProjectState& project = p.project;

    const WindowPlace place = LoadMainWindow(p, f.services, 19200, 10800);
    EXPECT_EQ(project.caption, "Korvath 3.0");
    EXPECT_EQ(Commands(project), "-save -button4 -saveAs -input -analysis -output -print ");
    EXPECT_EQ(place.left, (19200 - 11962) / 2.0);
    EXPECT_EQ(p.settings.StartX, "3619");

    NewProjectReset(p, f.services, ProjectKind::Compressible);
    EXPECT_EQ(project.caption, "Korvath 3.0 - Untitled");
    EXPECT_EQ(Commands(project), "-save +button4 +saveAs +input +analysis -output -print ");
    EXPECT_FALSE(MenuEnabled(project, "mnuSave"));
    EXPECT_TRUE(ToolbarButtonEnabled(project, 4) && ToolbarButtonEnabled(project, 9));
    EXPECT_FALSE(ToolbarButtonEnabled(project, 10) || ToolbarButtonEnabled(project, 6));
    EXPECT_TRUE(p.input.visible);
    EXPECT_EQ(p.input.CurrentInputTab, 1);
    EXPECT_EQ(p.input.form["cboSoilType"].text, "Compressible Soils");
    EXPECT_EQ(p.record.SoilType, 1);
    EXPECT_EQ(project.ProjectChanged, 0);

    // Opening an example from page 5: saved, not yet analysed, shown on page 1.
    InputContext context = InputContextOf(p, f.services);
    SelectPage(p.input, context, 5);
    EXPECT_NE(p.input.form["tlbInput(1)"].toolTip, "Open Project Information File");
    const std::string path = f.Example("uniform_line_load");
    OpenRecentProject(p, f.services, path);
    EXPECT_EQ(project.caption, "Korvath 3.0 - uniform_line_load.kvt");
    EXPECT_EQ(Commands(project), "+save +button4 +saveAs +input +analysis -output -print ");
    EXPECT_EQ(p.input.form["txtProjName"].text, "Hilltop Storage Warehouse");
    EXPECT_EQ(p.settings.RecentFiles[0], path);
    EXPECT_EQ(p.project.dialogFolder, f.scratch.path().string());
    EXPECT_EQ(p.input.dialogFolder, f.scratch.path().string());
    EXPECT_EQ(p.input.CurrentInputTab, 1);
    EXPECT_EQ(p.input.form["tlbInput(1)"].toolTip, "Open Project Information File");
    EXPECT_EQ(p.input.form["tlbInput(2)"].toolTip, "Save Project Information File");

    // Analysed: the results replace the input, four main tabs for its uniform foundation and
    // line load.
    EXPECT_EQ(AnalysisReset(p, f.services), AnalysisResult::ResultsShown);
    EXPECT_EQ(Commands(project), "+save +button4 +saveAs +input +analysis +output +print ");
    EXPECT_TRUE(MenuEnabled(project, "mnuOutput") && MenuEnabled(project, "mnuPrint"));
    EXPECT_TRUE(ToolbarButtonEnabled(project, 10) && ToolbarButtonEnabled(project, 6));
    EXPECT_TRUE(p.output.visible);
    EXPECT_FALSE(p.input.visible);
    EXPECT_EQ(p.output.tabMain.count(), 4);
    EXPECT_EQ(p.output.tabMain.captions[3], "Line Load Analysis");
    EXPECT_EQ(project.ProjectChanged, 0);
    EXPECT_EQ(project.caption, "Korvath 3.0 - uniform_line_load.kvt");

    ShowInputScreen(p);
    EXPECT_TRUE(p.input.visible && !p.output.visible);
    ShowOutputScreen(p);
    EXPECT_TRUE(p.output.visible && !p.input.visible);

    // Edited: the results go, the star comes.
    ShowInputScreen(p);
    Type(f, "txtProjNum", "2026-143");
    EXPECT_EQ(project.caption, "Korvath 3.0 - uniform_line_load.kvt*");
    EXPECT_EQ(Commands(project), "+save +button4 +saveAs +input +analysis -output -print ");
    ShowOutputScreen(p);
    EXPECT_FALSE(p.output.visible);

    // Saved: the star goes, the file holds the edit.
    SaveCommand(p, f.services);
    EXPECT_EQ(project.caption, "Korvath 3.0 - uniform_line_load.kvt");
    EXPECT_EQ(project.ProjectChanged, 0);
    EXPECT_NE(FileBytes(path).find("\r\n2026-143\r\n"), std::string::npos);
    EXPECT_TRUE(f.dialogs.messages.empty());
}

TEST(ProjectLifecycle, AVersionTwoFileIsAnnouncedAndLeftChanged) {
    LifecycleFixture f;
    const std::string path = f.Path("old.kvt");
    // A version 2 project: no edge down state in its soil, no edge down ratio in its loads.
    // clang-format off
    WriteBytes(path, Lines({"Korvath 2.0", " 0 ",
        "Lot 12", "March 4, 2024", "24-117", "R. Alvarez, P.E.", "Terracon", "G-5521",
        "February 12, 2024", " 1 ",
        "3000 psi concrete", " 3000 ", " 1500000 ", " 145 ", " 270 ", " 1 ",
        "Rect A", " 1 ", " 150 ", " 125.5 ", " 0 ", " 4 ", " 40.5 ", " 62.25 ",
        " 5 ", " 1 ", " 4 ", " 0 ", " 24 ", " 30 ", " 26 ", " 0 ", " 12 ", " 14 ", " 10 ", " 0 ",
        " 1 ", " 2 ", " 1.5 ", " 0 ", " 3 ", " 3.25 ", " 2.75 ", " 0 ",
        " 1 ", " 1 ", "Clay, PI 35", " 1 ", " 1500 ", " 5.5 ", " 3.2 ", " 1.3 ", " .75 ", " 2000 ",
        " 1 ", " .8 ", " 1000 ", " 40 ", " 1200 ", " 0 ", " 360 ", " 720 ", " 480 ", " 1 ", " 15 ",
        " 0 "}));
    // clang-format on
    const std::string bytes = FileBytes(path);
    LoadMainWindow(f.program, f.services, 19200, 10800);
    f.dialogs.answers = {path};
    OpenCommand(f.program, f.services);
    ASSERT_EQ(f.dialogs.messages.size(), 1u);
    EXPECT_EQ(f.dialogs.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(f.dialogs.messages[0].title, "Opening Korvath Win 2.x file");
    EXPECT_EQ(f.program.project.caption, "Korvath 3.0 - old.kvt*");
    EXPECT_EQ(f.program.project.ProjectChanged, 1);
    EXPECT_TRUE(f.program.project.saveAsEnabled);
    EXPECT_EQ(FileBytes(path), bytes); // the old format stays on disk until saved
    EXPECT_EQ(f.dialogs.fileDialogs.at(0).title, "Open Project ...");
    EXPECT_EQ(f.dialogs.fileDialogs.at(0).filter, "Projects (*.kvt)|*.kvt");
}

TEST(ProjectLifecycle, RecentFilesMoveUpWithoutDoubling) {
    LifecycleFixture f;
    ProgramSettings& s = f.program.settings;
    for (const char* path : {"/a.kvt", "/b.kvt", "/c.kvt", "/d.kvt", "/e.kvt"}) {
        ModifyRecentFiles(s, path);
    }
    EXPECT_EQ(s.RecentFiles,
              (std::array<std::string, 5>{"/e.kvt", "/d.kvt", "/c.kvt", "/b.kvt", "/a.kvt"}));
    ModifyRecentFiles(s, "/c.kvt");
    EXPECT_EQ(s.RecentFiles,
              (std::array<std::string, 5>{"/c.kvt", "/e.kvt", "/d.kvt", "/b.kvt", "/a.kvt"}));
    ModifyRecentFiles(s, "/C.kvt"); // another file: names are compared with their case
    EXPECT_EQ(s.RecentFiles[0], "/C.kvt");
    EXPECT_EQ(s.RecentFiles[4], "/b.kvt");
    EXPECT_EQ(RecentFileItems(s)[1].caption, "&2. /c.kvt");

    // Reopening the newest through its menu item keeps one entry of it.
    const std::string path = f.Example("expansive_ribbed");
    ClearRecentFile(s);
    EXPECT_FALSE(RecentFilesSeparatorVisible(s));
    ModifyRecentFiles(s, "/other.kvt");
    OpenRecentProject(f.program, f.services, path);
    OpenRecentCommand(f.program, f.services, 1);
    EXPECT_EQ(s.RecentFiles[0], path);
    EXPECT_EQ(s.RecentFiles[1], "/other.kvt");
    EXPECT_EQ(s.RecentFiles[2], "");
    EXPECT_FALSE(RecentFileItems(s)[2].visible);
}

TEST(ProjectLifecycle, YesAtTheExitPromptWithABlankFieldStaysOnTheField) {
    LifecycleFixture f;
    Program& p = f.program;
    const std::string path = f.Example("expansive_ribbed");
    const std::string bytes = FileBytes(path);
    OpenRecentProject(p, f.services, path);
    EXPECT_EQ(AnalysisReset(p, f.services), AnalysisResult::ResultsShown);
    ShowInputScreen(p);
    Type(f, "txtFpc", "");

    f.dialogs.replies = {Answer::Yes};
    EXPECT_FALSE(QueryUnload(p, f.services));
    ASSERT_EQ(f.dialogs.messages.size(), 2u);
    EXPECT_EQ(f.dialogs.messages[0].title, "Save?");
    EXPECT_EQ(f.dialogs.messages[0].text, "File has changed?  Save before Exit?");
    EXPECT_EQ(f.dialogs.messages[1].title, "Input Error!");
    EXPECT_EQ(p.input.form.focus, "txtFpc");
    EXPECT_EQ(p.input.CurrentInputTab, 2);
    EXPECT_TRUE(p.input.visible);
    EXPECT_EQ(FileBytes(path), bytes);

    // No discards the edit; the next project starts from the defaults.
    f.dialogs.replies = {Answer::No};
    NewProjectCommand(p, f.services, ProjectKind::Expansive);
    EXPECT_EQ(p.input.form["txtFpc"].text, "3000");
    EXPECT_EQ(p.project.caption, "Korvath 3.0 - Untitled");
    EXPECT_EQ(FileBytes(path), bytes);

    // Cancel keeps the program running; an unchanged project asks nothing.
    Type(f, "txtProjName", "Lot 15");
    f.dialogs.replies = {Answer::Cancel};
    EXPECT_FALSE(QueryUnload(p, f.services));
    NewProjectReset(p, f.services, ProjectKind::Expansive);
    const std::size_t asked = f.dialogs.messages.size();
    EXPECT_TRUE(QueryUnload(p, f.services));
    EXPECT_EQ(f.dialogs.messages.size(), asked);
}

TEST(ProjectLifecycle, YesOnAProjectNeverSavedGoesThroughTheSaveDialog) {
    LifecycleFixture f;
    Program& p = f.program;
    NewProjectReset(p, f.services, ProjectKind::LineLoad);
    EXPECT_TRUE(p.input.form["cbLineLoadType"].checked);
    Type(f, "txtProjName", "Lot 16");

    // Cancel in the dialog is Cancel: nothing is written.
    f.dialogs.replies = {Answer::Yes};
    EXPECT_EQ(SaveCurrentFile(p, f.services, OpenPrompt), Answer::Cancel);
    EXPECT_EQ(p.project.ProjectChanged, 1);

    const std::string path = f.Path("lot16.kvt");
    f.dialogs.replies = {Answer::Yes};
    f.dialogs.answers = {path};
    EXPECT_EQ(SaveCurrentFile(p, f.services, OpenPrompt), Answer::Yes);
    EXPECT_EQ(p.project.ProjFilePath, path);
    EXPECT_EQ(p.project.caption, "Korvath 3.0 - lot16.kvt");
    EXPECT_TRUE(p.project.saveEnabled);
    EXPECT_EQ(p.settings.RecentFiles[0], path);
    EXPECT_EQ(f.dialogs.fileDialogs.back().title, "Save Project As ...");
    EXPECT_EQ(f.dialogs.fileDialogs.back().filter, "Projects (*.kvt)|*.kvt");
    EXPECT_EQ(p.project.ProjectChanged, 0);
    EXPECT_EQ(p.project.dialogFolder, f.scratch.path().string());
    EXPECT_EQ(p.input.dialogFolder, f.scratch.path().string());
    EXPECT_NE(FileBytes(path).find("Lot 16"), std::string::npos);
}

TEST(ProjectLifecycle, ANewProjectAfterAFileWithoutDataHasItsDataSaved) {
    LifecycleFixture f;
    Program& p = f.program;
    // A file whose data flag says it holds nothing: it loads nothing and saves as two lines.
    const std::string empty = f.Path("empty.kvt");
    WriteBytes(empty, Lines({"Korvath 3.0", " 1 "}));
    OpenRecentProject(p, f.services, empty);
    EXPECT_EQ(p.record.NoDataFlag, 1);
    EXPECT_EQ(p.project.caption, "Korvath 3.0 - empty.kvt");

    // A new project clears the flag, so that its input reaches the record and the file.
    NewProjectReset(p, f.services, ProjectKind::Expansive);
    EXPECT_EQ(p.record.NoDataFlag, 0);
    Type(f, "txtProjName", "Lot 18");
    const std::string path = f.Path("lot18.kvt");
    f.dialogs.answers = {path};
    SaveAsCommand(p, f.services);
    EXPECT_EQ(p.record.ProjName, "Lot 18");
    const std::string bytes = FileBytes(path);
    EXPECT_EQ(bytes.rfind("Korvath 3.0\r\n 0 \r\nLot 18\r\n", 0), 0u) << bytes;
}

TEST(ProjectLifecycle, AFailedOpenHidesTheInputAndSaysWhy) {
    LifecycleFixture f;
    Program& p = f.program;
    const std::string path = f.Example("expansive_ribbed");
    // The command line's path loses one pair of quotation marks; an unquoted one is taken whole.
    OpenAssociatedProject(p, f.services, "\"" + path + "\"");
    EXPECT_EQ(p.project.ProjFilePath, path);
    OpenAssociatedProject(p, f.services, path);
    EXPECT_EQ(p.project.ProjFilePath, path);
    EXPECT_TRUE(f.dialogs.messages.empty());
    const DesignRecord before = p.record;

    // A recent file or the command line gives the project its path only once the file has been
    // read: a failed open keeps the former path and title.
    OpenAssociatedProject(p, f.services, "\"" + f.Path("missing.kvt") + "\"");
    ASSERT_EQ(f.dialogs.messages.size(), 1u);
    EXPECT_EQ(f.dialogs.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(f.dialogs.messages[0].title, "Error opening file - 53");
    EXPECT_EQ(f.dialogs.messages[0].text, "File not found");
    EXPECT_FALSE(p.input.visible);
    EXPECT_EQ(p.project.caption, "Korvath 3.0 - ");
    EXPECT_EQ(p.project.ProjFilePath, path);
    EXPECT_EQ(p.project.ProjFileTitle, "expansive_ribbed.kvt");
    EXPECT_EQ(p.project.ProjectChanged, 0);
    EXPECT_EQ(p.record, before);

    // The file dialog gives its path before the file is read, and the failed open keeps it.
    f.dialogs.answers = {f.Path("gone.kvt")};
    OpenCommand(p, f.services);
    ASSERT_EQ(f.dialogs.messages.size(), 2u);
    EXPECT_EQ(f.dialogs.messages[1].title, "Error opening file - 53");
    EXPECT_EQ(p.project.ProjFilePath, f.Path("gone.kvt"));
    EXPECT_EQ(p.project.ProjFileTitle, "gone.kvt");
    EXPECT_EQ(p.project.caption, "Korvath 3.0 - ");
    EXPECT_EQ(p.record, before);

    // A cancelled dialog is silent and changes nothing.
    OpenCommand(p, f.services);
    EXPECT_EQ(f.dialogs.messages.size(), 2u);
    EXPECT_EQ(p.project.ProjFilePath, f.Path("gone.kvt"));
}

// The unreadable file may be a damaged project the engineer wants to recover: neither Save, the
// toolbar's Save nor Yes at a prompt writes the open project over it; only a name picked in the
// save dialog does.
TEST(ProjectLifecycle, AFileThatFailedToOpenIsNeverWrittenOverBySave) {
    LifecycleFixture f;
    Program& p = f.program;
    OpenRecentProject(p, f.services, f.Example("expansive_ribbed"));
    Type(f, "txtProjName", "Lot 21");
    const std::string damaged = f.Path("damaged.kvt");
    const std::string bytes = "Korvath 3.0\r\n 0 \r\nLot 9\r\n";
    WriteBytes(damaged, bytes);

    f.dialogs.replies = {Answer::No};
    f.dialogs.answers = {damaged};
    OpenCommand(p, f.services);
    ASSERT_EQ(f.dialogs.messages.size(), 2u);
    EXPECT_EQ(f.dialogs.messages[1].title, "Error opening file - 62");
    EXPECT_EQ(p.project.caption, "Korvath 3.0 - ");
    EXPECT_TRUE(p.project.saveEnabled); // Save stays offered, as Save As
    const std::size_t dialogs = f.dialogs.fileDialogs.size();

    // Save asks for a name; cancelling writes nothing.
    SaveCommand(p, f.services);
    ASSERT_EQ(f.dialogs.fileDialogs.size(), dialogs + 1);
    EXPECT_EQ(f.dialogs.fileDialogs.back().title, "Save Project As ...");
    EXPECT_EQ(FileBytes(damaged), bytes);
    EXPECT_EQ(p.project.ProjectChanged, 1);

    // Yes at the exit prompt goes through the dialog too; its cancel keeps the program running.
    f.dialogs.replies = {Answer::Yes};
    EXPECT_FALSE(QueryUnload(p, f.services));
    EXPECT_EQ(f.dialogs.fileDialogs.size(), dialogs + 2);
    EXPECT_EQ(FileBytes(damaged), bytes);

    // A name picked in the dialog is written, and from then on Save writes there.
    const std::string rescued = f.Path("lot21.kvt");
    f.dialogs.answers = {rescued};
    SaveCommand(p, f.services);
    EXPECT_EQ(p.project.ProjFilePath, rescued);
    EXPECT_EQ(p.project.caption, "Korvath 3.0 - lot21.kvt");
    EXPECT_NE(FileBytes(rescued).find("Lot 21"), std::string::npos);
    Type(f, "txtProjName", "Lot 22");
    SaveCommand(p, f.services);
    EXPECT_EQ(f.dialogs.fileDialogs.size(), dialogs + 3);
    EXPECT_NE(FileBytes(rescued).find("Lot 22"), std::string::npos);
    EXPECT_EQ(FileBytes(damaged), bytes);

    // Picking the unreadable file's own name in the dialog is the user's choice, and is done.
    Type(f, "txtProjName", "Lot 23");
    f.dialogs.answers = {damaged};
    SaveAsCommand(p, f.services);
    EXPECT_NE(FileBytes(damaged).find("Lot 23"), std::string::npos);
}

TEST(ProjectLifecycle, SaveFailuresKeepTheProjectChanged) {
    LifecycleFixture f;
    Program& p = f.program;
    OpenRecentProject(p, f.services, f.Example("expansive_ribbed"));
    Type(f, "txtProjName", "Lot 17");
    f.dialogs.answers = {f.Path("no such folder/lot17.kvt")};
    SaveAsCommand(p, f.services);
    ASSERT_EQ(f.dialogs.messages.size(), 1u);
    EXPECT_EQ(f.dialogs.messages[0].title.rfind("Error Saving File - ", 0), 0u);
    EXPECT_EQ(p.project.ProjectChanged, 1);
    EXPECT_EQ(p.project.ProjFileTitle, "expansive_ribbed.kvt");
    EXPECT_EQ(p.project.caption, "Korvath 3.0 - expansive_ribbed.kvt*");
}

TEST(ProjectLifecycle, NewButtonRemembersTheKindChosenInItsList) {
    LifecycleFixture f;
    Program& p = f.program;
    EXPECT_EQ(p.project.newToolTip, "New Expansive Soil Project");
    EXPECT_EQ(NewKindCaption(ProjectKind::Expansive), "New Expansive Soil Project");
    EXPECT_EQ(NewKindCaption(ProjectKind::Compressible), "New Compressible Soil Project");
    EXPECT_EQ(NewKindCaption(ProjectKind::LineLoad), "New Line Load Project");
    ChooseNewKind(p, f.services, ProjectKind::Compressible);
    EXPECT_EQ(p.project.newToolTip, "New Compressible Soil Project");
    NewProjectReset(p, f.services, ProjectKind::Expansive);
    EXPECT_EQ(p.record.SoilType, 0);
    ClickNewButton(p, f.services);
    EXPECT_EQ(p.record.SoilType, 1);
    EXPECT_EQ(p.input.form["cboSoilType"].text, "Compressible Soils");

    // The line load menu item does nothing at all.
    Type(f, "txtProjName", "changed");
    LineLoadMenuItem(p);
    EXPECT_EQ(p.project.ProjectChanged, 1);
    EXPECT_EQ(p.input.form["txtProjName"].text, "changed");
    EXPECT_TRUE(f.dialogs.messages.empty());

    // The button asks first; Cancel keeps the project as it is.
    f.dialogs.replies = {Answer::Cancel};
    ClickNewButton(p, f.services);
    ASSERT_EQ(f.dialogs.messages.size(), 1u);
    EXPECT_EQ(f.dialogs.messages[0].icon, MessageIcon::Question);
    EXPECT_EQ(f.dialogs.messages[0].title, "Save?");
    EXPECT_EQ(f.dialogs.messages[0].text, "File has changed?  Save before opening new project?");
    EXPECT_EQ(p.input.form["txtProjName"].text, "changed");
    EXPECT_EQ(p.project.caption, "Korvath 3.0 - Untitled*");

    // The line load kind chosen in the list, then repeated by the button, ticks the line load.
    f.dialogs.replies = {Answer::No};
    ChooseNewKind(p, f.services, ProjectKind::LineLoad);
    EXPECT_EQ(p.project.newToolTip, "New Line Load Project");
    p.input.form["cbLineLoadType"].checked = false;
    ClickNewButton(p, f.services);
    EXPECT_TRUE(p.input.form["cbLineLoadType"].checked);
    EXPECT_EQ(p.record.SoilType, 0);
    EXPECT_EQ(p.project.caption, "Korvath 3.0 - Untitled");
}

TEST(ProjectLifecycle, AnalysisStopsAtInputFaultsAndEndsTheProgramAtAnEngineFault) {
    LifecycleFixture f;
    Program& p = f.program;
    OpenRecentProject(p, f.services, f.Example("compressible_edge_down"));
    const ResultsRecord before = p.results;

    // A blank stops it before the record changes.
    Type(f, "txtRectWidth", "");
    EXPECT_EQ(AnalysisReset(p, f.services), AnalysisResult::Stopped);
    EXPECT_EQ(p.record.RectWidth, 36);
    EXPECT_TRUE(p.input.visible);
    EXPECT_FALSE(p.project.outputEnabled);

    // A value fault stops it after the record took the screen.
    Type(f, "txtRectWidth", "60");
    EXPECT_EQ(AnalysisReset(p, f.services), AnalysisResult::Stopped);
    EXPECT_EQ(p.record.RectWidth, 60);
    EXPECT_EQ(f.dialogs.messages.back().title, "Input Error!");
    EXPECT_EQ(p.results, before);

    // Forty thousand short beams on a rectangle 100,000 ft square pass the checks and overflow
    // the 16-bit count of beams.
    const std::string path = f.Path("overflow.kvt");
    std::string bytes = FileBytes(f.Example("expansive_ribbed"));
    for (const auto& [line, text] :
         std::vector<std::pair<std::size_t, std::string>>{{22, " 100000 "},
                                                          {23, " 100000 "},
                                                          {24, " 20000 "},
                                                          {25, " 20000 "},
                                                          {45, " 1 "},
                                                          {46, " 1 "},
                                                          {47, " 100000 "},
                                                          {48, " 100000 "}}) {
        std::size_t start = 0;
        for (std::size_t i = 0; i < line; ++i) {
            start = bytes.find("\r\n", start) + 2;
        }
        bytes.replace(start, bytes.find("\r\n", start) - start, text);
    }
    WriteBytes(path, bytes);
    OpenRecentProject(p, f.services, path);
    EXPECT_EQ(AnalysisReset(p, f.services), AnalysisResult::EndProgram);
    EXPECT_EQ(f.dialogs.messages.back().title, "Korvath Critical Error");
    EXPECT_NE(f.dialogs.messages.back().text.find("overflow in stage 2"), std::string::npos)
        << f.dialogs.messages.back().text;
    EXPECT_FALSE(p.input.visible || p.output.visible);
    EXPECT_FALSE(p.project.outputEnabled);
}

TEST(ProjectLifecycle, WindowPlacementKeepsAPlaceOnTheScreenAndTheEndWritesIt) {
    LifecycleFixture f;
    ProgramSettings& s = f.program.settings;
    s.StartX = "1500", s.StartY = "900";
    WindowPlace place = LoadMainWindow(f.program, f.services, 19200, 10800);
    EXPECT_EQ(place.left, 1500);
    EXPECT_EQ(place.top, 900);

    // Placed once on a larger screen, out of this one's width: centred again.
    s.StartX = "25000";
    place = LoadMainWindow(f.program, f.services, 19200, 10800);
    EXPECT_EQ(place.left, 3619);
    EXPECT_EQ(s.StartX, "3619");
    EXPECT_EQ(place.top, 900);

    // A window drawn larger than the classic size is centred for its own size: 1240 by 780
    // pixels of 15 twips on a screen of 1920 by 1080.
    s.StartX.clear(), s.StartY.clear();
    place = LoadMainWindow(f.program, f.services, 28800, 16200, 18600, 11700);
    EXPECT_EQ(place.left, (28800 - 18600) / 2.0);
    EXPECT_EQ(place.top, (16200 - 11700) / 2.0);
    EXPECT_EQ(s.StartX, "5100");
    EXPECT_EQ(s.StartY, "2250");
    // A kept place stands as it is, even where the window reaches past the screen's edge.
    s.StartX = "19000";
    EXPECT_EQ(LoadMainWindow(f.program, f.services, 19200, 10800, 18600, 11700).left, 19000);

    ModifyRecentFiles(s, "/lot.kvt");
    EndProgram(f.program, f.services, "1200", "800");
    EXPECT_EQ(f.section("Program Data").at("StartX"), "1200");
    EXPECT_EQ(f.section("Program Data").at("RecentFile1"), "/lot.kvt");
}

TEST(ProjectLifecycle, PrintingNeedsResultsAndReadsTheDefaultReportFromTheOptions) {
    LifecycleFixture f;
    Program& p = f.program;
    OpenRecentProject(p, f.services, f.Example("compressible_edge_down"));
    PrintCommand(p, {"Arial"}, "PDF", PrintPath::Menu);
    EXPECT_FALSE(p.print.visible);

    // A printing failure is told under the title of the command that opened the dialog.
    ASSERT_EQ(AnalysisReset(p, f.services), AnalysisResult::ResultsShown);
    PrintCommand(p, {"Arial"}, "PDF", PrintPath::Toolbar);
    EXPECT_TRUE(p.print.visible);
    EXPECT_EQ(PrinterErrorMessage(76, "Path not found", p.print.openedFrom).title,
              "Printing Critical Error");
    EndPrinting(p.print);
    PrintCommand(p, {"Arial"}, "PDF", PrintPath::Menu);
    EXPECT_TRUE(p.print.visible);
    const MessageRequest failure = PrinterErrorMessage(76, "Path not found", p.print.openedFrom);
    EXPECT_EQ(failure.title, "Critical Error");
    EXPECT_EQ(failure.text, "Path not found");
    EXPECT_EQ(failure.icon, MessageIcon::Critical);

    // A fresh store's default report holds every page: on compressible soil with edge down and
    // neither uniform foundation nor line load, 8 sheets.
    std::optional<PrintJob> job = PrintButton(p, f.services);
    ASSERT_TRUE(job);
    EXPECT_EQ(job->totalSheets, 8);
    EXPECT_EQ(job->pages.at(1).procedure, "PrintRDCS_Comp");

    // Only the line load page in the default report: nothing to print, the dialog stays.
    ChangeDefaultReport(p, f.services);
    EXPECT_EQ(p.options.form["tabOptions"].selectedIndex, 0);
    for (int i = 0; i < 10; ++i) {
        p.options.form[ArrayName("chkDR", i)].checked = i == 9;
    }
    ASSERT_TRUE(OptionsOK(p, f.services, {f.scratch.path(), "korvath3"}));
    PrintCommand(p, {"Arial"}, "PDF", PrintPath::Menu);
    EXPECT_FALSE(PrintButton(p, f.services));
    EXPECT_EQ(f.dialogs.messages.back().title, "Print Warning");
    EXPECT_TRUE(p.print.visible);
}
