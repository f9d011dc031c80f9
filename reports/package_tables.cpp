#include "reports/package_document.h"

#include "common/number_pattern.h"
#include "compliance/check_names.h"
#include "reports/package_format.h"
#include "reports/plan_drawing.h"
#include "reports/plan_sheet.h"

#include <array>
#include <cstring>

namespace {

constexpr double Width = PackageRight - PackageLeft;
constexpr double RowPoints = 9;

void Heading(PackageWriter& w, const std::string& text) {
    w.Room(LineStep(10) + LineStep(RowPoints) * 3);
    w.Step(LineStep(RowPoints) * 0.5);
    w.Font(10, true);
    w.Text(PackageLeft, text, Width);
    w.Step(LineStep(10) + 20);
}

// A number right-aligned on `right` and its unit hanging after it at `unitX`.
void NumberWithUnit(PackageWriter& w, double right, double unitX, double value,
                    const std::string& unit) {
    w.TextRight(right, PackageNumber(value, unit));
    DrawUnit(w.surface(), unitX, w.y(), unit, RowPoints);
}

// ---- Design basis and input ----

constexpr double InputValueRight = PackageLeft + 7800;
constexpr double InputUnitX = InputValueRight + 120;

} // namespace

void DrawPackageInputs(PackageWriter& w, const PackageContent& c) {
    w.Font(9);
    w.Text(PackageLeft,
           "Every input the analysis used, grouped as on the input pages; inputs that the "
           "project's options switch off are left out.",
           Width);
    w.Step(LineStep(9));
    for (const PackageInputGroup& group : c.inputs) {
        Heading(w, group.title);
        for (const PackageInputLine& line : group.lines) {
            w.Room(LineStep(RowPoints));
            w.Font(RowPoints);
            w.Text(PackageLeft + 200, line.caption, 5300);
            if (line.number) {
                NumberWithUnit(w, InputValueRight, InputUnitX, *line.number, line.unit);
            } else {
                w.Text(PackageLeft + 5600, line.text.empty() ? "-" : line.text,
                       PackageRight - PackageLeft - 5600);
            }
            w.Step(LineStep(RowPoints));
        }
    }
}

// ---- Plan ----

void DrawPackagePlan(PackageWriter& w, const PackageContent& c) {
    const DrawingBox box{PackageLeft, w.y(), Width, PackageBodyBottom - w.y()};
    // The page's own title names the drawing: the sheet keeps only the project's line.
    std::vector<std::string> titleLines = PlanSheetTitle(c.record);
    if (titleLines.size() > 1) {
        titleLines.erase(titleLines.begin());
    }
    // A name without blanks cannot wrap: each line is kept to the drawing's width, in the
    // drawing's title font, which its first line takes.
    UseDrawingTitle(w.surface());
    for (std::string& line : titleLines) {
        line = FitText(w.surface(), line, Width);
    }
    DrawPlanSheet(w.surface(), c.plan, titleLines, box);
    w.Step(box.height);
}

// ---- Checks ----

