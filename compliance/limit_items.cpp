#include "compliance/limit_items.h"

#include "common/number_pattern.h"
#include "compliance/list_lines.h"

#include <string>

std::string ItemText(const char* label, double excess) {
    return label + FormatNumber(excess, "#,##0.0") + "%";
}

namespace {

// The row of a value held against its limit; its text is made only when there is a box.
void appendLimitLine(ListTarget& target, const char* label, double excess, bool overLimit) {
    if (target.box != nullptr) {
        AppendItemLine(target, ItemText(label, excess), overLimit);
    }
}

} // namespace

void ListItems(ListTarget& target, std::span<const LimitItem> items, std::int16_t& counter,
               bool showAll) {
    for (const LimitItem& item : items) {
        const bool over = !RowWithinLimit(item.row);
        NoteMargin(target, item.row.excess);
        if (over || showAll) {
            appendLimitLine(target, item.label, item.row.excess, over);
        }
        if (over) {
            CountItem(counter);
        }
    }
}

// Center lift looks at the flag only to choose the text of a row over its limit: a capacity that
// could not be calculated is 0, and a positive demand is over it.
bool ListCenterLiftCracked(ListTarget& target, const CrackedItem& item, bool showAll) {
    const CheckedRow& row = item.row;
    const bool over = !RowWithinLimit(row);
    if (row.valid != 0) {
        NoteMargin(target, row.excess);
    }
    if (over) {
        if (row.valid != 0) {
            appendLimitLine(target, item.label, row.excess, true);
        } else {
            AppendItemLine(target, item.notCalculated, true);
        }
    } else if (showAll) {
        appendLimitLine(target, item.label, row.excess, false);
    }
    return over;
}

bool ListEdgeLiftCracked(ListTarget& target, const CrackedItem& item, bool showAll) {
    if (item.row.valid == 0) {
        AppendItemLine(target, item.notCalculated, true);
        return true;
    }
    return ListCenterLiftCracked(target, item, showAll);
}

void CloseSection(ListTarget& target, bool anyOver, bool showAll) {
    if (!anyOver && !showAll) {
        AppendItemLine(target, "ALL VALUES WITHIN ALLOWABLE LIMITS.", false);
    }
}
