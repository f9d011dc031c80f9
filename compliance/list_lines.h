#pragma once

#include "common/styled_text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The kinds of line written into the exception and compliance boxes. Every line is in size 8;
// each is appended to the end of its box.

// Exceptions: a message in bold red, after one tab.
void AppendMessageLine(StyledText& box, const std::string& message);
// Exceptions: the manual's reference in regular black, after two tabs.
void AppendReferenceLine(StyledText& box, const std::string& reference);
// Exceptions: the text of a clean list, bold black, centred, followed by an empty line.
void AppendCleanText(StyledText& box, const std::string& text);

// Where the rows of a compliance list go: as lines into `box` when there is one. Without a box
// no text is made at all, and a routine only counts its rows, as a search over many designs
// needs. Either way every row with a limit notes its margin here.
//
// The margin of a row is the part of its limit to spare, 1 - value / limit: 0.25 leaves a
// quarter of the limit, a negative margin is a value over its limit. It is read from the excess
// the analysis gives each row, (value / limit - 1) x 100, as -excess / 100.
struct ListTarget {
    StyledText* box = nullptr;
    // The smallest margin noted so far, or nothing before any row with a limit.
    std::optional<double> smallestMargin;
};

// Keeps the margin of a row whose excess over its limit is `excess` percent, when it is the
// smallest so far.
void NoteMargin(ListTarget& target, double excess);

// Compliance: a section heading on a line of its own, in bold black.
void AppendSectionHeading(ListTarget& target, std::string_view heading);
// Compliance: an item after one tab; bold red when it is over its limit, regular black when not.
void AppendItemLine(ListTarget& target, std::string_view text, bool overLimit);

// Adds one item to a 16-bit counter.
void CountItem(std::int16_t& counter);
