#pragma once

#include "engine/record_field.h"

#include <cstdint>
#include <span>
#include <string>

// The one input of the analysis: one rectangle of a foundation with its materials, slab, four
// beam groups, soil, loads, prestress and line load. Plain values only; what a screen shows or
// a file holds is decided elsewhere.
//
// The list below is the single source of the field names, their kinds and their order, which is
// the order of the input pages. The struct and its field table are both made from it.
// clang-format off
#define K3_DESIGN_RECORD_FIELDS(TEXT, INT16, REAL)                                                 \
    /* Project information */                                                                      \
    TEXT(ProjName) TEXT(ProjDate) TEXT(ProjNum) TEXT(ProjEng) TEXT(ProjGeoRep)                     \
    TEXT(ProjGeoNum) TEXT(ProjGeoDate) INT16(FlatSlab)                                             \
    /* Material */                                                                                 \
    TEXT(MatLabel) REAL(Fpc) REAL(Ec) REAL(UW) REAL(Fpu) INT16(TendType) REAL(TendDiam)            \
    REAL(TendArea)                                                                                 \
    /* Foundation rectangle and slab */                                                            \
    TEXT(RectLabel) INT16(SlabRefType) INT16(NumSlabTenShort) INT16(NumSlabTenLong)                \
    REAL(StrLvlShort) REAL(StrLvlLong) REAL(ForceShort) REAL(ForceLong) INT16(SlabTenCovType)      \
    REAL(SlabTenCov) REAL(SlabThick) REAL(RectWidth) REAL(RectLength)                              \
    /* Beams, in the order S1, S2, L1, L2 */                                                       \
    INT16(QS1) INT16(QS2) INT16(QL1) INT16(QL2) REAL(DS1) REAL(DS2) REAL(DL1) REAL(DL2)            \
    REAL(WS1) REAL(WS2) REAL(WL1) REAL(WL2) REAL(TS1) REAL(TS2) REAL(TL1) REAL(TL2) REAL(CS1)      \
    REAL(CS2) REAL(CL1) REAL(CL2) INT16(BeamSpacing) REAL(SMin) REAL(LMin) REAL(SMax)              \
    REAL(LMax) INT16(SixFtRule)                                                                    \
    /* Soil */                                                                                     \
    TEXT(SoilLabel) INT16(SoilType) REAL(ExpBearing) REAL(EmCenter) REAL(EmEdge)                   \
    REAL(YmCenter) REAL(YmEdge) REAL(CompBearing) REAL(Settle) INT16(CLSettleState) REAL(SGFC)     \
    REAL(Es)                                                                                       \
    /* Loads, stiffness and prestress */                                                           \
    REAL(ULoad) REAL(TotalLoad) INT16(UseDeadLoad) REAL(DeadLoad) REAL(DefCenter)                  \
    REAL(DefEdge) REAL(DefSettle) REAL(DefCLSettle) INT16(Subgradetype) REAL(UDSS) REAL(UDLS)      \
    REAL(UDSM) REAL(UDLM) REAL(Prestress)                                                          \
    /* Line load */                                                                                \
    INT16(LineLoadType) REAL(LineLoad) TEXT(DirLineLoad) INT16(PreLineLoadType)                    \
    REAL(UDPreLineLoad) REAL(Ks)                                                                   \
    /* Not an input: 0 in every project the program makes; any other value read from a file */     \
    /* means the file carries no data, and that is kept from reading to writing. */                \
    INT16(NoDataFlag)
// clang-format on

#define K3_TEXT_MEMBER(name) std::string name;
#define K3_INT16_MEMBER(name) std::int16_t name = 0;
#define K3_REAL_MEMBER(name) double name = 0.0;

struct DesignRecord {
    K3_DESIGN_RECORD_FIELDS(K3_TEXT_MEMBER, K3_INT16_MEMBER, K3_REAL_MEMBER)

    bool operator==(const DesignRecord&) const = default;
};

#undef K3_TEXT_MEMBER
#undef K3_INT16_MEMBER
#undef K3_REAL_MEMBER

using DesignField = RecordField<DesignRecord>;

// Every field of the design record, in the order of the input pages.
std::span<const DesignField> DesignRecordFields();

// The field of that exact name, or nothing.
const DesignField* FindDesignField(std::string_view name);

// Settings of the program that change what the analysis computes. They belong to the options,
// not to a project.
struct EngineSettings {
    std::int16_t UseBeta = 0;
    std::int16_t UseBeamOnly = 0;
    std::int16_t ShowDD = 0;
};
