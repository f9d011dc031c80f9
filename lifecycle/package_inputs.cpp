#include "lifecycle/package_inputs.h"

#include <string>

namespace {

class GroupWriter {
  public:
    explicit GroupWriter(std::string title) { m_group.title = std::move(title); }

    void Number(const std::string& caption, double value, const std::string& unit) {
        m_group.lines.push_back({caption, value, {}, unit});
    }
    void Text(const std::string& caption, const std::string& text) {
        m_group.lines.push_back({caption, std::nullopt, text, {}});
    }
    void YesNo(const std::string& caption, std::int16_t value) {
        Text(caption, value == 1 ? "Yes" : "No");
    }
    PackageInputGroup done() { return std::move(m_group); }

  private:
    PackageInputGroup m_group;
};

PackageInputGroup ProjectGroup(const DesignRecord& d) {
    GroupWriter g("Project Information");
    g.Text("Project Name", d.ProjName);
    g.Text("Project Date", d.ProjDate);
    g.Text("Project Number", d.ProjNum);
    g.Text("Project Engineer", d.ProjEng);
    g.Text("Geotechnical Report Source", d.ProjGeoRep);
    g.Text("Geotechnical Report Number", d.ProjGeoNum);
    g.Text("Geotechnical Report Date", d.ProjGeoDate);
    g.YesNo("Perform Uniform Thickness Foundation Analysis", d.FlatSlab);
    return g.done();
}

PackageInputGroup MaterialGroup(const DesignRecord& d) {
    GroupWriter g("Material Properties");
    g.Text("Material Label", d.MatLabel);
    g.Number("Concrete: Strength", d.Fpc, "psi");
    g.Number("Concrete: Creep Modulus", d.Ec, "psi");
    g.Number("Concrete: Unit Weight", d.UW, "pcf");
    g.Number("Tendon: Strength", d.Fpu, "ksi");
    switch (d.TendType) {
    case 0:
        g.Text("Tendon: Diameter", "3/8 in");
        break;
    case 1:
        g.Text("Tendon: Diameter", "7/16 in");
        break;
    case 2:
        g.Text("Tendon: Diameter", "1/2 in");
        break;
    default:
        g.Number("Tendon: Area", d.TendArea, "in^2");
        break;
    }
    return g.done();
}

PackageInputGroup SlabGroup(const DesignRecord& d) {
    GroupWriter g("Slab Properties");
    g.Text("Rectangle Label", d.RectLabel);
    g.Number("Rectangle Width", d.RectWidth, "ft");
    g.Number("Rectangle Length", d.RectLength, "ft");
    g.Number("Slab Thickness", d.SlabThick, "in");
    switch (d.SlabRefType) {
    case 1:
        g.Number("Prestress, Short Direction", d.StrLvlShort, "psi");
        g.Number("Prestress, Long Direction", d.StrLvlLong, "psi");
        break;
    case 2:
        g.Number("Prestress Force Ratio, Short Direction", d.ForceShort, "");
        g.Number("Prestress Force Ratio, Long Direction", d.ForceLong, "");
        break;
    default:
        g.Number("Slab Tendons, Short Direction", d.NumSlabTenShort, "count");
        g.Number("Slab Tendons, Long Direction", d.NumSlabTenLong, "count");
        break;
    }
    if (d.SlabTenCovType == 1) {
        g.Number("Average Slab Tendon Cover", d.SlabTenCov, "in");
    }
    return g.done();
}

PackageInputGroup BeamGroup(const DesignRecord& d) {
    GroupWriter g("Beam Properties");
    struct Beam {
        const char* name;
        std::int16_t quantity;
        double depth, width, tendons, cover;
    };
    for (const Beam& b : {Beam{"Short Direction, Type 1", d.QS1, d.DS1, d.WS1, d.TS1, d.CS1},
                          Beam{"Short Direction, Type 2", d.QS2, d.DS2, d.WS2, d.TS2, d.CS2},
                          Beam{"Long Direction, Type 1", d.QL1, d.DL1, d.WL1, d.TL1, d.CL1},
                          Beam{"Long Direction, Type 2", d.QL2, d.DL2, d.WL2, d.TL2, d.CL2}}) {
        const std::string name = b.name;
        g.Number(name + ": Quantity", b.quantity, "count");
        g.Number(name + ": Depth", b.depth, "in");
        g.Number(name + ": Width", b.width, "in");
        g.Number(name + ": Tendons", b.tendons, "count");
        g.Number(name + ": Cover", b.cover, "in");
    }
    if (d.BeamSpacing == 1) {
        g.Text("Analysis Beam Spacing", "Based on Average");
    } else {
        g.Text("Analysis Beam Spacing", "Based on Maximum and Minimum Spacings");
        g.Number("Minimum Spacing, Short", d.SMin, "ft");
        g.Number("Maximum Spacing, Short", d.SMax, "ft");
        g.Number("Minimum Spacing, Long", d.LMin, "ft");
        g.Number("Maximum Spacing, Long", d.LMax, "ft");
    }
    g.YesNo("Use 6.0 ft Beam Spacing when less (PTI 4.5.2.1)", d.SixFtRule);
    return g.done();
}

PackageInputGroup SoilGroup(const DesignRecord& d) {
    GroupWriter g("Soil Properties");
    g.Text("Soil Label", d.SoilLabel);
    if (d.SoilType == 0) {
        g.Text("Soil Type", "Expansive Soils");
        g.Number("Allowable Bearing Pressure", d.ExpBearing, "psf");
        g.Number("Edge Moisture Variation Distance, em, Center", d.EmCenter, "ft");
        g.Number("Edge Moisture Variation Distance, em, Edge", d.EmEdge, "ft");
        g.Number("Differential Soil Movement, ym, Center", d.YmCenter, "in");
        g.Number("Differential Soil Movement, ym, Edge", d.YmEdge, "in");
    } else {
        g.Text("Soil Type", "Compressible Soils");
        g.Number("Allowable Bearing Pressure", d.CompBearing, "psf");
        g.Number("Expected Settlement", d.Settle, "in");
        g.YesNo("Expansive Soil Center Lift Analysis per Section 6.13.2", d.CLSettleState);
    }
    g.Number("Soil Modulus of Elasticity, Es", d.Es, "psi");
    return g.done();
}

PackageInputGroup LoadGroup(const DesignRecord& d) {
    GroupWriter g(d.SoilType == 0 ? "Load, Stiffness & Prestress" : "Load, Deflection & Prestress");
    g.Number("Average Uniform Superimposed Total Load", d.ULoad, "psf");
    g.Number("Perimeter Total Load", d.TotalLoad, "lb/ft");
    if (d.SoilType == 0) {
        g.YesNo("Maximize Edge Lift with Smallest Load Intensity (PTI 4.5.4.3)", d.UseDeadLoad);
        if (d.UseDeadLoad == 1) {
            g.Number("Smallest Load Intensity", d.DeadLoad, "lb/ft");
        }
        g.Number("Stiffness Coefficient, Center Lift", d.DefCenter, "");
        g.Number("Stiffness Coefficient, Edge Lift", d.DefEdge, "");
    } else {
        g.Number("Differential Deflection Coefficient, Center Down", d.DefSettle, "");
        if (d.CLSettleState == 1) {
            g.Number("Differential Deflection Coefficient, Edge Down", d.DefCLSettle, "");
        }
    }
    switch (d.Subgradetype) {
    case 0:
        g.Text("Subgrade Friction Resistance", "PTI Manual Method");
        break;
    case 1:
        g.Text("Subgrade Friction Resistance", "\"Full Length Drag\" Method");
        break;
    default:
        g.Text("Subgrade Friction Resistance", "User Defined");
        g.Number("Maximum Subgrade Friction for Shear, Short", d.UDSS, "kips");
        g.Number("Maximum Subgrade Friction for Shear, Long", d.UDLS, "kips");
        g.Number("Subgrade Friction at Beta for Moment, Short", d.UDSM, "kips");
        g.Number("Subgrade Friction at Beta for Moment, Long", d.UDLM, "kips");
        break;
    }
    g.Number("Prestress Loss", d.Prestress, "ksi");
    g.Number("Subgrade Friction Coefficient", d.SGFC, "");
    return g.done();
}

PackageInputGroup LineLoadGroup(const DesignRecord& d) {
    GroupWriter g("Line Load Analysis");
    g.Number("Line Load", d.LineLoad, "lb/ft");
    g.Text("Line Load Parallels", d.DirLineLoad);
    switch (d.PreLineLoadType) {
    case 0:
        g.Text("Prestress at the Line Load", "Minimum Effective Prestress");
        break;
    case 1:
        g.Text("Prestress at the Line Load", "Effective Prestress at Beta");
        break;
    default:
        g.Number("Prestress at the Line Load, User Defined", d.UDPreLineLoad, "psi");
        break;
    }
    g.Number("Ks", d.Ks, "pci");
    return g.done();
}

} // namespace

std::vector<PackageInputGroup> PackageInputs(const DesignRecord& record) {
    std::vector<PackageInputGroup> groups{ProjectGroup(record), MaterialGroup(record),
                                          SlabGroup(record),    BeamGroup(record),
                                          SoilGroup(record),    LoadGroup(record)};
    if (record.LineLoadType == 1) {
        groups.push_back(LineLoadGroup(record));
    }
    return groups;
}
