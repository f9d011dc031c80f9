#pragma once

#include "compliance/checked_rows.h"
#include "compliance/list_lines.h"

#include <cstdint>
#include <span>
#include <string>

// One checked row (compliance/checked_rows.h) as an item of a compliance list, with its label.
struct LimitItem {
    const char* label;
    CheckedRow row;
};

// The item's text: its label, then the excess in "#,##0.0", then "%".
std::string ItemText(const char* label, double excess);

// Lists the items of one section: each one over its limit in bold red, counted in `counter`;
// each one within it in regular black, only when `showAll` is on. Every item notes its margin.
void ListItems(ListTarget& target, std::span<const LimitItem> items, std::int16_t& counter,
               bool showAll);

// A cracked moment capacity row: the 0.9 moment (demand) against the capacity, with the flag that
// tells whether the capacity could be calculated.
struct CrackedItem {
    const char* label;
    const char* notCalculated; // the whole text of the row when the capacity is missing
    CheckedRow row;
};

// Center lift: the flag is looked at only for a row over its limit, whose text it chooses.
// Gives whether the row counts. A capacity that could not be calculated has no margin.
bool ListCenterLiftCracked(ListTarget& target, const CrackedItem& item, bool showAll);
// Edge lift: a capacity that could not be calculated is listed and counts, whatever the demand.
// Gives whether the row counts.
bool ListEdgeLiftCracked(ListTarget& target, const CrackedItem& item, bool showAll);

// The closing line of a section none of whose items is over its limit, when not all are shown.
void CloseSection(ListTarget& target, bool anyOver, bool showAll);
