#include "cli/results_summary.h"

#include <cmath>
#include <cstdio>
#include <ostream>
#include <string>

namespace {

// A number with a fixed count of decimals and thousands grouped by commas: 12,345.68.
std::string fixed(double value, int decimals) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*f", decimals, value);
    std::string text = buffer;
    const bool negative = text.front() == '-';
    if (negative) {
        text.erase(0, 1);
    }
    const std::size_t point = text.find('.');
    std::size_t digitsEnd = point == std::string::npos ? text.size() : point;
    for (std::size_t at = digitsEnd; at > 3; at -= 3) {
        text.insert(at - 3, ",");
    }
    // A value that rounds to zero prints without a sign.
    if (negative && text.find_first_not_of("0.,") != std::string::npos) {
        text.insert(0, "-");
    }
    return text;
}

std::string padRight(std::string text, std::size_t width) {
    if (text.size() < width) {
        text.append(width - text.size(), ' ');
    }
    return text;
}

std::string padLeft(std::string text, std::size_t width) {
    if (text.size() < width) {
        text.insert(0, width - text.size(), ' ');
    }
    return text;
}

constexpr std::size_t LabelWidth = 36;
constexpr std::size_t UnitWidth = 8;
constexpr std::size_t ValueWidth = 14;

class SummaryTable {
  public:
    explicit SummaryTable(std::ostream& out) : m_out(out) {}

    void heading(const std::string& title) { m_out << '\n' << title << '\n'; }

    void directionsHeading(const std::string& title) {
        m_out << '\n'
              << padRight(title, 2 + LabelWidth + UnitWidth) << padLeft("Short", ValueWidth)
              << padLeft("Long", ValueWidth) << '\n';
    }

    void value(const std::string& label, const std::string& unit, const std::string& text) {
        m_out << "  " << padRight(label, LabelWidth) << padRight(unit, UnitWidth)
              << padLeft(text, ValueWidth) << '\n';
    }

    void value(const std::string& label, const std::string& unit, double number, int decimals) {
        value(label, unit, fixed(number, decimals));
    }

    void pair(const std::string& label, const std::string& unit, double shortValue,
              double longValue, int decimals) {
        m_out << "  " << padRight(label, LabelWidth) << padRight(unit, UnitWidth)
              << padLeft(fixed(shortValue, decimals), ValueWidth)
              << padLeft(fixed(longValue, decimals), ValueWidth) << '\n';
    }

    void text(const std::string& label, const std::string& unit, const std::string& shortText,
              const std::string& longText) {
        m_out << "  " << padRight(label, LabelWidth) << padRight(unit, UnitWidth)
              << padLeft(shortText, ValueWidth) << padLeft(longText, ValueWidth) << '\n';
    }

    void text(const std::string& label, const std::string& shortText, const std::string& longText) {
        text(label, "", shortText, longText);
    }

    void note(const std::string& line) { m_out << "  " << line << '\n'; }

  private:
    std::ostream& m_out;
};

// One lift mode of expansive soil: its moments, the fibre stresses against their allowables,
// the required stiffness and the shear.
struct LiftMode {
    const char* title;
    const char* tensionFibre;
    const char* compressionFibre;
    double momentShort, momentLong;
    double tensionShort, tensionLong, tensionExcessShort, tensionExcessLong;
    double compressionShort, compressionLong, compressionExcessShort, compressionExcessLong;
    double reqInertiaShort, reqInertiaLong, stiffExcessShort, stiffExcessLong;
    double shearForceShort, shearForceLong, shearShort, shearLong, shearExcessShort,
        shearExcessLong;
};

void printLiftMode(SummaryTable& table, const LiftMode& mode, const ResultsRecord& r) {
    table.directionsHeading(mode.title);
    table.pair("Moment", "ft-k/ft", mode.momentShort, mode.momentLong, 3);
    table.pair(std::string("Stress, ") + mode.tensionFibre + " (tension)", "ksi", mode.tensionShort,
               mode.tensionLong, 3);
    table.value("  allowable tension", "ksi", r.AllowTension, 3);
    table.pair("  excess", "%", mode.tensionExcessShort, mode.tensionExcessLong, 1);
    table.pair(std::string("Stress, ") + mode.compressionFibre + " (compression)", "ksi",
               mode.compressionShort, mode.compressionLong, 3);
    table.value("  allowable compression", "ksi", r.AllowCompression / 1000, 3);
    table.pair("  excess", "%", mode.compressionExcessShort, mode.compressionExcessLong, 1);
    table.pair("Required moment of inertia", "in4", mode.reqInertiaShort, mode.reqInertiaLong, 1);
    table.pair("  excess over actual", "%", mode.stiffExcessShort, mode.stiffExcessLong, 1);
    table.pair("Shear force", "k/ft", mode.shearForceShort, mode.shearForceLong, 3);
    table.pair("Shear stress", "psi", mode.shearShort, mode.shearLong, 1);
    table.pair("  allowable", "psi", r.AllowShearShort, r.AllowShearLong, 1);
    table.pair("  excess", "%", mode.shearExcessShort, mode.shearExcessLong, 1);
}

