#include "reports/package_document.h"

#include "common/number_pattern.h"
#include "compliance/check_names.h"
#include "reports/package_format.h"

namespace {

constexpr double CaptionX = PackageLeft;
constexpr double Half = (PackageRight - PackageLeft) / 2;

// A caption and its value on one line; the value is cut short to the space it has.
void Field(PackageWriter& w, double x, const std::string& caption, const std::string& value,
           double width) {
    w.Font(9, true);
    w.Text(x, caption, 2300);
    w.Font(9);
    w.Text(x + 2400, value.empty() ? "-" : value, width - 2400);
}

void Section(PackageWriter& w, const std::string& title) {
    w.Room(LineStep(11) * 3);
    w.Step(LineStep(9) * 0.6);
    w.Font(11, true);
    w.Text(PackageLeft, title, PackageRight - PackageLeft);
    w.Step(LineStep(11));
}

std::string PrestressWords(const EngineSettings& settings) {
    return settings.UseBeta == 1 ? "Prestress taken as the effective prestress at Beta"
                                 : "Prestress taken as the minimum effective prestress";
}

std::string BearingWords(const EngineSettings& settings) {
    return settings.UseBeamOnly == 1 ? "Soil bearing on the bottoms of the beams only"
                                     : "Soil bearing on the whole slab and the beams";
}

std::string DeflectionWords(const EngineSettings& settings) {
    return settings.ShowDD == 1 ? "Differential deflection shown"
                                : "Differential deflection not shown";
}

// One foundation's line of the verdict box: PASS or FAIL in large type, the counts and the
// governing check.
void VerdictRow(PackageWriter& w, Foundation foundation, const FoundationVerdict& verdict,
                std::span<const DesignCheck> checks) {
    const double top = w.y();
    w.Font(10, true);
    w.Text(PackageLeft + 200, FoundationTitle(foundation), 3000);
    const Colour colour = !verdict.pass && w.content().info.colour ? Red : Black;
    w.Step(LineStep(10));
    w.Font(24, true, colour);
    w.Text(PackageLeft + 200, verdict.pass ? "PASS" : "FAIL", 2600);
    const VerdictCounts counts = CountVerdict(checks, foundation);
    const double textX = PackageLeft + 3400;
    const double textWidth = PackageRight - 200 - textX;
    double y = top;
    auto line = [&](const std::string& text, bool bold) {
        w.Font(9, bold);
        w.surface().DrawText(textX, y, FitText(w.surface(), text, textWidth));
        y += LineStep(9);
    };
    line(std::to_string(counts.failingChecks) +
             (counts.failingChecks == 1 ? " check over its limit" : " checks over their limits") +
             ", " + std::to_string(counts.brokenRules) +
             (counts.brokenRules == 1 ? " rule of the manual broken"
                                      : " rules of the manual broken"),
         false);
    if (verdict.governing) {
        const DesignCheck& governing = checks[*verdict.governing];
        line("Governing check: " + CheckTitle(governing), true);
        line("Ratio of demand to limit: " + FormatNumber(*governing.ratio, "0.00") +
                 (governing.status == CheckStatus::Ok ? "  (OK)" : "  (NG)"),
             false);
    } else {
        line("No check with a ratio of demand to limit", false);
    }
    // A rule has no ratio and never governs: a broken one is named, so that a FAIL with a
    // governing check that is OK is not a riddle.
    for (const DesignCheck& check : checks) {
        if (check.foundation == foundation && check.mode == CheckMode::Rules &&
            check.status == CheckStatus::Ng) {
            line("Rule broken: " + CheckTitle(check) +
                     (counts.brokenRules > 1
                          ? " and " + std::to_string(counts.brokenRules - 1) + " more"
                          : std::string()),
                 true);
            break;
        }
    }
    w.Step(LineStep(24));
    w.Step(std::max(0.0, y - w.y()));
}

} // namespace

