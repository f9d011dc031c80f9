#pragma once

#include "compliance/design_checks.h"
#include "engine/design_record.h"
#include "engine/results_record.h"
#include "plan/foundation_plan.h"
#include "reports/drawing_surface.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

// The calculation package: the short document an engineer signs and hands to a building
// department. A cover with the verdict, the design basis, the plan, every check with both of its
// numbers, the key results and the line load, each page with the same header and footer. It is
// drawn from the engine's numbers on any drawing surface; the PDF back end is in qt/.

// One input as the input pages show it: its caption, its number (or its text) and its unit.
struct PackageInputLine {
    std::string caption;
    std::optional<double> number; // nothing for a text or a choice
    std::string text;             // the text or the choice in words
    std::string unit;             // as package_format.h knows them; empty for a coefficient
};

// The inputs of one input page.
struct PackageInputGroup {
    std::string title;
    std::vector<PackageInputLine> lines;
};

// Where the package came from: the project file, its SHA-256 and the time of the run.
struct PackageTrace {
    std::string fileName; // the project file's name, without its folder
    std::string sha256;   // 64 hexadecimal digits
    std::string runDate;  // "November 25, 2026"
    std::string runTime;  // "11:05:09 AM"
};

struct PackageInfo {
    std::string product = "Korvath 3.0";
    std::string version = "3.0";
    std::string build = "Build 100712";
    std::string firm;
    std::string license;
    PackageTrace trace;
    EngineSettings settings{}; // the options the analysis ran with
    std::string fontName = "Liberation Sans";
    bool colour = true; // failing rows in red as well as bold
};

// Everything a package draws. Without a fault the checks, the verdict and the plan belong to the
// analysis in `results`; with one, only the cover's fault sheet is drawn.
struct PackageContent {
    const DesignRecord& record;
    const ResultsRecord& results;
    std::span<const DesignCheck> checks;
    DesignVerdict verdict;
    FoundationPlan plan;
    std::vector<PackageInputGroup> inputs;
    PackageInfo info;
    // Which stage of the run faulted and why, in words; no checks or results are shown then.
    std::optional<std::string> fault;
};

// The page geometry, in twips on a Letter sheet standing upright.
inline constexpr double PackageSheetWidth = 12240;
inline constexpr double PackageSheetHeight = 15840;
inline constexpr double PackageLeft = 1080;
inline constexpr double PackageRight = 11160;
inline constexpr double PackageBodyTop = 1560;
inline constexpr double PackageBodyBottom = 14780;

class PackageWriter;

// One page of the package: its title (the header of its first sheet) and its procedure, which may
// run over several sheets through the writer.
struct PackagePage {
    std::string title;
    std::function<void(PackageWriter& writer, const PackageContent& content)> draw;
};

// Writes the sheets of a package: the header and the page's title on each new sheet, the footer
// when a sheet ends, and a new sheet whenever a block does not fit above the footer.
class PackageWriter {
  public:
    PackageWriter(DrawingSurface& surface, const PackageContent& content, int totalSheets);

    // Starts a page on a sheet of its own.
    void BeginPage(const std::string& title);
    // Makes room for a block `height` high: moves to a new sheet ("continued") when it would run
    // into the footer.
    void Room(double height);
    // Ends the last sheet with its footer.
    void Finish();

    void Step(double height) { m_y += height; }
    double y() const { return m_y; }
    int sheets() const { return m_sheet; }
    DrawingSurface& surface() { return m_surface; }
    const PackageContent& content() const { return m_content; }

    // Sets the font: the package's face, size, bold, black or the given colour.
    void Font(double points, bool bold = false, Colour colour = Black);
    // A text at x, cut short to `width`.
    void Text(double x, const std::string& text, double width);
    // A text right-aligned on `right`.
    void TextRight(double right, const std::string& text);
    void Rule(double x1, double x2, int width = 4);

  private:
    void Header();
    void Footer();
    void Title(const std::string& title);

    DrawingSurface& m_surface;
    const PackageContent& m_content;
    int m_total = 0;
    int m_sheet = 0;
    double m_y = PackageBodyTop;
    std::string m_title;
};

// The line step of a text of `points` size.
inline double LineStep(double points) {
    return points * 25;
}

// The pages of the package in their order: cover, design basis and input, plan and typical
// sections, checks, key results, and the line load page when `LineLoadType` is 1. A faulted run
// has only its fault sheet. A caller may insert a page of its own (a study of the soil values,
// with a chart and ranges) at StudyPagePlace: the writer counts and numbers whatever the list
// holds.
std::vector<PackagePage> PackagePages(const PackageContent& content);

// The index in `pages` before which a page of studies of the design values goes: after the key
// results, before the line load page.
std::size_t StudyPagePlace(const std::vector<PackagePage>& pages);

// Draws the pages on the surface: begins the document, numbers the sheets "Page x of y" (the
// sheets counted in a first run on a recording surface) and ends the document. Gives the number
// of sheets.
int DrawPackage(DrawingSurface& surface, const PackageContent& content,
                const std::vector<PackagePage>& pages);

// The failing checks and the broken rules of a foundation, as the cover counts them; together
// they are the foundation's checks that are not ok.
struct VerdictCounts {
    int failingChecks = 0;
    int brokenRules = 0;
};
VerdictCounts CountVerdict(std::span<const DesignCheck> checks, Foundation foundation);

// The page procedures.
void DrawPackageCover(PackageWriter& writer, const PackageContent& content);
void DrawPackageFault(PackageWriter& writer, const PackageContent& content);
void DrawPackageInputs(PackageWriter& writer, const PackageContent& content);
void DrawPackagePlan(PackageWriter& writer, const PackageContent& content);
void DrawPackageChecks(PackageWriter& writer, const PackageContent& content);
void DrawPackageResults(PackageWriter& writer, const PackageContent& content);
void DrawPackageLineLoad(PackageWriter& writer, const PackageContent& content);
