#pragma once

#include "common/styled_text.h"

#include <QString>

// Styled runs as HTML for a rich text view: bold, red, size, centred lines, tabs as spaces.
QString StyledTextHtml(const StyledText& text);