namespace {

// The columns of the check table.
constexpr double ItemX = PackageLeft;
constexpr double DirectionX = PackageLeft + 3900;
constexpr double DemandRight = PackageLeft + 5900;
constexpr double LimitRight = PackageLeft + 7000;
constexpr double UnitX = PackageLeft + 7120;
constexpr double RatioRight = PackageLeft + 8600;
constexpr double StatusX = PackageLeft + 8760;
constexpr double SectionX = PackageLeft + 9420;

const char* StatusText(CheckStatus status) {
    switch (status) {
    case CheckStatus::Ok:
        return "OK";
    case CheckStatus::Ng:
        return "NG";
    case CheckStatus::NotCalculated:
        return "n/c";
    }
    return "";
}

std::string UnitOf(const std::optional<CheckQuantity>& demand,
                   const std::optional<CheckQuantity>& limit) {
    const char* unit = demand && demand->unit ? demand->unit : limit ? limit->unit : nullptr;
    return unit == nullptr ? "ratio" : unit;
}

void CheckColumns(PackageWriter& w) {
    w.Room(LineStep(RowPoints) * 2);
    w.Font(8, true);
    w.Text(ItemX, "Item", 3800);
    w.Text(DirectionX, "Direction", 1000);
    w.TextRight(DemandRight, "Demand");
    w.TextRight(LimitRight, "Limit");
    w.Text(UnitX, "Unit", 700);
    w.TextRight(RatioRight, "Ratio");
    w.Text(StatusX, "Status", 640);
    w.Text(SectionX, "Section", PackageRight - SectionX);
    w.Step(LineStep(8));
    w.Rule(PackageLeft, PackageRight, 2);
    w.Step(30);
}

void CheckRow(PackageWriter& w, const DesignCheck& check) {
    w.Room(LineStep(RowPoints));
    const bool failing = check.status == CheckStatus::Ng;
    const Colour colour = failing && w.content().info.colour ? Red : Black;
    w.Font(RowPoints, failing, colour);
    const std::string unit = UnitOf(check.demand, check.limit);
    w.Text(ItemX, check.item, 3800);
    w.Text(DirectionX, DirectionTitle(check.direction), 1000);
    if (check.demand) {
        w.TextRight(DemandRight, PackageNumber(check.demand->value, unit));
    }
    if (check.limit) {
        w.TextRight(LimitRight, PackageNumber(check.limit->value, unit));
    }
    if (check.demand || check.limit) {
        DrawUnit(w.surface(), UnitX, w.y(), unit, RowPoints);
    }
    if (check.ratio) {
        w.TextRight(RatioRight, FormatNumber(*check.ratio, "0.00"));
    }
    w.Text(StatusX, StatusText(check.status), 640);
    w.Text(SectionX, check.reference ? check.reference : "", PackageRight - SectionX);
    w.Step(LineStep(RowPoints));
}

std::string BlockTitle(const DesignCheck& check) {
    std::string title = FoundationTitle(check.foundation);
    title += " - ";
    title += check.mode == CheckMode::Rules ? "Rules of the manual" : ModeTitle(check.mode);
    return title;
}

void CheckBlocks(PackageWriter& w, std::span<const DesignCheck> checks,
                 bool (*wanted)(const DesignCheck&)) {
    std::string current;
    for (const DesignCheck& check : checks) {
        if (!wanted(check)) {
            continue;
        }
        const std::string title = BlockTitle(check);
        if (title != current) {
            current = title;
            Heading(w, title);
            CheckColumns(w);
        }
        CheckRow(w, check);
    }
}

} // namespace

void DrawPackageChecks(PackageWriter& w, const PackageContent& c) {
    w.Font(9);
    w.Text(PackageLeft,
           "Ratio is demand over limit. NG rows (bold) are over their limit or break a rule; "
           "n/c: not calculated.",
           Width);
    w.Step(LineStep(9));
    w.Text(PackageLeft,
           "Stresses are compression positive, tension negative; a fiber not in the stress it is "
           "checked for has ratio 0.",
           Width);
    w.Step(LineStep(9));
    for (const Foundation foundation : {Foundation::Ribbed, Foundation::Uniform}) {
        const std::optional<FoundationVerdict> verdict =
            foundation == Foundation::Ribbed ? std::optional(c.verdict.ribbed) : c.verdict.uniform;
        if (!verdict) {
            continue;
        }
        const VerdictCounts counts = CountVerdict(c.checks, foundation);
        // The foundation's line stays with its first block: its heading, columns and a row.
        w.Room(LineStep(11) * 2 + LineStep(10) + LineStep(RowPoints) * 4);
        w.Step(LineStep(9) * 0.5);
        w.Font(11, true, !verdict->pass && c.info.colour ? Red : Black);
        w.Text(PackageLeft,
               std::string(FoundationTitle(foundation)) + ": " + (verdict->pass ? "PASS" : "FAIL") +
                   ", " + std::to_string(counts.failingChecks) +
                   (counts.failingChecks == 1 ? " check over its limit, "
                                              : " checks over their limits, ") +
                   std::to_string(counts.brokenRules) +
                   (counts.brokenRules == 1 ? " rule broken" : " rules broken"),
               Width);
        w.Step(LineStep(11));
        std::string current;
        for (const DesignCheck& check : c.checks) {
            if (check.foundation != foundation) {
                continue;
            }
            const std::string title = BlockTitle(check);
            if (title != current) {
                current = title;
                Heading(w, title);
                CheckColumns(w);
            }
            CheckRow(w, check);
        }
    }
}

// ---- Key results ----

