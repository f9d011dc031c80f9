#include "output/results_tabs.h"

#include <stdexcept>
#include <string>

namespace {

const std::string UniformTabCaption = "Uniform Thickness Foundation";
const std::string LineLoadTabCaption = "Line Load Analysis";

// A caption with blanks on both sides, which widen its tab.
std::string Widened(const std::string& caption, std::size_t blanks) {
    return std::string(blanks, ' ') + caption + std::string(blanks, ' ');
}

// Compressible soil's first three captions. The exceptions tab has one blank more after its
// caption than before it.
const std::string CompressibleSummary = Widened("Design Summary", 13);
const std::string CompressibleCompliance = Widened("Design Compliance", 13);
const std::string CompressibleExceptions = Widened("PTI Exceptions", 13) + " ";

void ShowFrame(FormModel& form, std::string_view array, int frames, int front) {
    for (int i = 0; i < frames; ++i) {
        form[ArrayName(array, i)].visible = i == front;
    }
}

void SetCaption(TabStrip& strip, int tab, std::string caption) {
    strip.captions.at(static_cast<std::size_t>(tab - 1)) = std::move(caption);
}

void RemoveTab(TabStrip& strip, int tab) {
    strip.captions.erase(strip.captions.begin() + (tab - 1));
    if (strip.selected > strip.count()) {
        strip.selected = strip.count();
    }
}

void CompressibleFirstTabs(TabStrip& strip) {
    SetCaption(strip, 1, CompressibleSummary);
    SetCaption(strip, 2, CompressibleCompliance);
    SetCaption(strip, 3, CompressibleExceptions);
}

void ArrangeBySoil(TabStrip& ribbed, TabStrip& uniform, const DesignRecord& record) {
    if (record.SoilType == 0) {
        if (ribbed.count() != 7) {
            ribbed.captions.push_back("Selected Variables");
        }
        SetCaption(ribbed, 4, "Center Lift Analysis");
        SetCaption(ribbed, 5, "Edge Lift Analysis");
        SetCaption(ribbed, 6, "Soil Bearing / Prestress Summary");
        SetCaption(ribbed, 7, "Selected Variables");
        if (uniform.count() != 6) {
            uniform.captions.push_back("Prestress Summary / Selected Variables");
        }
        SetCaption(uniform, 4, "Center Lift Analysis");
        SetCaption(uniform, 5, "Edge Lift Analysis");
        SetCaption(uniform, 6, "Prestress Summary / Selected Variables");
    } else if (record.CLSettleState != 1) {
        if (ribbed.count() == 7) {
            RemoveTab(ribbed, 7);
        }
        CompressibleFirstTabs(ribbed);
        SetCaption(ribbed, 4, Widened("Center Down Analysis", 3));
        SetCaption(ribbed, 5, Widened("Soil Bearing / Prestress Summary", 3));
        SetCaption(ribbed, 6, Widened("Selected Variables", 3));
        if (uniform.count() == 6) {
            RemoveTab(uniform, 6);
        }
        CompressibleFirstTabs(uniform);
        SetCaption(uniform, 4, Widened("Center Down Analysis", 22));
        SetCaption(uniform, 5, Widened("Prestress Summary / Selected Variables", 22));
    } else {
        if (ribbed.count() != 7) {
            ribbed.captions.push_back("Selected Variables");
        }
        CompressibleFirstTabs(ribbed);
        SetCaption(ribbed, 4, "Center Down Analysis");
        SetCaption(ribbed, 5, "Edge Down Analysis");
        SetCaption(ribbed, 6, "Soil Bearing / Prestress Summary");
        SetCaption(ribbed, 7, "Selected Variables");
        if (uniform.count() != 6) {
            uniform.captions.push_back("Prestress Summary / Selected Variables");
        }
        CompressibleFirstTabs(uniform);
        SetCaption(uniform, 4, "Center Down Analysis");
        SetCaption(uniform, 5, "Edge Down Analysis");
        SetCaption(uniform, 6, "Prestress Summary / Selected Variables");
    }
}

void RebuildMainTabs(TabStrip& tabMain, const DesignRecord& record) {
    if (tabMain.count() == 4) {
        RemoveTab(tabMain, 4);
        RemoveTab(tabMain, 3);
    } else if (tabMain.count() == 3) {
        RemoveTab(tabMain, 3);
    }
    if (record.FlatSlab == 1) {
        tabMain.captions.push_back(UniformTabCaption);
    }
    if (record.LineLoadType == 1) {
        tabMain.captions.push_back(LineLoadTabCaption);
    }
}

} // namespace

