#include "compliance/check_names.h"

#include <cctype>

const char* FoundationKey(Foundation foundation) {
    return foundation == Foundation::Ribbed ? "ribbed" : "uniform";
}

const char* ModeKey(CheckMode mode) {
    switch (mode) {
    case CheckMode::Bearing:
        return "bearing";
    case CheckMode::CenterLift:
        return "centerLift";
    case CheckMode::EdgeLift:
        return "edgeLift";
    case CheckMode::CenterDown:
        return "centerDown";
    case CheckMode::EdgeDown:
        return "edgeDown";
    case CheckMode::LineLoad:
        return "lineLoad";
    case CheckMode::Rules:
        return "rules";
    }
    return "";
}

const char* DirectionKey(CheckDirection direction) {
    switch (direction) {
    case CheckDirection::Short:
        return "short";
    case CheckDirection::Long:
        return "long";
    case CheckDirection::None:
        break;
    }
    return nullptr;
}

const char* StatusKey(CheckStatus status) {
    switch (status) {
    case CheckStatus::Ok:
        return "ok";
    case CheckStatus::Ng:
        return "ng";
    case CheckStatus::NotCalculated:
        return "not calculated";
    }
    return "";
}

const char* FoundationTitle(Foundation foundation) {
    return foundation == Foundation::Ribbed ? "Ribbed foundation" : "Uniform thickness foundation";
}

const char* ModeTitle(CheckMode mode) {
    switch (mode) {
    case CheckMode::Bearing:
        return "Soil bearing";
    case CheckMode::CenterLift:
        return "Center lift";
    case CheckMode::EdgeLift:
        return "Edge lift";
    case CheckMode::CenterDown:
        return "Center down";
    case CheckMode::EdgeDown:
        return "Edge down";
    case CheckMode::LineLoad:
        return "Line load";
    case CheckMode::Rules:
        return "Rules of the manual";
    }
    return "";
}

const char* DirectionTitle(CheckDirection direction) {
    const char* key = DirectionKey(direction);
    return key == nullptr ? "" : key;
}

std::string CheckTitle(const DesignCheck& check) {
    std::string title = check.item;
    // The soil bearing check and the rules say all in their item.
    if (check.mode != CheckMode::Bearing && check.mode != CheckMode::Rules) {
        std::string mode = ModeTitle(check.mode);
        mode[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(mode[0])));
        title += ", " + mode;
    }
    if (check.direction != CheckDirection::None) {
        title += ", " + std::string(DirectionTitle(check.direction));
    }
    return title;
}
