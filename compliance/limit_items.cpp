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

void ListItems(StyledText& box, std::span<const LimitItem> items, std::int16_t& counter,
               bool showAll) {
    for (const LimitItem& item : items) {
        const bool over = !WithinLimit(item);
        if (over || showAll) {
            AppendItemLine(box, ItemText(item.label, item.excess), over);
        }
        if (over) {
            CountItem(counter);
        }
    }
}

bool ListCenterLiftCracked(StyledText& box, const CrackedItem& item, bool showAll) {
    const bool over = !(item.demand <= item.capacity);
    if (over) {
        AppendItemLine(
            box, item.valid != 0 ? ItemText(item.label, item.excess) : item.notCalculated, true);
    } else if (showAll) {
        AppendItemLine(box, ItemText(item.label, item.excess), false);
    }
    return over;
}

bool ListEdgeLiftCracked(StyledText& box, const CrackedItem& item, bool showAll) {
    if (item.valid == 0) {
        AppendItemLine(box, item.notCalculated, true);
        return true;
    }
    return ListCenterLiftCracked(box, item, showAll);
}

void CloseSection(StyledText& box, bool anyOver, bool showAll) {
    if (!anyOver && !showAll) {
        AppendItemLine(box, "ALL VALUES WITHIN ALLOWABLE LIMITS.", false);
    }
}