namespace {

struct ResultRow {
    const char* quantity;
    const char* shortName; // the result's name, to find its section in the check table
    double shortValue;
    double longValue;
    const char* unit;
};

// The manual's section of a result: that of a check which compares it, else none.
std::string SectionOf(std::span<const DesignCheck> checks, const char* name, CheckMode mode) {
    for (const DesignCheck& check : checks) {
        const bool named =
            (check.demand && check.demand->name && std::strcmp(check.demand->name, name) == 0) ||
            (check.limit && check.limit->name && std::strcmp(check.limit->name, name) == 0);
        if (named && check.reference) {
            return check.reference;
        }
        if (check.mode == mode && mode == CheckMode::EdgeDown && check.reference) {
            return check.reference;
        }
    }
    return {};
}

constexpr double ShortRight = PackageLeft + 6200;
constexpr double LongRight = PackageLeft + 7900;
constexpr double ResultUnitX = PackageLeft + 8100;
constexpr double ResultSectionX = PackageLeft + 9200;

// A table of results by direction, or with `single` one value a row (the line load).
void ResultBlock(PackageWriter& w, const std::string& title, CheckMode mode,
                 const std::vector<ResultRow>& rows, bool single = false) {
    Heading(w, title);
    w.Font(8, true);
    w.Text(PackageLeft, "Quantity", 4000);
    if (single) {
        w.TextRight(LongRight, "Value");
    } else {
        w.TextRight(ShortRight, "Short direction");
        w.TextRight(LongRight, "Long direction");
    }
    w.Text(ResultUnitX, "Unit", 1000);
    w.Text(ResultSectionX, "Section", PackageRight - ResultSectionX);
    w.Step(LineStep(8));
    w.Rule(PackageLeft, PackageRight, 2);
    w.Step(30);
    for (const ResultRow& row : rows) {
        w.Room(LineStep(RowPoints));
        w.Font(RowPoints);
        w.Text(PackageLeft, row.quantity, 4600);
        if (!single) {
            w.TextRight(ShortRight, PackageNumber(row.shortValue, row.unit));
        }
        w.TextRight(LongRight, PackageNumber(row.longValue, row.unit));
        DrawUnit(w.surface(), ResultUnitX, w.y(), row.unit, RowPoints);
        w.Text(ResultSectionX, SectionOf(w.content().checks, row.shortName, mode),
               PackageRight - ResultSectionX);
        w.Step(LineStep(RowPoints));
    }
}

void RibbedResults(PackageWriter& w, const PackageContent& c) {
    const ResultsRecord& r = c.results;
    const bool expansive = c.record.SoilType == 0;
    std::vector<ResultRow> section{
        {"Cross-sectional area", "AreaShort", r.AreaShort, r.AreaLong, "in^2"},
        {"Moment of inertia", "InertiaShort", r.InertiaShort, r.InertiaLong, "in^4"},
        {"Section modulus, top", "SecModTopShort", r.SecModTopShort, r.SecModTopLong, "in^3"},
        {"Section modulus, bottom", "SecModBottomShort", r.SecModBottomShort, r.SecModBottomLong,
         "in^3"},
        {"Eccentricity of prestress", "EccShort", r.EccShort, r.EccLong, "in"},
        {"Analysis beam spacing", "SpacingShort", r.SpacingShort, r.SpacingLong, "ft"},
        {"Minimum effective prestress", "PsCenterShort", r.PsCenterShort, r.PsCenterLong, "psi"},
    };
    if (expansive) {
        section.push_back({"Beta distance", "BetaShort", r.BetaShort, r.BetaLong, "ft"});
        section.push_back({"Effective prestress force at Beta", "ForceNetShort", r.ForceNetShort,
                           r.ForceNetLong, "kips"});
    }
    ResultBlock(w, "Ribbed foundation - Section and prestress", CheckMode::Rules, section);
    if (expansive) {
        ResultBlock(
            w, "Ribbed foundation - Center lift", CheckMode::CenterLift,
            {{"Maximum moment", "MomentCLShort", r.MomentCLShort, r.MomentCLLong, "ft-k/ft"},
             {"Stress, top fiber", "StressTopCLShort", r.StressTopCLShort, r.StressTopCLLong,
              "ksi"},
             {"Stress, bottom fiber", "StressBotCLShort", r.StressBotCLShort, r.StressBotCLLong,
              "ksi"},
             {"Stiffness length", "StiffLengthShort", r.StiffLengthShort, r.StiffLengthLong, "ft"},
             {"Required moment of inertia", "ReqInertiaCLShort", r.ReqInertiaCLShort,
              r.ReqInertiaCLLong, "in^4"},
             {"Maximum shear force", "ShearForceCLShort", r.ShearForceCLShort, r.ShearForceCLLong,
              "k/ft"},
             {"Shear stress", "ShearCLShort", r.ShearCLShort, r.ShearCLLong, "psi"},
             {"Cracked section capacity", "CrackCapacityCLShort", r.CrackCapacityCLShort,
              r.CrackCapacityCLLong, "ft-k"}});
        ResultBlock(
            w, "Ribbed foundation - Edge lift", CheckMode::EdgeLift,
            {{"Maximum moment", "MomentELShort", r.MomentELShort, r.MomentELLong, "ft-k/ft"},
             {"Stress, top fiber", "StressTopELShort", r.StressTopELShort, r.StressTopELLong,
              "ksi"},
             {"Stress, bottom fiber", "StressBotELShort", r.StressBotELShort, r.StressBotELLong,
              "ksi"},
             {"Stiffness length", "StiffLengthShort", r.StiffLengthShort, r.StiffLengthLong, "ft"},
             {"Required moment of inertia", "ReqInertiaELShort", r.ReqInertiaELShort,
              r.ReqInertiaELLong, "in^4"},
             {"Maximum shear force", "ShearForceELShort", r.ShearForceELShort, r.ShearForceELLong,
              "k/ft"},
             {"Shear stress", "ShearELShort", r.ShearELShort, r.ShearELLong, "psi"},
             {"Cracked section capacity", "CrackCapacityELShort", r.CrackCapacityELShort,
              r.CrackCapacityELLong, "ft-k"}});
        return;
    }
    ResultBlock(
        w, "Ribbed foundation - Center down", CheckMode::CenterDown,
        {{"Beta distance", "BetaCDShort", r.BetaCDShort, r.BetaCDLong, "ft"},
         {"Effective prestress force at Beta", "ForceNetCDShort", r.ForceNetCDShort,
          r.ForceNetCDLong, "kips"},
         {"Maximum moment", "MomentCDShort", r.MomentCDShort, r.MomentCDLong, "ft-k/ft"},
         {"Stress, top fiber", "StressTopCDShort", r.StressTopCDShort, r.StressTopCDLong, "ksi"},
         {"Stress, bottom fiber", "StressBotCDShort", r.StressBotCDShort, r.StressBotCDLong, "ksi"},
         {"Stiffness length", "StiffLengthCDShort", r.StiffLengthCDShort, r.StiffLengthCDLong,
          "ft"},
         {"Net deflection", "NetDeflCDShort", r.NetDeflCDShort, r.NetDeflCDLong, "in"},
         {"Allowable deflection", "AllowDeflCDShort", r.AllowDeflCDShort, r.AllowDeflCDLong, "in"},
         {"Maximum shear force", "ShearForceCDShort", r.ShearForceCDShort, r.ShearForceCDLong,
          "k/ft"},
         {"Shear stress", "ShearCDShort", r.ShearCDShort, r.ShearCDLong, "psi"}});
    if (c.record.CLSettleState == 1) {
        ResultBlock(
            w, "Ribbed foundation - Edge down", CheckMode::EdgeDown,
            {{"Beta distance", "BetaEDShort", r.BetaEDShort, r.BetaEDLong, "ft"},
             {"Effective prestress force at Beta", "ForceNetEDShort", r.ForceNetEDShort,
              r.ForceNetEDLong, "kips"},
             {"Maximum moment", "MomentEDShort", r.MomentEDShort, r.MomentEDLong, "ft-k/ft"},
             {"Stress, top fiber", "StressTopEDShort", r.StressTopEDShort, r.StressTopEDLong,
              "ksi"},
             {"Stress, bottom fiber", "StressBotEDShort", r.StressBotEDShort, r.StressBotEDLong,
              "ksi"},
             {"Stiffness length", "StiffLengthEDShort", r.StiffLengthEDShort, r.StiffLengthEDLong,
              "ft"},
             {"Net deflection", "NetDeflEDShort", r.NetDeflEDShort, r.NetDeflEDLong, "in"},
             {"Allowable deflection", "AllowDeflEDShort", r.AllowDeflEDShort, r.AllowDeflEDLong,
              "in"},
             {"Maximum shear force", "ShearForceEDShort", r.ShearForceEDShort, r.ShearForceEDLong,
              "k/ft"},
             {"Shear stress", "ShearEDShort", r.ShearEDShort, r.ShearEDLong, "psi"}});
    }
}

void UniformResults(PackageWriter& w, const PackageContent& c) {
    const ResultsRecord& r = c.results;
    const bool expansive = c.record.SoilType == 0;
    std::vector<ResultRow> section{
        {"Slab thickness (rounded to 0.25 in)", "UTThickness", r.UTThickness, r.UTThickness, "in"},
        {"Cross-sectional area", "UTAreaShort", r.UTAreaShort, r.UTAreaLong, "in^2"},
        {"Moment of inertia", "UTInertiaShort", r.UTInertiaShort, r.UTInertiaLong, "in^4"},
        {"Section modulus, top and bottom", "UTSecModShort", r.UTSecModShort, r.UTSecModLong,
         "in^3"},
        {"Eccentricity of prestress", "UTEccShort", r.UTEccShort, r.UTEccLong, "in"},
        {"Minimum effective prestress", "UTPsCenterShort", r.UTPsCenterShort, r.UTPsCenterLong,
         "psi"},
    };
    if (expansive) {
        section.push_back({"Beta distance", "UTBetaShort", r.UTBetaShort, r.UTBetaLong, "ft"});
        section.push_back({"Effective prestress force at Beta", "UTForceNetShort",
                           r.UTForceNetShort, r.UTForceNetLong, "kips"});
    }
    ResultBlock(w, "Uniform thickness foundation - Section and prestress", CheckMode::Rules,
                section);
    if (expansive) {
        for (const bool center : {true, false}) {
            ResultBlock(w,
                        center ? "Uniform thickness foundation - Center lift"
                               : "Uniform thickness foundation - Edge lift",
                        center ? CheckMode::CenterLift : CheckMode::EdgeLift,
                        {{"Stress, top fiber", "UTStressTop",
                          center ? r.UTStressTopCLShort : r.UTStressTopELShort,
                          center ? r.UTStressTopCLLong : r.UTStressTopELLong, "ksi"},
                         {"Stress, bottom fiber", "UTStressBot",
                          center ? r.UTStressBotCLShort : r.UTStressBotELShort,
                          center ? r.UTStressBotCLLong : r.UTStressBotELLong, "ksi"},
                         {"Stiffness length", "UTStiffLengthShort", r.UTStiffLengthShort,
                          r.UTStiffLengthLong, "ft"},
                         {"Required moment of inertia", "UTReqInertia",
                          center ? r.UTReqInertiaCLShort : r.UTReqInertiaELShort,
                          center ? r.UTReqInertiaCLLong : r.UTReqInertiaELLong, "in^4"},
                         {"Shear stress", "UTShear", center ? r.UTShearCLShort : r.UTShearELShort,
                          center ? r.UTShearCLLong : r.UTShearELLong, "psi"},
                         {"Cracked section capacity", "UTCrackCapacity",
                          center ? r.UTCrackCapacityCLShort : r.UTCrackCapacityELShort,
                          center ? r.UTCrackCapacityCLLong : r.UTCrackCapacityELLong, "ft-k"}});
        }
        return;
    }
    for (const bool center : {true, false}) {
        if (!center && c.record.CLSettleState != 1) {
            continue;
        }
        ResultBlock(
            w,
            center ? "Uniform thickness foundation - Center down"
                   : "Uniform thickness foundation - Edge down",
            center ? CheckMode::CenterDown : CheckMode::EdgeDown,
            {{"Beta distance", "UTBeta", center ? r.UTBetaCDShort : r.UTBetaEDShort,
              center ? r.UTBetaCDLong : r.UTBetaEDLong, "ft"},
             {"Effective prestress force at Beta", "UTForceNet",
              center ? r.UTForceNetCDShort : r.UTForceNetEDShort,
              center ? r.UTForceNetCDLong : r.UTForceNetEDLong, "kips"},
             {"Stress, top fiber", "UTStressTop",
              center ? r.UTStressTopCDShort : r.UTStressTopEDShort,
              center ? r.UTStressTopCDLong : r.UTStressTopEDLong, "ksi"},
             {"Stress, bottom fiber", "UTStressBot",
              center ? r.UTStressBotCDShort : r.UTStressBotEDShort,
              center ? r.UTStressBotCDLong : r.UTStressBotEDLong, "ksi"},
             {"Stiffness length", "UTStiffLength",
              center ? r.UTStiffLengthCDShort : r.UTStiffLengthEDShort,
              center ? r.UTStiffLengthCDLong : r.UTStiffLengthEDLong, "ft"},
             {"Net deflection", "UTNetDefl", center ? r.UTNetDeflCDShort : r.UTNetDeflEDShort,
              center ? r.UTNetDeflCDLong : r.UTNetDeflEDLong, "in"},
             {"Allowable deflection", "UTAllowDefl",
              center ? r.UTAllowDeflCDShort : r.UTAllowDeflEDShort,
              center ? r.UTAllowDeflCDLong : r.UTAllowDeflEDLong, "in"},
             {"Shear stress", "UTShear", center ? r.UTShearCDShort : r.UTShearEDShort,
              center ? r.UTShearCDLong : r.UTShearEDLong, "psi"}});
    }
}

} // namespace

