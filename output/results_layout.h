#pragma once

#include "shell/form_model.h"

#include <string>
#include <vector>

// How the results screen sets out its controls: each page of a frame is a list of rows, and a
// row names the controls that stand on it. The texts and visibility live in the controls; a row
// only places them. A control that shows on several pages (the allowable shear `lblVCS`, the
// centroid `lblCGS`) is one control placed by several rows.

enum class RowKind {
    Heading, // a section heading: the caption alone
    Columns, // the heads of the value columns, "Short Direction" and "Long Direction"
    Value,   // a caption, one value or a short and a long value, and a unit
    Note,    // a line of text without a value
    List,    // a styled list (`rtbRibbedDC`): the caption names the list's control
    Check,   // a check box (`chkRibbedDC`): the caption names the box
};

struct ResultRow {
    RowKind kind = RowKind::Value;
    std::string caption;             // the control that holds the caption or the note
    std::vector<std::string> values; // the value controls, short before long
    std::string unit;                // the control of the unit beside the values, or none
    std::string frame;               // the panel it stands in within its page, or none
    bool text = false;               // the value is a text, read from the left; a number otherwise
};

struct ResultPage {
    std::string frame; // "fraExpOutput(3)"
    std::vector<ResultRow> rows;
};

// The page set out for a frame; an unknown frame is a programming error and throws
// std::out_of_range.
const ResultPage& PageOfFrame(const std::vector<ResultPage>& pages, const std::string& frame);

// Whether a row is drawn on its page: its caption is visible, and so is its panel.
bool IsRowShown(const FormModel& form, const ResultRow& row);
