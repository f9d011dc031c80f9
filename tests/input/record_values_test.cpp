#include "input/record_values.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

static void PrintTo(const InputFault& fault, std::ostream* out) {
    *out << "{" << fault.control << ", tab " << fault.tab << ", \"" << fault.message << "\"}";
}

namespace {

// A 90 by 120 ft expansive soil slab, 4 in thick, with four 12 by 24 in beams of type 1 each
// way; the average beam spacing is 120 / 3 = 40 ft short and 90 / 3 = 30 ft long.
DesignRecord ValidRecord() {
    DesignRecord r;
    r.Fpc = 3000;
    r.Ec = 1500000;
    r.UW = 150;
    r.Fpu = 270000;
    r.TendDiam = 0.5;
    r.SlabThick = 4;
    r.RectWidth = 90;
    r.RectLength = 120;
    r.QS1 = r.QL1 = 4;
    r.DS1 = r.DL1 = 24;
    r.WS1 = r.WL1 = 12;
    r.TS1 = r.TL1 = 1;
    r.CS1 = r.CL1 = 3;
    r.SMin = r.LMin = 10;
    r.SMax = r.LMax = 50;
    r.ExpBearing = 2000;
    r.EmCenter = 5;
    r.EmEdge = 3;
    r.YmCenter = 2;
    r.YmEdge = 1;
    r.Es = 1000;
    r.ULoad = 40;
    r.TotalLoad = 1500;
    r.DefCenter = 360;
    r.DefEdge = 720;
    r.SGFC = 0.75;
    return r;
}

void MakeCompressible(DesignRecord& r) {
    r.SoilType = 1;
    r.CompBearing = 1500;
    r.Settle = 1;
    r.DefSettle = 240;
}

struct Case {
    std::string name;
    std::function<void(DesignRecord&)> change;
    std::optional<InputFault> expected;
};

} // namespace

TEST(RecordValues, NewProjectIsStoppedAtTheWidthThenAtTheLength) {
    DesignRecord r = ValidRecord();
    r.RectWidth = 0;
    r.RectLength = 0;
    EXPECT_EQ(FindRecordValueFault(r),
              (InputFault{"txtRectWidth", 3, "Slab Width can not be zero"}));
    r.RectWidth = 90;
    EXPECT_EQ(FindRecordValueFault(r),
              (InputFault{"txtRectLength", 3, "Slab Length must be greater than Slab Width"}));
    r.RectLength = 120;
    EXPECT_EQ(FindRecordValueFault(r), std::nullopt);
}

