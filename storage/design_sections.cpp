#include "storage/design_sections.h"

#include "storage/design_file.h"

void ProjectInfoSection(FieldStream& stream, DesignRecord& record) {
    stream.text(record.ProjName);
    stream.text(record.ProjDate);
    stream.text(record.ProjNum);
    stream.text(record.ProjEng);
    stream.text(record.ProjGeoRep);
    stream.text(record.ProjGeoNum);
    stream.text(record.ProjGeoDate);
    stream.integer(record.FlatSlab);
}

void MaterialSection(FieldStream& stream, DesignRecord& record) {
    stream.text(record.MatLabel);
    stream.real(record.Fpc);
    stream.real(record.Ec);
    stream.real(record.UW);
    stream.real(record.Fpu);
    stream.integer(record.TendType);
    // Only a custom tendon keeps its area: the standard sizes take theirs from the tendon type.
    if (record.TendType == 3) {
        stream.real(record.TendArea);
    }
}

void SlabSection(FieldStream& stream, DesignRecord& record) {
    stream.text(record.RectLabel);
    stream.integer(record.SlabRefType);
    // Exactly one of the three ways of giving the slab reinforcement is stored.
    if (record.SlabRefType == 0) {
        stream.integer(record.NumSlabTenShort);
        stream.integer(record.NumSlabTenLong);
    } else if (record.SlabRefType == 1) {
        stream.real(record.StrLvlShort);
        stream.real(record.StrLvlLong);
    } else if (record.SlabRefType == 2) {
        stream.real(record.ForceShort);
        stream.real(record.ForceLong);
    }
    stream.integer(record.SlabTenCovType);
    if (record.SlabTenCovType == 1) {
        stream.real(record.SlabTenCov);
    }
    stream.real(record.SlabThick);
    stream.real(record.RectWidth);
    stream.real(record.RectLength);
}

void BeamSection(FieldStream& stream, DesignRecord& record) {
    stream.integer(record.QS1);
    stream.integer(record.QS2);
    stream.integer(record.QL1);
    stream.integer(record.QL2);
    for (double* value :
         {&record.DS1, &record.DS2, &record.DL1, &record.DL2, &record.WS1, &record.WS2, &record.WL1,
          &record.WL2, &record.TS1, &record.TS2, &record.TL1, &record.TL2, &record.CS1, &record.CS2,
          &record.CL1, &record.CL2}) {
        stream.real(*value);
    }
    stream.integer(record.BeamSpacing);
    // The spacing limits are kept only when the analysis uses them; minimum pair first.
    if (record.BeamSpacing == 0) {
        stream.real(record.SMin);
        stream.real(record.LMin);
        stream.real(record.SMax);
        stream.real(record.LMax);
    }
    stream.integer(record.SixFtRule);
}

void SoilSection(FieldStream& stream, DesignRecord& record) {
    stream.text(record.SoilLabel);
    stream.integer(record.SoilType);
    stream.real(record.ExpBearing);
    stream.real(record.EmCenter);
    stream.real(record.EmEdge);
    stream.real(record.YmCenter);
    stream.real(record.YmEdge);
    stream.real(record.CompBearing);
    stream.real(record.Settle);
    if (record.SoilType == 1) {
        stream.integer(record.CLSettleState);
    }
    stream.real(record.Es);
}

void LoadSection(FieldStream& stream, DesignRecord& record) {
    stream.real(record.ULoad);
    stream.real(record.TotalLoad);
    stream.integer(record.UseDeadLoad);
    if (record.UseDeadLoad == 1) {
        stream.real(record.DeadLoad);
    }
    stream.real(record.DefCenter);
    stream.real(record.DefEdge);
    stream.real(record.DefSettle);
    // Decided by the soil page: in a tab data file by the soil of the project in memory.
    if (record.SoilType == 1 && record.CLSettleState == 1) {
        stream.real(record.DefCLSettle);
    }
    stream.integer(record.Subgradetype);
    if (record.Subgradetype == 2) {
        stream.real(record.UDSS);
        stream.real(record.UDLS);
        stream.real(record.UDSM);
        stream.real(record.UDLM);
    }
    stream.real(record.Prestress);
    stream.real(record.SGFC);
}

void LineLoadSection(FieldStream& stream, DesignRecord& record) {
    stream.integer(record.LineLoadType);
    if (record.LineLoadType != 1) {
        return;
    }
    stream.real(record.LineLoad);
    stream.text(record.DirLineLoad);
    stream.integer(record.PreLineLoadType);
    if (record.PreLineLoadType == 2) {
        stream.real(record.UDPreLineLoad);
    }
    stream.real(record.Ks);
}

void CurrentSections(FieldStream& stream, int selector, DesignRecord& record) {
    using Section = void (*)(FieldStream&, DesignRecord&);
    constexpr Section sections[] = {ProjectInfoSection, MaterialSection, SlabSection,
                                    BeamSection,        SoilSection,     LoadSection,
                                    LineLoadSection};
    stream.integer(record.NoDataFlag);
    if (record.NoDataFlag != 0) {
        return;
    }
    for (int number = 0; number < 7; ++number) {
        if (selector == number || selector == AllSections) {
            sections[number](stream, record);
        }
    }
}
