#pragma once

#include "common/styled_text.h"
#include "compliance/compliance_pass.h"
#include "output/project_page.h"

#include <iosfwd>
#include <string>

// The exception lists, the compliance lists and the summary lines as the results screen shows
// them. With `colour` the bold runs are bold and the red runs red, by terminal escapes.
void PrintCompliancePass(const CompliancePass& pass, const ShownSummary& summary, bool colour,
                         std::ostream& out);

// The runs of a styled list, line by line, centred runs centred on an 80-column line.
void PrintStyledText(const StyledText& box, bool colour, std::ostream& out);

// A text in bold and red by terminal escapes when `colour` is on and the style asks for them.
void PrintStyled(const std::string& text, bool bold, bool red, bool colour, std::ostream& out);
