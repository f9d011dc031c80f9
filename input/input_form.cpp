#include "input/input_form.h"

#include "input/variable_information.h"

#include <array>

namespace {

const std::array<std::string_view, InputPageCount> PageCaptions = {
    "Project Information", "Material Properties", "Slab Properties",
    "Beam Properties",     "Soil Properties",     "Load, Stiffness or Deflection, && Prestress",
    "Line Load Analysis",
};

const std::array<PageToolTips, InputPageCount - 1> ToolTips = {{
    {"Open Project Information File", "Save Project Information File"},
    {"Open Material Properties File", "Save Material Properties File"},
    {"Open Slab Properties File", "Save Slab Properties File"},
    {"Open Beam Properties File", "Save Beam Properties File"},
    {"Open Soil Properties File", "Save Soil Properties File"},
    {"Open Load, Deflect. && Prestress File", "Save Load, Deflect. && Prestress File"},
}};

// Adds the controls of one container in the order they are told.
class PageBuilder {
  public:
    PageBuilder(FormModel& form, std::string parent) : m_form(form), m_parent(std::move(parent)) {}

    // A caption without a field: a section heading, a row or column heading, a reference text.
    void Label(std::string name, std::string caption) {
        Control control = Make(std::move(name));
        control.caption = std::move(caption);
        control.tabStop = false;
        m_form.add(std::move(control));
    }

    // A text box with the label before it; an empty label name adds none.
    void Text(std::string name, int tabIndex, std::string label = {}, std::string caption = {}) {
        if (!label.empty()) {
            Label(std::move(label), std::move(caption));
        }
        Control control = Make(name);
        control.tabIndex = tabIndex;
        control.maxLength = MaxTextLength(std::string_view(name).substr(3));
        m_form.add(std::move(control));
    }

    // A text box with its spin `ud...` beside it.
    void SpinText(const std::string& field, int tabIndex, std::string label = {},
                  std::string caption = {}) {
        Text("txt" + field, tabIndex, std::move(label), std::move(caption));
        Control spin = Make("ud" + field);
        spin.tabStop = false;
        m_form.add(std::move(spin));
    }

    // A check box, an option button or a button: its caption is its own.
    void Captioned(std::string name, int tabIndex, std::string caption) {
        Control control = Make(std::move(name));
        control.caption = std::move(caption);
        control.tabIndex = tabIndex;
        m_form.add(std::move(control));
    }

    void Options(std::string_view group, int firstTabIndex,
                 std::initializer_list<std::string_view> captions) {
        int index = 0;
        for (const std::string_view caption : captions) {
            Captioned(ArrayName(group, index), firstTabIndex + index, std::string(caption));
            ++index;
        }
    }

    void List(std::string name, int tabIndex, std::vector<std::string> items) {
        Control control = Make(std::move(name));
        control.tabIndex = tabIndex;
        control.items = std::move(items);
        m_form.add(std::move(control));
    }

    // A frame inside this container, in front or not.
    void Frame(std::string name, std::string caption, bool inFront) {
        Control control = Make(std::move(name));
        control.caption = std::move(caption);
        control.visible = inFront;
        control.tabStop = false;
        m_form.add(std::move(control));
    }

  private:
    Control Make(std::string name) const {
        Control control;
        control.name = std::move(name);
        control.parent = m_parent;
        return control;
    }

