#include "input/variable_information.h"

#include "common/number_pattern.h"

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>

namespace {

// Defaults are shown with up to three decimals; counts kept as whole numbers show none.
constexpr std::string_view ValuePattern = "#,##0.0##";
constexpr std::string_view CountPattern = "#,##0";

// One line of the "Variable Information:" block. A line with a value is a default: the value
// stands behind the line's text.
struct InfoLine {
    InfoLine(std::string_view text) : text(text) {}
    InfoLine(std::string_view text, double value)
        : text(text), value(value), pattern(ValuePattern) {}
    // A count kept as a whole number.
    InfoLine(std::string_view text, std::int16_t count)
        : text(text), value(count), pattern(CountPattern) {}

    std::string_view text;
    std::optional<double> value;
    std::string_view pattern;
};

enum class Label { Required, Optional };

void AppendBold(StyledText& box, std::string text) {
    Append(box, StyledRun{std::move(text), true});
}

void AppendRegular(StyledText& box, std::string text) {
    Append(box, StyledRun{std::move(text), false});
}

void AppendParagraphs(StyledText& box, std::initializer_list<std::string_view> paragraphs) {
    for (const std::string_view paragraph : paragraphs) {
        AppendRegular(box, "    " + std::string(paragraph) + "\n\n");
    }
}

// Title, description and, where the variable has one, the block of its type and limits. A
// topic with no block lines ends after its description.
StyledText Topic(std::string_view title, std::initializer_list<std::string_view> paragraphs,
                 std::initializer_list<InfoLine> lines = {}) {
    StyledText box;
    AppendBold(box, std::string(title) + "\n\n");
    AppendParagraphs(box, paragraphs);
    if (lines.size() != 0) {
        AppendBold(box, "Variable Information:\n");
    }
    for (const InfoLine& line : lines) {
        std::string text(line.text);
        if (line.value) {
            text += FormatNumber(*line.value, line.pattern);
        }
        AppendRegular(box, text + "\n");
    }
    return box;
}

// A free text field: its block gives the type and the most characters it takes.
StyledText TextTopic(std::string_view title, Label label,
                     std::initializer_list<std::string_view> paragraphs, std::string_view field) {
    const std::string shownTitle =
        std::string(title) + (label == Label::Optional ? " (Optional)" : "");
    const std::string length = "   Maximum Length : " + std::to_string(MaxTextLength(field));
    return Topic(shownTitle, paragraphs, {{"   Input Type: Alphanumeric"}, {length}});
}

// The general topic of a page, shown when the page is selected.
StyledText PageTopicText(std::string_view pageName, std::string_view contents) {
    StyledText box;
    AppendBold(box, std::string(pageName) + " Tab\n\n");
    AppendParagraphs(
        box, {contents,
              "The \"Save ....\" button on the toolbar of the Input window writes the variables "
              "of this tab to a data file of their own, and the \"Open ....\" button reads such a "
              "file back into this tab, so that a set of variables can be reused in other "
              "projects."});
    AppendBold(box, "    Right click on textbox, checkbox or option button labels for more "
                    "information about the variables.");
    return box;
}

struct TextLength {
    std::string_view field;
    int length;
};

constexpr TextLength TextLengths[] = {
    {"ProjName", 60},   {"ProjDate", 60},   {"ProjNum", 60},     {"ProjEng", 30},
    {"ProjGeoRep", 30}, {"ProjGeoNum", 30}, {"ProjGeoDate", 18}, {"MatLabel", 60},
    {"RectLabel", 60},  {"SoilLabel", 60},
};

StyledText BearingTopic(std::string_view title, const DesignRecord& d) {
    return Topic(title,
                 {"The allowable soil bearing pressure is given by the geotechnical engineer. "
                  "The program divides the weight of the foundation and the superimposed load by "
                  "the area that bears on the soil, the bottoms of the beams and the strips of "
                  "slab beside them, and compares the average soil pressure so found with this "
                  "value.",
                  "Expansive and compressible soils each keep their own allowable bearing "
                  "pressure; the one of the selected soil type is used."},
                 {{"   Input Unit: pounds per square foot (psf)"},
                  {"   Input Type: Numeric (Real)"},
                  {"   Program Minimum : >0"},
                  {"   Program Maximum : Not Defined"},
                  {"   Program Default (Expansive) : ", d.ExpBearing},
                  {"   Program Default (Compressive) : ", d.CompBearing}});
}

StyledText StiffnessTopic(const DesignRecord& d) {
    return Topic("Stiffness Coefficient",
                 {"The stiffness coefficient, Cdelta, limits the differential deflection of the "
                  "foundation on expansive soil: the allowable deflection is the stiffness "
                  "length, in inches, divided by Cdelta. The moment of inertia the foundation "
                  "needs for the center lift and edge lift moments follows from it.",
                  "The 3rd Edition PTI Manual gives Cdelta for the center lift and the edge lift "
                  "case by the kind of superstructure; the less a superstructure tolerates "
                  "movement, the larger its coefficient."},
                 {{"   Input Unit: N/A"},
                  {"   Input Type: Numeric (Integer)"},
                  {"   Program Minimum : >0"},
                  {"   Program Maximum : Not Defined"},
                  {"   Program Default (Center) : ", d.DefCenter},
                  {"   Program Default (Edge) : ", d.DefEdge}});
}

StyledText DeflectionTopic(const DesignRecord& d) {
    return Topic("Differential Deflection Coefficient",
                 {"The differential deflection coefficient limits the deflection of the "
                  "foundation on compressible soil: the allowable deflection is the stiffness "
                  "length, in inches, divided by the coefficient, chosen by the kind of "
                  "superstructure as for the stiffness coefficient of expansive soils.",
                  "Center Down applies to the settlement of the center of the foundation. Edge "
                  "Down applies to the expansive soil center lift analysis of Section 6.13.2 of "
                  "the 3rd Edition PTI Manual and is entered only when that analysis is checked "
                  "on the Soil Properties Tab."},
                 {{"   Input Unit: N/A"},
                  {"   Input Type: Numeric (Integer)"},
                  {"   Program Minimum : >0"},
                  {"   Program Maximum : Not Defined"},
                  {"   Program Default (Center Down) : ", d.DefSettle},
                  {"   Program Default (Edge Down) : ", d.DefCLSettle}});
}

} // namespace

