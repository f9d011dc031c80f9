#include "storage/older_versions.h"

#include "storage/design_file.h"
#include "storage/design_sections.h"

namespace {
// Version 2 knew only tendons or prestress for the slab; a force ratio file loses step here.
void Version2SlabSection(FieldStream& stream, DesignRecord& record) {
    stream.text(record.RectLabel);
    stream.integer(record.SlabRefType);
    if (record.SlabRefType == 0) {
        stream.integer(record.NumSlabTenShort);
        stream.integer(record.NumSlabTenLong);
    } else if (record.SlabRefType == 1) {
        stream.real(record.StrLvlShort);
        stream.real(record.StrLvlLong);
    }
    stream.integer(record.SlabTenCovType);
    if (record.SlabTenCovType == 1) {
        stream.real(record.SlabTenCov);
    }
    stream.real(record.SlabThick);
    stream.real(record.RectWidth);
    stream.real(record.RectLength);
}

void Version2SoilSection(FieldStream& stream, DesignRecord& record) {
    stream.text(record.SoilLabel);
    stream.integer(record.SoilType);
    for (double* value :
         {&record.ExpBearing, &record.EmCenter, &record.EmEdge, &record.YmCenter, &record.YmEdge,
          &record.CompBearing, &record.Settle, &record.SGFC, &record.Es}) {
        stream.real(*value);
    }
}

void Version2LoadSection(FieldStream& stream, DesignRecord& record, const DesignRecord& defaults) {
    stream.real(record.ULoad);
    stream.real(record.TotalLoad);
    stream.integer(record.UseDeadLoad);
    if (record.UseDeadLoad == 1) {
        stream.real(record.DeadLoad);
    }
    stream.real(record.DefCenter);
    stream.real(record.DefEdge);
    stream.real(record.DefSettle);
    record.DefCLSettle = defaults.DefCLSettle;
    stream.integer(record.Subgradetype);
    if (record.Subgradetype == 2) {
        stream.real(record.UDSS);
        stream.real(record.UDLS);
        stream.real(record.UDSM);
        stream.real(record.UDLM);
    }
    stream.real(record.Prestress);
}

void Version1ProjectInfo(FieldStream& stream, DesignRecord& record) {
    stream.text(record.ProjName);
    stream.text(record.ProjDate);
    stream.text(record.ProjNum);
    stream.text(record.ProjEng);
    stream.text(record.ProjGeoRep);
    stream.text(record.ProjGeoDate);
    stream.integer(record.FlatSlab);
}

void Version1Material(FieldStream& stream, DesignRecord& record) {
    stream.text(record.MatLabel);
    stream.real(record.Fpc);
    stream.real(record.Ec);
    stream.real(record.UW);
    stream.real(record.Fpu);
    stream.integer(record.TendType);
    // The area line is always there; only a custom tendon keeps it.
    double area = 0.0;
    stream.real(area);
    if (record.TendType == 3) {
        record.TendArea = area;
    }
}

// Grouped by beam, not by property: quantity, depth, width, tendons, cover of S1, then S2,
// L1, L2.
void Version1Beams(FieldStream& stream, DesignRecord& record) {
    struct Group {
        std::int16_t& quantity;
        double& depth;
        double& width;
        double& tendons;
        double& cover;
    };
    const Group groups[] = {
        {record.QS1, record.DS1, record.WS1, record.TS1, record.CS1},
        {record.QS2, record.DS2, record.WS2, record.TS2, record.CS2},
        {record.QL1, record.DL1, record.WL1, record.TL1, record.CL1},
        {record.QL2, record.DL2, record.WL2, record.TL2, record.CL2},
    };
    for (const Group& group : groups) {
        stream.integer(group.quantity);
        stream.real(group.depth);
        stream.real(group.width);
        stream.real(group.tendons);
        stream.real(group.cover);
    }
}

// Nine values: the reinforcement type, four values of which two are kept, one value that is
// no longer used, and the slab thickness and the rectangle.
void Version1Slab(FieldStream& stream, DesignRecord& record) {
    double unused = 0.0;
    stream.integer(record.SlabRefType);
    if (record.SlabRefType != 0) {
        stream.real(record.StrLvlShort);
        stream.real(record.StrLvlLong);
        stream.real(unused);
        stream.real(unused);
    } else {
        stream.real(unused);
        stream.real(unused);
        stream.integer(record.NumSlabTenShort);
        stream.integer(record.NumSlabTenLong);
    }
    stream.real(unused);
    stream.real(record.SlabThick);
    stream.real(record.RectWidth);
    stream.real(record.RectLength);
}

// The .fnd layout: rectangle label, the beams, the slab. A part that is not wanted is read
// into a scratch copy, so that it is checked like the rest but changes nothing.
void Version1Foundation(FieldStream& stream, DesignRecord& record, bool keepSlab, bool keepBeams) {
    DesignRecord scratch = record;
    stream.text(keepSlab ? record.RectLabel : scratch.RectLabel);
    Version1Beams(stream, keepBeams ? record : scratch);
    Version1Slab(stream, keepSlab ? record : scratch);
}

void Version1Soil(FieldStream& stream, DesignRecord& record) {
    stream.text(record.SoilLabel);
    for (double* value : {&record.ExpBearing, &record.EmCenter, &record.EmEdge, &record.YmCenter,
                          &record.YmEdge, &record.SGFC, &record.Es}) {
        stream.real(*value);
    }
}

void Version1LoadAfterULoad(FieldStream& stream, DesignRecord& record) {
    stream.real(record.TotalLoad);
    stream.real(record.DefCenter);
    stream.real(record.DefEdge);
    stream.integer(record.Subgradetype);
    if (record.Subgradetype == 2) {
        stream.real(record.UDSS);
        stream.real(record.UDLS);
        stream.real(record.UDSM);
        stream.real(record.UDLM);
    }
    stream.real(record.Prestress);
}

// The fields of page `tab` that version 1 did not have.
void SupplyVersion1Fields(int tab, DesignRecord& record, const DesignRecord& defaults) {
    switch (tab) {
    case 0:
        record.ProjGeoNum.clear();
        break;
    case 2:
        record.SlabTenCov = 0.0;
        break;
    case 3:
        record.SixFtRule = 0;
        record.BeamSpacing = 1;
        break;
    case 4:
        record.SoilType = 0;
        record.CompBearing = defaults.CompBearing;
        record.Settle = defaults.Settle;
        record.CLSettleState = defaults.CLSettleState;
        break;
    case 5:
        record.UseDeadLoad = 0;
        record.DefSettle = defaults.DefSettle;
        record.DefCLSettle = defaults.DefCLSettle;
        break;
    case 6:
        record.LineLoadType = 0;
        break;
    default:
        break;
    }
}
} // namespace

