#include "common/styled_text.h"

std::string PlainText(const StyledText& box) {
    std::string text;
    for (const StyledRun& run : box.runs) {
        text += run.text;
    }
    return text;
}
