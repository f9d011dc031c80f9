#include "compliance/limit_items.h"

#include "common/number_pattern.h"
#include "compliance/list_lines.h"

#include <string>

bool WithinLimit(const LimitItem& item) {
    switch (item.kind) {
    case LimitKind::Tension:
        return item.value >= item.limit;
    case LimitKind::Compression:
        return item.limit / 1000 >= item.value;
    case LimitKind::AtMost:
        return item.value <= item.limit;
    }
    return false;
}

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
        const bool over = !WithinLimit(item);
        NoteMargin(target, item.excess);
        if (over || showAll) {
            appendLimitLine(target, item.label, item.excess, over);
        }
        if (over) {
            CountItem(counter);
        }
    }
}

bool ListCenterLiftCracked(ListTarget& target, const CrackedItem& item, bool showAll) {
    const bool over = !(item.demand <= item.capacity);
    if (item.valid != 0) {
        NoteMargin(target, item.excess);
    }
    if (over) {
        if (item.valid != 0) {
            appendLimitLine(target, item.label, item.excess, true);
        } else {
            AppendItemLine(target, item.notCalculated, true);
        }
    } else if (showAll) {
        appendLimitLine(target, item.label, item.excess, false);
    }
    return over;
}

bool ListEdgeLiftCracked(ListTarget& target, const CrackedItem& item, bool showAll) {
    if (item.valid == 0) {
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