void printExpansiveSoil(SummaryTable& table, const EngineSettings& settings,
                        const ResultsRecord& r) {
    printLiftMode(table,
                  {"Center lift",
                   "top",
                   "bottom",
                   r.MomentCLShort,
                   r.MomentCLLong,
                   r.StressTopCLShort,
                   r.StressTopCLLong,
                   r.ExcessTopCLShort,
                   r.ExcessTopCLLong,
                   r.StressBotCLShort,
                   r.StressBotCLLong,
                   r.ExcessBotCLShort,
                   r.ExcessBotCLLong,
                   r.ReqInertiaCLShort,
                   r.ReqInertiaCLLong,
                   r.ExcessStiffCLShort,
                   r.ExcessStiffCLLong,
                   r.ShearForceCLShort,
                   r.ShearForceCLLong,
                   r.ShearCLShort,
                   r.ShearCLLong,
                   r.ExcessShearCLShort,
                   r.ExcessShearCLLong},
                  r);
    table.text("  Moment at em = 5 ft governs", r.Em5ControlShort ? "yes" : "no",
               r.Em5ControlLong ? "yes" : "no");
    printLiftMode(table,
                  {"Edge lift",
                   "bottom",
                   "top",
                   r.MomentELShort,
                   r.MomentELLong,
                   r.StressBotELShort,
                   r.StressBotELLong,
                   r.ExcessBotELShort,
                   r.ExcessBotELLong,
                   r.StressTopELShort,
                   r.StressTopELLong,
                   r.ExcessTopELShort,
                   r.ExcessTopELLong,
                   r.ReqInertiaELShort,
                   r.ReqInertiaELLong,
                   r.ExcessStiffELShort,
                   r.ExcessStiffELLong,
                   r.ShearForceELShort,
                   r.ShearForceELLong,
                   r.ShearELShort,
                   r.ShearELLong,
                   r.ExcessShearELShort,
                   r.ExcessShearELLong},
                  r);
    table.text("  Stiffness judged over", r.StiffBasisShort, r.StiffBasisLong);
    table.pair("  length", "ft", r.StiffLengthShort, r.StiffLengthLong, 2);

    if (settings.ShowDD == 1) {
        table.directionsHeading("Differential deflection (2nd edition)");
        table.pair("Center lift deflection", "in", r.DeflCLShort, r.DeflCLLong, 3);
        table.pair("  with prestress", "in", r.NetDeflCLShort, r.NetDeflCLLong, 3);
        table.pair("  allowable", "in", r.AllowDeflCLShort, r.AllowDeflCLLong, 3);
        table.pair("Edge lift deflection", "in", r.DeflELShort, r.DeflELLong, 3);
        table.pair("  with prestress", "in", r.NetDeflELShort, r.NetDeflELLong, 3);
        table.pair("  allowable", "in", r.AllowDeflELShort, r.AllowDeflELLong, 3);
    }
}

std::string capacityText(std::int16_t valid, double capacity) {
    return valid ? fixed(capacity, 2) : "n/a";
}

std::string excessText(std::int16_t valid, double excess) {
    return valid ? fixed(excess, 1) : "n/a";
}

void printCrackedSection(SummaryTable& table, const ResultsRecord& r) {
    table.directionsHeading("Cracked section capacity");
    table.pair("Center lift 0.9 moment", "ft-k", r.CrackDemandCLShort, r.CrackDemandCLLong, 2);
    table.text("  capacity", "ft-k", capacityText(r.CrackValidCLShort, r.CrackCapacityCLShort),
               capacityText(r.CrackValidCLLong, r.CrackCapacityCLLong));
    table.text("  excess", "%", excessText(r.CrackValidCLShort, r.ExcessCrackCLShort),
               excessText(r.CrackValidCLLong, r.ExcessCrackCLLong));
    table.pair("Edge lift 0.9 moment", "ft-k", r.CrackDemandELShort, r.CrackDemandELLong, 2);
    table.text("  capacity", "ft-k", capacityText(r.CrackValidELShort, r.CrackCapacityELShort),
               capacityText(r.CrackValidELLong, r.CrackCapacityELLong));
    table.text("  excess", "%", excessText(r.CrackValidELShort, r.ExcessCrackELShort),
               excessText(r.CrackValidELLong, r.ExcessCrackELLong));
    table.note("n/a: no tendons on the tension side, the capacity could not be calculated.");
}

