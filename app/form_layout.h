#pragma once

#include "app/form_widgets.h"

#include <string>
#include <vector>

class QWidget;

// Where the controls of a container stand: rows of cells, each cell a control name, "." an
// empty cell. A text box brings its spin (`ud...`) beside it; a frame fills its row and is laid
// out by its own rows. Column 0 holds captions, the columns after it the fields.
using GridRows = std::vector<std::vector<std::string>>;

struct ContainerLayout {
    std::string container;
    GridRows rows;
};

// The rows written as text: one string a row, names separated by blanks.
GridRows Rows(std::initializer_list<const char*> rows);

// Lays out the container's controls into `host` by their rows, making each widget through
// `widgets` from the control of that name in `form`, or, for a control the form lacks (the
// options dialog has no captions of its own), from `captions`. Frames are found in `layouts`.
void BuildContainer(const ContainerLayout& layout, const std::vector<ContainerLayout>& layouts,
                    const FormModel& form, const FormModel& captions, FormWidgets& widgets,
                    QWidget* host);

// Every control name placed by the layouts, frames included.
std::vector<std::string> PlacedNames(const std::vector<ContainerLayout>& layouts);