    FormModel& m_form;
    std::string m_parent;
};

void AddProjectPage(FormModel& form) {
    PageBuilder page(form, PageFrame(1));
    page.Label(ArrayName("lblHeading", 0), "Project Information");
    page.Text("txtProjName", 2, ArrayName("lblProjectInfo", 0), "Project Name : ");
    page.Text("txtProjDate", 3, ArrayName("lblProjectInfo", 1), "Project Date : ");
    page.Captioned("cmbDate", 4, "&Today");
    page.Text("txtProjNum", 5, ArrayName("lblProjectInfo", 2), "Project Number : ");
    page.Text("txtProjEng", 6, ArrayName("lblProjectInfo", 3), "Project Engineer : ");
    page.Label(ArrayName("lblHeading", 1), "Geotechnical Information Source");
    page.Text("txtProjGeoRep", 7, ArrayName("lblProjectInfo", 4), "Geotechnical Report Source : ");
    page.Text("txtProjGeoNum", 8, ArrayName("lblProjectInfo", 5), "Geotechnical Report Number : ");
    page.Text("txtProjGeoDate", 9, ArrayName("lblProjectInfo", 6), "Geotechnical Report Date : ");
    page.Captioned("cbFlatSlab", 10, "Perform Uniform Thickness Foundation Analysis");
}

void AddMaterialPage(FormModel& form) {
    PageBuilder page(form, PageFrame(2));
    page.Label(ArrayName("lblHeading", 2), "CONCRETE : ");
    page.Text("txtMatLabel", 20, ArrayName("lblMaterialProp", 0), "Material Label : ");
    page.SpinText("Fpc", 21, ArrayName("lblMaterialProp", 1), "Strength (PSI) : ");
    page.SpinText("Ec", 22, ArrayName("lblMaterialProp", 2), "Creep Modulus (PSI) : ");
    page.SpinText("UW", 23, ArrayName("lblMaterialProp", 3), "Unit Weight (PCF) : ");
    page.Label(ArrayName("lblHeading", 3), "TENDON : ");
    page.SpinText("Fpu", 24, ArrayName("lblMaterialProp", 4), "Strength (KSI) : ");
    page.Frame("fraTendType", "Diameter (Inches)", true);
    PageBuilder tendons(form, "fraTendType");
    tendons.Options("optTendType", 25, {"3/8", "7/16", "1/2", "Other: Area (Sq. In)"});
    tendons.Text("txtTendArea", 29);
}

void AddSlabPage(FormModel& form) {
    PageBuilder page(form, PageFrame(3));
    page.Label(ArrayName("lblHeading", 4), "Rectangle Geometry");
    page.Text("txtRectLabel", 40, ArrayName("lblSlabProp", 0), "Rectangle Label :  ");
    page.SpinText("RectWidth", 41, ArrayName("lblSlabProp", 1), "Rectangle Width (Feet) :");
    page.SpinText("RectLength", 42, ArrayName("lblSlabProp", 2), "Rectangle Length (Feet) :");
    page.Label(ArrayName("lblHeading", 5), "Slab Thickness and Reinforcement");
    page.SpinText("SlabThick", 43, ArrayName("lblSlabProp", 3), "Slab Thickness (Inches) :  ");
    page.Label(ArrayName("lblHeading", 6), "Short Direction");
    page.Label(ArrayName("lblHeading", 7), "Long Direction");
    page.Options("optSlabRefType", 44,
                 {"Tendons : ", "Prestress (PSI) : ", "Prestress Force Ratio:"});
    page.SpinText("NumSlabTenShort", 47);
    page.SpinText("NumSlabTenLong", 48);
    page.SpinText("StrLvlShort", 49);
    page.SpinText("StrLvlLong", 50);
    page.SpinText("ForceShort", 51);
    page.SpinText("ForceLong", 52);
    page.Captioned("cbSlabTenCovType", 53, "Specify Average Slab Tendon Cover (Inch):");
    page.SpinText("SlabTenCov", 54);
}

void AddBeamPage(FormModel& form) {
    PageBuilder page(form, PageFrame(4));
    page.Label(ArrayName("lblHeading", 8), "Rectangle Geometry (WxDxT) :  ");
    page.Label("lblRectGeo", "");
    page.Label(ArrayName("lblHeading", 9), "Beams");
    page.Label(ArrayName("lblHeading", 10), "Short Direction");
    page.Label(ArrayName("lblHeading", 11), "Long Direction");
    const std::array<std::string_view, 5> rows = {
        "Quantity :  ", "Depth (IN) :  ", "Width (IN) :  ", "Tendons :  ", "Cover (IN) :  "};
    for (int row = 0; row < 5; ++row) {
        page.Label(ArrayName("lblBeamProp", row), std::string(rows[row]));
    }
    for (int type = 0; type < 4; ++type) {
        page.Label(ArrayName("lblBeamProp", 5 + type), type % 2 == 0 ? "Type 1" : "Type 2");
    }
    // Down each column: quantity, depth, width, tendons and cover of S1, then S2, L1, L2.
    const std::array<std::string_view, 4> groups = {"S1", "S2", "L1", "L2"};
    const std::string_view letters = "QDWTC";
    int tabIndex = 70;
    for (const std::string_view group : groups) {
        for (const char letter : letters) {
            page.SpinText(std::string(1, letter) + std::string(group), tabIndex++);
        }
    }
    page.Options("optBeamSpacing", 90,
                 {"Analysis Beam Spacing Based on Maximum and Minimum Spacings",
                  "Analysis Beam Spacing Based on Average"});
    page.Label(ArrayName("lblBS", 0), "Minimum Spacing");
    page.Label(ArrayName("lblBS", 1), "Maximum Spacing");
    page.Label(ArrayName("lblBS", 2), "Short");
    page.Label(ArrayName("lblBS", 3), "Long");
    page.Text("txtSMin", 92);
    page.Text("txtLMin", 93);
    page.Text("txtSMax", 94);
    page.Text("txtLMax", 95);
    page.Captioned("cbSixFtRule", 96,
                   "When calculated beam spacing is less than 6.0 FT. use 6.0 FT. Beam Spacing "
                   "per PTI 4.5.2.1");
}

void AddSoilPage(FormModel& form) {
    PageBuilder page(form, PageFrame(5));
    page.Text("txtSoilLabel", 110, ArrayName("lblSoilProp", 0), "Soil Label :  ");
    page.Label(ArrayName("lblSoilProp", 1), "Change Soil Type  :  ");
    page.List("cboSoilType", 111, {"Compressible Soils", "Expansive Soils"});
    page.Frame(ArrayName("fraSoilType", 0),
               "Expansive Soils - Based on PTI's 3rd Edition Manual or Technical Note #12", true);
    page.Frame(ArrayName("fraSoilType", 1), "Compressible Soils ( Assumes center settlement ) ",
               false);
    PageBuilder expansive(form, ArrayName("fraSoilType", 0));
    expansive.SpinText("ExpBearing", 112, ArrayName("lblSoilProp", 2),
                       "Allowable Bearing Pressure, (PSF) :  ");
    expansive.Label(ArrayName("lblSoilProp", 3), "Edge Moisture Variation Distance, em, (FT) :");
    expansive.Label(ArrayName("lblHeading", 12), "Center ");
    expansive.Label(ArrayName("lblHeading", 13), "Edge ");
    expansive.SpinText("EmCenter", 113);
    expansive.SpinText("EmEdge", 114);
    expansive.Label(ArrayName("lblSoilProp", 4), "Differential Soil Movement, ym, (in) :");
    expansive.SpinText("YmCenter", 115);
    expansive.SpinText("YmEdge", 116);
    PageBuilder compressible(form, ArrayName("fraSoilType", 1));
    compressible.SpinText("CompBearing", 117, ArrayName("lblSoilProp", 5),
                          "Allowable Bearing Pressure, (PSF) :  ");
    compressible.SpinText("Settle", 118, ArrayName("lblSoilProp", 6),
                          "Expected Settlement, (in) :");
    compressible.Captioned("cbCLSettleState", 119,
                           "Perform Expansive Soil center lift analysis per Section 6.13.2 in the "
                           "3rd Edition PTI Manual (see  top of page 46).  Em assumed to be 5 "
                           "feet and Ym assumed to be Expected Settlement");
    page.SpinText("Es", 120, ArrayName("lblSoilProp", 7),
                  "Soil Modulus of Elasticity, Es, (psi)   :");
}

void AddLoadPage(FormModel& form) {
    PageBuilder page(form, PageFrame(6));
    page.Label(ArrayName("lblHeading", 14), "Foundation Loads");
    page.SpinText("ULoad", 130, ArrayName("lblLDP", 0),
                  "Average Uniform Superimposed Total Load (psf) :  ");
    page.SpinText("TotalLoad", 131, ArrayName("lblLDP", 1), "Perimeter Total Load (lb/ft) :");
    page.Captioned("cbUseDeadLoad", 132,
                   "Maximize Edge Lift Case with smallest load intensity or dead load only (per "
                   "PTI 4.5.4.3 )");
    page.SpinText("DeadLoad", 133, "lblDeadLoad", "Smallest Load Intensity (lb/ft) :");
    page.Frame(ArrayName("fraDeflect", 0), "Stiffness Coefficient", true);
    page.Frame(ArrayName("fraDeflect", 1), "Differential Deflection Coefficient", false);
    PageBuilder stiffness(form, ArrayName("fraDeflect", 0));
    stiffness.Text("txtDefCenter", 134, ArrayName("lblLDP", 2), "Center Lift :");
    stiffness.Text("txtDefEdge", 135, ArrayName("lblLDP", 3), "Edge Lift :");
    PageBuilder deflection(form, ArrayName("fraDeflect", 1));
    deflection.Text("txtDefSettle", 136, ArrayName("lblLDP", 4), "Center Down :");
    deflection.Text("txtDefCLSettle", 137, ArrayName("lblLDP", 5), "Edge Down :");
    page.Label(ArrayName("lblLDP", 6),
               "Calculate Culmulative Subgrade Friction Resistance Using :");
    page.Options("optSubgradetype", 138,
                 {"PTI Manual Method", "\"Full Length Drag Method\"", "User Defined"});
    page.Label(ArrayName("lblSubgradeType", 0),
               "Maximum Subgrade Friction Used For Shear Calc. (K) :  ");
    page.Label(ArrayName("lblSubgradeType", 1),
               "Subgrade Friction At Beta Used For Moment Calc. (K) :  ");
    page.Label(ArrayName("lblSubgradeType", 2), "Short");
    page.Label(ArrayName("lblSubgradeType", 3), "Long");
    page.Text("txtUDSS", 141);
    page.Text("txtUDLS", 142);
    page.Text("txtUDSM", 143);
    page.Text("txtUDLM", 144);
    page.Label(ArrayName("lblHeading", 15), "Prestress");
    page.SpinText("Prestress", 145, ArrayName("lblLDP", 7), "Prestress Loss (ksi) :");
    page.SpinText("SGFC", 146, ArrayName("lblLDP", 8), "Subgrade Friction Coefficient, \u03bc :");
}

void AddLineLoadPage(FormModel& form) {
    PageBuilder page(form, PageFrame(7));
    page.Captioned("cbLineLoadType", 150, "Perform Line Load Analysis");
    page.Text("txtLineLoad", 151, ArrayName("lblLine", 0), "Line Load, lb/ft :");
    page.Label(ArrayName("lblLine", 1), "Line Load parallels :");
    page.List("cboDirLineLoad", 152, {"Long Direction", "Short Direction"});
    page.Label(ArrayName("lblLine", 2), "Prestress force in slab at location of Line Load :");
    page.Options("optPreLineLoad", 153,
                 {"Use Minimum Effective Prestress", "Use Effective Prestress at Beta",
                  "Use User-Defined Prestress (psi)"});
    page.Text("txtUDPreLineLoad", 156);
    page.Text("txtKs", 157, ArrayName("lblLine", 3), "Ks, lb/in^3 :");
    // The subgrade moduli the manual recommends; text only, nothing reads it.
    const std::array<std::string_view, 9> table = {
        "PTI Recommended Ks values (PTI Table 6.1) :",
        "Type of Subgrade",
        "Ks",
        "Lightly compacted, high plasticity, compressible soil",
        "4",
        "Compacted, low plasticity soil",
        "40",
        "Stiff, compacted, select granular or stabilized fill",
        "400",
    };
    for (std::size_t i = 0; i < table.size(); ++i) {
        page.Label(ArrayName("lblLine", 4 + static_cast<int>(i)), std::string(table[i]));
    }
}

} // namespace

