#include "cli/results_summary.h"

#include "cli/summary_sections.h"

#include <ostream>
#include <string>

namespace {

std::string soilName(const DesignRecord& record) {
    return record.SoilType == 0 ? "expansive soil" : "compressible soil";
}

} // namespace

void PrintProjectHeading(const std::string& title, const std::filesystem::path& project,
                         int version, const EngineSettings& settings, const DesignRecord& record,
                         std::ostream& out) {
    out << "Korvath 3.0 " << title << " of " << project.string();
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
        << FixedNumber(record.RectWidth, 2) << " x " << FixedNumber(record.RectLength, 2)
        << " ft, slab " << FixedNumber(record.SlabThick, 2) << " in, " << soilName(record) << '\n';
    out << "Options:    UseBeta " << settings.UseBeta << ", UseBeamOnly " << settings.UseBeamOnly
        << ", ShowDD " << settings.ShowDD << '\n';
}

void PrintResultsSummary(const std::filesystem::path& project, int version,
                         const EngineSettings& settings, const DesignRecord& record,
                         const ResultsRecord& r, std::ostream& out) {
    PrintProjectHeading("analysis", project, version, settings, record, out);

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

    // The cracked section rests on the lift moments; it is read on expansive soil only.
    if (record.SoilType == 0) {
        PrintExpansiveSoil(table, settings, r);
        PrintCrackedSection(table, r);
    }
    if (record.SoilType == 1) {
        PrintCompressibleSoil(table, record, r);
    }
    if (record.FlatSlab == 1) {
        PrintUniformThickness(table, record, r);
    }
    if (record.LineLoadType == 1) {
        PrintLineLoad(table, record, r);
    }
}
