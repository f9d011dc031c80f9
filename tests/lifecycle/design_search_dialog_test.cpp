#include "lifecycle/design_search_dialog.h"

#include "input/input_events.h"
#include "input/input_record.h"
#include "lifecycle/analysis_reset.h"
#include "lifecycle/project_lifecycle.h"
#include "storage/design_file.h"
#include "tests/lifecycle/lifecycle_test_support.h"

#include <gtest/gtest.h>

namespace {

// The compressible example open on the input screen: a 5 in slab, 3500 psi concrete, the slab
// prestressed to 75 psi, eight short beams and six long ones of type 1, 26 in deep and 12 in
// wide with one tendon, and no type 2 beams.
struct SearchFixture : LifecycleFixture {
    SearchFixture() {
        dialogs.answers = {Example("compressible_edge_down")};
        OpenCommand(program, services);
        dialogs.messages.clear();
    }

    DesignSearchDialog Open() {
        const std::optional<DesignRecord> input = SearchableInput(program);
        EXPECT_TRUE(input.has_value());
        return OpenDesignSearchDialog(program, *input);
    }

    void Type(const std::string& box, const std::string& text) {
        InputContext context = InputContextOf(program, services);
        ChangeText(program.input, context, box, text);
    }
};

const SearchFieldRow& RowOf(const DesignSearchDialog& dialog, const std::string& field) {
    for (const SearchFieldRow& row : dialog.rows) {
        if (row.field == field) {
            return row;
        }
    }
    throw std::out_of_range(field);
}

SearchFieldRow& RowOf(DesignSearchDialog& dialog, const std::string& field) {
    return const_cast<SearchFieldRow&>(RowOf(std::as_const(dialog), field));
}

} // namespace

// The search is offered only for an input the Analysis command would take: shown, nothing
// required blank, every value passing its check.
TEST(DesignSearchDialog, IsOfferedWhenTheInputPassesItsChecks) {
    SearchFixture f;
    EXPECT_TRUE(DesignSearchEnabled(f.program));
    f.Type("txtFpc", "");
    EXPECT_FALSE(DesignSearchEnabled(f.program)); // blank
    f.Type("txtFpc", "3500");
    f.Type("txtDS1", "5");
    EXPECT_FALSE(DesignSearchEnabled(f.program)); // not deeper than the 5 in slab
    f.Type("txtDS1", "5.5");
    EXPECT_TRUE(DesignSearchEnabled(f.program));
    f.Type("txtDS1", "5.5.");
    EXPECT_FALSE(DesignSearchEnabled(f.program)); // no number
    f.Type("txtDS1", "26");
    f.program.input.visible = false;
    EXPECT_FALSE(DesignSearchEnabled(f.program));
    // Nothing was shown, and the record still holds the file's depth.
    EXPECT_TRUE(f.dialogs.messages.empty());
    EXPECT_EQ(f.program.record.DS1, 26);
}

// The fields that can vary, named as the input screen names them, each with a range of a few
// steps around its value that never goes below a sensible least value.
TEST(DesignSearchDialog, OffersTheDesignFieldsWithRangesAroundTheirValues) {
    SearchFixture f;
    f.Type("txtDS1", "25");
    const DesignSearchDialog dialog = f.Open();
    // Concrete strength, slab thickness, the slab prestress chosen (psi, not tendons or force
    // ratios) and the four rows of the four beam groups.
    ASSERT_EQ(dialog.rows.size(), 20u);
    EXPECT_EQ(dialog.rows[0].field, "Fpc");
    EXPECT_EQ(dialog.rows[0].caption, "CONCRETE Strength (PSI)");
    EXPECT_EQ(dialog.rows[0].page, "Material Properties");
    const auto expect = [&](const std::string& field, const std::string& caption,
                            const std::string& from, const std::string& to,
                            const std::string& step) {
        const SearchFieldRow& row = RowOf(dialog, field);
        EXPECT_EQ(row.caption, caption) << field;
        EXPECT_EQ(row.control, "txt" + field);
        EXPECT_EQ(row.from, from) << field;
        EXPECT_EQ(row.to, to) << field;
        EXPECT_EQ(row.step, step) << field;
        EXPECT_FALSE(row.chosen);
    };
    expect("Fpc", "CONCRETE Strength (PSI)", "3000", "4000", "500");
    expect("SlabThick", "Slab Thickness (Inches)", "4", "6", "0.5");
    // 75 psi: two steps of 25 either side.
    expect("StrLvlShort", "Short Direction Prestress (PSI)", "25", "125", "25");
    expect("StrLvlLong", "Long Direction Prestress (PSI)", "25", "125", "25");
    // The typed 25 in, not the file's 26: two steps of 2 in either side.
    expect("DS1", "Short Direction Type 1 Depth (IN)", "21", "29", "2");
    expect("QS1", "Short Direction Type 1 Quantity", "7", "9", "1");
    expect("WS1", "Short Direction Type 1 Width (IN)", "10", "14", "2");
    expect("TS1", "Short Direction Type 1 Tendons", "0", "2", "1");
    // No type 2 beams: the count cannot go below 0.
    expect("QS2", "Short Direction Type 2 Quantity", "0", "1", "1");
    expect("TL2", "Long Direction Type 2 Tendons", "0", "1", "1");
    EXPECT_EQ(RowOf(dialog, "DS1").current, 25);
    EXPECT_EQ(RowOf(dialog, "DS1").page, "Beam Properties");
    for (const char* absent : {"NumSlabTenShort", "ForceShort", "CS1", "RectWidth"}) {
        EXPECT_THROW(RowOf(dialog, absent), std::out_of_range) << absent;
    }
    // The example is within every limit.
    ASSERT_TRUE(dialog.current.has_value());
    EXPECT_TRUE(dialog.current->compliant);

    // Slab tendons given by number are offered by number, two steps of 2 either side of 6.
    f.Type("txtDS1", "26");
    InputContext context = InputContextOf(f.program, f.services);
    Click(f.program.input, context, "optSlabRefType(0)");
    f.Type("txtNumSlabTenShort", "6");
    const DesignSearchDialog tendons = f.Open();
    EXPECT_EQ(RowOf(tendons, "NumSlabTenShort").caption, "Short Direction Tendons");
    EXPECT_EQ(RowOf(tendons, "NumSlabTenShort").from, "2");
    EXPECT_EQ(RowOf(tendons, "NumSlabTenShort").to, "10");
    EXPECT_THROW(RowOf(tendons, "StrLvlShort"), std::out_of_range);
}

