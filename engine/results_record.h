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
    REAL(ExcessCrackELShort)                                                                       \
    /* Compressible soil: center down and edge down */                                             \
    REAL(SettleRefShort) REAL(SettleRefLong) REAL(BetaCDShort) REAL(BetaCDLong) REAL(BetaEDShort)  \
    REAL(BetaEDLong) REAL(ForceNetCDShort) REAL(ForceNetCDLong) REAL(ForceNetEDShort)              \
    REAL(ForceNetEDLong) REAL(MomentCDBase) REAL(MomentCDShort) REAL(MomentCDLong)                 \
    REAL(MomentEDShort) REAL(MomentEDLong) REAL(StressBotCDShort) REAL(StressBotCDLong)            \
    REAL(StressTopCDShort) REAL(StressTopCDLong) REAL(StressTopEDShort) REAL(StressTopEDLong)      \
    REAL(StressBotEDShort) REAL(StressBotEDLong) REAL(StiffLengthCDShort) REAL(StiffLengthCDLong)  \
    REAL(StiffLengthEDShort) REAL(StiffLengthEDLong) TEXT(StiffBasisCDShort)                       \
    TEXT(StiffBasisCDLong) TEXT(StiffBasisEDShort) TEXT(StiffBasisEDLong) REAL(AllowDeflCDShort)   \
    REAL(AllowDeflCDLong) REAL(AllowDeflEDShort) REAL(AllowDeflEDLong) REAL(DeflCDShort)           \
    REAL(DeflCDLong) REAL(DeflEDShort) REAL(DeflEDLong) REAL(DeflPsCDShort) REAL(DeflPsCDLong)     \
    REAL(DeflPsEDShort) REAL(DeflPsEDLong) REAL(NetDeflCDShort) REAL(NetDeflCDLong)                \
    REAL(NetDeflEDShort) REAL(NetDeflEDLong) REAL(ShearCDBase) REAL(ShearForceCDShort)             \
    REAL(ShearForceCDLong) REAL(ShearForceEDShort) REAL(ShearForceEDLong) REAL(ShearCDShort)       \
    REAL(ShearCDLong) REAL(ShearEDShort) REAL(ShearEDLong) REAL(ExcessBotCDShort)                  \
    REAL(ExcessBotCDLong) REAL(ExcessTopCDShort) REAL(ExcessTopCDLong) REAL(ExcessDeflCDShort)     \
    REAL(ExcessDeflCDLong) REAL(ExcessShearCDShort) REAL(ExcessShearCDLong)                        \
    REAL(ExcessBotEDShort) REAL(ExcessBotEDLong) REAL(ExcessTopEDShort) REAL(ExcessTopEDLong)      \
    REAL(ExcessDeflEDShort) REAL(ExcessDeflEDLong) REAL(ExcessShearEDShort)                        \
    REAL(ExcessShearEDLong)                                                                        \
    /* Tendon tallies of the ribbed foundation */                                                  \
    REAL(TendonJackForce) INT16(TendonEndAllowance) REAL(TendonLength) REAL(SlabTenSpacingShort)   \
    REAL(SlabTenSpacingLong)                                                                       \
    /* Uniform thickness foundation: section, tendons and prestress */                             \
    REAL(EquivSlabThick) REAL(UTThickness) REAL(UTAreaShort) REAL(UTAreaLong) REAL(UTInertiaShort) \
    REAL(UTInertiaLong) REAL(UTSecModShort) REAL(UTSecModLong) REAL(UTConcreteVolume)              \
    REAL(UTSlabWeight) REAL(UTFrictionShort) REAL(UTFrictionLong) REAL(UTReqForceShort)            \
    REAL(UTReqForceLong) INT16(UTTotalTenShort) INT16(UTTotalTenLong) REAL(UTTenSpacingShort)      \
    REAL(UTTenSpacingLong) INT16(UTTendonEndAllowance) REAL(UTTendonLength) REAL(UTForceShort0)    \
    REAL(UTForceLong0) REAL(UTPsCenterShort) REAL(UTPsCenterLong) REAL(UTPsHalfShort)              \
    REAL(UTPsHalfLong) REAL(UTEccShort) REAL(UTEccLong) REAL(UTAllowShearShort)                    \
    REAL(UTAllowShearLong)                                                                         \
    /* Uniform thickness foundation on expansive soil */                                           \
    REAL(UTBetaShort) REAL(UTBetaLong) REAL(UTForceNetShort) REAL(UTForceNetLong)                  \
    REAL(UTStiffLengthShort) REAL(UTStiffLengthLong) TEXT(UTStiffBasisShort)                       \
    TEXT(UTStiffBasisLong) REAL(UTReqInertiaCLShort) REAL(UTReqInertiaCLLong)                      \
    REAL(UTReqInertiaELShort) REAL(UTReqInertiaELLong) REAL(UTShearCLShort) REAL(UTShearCLLong)    \
    REAL(UTShearELShort) REAL(UTShearELLong) REAL(UTStressTopCLShort) REAL(UTStressTopCLLong)      \
    REAL(UTStressBotCLShort) REAL(UTStressBotCLLong) REAL(UTStressTopELShort)                      \
    REAL(UTStressTopELLong) REAL(UTStressBotELShort) REAL(UTStressBotELLong)                       \
    REAL(UTExcessTopCLShort) REAL(UTExcessTopCLLong) REAL(UTExcessBotCLShort)                      \
    REAL(UTExcessBotCLLong) REAL(UTExcessTopELShort) REAL(UTExcessTopELLong)                       \
    REAL(UTExcessBotELShort) REAL(UTExcessBotELLong) REAL(UTExcessStiffCLShort)                    \
    REAL(UTExcessStiffCLLong) REAL(UTExcessStiffELShort) REAL(UTExcessStiffELLong)                 \
    REAL(UTExcessShearCLShort) REAL(UTExcessShearCLLong) REAL(UTExcessShearELShort)                \
    REAL(UTExcessShearELLong) REAL(UTCrackMomentCLLong) REAL(UTCrackMomentCLShort)                 \
    REAL(UTCrackMomentELLong) REAL(UTCrackMomentELShort) REAL(UTCrackDemandCLLong)                 \
    REAL(UTCrackDemandCLShort) REAL(UTCrackDemandELLong) REAL(UTCrackDemandELShort)                \
    REAL(UTCrackForceCLLong) REAL(UTCrackForceCLShort) REAL(UTCrackForceELLong)                    \
    REAL(UTCrackForceELShort) REAL(UTCrackBlockCLLong) REAL(UTCrackBlockCLShort)                   \
    REAL(UTCrackBlockELLong) REAL(UTCrackBlockELShort) REAL(UTCrackCapacityCLLong)                 \
    REAL(UTCrackCapacityCLShort) REAL(UTCrackCapacityELLong) REAL(UTCrackCapacityELShort)          \
    INT16(UTCrackValidCLLong) INT16(UTCrackValidCLShort) INT16(UTCrackValidELLong)                 \
    INT16(UTCrackValidELShort) REAL(UTExcessCrackCLLong) REAL(UTExcessCrackCLShort)                \
    REAL(UTExcessCrackELLong) REAL(UTExcessCrackELShort)                                           \
    /* Uniform thickness foundation on compressible soil */                                        \
    REAL(UTBetaCDShort) REAL(UTBetaCDLong) REAL(UTForceNetCDShort) REAL(UTForceNetCDLong)          \
    REAL(UTStressBotCDShort) REAL(UTStressBotCDLong) REAL(UTStressTopCDShort)                      \
    REAL(UTStressTopCDLong) REAL(UTStiffLengthCDShort) REAL(UTStiffLengthCDLong)                   \
    TEXT(UTStiffBasisCDShort) TEXT(UTStiffBasisCDLong) REAL(UTAllowDeflCDShort)                    \
    REAL(UTAllowDeflCDLong) REAL(UTDeflPsCDShort) REAL(UTDeflPsCDLong) REAL(UTNetDeflCDShort)      \
    REAL(UTNetDeflCDLong) REAL(UTShearCDShort) REAL(UTShearCDLong) REAL(UTBetaEDShort)             \
    REAL(UTBetaEDLong) REAL(UTForceNetEDShort) REAL(UTForceNetEDLong) REAL(UTStressBotEDShort)     \
    REAL(UTStressBotEDLong) REAL(UTStressTopEDShort) REAL(UTStressTopEDLong)                       \
    REAL(UTStiffLengthEDShort) REAL(UTStiffLengthEDLong) TEXT(UTStiffBasisEDShort)                 \
    TEXT(UTStiffBasisEDLong) REAL(UTAllowDeflEDShort) REAL(UTAllowDeflEDLong)                      \
    REAL(UTDeflPsEDShort) REAL(UTDeflPsEDLong) REAL(UTNetDeflEDShort) REAL(UTNetDeflEDLong)        \
    REAL(UTShearEDShort) REAL(UTShearEDLong) REAL(UTExcessTopCDShort) REAL(UTExcessTopCDLong)      \
    REAL(UTExcessBotCDShort) REAL(UTExcessBotCDLong) REAL(UTExcessDeflCDShort)                     \
    REAL(UTExcessDeflCDLong) REAL(UTExcessShearCDShort) REAL(UTExcessShearCDLong)                  \
    REAL(UTExcessTopEDShort) REAL(UTExcessTopEDLong) REAL(UTExcessBotEDShort)                      \
    REAL(UTExcessBotEDLong) REAL(UTExcessDeflEDShort) REAL(UTExcessDeflEDLong)                     \
    REAL(UTExcessShearEDShort) REAL(UTExcessShearEDLong)                                           \
    /* Line load */                                                                                \
    REAL(LLPrestress) REAL(LLMoment) REAL(LLStressCompression) REAL(LLStressTension)               \
    REAL(ExcessLLCompression) REAL(ExcessLLTension) REAL(UTLLPrestress) REAL(UTLLMoment)           \
    REAL(UTLLStressCompression) REAL(UTLLStressTension) REAL(UTExcessLLCompression)                \
    REAL(UTExcessLLTension)
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
