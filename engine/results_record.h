#pragma once

#include "engine/record_field.h"

#include <cstdint>
#include <span>
#include <string>

// Every named result of the analysis. Only the engine writes it. It is never cleared: a branch
// of the analysis that does not run leaves the values of the run before, and a value that was
// never computed is 0.
//
// The list below is the single source of the result names and kinds; the struct and its field
// table are both made from it. Doubles unless marked 16-bit.
// clang-format off
#define K3_RESULTS_RECORD_FIELDS(TEXT, INT16, REAL)                                                \
    /* Allowable stresses */                                                                       \
    REAL(AllowTension) REAL(AllowCompression) REAL(CrackingStress)                                 \
    /* Section properties */                                                                       \
    REAL(AreaBeamS1) REAL(AreaBeamS2) REAL(AreaBeamL1) REAL(AreaBeamL2) REAL(AreaSlabShort)        \
    REAL(AreaSlabLong) REAL(AreaShort) REAL(AreaLong) REAL(CgBeamS1) REAL(CgBeamS2)                \
    REAL(CgBeamL1) REAL(CgBeamL2) REAL(CgSlab) REAL(CgTopShort) REAL(CgTopLong)                    \
    REAL(CgBottomShort) REAL(CgBottomLong) REAL(CgTopShortCopy) REAL(CgTopLongCopy)                \
    REAL(InertiaBeamS1) REAL(InertiaBeamS2) REAL(InertiaBeamL1) REAL(InertiaBeamL2)                \
    REAL(InertiaSlabShort) REAL(InertiaSlabLong) REAL(InertiaShort) REAL(InertiaLong)              \
    REAL(EquivDepthShort) REAL(EquivDepthLong) REAL(SecModTopShort) REAL(SecModTopLong)            \
    REAL(SecModBottomShort) REAL(SecModBottomLong) REAL(AvgBeamWidthShort)                         \
    REAL(AvgBeamWidthLong) INT16(BeamsShort) INT16(BeamsLong)                                      \
    /* Soil bearing and analysis spacing */                                                        \
    REAL(ConcreteVolume) REAL(ConcreteWeight) REAL(SuperimposedLoad) REAL(TotalAppliedLoad)        \
    REAL(BearingArea) REAL(SoilPressure) REAL(BearingSafety) REAL(BearingExcess)                   \
    REAL(SpacingShort) REAL(SpacingLong) REAL(PerimeterLoad)                                       \
    /* Prestress */                                                                                \
    REAL(BetaShort) REAL(BetaLong) REAL(TendonEffStress) REAL(FrictionShort)                       \
    REAL(FrictionLong) REAL(ReqForceShort) REAL(ReqForceLong) REAL(SlabTenShort)                   \
    REAL(SlabTenLong) INT16(TotalTenShort) INT16(TotalTenLong) REAL(ForceShort0)                   \
    REAL(ForceLong0) REAL(ForceNetShort) REAL(ForceNetLong) REAL(PsCenterShort)                    \
    REAL(PsCenterLong) REAL(PsHalfShort) REAL(PsHalfLong) REAL(TenCountShort)                      \
    REAL(TenCountLong) REAL(BeamTenShort) REAL(BeamTenLong) REAL(CgSlabTenShort)                   \
    REAL(CgSlabTenLong) REAL(TenCgShort) REAL(TenCgLong) REAL(EccShort) REAL(EccLong)              \
    /* Expansive soil moments and bending stresses */                                              \
    REAL(MomentCLBase) REAL(MomentCLLong) REAL(MomentCLShort) REAL(MomentCLLongEm5)                \
    REAL(MomentCLShortEm5) INT16(Em5ControlLong) INT16(Em5ControlShort) REAL(MomentELLong)         \
    REAL(MomentELShort) REAL(StressTopCLShort) REAL(StressTopCLLong) REAL(StressBotCLShort)        \
    REAL(StressBotCLLong) REAL(StressTopELShort) REAL(StressTopELLong) REAL(StressBotELShort)      \
    REAL(StressBotELLong) REAL(ExcessTopCLShort) REAL(ExcessTopCLLong) REAL(ExcessBotCLShort)      \
    REAL(ExcessBotCLLong) REAL(ExcessTopELShort) REAL(ExcessTopELLong) REAL(ExcessBotELShort)      \
    REAL(ExcessBotELLong)                                                                          \
    /* Expansive soil deflection, stiffness and shear */                                           \
    REAL(StiffLengthShort) REAL(StiffLengthLong) TEXT(StiffBasisShort) TEXT(StiffBasisLong)        \
    REAL(AllowDeflCLShort) REAL(AllowDeflCLLong) REAL(AllowDeflELShort) REAL(AllowDeflELLong)      \
    REAL(DeflCLShort) REAL(DeflCLLong) REAL(DeflELShort) REAL(DeflELLong) REAL(DeflPsShort)        \
    REAL(DeflPsLong) REAL(NetDeflCLShort) REAL(NetDeflCLLong) REAL(NetDeflELShort)                 \
    REAL(NetDeflELLong) REAL(ReqInertiaCLShort) REAL(ReqInertiaCLLong) REAL(ReqInertiaELShort)     \
    REAL(ReqInertiaELLong) REAL(ExcessStiffCLShort) REAL(ExcessStiffCLLong)                        \
    REAL(ExcessStiffELShort) REAL(ExcessStiffELLong) REAL(AllowShearShort)                         \
    REAL(AllowShearLong) REAL(ShearForceCLShort) REAL(ShearForceCLLong)                            \
    REAL(ShearForceELShort) REAL(ShearForceELLong) REAL(ShearCLShort) REAL(ShearCLLong)            \
    REAL(ShearELShort) REAL(ShearELLong) REAL(ExcessShearCLShort) REAL(ExcessShearCLLong)          \
    REAL(ExcessShearELShort) REAL(ExcessShearELLong)                                               \
    /* Cracked section capacity */                                                                 \
    REAL(CrackMomentCLLong) REAL(CrackMomentCLShort) REAL(CrackMomentELLong)                       \
    REAL(CrackMomentELShort) REAL(CrackDemandCLLong) REAL(CrackDemandCLShort)                      \
    REAL(CrackDemandELLong) REAL(CrackDemandELShort) REAL(CrackForceCLLong)                        \
    REAL(CrackForceCLShort) REAL(CrackForceELLong) REAL(CrackForceELShort)                         \
    REAL(CrackBlockCLLong) REAL(CrackBlockCLShort) REAL(CrackBlockELLong)                          \
    REAL(CrackBlockELShort) REAL(CrackCapacityCLLong) REAL(CrackCapacityCLShort)                   \
    REAL(CrackCapacityELLong) REAL(CrackCapacityELShort) INT16(CrackValidCLLong)                   \
    INT16(CrackValidCLShort) INT16(CrackValidELLong) INT16(CrackValidELShort)                      \
    REAL(ExcessCrackCLLong) REAL(ExcessCrackCLShort) REAL(ExcessCrackELLong)                       \
    REAL(ExcessCrackELShort)
// clang-format on

#define K3_TEXT_MEMBER(name) std::string name;
#define K3_INT16_MEMBER(name) std::int16_t name = 0;
#define K3_REAL_MEMBER(name) double name = 0.0;

struct ResultsRecord {
    K3_RESULTS_RECORD_FIELDS(K3_TEXT_MEMBER, K3_INT16_MEMBER, K3_REAL_MEMBER)

    bool operator==(const ResultsRecord&) const = default;
};

#undef K3_TEXT_MEMBER
#undef K3_INT16_MEMBER
#undef K3_REAL_MEMBER

using ResultField = RecordField<ResultsRecord>;

// Every result, in the order of the analysis stages.
std::span<const ResultField> ResultsRecordFields();
