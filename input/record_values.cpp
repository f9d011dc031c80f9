#include "input/record_values.h"

#include "engine/checked_math.h"
#include "engine/tendon_size.h"

#include <string>
#include <string_view>
#include <utility>

namespace {

constexpr int MaterialTab = 2;
constexpr int SlabTab = 3;
constexpr int BeamTab = 4;
constexpr int SoilTab = 5;
constexpr int LoadTab = 6;
constexpr int LineLoadTab = 7;

InputFault Fault(std::string control, int tab, std::string message) {
    return InputFault{std::move(control), tab, std::move(message)};
}

// One beam group of one direction as the checks see it. `suffix` names its controls ("S1"),
// `type` and `direction` go into the messages.
struct BeamGroup {
    std::string_view suffix;
    std::string_view type;      // "Type 1"
    std::string_view direction; // "short direction"
    int quantity = 0;
    double depth = 0.0;
    double width = 0.0;
    double tendons = 0.0;
    double cover = 0.0;
};

// The five checks of one beam group. Depth, width and cover are only asked of a group that has
// beams; a negative tendon count is refused whatever the quantity.
std::optional<InputFault> FindBeamGroupFault(const BeamGroup& g, double slabThick) {
    const std::string suffix(g.suffix);
    const std::string type(g.type);
    const std::string direction(g.direction);
    if (g.quantity > 0 && g.depth <= slabThick) {
        return Fault("txtD" + suffix, BeamTab,
                     "Depth of " + type + " Beams in the " + direction +
                         " must be greater than slab thickness");
    }
    if (g.quantity > 0 && g.width <= 0) {
        return Fault("txtW" + suffix, BeamTab,
                     "Width of " + type + " Shallow Beams in the " + direction +
                         " must be greater than zero");
    }
    if (g.tendons < 0) {
        return Fault("txtT" + suffix, BeamTab,
                     "Number of Tendons in " + type + " Beams in the " + direction +
                         " must be greater than or equal to zero");
    }
    if (g.quantity > 0 && g.tendons > 0 && g.cover <= 0) {
        return Fault("txtC" + suffix, BeamTab,
                     "Tendon Cover for " + type + " Beams in the " + direction +
                         " must be greater than zero");
    }
    if (g.quantity > 0 && g.cover >= g.depth) {
        return Fault("txtC" + suffix, BeamTab,
                     "Tendon Cover for " + type + " Beams in the " + direction +
                         " must be less than " + type + " Beam Depth");
    }
    return std::nullopt;
}

std::optional<InputFault> FindMaterialFault(const DesignRecord& r) {
    if (r.Fpc <= 0) {
        return Fault("txtFpc", MaterialTab, "Concrete Compressive Strength can not be zero");
    }
    if (r.Ec <= 0) {
        return Fault("txtEc", MaterialTab, "Concrete Creep Modulus can not be zero");
    }
    if (r.UW <= 0) {
        return Fault("txtUW", MaterialTab, "Concrete Unit Weight can not be zero");
    }
    if (r.Fpu <= 0) {
        return Fault("txtFpu", MaterialTab, "Tendon Strength can not be zero");
    }
    if (r.TendType == 3 && r.TendArea <= 0) {
        return Fault("txtTendArea", MaterialTab, "Custom Tendon Area can not be zero");
    }
    return std::nullopt;
}

// Lengths of the rectangle are in feet and beam widths in inches.
std::optional<InputFault> FindSlabFault(const DesignRecord& r) {
    if (r.SlabThick <= 0) {
        return Fault("txtSlabThick", SlabTab, "Slab Thickness can not be zero");
    }
    if (r.RectWidth <= 0) {
        return Fault("txtRectWidth", SlabTab, "Slab Width can not be zero");
    }
    // The long direction beams lie side by side across the width.
    if (r.QL2 * r.WL2 / 12 + r.QL1 * r.WL1 / 12 >= r.RectWidth) {
        return Fault("txtRectWidth", SlabTab,
                     "Slab Width can not be less than or equal to sum of long direction beam "
                     "widths");
    }
    // Asked before the zero length, so a zero length is reported as shorter than the width.
    if (r.RectLength < r.RectWidth) {
        return Fault("txtRectLength", SlabTab, "Slab Length must be greater than Slab Width");
    }
    if (r.RectLength <= 0) {
        return Fault("txtRectLength", SlabTab, "Slab Length can not be zero");
    }
    if (r.QS2 * r.WS2 / 12 + r.QS1 * r.WS1 / 12 >= r.RectLength) {
        return Fault("txtRectLength", SlabTab,
                     "Slab Length can not be less than or equal to sum of short direction beam "
                     "widths");
    }
    if (r.SlabTenCovType == 1 && r.SlabTenCov > r.SlabThick - r.TendDiam) {
        return Fault("txtSlabTenCov", SlabTab,
                     "Slab Tendon Cover can not be greater than the depth of the slab minus the "
                     "tendon diameter");
    }
    if (r.SlabTenCovType == 1 && r.SlabTenCov < r.TendDiam) {
        return Fault("txtSlabTenCov", SlabTab,
                     "Slab Tendon Cover can not be less than the tendon diameter");
    }
    return std::nullopt;
}

std::optional<InputFault> FindBeamFault(const DesignRecord& r) {
    if (r.QS1 + r.QS2 < 2) {
        return Fault("txtQS1", BeamTab, "There must be at least 2 beams in the short direction");
    }
    std::optional<InputFault> fault;
    if ((fault = FindBeamGroupFault(
             {"S1", "Type 1", "short direction", r.QS1, r.DS1, r.WS1, r.TS1, r.CS1},
             r.SlabThick))) {
        return fault;
    }
    if ((fault = FindBeamGroupFault(
             {"S2", "Type 2", "short direction", r.QS2, r.DS2, r.WS2, r.TS2, r.CS2},
             r.SlabThick))) {
        return fault;
    }
    if (r.QL1 + r.QL2 < 2) {
        return Fault("txtQL1", BeamTab, "There must be at least 2 beams in the long direction");
    }
    if ((fault = FindBeamGroupFault(
             {"L1", "Type 1", "long direction", r.QL1, r.DL1, r.WL1, r.TL1, r.CL1}, r.SlabThick))) {
        return fault;
    }
    if ((fault = FindBeamGroupFault(
             {"L2", "Type 2", "long direction", r.QL2, r.DL2, r.WL2, r.TL2, r.CL2}, r.SlabThick))) {
        return fault;
    }

    // With the average spacing the limits are not used. The beams of a direction stand at both
    // edges with equal gaps between; the counts checked above leave at least one gap, so the
    // divisions below never divide by zero.
    if (r.BeamSpacing != 0) {
        return std::nullopt;
    }
    const double shortAverage = r.RectLength / (r.QS1 + r.QS2 - 1);
    const double longAverage = r.RectWidth / (r.QL1 + r.QL2 - 1);
    if (r.SMin > shortAverage) {
        return Fault("txtSMin", BeamTab,
                     "Short Direction Minimum Beam Spacing can not be greater than the average "
                     "beam spacing");
    }
    if (r.SMin <= 0) {
        return Fault("txtSMin", BeamTab, "Short Direction Minimum Beam Spacing can not be zero");
    }
    if (r.SMax < shortAverage) {
        return Fault("txtSMax", BeamTab,
                     "Short Direction Maximum Beam Spacing can not be less than the average beam "
                     "spacing");
    }
    if (r.SMax > r.RectLength) {
        return Fault("txtSMax", BeamTab,
                     "Short Direction Maximum Beam Spacing can not be greater than the Slab "
                     "Length");
    }
    if (r.LMin > longAverage) {
        return Fault("txtLMin", BeamTab,
                     "Long Direction Minimum Beam Spacing can not be greater than the average "
                     "beam spacing");
    }
    if (r.LMin <= 0) {
        return Fault("txtLMin", BeamTab, "Long Direction Minimum Beam Spacing can not be zero");
    }
    if (r.LMax < longAverage) {
        return Fault("txtLMax", BeamTab,
                     "Long Direction Maximum Beam Spacing can not be less than the average beam "
                     "spacing");
    }
    if (r.LMax > r.RectWidth) {
        return Fault("txtLMax", BeamTab,
                     "Long Direction Maximum Beam Spacing can not be greater than the Slab Width");
    }
    return std::nullopt;
}

// Soil type 0 is expansive, 1 compressible.
std::optional<InputFault> FindSoilFault(const DesignRecord& r) {
    const bool expansive = r.SoilType == 0;
    if (expansive && r.ExpBearing <= 0) {
        return Fault("txtExpBearing", SoilTab, "Allowable Bearing Pressure can not be zero");
    }
    if (expansive && r.EmCenter <= 0) {
        return Fault("txtEmCenter", SoilTab, "Edge Moisture Variation Distance can not be zero");
    }
    if (expansive && r.EmEdge <= 0) {
        return Fault("txtEmEdge", SoilTab, "Edge Moisture Variation Distance can not be zero");
    }
    if (expansive && r.YmCenter <= 0) {
        return Fault("txtYmCenter", SoilTab, "Differential Soil Movement can not be zero");
    }
    if (expansive && r.YmEdge <= 0) {
        return Fault("txtYmEdge", SoilTab, "Differential Soil Movement can not be zero");
    }
    if (r.SoilType == 1 && r.CompBearing <= 0) {
        return Fault("txtCompBearing", SoilTab, "Allowable Bearing Pressure can not be zero");
    }
    if (r.SoilType == 1 && r.Settle <= 0) {
        return Fault("txtSettle", SoilTab, "Expected Settlment can not be zero");
    }
    if (r.Es <= 0) {
        return Fault("txtEs", SoilTab, "Soil Modulus of Elasticity can not be zero");
    }
    return std::nullopt;
}

std::optional<InputFault> FindLoadFault(const DesignRecord& r) {
    if (r.ULoad <= 0) {
        return Fault("txtULoad", LoadTab, "Slab Uniform Load can not be zero");
    }
    if (r.TotalLoad <= 0) {
        return Fault("txtTotalLoad", LoadTab, "Perimeter Load can not be zero");
    }
    if (r.UseDeadLoad == 1 && r.DeadLoad <= 0) {
        return Fault("txtDeadLoad", LoadTab, "Dead Load can not be zero");
    }
    if (r.UseDeadLoad == 1 && r.DeadLoad > r.TotalLoad) {
        return Fault("txtDeadLoad", LoadTab, "Dead Load can not be greater than the Total Load");
    }
    const bool expansive = r.SoilType == 0;
    if (expansive && r.DefCenter <= 0) {
        return Fault("txtDefCenter", LoadTab, "Center Lift Stiffness Coefficient can not be zero");
    }
    if (expansive && r.DefEdge <= 0) {
        return Fault("txtDefEdge", LoadTab, "Edge Lift Stiffness Coefficient can not be zero");
    }
    if (!expansive && r.DefSettle <= 0) {
        return Fault("txtDefSettle", LoadTab,
                     "Center Down Compressible Soil Differential Deflection Criteria can not be "
                     "zero");
    }
    // The edge down case of a compressible soil is analysed only when asked for.
    if (!expansive && r.CLSettleState == 1 && r.DefCLSettle <= 0) {
        return Fault("txtDefCLSettle", LoadTab,
                     "Edge Down Compressible Soil Differential Deflection Criteria can not be "
                     "zero");
    }
    if (r.SGFC <= 0) {
        return Fault("txtSGFC", LoadTab, "Subgrade Friction Coefficient can not be zero");
    }
    return std::nullopt;
}

std::optional<InputFault> FindLineLoadFault(const DesignRecord& r) {
    if (r.LineLoadType != 1) {
        return std::nullopt;
    }
    if (r.LineLoad <= 0) {
        return Fault("txtLineLoad", LineLoadTab, "Line Load can not be zero");
    }
    if (r.UDPreLineLoad < 0) {
        return Fault("txtUDPreLineLoad", LineLoadTab,
                     "User Defined Prestress can not be less than zero");
    }
    if (r.Ks <= 0) {
        return Fault("txtKs", LineLoadTab, "Ks can not be zero");
    }
    return std::nullopt;
}

} // namespace

// The checks are loose in places on purpose: "can not be zero" also covers negative values, a
// negative tendon count is refused for a group of no beams, and the minimum spacing is never
// compared with the maximum.
std::optional<InputFault> FindRecordValueFault(const DesignRecord& record) {
    std::optional<InputFault> fault;
    if ((fault = FindMaterialFault(record)) || (fault = FindSlabFault(record)) ||
        (fault = FindBeamFault(record)) || (fault = FindSoilFault(record)) ||
        (fault = FindLoadFault(record)) || (fault = FindLineLoadFault(record))) {
        return fault;
    }
    return std::nullopt;
}

std::optional<InputFault> FindReadyRecordValueFault(DesignRecord& record) {
    try {
        ApplyTendonSize(record);
    } catch (const ArithmeticFault&) {
        return std::nullopt;
    }
    return FindRecordValueFault(record);
}
