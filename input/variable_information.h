#pragma once

#include "common/styled_text.h"
#include "engine/design_record.h"

#include <string_view>

// The explanations of the "More Information" panel of the input screen, one procedure a page.
// A topic is the variable under the user's right click; topic 99 is the page's general topic,
// shown when the page is selected. Defaults shown are those of the default record (the settings
// store's). A topic a page does not have gives an empty text.
//
// The panel draws the text with left and right margins of this many twips.
inline constexpr int MoreInfoMarginTwips = 50;
inline constexpr int PageTopic = 99;

StyledText MoreInfoProjectInfo(int topic, const DesignRecord& defaults);
StyledText MoreInfoMaterialProp(int topic, const DesignRecord& defaults);
StyledText MoreInfoSlabProp(int topic, const DesignRecord& defaults);
StyledText MoreInfoBeamProp(int topic, const DesignRecord& defaults);
StyledText MoreInfoSoilProp(int topic, const DesignRecord& defaults);
StyledText MoreInfoLDPProp(int topic, const DesignRecord& defaults);
StyledText MoreInfoLLProp(int topic, const DesignRecord& defaults);

// The topic of page `page` (1 to 7); any other page gives an empty text.
StyledText MoreInfoForPage(int page, int topic, const DesignRecord& defaults);

// The most characters the text field of the record named `field` (such as "ProjName") takes on
// the input screen, as its topic states it; 0 for a field that is not free text.
int MaxTextLength(std::string_view field);