void DrawPackageCover(PackageWriter& w, const PackageContent& c) {
    const DesignRecord& record = c.record;
    const PackageInfo& info = c.info;
    w.Font(16, true);
    w.Text(PackageLeft, "Post-tensioned slab-on-ground foundation", PackageRight - PackageLeft);
    w.Step(LineStep(16));
    w.Font(9);
    w.Text(PackageLeft, info.product + ", version " + info.version + ", " + info.build,
           PackageRight - PackageLeft);
    w.Step(LineStep(9));

    Section(w, "Project");
    Field(w, CaptionX, "Project name", record.ProjName, PackageRight - PackageLeft);
    w.Step(LineStep(9));
    Field(w, CaptionX, "Project number", record.ProjNum, Half);
    Field(w, CaptionX + Half, "Project date", record.ProjDate, Half);
    w.Step(LineStep(9));
    Field(w, CaptionX, "Rectangle", record.RectLabel, PackageRight - PackageLeft);
    w.Step(LineStep(9));
    Field(w, CaptionX, "Engineer", record.ProjEng, Half);
    Field(w, CaptionX + Half, "License", info.license, Half);
    w.Step(LineStep(9));
    Field(w, CaptionX, "Firm", info.firm, PackageRight - PackageLeft);
    w.Step(LineStep(9));

    Section(w, "Geotechnical report");
    Field(w, CaptionX, "Source", record.ProjGeoRep, PackageRight - PackageLeft);
    w.Step(LineStep(9));
    Field(w, CaptionX, "Report number", record.ProjGeoNum, Half);
    Field(w, CaptionX + Half, "Report date", record.ProjGeoDate, Half);
    w.Step(LineStep(9));

    Section(w, "Method and analysis options");
    w.Font(9);
    w.Text(PackageLeft,
           "Design of Post-Tensioned Slabs-on-Ground, 3rd Edition, Post-Tensioning "
           "Institute",
           PackageRight - PackageLeft);
    w.Step(LineStep(9));
    const std::string soil = record.SoilType == 0 ? "Expansive soil: center lift and edge lift"
                             : record.CLSettleState == 1
                                 ? "Compressible soil: center down and edge down"
                                 : "Compressible soil: center down";
    for (const std::string& text : {soil, PrestressWords(info.settings),
                                    BearingWords(info.settings), DeflectionWords(info.settings)}) {
        w.Text(PackageLeft + 200, text, PackageRight - PackageLeft - 200);
        w.Step(LineStep(9));
    }

    Section(w, "Verdict");
    const int rows = c.verdict.uniform ? 2 : 1;
    const double rowHeight = LineStep(9) * 4 + 60;
    w.Room(rows * rowHeight + 200);
    const double boxTop = w.y();
    w.Step(100);
    VerdictRow(w, Foundation::Ribbed, c.verdict.ribbed, c.checks);
    if (c.verdict.uniform) {
        w.Step(60);
        VerdictRow(w, Foundation::Uniform, *c.verdict.uniform, c.checks);
    }
    w.Step(60);
    const double boxBottom = w.y();
    DrawingSurface& s = w.surface();
    s.SetColour(Black);
    s.SetLineWidth(10);
    s.SetLineStyle(LineStyle::Solid);
    s.DrawLine(PackageLeft, boxTop, PackageRight, boxTop);
    s.DrawLine(PackageLeft, boxBottom, PackageRight, boxBottom);
    s.DrawLine(PackageLeft, boxTop, PackageLeft, boxBottom);
    s.DrawLine(PackageRight, boxTop, PackageRight, boxBottom);

    Section(w, "Seal and signature");
    const double sealSize = 2160;
    w.Room(sealSize + 200);
    const double sealTop = w.y();
    s.SetLineWidth(4);
    s.DrawLine(PackageLeft, sealTop, PackageLeft + sealSize, sealTop);
    s.DrawLine(PackageLeft, sealTop + sealSize, PackageLeft + sealSize, sealTop + sealSize);
    s.DrawLine(PackageLeft, sealTop, PackageLeft, sealTop + sealSize);
    s.DrawLine(PackageLeft + sealSize, sealTop, PackageLeft + sealSize, sealTop + sealSize);
    w.Font(8);
    s.DrawText(PackageLeft + 120, sealTop + 100, "Seal");
    const double signX = PackageLeft + sealSize + 400;
    double lineY = sealTop + 300;
    for (const char* caption : {"Name", "License", "Date", "Signature"}) {
        w.Font(9);
        s.DrawText(signX, lineY, caption);
        s.SetLineWidth(3);
        s.DrawLine(signX + 1100, lineY + 200, PackageRight, lineY + 200);
        lineY += 480;
    }
    w.Step(sealSize);

    Section(w, "Traceability");
    Field(w, CaptionX, "Project file", info.trace.fileName, PackageRight - PackageLeft);
    w.Step(LineStep(9));
    Field(w, CaptionX, "SHA-256", info.trace.sha256, PackageRight - PackageLeft);
    w.Step(LineStep(9));
    Field(w, CaptionX, "Run", info.trace.runDate + ", " + info.trace.runTime,
          PackageRight - PackageLeft);
    w.Step(LineStep(9));
}

void DrawPackageFault(PackageWriter& w, const PackageContent& c) {
    const DesignRecord& record = c.record;
    w.Font(16, true, c.info.colour ? Red : Black);
    w.Text(PackageLeft, "NO VERDICT: the analysis did not complete", PackageRight - PackageLeft);
    w.Step(LineStep(16) * 1.5);
    w.Font(10, true);
    w.Text(PackageLeft, "Where the run stopped", PackageRight - PackageLeft);
    w.Step(LineStep(10));
    w.Font(10);
    w.Text(PackageLeft + 200, c.fault.value_or(""), PackageRight - PackageLeft - 200);
    w.Step(LineStep(10) * 1.5);
    w.Font(9);
    for (const char* line :
         {"The results of a run that stopped in a fault are incomplete, so this package shows",
          "no checks, results or drawings and no design may be based on it. Correct the input",
          "that leads to the fault and run the analysis again."}) {
        w.Text(PackageLeft, line, PackageRight - PackageLeft);
        w.Step(LineStep(9));
    }
    Section(w, "Project");
    Field(w, CaptionX, "Project name", record.ProjName, PackageRight - PackageLeft);
    w.Step(LineStep(9));
    Field(w, CaptionX, "Project number", record.ProjNum, Half);
    Field(w, CaptionX + Half, "Project date", record.ProjDate, Half);
    w.Step(LineStep(9));
    Field(w, CaptionX, "Engineer", record.ProjEng, Half);
    Field(w, CaptionX + Half, "Firm", c.info.firm, Half);
    w.Step(LineStep(9));
    Section(w, "Traceability");
    Field(w, CaptionX, "Project file", c.info.trace.fileName, PackageRight - PackageLeft);
    w.Step(LineStep(9));
    Field(w, CaptionX, "SHA-256", c.info.trace.sha256, PackageRight - PackageLeft);
    w.Step(LineStep(9));
    Field(w, CaptionX, "Run", c.info.trace.runDate + ", " + c.info.trace.runTime,
          PackageRight - PackageLeft);
    w.Step(LineStep(9));
}