std::string soilName(const DesignRecord& record) {
    return record.SoilType == 0 ? "expansive soil" : "compressible soil";
}

} // namespace

void PrintResultsSummary(const std::filesystem::path& project, int version,
                         const EngineSettings& settings, const DesignRecord& record,
                         const ResultsRecord& r, std::ostream& out) {
    out << "Korvath 3.0 analysis of " << project.string();
    if (version != 3) {
        out << " (read from a version " << version << " file)";
    }
    out << '\n';
    out << "Project:    " << record.ProjName;
    if (!record.ProjNum.empty()) {
        out << "  (" << record.ProjNum << ")";
    }
    out << '\n';
    if (!record.ProjEng.empty()) {
        out << "Engineer:   " << record.ProjEng << '\n';
    }
    out << "Rectangle:  " << (record.RectLabel.empty() ? "" : record.RectLabel + ", ")
        << fixed(record.RectWidth, 2) << " x " << fixed(record.RectLength, 2) << " ft, slab "
        << fixed(record.SlabThick, 2) << " in, " << soilName(record) << '\n';
    out << "Options:    UseBeta " << settings.UseBeta << ", UseBeamOnly " << settings.UseBeamOnly
        << ", ShowDD " << settings.ShowDD << '\n';

    SummaryTable table(out);
    table.heading("Allowable stresses");
    table.value("Allowable tension", "ksi", r.AllowTension, 3);
    table.value("Allowable compression", "psi", r.AllowCompression, 1);
    table.value("Cracking stress", "psi", r.CrackingStress, 1);

    table.directionsHeading("Section properties");
    table.pair("Beams", "", r.BeamsShort, r.BeamsLong, 0);
    table.pair("Equivalent beam depth", "in", r.EquivDepthShort, r.EquivDepthLong, 3);
    table.pair("Average beam width", "in", r.AvgBeamWidthShort, r.AvgBeamWidthLong, 2);
    table.pair("Section area", "in2", r.AreaShort, r.AreaLong, 1);
    table.pair("Moment of inertia", "in4", r.InertiaShort, r.InertiaLong, 1);
    table.pair("Centroid from top", "in", r.CgTopShort, r.CgTopLong, 3);
    table.pair("Centroid from bottom", "in", r.CgBottomShort, r.CgBottomLong, 3);
    table.pair("Section modulus, top", "in3", r.SecModTopShort, r.SecModTopLong, 1);
    table.pair("Section modulus, bottom", "in3", r.SecModBottomShort, r.SecModBottomLong, 1);

    table.heading("Soil bearing");
    table.value("Concrete volume", "yd3", r.ConcreteVolume, 2);
    table.value("Concrete weight", "kips", r.ConcreteWeight, 2);
    table.value("Superimposed load", "kips", r.SuperimposedLoad, 2);
    table.value("Total applied load", "lb", r.TotalAppliedLoad, 0);
    table.value("Bearing area", "ft2", r.BearingArea, 2);
    table.value("Soil pressure", "psf", r.SoilPressure, 1);
    table.value("Allowable bearing pressure", "psf",
                record.SoilType == 0 ? record.ExpBearing : record.CompBearing, 1);
    table.value("Bearing safety factor", "", r.BearingSafety, 2);
    table.value("Bearing excess", "%", r.BearingExcess, 1);

    table.directionsHeading("Prestress");
    table.value("Effective stress in a tendon", "ksi", r.TendonEffStress, 2);
    table.pair("Beta", "ft", r.BetaShort, r.BetaLong, 3);
    table.pair("Subgrade friction", "kips", r.FrictionShort, r.FrictionLong, 2);
    table.pair("Slab tendons", "", r.SlabTenShort, r.SlabTenLong, 0);
    table.pair("Beam tendons", "", r.BeamTenShort, r.BeamTenLong, 1);
    table.pair("Total tendons", "", r.TotalTenShort, r.TotalTenLong, 0);
    table.pair("Total tendon force", "kips", r.ForceShort0, r.ForceLong0, 2);
    table.pair("Force at Beta", "kips", r.ForceNetShort, r.ForceNetLong, 2);
    table.pair("Average prestress at center", "psi", r.PsCenterShort, r.PsCenterLong, 1);
    table.pair("Tendon centroid from top", "in", r.TenCgShort, r.TenCgLong, 3);
    table.pair("Eccentricity", "in", r.EccShort, r.EccLong, 3);

    table.directionsHeading("Analysis beam spacing");
    table.pair("Beam spacing used", "ft", r.SpacingShort, r.SpacingLong, 2);
    table.value("Perimeter load (edge lift)", "lb/ft", r.PerimeterLoad, 1);

    if (record.SoilType == 0) {
        printExpansiveSoil(table, settings, r);
    }
    printCrackedSection(table, r);
}
