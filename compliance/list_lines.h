#pragma once

#include "common/styled_text.h"

#include <cstdint>
#include <string>

// The kinds of line written into the exception and compliance boxes. Every line is in size 8;
// each is appended to the end of its box.

// Exceptions: a message in bold red, after one tab.
void AppendMessageLine(StyledText& box, const std::string& message);
// Exceptions: the manual's reference in regular black, after two tabs.
void AppendReferenceLine(StyledText& box, const std::string& reference);
// Exceptions: the text of a clean list, bold black, centred, followed by an empty line.
void AppendCleanText(StyledText& box, const std::string& text);

// Compliance: a section heading on a line of its own, in bold black.
void AppendSectionHeading(StyledText& box, const std::string& heading);
// Compliance: an item after one tab; bold red when it is over its limit, regular black when not.
void AppendItemLine(StyledText& box, const std::string& text, bool overLimit);

// Adds one item to a 16-bit counter.
void CountItem(std::int16_t& counter);
