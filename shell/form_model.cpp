#include "shell/form_model.h"

#include <stdexcept>

Control& FormModel::add(Control control) {
    if (has(control.name)) {
        throw std::logic_error("two controls named " + control.name);
    }
    m_index.emplace(control.name, m_controls.size());
    m_controls.push_back(std::move(control));
    return m_controls.back();
}

Control& FormModel::operator[](std::string_view name) {
    const auto found = m_index.find(name);
    if (found == m_index.end()) {
        throw std::out_of_range("no control named " + std::string(name));
    }
    return m_controls[found->second];
}

const Control& FormModel::operator[](std::string_view name) const {
    return const_cast<FormModel&>(*this)[name];
}

bool FormModel::has(std::string_view name) const {
    return m_index.find(name) != m_index.end();
}

std::string ArrayName(std::string_view array, int index) {
    return std::string(array) + "(" + std::to_string(index) + ")";
}

int SelectedOption(const FormModel& form, std::string_view group, int count) {
    for (int i = 0; i < count; ++i) {
        if (form[ArrayName(group, i)].checked) {
            return i;
        }
    }
    return -1;
}

void SelectOption(FormModel& form, std::string_view group, int count, int index) {
    for (int i = 0; i < count; ++i) {
        form[ArrayName(group, i)].checked = i == index;
    }
}

bool IsShown(const FormModel& form, std::string_view name) {
    std::string container(name);
    while (!container.empty() && form.has(container)) {
        const Control& control = form[container];
        if (!control.visible) {
            return false;
        }
        container = control.parent;
    }
    return true;
}

void SelectWholeText(FormModel& form, std::string_view box) {
    Control& control = form[box];
    control.selStart = 0;
    control.selLength = static_cast<int>(control.text.size());
    ++form.selectionRequests;
}

std::string NeighbourOption(const FormModel& form, std::string_view button, int step) {
    const std::size_t open = button.find('(');
    if (open == std::string_view::npos || step == 0) {
        return {};
    }
    const std::string_view group = button.substr(0, open);
    int index = 0;
    for (std::size_t i = open + 1; i < button.size() && button[i] != ')'; ++i) {
        if (button[i] < '0' || button[i] > '9') {
            return {};
        }
        index = index * 10 + (button[i] - '0');
    }
    for (int next = index + step; next >= 0; next += step) {
        const std::string name = ArrayName(group, next);
        if (!form.has(name)) {
            return {};
        }
        if (form[name].enabled && IsShown(form, name)) {
            return name;
        }
    }
    return {};
}
