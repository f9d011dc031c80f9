#include "app/form_widgets.h"

#include "input/input_events.h"
#include "input/number_entry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>
#include <QToolButton>
#include <QValidator>
#include <algorithm>
#include <vector>

namespace {

constexpr int TextBoxCharacters = 40;
constexpr int TextBoxPadding = 12; // the frame and margins of a line edit

bool Starts(const std::string& name, const char* prefix) {
    return name.rfind(prefix, 0) == 0;
}

// Refuses an edit (a key or a paste) that would leave a number box holding what is no number,
// by the model's rule for that box. Text set by the program is not checked.
class NumberBoxValidator : public QValidator {
  public:
    NumberBoxValidator(std::string box, QObject* parent)
        : QValidator(parent), m_box(std::move(box)) {}

    State validate(QString& text, int&) const override {
        return AcceptsNumberText(m_box, text.toStdString()) ? Acceptable : Invalid;
    }

  private:
    std::string m_box;
};

QToolButton* ArrowButton(Qt::ArrowType arrow, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setArrowType(arrow);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRepeat(true);
    button->setFixedSize(18, 12);
    return button;
}

} // namespace

QString CaptionText(const std::string& caption) {
    return QString::fromStdString(caption);
}

QString WrappedCaption(const std::string& caption, int width) {
    QString text = QString::fromStdString(caption);
    int lineStart = 0;
    int lastBlank = -1;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == ' ') {
            lastBlank = i;
        }
        if (i - lineStart >= width && lastBlank > lineStart) {
            text[lastBlank] = '\n';
            lineStart = lastBlank + 1;
        }
    }
    return text;
}

QWidget* FormWidgets::Make(const Control& control, QWidget* parent) {
    const std::string& name = control.name;
    QWidget* widget = nullptr;
    if (Starts(name, "txt")) {
        auto* edit = new QLineEdit(parent);
        if (control.maxLength > 0) {
            edit->setMaxLength(control.maxLength);
        }
        if (IsTextField(name)) {
            // A name, an engineer or a firm shows 40 characters without scrolling.
            edit->setMinimumWidth(edit->fontMetrics().averageCharWidth() * TextBoxCharacters +
                                  TextBoxPadding);
        } else {
            edit->setMaximumWidth(150); // a number: as wide as its digits need
            edit->setValidator(new NumberBoxValidator(name, edit));
        }
        connect(edit, &QLineEdit::textEdited, this, [this, name](const QString& text) {
            if (!m_refreshing && m_events.change) {
                m_events.change(name, text.toStdString());
            }
        });
        edit->installEventFilter(this);
        widget = edit;
    } else if (Starts(name, "cbo") || Starts(name, "cbb")) {
        auto* list = new QComboBox(parent);
        for (const std::string& item : control.items) {
            list->addItem(QString::fromStdString(item));
        }
        connect(list, &QComboBox::activated, this, [this, name](int index) {
            if (!m_refreshing && m_events.choose) {
                m_events.choose(name, index);
            }
        });
        list->installEventFilter(this);
        widget = list;
    } else if (Starts(name, "cmb")) {
        auto* button = new QPushButton(CaptionText(control.caption), parent);
        connect(button, &QPushButton::clicked, this, [this, name] {
            if (m_events.click) {
                m_events.click(name);
            }
        });
        widget = button;
    } else if (Starts(name, "cb") || Starts(name, "chk") || Starts(name, "Check")) {
        auto* box = new QCheckBox(WrappedCaption(control.caption, CheckBoxLineWidth), parent);
        connect(box, &QCheckBox::clicked, this, [this, name] {
            if (!m_refreshing && m_events.click) {
                m_events.click(name);
            }
        });
        box->installEventFilter(this);
        widget = box;
    } else if (Starts(name, "opt") || Starts(name, "Option")) {
        auto* button = new QRadioButton(CaptionText(control.caption), parent);
        button->setAutoExclusive(false);
        connect(button, &QRadioButton::clicked, this, [this, name] {
            if (!m_refreshing && m_events.click) {
                m_events.click(name);
            }
        });
        button->installEventFilter(this);
        widget = button;
    } else if (Starts(name, "ud")) {
        auto* pair = new QWidget(parent);
        auto* layout = new QVBoxLayout(pair);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
        QToolButton* up = ArrowButton(Qt::UpArrow, pair);
        QToolButton* down = ArrowButton(Qt::DownArrow, pair);
        up->setObjectName(QString::fromStdString(name + ".up"));
        down->setObjectName(QString::fromStdString(name + ".down"));
        layout->addWidget(up);
        layout->addWidget(down);
        connect(up, &QToolButton::clicked, this, [this, name] {
            if (m_events.spinUp) {
                m_events.spinUp(name);
            }
        });
        connect(down, &QToolButton::clicked, this, [this, name] {
            if (m_events.spinDown) {
                m_events.spinDown(name);
            }
        });
        widget = pair;
    } else if (Starts(name, "fra")) {
        widget = new QGroupBox(CaptionText(control.caption), parent);
    } else {
        auto* label = new QLabel(CaptionText(control.caption), parent);
        label->setTextFormat(Qt::PlainText);
        label->installEventFilter(this);
        widget = label;
    }
    widget->setObjectName(QString::fromStdString(name));
    m_widgets[name] = widget;
    return widget;
}