// The number of candidates is the product of the chosen ranges' counts, and a search the command
// line would refuse is refused here with its reason.
TEST(DesignSearchDialog, CountsTheCandidatesAndRefusesWhatTheCommandLineRefuses) {
    SearchFixture f;
    DesignSearchDialog dialog = f.Open();
    EXPECT_EQ(CandidateCountText(PlanSearch(dialog)), "Choose at least one field to vary");

    RowOf(dialog, "DS1").chosen = true; // 22, 24, ... 30: 5
    RowOf(dialog, "QS1").chosen = true; // 7, 8, 9: 3
    SearchPlan plan = PlanSearch(dialog);
    ASSERT_TRUE(plan.request.has_value()) << plan.problem;
    EXPECT_EQ(plan.candidates, 15);
    EXPECT_EQ(CandidateCountText(plan), "15 candidates");
    EXPECT_EQ(plan.request->project.DS1, 26);
    EXPECT_EQ(plan.request->best, DialogBestDesigns);

    RowOf(dialog, "DS1").to = "22";
    RowOf(dialog, "QS1").chosen = false;
    EXPECT_EQ(CandidateCountText(PlanSearch(dialog)), "1 candidate");

    // 0.0001 to 10,000 by 0.0001 is exactly 100,000,000 candidates, the most a search may have;
    // a second value of another field is one too many.
    RowOf(dialog, "DS1").from = "0.0001";
    RowOf(dialog, "DS1").to = "10000";
    RowOf(dialog, "DS1").step = "0.0001";
    EXPECT_EQ(CandidateCountText(PlanSearch(dialog)), "100,000,000 candidates");
    RowOf(dialog, "QS1").chosen = true;
    RowOf(dialog, "QS1").to = "8";
    plan = PlanSearch(dialog);
    EXPECT_FALSE(plan.request.has_value());
    EXPECT_EQ(CandidateCountText(plan), "The search would have more than 100,000,000 candidates: "
                                        "narrow a range or take a larger step");

    RowOf(dialog, "DS1").step = "0";
    EXPECT_EQ(PlanSearch(dialog).problem, "The step of \"DS1=0.0001:10000:0\" is 0");
    RowOf(dialog, "DS1").step = " ";
    EXPECT_EQ(PlanSearch(dialog).problem, "Give From, To and Step of Short Direction Type 1 "
                                          "Depth (IN)");
    RowOf(dialog, "DS1").step = "2";
    RowOf(dialog, "DS1").from = "22";
    RowOf(dialog, "DS1").to = "30";

    // The cost needs a price, and a price is an amount of money.
    dialog.objective = SearchObjective::Cost;
    EXPECT_EQ(PlanSearch(dialog).problem,
              "The least cost needs the concrete cost or the tendon cost");
    dialog.tendonCost = "2.5";
    plan = PlanSearch(dialog);
    ASSERT_TRUE(plan.request.has_value()) << plan.problem;
    EXPECT_EQ(plan.request->objective, SearchObjective::Cost);
    EXPECT_EQ(plan.request->prices.concretePerCubicYard, 0);
    EXPECT_EQ(plan.request->prices.tendonPerFoot, 2.5);
    dialog.concreteCost = "-150";
    EXPECT_EQ(PlanSearch(dialog).problem,
              "The concrete cost must be a number from 0 to 1,000,000,000");
    dialog.concreteCost = "150 $";
    EXPECT_FALSE(PlanSearch(dialog).request.has_value());
}