TEST(RecordValues, OneChangedField) {
    const auto beam = [](std::string control, std::string message) {
        return InputFault{std::move(control), 4, std::move(message)};
    };
    const std::vector<Case> cases = {
        {"valid", [](DesignRecord&) {}, std::nullopt},
        {"first of two faults", [](DesignRecord& r) { r.Fpc = 0, r.Fpu = -1; },
         InputFault{"txtFpc", 2, "Concrete Compressive Strength can not be zero"}},
        {"standard tendon needs no area", [](DesignRecord& r) { r.TendArea = 0; }, std::nullopt},
        {"custom tendon area", [](DesignRecord& r) { r.TendType = 3, r.TendArea = 0; },
         InputFault{"txtTendArea", 2, "Custom Tendon Area can not be zero"}},
        // 43 * 24 / 12 + 4 * 12 / 12 = 86 + 4 = 90 ft of beams across a 90 ft width.
        {"long beams fill the width", [](DesignRecord& r) { r.QL2 = 43, r.WL2 = 24; },
         InputFault{"txtRectWidth", 3,
                    "Slab Width can not be less than or equal to sum of long direction beam "
                    "widths"}},
        {"twelve 1 ft beams across 12 ft",
         [](DesignRecord& r) { r.QL1 = 12, r.RectWidth = 12, r.LMax = 12; },
         InputFault{"txtRectWidth", 3,
                    "Slab Width can not be less than or equal to sum of long direction beam "
                    "widths"}},
        {"long beams just fit, then type 2 is too shallow",
         [](DesignRecord& r) { r.QL2 = 43, r.WL2 = 24, r.RectWidth = 90.01; },
         beam("txtDL2", "Depth of Type 2 Beams in the long direction must be greater than slab "
                        "thickness")},
        {"square slab", [](DesignRecord& r) { r.RectLength = 90; }, std::nullopt},
        {"length below width", [](DesignRecord& r) { r.RectLength = 89.9; },
         InputFault{"txtRectLength", 3, "Slab Length must be greater than Slab Width"}},
        // 58 * 24 / 12 + 4 * 12 / 12 = 116 + 4 = 120 ft.
        {"short beams fill the length", [](DesignRecord& r) { r.QS2 = 58, r.WS2 = 24; },
         InputFault{"txtRectLength", 3,
                    "Slab Length can not be less than or equal to sum of short direction beam "
                    "widths"}},
        {"cover at slab less diameter",
         [](DesignRecord& r) { r.SlabTenCovType = 1, r.SlabTenCov = 3.5; }, std::nullopt},
        {"cover above slab less diameter",
         [](DesignRecord& r) { r.SlabTenCovType = 1, r.SlabTenCov = 3.51; },
         InputFault{"txtSlabTenCov", 3,
                    "Slab Tendon Cover can not be greater than the depth of the slab minus the "
                    "tendon diameter"}},
        {"cover at diameter", [](DesignRecord& r) { r.SlabTenCovType = 1, r.SlabTenCov = 0.5; },
         std::nullopt},
        {"cover below diameter", [](DesignRecord& r) { r.SlabTenCovType = 1, r.SlabTenCov = 0.49; },
         InputFault{"txtSlabTenCov", 3,
                    "Slab Tendon Cover can not be less than the tendon diameter"}},
        {"cover not specified", [](DesignRecord& r) { r.SlabTenCov = 10; }, std::nullopt},
        {"one short beam", [](DesignRecord& r) { r.QS1 = 1; },
         beam("txtQS1", "There must be at least 2 beams in the short direction")},
        {"beam as deep as slab", [](DesignRecord& r) { r.DS1 = 4; },
         beam("txtDS1", "Depth of Type 1 Beams in the short direction must be greater than slab "
                        "thickness")},
        {"negative tendons in no beams", [](DesignRecord& r) { r.QS2 = 4, r.QS1 = 0, r.TS1 = -1; },
         beam("txtTS1", "Number of Tendons in Type 1 Beams in the short direction must be "
                        "greater than or equal to zero")},
        {"tendons without cover", [](DesignRecord& r) { r.CS1 = 0; },
         beam("txtCS1", "Tendon Cover for Type 1 Beams in the short direction must be greater "
                        "than zero")},
        {"no tendons, no cover", [](DesignRecord& r) { r.TS1 = 0, r.CS1 = 0; }, std::nullopt},
        {"cover as deep as beam", [](DesignRecord& r) { r.CS1 = 24; },
         beam("txtCS1", "Tendon Cover for Type 1 Beams in the short direction must be less than "
                        "Type 1 Beam Depth")},
        {"type 2 cover below its beam",
         [](DesignRecord& r) { r.QS2 = 1, r.DS2 = 20, r.WS2 = 12, r.CS2 = 20; },
         beam("txtCS2", "Tendon Cover for Type 2 Beams in the short direction must be less than "
                        "Type 2 Beam Depth")},
        {"one long beam", [](DesignRecord& r) { r.QL1 = 1; },
         beam("txtQL1", "There must be at least 2 beams in the long direction")},
        {"long beam of no width", [](DesignRecord& r) { r.WL1 = 0; },
         beam("txtWL1", "Width of Type 1 Shallow Beams in the long direction must be greater "
                        "than zero")},
        {"average spacing ignores limits",
         [](DesignRecord& r) {
             r.BeamSpacing = 1, r.SMin = 1000, r.SMax = 0, r.LMin = 0, r.LMax = 1000;
         },
         std::nullopt},
        {"minimum at average", [](DesignRecord& r) { r.SMin = 40, r.LMin = 30; }, std::nullopt},
        {"short minimum above average", [](DesignRecord& r) { r.SMin = 40.01; },
         beam("txtSMin", "Short Direction Minimum Beam Spacing can not be greater than the "
                         "average beam spacing")},
        // Five beams of both types leave four gaps of 30 ft.
        {"average counts both types",
         [](DesignRecord& r) { r.QS2 = 1, r.DS2 = 24, r.WS2 = 12, r.SMin = 31, r.SMax = 31; },
         beam("txtSMin", "Short Direction Minimum Beam Spacing can not be greater than the "
                         "average beam spacing")},
        {"short minimum zero", [](DesignRecord& r) { r.SMin = 0; },
         beam("txtSMin", "Short Direction Minimum Beam Spacing can not be zero")},
        {"short maximum at length", [](DesignRecord& r) { r.SMax = 120; }, std::nullopt},
        {"short maximum above length", [](DesignRecord& r) { r.SMax = 120.1; },
         beam("txtSMax", "Short Direction Maximum Beam Spacing can not be greater than the Slab "
                         "Length")},
        {"long minimum above average", [](DesignRecord& r) { r.LMin = 30.01; },
         beam("txtLMin", "Long Direction Minimum Beam Spacing can not be greater than the "
                         "average beam spacing")},
        {"long maximum below average", [](DesignRecord& r) { r.LMax = 29.9; },
         beam("txtLMax", "Long Direction Maximum Beam Spacing can not be less than the average "
                         "beam spacing")},
        {"long maximum above width", [](DesignRecord& r) { r.LMax = 90.1; },
         beam("txtLMax", "Long Direction Maximum Beam Spacing can not be greater than the Slab "
                         "Width")},
        {"expansive bearing", [](DesignRecord& r) { r.ExpBearing = 0; },
         InputFault{"txtExpBearing", 5, "Allowable Bearing Pressure can not be zero"}},
        {"edge moisture distance", [](DesignRecord& r) { r.EmEdge = 0; },
         InputFault{"txtEmEdge", 5, "Edge Moisture Variation Distance can not be zero"}},
        {"compressible soil ignores expansive values",
         [](DesignRecord& r) { MakeCompressible(r), r.ExpBearing = r.EmCenter = r.DefEdge = 0; },
         std::nullopt},
        {"compressible bearing", [](DesignRecord& r) { MakeCompressible(r), r.CompBearing = 0; },
         InputFault{"txtCompBearing", 5, "Allowable Bearing Pressure can not be zero"}},
        {"settlement", [](DesignRecord& r) { MakeCompressible(r), r.Settle = 0; },
         InputFault{"txtSettle", 5, "Expected Settlment can not be zero"}},
        {"dead load unused", [](DesignRecord& r) { r.DeadLoad = 2000; }, std::nullopt},
        {"dead load zero", [](DesignRecord& r) { r.UseDeadLoad = 1; },
         InputFault{"txtDeadLoad", 6, "Dead Load can not be zero"}},
        {"dead load at total", [](DesignRecord& r) { r.UseDeadLoad = 1, r.DeadLoad = 1500; },
         std::nullopt},
        {"dead load above total", [](DesignRecord& r) { r.UseDeadLoad = 1, r.DeadLoad = 1501; },
         InputFault{"txtDeadLoad", 6, "Dead Load can not be greater than the Total Load"}},
        {"center down criterion", [](DesignRecord& r) { MakeCompressible(r), r.DefSettle = 0; },
         InputFault{"txtDefSettle", 6,
                    "Center Down Compressible Soil Differential Deflection Criteria can not be "
                    "zero"}},
        {"edge down not analysed", [](DesignRecord& r) { MakeCompressible(r); }, std::nullopt},
        {"edge down of expansive soil", [](DesignRecord& r) { r.CLSettleState = 1; }, std::nullopt},
        {"edge down criterion", [](DesignRecord& r) { MakeCompressible(r), r.CLSettleState = 1; },
         InputFault{"txtDefCLSettle", 6,
                    "Edge Down Compressible Soil Differential Deflection Criteria can not be "
                    "zero"}},
        {"no line load analysis", [](DesignRecord& r) { r.UDPreLineLoad = -1; }, std::nullopt},
        {"line load", [](DesignRecord& r) { r.LineLoadType = 1; },
         InputFault{"txtLineLoad", 7, "Line Load can not be zero"}},
        {"line load prestress",
         [](DesignRecord& r) { r.LineLoadType = 1, r.LineLoad = 500, r.UDPreLineLoad = -1; },
         InputFault{"txtUDPreLineLoad", 7, "User Defined Prestress can not be less than zero"}},
        {"subgrade modulus", [](DesignRecord& r) { r.LineLoadType = 1, r.LineLoad = 500; },
         InputFault{"txtKs", 7, "Ks can not be zero"}},
        {"line load complete",
         [](DesignRecord& r) { r.LineLoadType = 1, r.LineLoad = 500, r.Ks = 100; }, std::nullopt},
    };
    for (const Case& c : cases) {
        DesignRecord r = ValidRecord();
        c.change(r);
        EXPECT_EQ(FindRecordValueFault(r), c.expected) << c.name;
    }
}
