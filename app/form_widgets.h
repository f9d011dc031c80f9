#pragma once

#include "shell/form_model.h"

#include <QObject>
#include <functional>
#include <map>
#include <string>

class QWidget;

// What the user does to a control, passed on to the model by name.
struct ControlEvents {
    std::function<void(const std::string& control)> click;
    std::function<void(const std::string& list, int index)> choose;
    std::function<void(const std::string& box, const std::string& text)> change;
    std::function<void(const std::string& spin)> spinUp;
    std::function<void(const std::string& spin)> spinDown;
    // Gives the key that stays in the box, 0 when the model swallows it.
    std::function<int(const std::string& box, int key)> key;
    std::function<void(const std::string& control, bool byTabKey)> focusIn;
    std::function<void(const std::string& control)> rightClick;
};

// The widgets of a form model's controls, made by the kind the name's prefix gives (`txt` a line
// edit, `cb` a check box, `opt` a radio button, `cbo` a list, `cmb` a push button, `ud` a spin
// pair, `lbl` a label, `fra` a group box). Each carries its control's name as object name and only
// mirrors its control; what the user does goes to the events.
class FormWidgets : public QObject {
  public:
    explicit FormWidgets(ControlEvents events) : m_events(std::move(events)) {}

    // Makes the widget of a control, inside `parent`.
    QWidget* Make(const Control& control, QWidget* parent);
    QWidget* Find(const std::string& name) const;
    const std::map<std::string, QWidget*>& widgets() const { return m_widgets; }

    // Mirrors the model: texts, captions, ticks, choices, enabled and visible states, and
    // the focus with its selection.
    void Refresh(const FormModel& form);

    // The tab order of the fields in the order of the model's tab indexes.
    void OrderTabs(const FormModel& form);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // Chooses the button of the group that the model gives for an arrow key from `button`;
    // false when there is none.
    bool ChooseNeighbour(const std::string& button, int step);

    const FormModel* m_form = nullptr; // the model last drawn

    ControlEvents m_events;
    std::map<std::string, QWidget*> m_widgets;
    bool m_refreshing = false;
    int m_selectionRequests = 0; // the model's selection requests already carried out
};

// A label's caption as Qt shows it: "&&" is one ampersand, as it is for the model.
QString CaptionText(const std::string& caption);

// A long caption broken at blanks into lines of about `width` characters, for the check boxes,
// which do not wrap by themselves.
QString WrappedCaption(const std::string& caption, int width);
inline constexpr int CheckBoxLineWidth = 100;
