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

  private:
    std::ostream& m_out;
};

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
}
