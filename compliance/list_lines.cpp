#include "compliance/list_lines.h"

#include "engine/checked_math.h"

void AppendMessageLine(StyledText& box, const std::string& message) {
    Append(box, {.text = "\t" + message + "\n", .bold = true, .red = true});
}

void AppendReferenceLine(StyledText& box, const std::string& reference) {
    Append(box, {.text = "\t\t" + reference + "\n"});
}

void AppendCleanText(StyledText& box, const std::string& text) {
    Append(box, {.text = "\t" + text + "\n\n", .bold = true, .centred = true});
}

void NoteMargin(ListTarget& target, double excess) {
    const double margin = -excess / 100;
    if (!target.smallestMargin || margin < *target.smallestMargin) {
        target.smallestMargin = margin;
    }
}

void AppendSectionHeading(ListTarget& target, std::string_view heading) {
    if (target.box == nullptr) {
        return;
    }
    Append(*target.box, {.text = "\n" + std::string(heading) + "\n", .bold = true});
}

void AppendItemLine(ListTarget& target, std::string_view text, bool overLimit) {
    if (target.box == nullptr) {
        return;
    }
    Append(*target.box,
           {.text = "\t" + std::string(text) + "\n", .bold = overLimit, .red = overLimit});
}

void CountItem(std::int16_t& counter) {
    counter = Sum16(counter, 1);
}
