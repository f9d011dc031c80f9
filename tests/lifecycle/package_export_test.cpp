#include "lifecycle/package_export.h"

#include "lifecycle/analysis_reset.h"
#include "lifecycle/project_lifecycle.h"
#include "tests/lifecycle/lifecycle_test_support.h"

#include <gtest/gtest.h>

// Export Calculation Package: only with an analysis on screen; the dialog opens with the firm
// and license of the last export, kept in a settings group of their own; the SHA-256 stands only
// while the file holds the input on screen.
TEST(PackageExport, NeedsResultsRemembersFirmAndLicenseAndTracesOnlySavedInput) {
    LifecycleFixture f;
    Program& p = f.program;
    EXPECT_FALSE(PackageExportAvailable(p));
    const std::string path = f.Example("expansive_ribbed");
    OpenRecentProject(p, f.services, path);
    EXPECT_FALSE(PackageExportAvailable(p));
    ASSERT_EQ(AnalysisReset(p, f.services), AnalysisResult::ResultsShown);
    EXPECT_TRUE(PackageExportAvailable(p));

    // The first time the dialog is empty.
    PackageExportDialog dialog = OpenPackageExportDialog(f.services);
    EXPECT_EQ(dialog.firm, "");
    EXPECT_EQ(dialog.license, "");
    dialog.firm = "  Brellin Works Structural ";
    dialog.license = "PE 12345\t";
    const PackageExportDialog accepted = AcceptPackageExportDialog(f.services, dialog);
    EXPECT_EQ(accepted.firm, "Brellin Works Structural");
    EXPECT_EQ(accepted.license, "PE 12345");
    EXPECT_EQ(f.section("Calculation Package").at("Firm"), "Brellin Works Structural");
    EXPECT_EQ(f.section("Calculation Package").at("License"), "PE 12345");
    // Nothing of it in the program's own group.
    EXPECT_EQ(f.section("Program Data").count("Firm"), 0u);
    const PackageExportDialog reopened = OpenPackageExportDialog(f.services);
    EXPECT_EQ(reopened.firm, "Brellin Works Structural");
    EXPECT_EQ(reopened.license, "PE 12345");
    // A text longer than the store holds is kept to its 254 characters.
    dialog.firm = std::string(300, 'F');
    EXPECT_EQ(AcceptPackageExportDialog(f.services, dialog).firm.size(), 254u);

    EXPECT_EQ(SuggestedPackagePath(p.project),
              (f.scratch.path() / "expansive_ribbed - Calculation Package.pdf").string());
    EXPECT_EQ(SuggestedPackagePath(ProjectState{}), "Calculation Package.pdf");

    const std::string digest(64, 'c');
    PackageInfo info = PackageInfoOf(p, accepted, digest, f.clock);
    EXPECT_EQ(info.trace.fileName, "expansive_ribbed.kvt");
    EXPECT_EQ(info.trace.sha256, digest);
    EXPECT_EQ(info.trace.runDate, "November 23, 2026");
    EXPECT_EQ(info.firm, "Brellin Works Structural");
    // Input changed on screen and analysed again: the file no longer holds it.
    p.project.ProjectChanged = 1;
    EXPECT_FALSE(ProjectFileTracesInput(p.project));
    info = PackageInfoOf(p, accepted, digest, f.clock);
    EXPECT_NE(info.trace.sha256, digest);
    EXPECT_NE(info.trace.sha256.find("not saved"), std::string::npos);
}

// The soil sensitivity page is offered, ticked, only after a sensitivity run over the analysis
// on screen; OK keeps the choice; the next analysis withdraws it, since the run was of the values
// analysed before.
TEST(PackageExport, OffersTheSensitivityPageOnlyAfterARunOverTheAnalysis) {
    LifecycleFixture f;
    Program& p = f.program;
    OpenRecentProject(p, f.services, f.Example("expansive_ribbed"));
    ASSERT_EQ(AnalysisReset(p, f.services), AnalysisResult::ResultsShown);
    PackageExportDialog dialog = OpenPackageExportDialog(f.services);
    OfferSensitivityPage(dialog, p);
    EXPECT_TRUE(dialog.sensitivityRanges.empty());
    EXPECT_FALSE(dialog.sensitivityPage);

    p.sensitivityRanges = {"EmCenter=2.75:8.25:0.1375", "YmCenter=1.25:3.75:0.0625"};
    OfferSensitivityPage(dialog, p);
    EXPECT_EQ(dialog.sensitivityRanges, p.sensitivityRanges);
    EXPECT_TRUE(dialog.sensitivityPage);
    dialog.sensitivityPage = false; // the engineer unticks it
    const PackageExportDialog accepted = AcceptPackageExportDialog(f.services, dialog);
    EXPECT_FALSE(accepted.sensitivityPage);
    EXPECT_EQ(accepted.sensitivityRanges, p.sensitivityRanges);

    ASSERT_EQ(AnalysisReset(p, f.services), AnalysisResult::ResultsShown);
    EXPECT_TRUE(p.sensitivityRanges.empty());
}