QWidget* FormWidgets::Find(const std::string& name) const {
    const auto found = m_widgets.find(name);
    return found == m_widgets.end() ? nullptr : found->second;
}

void FormWidgets::Refresh(const FormModel& form) {
    m_refreshing = true;
    m_form = &form;
    for (const auto& [name, widget] : m_widgets) {
        if (!form.has(name)) {
            continue;
        }
        const Control& control = form[name];
        widget->setEnabled(control.enabled);
        widget->setVisible(control.visible);
        if (!control.toolTip.empty()) {
            widget->setToolTip(QString::fromStdString(control.toolTip));
        }
        if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
            const QString text = QString::fromStdString(control.text);
            if (edit->text() != text) {
                edit->setText(text);
            }
        } else if (auto* list = qobject_cast<QComboBox*>(widget)) {
            QStringList items;
            for (const std::string& item : control.items) {
                items.push_back(QString::fromStdString(item));
            }
            QStringList shown;
            for (int i = 0; i < list->count(); ++i) {
                shown.push_back(list->itemText(i));
            }
            if (shown != items) {
                list->clear();
                list->addItems(items);
            }
            // A list whose choice is only its text (the report font) shows the item of that text.
            list->setCurrentIndex(control.selectedIndex >= 0
                                      ? control.selectedIndex
                                      : list->findText(QString::fromStdString(control.text)));
        } else if (auto* box = qobject_cast<QCheckBox*>(widget)) {
            box->setChecked(control.checked);
            if (!control.caption.empty()) {
                box->setText(WrappedCaption(control.caption, CheckBoxLineWidth));
            }
        } else if (auto* button = qobject_cast<QRadioButton*>(widget)) {
            button->setChecked(control.checked);
            // Of an option group only the chosen button is a tab stop, whichever it is; the
            // others take a click or an arrow key.
            button->setFocusPolicy(control.checked ? Qt::StrongFocus : Qt::ClickFocus);
        } else if (auto* group = qobject_cast<QGroupBox*>(widget)) {
            if (!control.caption.empty()) {
                group->setTitle(CaptionText(control.caption));
            }
        } else if (auto* label = qobject_cast<QLabel*>(widget)) {
            if (label->text() != CaptionText(control.caption)) {
                label->setText(CaptionText(control.caption));
            }
            // Only the labels the model styles (the summary lines) follow its weight and colour;
            // headings keep the weight the layout gave them.
            if (control.bold || control.red || label->property("modelStyled").toBool()) {
                QFont font = label->font();
                font.setBold(control.bold);
                label->setFont(font);
                label->setStyleSheet(control.red ? "color: rgb(255, 0, 0);" : "");
                label->setProperty("modelStyled", true);
            }
        }
    }
    QWidget* focus = Find(form.focus);
    if (focus != nullptr) {
        if (!focus->hasFocus() && focus->isVisible() && focus->isEnabled()) {
            focus->setFocus(Qt::OtherFocusReason);
        }
        // The model's selection is made once per request: the keys typed next must edit the
        // text, not replace it again.
        auto* edit = qobject_cast<QLineEdit*>(focus);
        if (edit != nullptr && form.selectionRequests != m_selectionRequests) {
            const Control& control = form[form.focus];
            if (control.selLength > 0) {
                edit->setSelection(control.selStart, control.selLength);
            }
            m_selectionRequests = form.selectionRequests;
        }
    }
    m_refreshing = false;
}