int MaxTextLength(std::string_view field) {
    for (const TextLength& entry : TextLengths) {
        if (entry.field == field) {
            return entry.length;
        }
    }
    return 0;
}

StyledText MoreInfoProjectInfo(int topic, const DesignRecord&) {
    switch (topic) {
    case 0:
        return TextTopic("Project Name", Label::Required,
                         {"The Project Name identifies the project for which the foundation is "
                          "designed, such as the name of the development or the address of the "
                          "lot. It is printed in the header of all printed reports."},
                         "ProjName");
    case 1:
        return TextTopic("Project Date", Label::Required,
                         {"The Project Date is the date of the design. It is free text, so any "
                          "form of date can be typed; the Today button enters the current date. "
                          "It is printed in the header of all printed reports."},
                         "ProjDate");
    case 2:
        return TextTopic("Project Number", Label::Required,
                         {"The Project Number is the engineer's job or file number of the "
                          "project. It is printed in the header of all printed reports."},
                         "ProjNum");
    case 3:
        return TextTopic("Project Engineer", Label::Required,
                         {"The Project Engineer is the engineer responsible for the design of the "
                          "foundation. The name is printed in the header of all printed reports."},
                         "ProjEng");
    case 4:
        return TextTopic(
            "Geotechnical Report Source", Label::Required,
            {"The Geotechnical Report Source names the geotechnical engineer or firm whose "
             "report gives the soil properties of the design: the edge moisture variation "
             "distance em and the differential soil movement ym of expansive soils, the expected "
             "settlement of compressible soils and the allowable bearing pressure. It is printed "
             "in the header of all printed reports."},
            "ProjGeoRep");
    case 5:
        return TextTopic("Geotechnical Report Number", Label::Required,
                         {"The Geotechnical Report Number is the number under which the "
                          "geotechnical engineer issued the report. It is printed in the header "
                          "of all printed reports."},
                         "ProjGeoNum");
    case 6:
        return TextTopic("Geotechnical Report Date", Label::Required,
                         {"The Geotechnical Report Date is the date of the geotechnical report. "
                          "It is printed in the header of all printed reports."},
                         "ProjGeoDate");
    case 7:
        return Topic("Perform Uniform Thickness Foundation Analysis",
                     {"When checked, the program also analyzes a uniform thickness foundation "
                      "equivalent to the ribbed foundation described on the other tabs, as "
                      "Section 4.5.3 of the 3rd Edition PTI Manual allows. The thickness, tendons "
                      "and eccentricity of the uniform thickness slab are derived from the "
                      "finished ribbed design, whose moments and shears it takes over.",
                      "The equivalence holds only for a ribbed foundation that complies with the "
                      "manual: when the ribbed foundation has PTI exceptions, the uniform "
                      "thickness analysis is reported as invalid. A uniform thickness foundation "
                      "should be at least 7.5 inches thick unless a continuous stiffening beam is "
                      "provided along the entire perimeter."});
    case PageTopic:
        return PageTopicText("Project Information",
                             "The Project Information Tab contains variables used to identify the "
                             "project and the geotechnical report that the soil properties come "
                             "from, and the choice of a uniform thickness foundation analysis.");
    default:
        return {};
    }
}

