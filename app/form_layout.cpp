#include "app/form_layout.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <optional>
#include <sstream>

namespace {

const ContainerLayout* LayoutOf(const std::vector<ContainerLayout>& layouts,
                                const std::string& container) {
    for (const ContainerLayout& layout : layouts) {
        if (layout.container == container) {
            return &layout;
        }
    }
    return nullptr;
}

// The control of the form, with the caption of the captions' control when it has none of its
// own; a caption or frame the form lacks comes from the captions alone.
std::optional<Control> ControlNamed(const FormModel& form, const FormModel& captions,
                                    const std::string& name) {
    if (form.has(name)) {
        Control control = form[name];
        if (control.caption.empty() && captions.has(name)) {
            control.caption = captions[name].caption;
        }
        return control;
    }
    if (captions.has(name)) {
        return captions[name];
    }
    return std::nullopt;
}

// Labels and frames only show; every other control is one the user works, which must be the
// form's own.
bool IsShownOnly(const std::string& name) {
    return name.rfind("lbl", 0) == 0 || name.rfind("fra", 0) == 0;
}

// A row that holds a control the form does not have (the options dialog has no soil list) is
// left out whole, caption and all.
bool RowBelongsToForm(const std::vector<std::string>& row, const FormModel& form) {
    for (const std::string& name : row) {
        if (name != "." && !IsShownOnly(name) && !form.has(name)) {
            return false;
        }
    }
    return true;
}

// A heading: bold, and with room above it.
bool IsHeading(const std::string& name) {
    return name.rfind("lblHeading", 0) == 0;
}

} // namespace

GridRows Rows(std::initializer_list<const char*> rows) {
    GridRows grid;
    for (const char* row : rows) {
        std::istringstream words(row);
        std::vector<std::string> cells;
        std::string word;
        while (words >> word) {
            cells.push_back(word);
        }
        grid.push_back(std::move(cells));
    }
    return grid;
}

void BuildContainer(const ContainerLayout& layout, const std::vector<ContainerLayout>& layouts,
                    const FormModel& form, const FormModel& captions, FormWidgets& widgets,
                    QWidget* host) {
    auto* grid = new QGridLayout(host);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(6);
    int columns = 1;
    for (const auto& row : layout.rows) {
        columns = std::max(columns, static_cast<int>(row.size()));
    }
    int r = 0;
    for (const auto& row : layout.rows) {
        if (!RowBelongsToForm(row, form)) {
            continue;
        }
        for (int c = 0; c < static_cast<int>(row.size()); ++c) {
            const std::string& name = row[c];
            if (name == ".") {
                continue;
            }
            const std::optional<Control> control = ControlNamed(form, captions, name);
            if (!control) {
                continue;
            }
            QWidget* widget = widgets.Make(*control, host);
            const bool last = c + 1 == static_cast<int>(row.size());
            // A lone cell or the last one of a short row spans what is left of the row.
            const int span = last ? columns - c : 1;
            if (name.rfind("fra", 0) == 0) {
                if (const ContainerLayout* inner = LayoutOf(layouts, name)) {
                    BuildContainer(*inner, layouts, form, captions, widgets, widget);
                }
                grid->addWidget(widget, r, c, 1, span);
                continue;
            }
            if (auto* label = qobject_cast<QLabel*>(widget)) {
                if (IsHeading(name)) {
                    QFont font = label->font();
                    font.setBold(true);
                    label->setFont(font);
                }
                if (row.size() == 1) {
                    label->setWordWrap(true);
                }
            }
            if (auto* box = qobject_cast<QCheckBox*>(widget); box != nullptr && row.size() == 1) {
                box->setStyleSheet("QCheckBox { padding-top: 2px; }");
            }
            const std::string spinName = name.rfind("txt", 0) == 0 ? "ud" + name.substr(3) : "";
            const std::optional<Control> spin = spinName.empty() || !form.has(spinName)
                                                    ? std::nullopt
                                                    : ControlNamed(form, captions, spinName);
            if (spin) {
                auto* cell = new QWidget(host);
                auto* line = new QHBoxLayout(cell);
                line->setContentsMargins(0, 0, 0, 0);
                line->setSpacing(2);
                widget->setParent(cell);
                line->addWidget(widget, 1);
                line->addWidget(widgets.Make(*spin, cell));
                grid->addWidget(cell, r, c, 1, last && row.size() > 1 ? 1 : span);
            } else {
                grid->addWidget(widget, r, c, 1,
                                last && row.size() > 1 && widget->inherits("QLineEdit") ? 1 : span);
            }
        }
        ++r;
    }
    grid->setRowStretch(r, 1);
    grid->setColumnStretch(columns, 1);
}

std::vector<std::string> PlacedNames(const std::vector<ContainerLayout>& layouts) {
    std::vector<std::string> names;
    for (const ContainerLayout& layout : layouts) {
        for (const auto& row : layout.rows) {
            for (const std::string& name : row) {
                if (name != ".") {
                    names.push_back(name);
                }
            }
        }
    }
    return names;
}
