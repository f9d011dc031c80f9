#pragma once

#include "compliance/design_checks.h"

#include <string>

// The names of a check's foundation, mode, direction and status: the keys of the JSON output
// ("centerLift", "not calculated") and the words a reader sees ("Center lift").

const char* FoundationKey(Foundation foundation);
const char* ModeKey(CheckMode mode);
const char* DirectionKey(CheckDirection direction); // nullptr for none
const char* StatusKey(CheckStatus status);

const char* FoundationTitle(Foundation foundation);   // "Ribbed foundation"
const char* ModeTitle(CheckMode mode);                // "Center lift"
const char* DirectionTitle(CheckDirection direction); // "short", "long", or empty

// The item with its mode and direction, as one names a check in a sentence: "Cracked moment
// capacity, center lift, short"; a rule or a check without direction leaves out what it lacks.
std::string CheckTitle(const DesignCheck& check);