void DrawPackageResults(PackageWriter& w, const PackageContent& c) {
    w.Font(9);
    w.Text(PackageLeft,
           "The quantities behind the checks, per mode and direction, as the analysis computed "
           "them.",
           Width);
    w.Step(LineStep(9));
    RibbedResults(w, c);
    if (c.record.FlatSlab == 1) {
        UniformResults(w, c);
    }
}

// ---- Line load ----

void DrawPackageLineLoad(PackageWriter& w, const PackageContent& c) {
    const DesignRecord& d = c.record;
    const ResultsRecord& r = c.results;
    Heading(w, "Line load input");
    const auto row = [&](const std::string& caption, double value, const std::string& unit) {
        w.Room(LineStep(RowPoints));
        w.Font(RowPoints);
        w.Text(PackageLeft + 200, caption, 5300);
        NumberWithUnit(w, InputValueRight, InputUnitX, value, unit);
        w.Step(LineStep(RowPoints));
    };
    const auto textRow = [&](const std::string& caption, const std::string& text) {
        w.Room(LineStep(RowPoints));
        w.Font(RowPoints);
        w.Text(PackageLeft + 200, caption, 5300);
        w.Text(PackageLeft + 5600, text, Width - 5600);
        w.Step(LineStep(RowPoints));
    };
    row("Line load", d.LineLoad, "lb/ft");
    textRow("Line load parallel to", d.DirLineLoad);
    textRow("Prestress at the line load", d.PreLineLoadType == 0   ? "Minimum effective prestress"
                                          : d.PreLineLoadType == 1 ? "Effective prestress at Beta"
                                                                   : "User defined");
    if (d.PreLineLoadType != 0 && d.PreLineLoadType != 1) {
        row("User defined prestress", d.UDPreLineLoad, "psi");
    }
    row("Soil modulus, Ks", d.Ks, "pci");
    row("Concrete creep modulus, Ec", d.Ec, "psi");

    ResultBlock(
        w, "Ribbed foundation - Line load results", CheckMode::LineLoad,
        {{"Applied moment", "LLMoment", r.LLMoment / 12 / 1000, r.LLMoment / 12 / 1000, "ft-k/ft"},
         {"Prestress at the line load", "LLPrestress", r.LLPrestress, r.LLPrestress, "psi"},
         {"Stress, tension fiber", "LLStressTension", r.LLStressTension / 1000,
          r.LLStressTension / 1000, "ksi"},
         {"Stress, compression fiber", "LLStressCompression", r.LLStressCompression,
          r.LLStressCompression, "psi"}},
        true);
    if (d.FlatSlab == 1) {
        ResultBlock(w, "Uniform thickness foundation - Line load results", CheckMode::LineLoad,
                    {{"Applied moment", "UTLLMoment", r.UTLLMoment / 12 / 1000,
                      r.UTLLMoment / 12 / 1000, "ft-k/ft"},
                     {"Prestress at the line load", "UTLLPrestress", r.UTLLPrestress,
                      r.UTLLPrestress, "psi"},
                     {"Stress, tension fiber", "UTLLStressTension", r.UTLLStressTension / 1000,
                      r.UTLLStressTension / 1000, "ksi"},
                     {"Stress, compression fiber", "UTLLStressCompression", r.UTLLStressCompression,
                      r.UTLLStressCompression, "psi"}},
                    true);
    }
    CheckBlocks(w, c.checks,
                [](const DesignCheck& check) { return check.mode == CheckMode::LineLoad; });
}
