#include "shell/settings_sections.h"

namespace {

// A value stored, read and written under the name of its own field.
constexpr DefaultValue Plain(const char* name, const char* defaultText) {
    return {name, defaultText, name, name, name};
}

constexpr DefaultValue GenInfo[] = {
    Plain("ProjName", ""),    Plain("ProjDate", nullptr), Plain("ProjNum", ""),
    Plain("ProjEng", ""),     Plain("ProjGeoRep", ""),    Plain("ProjGeoNum", ""),
    Plain("ProjGeoDate", ""), Plain("FlatSlab", "0"),
};

constexpr DefaultValue MatProp[] = {
    Plain("MatLabel", ""), Plain("Fpc", "3000"),   Plain("Ec", "1500000"), Plain("UW", "145"),
    Plain("Fpu", "270"),   Plain("TendType", "2"), Plain("TendArea", "0"),
};

constexpr DefaultValue FoundProp[] = {
    Plain("RectLabel", ""),     Plain("SlabThick", "4"),       Plain("RectWidth", "0"),
    Plain("RectLength", "0"),   Plain("SlabTenCovType", "0"),  Plain("SlabTenCov", "0"),
    Plain("SlabRefType", "2"),  Plain("NumSlabTenShort", "0"), Plain("NumSlabTenLong", "0"),
    Plain("StrLvlShort", "50"), Plain("StrLvlLong", "50"),     Plain("ForceShort", "0.05"),
    Plain("ForceLong", "0.05"),
};

constexpr DefaultValue BeamProp[] = {
    Plain("QS1", "0"),         Plain("QS2", "0"),
    Plain("QL1", "0"),         Plain("QL2", "0"),
    Plain("DS1", "0"),         Plain("DS2", "0"),
    Plain("DL1", "0"),         Plain("DL2", "0"),
    Plain("WS1", "0"),         Plain("WS2", "0"),
    Plain("WL1", "0"),         Plain("WL2", "0"),
    Plain("TS1", "0"),         Plain("TS2", "0"),
    Plain("TL1", "0"),         Plain("TL2", "0"),
    Plain("CS1", "0"),         Plain("CS2", "0"),
    Plain("CL1", "0"),         Plain("CL2", "0"),
    Plain("BeamSpacing", "0"), Plain("SMin", "0"),
    Plain("SMax", "0"),        {"LMin", "0", "LMin", "LMax", "LMin"}, // read into the slot of LMax
    Plain("LMax", "0"),        Plain("SixFtRule", "1"),
};

constexpr DefaultValue SoilProp[] = {
    Plain("SoilLabel", ""),       Plain("ExpBearing", "4000"), Plain("EmCenter", "0"),
    Plain("EmEdge", "0"),         Plain("YmCenter", "0"),      Plain("YmEdge", "0"),
    Plain("CompBearing", "1500"), Plain("Settle", "0"),        Plain("CLSettleState", "0"),
    Plain("Es", "1000"),
};

constexpr DefaultValue LDPProp[] = {
    Plain("ULoad", "40"),
    Plain("TotalLoad", "0"),
    Plain("UseDeadLoad", "0"),
    Plain("DeadLoad", "0"),
    Plain("DefCenter", "480"),
    Plain("DefEdge", "960"),
    Plain("DefSettle", "960"),
    Plain("DefCLSettle", "480"),
    {"SubGradeType", "0", "Subgradetype", "Subgradetype", "Subgradetype"},
    Plain("UDSS", "0"),
    {"UDLS", "0", "UDLS", "UDSS", "UDSS"}, // read into, and written from, the slot of UDSS
    Plain("UDSM", "0"),
    Plain("UDLM", "0"),
    Plain("Prestress", "15"),
    Plain("SGFC", "0.75"),
};

constexpr DefaultValue LineLoad[] = {
    Plain("LineLoadType", "0"),
    Plain("LineLoad", "0"),
    Plain("DirLineLoad", "Long Direction"),
    Plain("PreLineLoadType", "0"),
    Plain("UDPreLineLoad", "0"),
    Plain("Ks", "4"),
};

constexpr DefaultSection Sections[] = {
    {1, "DefGenInfo", GenInfo},   {2, "DefMatProp", MatProp},   {3, "DefFoundProp", FoundProp},
    {4, "DefBeamProp", BeamProp}, {5, "DefSoilProp", SoilProp}, {6, "DefLDPProp", LDPProp},
    {7, "DefLineLoad", LineLoad},
};

} // namespace

std::span<const DefaultSection> DefaultRecordSections() {
    return Sections;
}

const DefaultSection* DefaultSectionFor(int selector) {
    for (const DefaultSection& section : Sections) {
        if (section.selector == selector) {
            return &section;
        }
    }
    return nullptr;
}