std::string PageCaption(int page) {
    if (page < 1 || page > InputPageCount) {
        return {};
    }
    return std::string(PageCaptions[page - 1]);
}

std::string LoadPageCaption(int soilType) {
    return soilType == 0 ? "Load, Stiffness && Prestress" : "Load, Deflection && Prestress";
}

PageToolTips ToolTipsForPage(int page) {
    if (page < 1 || page > InputPageCount) {
        return {};
    }
    return ToolTips[std::min(page, InputPageCount - 1) - 1];
}

std::string PageFrame(int page) {
    return ArrayName("fraInput", page - 1);
}

FormModel MakeInputForm() {
    FormModel form;
    Control tabs;
    tabs.name = "tabInput";
    tabs.tabStop = false;
    for (int page = 1; page <= InputPageCount; ++page) {
        tabs.items.push_back(PageCaption(page));
    }
    tabs.selectedIndex = 0;
    form.add(std::move(tabs));
    for (int button = 1; button <= 2; ++button) {
        Control tool;
        tool.name = ArrayName("tlbInput", button);
        tool.caption = button == 1 ? "Open" : "Save";
        tool.toolTip = button == 1 ? ToolTipsForPage(1).open : ToolTipsForPage(1).save;
        tool.tabStop = false;
        form.add(std::move(tool));
    }
    Control panel;
    panel.name = "fraMoreInfo";
    panel.caption = "More Information";
    panel.tabStop = false;
    form.add(std::move(panel));
    for (int page = 1; page <= InputPageCount; ++page) {
        Control frame;
        frame.name = PageFrame(page);
        frame.caption = PageCaption(page);
        frame.visible = page == 1;
        frame.tabStop = false;
        form.add(std::move(frame));
    }
    AddProjectPage(form);
    AddMaterialPage(form);
    AddSlabPage(form);
    AddBeamPage(form);
    AddSoilPage(form);
    AddLoadPage(form);
    AddLineLoadPage(form);
    return form;
}

int PageOfControl(const FormModel& form, std::string_view name) {
    // The frames' names are worked out once: the tab stops of a page ask this of every control.
    static const std::array<std::string, InputPageCount> frames = [] {
        std::array<std::string, InputPageCount> names;
        for (int page = 1; page <= InputPageCount; ++page) {
            names[static_cast<std::size_t>(page - 1)] = PageFrame(page);
        }
        return names;
    }();
    std::string_view container = name;
    while (form.has(container)) {
        const Control& control = form[container];
        for (std::size_t i = 0; i < frames.size(); ++i) {
            if (control.name == frames[i]) {
                return static_cast<int>(i) + 1;
            }
        }
        container = control.parent;
    }
    return 0;
}

bool IsFieldControl(std::string_view name) {
    return name.starts_with("txt") || name.starts_with("cb") || name.starts_with("opt") ||
           name.starts_with("cmb");
}
