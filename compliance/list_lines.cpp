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

void AppendSectionHeading(StyledText& box, const std::string& heading) {
    Append(box, {.text = "\n" + heading + "\n", .bold = true});
}

void AppendItemLine(StyledText& box, const std::string& text, bool overLimit) {
    Append(box, {.text = "\t" + text + "\n", .bold = overLimit, .red = overLimit});
}

void CountItem(std::int16_t& counter) {
    counter = Sum16(counter, 1);
}