void ReadVersion2File(LineReader& reader, int selector, DesignRecord& record,
                      const DesignRecord& defaults) {
    reader.integer(record.NoDataFlag);
    if (record.NoDataFlag != 0) {
        return;
    }
    const auto wanted = [selector](int section) {
        return selector == section || selector == AllSections;
    };
    if (wanted(0)) {
        ProjectInfoSection(reader, record);
    }
    if (wanted(1)) {
        MaterialSection(reader, record);
    }
    if (wanted(2)) {
        Version2SlabSection(reader, record);
    }
    if (wanted(3)) {
        BeamSection(reader, record);
    }
    if (wanted(4)) {
        Version2SoilSection(reader, record);
    }
    if (wanted(5)) {
        Version2LoadSection(reader, record, defaults);
    }
    if (wanted(6)) {
        LineLoadSection(reader, record);
    }
}

void ReadVersion1File(LineReader& reader, const std::string& firstLine, int selector,
                      DesignRecord& record, const DesignRecord& defaults) {
    switch (selector) {
    case AllSections:
        reader.putBackLine(firstLine);
        Version1ProjectInfo(reader, record);
        Version1Material(reader, record);
        Version1Foundation(reader, record, true, true);
        Version1Soil(reader, record);
        reader.real(record.ULoad);
        Version1LoadAfterULoad(reader, record);
        for (int tab = 0; tab < 7; ++tab) {
            SupplyVersion1Fields(tab, record, defaults);
        }
        return;
    case 0:
        reader.putBackLine(firstLine);
        Version1ProjectInfo(reader, record);
        break;
    case 1:
        reader.putBackLine(firstLine);
        Version1Material(reader, record);
        break;
    case 2:
        reader.putBackLine(firstLine);
        Version1Foundation(reader, record, true, false);
        break;
    case 3:
        // The first line is the rectangle label, which the beam page does not take.
        reader.putBackLine(firstLine);
        Version1Foundation(reader, record, false, true);
        break;
    case 4:
        reader.putBackLine(firstLine);
        Version1Soil(reader, record);
        break;
    case 5:
        // The load file starts with a number, which the version test has already read as text.
        record.ULoad = NumberFromLine(firstLine);
        Version1LoadAfterULoad(reader, record);
        break;
    case 6:
        // Version 1 had no line load and no line load file.
        break;
    default:
        return;
    }
    SupplyVersion1Fields(selector, record, defaults);
}
