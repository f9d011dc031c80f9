#include "input/number_entry.h"

#include "input/input_events.h"

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Moves `at` past the digits from there; gives whether there was at least one.
bool SkipDigits(std::string_view text, std::size_t& at) {
    const std::size_t start = at;
    while (at < text.size() && IsDigit(text[at])) {
        ++at;
    }
    return at > start;
}

void SkipBlanks(std::string_view text, std::size_t& at) {
    while (at < text.size() && text[at] == ' ') {
        ++at;
    }
}

void SkipSign(std::string_view text, std::size_t& at) {
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
        ++at;
    }
}

bool IsBeamQuantity(std::string_view box) {
    return box == "txtQS1" || box == "txtQS2" || box == "txtQL1" || box == "txtQL2";
}

struct Caption {
    std::string_view box;
    std::string_view caption;
};

// The captions of the number boxes, in page order.
constexpr Caption Captions[] = {
    {"txtFpc", "Concrete Strength (PSI)"},
    {"txtEc", "Concrete Creep Modulus (PSI)"},
    {"txtUW", "Concrete Unit Weight (PCF)"},
    {"txtFpu", "Tendon Strength (KSI)"},
    {"txtTendArea", "Tendon Diameter, Other: Area (Sq. In)"},
    {"txtRectWidth", "Rectangle Width (Feet)"},
    {"txtRectLength", "Rectangle Length (Feet)"},
    {"txtSlabThick", "Slab Thickness (Inches)"},
    {"txtNumSlabTenShort", "Tendons, Short Direction"},
    {"txtNumSlabTenLong", "Tendons, Long Direction"},
    {"txtStrLvlShort", "Prestress (PSI), Short Direction"},
    {"txtStrLvlLong", "Prestress (PSI), Long Direction"},
    {"txtForceShort", "Prestress Force Ratio, Short Direction"},
    {"txtForceLong", "Prestress Force Ratio, Long Direction"},
    {"txtSlabTenCov", "Average Slab Tendon Cover (Inch)"},
    {"txtSMin", "Minimum Spacing, Short"},
    {"txtLMin", "Minimum Spacing, Long"},
    {"txtSMax", "Maximum Spacing, Short"},
    {"txtLMax", "Maximum Spacing, Long"},
    {"txtExpBearing", "Allowable Bearing Pressure, (PSF), Expansive Soils"},
    {"txtEmCenter", "Edge Moisture Variation Distance, em, (FT), Center"},
    {"txtEmEdge", "Edge Moisture Variation Distance, em, (FT), Edge"},
    {"txtYmCenter", "Differential Soil Movement, ym, (in), Center"},
    {"txtYmEdge", "Differential Soil Movement, ym, (in), Edge"},
    {"txtCompBearing", "Allowable Bearing Pressure, (PSF), Compressible Soils"},
    {"txtSettle", "Expected Settlement, (in)"},
    {"txtEs", "Soil Modulus of Elasticity, Es, (psi)"},
    {"txtULoad", "Average Uniform Superimposed Total Load (psf)"},
    {"txtTotalLoad", "Perimeter Total Load (lb/ft)"},
    {"txtDeadLoad", "Smallest Load Intensity (lb/ft)"},
    {"txtDefCenter", "Stiffness Coefficient, Center Lift"},
    {"txtDefEdge", "Stiffness Coefficient, Edge Lift"},
    {"txtDefSettle", "Differential Deflection Coefficient, Center Down"},
    {"txtDefCLSettle", "Differential Deflection Coefficient, Edge Down"},
    {"txtUDSS", "Maximum Subgrade Friction Used For Shear Calc. (K), Short"},
    {"txtUDLS", "Maximum Subgrade Friction Used For Shear Calc. (K), Long"},
    {"txtUDSM", "Subgrade Friction At Beta Used For Moment Calc. (K), Short"},
    {"txtUDLM", "Subgrade Friction At Beta Used For Moment Calc. (K), Long"},
    {"txtPrestress", "Prestress Loss (ksi)"},
    {"txtSGFC", "Subgrade Friction Coefficient"},
    {"txtLineLoad", "Line Load, lb/ft"},
    {"txtUDPreLineLoad", "Use User-Defined Prestress (psi)"},
    {"txtKs", "Ks, lb/in^3"},
};

// The beam grid (its boxes are `txt`, row letter, direction, type): row captions by letter, columns
// by direction and type.
std::string BeamCaption(std::string_view box) {
    if (box.size() != 6 || !box.starts_with("txt")) {
        return {};
    }
    const char row = box[3];
    const char direction = box[4];
    const char type = box[5];
    if ((direction != 'S' && direction != 'L') || (type != '1' && type != '2')) {
        return {};
    }
    std::string caption;
    switch (row) {
    case 'Q':
        caption = "Beam Quantity";
        break;
    case 'D':
        caption = "Beam Depth (IN)";
        break;
    case 'W':
        caption = "Beam Width (IN)";
        break;
    case 'T':
        caption = "Beam Tendons";
        break;
    case 'C':
        caption = "Beam Cover (IN)";
        break;
    default:
        return {};
    }
    caption += direction == 'S' ? ", Short Direction" : ", Long Direction";
    caption += type == '1' ? " Type 1" : " Type 2";
    return caption;
}

} // namespace

bool AcceptsNumberText(std::string_view box, std::string_view text) {
    if (!box.starts_with("txt") || IsTextField(box)) {
        return true;
    }
    const bool whole = IsBeamQuantity(box);
    std::size_t at = 0;
    SkipBlanks(text, at);
    SkipSign(text, at);
    bool digits = SkipDigits(text, at);
    if (!whole && at < text.size() && text[at] == '.') {
        ++at;
        digits = SkipDigits(text, at) || digits;
    }
    if (!whole && digits && at < text.size() &&
        (text[at] == 'E' || text[at] == 'e' || text[at] == 'D' || text[at] == 'd')) {
        ++at;
        SkipSign(text, at);
        SkipDigits(text, at);
    }
    SkipBlanks(text, at);
    return at == text.size();
}

std::string FieldCaption(std::string_view box) {
    for (const Caption& entry : Captions) {
        if (entry.box == box) {
            return std::string(entry.caption);
        }
    }
    if (std::string beam = BeamCaption(box); !beam.empty()) {
        return beam;
    }
    return std::string(box);
}

std::string UnreadableFieldMessage(const UnreadableField& error, std::string_view text) {
    const std::string quoted = "\"" + std::string(text) + "\"";
    if (error.number() == 5) {
        return FieldCaption(error.box()) + ": " + quoted + " is not an area a tendon can have.";
    }
    if (error.number() == 6) {
        return FieldCaption(error.box()) + ": the number " + quoted + " is too large.";
    }
    return FieldCaption(error.box()) + ": " + quoted + " is not a number.";
}
