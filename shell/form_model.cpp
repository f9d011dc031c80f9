#include "shell/form_model.h"

#include <stdexcept>

Control& FormModel::add(Control control) {
    if (has(control.name)) {
        throw std::logic_error("two controls named " + control.name);
    }
    m_controls.push_back(std::move(control));
    return m_controls.back();
}

Control& FormModel::operator[](std::string_view name) {
    for (Control& control : m_controls) {
        if (control.name == name) {
            return control;
        }
    }
    throw std::out_of_range("no control named " + std::string(name));
}

const Control& FormModel::operator[](std::string_view name) const {
    return const_cast<FormModel&>(*this)[name];
}

bool FormModel::has(std::string_view name) const {
    for (const Control& control : m_controls) {
        if (control.name == name) {
            return true;
        }
    }
    return false;
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