bool FormWidgets::ChooseNeighbour(const std::string& button, int step) {
    if (m_form == nullptr || !m_events.click) {
        return false;
    }
    const std::string next = NeighbourOption(*m_form, button, step);
    QWidget* widget = Find(next);
    if (widget == nullptr) {
        return false;
    }
    m_events.click(next);
    widget->setFocus(Qt::OtherFocusReason);
    return true;
}

void FormWidgets::OrderTabs(const FormModel& form) {
    std::vector<const Control*> fields;
    for (const Control& control : form.controls()) {
        QWidget* widget = Find(control.name);
        if (widget != nullptr && widget->focusPolicy() != Qt::NoFocus &&
            !Starts(control.name, "lbl") && !Starts(control.name, "fra") &&
            !Starts(control.name, "ud")) {
            fields.push_back(&control);
        }
    }
    std::stable_sort(fields.begin(), fields.end(),
                     [](const Control* a, const Control* b) { return a->tabIndex < b->tabIndex; });
    for (std::size_t i = 1; i < fields.size(); ++i) {
        QWidget::setTabOrder(Find(fields[i - 1]->name), Find(fields[i]->name));
    }
}

bool FormWidgets::eventFilter(QObject* watched, QEvent* event) {
    const std::string name = watched->objectName().toStdString();
    switch (event->type()) {
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (qobject_cast<QRadioButton*>(watched) != nullptr) {
            // The arrows choose the next or the previous button of the group, the only way
            // the keyboard reaches the buttons that are not tab stops.
            const int step = key->key() == Qt::Key_Down || key->key() == Qt::Key_Right ? 1
                             : key->key() == Qt::Key_Up || key->key() == Qt::Key_Left  ? -1
                                                                                       : 0;
            if (step != 0 && ChooseNeighbour(name, step)) {
                return true;
            }
            break;
        }
        if (!qobject_cast<QLineEdit*>(watched) || !m_events.key) {
            break;
        }
        int code = 0;
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            code = 13;
        } else if (key->key() == Qt::Key_Backspace) {
            code = 8;
        } else if (key->text().size() == 1 && key->text().at(0).unicode() >= 32) {
            code = key->text().at(0).unicode();
        } else {
            break; // arrows, Tab, Delete and the editing keys are the box's own
        }
        if (m_events.key(name, code) == 0) {
            return true; // swallowed: Enter has moved the focus in the model
        }
        break;
    }
    case QEvent::FocusIn: {
        auto* focus = static_cast<QFocusEvent*>(event);
        if (!m_refreshing && m_events.focusIn) {
            const bool byTab =
                focus->reason() == Qt::TabFocusReason || focus->reason() == Qt::BacktabFocusReason;
            m_events.focusIn(name, byTab);
        }
        break;
    }
    case QEvent::MouseButtonPress: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::RightButton && m_events.rightClick) {
            m_events.rightClick(name);
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
