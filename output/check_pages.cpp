#include "output/check_pages.h"

#include "output/results_tabs.h"

#include <cstring>

namespace {

// Frames of `fraExpOutput` and `fraUTFOutput`, as the results screen numbers them.
constexpr int DesignSummaryFrame = 0;
constexpr int ComplianceFrame = 1;
constexpr int ExceptionsFrame = 2;
constexpr int CenterLiftFrame = 3;
constexpr int EdgeLiftFrame = 4;
constexpr int BearingAndPrestressFrame = 5; // ribbed; the uniform page 5 is prestress
constexpr int RibbedCenterDownFrame = 7;
constexpr int RibbedEdgeDownFrame = 8;
constexpr int UniformCenterDownFrame = 6;
constexpr int UniformEdgeDownFrame = 7;

int FrameOfCheck(const DesignCheck& check) {
    const bool ribbed = check.foundation == Foundation::Ribbed;
    switch (check.mode) {
    case CheckMode::Bearing:
        return BearingAndPrestressFrame;
    case CheckMode::CenterLift:
        return CenterLiftFrame;
    case CheckMode::EdgeLift:
        return EdgeLiftFrame;
    case CheckMode::CenterDown:
        return ribbed ? RibbedCenterDownFrame : UniformCenterDownFrame;
    case CheckMode::EdgeDown:
        return ribbed ? RibbedEdgeDownFrame : UniformEdgeDownFrame;
    case CheckMode::LineLoad:
        return DesignSummaryFrame; // not on a foundation strip
    case CheckMode::Rules:
        break;
    }
    const char* rule = check.rule == nullptr ? "" : check.rule;
    if (std::strcmp(rule, "residualPrestress") == 0) {
        return BearingAndPrestressFrame;
    }
    if (std::strcmp(rule, "ribbedExceptions") == 0) {
        return ExceptionsFrame;
    }
    if (std::strcmp(rule, "ribbedCompliance") == 0) {
        return ComplianceFrame;
    }
    return DesignSummaryFrame;
}

// The tab of a strip that shows a frame; the first tab when none does.
int TabOfFrame(int tabs, int frame, int (*frameOfTab)(std::int16_t, std::int16_t, int),
               const DesignRecord& record) {
    for (int tab = 1; tab <= tabs; ++tab) {
        if (frameOfTab(record.SoilType, record.CLSettleState, tab) == frame) {
            return tab;
        }
    }
    return 1;
}

} // namespace

CheckPage PageOfCheck(const ResultsScreen& screen, const DesignRecord& record,
                      const DesignCheck& check) {
    if (check.mode == CheckMode::LineLoad) {
        return {record.FlatSlab == 1 ? 4 : 3, 0};
    }
    const int frame = FrameOfCheck(check);
    if (check.foundation == Foundation::Ribbed) {
        return {2, TabOfFrame(screen.tabRibbed.count(), frame, RibbedFrameOfTab, record)};
    }
    return {3, TabOfFrame(screen.tabUniform.count(), frame, UniformFrameOfTab, record)};
}

void ShowCheckPage(ResultsScreen& screen, const DesignRecord& record, const DesignCheck& check) {
    const CheckPage page = PageOfCheck(screen, record, check);
    if (page.foundationTab != 0) {
        if (check.foundation == Foundation::Ribbed) {
            SelectRibbedTab(screen, record, page.foundationTab);
        } else {
            SelectUniformTab(screen, record, page.foundationTab);
        }
    }
    SelectMainTab(screen, page.mainTab);
}