TabStrip DesignedMainTabs() {
    return {{"Project Summary", "Ribbed Foundation", UniformTabCaption, LineLoadTabCaption}, 1};
}

TabStrip DesignedRibbedTabs() {
    return {{"Design Summary", "Design Compliance", "PTI Exceptions", "Center Lift Analysis",
             "Edge Lift Analysis", "Soil Bearing / Prestress Summary", "Selected Variables"},
            1};
}

TabStrip DesignedUniformTabs() {
    return {{"Design Summary", "Design Compliance", "PTI Exceptions", "Center Lift Analysis",
             "Edge Lift Analysis", "Prestress Summary / Selected Variables"},
            1};
}

int RibbedFrameOfTab(std::int16_t soilType, std::int16_t clSettleState, int tab) {
    const int t = tab - 1;
    if (soilType != 1 || t < 3) {
        return t;
    }
    if (t == 3) {
        return 7;
    }
    if (t == 4) {
        return clSettleState == 1 ? 8 : 5;
    }
    if (t == 5 && clSettleState == 0) {
        return 6;
    }
    return t;
}

int UniformFrameOfTab(std::int16_t soilType, std::int16_t clSettleState, int tab) {
    const int t = tab - 1;
    if (soilType != 1 || t < 3) {
        return t;
    }
    if (t == 3) {
        return 6;
    }
    if (t == 4) {
        return clSettleState == 1 ? 7 : 5;
    }
    if (t == 5 && clSettleState == 0) {
        return 6;
    }
    return t;
}

int MainFrameOfTab(const TabStrip& tabMain, int tab) {
    const std::string& caption = tabMain.captions.at(static_cast<std::size_t>(tab - 1));
    if (caption == UniformTabCaption) {
        return 2;
    }
    if (caption == LineLoadTabCaption) {
        return 3;
    }
    return tab - 1;
}

void SelectMainTab(ResultsScreen& screen, int tab) {
    screen.tabMain.selected = tab;
    ShowFrame(screen.form, "fraMain", MainFrames, MainFrameOfTab(screen.tabMain, tab));
}

void SelectRibbedTab(ResultsScreen& screen, const DesignRecord& record, int tab) {
    screen.tabRibbed.selected = tab;
    ShowFrame(screen.form, "fraExpOutput", RibbedFrames,
              RibbedFrameOfTab(record.SoilType, record.CLSettleState, tab));
}

void SelectUniformTab(ResultsScreen& screen, const DesignRecord& record, int tab) {
    screen.tabUniform.selected = tab;
    ShowFrame(screen.form, "fraUTFOutput", UniformFrames,
              UniformFrameOfTab(record.SoilType, record.CLSettleState, tab));
}

void ArrangeResultsScreen(ResultsScreen& screen, const DesignRecord& record, int mainInnerWidth) {
    screen.top = 0;
    screen.left = (mainInnerWidth - ResultsScreenWidth) / 2;

    SelectRibbedTab(screen, record, 1);
    SelectUniformTab(screen, record, 1);
    ShowFrame(screen.form, "fraMain", MainFrames, 0);
    SelectMainTab(screen, 1);

    ArrangeBySoil(screen.tabRibbed, screen.tabUniform, record);
    RebuildMainTabs(screen.tabMain, record);
}

void ClickSummaryLine(ResultsScreen& screen, const DesignRecord& record, std::string_view item) {
    for (int i = 0; i < 3; ++i) {
        if (item == ArrayName("RibbedSummary", i)) {
            SelectRibbedTab(screen, record, i + 1);
            SelectMainTab(screen, 2);
            return;
        }
        if (item == ArrayName("UTFSummary", i)) {
            SelectUniformTab(screen, record, i + 1);
            SelectMainTab(screen, 3);
            return;
        }
    }
    if (item == ArrayName("LLSummary", 0) || item == ArrayName("LLSummary", 1)) {
        SelectMainTab(screen, record.FlatSlab == 1 ? 4 : 3);
        return;
    }
    throw std::out_of_range("no summary line named " + std::string(item));
}
