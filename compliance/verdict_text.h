#pragma once

#include "compliance/design_checks.h"

#include <span>
#include <string>

// The verdict of a foundation in one sentence, as the desktop's verdict strip and the command
// line give it: "Ribbed foundation: PASS", or "Ribbed foundation: FAIL: 3 checks over their
// limits, governing CRACKED MOMENT CAPACITY, CENTER LIFT, SHORT (2.21)".

// The governing check named with its ratio in two decimals: "Soil bearing pressure (0.75)".
std::string GoverningText(const DesignCheck& check);

enum class GoverningShown { OnFailure, Always };

std::string VerdictSentence(Foundation foundation, const FoundationVerdict& verdict,
                            std::span<const DesignCheck> checks, GoverningShown shown);