StyledText MoreInfoMaterialProp(int topic, const DesignRecord& d) {
    switch (topic) {
    case 0:
        return TextTopic("Material Label", Label::Optional,
                         {"The Material Label can be used to identify a unique set of material "
                          "properties, which can be used as part of the file name when saving the "
                          "screen."},
                         "MatLabel");
    case 1:
        return Topic("Concrete Strength",
                     {"The Concrete Strength is the specified 28-day compressive strength of the "
                      "concrete, f'c. The allowable flexural tension and compression stresses and "
                      "the allowable shear stress of the concrete are derived from it.",
                      "Section 7.1 of the 3rd Edition PTI Manual calls for a 28-day compressive "
                      "strength of at least 2,500 psi; a lower strength is reported as a PTI "
                      "exception."},
                     {{"   Input Unit: pounds per square inch (psi)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : > 0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.Fpc}});
    case 2:
        return Topic("Concrete Creep Modulus",
                     {"The Concrete Creep Modulus, Ecr, is the long-term modulus of elasticity of "
                      "the concrete, reduced from the instantaneous modulus to allow for creep "
                      "under sustained load. It enters the relative stiffness length Beta and the "
                      "moment of inertia that the foundation needs to limit its differential "
                      "deflection."},
                     {{"   Input Unit: pounds per square inch (psi)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : > 0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.Ec}});
    case 3:
        return Topic("Concrete Unit Weight",
                     {"The Concrete Unit Weight gives the weight of the foundation. The weight "
                      "adds to the superimposed load in the soil bearing check, and the subgrade "
                      "friction that resists the shortening of the slab under prestress is "
                      "calculated from it."},
                     {{"   Input Unit: pounds per cubic foot (pcf)"},
                      {"   Type: Numeric (Real)"},
                      {"   Program Minimum : > 0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.UW}});
    case 4:
        return Topic("Tendon Strength",
                     {"The Tendon Strength is the specified ultimate tensile strength of the "
                      "prestressing steel, fpu. The effective stress in a tendon is taken as 0.7 "
                      "times fpu less the Prestress Loss entered with the loads."},
                     {{"   Input Unit: kips per square inch (ksi)"},
                      {"   Type: Numeric (Real)"},
                      {"   Program Minimum : > 0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.Fpu}});
    case 5:
        return Topic("Tendon Diameter",
                     {"Select the nominal diameter of the seven-wire strand used for the slab and "
                      "beam tendons: 3/8, 7/16 or 1/2 inch, with areas of 0.085, 0.115 and 0.153 "
                      "square inches. The area gives the force of each tendon, and half the "
                      "diameter places the tendon against its cover.",
                      "For any other tendon select \"Other\" and enter the cross-sectional area of "
                      "one tendon; the program works out its diameter from the area."},
                     {{"   Program Default : 1/2\" diameter"},
                      {"   Input Unit: square inch (in^2)"},
                      {"   Type: Numeric (Real)"},
                      {"   Program Minimum : > 0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.TendArea}});
    case PageTopic:
        return PageTopicText("Material Properties",
                             "The Material Properties Tab contains variables used to define the "
                             "properties of the concrete and tendons.");
    default:
        return {};
    }
}

StyledText MoreInfoSlabProp(int topic, const DesignRecord& d) {
    switch (topic) {
    case 0:
        return TextTopic("Rectangle Label", Label::Optional,
                         {"The Rectangle Label can be used to identify the rectangle of the "
                          "foundation that is designed, which can be used as part of the file "
                          "name when saving the screen. A foundation of irregular shape is "
                          "divided into overlapping rectangles, each designed by itself."},
                         "RectLabel");
    case 1:
        return Topic("Rectangle Width",
                     {"The Rectangle Width is the short side of the rectangle under design. The "
                      "short direction beams and tendons span the width; the cross-section of the "
                      "long direction is as wide as the rectangle."},
                     {{"   Input Unit: Feet (ft)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : > 0"},
                      {"   Program Maximum : <= Rect Length"},
                      {"   Program Default : ", d.RectWidth}});
    case 2:
        return Topic("Rectangle Length",
                     {"The Rectangle Length is the long side of the rectangle under design, at "
                      "least equal to its width. The long direction beams and tendons span the "
                      "length; the cross-section of the short direction is as wide as the "
                      "rectangle is long."},
                     {{"   Input Unit: Feet (ft)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : >= Rect Width"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.RectLength}});
    case 3:
        return Topic("Slab Thickness",
                     {"The Slab Thickness is the thickness of the slab between the stiffening "
                      "beams. Beam depths are measured from the top of the slab, and the beams "
                      "must extend at least 7 inches below its bottom."},
                     {{"   Input Unit: Inch (in)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.SlabThick}});
    case 4:
        return Topic(
            "Tendons",
            {"Enter the number of slab tendons of each direction. Short direction tendons run "
             "parallel to the Rectangle Width, long direction tendons parallel to the Rectangle "
             "Length. The beam tendons of the Beam Properties Tab are added to them for the "
             "prestress force."},
            {{"   If the number of tendons entered does not result in a minimum effective "
              "prestress "
              "of 50 psi after subgrade friction, a PTI exception is reported."},
             {"   To perform a \"zero-strand\" or conventionally reinforced analysis, set the "
              "number of slab and beam tendons to 0."},
             {"   Input Unit: N/A"},
             {"   Input Type: Numeric (Real)"},
             {"   Program Minimum : 0"},
             {"   Program Maximum : Not Defined"},
             {"   Program Default (Short) : ", d.NumSlabTenShort},
             {"   Program Default (Long)  : ", d.NumSlabTenLong}});
    case 5:
        return Topic("Prestress",
                     {"Enter the average effective prestress wanted in each direction. The "
                      "program finds the number of slab tendons that delivers it over the full "
                      "cross-section after the subgrade friction has been taken off, less the "
                      "beam tendons of the Beam Properties Tab.",
                      "Section 6.7 of the 3rd Edition PTI Manual requires an average effective "
                      "prestress of at least 50 psi after all losses."},
                     {{"   Input Unit: pounds per square inch (psi)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : 0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default (Short) : ", d.StrLvlShort},
                      {"   Program Default (Long)  : ", d.StrLvlLong}});
    case 6:
        return Topic("Prestress Force Ratio",
                     {"Enter the tendon force wanted in each direction per square inch of the "
                      "cross-section, in kips per square inch. The program multiplies the ratio "
                      "by the area of the cross-section and finds the number of slab tendons that "
                      "provides that force and overcomes the subgrade friction, less the beam "
                      "tendons of the Beam Properties Tab."},
                     {{"   Input Unit: N/A"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : 0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default (Short) : ", d.ForceShort},
                      {"   Program Default (Long)  : ", d.ForceLong}});
    case 7:
        return Topic("Average Slab Tendon Cover",
                     {"When checked, enter the average cover of the slab tendons, from the top of "
                      "the slab to the face of the tendon; the slab tendons then lie at the cover "
                      "plus half the tendon diameter below the top. When not checked, the slab "
                      "tendons are placed at mid-depth of the slab."},
                     {{"   Input Unit: Inch (in)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : 0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.SlabTenCov}});
    case PageTopic:
        return PageTopicText("Slab Properties",
                             "The Slab Properties Tab contains variables used to define the size "
                             "of the rectangle under design, the thickness of its slab and the "
                             "slab tendons, given as a number, an average prestress or a "
                             "prestress force ratio.");
    default:
        return {};
    }
}

StyledText MoreInfoBeamProp(int topic, const DesignRecord& d) {
    switch (topic) {
    case 0:
        return Topic("TYPE 1 AND TYPE 2",
                     {"Two types of stiffening beams can be defined in each direction, for "
                      "instance interior beams and deeper or wider perimeter beams. Each type has "
                      "its own quantity, depth, width, tendons and tendon cover; a type that is "
                      "not used is given a quantity of 0.",
                      "Short direction beams span the Rectangle Width and lie side by side along "
                      "the Rectangle Length; long direction beams span the Rectangle Length."});
    case 1:
        return Topic(
            "Quantity",
            {"The number of beams of the type in the direction, perimeter beams included. The "
             "quantities give the average beam spacing and the stiffness of the cross-section."},
            {{"   Input Unit: N/A"},
             {"   Input Type: Numeric (Integer)"},
             {"   Program Minimum : total each dir. > 2"},
             {"   Program Maximum : Not Defined"},
             {"   Program Default (Type I Short) : ", d.QS1},
             {"   Program Default (Type II Short) : ", d.QS2},
             {"   Program Default (Type I Long) : ", d.QL1},
             {"   Program Default (Type II Long) : ", d.QL2}});
    case 2:
        return Topic(
            "Depth",
            {"The total depth of the beam, from the top of the slab to the bottom of the beam. "
             "Beams shall be at least 11 inches deep and extend at least 7 inches below the "
             "bottom of the slab. Where beams of different depths are used in a direction, the "
             "deepest shall be no more than 1.2 times the shallowest."},
            {{"   Section 4.5.2.2 of the 3rd Edition PTI Manual provides more information "
              "on the depth of stiffening beams."},
             {"   Input Unit: Inch (in)"},
             {"   Input Type: Numeric (Real)"},
             {"   Program Minimum : > slab thickness"},
             {"   Program Maximum : Not Defined"},
             {"   Program Default (Type I Short) : ", d.DS1},
             {"   Program Default (Type II Short) : ", d.DS2},
             {"   Program Default (Type I Long) : ", d.DL1},
             {"   Program Default (Type II Long) : ", d.DL2}});
    case 3:
        return Topic(
            "Width",
            {"The width of the beam. Beam widths used in the analysis shall be at least 8 inches "
             "and not more than 14 inches; a wider beam may be built, but no more than 14 inches "
             "of it should be used in the analysis."},
            {{"   Section 4.5.2.3 of the 3rd Edition PTI Manual provides more information "
              "on the width of stiffening beams."},
             {"   Input Unit: Inch (in)"},
             {"   Input Type: Numeric (Real)"},
             {"   Program Minimum : >0"},
             {"   Program Maximum : Not Defined"},
             {"   Program Default (Type I Short) : ", d.WS1},
             {"   Program Default (Type II Short) : ", d.WS2},
             {"   Program Default (Type I Long) : ", d.WL1},
             {"   Program Default (Type II Long) : ", d.WL2}});
    case 4:
        return Topic(
            "Tendons",
            {"The number of tendons in each beam of the type. A fraction is allowed, such as 0.5 "
             "for a tendon in every other beam; the slab and beam tendons of a direction are "
             "rounded to a whole number for the prestress force."},
            {{"   To perform a \"zero-strand\" or conventionally reinforced analysis, set the "
              "number of slab and beam tendons to 0."},
             {"   Input Unit: N/A"},
             {"   Input Type: Numeric (Integer)"},
             {"   Program Minimum : 0"},
             {"   Program Maximum : Not Defined"},
             {"   Program Default (Type I Short) : ", d.TS1},
             {"   Program Default (Type II Short) : ", d.TS2},
             {"   Program Default (Type I Long) : ", d.TL1},
             {"   Program Default (Type II Long) : ", d.TL2}});
    case 5:
        return Topic("Cover",
                     {"The cover of the beam tendons, from the bottom of the beam to the face "
                      "of the tendon. It places the beam tendons and with them the "
                      "eccentricity of the prestress force."},
                     {{"   Input Unit: Inch (in)"},
                      {"   Input Type: Numeric (Integer)"},
                      {"   Program Minimum : 0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default (Type I Short) : ", d.CS1},
                      {"   Program Default (Type II Short) : ", d.CS2},
                      {"   Program Default (Type I Long) : ", d.CL1},
                      {"   Program Default (Type II Long) : ", d.CL2}});
    case 6:
        return Topic("Analysis Beam Spacing Based on Maximum and Minimum Spacings",
                     {"Enter the smallest and the largest beam spacing of each direction. Where "
                      "the largest spacing is more than 1.5 times the smallest, the analysis uses "
                      "0.85 times the largest spacing, per Section 4.5.2.1 of the 3rd Edition PTI "
                      "Manual; otherwise it uses the average spacing of the beams.",
                      "Beam spacing used in the analysis shall be at most 15 feet and at least 6 "
                      "feet."},
                     {{"   Input Unit: feet (ft)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : < average"},
                      {"   Program Maximum : > average"},
                      {"   Program Default (Min. Short) : ", d.SMin},
                      {"   Program Default (Max. Short) : ", d.SMax},
                      {"   Program Default (Min. Long) : ", d.LMin},
                      {"   Program Default (Max. Long) : ", d.LMax}});
    case 7:
        return Topic("Analysis Beam Spacing Based on Average",
                     {"The analysis uses the average beam spacing of each direction: the "
                      "Rectangle Length divided by the number of short direction beams less one, "
                      "and the Rectangle Width divided by the number of long direction beams less "
                      "one. Choose it where the beams are about evenly spaced."});
    case 8:
        return Topic("Six Foot Minimum Beam Spacing",
                     {"When checked, an analysis beam spacing below 6 feet is raised to 6 feet, as "
                      "Section 4.5.2.1 of the 3rd Edition PTI Manual allows, and no PTI exception "
                      "is reported for it. When not checked, a spacing below 6 feet is used as "
                      "calculated and reported as a PTI exception."});
    case PageTopic:
        return PageTopicText("Beam Properties",
                             "The Beam Properties Tab contains variables used to define the "
                             "stiffening beams of the short and long directions, two types in "
                             "each, and the beam spacing used in the analysis.");
    default:
        return {};
    }
}

StyledText MoreInfoSoilProp(int topic, const DesignRecord& d) {
    switch (topic) {
    case 0:
        return TextTopic("Soil Label", Label::Optional,
                         {"The Soil Label can be used to identify a unique set of soil "
                          "properties, such as the site or the geotechnical report they come "
                          "from, which can be used as part of the file name when saving the "
                          "screen."},
                         "SoilLabel");
    case 1:
        return Topic("Change Soil Type",
                     {"Select Expansive Soils for a soil that swells and shrinks with changes of "
                      "its moisture. The foundation is then designed for center lift and edge "
                      "lift from the edge moisture variation distance em and the differential "
                      "soil movement ym of the geotechnical report.",
                      "Select Compressible Soils for a soil that settles under load. The "
                      "foundation is then designed for center down from the expected settlement "
                      "and, when checked, for the expansive soil center lift case as well.",
                      "Each soil type keeps its own allowable bearing pressure."},
                     {{"   Input Unit: pounds per square foot (psf)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default (Expansive) : ", d.ExpBearing},
                      {"   Program Default (Compressive) : ", d.CompBearing}});
    case 2:
    case 5:
        return BearingTopic("Allowable Bearing Pressure", d);
    case 3:
        return Topic("Edge Moisture Variation Distance",
                     {"The edge moisture variation distance, em, is the distance measured inward "
                      "from the edge of the slab over which the moisture content of the soil "
                      "varies. The geotechnical engineer gives it for the center lift and for the "
                      "edge lift case."},
                     {{"   Input Unit: Feet (ft)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default (Center) : ", d.EmCenter},
                      {"   Program Default (Edge) : ", d.EmEdge}});
    case 4:
        return Topic("Differential Soil Movement",
                     {"The differential soil movement, ym, is the difference in vertical movement "
                      "of the soil, swell or shrinkage, across the edge moisture variation "
                      "distance. The geotechnical engineer gives it for the center lift and for "
                      "the edge lift case."},
                     {{"   Input Unit: Inch (in)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default (Center) : ", d.YmCenter},
                      {"   Program Default (Edge) : ", d.YmEdge}});
    case 6:
        return Topic("Expected Settlement",
                     {"The settlement of the compressible soil expected under the foundation, as "
                      "the geotechnical report gives it. The foundation is designed for the case "
                      "in which its center settles more than its edges (center down).",
                      "When the expansive soil center lift analysis is checked, the expected "
                      "settlement also stands for the differential soil movement ym of that "
                      "case."},
                     {{"   Input Unit: inch (in)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.Settle}});
    case 7:
        // One modulus serves both directions; the screen shows it for each.
        return Topic("Soil Modulus of Elasticity",
                     {"The modulus of elasticity of the soil, Es. With the creep modulus of the "
                      "concrete and the moment of inertia of the cross-section it gives the "
                      "relative stiffness length Beta of each direction. Without a value from "
                      "the geotechnical engineer, 1,000 psi is commonly used."},
                     {{"   Input Unit: pounds per square inch (psi)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default (Short) : ", d.Es},
                      {"   Program Default (Long)  : ", d.Es}});
    case 8:
        return Topic("Expansive Soil Center Lift Analysis",
                     {"When checked, the program also performs the expansive soil center lift "
                      "analysis of Section 6.13.2 of the 3rd Edition PTI Manual (see top of page "
                      "46) for the compressible soil, with the edge moisture variation distance "
                      "em taken as 5 feet and the differential soil movement ym taken as the "
                      "Expected Settlement.",
                      "Its results are reported as the edge down case, whose Differential "
                      "Deflection Coefficient (Edge Down) is entered with the loads."});
    case PageTopic:
        return PageTopicText("Soil Properties",
                             "The Soil Properties Tab contains variables used to define the soil "
                             "under the foundation: the soil type, the allowable bearing "
                             "pressure, the edge moisture variation distance and differential "
                             "soil movement of expansive soils or the expected settlement of "
                             "compressible soils, and the soil modulus of elasticity.");
    default:
        return {};
    }
}

StyledText MoreInfoLDPProp(int topic, const DesignRecord& d) {
    switch (topic) {
    case 0:
        return Topic("Average Uniform Superimposed Total Load",
                     {"The average uniform load on the foundation besides its own weight, such as "
                      "the floor finishes, interior walls and live load, spread over the area of "
                      "the rectangle. With the weight of the foundation it makes up the load in "
                      "the soil bearing check."},
                     {{"   Input Unit : pounds per square foot (psf)"},
                      {"   Input Type : Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.ULoad}});
    case 1:
        return Topic("Perimeter Total Load",
                     {"The load along the edge of the foundation from the exterior walls and the "
                      "roof they carry, in pounds per linear foot. It enters the moments and "
                      "shears of the center lift and edge lift cases, or of the compressible soil "
                      "cases."},
                     {{"   Input Unit : pounds per linear foot (plf)"},
                      {"   Input Type : Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.TotalLoad}});
    case 2:
    case 3:
        return StiffnessTopic(d);
    case 4:
    case 5:
        return DeflectionTopic(d);
    case 6:
        return Topic(
            "Subgrade Friction Resistance",
            {"The friction between the slab and the subgrade resists the shortening of the slab "
             "as the tendons are stressed and so takes off part of the prestress force. Select "
             "how the cumulative subgrade friction is calculated.",
             "PTI Manual Method: the friction is the subgrade friction coefficient times half the "
             "weight of the foundation, the slab shortening toward its center from both ends.",
             "\"Full Length Drag Method\": the friction is the subgrade friction coefficient times "
             "the whole weight of the foundation, as if the slab were dragged over its full "
             "length.",
             "User Defined: enter the friction forces, in kips, of the short and long directions: "
             "the maximum subgrade friction, used for the prestress at the center in the shear "
             "calculation, and the subgrade friction at the distance Beta from the edge, used in "
             "the moment calculation."});
    case 7:
        return Topic("Prestress Loss",
                     {"The long-term loss of stress in the tendons from elastic shortening, creep "
                      "and shrinkage of the concrete and relaxation of the steel. The effective "
                      "stress in a tendon is 0.7 times the tendon strength less this loss; the "
                      "subgrade friction is taken off separately."},
                     {{"   Input Unit: kips per square inch (ksi)"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.Prestress}});
    case 8:
        return Topic("Subgrade Friction Coefficient",
                     {"The coefficient of friction, mu, between the slab and the subgrade. With "
                      "the PTI Manual Method and the Full Length Drag Method the subgrade "
                      "friction is this coefficient times the weight of the foundation. Common "
                      "values are 0.75 for a slab cast on polyethylene sheeting and 1.0 for a "
                      "slab cast directly on the soil."},
                     {{"   Input Unit: N/A"},
                      {"   Input Type: Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.SGFC}});
    case 9:
        return Topic("Maximize Edge Lift Case with Smallest Load Intensity",
                     {"When checked, the edge lift case uses the smallest load intensity along "
                      "the perimeter, or the dead load only, in place of the Perimeter Total "
                      "Load, per Section 4.5.4.3 of the 3rd Edition PTI Manual: the lighter the "
                      "perimeter load, the larger the edge lift moment. The center lift case "
                      "keeps the Perimeter Total Load. The choice applies to expansive soils "
                      "only."},
                     {{"   Input Unit : pounds per linear foot (plf)"},
                      {"   Input Type : Numeric (Real)"},
                      {"   Program Minimum : >0"},
                      {"   Program Maximum : Not Defined"},
                      {"   Program Default : ", d.DeadLoad}});
    case PageTopic:
        return PageTopicText("Load, Stiffness or Deflection, & Prestress",
                             "The Load, Stiffness or Deflection, & Prestress Tab contains "
                             "variables used to define the loads on the foundation, the "
                             "stiffness coefficients of expansive soils or the differential "
                             "deflection coefficients of compressible soils, the subgrade "
                             "friction and the loss of prestress.");
    default:
        return {};
    }
}

StyledText MoreInfoLLProp(int topic, const DesignRecord&) {
    switch (topic) {
    case 0:
        return Topic("Line Load Analysis",
                     {"When checked, the program checks whether the slab can carry a line load, "
                      "such as an interior bearing wall, that does not stand on a stiffening "
                      "beam. Enter the line load, the direction it runs parallel to, the "
                      "prestress in the slab at the line load and the modulus of subgrade "
                      "reaction Ks; PTI Table 6.1 on this tab gives recommended Ks values.",
                      "The check is made for the slab of the ribbed foundation and, when the "
                      "uniform thickness foundation is analyzed, for that slab as well."});
    case PageTopic:
        return PageTopicText("Line Load Analysis",
                             "The Line Load Analysis Tab contains variables used to define a line "
                             "load on the slab between stiffening beams and the modulus of "
                             "subgrade reaction used to check the slab under it.");
    default:
        return {};
    }
}

StyledText MoreInfoForPage(int page, int topic, const DesignRecord& defaults) {
    switch (page) {
    case 1:
        return MoreInfoProjectInfo(topic, defaults);
    case 2:
        return MoreInfoMaterialProp(topic, defaults);
    case 3:
        return MoreInfoSlabProp(topic, defaults);
    case 4:
        return MoreInfoBeamProp(topic, defaults);
    case 5:
        return MoreInfoSoilProp(topic, defaults);
    case 6:
        return MoreInfoLDPProp(topic, defaults);
    case 7:
        return MoreInfoLLProp(topic, defaults);
    default:
        return {};
    }
}