TEST(DesignSearchDialog, TellsTheProgressAndThePace) {
    EXPECT_EQ(SearchProgressText(5000, 20000, 2.0),
              "5,000 of 20,000 candidates tried, 2,500 a second");
    EXPECT_EQ(SearchProgressText(0, 1234567, 0.0), "0 of 1,234,567 candidates tried");
}

// "Use" types the design's values into their boxes after one question, the project is changed
// and the results wait for a new analysis; "Undo" types back what was there, one use at a time.
TEST(DesignSearchDialog, UseTypesADesignIntoTheInputAndUndoTypesItBack) {
    SearchFixture f;
    ASSERT_EQ(AnalysisReset(f.program, f.services), AnalysisResult::ResultsShown);
    ShowInputScreen(f.program);
    ASSERT_TRUE(f.program.project.outputEnabled);
    ASSERT_EQ(f.program.project.ProjectChanged, 0);

    DesignSearchDialog dialog = f.Open();
    RowOf(dialog, "SlabThick").chosen = true; // 4, 4.5, ... 6: 5
    RowOf(dialog, "QS1").chosen = true;       // 7, 8, 9: 3
    const SearchPlan plan = PlanSearch(dialog);
    ASSERT_TRUE(plan.request.has_value());
    // Candidate 4 is 4.5 in and 8 beams, candidate 12 is 6 in and 7 beams, the thickness
    // changing slowest.
    SearchOutcome outcome;
    outcome.best = {CandidateScore{4, 50, 1500, 0, 0.1}, CandidateScore{12, 60, 1600, 0, 0.2}};
    dialog.last = FinishedSearch{*plan.request, outcome, false};
    EXPECT_EQ(CandidateValues(*dialog.last, 4), (std::vector<double>{4.5, 8}));

    // A No leaves all as it was, and asks again next time.
    f.dialogs.replies = {Answer::No, Answer::Yes};
    EXPECT_FALSE(UseDesign(dialog, f.program, f.services, 0));
    EXPECT_EQ(f.program.input.form["txtSlabThick"].text, "5");
    EXPECT_EQ(f.program.project.ProjectChanged, 0);
    EXPECT_TRUE(dialog.undo.empty());

    ASSERT_TRUE(UseDesign(dialog, f.program, f.services, 0));
    ASSERT_EQ(f.dialogs.messages.size(), 2u);
    EXPECT_EQ(f.dialogs.messages[1].title, "Design Search");
    EXPECT_EQ(f.dialogs.messages[1].text,
              "Put design 1 into the input screen? The results will wait for a new analysis.\n\n"
              "SlabThick: 5 to 4.5\nQS1: 8 to 8");
    EXPECT_EQ(f.program.input.form["txtSlabThick"].text, "4.5");
    EXPECT_EQ(f.program.input.form["txtQS1"].text, "8");
    EXPECT_TRUE(f.program.input.form["lblRectGeo"].caption.ends_with(" x 4.50 In"))
        << f.program.input.form["lblRectGeo"].caption;
    EXPECT_EQ(f.program.project.ProjectChanged, 1);
    EXPECT_TRUE(f.program.project.caption.ends_with("*"));
    EXPECT_FALSE(f.program.project.outputEnabled);
    EXPECT_FALSE(f.program.project.printEnabled);

    // Not asked again while the dialog is open.
    ASSERT_TRUE(UseDesign(dialog, f.program, f.services, 1));
    EXPECT_EQ(f.dialogs.messages.size(), 2u);
    EXPECT_EQ(f.program.input.form["txtSlabThick"].text, "6");
    EXPECT_EQ(f.program.input.form["txtQS1"].text, "7");
    EXPECT_FALSE(UseDesign(dialog, f.program, f.services, 2)); // there is no third

    // The screen reads back as the candidate's project.
    DesignRecord read = f.program.record;
    ReadInputRecord(f.program.input.form, read, AllSections);
    EXPECT_EQ(read.SlabThick, 6);
    EXPECT_EQ(read.QS1, 7);
    EXPECT_EQ(read.DS1, 26);

    UndoUse(dialog, f.program, f.services);
    EXPECT_EQ(f.program.input.form["txtSlabThick"].text, "4.5");
    EXPECT_EQ(f.program.input.form["txtQS1"].text, "8");
    UndoUse(dialog, f.program, f.services);
    EXPECT_EQ(f.program.input.form["txtSlabThick"].text, "5");
    EXPECT_EQ(f.program.input.form["txtQS1"].text, "8");
    EXPECT_TRUE(dialog.undo.empty());
    UndoUse(dialog, f.program, f.services); // nothing left to undo
    EXPECT_EQ(f.program.input.form["txtSlabThick"].text, "5");
    // The project stays changed: it was edited twice.
    EXPECT_EQ(f.program.project.ProjectChanged, 1);
    EXPECT_FALSE(f.program.project.outputEnabled);
}
